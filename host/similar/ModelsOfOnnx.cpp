// For builds with LUMIDEX_ONNX.

#include <host/model/OnnxModel.h>
#include <host/similar/Models.h>

namespace Zenvora::Lumidex::Host {

std::string ModelRuntime() {
  return OnnxRuntime();
}

std::unique_ptr<PhotoAnalyser> OpenModel(const ioPath& file) {
  return OpenOnnxModel(file);
}

}  // namespace Zenvora::Lumidex::Host
