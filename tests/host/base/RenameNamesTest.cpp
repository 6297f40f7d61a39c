#include <host/base/RenameNames.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

TEST(NewNames, MayBeWhatEverySystemTakes) {
  const std::string longest = std::string(251, 'a') + ".jpg";
  for (const std::string& name :
       {std::string("a"), std::string("a.jpg"), std::string("2024-05-01_Ferien_001.CR2.xmp"),
        std::string("Пейзаж.jpg"), std::string("日本の庭.jpg"), std::string(" a.jpg"), std::string("a..jpg"),
        std::string("a .jpg"), std::string("CONSOLE.jpg"), std::string("COM10.jpg"), std::string("a.NUL"),
        std::string("Grandma's (1) {2} [3], ~&!.jpg"),
        std::string("\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9"), longest}) {
    EXPECT_EQ(FindNewNameFault(name), "") << name;
  }
}

TEST(NewNames, AreRefusedWhereOneSystemRefusesOrChangesThem) {
  const std::pair<std::string, const char*> table[] = {
      {"", "is empty"},
      {".", "means a folder"},
      {"..", "means a folder"},
      {".jpg", "begins with a dot, which hides the file"},
      {".a.jpg", "begins with a dot, which hides the file"},
      {"a/b.jpg", "holds a separator of folders /"},
      {"a\\b.jpg", "holds a separator of folders \\"},
      {"a\nb.jpg", "holds a control character"},
      {"a\x7F.jpg", "holds a control character"},
      {"a\xC2\x85.jpg", "holds a control character"},
      {"a\xE2\x80\xA8.jpg", "holds a control character"},
      {std::string("a\0.jpg", 6), "holds a control character"},
      {"a\xEF\xBF\xBD.jpg", "holds the sign for unreadable characters"},
      {"a\xE9.jpg", "is not valid UTF-8"},
      {"\xEF\xBB\xBF"
       "a.jpg",
       "is not valid UTF-8"},
      {"10:30.jpg", "holds the character :"},
      {"why?.jpg", "holds the character ?"},
      {"a*.jpg", "holds the character *"},
      {"a<b", "holds the character <"},
      {"a>b", "holds the character >"},
      {"a|b", "holds the character |"},
      {"a\"b", "holds the character \""},
      {"NUL", "names a device of Windows"},
      {"con.jpg", "names a device of Windows"},
      {"COM1.CR2.xmp", "names a device of Windows"},
      {"a.", "ends in a dot, which Windows drops"},
      {"a ", "ends in a blank, which Windows drops"},
      {std::string(252, 'a') + ".jpg", "is longer than 255 bytes"},
  };
  for (const auto& [name, fault] : table) {
    EXPECT_EQ(FindNewNameFault(name), fault) << name;
  }
  std::string cyrillic;
  for (int i = 0; i < 126; ++i) {
    cyrillic += "Ж";
  }
  EXPECT_EQ(FindNewNameFault(cyrillic + ".jp"), "");
  EXPECT_EQ(FindNewNameFault(cyrillic + ".jpg"), "is longer than 255 bytes") << "bytes count, not letters";
}

TEST(NameKeys, AreEqualForNamesThatOneSystemTakesForOne) {
  const std::pair<const char*, const char*> same[] = {
      {"IMG_1.JPG", "img_1.jpg"},
      {"Ä.jpg", "ä.jpg"},
      {"\xC3\xA4.jpg", "a\xCC\x88.jpg"},  // Composed and decomposed.
      {"\xC3\x84.jpg", "a\xCC\x88.jpg"},  // And in another case.
      {"Пейзаж", "ПЕЙЗАЖ"},
      {"Straße", "STRASSE"},
      {"STRAẞE", "strasse"},
      {"\xE9.JPG", "\xE9.jpg"},
  };
  for (const auto& [a, b] : same) {
    EXPECT_EQ(NameKey(a), NameKey(b)) << a << ' ' << b;
  }
  const std::pair<const char*, const char*> different[] = {
      {"a", "b"}, {"a", "ä"}, {"a.jpg", "a .jpg"}, {"\xE9", "\xC9"}, {"①", "1"}, {"ﬁ1", "f1"},
  };
  for (const auto& [a, b] : different) {
    EXPECT_NE(NameKey(a), NameKey(b)) << a << ' ' << b;
  }
}

TEST(NaturalKeys, OrderDigitsByTheirValue) {
  const std::vector<std::string> ordered = {"IMG_",
                                            "img_1",
                                            "IMG_2",
                                            "img_09",
                                            "IMG_10",
                                            "img_10b",
                                            "IMG_100",
                                            "img_0999",
                                            "IMG_1000",
                                            "img_99999999999999999999",
                                            "IMG_100000000000000000000",
                                            "img_a",
                                            "Пейзаж 2",
                                            "пейзаж 10"};
  for (std::size_t i = 1; i < ordered.size(); ++i) {
    EXPECT_LT(NaturalKey(ordered[i - 1]), NaturalKey(ordered[i])) << ordered[i];
  }
  EXPECT_EQ(NaturalKey("a007"), NaturalKey("A7"));
  EXPECT_EQ(NaturalKey("a00"), NaturalKey("a0"));
  EXPECT_LT(NaturalKey("a0"), NaturalKey("a1"));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
