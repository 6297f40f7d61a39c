// One contract for each service, kept by the real ones and by the doubles that stand in for them.

#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QLocale>
#include <QRegularExpression>

#include <functional>
#include <memory>
#include <string>

namespace Zenvora::App {
namespace {

using namespace std::string_literals;  // NOLINT(google-build-using-namespace): texts with NUL need their
                                       // length
using Zenvora::Test::FakeClock;
using Zenvora::Test::FakeEnvironment;
using Zenvora::Test::FakeLookAndFeel;
using Zenvora::Test::FakeSettings;
using Zenvora::Test::TempTree;

template <class Service>
struct Maker {
  const char* name;
  std::function<std::shared_ptr<Service>(const TempTree&)> make;
};

template <class Service>
class Contract : public testing::TestWithParam<Maker<Service>> {
 protected:
  const TempTree tree;
  const std::shared_ptr<Service> service = this->GetParam().make(tree);
};

constexpr auto kNameOf = [](const auto& row) { return std::string(row.param.name); };

using SettingsContract = Contract<ISettingsManager>;

TEST_P(SettingsContract, GivesTheDefaultUntilAValueIsSet) {
  EXPECT_EQ(service->GetString("key", "default"), "default");
  EXPECT_EQ(service->GetString("key", ""), "");
  service->SetString("key", "value");
  EXPECT_EQ(service->GetString("key", "default"), "value");
  EXPECT_EQ(service->GetString("other", "default"), "default");
}

TEST_P(SettingsContract, ReplacesAValue) {
  service->SetString("key", "one");
  service->SetString("key", "two");
  EXPECT_EQ(service->GetString("key", ""), "two");
}

TEST_P(SettingsContract, TellsAnEmptyValueFromNone) {
  service->SetString("key", "");
  EXPECT_EQ(service->GetString("key", "default"), "");
}

TEST_P(SettingsContract, KeepsEveryText) {
  for (const std::string& text : {"a,b"s,
                                  "a, b"s,
                                  ", "s,
                                  "a;b"s,
                                  "a=b"s,
                                  "\"quoted\""s,
                                  "back\\slash\\n"s,
                                  "line\nfeed\r\n"s,
                                  " blanks "s,
                                  "@at"s,
                                  "@Invalid()"s,
                                  "@ByteArray(x)"s,
                                  "%20"s,
                                  "007"s,
                                  "true"s,
                                  "# no comment"s,
                                  "[no section]"s,
                                  "gr\xC3\xBC\xC3\x9F \xE5\x86\x99\xE7\x9C\x9F \xF0\x9F\x93\xB7"s,
                                  "nul\0f"s,
                                  std::string(100000, 'x')}) {
    service->SetString("key", text);
    EXPECT_EQ(service->GetString("key", "default"), text);
  }
}

TEST_P(SettingsContract, TellsKeysApart) {
  const std::string keys[] = {
      "key",        "group/key", "other/key", "group/sub/key",      "General/key",
      "with blank", "a=b",       "per%cent",  "gr\xC3\xBC\xC3\x9F", "\xE5\x86\x99/\xE7\x9C\x9F"};
  for (const std::string& key : keys) {
    service->SetString(key, "value of " + key);
  }
  for (const std::string& key : keys) {
    EXPECT_EQ(service->GetString(key, "default"), "value of " + key);
  }
  EXPECT_EQ(service->GetString("group", "default"), "default");
}

INSTANTIATE_TEST_SUITE_P(
    Both, SettingsContract,
    testing::Values(Maker<ISettingsManager>{"Double",
                                            [](const TempTree&) { return std::make_shared<FakeSettings>(); }},
                    Maker<ISettingsManager>{"IniFile",
                                            [](const TempTree& tree) {
                                              return MakeIniSettings(tree.Path("folder/settings.ini"));
                                            }}),
    kNameOf);

using LookAndFeelContract = Contract<ILookAndFeelManager>;

TEST_P(LookAndFeelContract, NamesALocaleAsQtDoes) {
  const QString name = QString::fromStdString(service->GetCurrentLocale());
  static const QRegularExpression form(QStringLiteral("^([a-z]{2,3}(_[A-Z0-9][A-Za-z0-9]*)*|C)$"));
  EXPECT_TRUE(form.match(name).hasMatch()) << name.toStdString();
  EXPECT_EQ(QLocale(name).name(), name);
}

TEST_P(LookAndFeelContract, KeepsItsAnswerWhileNothingChanges) {
  EXPECT_EQ(service->GetCurrentLocale(), service->GetCurrentLocale());
}

INSTANTIATE_TEST_SUITE_P(
    All, LookAndFeelContract,
    testing::Values(
        Maker<ILookAndFeelManager>{
            "Double", [](const TempTree&) { return std::make_shared<FakeLookAndFeel>("de_DE"); }},
        Maker<ILookAndFeelManager>{"Fixed", [](const TempTree&) { return MakeFixedLookAndFeel("de_DE"); }},
        Maker<ILookAndFeelManager>{"System", [](const TempTree&) { return MakeSystemLookAndFeel(); }},
        Maker<ILookAndFeelManager>{"Host", [](const TempTree&) { return MakeHostLookAndFeel(); }}),
    kNameOf);

using ClockContract = Contract<IClock>;

TEST_P(ClockContract, TellsLocalTime) {
  const QDateTime now = service->Now();
  EXPECT_TRUE(now.isValid());
  EXPECT_EQ(now.timeSpec(), Qt::LocalTime);
}

TEST_P(ClockContract, ComesBackFromASleep) {
  const QDateTime before = service->Now();
  service->SleepFor(std::chrono::milliseconds(0));
  service->SleepFor(std::chrono::milliseconds(1));
  EXPECT_GE(service->Now(), before);
}

TEST_P(ClockContract, StaysWithinAnInterfacesYears) {
  // Shown and stored with four digits.
  EXPECT_GE(service->Now().date().year(), 1000);
  EXPECT_LE(service->Now().date().year(), 9999);
}

INSTANTIATE_TEST_SUITE_P(Both, ClockContract,
                         testing::Values(Maker<IClock>{"Double",
                                                       [](const TempTree&) {
                                                         return std::make_shared<FakeClock>(QDateTime(
                                                             QDate(2020, 2, 29), QTime(23, 59, 59)));
                                                       }},
                                         Maker<IClock>{"System",
                                                       [](const TempTree&) { return MakeSystemClock(); }}),
                         kNameOf);

TEST(SystemClock, TellsTheTimeOfTheSystem) {
  const QDateTime before = QDateTime::currentDateTime();
  const QDateTime now = MakeSystemClock()->Now();
  const QDateTime after = QDateTime::currentDateTime();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

TEST(SystemClock, SleepsAtLeastAsLongAsAsked) {
  const auto begin = std::chrono::steady_clock::now();
  MakeSystemClock()->SleepFor(std::chrono::milliseconds(20));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(20));
}

using EnvironmentContract = Contract<IHostEnvironment>;

TEST_P(EnvironmentContract, NamesAnAbsoluteResourceFolder) {
  EXPECT_TRUE(service->ResourceFolder().native().is_absolute()) << service->ResourceFolder();
  EXPECT_EQ(service->ResourceFolder(), service->ResourceFolder());
}

TEST_P(EnvironmentContract, HasNoWindowOfItsOwn) {
  EXPECT_EQ(service->MainWindow(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Both, EnvironmentContract,
                         testing::Values(Maker<IHostEnvironment>{"Double",
                                                                 [](const TempTree& tree) {
                                                                   return std::make_shared<FakeEnvironment>(
                                                                       tree.MakeFolder("resources"));
                                                                 }},
                                         Maker<IHostEnvironment>{
                                             "Program",
                                             [](const TempTree&) { return MakeProgramEnvironment(); }}),
                         kNameOf);

}  // namespace
}  // namespace Zenvora::App
