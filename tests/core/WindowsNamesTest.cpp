#include <zenvora/core/WindowsNames.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::WindowsNames {
namespace {

struct Root {
  const wchar_t* path;
  std::size_t length;
};

class RootNames : public testing::TestWithParam<Root> {};

TEST_P(RootNames, NameTheVolume) {
  EXPECT_EQ(RootNameLength(GetParam().path), GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RootNames,
    testing::Values(Root{L"", 0}, Root{L"a", 0}, Root{L"\\a", 0}, Root{L"/a", 0}, Root{L"C:", 2},
                    Root{L"C:\\a", 2}, Root{L"c:/a", 2}, Root{L"C:a", 2}, Root{L"1:\\a", 0}, Root{L":\\a", 0},
                    Root{L"CD:\\a", 0}, Root{L"\\\\server\\share\\a", 14}, Root{L"//server/share/a", 14},
                    Root{L"\\\\server\\share", 14}, Root{L"\\\\server", 8}, Root{L"\\\\\\a", 0},
                    Root{L"\\\\?\\C:\\a", 6}, Root{L"\\\\?\\UNC\\server\\share\\a", 20},
                    Root{L"\\\\?\\unc\\s\\t", 11}, Root{L"\\\\.\\COM1", 8}, Root{L"\\\\", 0}));

class Names : public testing::TestWithParam<const wchar_t*> {};

TEST_P(Names, HaveNoFault) {
  EXPECT_EQ(FindFault(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(Table, Names,
                         testing::Values(L"a.jpg", L"C:\\a.jpg", L"C:/Photos/2021/a.jpg", L"\\a", L"C:\\",
                                         L"\\\\server\\share\\a.jpg", L".", L"..", L"..\\a", L".\\a", L"a\\",
                                         L".a", L"a b", L" a", L"a..b", L"console", L"NULL.txt", L"COM10",
                                         L"COM0", L"COM", L"LPTX", L"a.NUL", L"\u041F\u0435\u0439.jpg",
                                         L"\\\\?\\C:\\a.", L"\\\\?\\C:\\NUL",
                                         L"a[1](2){3}'~!@#$%^&=+;,.jpg"));

struct Fault {
  std::wstring path;
  const char* fault;
};

class NoNames : public testing::TestWithParam<Fault> {};

TEST_P(NoNames, AreToldWithTheReason) {
  EXPECT_EQ(FindFault(GetParam().path), GetParam().fault);
}

constexpr const char* kDevice = "names a device of Windows";
constexpr const char* kRelative = "is relative to the current folder of a drive";
constexpr const char* kDot = "ends in a dot, which Windows drops";
constexpr const char* kBlank = "ends in a blank, which Windows drops";

INSTANTIATE_TEST_SUITE_P(
    Table, NoNames,
    testing::Values(Fault{L"C:", kRelative}, Fault{L"C:a.jpg", kRelative}, Fault{L"c:..\\a", kRelative},
                    Fault{L"CON", kDevice}, Fault{L"nul", kDevice}, Fault{L"C:\\a\\Aux\\b.jpg", kDevice},
                    Fault{L"NUL.txt", kDevice}, Fault{L"nul.tar.gz", kDevice}, Fault{L"PRN .txt", kDevice},
                    Fault{L"COM1", kDevice}, Fault{L"com9.jpg", kDevice}, Fault{L"LPT3", kDevice},
                    Fault{L"COM\u00B9", kDevice}, Fault{L"LPT\u00B3.a", kDevice}, Fault{L"CONIN$", kDevice},
                    Fault{L"conout$", kDevice}, Fault{L"\\\\.\\PhysicalDrive0", kDevice},
                    Fault{L"\\\\.\\C:", kDevice}, Fault{L"a.", kDot}, Fault{L"...", kDot},
                    Fault{L"C:\\a.\\b", kDot}, Fault{L"a ", kBlank}, Fault{L"C:\\ \\b", kBlank},
                    Fault{L"a?.jpg", "holds the character ?"}, Fault{L"a*", "holds the character *"},
                    Fault{L"a<b", "holds the character <"}, Fault{L"a>b", "holds the character >"},
                    Fault{L"a|b", "holds the character |"}, Fault{L"\"a\"", "holds the character \""},
                    Fault{L"C:\\a.jpg:stream", "holds the character :"}, Fault{L"a:b", kRelative},
                    Fault{L"ab:c", "holds the character :"}, Fault{L"a\nb", "holds a control character"},
                    Fault{L"\\\\server\\share\\a\tb", "holds a control character"},
                    Fault{std::wstring(L"a\0b", 3), "holds a NUL character"},
                    Fault{std::wstring(L"\\\\?\\C:\\a\0", 9), "holds a NUL character"}));

struct Forms {
  const wchar_t* plain;
  const wchar_t* extended;
};

class ExtendedForms : public testing::TestWithParam<Forms> {};

TEST_P(ExtendedForms, GoThereAndBack) {
  EXPECT_EQ(Extended(GetParam().plain), GetParam().extended);
  EXPECT_EQ(Extended(GetParam().extended), GetParam().extended);
  EXPECT_EQ(Plain(GetParam().extended), GetParam().plain);
  EXPECT_EQ(Plain(GetParam().plain), GetParam().plain);
}

INSTANTIATE_TEST_SUITE_P(Table, ExtendedForms,
                         testing::Values(Forms{L"C:\\a\\b", L"\\\\?\\C:\\a\\b"},
                                         Forms{L"C:\\", L"\\\\?\\C:\\"},
                                         Forms{L"\\\\server\\share\\a", L"\\\\?\\UNC\\server\\share\\a"}));

TEST(ExtendedForms, HaveTheSystemsOwnSeparators) {
  EXPECT_EQ(Extended(L"C:/a\\b/c"), L"\\\\?\\C:\\a\\b\\c");
  EXPECT_EQ(Extended(L"//server/share/a"), L"\\\\?\\UNC\\server\\share\\a");
}

}  // namespace
}  // namespace Zenvora::WindowsNames
