// For builds without LUMIDEX_ONNX.

#include <host/base/HostError.h>
#include <host/similar/Models.h>

namespace Zenvora::Lumidex::Host {

std::string ModelRuntime() {
  return {};
}

std::unique_ptr<PhotoAnalyser> OpenModel(const ioPath& file) {
  ThrowHostError(file.utf8string(),
                 "Cannot use the model " + file.utf8string() + ": this build runs no models");
}

}  // namespace Zenvora::Lumidex::Host
