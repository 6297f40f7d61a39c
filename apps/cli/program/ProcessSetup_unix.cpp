#include "ProcessSetup.h"

#include <csignal>

namespace Zenvora::Lumidex::Cli {

ProcessSetup::ProcessSetup() {
  // A file that may not grow any more is an error to report, not a reason to die.
  std::signal(SIGXFSZ, SIG_IGN);
}

ProcessSetup::~ProcessSetup() {
  static_cast<void>(formerCodePage_);
}

}  // namespace Zenvora::Lumidex::Cli
