#include "RenameDateFormat.h"

#include <host/base/RenameNames.h>

#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

struct Letter {
  char32_t letter;
  bool ofTime;
  /// The lengths that mean something.
  std::u32string_view lengths;
};

constexpr Letter kLetters[] = {
    {U'd', false, U"1234"}, {U'M', false, U"1234"}, {U'y', false, U"24"}, {U'h', true, U"12"},
    {U'H', true, U"12"},    {U'm', true, U"12"},    {U's', true, U"12"},  {U'z', true, U"13"},
    {U'a', true, U"1"},     {U'A', true, U"1"},
};

const Letter* FindLetter(char32_t letter) {
  for (const Letter& known : kLetters) {
    if (known.letter == letter) {
      return &known;
    }
  }
  return nullptr;
}

bool IsAsciiLetter(char32_t c) {
  return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z');
}

std::string InQuotes(const std::u32string& letters) {
  // Only letters of ASCII come here.
  std::string text = "'";
  for (const char32_t letter : letters) {
    text += static_cast<char>(letter);
  }
  return text + "'";
}

class Checker {
 public:
  Checker(const std::u32string& format, bool withTime) : format_(format), withTime_(withTime) {}

  DateFormatFault Run() {
    while (at_ < format_.size() && fault_.cause.empty()) {
      Step();
    }
    if (fault_.cause.empty() && quoted_) {
      Fail(quote_, "the quote is not closed");
    }
    if (fault_.cause.empty() && !says_) {
      Fail(0, format_.empty() ? "the date format is empty" : "the date format says nothing of the date");
    }
    return fault_;
  }

 private:
  void Fail(std::size_t at, const std::string& cause) { fault_ = {at, cause}; }

  void Step() {
    const char32_t c = format_[at_];
    const std::string fault = FindCharacterFault(c);
    if (!fault.empty()) {
      Fail(at_, "a name cannot hold " + fault);
    } else if (c == U'\'') {
      quote_ = at_++;
      quoted_ = !quoted_;
    } else if (quoted_ || !IsAsciiLetter(c)) {
      ++at_;
    } else {
      Letters();
    }
  }

  void Letters() {
    const char32_t c = format_[at_];
    std::size_t length = 1;
    while (at_ + length < format_.size() && format_[at_ + length] == c) {
      ++length;
    }
    const std::u32string run = format_.substr(at_, length);
    const Letter* known = FindLetter(c);
    if (known == nullptr) {
      Fail(at_, InQuotes(run) + " means nothing in a date format; text goes into single quotes");
    } else if (known->ofTime && !withTime_) {
      Fail(at_, InQuotes(run) + " is of the time, which a date lacks; " +
                    (c == U'm' ? "months are 'MM'" : "use {datetime:...}"));
    } else if (length > 9 ||
               known->lengths.find(static_cast<char32_t>(U'0' + length)) == std::u32string_view::npos) {
      Fail(at_, InQuotes(run) + " means nothing in a date format: it has too many or too few letters");
    } else {
      says_ = true;
      at_ += length;
      SkipRestOfAmPm(c);
    }
  }

  void SkipRestOfAmPm(char32_t c) {
    const char32_t wanted = c == U'a' ? U'p' : U'P';
    if ((c == U'a' || c == U'A') && at_ < format_.size() && format_[at_] == wanted) {
      ++at_;
    }
  }

  const std::u32string& format_;
  const bool withTime_;
  std::size_t at_ = 0;
  std::size_t quote_ = 0;
  bool quoted_ = false;
  bool says_ = false;
  DateFormatFault fault_;
};

}  // namespace

DateFormatFault FindDateFormatFault(const std::u32string& format, bool withTime) {
  return Checker(format, withTime).Run();
}

}  // namespace Zenvora::Lumidex::Host
