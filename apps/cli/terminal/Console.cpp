#include "SystemTerminal.h"

#include <cli/terminal/Console.h>
#include <cli/terminal/TerminalText.h>

#include <algorithm>
#include <cstdio>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr int kUsualColumns = 80;

void Put(const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
  std::fflush(stderr);
}

}  // namespace

Console::Console(bool quiet) : quiet_(quiet), showsStatus_(!quiet && StderrIsTerminal()) {}

Console::~Console() {
  ClearStatus();
}

int Console::Columns() {
  return TerminalColumns().value_or(kUsualColumns);
}

void Console::Note(const std::string& text, const std::vector<std::string>& more) {
  if (!quiet_) {
    Write(text, more);
  }
}

void Console::Warning(const std::string& text) {
  Write("warning: " + text, {});
}

void Console::Error(const std::string& text, const std::vector<std::string>& more,
                    const std::string& advice) {
  Write("error: " + text, more, advice);
}

void Console::Show(const std::string& text) {
  const std::lock_guard<std::mutex> lock(mutex_);
  status_.clear();
  Draw("");
  Put(text);
}

void Console::Write(const std::string& text, const std::vector<std::string>& more,
                    const std::string& advice) {
  std::string lines = "lumidex: " + EscapeForTerminal(text) + '\n';
  for (const std::string& line : more) {
    lines += "  " + EscapeForTerminal(line) + '\n';
  }
  if (!advice.empty()) {
    lines += EscapeForTerminal(advice) + '\n';
  }
  const std::lock_guard<std::mutex> lock(mutex_);
  Draw("");
  Put(lines);
  Draw(status_);
}

void Console::SetStatus(const std::string& line) {
  if (!showsStatus_) {
    return;
  }
  const std::lock_guard<std::mutex> lock(mutex_);
  status_ = line;
  Draw(line);
}

void Console::ClearStatus() {
  SetStatus("");
}

// Blanks instead of an escape sequence: every terminal knows them.
void Console::Draw(const std::string& line) {
  const int width = DisplayWidth(line);
  if (width == 0 && drawnWidth_ == 0) {
    return;
  }
  // The terminal may have become narrower since; blanks that wrap round would leave traces.
  const int padding = std::min(drawnWidth_, Columns() - 1) - width;
  std::string text = '\r' + line;
  if (padding > 0) {
    text += std::string(static_cast<std::size_t>(padding), ' ');
  }
  Put(text + (width == 0 ? "\r" : ""));
  drawnWidth_ = width;
}

}  // namespace Zenvora::Lumidex::Cli
