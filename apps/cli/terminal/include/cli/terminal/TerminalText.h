#pragma once

#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Cli {

/// The text as it may be written to a terminal: one line, no character that moves the cursor, changes colours
/// or turns the writing direction round. Such characters and bytes that are not UTF-8 become `\n`, `\t`,
/// `\r`, `\x1b` (bytes and ASCII) or `\u202e`. For people: a backslash stays as it is, so there is no way
/// back.
std::string EscapeForTerminal(std::string_view text);

/// Columns that a terminal gives the text (UTF-8, escaped): two for wide East Asian characters and emoji,
/// none for combining marks and format characters. Independent of the process's locale.
int DisplayWidth(std::string_view text);

/// The longest beginning of the text that fits into `columns`.
std::string CutToWidth(std::string_view text, int columns);

/// A number with its digits in groups of three, as the interface language has them: 1,234,567.
std::string GroupDigits(unsigned long long number);

/// "1 photo", "1,234 photos", in English whatever the interface language.
std::string Counted(unsigned long long number, std::string_view noun);

}  // namespace Zenvora::Lumidex::Cli
