// A model: what it says of the pictures that it takes.

#include "Fuzzer.h"
#include "ModelFault.h"
#include "ModelHead.h"

using namespace Zenvora;

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string model = Fuzz::TextOf(data, size);
  try {
    const Lumidex::Host::ModelHead head = Lumidex::Host::ReadModelHead(model);
    Fuzz::Demand(head.width > 0 && head.height > 0 && (head.channels == 1 || head.channels == 3),
                 "a model that is taken takes pictures");
    Fuzz::Demand(!head.output.empty(), "and says where its result is");
  } catch (const Lumidex::Host::ModelFault&) {
    // Most inputs are no model.
  }
  return 0;
}
