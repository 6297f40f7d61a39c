#include "SystemTerminal.h"

#include <cli/terminal/Question.h>
#include <cli/terminal/Words.h>

#include <QStringList>

#include <algorithm>

namespace Zenvora::Lumidex::Cli {

namespace {

// No path is longer; what is longer comes from no person.
constexpr std::size_t kLongestLine = 65536;

}  // namespace

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
