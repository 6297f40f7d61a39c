#pragma once

#include <host/base/HostError.h>

#include <zenvora/core/ioPath.h>

#include <string>

namespace Zenvora::Lumidex::Host {

/// A file that could not be treated as asked.
struct FileFinding {
  ioPath file;
  std::string cause;  ///< One English sentence that names the file.
};

/// The finding that a failure makes, with the file that it names.
FileFinding FindingOf(const HostError& failure);

}  // namespace Zenvora::Lumidex::Host
