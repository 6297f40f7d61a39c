#include <host/base/FileFinding.h>

#include <boost/exception/get_error_info.hpp>

namespace Zenvora::Lumidex::Host {

FileFinding FindingOf(const HostError& failure) {
  const std::string* const file = boost::get_error_info<TagFilename>(failure);
  return {file != nullptr ? ioPath(*file) : ioPath(), failure.what()};
}

}  // namespace Zenvora::Lumidex::Host
