#include <zenvora/tavolin/NativePath.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Tavolin {
namespace {

struct Row {
  const char* given;
  const char* expected;
};

class FromNativeTable : public ::testing::TestWithParam<Row> {};

TEST_P(FromNativeTable, GivesTheOneSpelling) {
  EXPECT_EQ(FromNative(GetParam().given).utf8string(), GetParam().expected);
}

#ifdef _WIN32
INSTANTIATE_TEST_SUITE_P(Rows, FromNativeTable,
                         ::testing::Values(Row{"", ""}, Row{".", "."}, Row{"a.jpg", "a.jpg"},
                                           Row{R"(C:/x//y\./a.jpg)", R"(C:\x\y\a.jpg)"},
                                           Row{R"(C:\)", R"(C:\)"}, Row{R"(C:\x\)", R"(C:\x)"},
                                           Row{R"(x\..\a.jpg)", R"(x\..\a.jpg)"},
                                           Row{R"(\\server\share\\x\a.jpg)", R"(\\server\share\x\a.jpg)"},
                                           Row{R"(\\?\C:\x\a.jpg)", R"(C:\x\a.jpg)"},
                                           Row{R"(\\?\UNC\server\share\a.jpg)", R"(\\server\share\a.jpg)"},
                                           Row{R"(C:\Пейзаж.jpg)", R"(C:\Пейзаж.jpg)"}));
#else
INSTANTIATE_TEST_SUITE_P(Rows, FromNativeTable,
                         ::testing::Values(Row{"", ""}, Row{".", "."}, Row{"./", "."}, Row{"a.jpg", "a.jpg"},
                                           Row{"/", "/"}, Row{"/x//y/./a.jpg", "/x/y/a.jpg"},
                                           Row{"/x/y/", "/x/y"}, Row{"./a.jpg", "a.jpg"},
                                           Row{"x/../a.jpg", "x/../a.jpg"}, Row{"/x/..", "/x/.."},
                                           Row{"C:\\a", "C:\\a"},
                                           Row{"/x/Пейзаж 1\n.jpg", "/x/Пейзаж 1\n.jpg"},
                                           Row{"/x/\xff\xfe.jpg", "/x/\xff\xfe.jpg"}));
#endif

TEST_P(FromNativeTable, IsDoneAfterOnce) {
  const ioPath once = FromNative(GetParam().given);
  EXPECT_EQ(FromNative(once).native().native(), once.native().native());
}

#ifdef _WIN32
TEST(PlatformFileName, IsAsTheSystemWritesIt) {
  const std::pair<const char*, const char*> rows[] = {{"", ""},
                                                      {"c:/", "C:\\"},
                                                      {"C:\\", "C:\\"},
                                                      {"c:", "C:"},
                                                      {"c:/a/b", "C:\\a\\b"},
                                                      {"//server/share/", "\\\\server\\share\\"},
                                                      {"\\\\?\\c:\\a", "C:\\a"},
                                                      {"a/b", "a\\b"},
                                                      {"1:/", "1:\\"},
                                                      {"ü/写", "ü\\写"}};
  for (const auto& [path, expected] : rows) {
    EXPECT_EQ(GetPlatformFileName(path), expected) << path;
  }
}
#else
TEST(PlatformFileName, IsTheNameItself) {
  for (const std::string& path : {std::string(), std::string("/"), std::string("//"), std::string("c:/"),
                                  std::string("a\\b/./c/"), std::string("\xff\n"), std::string("a\0b", 3)}) {
    EXPECT_EQ(GetPlatformFileName(path), path);
  }
}
#endif

}  // namespace
}  // namespace Zenvora::Tavolin
