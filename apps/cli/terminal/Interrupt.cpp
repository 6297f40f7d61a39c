#include <cli/terminal/Interrupt.h>

#include <csignal>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Zenvora::Lumidex::Cli {

namespace {

std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set in a signal handler");

#ifdef _WIN32

BOOL WINAPI OnConsoleEvent(DWORD event) {
  // Not handled the second time: the system then ends the process.
  if (interrupted.exchange(true)) {
    return FALSE;
  }
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
    // The window closes or the user leaves: the process ends with this call, if not before by itself.
    Sleep(INFINITE);
  }
  return TRUE;
}

#else

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

void OnSignal(int /*signal*/) {
  interrupted = true;
  for (const int signal : kSignals) {
    std::signal(signal, SIG_DFL);
  }
}

#endif

}  // namespace

void WatchInterrupts() {
#ifdef _WIN32
  SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
#else
  for (const int signal : kSignals) {
    struct sigaction former {};
    sigaction(signal, nullptr, &former);
    if (former.sa_handler == SIG_IGN) {
      continue;
    }
    struct sigaction action {};
    action.sa_handler = OnSignal;
    // Reading and writing go on: the flag is asked for between them.
    action.sa_flags = SA_RESTART;
    // The others wait for the handler's end, when they are at their defaults.
    sigemptyset(&action.sa_mask);
    for (const int other : kSignals) {
      sigaddset(&action.sa_mask, other);
    }
    sigaction(signal, &action, nullptr);
  }
#endif
}

const std::atomic<bool>& Interrupted() {
  return interrupted;
}

void ThrowIfInterrupted(const char* whatIsKept) {
  if (interrupted) {
    InterruptedError error;
    error << TagDescription(whatIsKept);
    BOOST_THROW_EXCEPTION(error);
  }
}

}  // namespace Zenvora::Lumidex::Cli
