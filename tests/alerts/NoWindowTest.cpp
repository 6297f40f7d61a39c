// A program without windows.

#include <support/Doubles.h>
#include <support/LogCapture.h>

#include <zenvora/tavolin/StyleAlertBox.h>

#include <gtest/gtest.h>

namespace Zenvora::Tavolin {
namespace {

using Util::AlertBox;

QMessageBox::StandardButton Show(QMessageBox::StandardButtons buttons) {
  AlertBox box(AlertBox::Warning, QStringLiteral("Attention"), QStringLiteral("Text"), buttons);
  return StyleAlertBox(box, {}, QMessageBox::NoButton)();
}

TEST(AlertWithoutWindows, IsAnsweredByWhatStopsThingsWithAWarning) {
  const Zenvora::Test::LogCapture log;
  EXPECT_EQ(Show(QMessageBox::Ok | QMessageBox::Cancel), QMessageBox::Cancel);
  EXPECT_EQ(Show(QMessageBox::Ok), QMessageBox::Ok);
  EXPECT_EQ(Show(QMessageBox::NoButton), QMessageBox::Ok);
  EXPECT_EQ(Show(QMessageBox::Retry | QMessageBox::Ignore), QMessageBox::Ignore);
  const auto warnings = log.Lines(google::GLOG_WARNING);
  ASSERT_EQ(warnings.size(), 4U);
  EXPECT_EQ(warnings[0].text, "There is no window to show this: Text");
}

TEST(AlertWithoutWindows, IsShownByWhoeverIsRegistered) {
  const auto alerts = std::make_shared<Zenvora::Test::ScriptedAlerts>(
      std::vector<App::AlertButton>{App::AlertButton::Yes, App::AlertButton::No});
  const App::ServiceScope<App::IAlerts> scope(alerts);
  AlertBox box(AlertBox::Question, QStringLiteral("T"), QStringLiteral("X"),
               QMessageBox::Yes | QMessageBox::No);
  const auto run = StyleAlertBox(box, {QMessageBox::Yes}, QMessageBox::No);
  EXPECT_TRUE(alerts->shown.empty()) << "nothing is shown before it is run";
  EXPECT_EQ(run(), QMessageBox::Yes);
  EXPECT_EQ(run(), QMessageBox::No) << "as often as it is called";
  ASSERT_EQ(alerts->shown.size(), 2U);
  EXPECT_EQ(alerts->shown[0].emphasised, App::AlertButtons(App::AlertButton::Yes));
  EXPECT_EQ(alerts->shown[0].defaultButton, App::AlertButton::No);
  EXPECT_EQ(alerts->shown[0].level, App::AlertLevel::Question);
}

}  // namespace
}  // namespace Zenvora::Tavolin
