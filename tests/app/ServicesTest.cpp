#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <memory>

namespace Zenvora::App {
namespace {

using Zenvora::Test::FakeClock;
using Zenvora::Test::FakeEnvironment;
using Zenvora::Test::FakeLookAndFeel;
using Zenvora::Test::FakeSettings;
using Zenvora::Test::ForbiddenDownloads;

TEST(Registry, BelongsToTheApplicationObject) {
  ASSERT_NE(Application::Instance(), nullptr);
  EXPECT_EQ(dynamic_cast<QCoreApplication*>(Application::Instance()), QCoreApplication::instance());
  EXPECT_EQ(&Services::Current(), &Application::Instance()->GetServices());
}

TEST(Registry, BeginsWithRealServicesAndThoseOfHigherRooms) {
  const Services registry;
  EXPECT_NE(registry.Get<ISettingsManager>(), nullptr);
  EXPECT_NE(registry.Get<ILookAndFeelManager>(), nullptr);
  EXPECT_NE(registry.Get<IClock>(), nullptr);
  EXPECT_NE(registry.Get<IHostEnvironment>(), nullptr);
  EXPECT_EQ(registry.Get<IDownloads>(), nullptr);
  EXPECT_EQ(registry.Get<IAlerts>(), nullptr);
  EXPECT_EQ(registry.Get<IDiskSpace>(), nullptr);
  EXPECT_EQ(registry.Get<IFolderAccess>(), nullptr);
  EXPECT_EQ(registry.Get<IFolderDialog>(), nullptr);
  EXPECT_EQ(registry.Get<IRemovableStorage>(), nullptr);
}

TEST(Registry, GivesTheSameObjectUntilItIsExchanged) {
  Services registry;
  const auto first = registry.Get<IClock>();
  EXPECT_EQ(registry.Get<IClock>(), first);
  const auto second = MakeSystemClock();
  EXPECT_EQ(registry.Exchange(second), first);
  EXPECT_EQ(registry.Get<IClock>(), second);
}

TEST(Registry, ExchangesOneServiceOnly) {
  Services registry;
  const auto settings = registry.Get<ISettingsManager>();
  const auto clock = registry.Get<IClock>();
  registry.Exchange<ILookAndFeelManager>(std::make_shared<FakeLookAndFeel>("de_DE"));
  EXPECT_EQ(registry.Get<ISettingsManager>(), settings);
  EXPECT_EQ(registry.Get<IClock>(), clock);
}

TEST(Registry, KeepsAServiceThatIsStillHeldAlive) {
  Services registry;
  registry.Exchange<ILookAndFeelManager>(std::make_shared<FakeLookAndFeel>("de_DE"));
  const auto held = registry.Get<ILookAndFeelManager>();
  registry.Exchange<ILookAndFeelManager>(std::make_shared<FakeLookAndFeel>("fr_FR"));
  EXPECT_EQ(held->GetCurrentLocale(), "de_DE");
}

/// Asks the registry for a service while it is destroyed: that must not wait for a lock already held.
class Leaver : public FakeLookAndFeel {
 public:
  explicit Leaver(Services& services) : FakeLookAndFeel("de_DE"), registry(services) {}
  ~Leaver() override { EXPECT_NE(registry.Get<IClock>(), nullptr); }
  Services& registry;
};

TEST(Registry, IsUnlockedWhenAFormerServiceGoes) {
  Services registry;
  registry.Exchange<ILookAndFeelManager>(std::make_shared<Leaver>(registry));
  registry.Exchange<ILookAndFeelManager>(std::make_shared<FakeLookAndFeel>("fr_FR"));
  EXPECT_EQ(registry.Get<ILookAndFeelManager>()->GetCurrentLocale(), "fr_FR");
}

TEST(Scope, PutsTheFormerServiceBack) {
  const auto former = Services::Current().Get<IClock>();
  const auto fake = std::make_shared<FakeClock>(QDateTime(QDate(2020, 2, 29), QTime(12, 0)));
  {
    const ServiceScope<IClock> scope(fake);
    EXPECT_EQ(Services::Current().Get<IClock>(), fake);
    EXPECT_EQ(GetCurrentDateTime(), fake->now);
  }
  EXPECT_EQ(Services::Current().Get<IClock>(), former);
  EXPECT_EQ(fake.use_count(), 1);
}

TEST(Scope, NestsAndUnwindsInReverse) {
  const std::string outside = GetCurrentLocale();
  {
    const ServiceScope<ILookAndFeelManager> outer(std::make_shared<FakeLookAndFeel>("de_DE"));
    {
      const ServiceScope<ILookAndFeelManager> inner(std::make_shared<FakeLookAndFeel>("fr_FR"));
      EXPECT_EQ(GetCurrentLocale(), "fr_FR");
    }
    EXPECT_EQ(GetCurrentLocale(), "de_DE");
  }
  EXPECT_EQ(GetCurrentLocale(), outside);
}

TEST(Scope, IsLeftByAnExceptionToo) {
  const auto former = Services::Current().Get<ISettingsManager>();
  EXPECT_THROW(
      {
        const ServiceScope<ISettingsManager> scope(std::make_shared<FakeSettings>());
        throw std::runtime_error("leave");
      },
      std::runtime_error);
  EXPECT_EQ(Services::Current().Get<ISettingsManager>(), former);
}

TEST(Scope, MayPutTheOwnDownloadsBack) {
  ASSERT_EQ(Services::Current().Get<IDownloads>(), nullptr);
  {
    const ServiceScope<IDownloads> scope(std::make_shared<ForbiddenDownloads>());
    EXPECT_NE(Services::Current().Get<IDownloads>(), nullptr);
  }
  EXPECT_EQ(Services::Current().Get<IDownloads>(), nullptr);
}

/// Some address that is only passed on.
class WindowedEnvironment : public FakeEnvironment {
 public:
  WindowedEnvironment() : FakeEnvironment("/resources") {}
  QWidget* MainWindow() const override { return window; }
  QWidget* const window = reinterpret_cast<QWidget*>(const_cast<WindowedEnvironment*>(this));
};

TEST(Application, PassesOnWhatItsRegistryHolds) {
  const Application& application = *Application::Instance();
  EXPECT_EQ(application.GetMainWindow(), nullptr);

  const auto settings = std::make_shared<FakeSettings>();
  const auto lookAndFeel = std::make_shared<FakeLookAndFeel>("de_DE");
  const auto environment = std::make_shared<WindowedEnvironment>();
  const ServiceScope<ISettingsManager> settingsScope(settings);
  const ServiceScope<ILookAndFeelManager> lookAndFeelScope(lookAndFeel);
  const ServiceScope<IHostEnvironment> environmentScope(environment);
  EXPECT_EQ(application.GetSettingsManager(), settings);
  EXPECT_EQ(application.GetLookAndFeel(), lookAndFeel);
  EXPECT_EQ(application.GetMainWindow(), environment->window);
  EXPECT_EQ(GetPathToResources(), ioPath("/resources"));
  EXPECT_EQ(GetCurrentLocale(), "de_DE");
  EXPECT_EQ(lookAndFeel->asked, 1);
}

}  // namespace
}  // namespace Zenvora::App
