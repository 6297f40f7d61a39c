#include "SystemTerminal.h"

#include <cli/terminal/Arguments.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Question.h>

#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

void OnSignal(int /*signal*/) {
  interruptedFlag = true;
  for (const int signal : kSignals) {
    std::signal(signal, SIG_DFL);
  }
}

}  // namespace

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    arguments.emplace_back(argv[i]);
  }
  return arguments;
}

bool CanAsk() {
  return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
}

bool ReadPiece(std::string& piece, const std::atomic<bool>& interrupted) {
  // The handler of an interruption lets a read go on.
  constexpr int kPauseMs = 50;
  while (!interrupted) {
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    if (poll(&input, 1, kPauseMs) > 0) {
      piece.resize(1);
      return read(STDIN_FILENO, piece.data(), 1) == 1;
    }
  }
  return false;
}

bool StderrIsTerminal() {
  const char* const kind = std::getenv("TERM");
  return isatty(STDERR_FILENO) == 1 && !(kind && std::string(kind) == "dumb");
}

std::optional<int> TerminalColumns() {
  winsize size{};
  return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? std::optional<int>(size.ws_col)
                                                                         : std::nullopt;
}

void WatchInterrupts() {
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
}

}  // namespace Zenvora::Lumidex::Cli
