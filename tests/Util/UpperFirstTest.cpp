#include <gtest/gtest.h>

#include <UpperFirst.h>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Test {
namespace {

// Here and not through the exported wording: no language of this Qt begins a month outside the basic plane.
TEST(UpperFirst, ChangesTheFirstLetterOnly) {
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"", ""},
      {"march", "March"},
      {"March", "March"},
      {"m", "M"},
      {"3月", "3月"},
      {"říjen", "Říjen"},
      {"март", "Март"},
      {"ǆin", "Ǆin"},
      {"ﬁn", "ﬁn"},
      {"ßa", "ßa"},
      // Deseret and Adlam: letters with case outside the basic plane.
      {"\xF0\x90\x90\xA8\xF0\x90\x90\xA9", "\xF0\x90\x90\x80\xF0\x90\x90\xA9"},
      {"\xF0\x9E\xA4\xA2", "\xF0\x9E\xA4\x80"},
      // Chakma: no case.
      {"\xF0\x91\x84\x9F\xF0\x91\x84\xA2", "\xF0\x91\x84\x9F\xF0\x91\x84\xA2"},
  };
  for (const auto& [text, expected] : rows) {
    EXPECT_EQ(Util::WithUpperFirst(QString::fromUtf8(text)).toStdString(), expected) << text;
  }
}

TEST(UpperFirst, LeavesHalfALetterAlone) {
  const QString high(1, QChar(0xD801));
  const QString low(1, QChar(0xDC28));
  EXPECT_EQ(Util::WithUpperFirst(high), high);
  EXPECT_EQ(Util::WithUpperFirst(low + high), low + high);
  EXPECT_EQ(Util::WithUpperFirst(high + QLatin1Char('a')), high + QLatin1Char('a'));
}

}  // namespace
}  // namespace Zenvora::Test
