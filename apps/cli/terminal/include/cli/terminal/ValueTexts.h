#pragma once

#include <QDateTime>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// Times and sizes as people write them on the command line. All are pure. None with the fault, to be put
/// behind "needs ...", when the text is none.

/// By how much a clock was wrong: a sign, then days, hours, minutes and seconds ("+1h", "-2d3h", "+90m"), the
/// larger units first and each at most once, or hours, minutes and seconds by the clock ("+1:30",
/// "-0:00:45"). The sign is needed, zero is refused, and so are more than seven digits in a row.
std::optional<std::chrono::seconds> ParseOffset(const std::string& text, std::string& fault);

/// The shortest text that `ParseOffset` reads as that: "-2d3h".
std::string OffsetText(std::chrono::seconds offset);

/// A day with or without a time of day: "2024-05-17", "2024-05-17 18:30", "2024-05-17T18:30:05", and with
/// colons in the day, as EXIF has it. A day alone is its midnight. The years are 1 to 9999. Has no zone,
/// which UTC stands for.
std::optional<QDateTime> ParseDate(const std::string& text, std::string& fault);

/// Bytes: a whole number with or without K, M, G or T (1024 each, also "MB", "MiB", in any case), less than
/// 2^63.
std::optional<std::uint64_t> ParseSize(const std::string& text, std::string& fault);

/// What stands before decimals in the interface language.
std::string DecimalMark();

/// "0 B", "1.5 KiB", "5 GiB" in the interface language: at most one decimal, cut off and not rounded.
std::string SizeText(std::uint64_t bytes);

}  // namespace Zenvora::Lumidex::Cli
