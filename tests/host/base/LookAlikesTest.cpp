#include <host/base/LookAlikes.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Pairs = std::vector<std::pair<const char*, const char*>>;

std::string Form(const char* text) {
  return LookAlikeForm(QString::fromUtf8(text)).toStdString();
}

TEST(LookAlikes, AreEqual) {
  for (const auto& [left, right] : Pairs{{"Camera", "\u0421amera"},  // Cyrillic Es
                                         {"Coffee", "\u0421offee"},
                                         {"Beach", "BEACH"},
                                         {"Café", "cafe"},
                                         {"Caf\u00E9", "Cafe\u0301"},
                                         {"Самолёт", "Самолет"},
                                         {"  New   York ", "new york"},
                                         {"Straße", "STRASSE"},
                                         {"Ｔｏｋｙｏ", "Tokyo"},
                                         {"ﬁsh", "Fish"},
                                         {"Tromsø", "Tromso"},
                                         {"Łódź", "Lodz"},
                                         {"hot\u2011dog", "hot-dog"},
                                         {"O\u2019Hara", "O'Hara"},
                                         {"Кот", "Koт"},
                                         {"カメラ", "ｶﾒﾗ"}}) {
    EXPECT_EQ(Form(left), Form(right)) << left;
  }
}

TEST(LookAlikes, AreEqualWhateverCannotBeSeenInThem) {
  for (const char* const text :
       {"Bea\u200Bch", "Bea\u00ADch", "\uFEFFBeach", "\u200FBeach\u202C", "Beach\uFE0F"}) {
    EXPECT_EQ(Form(text), "beach");
  }
}

TEST(LookAlikes, AreNotWhatOnlyResemblesThem) {
  for (const auto& [left, right] : Pairs{{"Beach", "Beech"},
                                         {"Кот", "Код"},
                                         {"ペット", "ベット"},
                                         {"カ", "ガ"},
                                         {"car", "cars"},
                                         {"hot dog", "hotdog"},
                                         {"1", "l"},
                                         {"0", "O"}}) {
    EXPECT_NE(Form(left), Form(right)) << left;
  }
}

TEST(LookAlikes, LeaveNothingOfBlanksAndAccentsAlone) {
  EXPECT_EQ(Form(""), "");
  EXPECT_EQ(Form(" \t\n"), "");
  EXPECT_EQ(Form("\u0301"), "");
  EXPECT_EQ(Form("\u200B\u200D\u2060"), "");
  EXPECT_EQ(Form("\u3164\u2800"), "");
}

TEST(LookAlikes, StayAsTheyAreWhenAskedTwice) {
  for (const char* const text : {"\u0421amera", "Łódź", "STRASSE", "Ｔｏｋｙｏ", "Самолёт", "İstanbul"}) {
    const QString once = LookAlikeForm(QString::fromUtf8(text));
    EXPECT_EQ(LookAlikeForm(once), once) << text;
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
