#include <zenvora/core/CallStack.h>

// The backtrace of the standard unwinder, named by the dynamic loader: no child process, no debug information
// needed.
#include <boost/stacktrace.hpp>

#include <cstddef>
#include <sstream>

namespace Zenvora {

namespace {
// Deep enough for any call chain here; keeps a runaway recursion's trace readable.
constexpr std::size_t kMaxFrames = 64;
}  // namespace

std::string GetCallStack() noexcept {
  try {
    const boost::stacktrace::stacktrace frames(1, kMaxFrames);
    std::ostringstream text;
    for (std::size_t i = 0; i < frames.size(); ++i) {
      // A frame holds the address to return to; after a call that never returns that is another function's.
      const boost::stacktrace::frame call(static_cast<const char*>(frames[i].address()) - 1);
      text << i << "# " << call << '\n';
    }
    return text.str();
  } catch (...) {
    return {};
  }
}

}  // namespace Zenvora
