#include "CallStackFrames.h"

#include <zenvora/core/CallStack.h>

#include <sstream>

namespace Zenvora {

std::string GetCallStack() noexcept {
  try {
    std::ostringstream text;
    WriteFrames(text);
    return text.str();
  } catch (...) {
    return {};
  }
}

}  // namespace Zenvora
