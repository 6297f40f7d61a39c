#include <cli/terminal/Question.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Cli {
namespace {

TEST(Answers, AreYesOnlyWhenTheySaySo) {
  for (const char* const yes : {"y", "Y", "yes", "YES", " y ", "yes\r"}) {
    EXPECT_TRUE(IsYes(yes)) << yes;
  }
  for (const char* const no : {"", "n", "no", "ye", "yess", "yy", "j", "1", "true", "y!", "\xff"}) {
    EXPECT_FALSE(IsYes(no)) << no;
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
