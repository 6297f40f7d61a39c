#include <cli/terminal/Words.h>

#include <limits>

namespace Zenvora::Lumidex::Cli {

std::string Say(const QString& text, std::initializer_list<std::string_view> values) {
  const std::string pattern = text.toStdString();
  std::string said;
  said.reserve(pattern.size());
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const bool isPlace = pattern[i] == '%' && i + 1 < pattern.size() && pattern[i + 1] >= '1' &&
                         static_cast<std::size_t>(pattern[i + 1] - '1') < values.size();
    if (isPlace) {
      ++i;
      said += values.begin()[pattern[i] - '1'];
    } else {
      said += pattern[i];
    }
  }
  return said;
}

int Amount(unsigned long long number) {
  // What counts are the last digits, and whether there are more.
  constexpr unsigned long long kMillion = 1'000'000;
  constexpr auto kMost = static_cast<unsigned long long>(std::numeric_limits<int>::max());
  return static_cast<int>(number <= kMost ? number : kMillion + number % kMillion);
}

}  // namespace Zenvora::Lumidex::Cli
