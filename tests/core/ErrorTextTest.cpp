#include <zenvora/core/ErrorText.h>
#include <zenvora/core/ioPath.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace Zenvora {
namespace {

TEST(ErrorText, IsTheSystemsSentenceWithoutAFullStop) {
  std::error_code error;
  static_cast<void>(std::filesystem::file_size(ioPath("there is no such file").native(), error));
  ASSERT_TRUE(error);
  const std::string text = ErrorText(error);
#ifdef _WIN32
  // Wine leaves the full stop away as well.
  EXPECT_EQ(text.find("rror 2 of Windows"), std::string::npos) << text;
#else
  EXPECT_EQ(text, "No such file or directory");
#endif
  EXPECT_GT(text.size(), 5U);
  EXPECT_NE(text.back(), '.');
  EXPECT_NE(text.back(), '\n');
}

TEST(ErrorText, OfANumberThatTheSystemDoesNotKnowNamesIt) {
  EXPECT_NE(SystemErrorText(99999).find("99999"), std::string::npos) << SystemErrorText(99999);
}

TEST(ErrorText, OfOtherCategoriesIsTheirs) {
  const auto error = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_EQ(ErrorText(error), error.message());
}

}  // namespace
}  // namespace Zenvora
