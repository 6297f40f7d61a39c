#include <gtest/gtest.h>

#include <IniText.h>
#include <string>

namespace Zenvora::App {
namespace {

class IniText : public testing::TestWithParam<const char*> {};

TEST_P(IniText, IsAccepted) {
  EXPECT_EQ(FirstLineNotIni(GetParam()), 0U) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, IniText,
                         testing::Values("", "\n\n", "  \t\r\n", "[a]", "[a]\r\nb=c\r\n", "b=c", "b=", "=",
                                         "b = c", "; comment", "  ; comment without the sign",
                                         "b=\"c;d\"\n\n[e]\nf=g", " [a] ", "[a/b c]", "b=[c", "[]"));

struct Damaged {
  std::string text;
  std::size_t line;
};

class DamagedIniText : public testing::TestWithParam<Damaged> {};

TEST_P(DamagedIniText, IsFoundAtItsLine) {
  EXPECT_EQ(FirstLineNotIni(GetParam().text), GetParam().line) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Table, DamagedIniText,
                         testing::Values(Damaged{"b", 1}, Damaged{"[a\nb=c", 1},
                                         Damaged{"[a]\n\nb=c\nb\nd", 4}, Damaged{"# comment", 1},
                                         Damaged{"b=c\n{\"json\":1}", 2}, Damaged{std::string("\0\0", 2), 1},
                                         Damaged{"\xFF\xD8\xFF\xE0", 1}));

}  // namespace
}  // namespace Zenvora::App
