// A sidecar beside a photo that says nothing, edited as its photo would be.

#include "Fuzzer.h"
#include "InputFile.h"

#include <zenvora/strandel/SidecarEdit.h>

#include <glog/logging.h>

#include <chrono>
#include <vector>

using namespace Zenvora;

namespace {

std::vector<Strandel::PhotoEdit> AllEdits() {
  std::vector<Strandel::PhotoEdit> edits(3);
  edits[0].turn = Strandel::Turn::Right;
  edits[1].shift = std::chrono::hours(1);
  edits[2].date = QDateTime(QDate(2003, 2, 1), QTime(4, 5, 6), Qt::UTC);
  return edits;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  FLAGS_minloglevel = google::NUM_SEVERITIES;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Fuzz::InputFile sidecar;
  static const Fuzz::InputFile photo;
  static const std::vector<Strandel::PhotoEdit> edits = AllEdits();
  sidecar.Fill(Fuzz::TextOf(data, size));
  for (const Strandel::PhotoEdit& edit : edits) {
    try {
      Strandel::TryEditSidecar(sidecar.Path(), photo.Path(), edit);
    } catch (const Strandel::PhotoEditError& error) {
      const std::string* const cause = boost::get_error_info<TagDescription>(error);
      Fuzz::Demand(cause != nullptr && !cause->empty(), "what cannot be edited has a cause");
    }
  }
  return 0;
}
