#include <cli/terminal/Question.h>
#include <cli/terminal/Words.h>

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Cli {

namespace {

// No path is longer; what is longer comes from no person.
constexpr std::size_t kLongestLine = 65536;

#ifdef _WIN32

bool IsConsole(DWORD stream) {
  // Not `_isatty`, which takes the null device for a terminal.
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

/// False at the end of the input; an interruption ends it, too. Bytes of a console would be in its code page,
/// which has few of the letters of most languages.
bool ReadPiece(std::string& piece, const std::atomic<bool>& interrupted) {
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

#else

/// False at the end of the input, and on an interruption: its handler lets a read go on.
bool ReadPiece(std::string& piece, const std::atomic<bool>& interrupted) {
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

#endif

}  // namespace

bool CanAsk() {
#ifdef _WIN32
  return IsConsole(STD_INPUT_HANDLE) && IsConsole(STD_ERROR_HANDLE);
#else
  return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
#endif
}

QString PlainAnswer(const std::string& answer) {
  QString plain;
  // Not Qt's whole normal form alone: "si" is meant where "sí" is asked for.
  for (const QChar letter :
       QString::fromStdString(answer).normalized(QString::NormalizationForm_KD).toCaseFolded().trimmed()) {
    if (letter.category() != QChar::Mark_NonSpacing) {
      plain += letter;
    }
  }
  return plain;
}

bool IsYes(const std::string& answer) {
  const QString word = PlainAnswer(answer);
  const QStringList known = QStringLiteral("y yes").split(QLatin1Char(' ')) +
                            Words::tr("y yes", "answers, all that mean it").split(QLatin1Char(' '));
  return std::any_of(known.begin(), known.end(),
                     [&word](const QString& yes) { return PlainAnswer(yes.toStdString()) == word; });
}

std::optional<std::string> AskForLine(Console& console, const std::string& question,
                                      const std::atomic<bool>& interrupted) {
  console.Show(question + ' ');
  std::string line;
  for (std::string piece; ReadPiece(piece, interrupted) && line.size() < kLongestLine;) {
    if (piece == "\n") {
      return interrupted ? std::nullopt : std::optional(line);
    }
    line += piece;
  }
  // No line of an answer ends the one of the question.
  console.Show("\n");
  return std::nullopt;
}

bool Ask(Console& console, const std::string& facts, const std::string& question,
         const std::atomic<bool>& interrupted) {
  const auto line = AskForLine(console, facts + question, interrupted);
  return line && IsYes(*line);
}

}  // namespace Zenvora::Lumidex::Cli
