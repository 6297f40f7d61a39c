#include <zenvora/qtutility/AlertBox.h>

#include <gtest/gtest.h>

namespace Zenvora::Util {
namespace {

TEST(AlertBox, HasTheLevelsThatCallersPass) {
  EXPECT_EQ(static_cast<int>(AlertBox::Information), 0);
  EXPECT_EQ(static_cast<int>(AlertBox::Critical), 1);
  EXPECT_EQ(static_cast<int>(AlertBox::Warning), 2);
  EXPECT_EQ(static_cast<int>(AlertBox::Question), 3);
}

TEST(AlertBox, KeepsWhatItIsToShow) {
  auto* const window = reinterpret_cast<QWidget*>(0x10);
  const AlertBox box(AlertBox::Critical, QStringLiteral("title"), QStringLiteral("text"),
                     QMessageBox::Retry | QMessageBox::Cancel, window,
                     Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
  const App::Alert& content = box.Content();
  EXPECT_EQ(content.level, App::AlertLevel::Critical);
  EXPECT_EQ(content.title, QStringLiteral("title"));
  EXPECT_EQ(content.text, QStringLiteral("text"));
  EXPECT_EQ(content.buttons, App::AlertButton::Retry | App::AlertButton::Cancel);
  EXPECT_EQ(content.parent, window);
  EXPECT_EQ(content.windowFlags, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
}

TEST(AlertBox, NeedsNeitherParentNorButtons) {
  const AlertBox box(AlertBox::Information, QString(), QString(), QMessageBox::NoButton);
  EXPECT_EQ(box.Content().parent, nullptr);
  EXPECT_FALSE(box.Content().buttons);
  EXPECT_EQ(box.Content().windowFlags, Qt::WindowFlags(Qt::Dialog));
}

}  // namespace
}  // namespace Zenvora::Util
