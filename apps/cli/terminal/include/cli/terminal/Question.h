#pragma once

#include <cli/terminal/Console.h>

#include <QString>

#include <atomic>
#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// True when somebody can be asked and can answer: the standard input and the standard error stream are a
/// terminal.
bool CanAsk();

/// Shows `question` (escaped) on the standard error stream and waits for a line, which is returned without
/// its end. None at the end of the input, also within a line, and when `interrupted` becomes true meanwhile.
std::optional<std::string> AskForLine(Console& console, const std::string& question,
                                      const std::atomic<bool>& interrupted);

/// Shows `facts` (escaped lines) on the standard error stream, asks `question` and waits for a line. True for
/// "y" and "yes" and what they are in the interface language, in any case; false for every other answer, for
/// the end of the input, and when `interrupted` becomes true meanwhile.
bool Ask(Console& console, const std::string& facts, const std::string& question,
         const std::atomic<bool>& interrupted);

/// Whether a line is a yes, in English or in the interface language.
bool IsYes(const std::string& answer);

/// What answers are compared by: without case, accents, blanks at the ends and wide forms of letters. Pure.
QString PlainAnswer(const std::string& answer);

}  // namespace Zenvora::Lumidex::Cli
