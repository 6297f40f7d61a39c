#include "SystemTerminal.h"

#include <cli/terminal/Arguments.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Question.h>

#include <QString>

#include <array>
#include <windows.h>
// Behind the header that it needs.
#include <shellapi.h>

namespace Zenvora::Lumidex::Cli {

namespace {

bool IsConsole(DWORD stream) {
  // Not `_isatty`, which takes the null device for a terminal.
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

BOOL WINAPI OnConsoleEvent(DWORD event) {
  // Not handled the second time: the system then ends the process.
  if (interruptedFlag.exchange(true)) {
    return FALSE;
  }
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
    // The window closes or the user leaves: the process ends with this call, if not before by itself.
    Sleep(INFINITE);
  }
  return TRUE;
}

}  // namespace

std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/) {
  std::vector<std::string> arguments;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; wide && i < count; ++i) {
    arguments.push_back(QString::fromWCharArray(wide[i]).toStdString());
  }
  LocalFree(wide);
  return arguments;
}

bool CanAsk() {
  return IsConsole(STD_INPUT_HANDLE) && IsConsole(STD_ERROR_HANDLE);
}

bool ReadPiece(std::string& piece, const std::atomic<bool>& interrupted) {
  // Bytes of a console would be in its code page, which has few of the letters of most languages.
  constexpr wchar_t kEndOfInput = 0x1A;
  std::array<wchar_t, 2> units{};
  const auto read = [&interrupted](wchar_t& unit) {
    DWORD count = 0;
    return !interrupted && ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), &unit, 1, &count, nullptr) &&
           count == 1;
  };
  if (!read(units[0]) || units[0] == kEndOfInput) {
    return false;
  }
  const bool isHalf = QChar::isHighSurrogate(units[0]);
  if (isHalf && !read(units[1])) {
    return false;
  }
  piece = QString::fromWCharArray(units.data(), isHalf ? 2 : 1).toStdString();
  return true;
}

bool StderrIsTerminal() {
  return IsConsole(STD_ERROR_HANDLE);
}

std::optional<int> TerminalColumns() {
  CONSOLE_SCREEN_BUFFER_INFO info;
  return GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info)
             ? std::optional<int>(info.srWindow.Right - info.srWindow.Left + 1)
             : std::nullopt;
}

void WatchInterrupts() {
  SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
}

}  // namespace Zenvora::Lumidex::Cli
