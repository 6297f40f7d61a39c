#include <host/base/PathText.h>
#include <support/LeftOut.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Host {
namespace {

TEST(ReversibleText, IsTheTextOfPathsThatAreText) {
  for (const char* const path :
       {"", "/a/b.jpg", "\xD0\xB1\xE5\x86\x99", "\xF0\x9F\x93\xB7.jpg", "two\nlines"}) {
    EXPECT_TRUE(IsText(path)) << path;
    EXPECT_EQ(ReversibleText(path), QString::fromUtf8(path)) << path;
    EXPECT_EQ(PathOfReversible(ReversibleText(path)), ioPath(path)) << path;
  }
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(ReversibleText, LeadsBackToAnyBytes);
#else
TEST(ReversibleText, LeadsBackToAnyBytes) {
  for (const char* const path : {"\xFF", "a\x80z", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82",
                                 "\xF0\x9F\x93\xB7\xFF\xD0\xB1", "\xED\xB2\x80"}) {
    EXPECT_FALSE(IsText(path));
    EXPECT_EQ(PathOfReversible(ReversibleText(path)).utf8string(), path);
  }
  EXPECT_NE(ReversibleText("\x80"), ReversibleText("\x81"));
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
