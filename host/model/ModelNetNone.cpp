// For builds that run no models.

#include "ModelFault.h"
#include "ModelNet.h"

#include <host/model/ModelAnalyser.h>

namespace Zenvora::Lumidex::Host {

std::string ModelRuntime() {
  return {};
}

std::unique_ptr<ModelNet> MakeModelNet(std::string_view, const ModelHead&) {
  throw ModelFault("this build runs no models");
}

}  // namespace Zenvora::Lumidex::Host
