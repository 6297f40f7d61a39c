#include "CallStackFrames.h"

#include <ostream>

// The backtrace of the standard unwinder, named by the dynamic loader: no child process, no debug information
// needed.
#include <boost/stacktrace.hpp>

namespace Zenvora {

// Not inlined: the frames left out are counted.
__attribute__((noinline)) void WriteFrames(std::ostream& text) {
  const boost::stacktrace::stacktrace frames(2, kMostFrames);
  for (std::size_t i = 0; i < frames.size(); ++i) {
    // A frame holds the address to return to; after a call that never returns that is another function's.
    const boost::stacktrace::frame call(static_cast<const char*>(frames[i].address()) - 1);
    text << i << "# " << call << '\n';
  }
}

}  // namespace Zenvora
