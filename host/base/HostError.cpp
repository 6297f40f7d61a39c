#include <host/base/HostError.h>

namespace Zenvora::Lumidex::Host {

void ThrowHostError(const std::string& fileName, const std::string& description) {
  BOOST_THROW_EXCEPTION(HostError() << TagFilename(fileName) << TagDescription(description));
}

}  // namespace Zenvora::Lumidex::Host
