#pragma once

#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/app/Services.h>

#include <gtest/gtest.h>

#include <QWidget>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Test {

/// A host with a main window (some address that is only passed on), settings in memory and a user who answers
/// as the test says.
class DialogFixture : public ::testing::Test {
 protected:
  /// From now on the user gives these answers.
  void Answer(std::vector<App::AlertButton> answers) {
    alertsScope_.reset();
    alerts_ = std::make_shared<ScriptedAlerts>(std::move(answers));
    alertsScope_ = std::make_unique<App::ServiceScope<App::IAlerts>>(alerts_);
  }

  /// Every alert of the library but for its text, level and buttons.
  void ExpectAlert(std::size_t number, App::AlertLevel level, const std::string& text,
                   App::AlertButtons buttons) const {
    ASSERT_LT(number, alerts_->shown.size());
    const App::Alert& alert = alerts_->shown[number];
    EXPECT_EQ(alert.title, QStringLiteral("Attention"));
    EXPECT_EQ(alert.text.toStdString(), text);
    EXPECT_EQ(alert.level, level);
    EXPECT_EQ(alert.buttons, buttons);
    EXPECT_EQ(alert.parent, environment_->window);
    EXPECT_EQ(alert.windowFlags, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    EXPECT_EQ(alert.defaultButton, App::AlertButton::None);
    EXPECT_FALSE(alert.emphasised);
  }

  DialogFixture() {
    environment_->window = reinterpret_cast<QWidget*>(0x10);
    Answer({});
  }

  const TempTree tree_;
  const std::shared_ptr<FakeEnvironment> environment_ = std::make_shared<FakeEnvironment>("/resources");
  const App::ServiceScope<App::IHostEnvironment> environmentScope_{environment_};
  const std::shared_ptr<FakeSettings> settings_ = std::make_shared<FakeSettings>();
  const App::ServiceScope<App::ISettingsManager> settingsScope_{settings_};
  std::shared_ptr<ScriptedAlerts> alerts_;

 private:
  std::unique_ptr<App::ServiceScope<App::IAlerts>> alertsScope_;
};

}  // namespace Zenvora::Test
