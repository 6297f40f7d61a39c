// The text of a date and, behind a line feed, its sub-seconds.

#include "Fuzzer.h"

#include <zenvora/strandel/DateText.h>
#include <zenvora/strandel/PhotoFacts.h>

using namespace Zenvora;

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = Fuzz::TextOf(data, size);
  const std::size_t end = input.find('\n');
  const std::string text = input.substr(0, end);
  const std::string subSeconds = end == std::string::npos ? std::string() : input.substr(end + 1);

  const QDateTime date = Strandel::ParseExifDateTime(text, subSeconds);
  const auto parsed = Strandel::DateText::Parse(text);
  Fuzz::Demand(!date.isValid() || parsed, "what is a date for one is one for the other");
  if (!parsed) {
    return 0;
  }
  Fuzz::Demand(parsed->Value().isValid(), "a date exists");
  Fuzz::Demand(parsed->With(parsed->Value()) == text, "the same date leaves the text");
  const QDateTime other(QDate(2021, 5, 1), QTime(10, 20, 30), Qt::UTC);
  const auto changed = Strandel::DateText::Parse(parsed->With(other));
  Fuzz::Demand(changed && changed->Value().date().year() == other.date().year(), "the text stays a date");
  Fuzz::Demand(changed->HasZone() == parsed->HasZone(), "the zone stays");
  Fuzz::Demand(!changed->HasTime() || changed->Value() == other, "the date is the one put in");
  Fuzz::Demand(Strandel::DateText::Parse(parsed->WithFraction(other)).has_value(), "so does the fraction");
  return 0;
}
