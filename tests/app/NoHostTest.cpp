// A process without an application object of ours, as a plug-in in a foreign program is.

#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/IClock.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace Zenvora::App {
namespace {

int argumentCount = 1;
char programName[] = "test";
char* arguments[] = {programName, nullptr};

TEST(ProcessWithoutHost, HasARegistryOfRealServices) {
  ASSERT_EQ(QCoreApplication::instance(), nullptr);
  EXPECT_EQ(Application::Instance(), nullptr);
  Services& registry = Services::Current();
  EXPECT_EQ(&registry, &Services::Current());
  EXPECT_TRUE(GetCurrentDateTime().isValid());
  EXPECT_EQ(registry.Get<IHostEnvironment>()->MainWindow(), nullptr);
  registry.Get<ISettingsManager>()->SetString("probe", "x");
  EXPECT_EQ(MakeIniSettings(UserSettingsFile())->GetString("probe", ""), "x");
  EXPECT_TRUE(UserSettingsFile().remove());
}

TEST(ProcessWithoutHost, SpeaksTheLanguageOfTheSystem) {
  EXPECT_EQ(GetCurrentLocale(), "pt_PT");
}

TEST(ProcessWithoutHost, FollowsNoSettingForItsLanguage) {
  Services::Current().Get<ISettingsManager>()->SetString(SettingsKey::kLanguage, "de_DE");
  EXPECT_EQ(GetCurrentLocale(), "pt_PT");
  EXPECT_TRUE(UserSettingsFile().remove());
}

TEST(ProcessWithoutHost, FindsTheResourcesOfItsProgram) {
  const ioPath folder = GetPathToResources();
  EXPECT_EQ(folder.filename(), ioPath("lumidex"));
  EXPECT_TRUE(folder.native().is_absolute()) << folder;
  EXPECT_TRUE((folder / "HolidayEvents.json").exists()) << folder;
}

TEST(ProcessWithForeignHost, IsLikeOneWithout) {
  Services* const without = &Services::Current();
  const QCoreApplication foreign(argumentCount, arguments);
  EXPECT_EQ(Application::Instance(), nullptr);
  EXPECT_EQ(&Services::Current(), without);
  EXPECT_EQ(GetCurrentLocale(), "pt_PT");
}

TEST(ProcessWithHost, HasTheRegistryOfTheApplicationWhileItLives) {
  Services* const without = &Services::Current();
  const auto clock = without->Get<IClock>();
  {
    ApplicationOf<QCoreApplication> application(argumentCount, arguments);
    EXPECT_EQ(Application::Instance(), &application);
    EXPECT_EQ(&Services::Current(), &application.GetServices());
    EXPECT_NE(&Services::Current(), without);
    // Lost with the application.
    Services::Current().Exchange(MakeFixedLookAndFeel("de_DE"));
    EXPECT_EQ(GetCurrentLocale(), "de_DE");
  }
  EXPECT_EQ(Application::Instance(), nullptr);
  EXPECT_EQ(&Services::Current(), without);
  EXPECT_EQ(without->Get<IClock>(), clock);
  EXPECT_EQ(GetCurrentLocale(), "pt_PT");
}

TEST(ProcessWithHost, SpeaksTheNearestInterfaceLanguage) {
  const ApplicationOf<QCoreApplication> application(argumentCount, arguments);
  EXPECT_EQ(GetCurrentLocale(), "pt_BR");
}

}  // namespace
}  // namespace Zenvora::App

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", (home.path() + QStringLiteral("/config")).toUtf8());
  // Of a language that the interface speaks for another country only.
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    qputenv(name, "pt_PT.UTF-8");
  }
  qunsetenv("LANGUAGE");
  qputenv("TZ", "UTC");
  return RUN_ALL_TESTS();
}
