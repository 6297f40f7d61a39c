#include <cli/terminal/Output.h>
#include <host/base/HostError.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace Zenvora::Lumidex::Cli {

void Output::Write() {
  errno = 0;
  const bool written = std::fwrite(text_.data(), 1, text_.size(), stdout) == text_.size();
  text_.clear();
  if (std::fflush(stdout) != 0 || !written) {
    Host::ThrowHostError("standard output",
                         std::string("The output cannot be written: ") + std::strerror(errno));
  }
}

}  // namespace Zenvora::Lumidex::Cli
