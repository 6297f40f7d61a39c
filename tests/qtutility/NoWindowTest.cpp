// A program without windows.

#include <support/LogCapture.h>

#include <zenvora/app/Services.h>
#include <zenvora/qtutility/StandardDialogs.h>

#include <gtest/gtest.h>

namespace Zenvora::Util {
namespace {

TEST(FolderDialogWithoutWindows, IsCancelledWithAWarning) {
  const Zenvora::Test::LogCapture log;
  EXPECT_EQ(StandardDialogs::getExistingDirectory(nullptr, QStringLiteral("Select folder"), QString()),
            QString());
  const auto warnings = log.Lines(google::GLOG_WARNING);
  ASSERT_EQ(warnings.size(), 1U);
  EXPECT_EQ(warnings[0].text, "There is no window to ask for a folder: Select folder");
}

}  // namespace
}  // namespace Zenvora::Util
