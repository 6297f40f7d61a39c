#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>

#include <array>
#include <charconv>
#include <limits>
#include <string_view>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

using std::chrono::seconds;

struct Unit {
  char letter;
  int seconds;
};
constexpr std::array kUnits = {Unit{'d', 86'400}, Unit{'h', 3'600}, Unit{'m', 60}, Unit{'s', 1}};

/// Takes text from its beginning.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }
  bool Take(char wanted) {
    const bool there = !rest_.empty() && rest_.front() == wanted;
    rest_.remove_prefix(there ? 1 : 0);
    return there;
  }
  char TakeAny() {
    const char taken = rest_.empty() ? '\0' : rest_.front();
    rest_.remove_prefix(rest_.empty() ? 0 : 1);
    return taken;
  }
  /// A number of that many digits; less than 0: there is none.
  int Digits(std::size_t least, std::size_t most) {
    std::size_t count = 0;
    while (count < rest_.size() && rest_[count] >= '0' && rest_[count] <= '9') {
      ++count;
    }
    if (count < least || count > most) {
      return -1;
    }
    int number = 0;
    std::from_chars(rest_.data(), rest_.data() + count, number);
    rest_.remove_prefix(count);
    return number;
  }

 private:
  std::string_view rest_;
};

constexpr std::size_t kMostDigits = 7;

/// "1:30" behind its hours.
std::optional<seconds> ByTheClock(Reader& reader, int hours) {
  const int minutes = reader.Digits(2, 2);
  const int rest = reader.Take(':') ? reader.Digits(2, 2) : 0;
  if (minutes < 0 || minutes > 59 || rest < 0 || rest > 59 || !reader.AtEnd()) {
    return std::nullopt;
  }
  return std::chrono::hours(hours) + std::chrono::minutes(minutes) + seconds(rest);
}

std::optional<seconds> ByUnits(Reader& reader, int number) {
  seconds sum{0};
  std::size_t next = 0;
  for (;;) {
    const char letter = reader.TakeAny();
    while (next < kUnits.size() && kUnits[next].letter != letter) {
      ++next;
    }
    if (number < 0 || next == kUnits.size()) {
      return std::nullopt;
    }
    sum += seconds(number) * kUnits[next].seconds;
    ++next;
    if (reader.AtEnd()) {
      return sum;
    }
    number = reader.Digits(1, kMostDigits);
  }
}

std::optional<QTime> TimeOfDay(Reader& reader) {
  const int hour = reader.Digits(2, 2);
  const int minute = reader.Take(':') ? reader.Digits(2, 2) : -1;
  const int second = reader.Take(':') ? reader.Digits(2, 2) : 0;
  const QTime time(hour, minute, second);
  return time.isValid() && reader.AtEnd() ? std::make_optional(time) : std::nullopt;
}

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// By how many powers of two a unit multiplies; less than 0: it is none.
int PowerOf(std::string_view unit) {
  constexpr std::string_view kLetters = "kmgt";
  std::string plain;
  for (const char letter : unit) {
    plain += Lower(letter);
  }
  if (plain.empty() || plain == "b") {
    return 0;
  }
  const std::size_t place = kLetters.find(plain[0]);
  const std::string end = plain.substr(1);
  const bool known = place != std::string_view::npos && (end.empty() || end == "b" || end == "ib");
  return known ? static_cast<int>(place + 1) * 10 : -1;
}

}  // namespace

std::optional<seconds> ParseOffset(const std::string& text, std::string& fault) {
  Reader reader(text);
  const bool back = reader.Take('-');
  if (!back && !reader.Take('+')) {
    fault = "a sign: +" + text + " to set the clock forward, -" + text + " to set it back";
    return std::nullopt;
  }
  const int number = reader.Digits(1, kMostDigits);
  const std::optional<seconds> offset =
      number >= 0 && reader.Take(':') ? ByTheClock(reader, number) : ByUnits(reader, number);
  if (!offset) {
    fault = "a time such as +1h, -2d3h, +90m, +1:30 or -0:00:45, not \"" + text + '"';
  } else if (offset->count() == 0) {
    fault = "a time other than 0, not \"" + text + '"';
    return std::nullopt;
  }
  return offset && back ? -*offset : offset;
}

std::string OffsetText(seconds offset) {
  std::string text(1, offset.count() < 0 ? '-' : '+');
  auto rest = offset.count() < 0 ? -offset.count() : offset.count();
  for (const Unit& unit : kUnits) {
    if (rest >= unit.seconds) {
      text += std::to_string(rest / unit.seconds) + unit.letter;
      rest %= unit.seconds;
    }
  }
  return text.size() == 1 ? "+0s" : text;
}

std::optional<QDateTime> ParseDate(const std::string& text, std::string& fault) {
  Reader reader(text);
  const int year = reader.Digits(4, 4);
  const char separator = reader.Take('-') ? '-' : ':';
  const bool split = separator == '-' || reader.Take(':');
  const int month = split ? reader.Digits(2, 2) : -1;
  const int day = reader.Take(separator) ? reader.Digits(2, 2) : -1;
  const QDate date(year, month, day);
  std::optional<QTime> time = QTime(0, 0);
  if (!reader.AtEnd()) {
    time = reader.Take(' ') || reader.Take('T') ? TimeOfDay(reader) : std::nullopt;
  }
  if (year < 1 || !date.isValid() || !time) {
    fault = "a date such as 2024-05-17, \"2024-05-17 18:30\" or 2024-05-17T18:30:05, not \"" + text + '"';
    return std::nullopt;
  }
  return QDateTime(date, *time, Qt::UTC);
}

std::optional<std::uint64_t> ParseSize(const std::string& text, std::string& fault) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::int64_t>::max();
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, number);
  const int power = PowerOf({stopped, static_cast<std::size_t>(end - stopped)});
  if (error != std::errc() || power < 0 || number > (kMost >> power)) {
    fault = "a size such as 500M, 5G or 0, not \"" + text + '"';
    return std::nullopt;
  }
  return number << power;
}

std::string DecimalMark() {
  return Say(Words::tr(".", "before decimals"));
}

std::string SizeText(std::uint64_t bytes) {
  const std::array<QString, 7> names = {Words::tr("%1 B"),   Words::tr("%1 KiB"), Words::tr("%1 MiB"),
                                        Words::tr("%1 GiB"), Words::tr("%1 TiB"), Words::tr("%1 PiB"),
                                        Words::tr("%1 EiB")};
  std::size_t unit = 0;
  std::uint64_t rest = 0;
  while (bytes >= 1024) {
    rest = bytes % 1024;
    bytes /= 1024;
    ++unit;
  }
  const std::uint64_t tenth = rest * 10 / 1024;
  const std::string fraction = bytes < 100 && tenth > 0 ? DecimalMark() + std::to_string(tenth) : "";
  return Say(names.at(unit), {std::to_string(bytes) + fraction});
}

}  // namespace Zenvora::Lumidex::Cli
