#include <zenvora/core/CallStack.h>

// The backtrace of the standard unwinder, named by the dynamic loader: no child process, no debug information needed.
#include <boost/stacktrace.hpp>

#include <sstream>

namespace Zenvora {

namespace {
// Deep enough for any call chain here; keeps a runaway recursion's trace readable.
constexpr std::size_t kMaxFrames = 64;
}  // namespace

std::string GetCallStack() noexcept {
  try {
    std::ostringstream text;
    text << boost::stacktrace::stacktrace(1, kMaxFrames);
    return text.str();
  } catch (...) {
    return {};
  }
}

}  // namespace Zenvora
