#include "HolidayFixture.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

#include <functional>
#include <memory>
#include <stdexcept>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace Zenvora::Test {
namespace {

using Lumidex::Album;
using ::testing::ElementsAre;
using ::testing::SizeIs;

const QDate kMonday(2015, 3, 2);

class Lifecycle : public HolidayTest {
 protected:
  Lifecycle() { settings->SetString(App::SettingsKey::kDownloadBaseUrl, "https://calendar.test/files"); }

  /// A callback that holds `witness_`, so that the object's life can be watched from outside.
  std::function<void(const std::vector<Album>&)> Callback() {
    return [this, witness = witness_](const std::vector<Album>& albums) {
      ++calls_;
      delivered_ = albums;
    };
  }
  bool ObjectLives() const { return witness_.use_count() > 1; }

  static App::DownloadReply Fetched(const std::string& body) {
    App::DownloadReply reply;
    reply.outcome = App::DownloadReply::Outcome::Fetched;
    reply.body = QByteArray::fromStdString(body);
    return reply;
  }

  std::shared_ptr<ScriptedDownloads> network_ = std::make_shared<ScriptedDownloads>();
  App::ServiceScope<App::IDownloads> scope_{network_};
  std::shared_ptr<int> witness_ = std::make_shared<int>(0);
  int calls_ = 0;
  std::vector<Album> delivered_;
};

TEST_F(Lifecycle, AsksForTheCalendarByItsNames) {
  network_->answerAtOnce = true;
  Util::GenerateHolidayAlbums({}, Callback());
  ASSERT_THAT(network_->requests, SizeIs(1));
  EXPECT_EQ(network_->requests[0].url, QUrl("https://calendar.test/files/holidayEvents/HolidayEvents.json"));
}

TEST_F(Lifecycle, AsksNoServerWhileTheStoredCalendarIsFresh) {
  const auto clock = std::make_shared<FakeClock>(QDateTime(QDate(2015, 3, 10), QTime(7, 8, 9)));
  const App::ServiceScope<App::IClock> scope(clock);
  network_->answerAtOnce = true;
  network_->reply = Fetched(CalendarJson("en_US", {{"Stored", "02.03", "02.03"}}));
  EXPECT_THAT(GenerateNames(PhotosOf(kMonday, 20)), ElementsAre("Stored\n02 March 2015"));
  clock->now = clock->now.addDays(6);
  EXPECT_THAT(GenerateNames(PhotosOf(kMonday, 20)), ElementsAre("Stored\n02 March 2015"));
  EXPECT_THAT(network_->requests, SizeIs(1));
}

TEST_F(Lifecycle, DeliversInsideTheCallWhenTheDownloadEndsThere) {
  network_->answerAtOnce = true;
  network_->reply = Fetched(CalendarJson("en_US", {{"Spring", "02.03", "02.03"}}));
  Util::GenerateHolidayAlbums(PhotosOf(kMonday, 20), Callback());
  EXPECT_EQ(calls_, 1);
  ASSERT_THAT(delivered_, SizeIs(1));
  EXPECT_EQ(delivered_[0].GetModel().GetName(), QStringLiteral("Spring\n02 March 2015"));
}

TEST_F(Lifecycle, DeliversLaterWhenTheDownloadEndsLater) {
  Util::GenerateHolidayAlbums(PhotosOf(kMonday, 20), Callback());
  QCoreApplication::processEvents();
  EXPECT_EQ(calls_, 0);
  ASSERT_TRUE(network_->Answer(Fetched(CalendarJson("en_US", {{"Spring", "02.03", "02.03"}}))));
  EXPECT_EQ(calls_, 1);
  ASSERT_THAT(delivered_, SizeIs(1));
}

TEST_F(Lifecycle, PrefersTheDownloadedCalendarToTheShippedOne) {
  ShipEvents({{"Shipped", "02.03", "02.03"}});
  network_->answerAtOnce = true;
  network_->reply = Fetched(CalendarJson("en_US", {{"Downloaded", "02.03", "02.03"}}));
  EXPECT_THAT(GenerateNames(PhotosOf(kMonday, 20)), ElementsAre("Downloaded\n02 March 2015"));
}

TEST_F(Lifecycle, ReadsTheShippedCalendarWhenTheDownloadFails) {
  ShipEvents({{"Shipped", "02.03", "02.03"}});
  network_->answerAtOnce = true;
  network_->reply.error = "no route";
  EXPECT_THAT(GenerateNames(PhotosOf(kMonday, 20)), ElementsAre("Shipped\n02 March 2015"));
}

TEST_F(Lifecycle, LivesUntilTheEventLoopDeletesIt) {
  network_->answerAtOnce = true;
  Util::GenerateHolidayAlbums(PhotosOf(kMonday, 3), Callback());
  EXPECT_EQ(calls_, 1);
  EXPECT_TRUE(ObjectLives()) << "deleted before the event loop ran";
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(ObjectLives()) << "not deleted by the event loop";
}

TEST_F(Lifecycle, LivesWhileTheDownloadIsUnderWay) {
  Util::GenerateHolidayAlbums({}, Callback());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(ObjectLives());
  network_->Answer({});
  EXPECT_TRUE(ObjectLives());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(ObjectLives());
}

TEST_F(Lifecycle, ThrowsAtCompletionForAnEmptyCallback) {
  {
#if defined(__SANITIZE_ADDRESS__)
    // The object is not scheduled for deletion then: it stays behind, as agreed.
    const __lsan::ScopedDisabler leaks;
#endif
    Util::GenerateHolidayAlbums({}, nullptr);
  }
  EXPECT_THROW(network_->Answer({}), std::bad_function_call);
  EXPECT_EQ(network_->OpenRequests(), 0U);
}

TEST_F(Lifecycle, ThrowsOutOfTheCallForAnEmptyCallbackWhenTheDownloadEndsThere) {
  network_->answerAtOnce = true;
  EXPECT_THROW(Util::GenerateHolidayAlbums({}, nullptr), std::bad_function_call);
}

/// A language that cannot be told, by something that is no failure of parsing.
class BrokenLookAndFeel : public App::ILookAndFeelManager {
 public:
  std::string GetCurrentLocale() const override { throw std::runtime_error("no language"); }
};

TEST_F(Lifecycle, PassesOnWhatIsNoFailureOfParsing) {
  const App::ServiceScope<App::ILookAndFeelManager> scope(std::make_shared<BrokenLookAndFeel>());
  network_->answerAtOnce = true;
  network_->reply = Fetched(CalendarJson("en_US", {}));
  EXPECT_THROW(Util::GenerateHolidayAlbums(PhotosOf(kMonday, 1), Callback()), std::runtime_error);
  EXPECT_EQ(calls_, 0);
  EXPECT_THAT(log.Lines(google::GLOG_ERROR), SizeIs(0));
}

TEST_F(Lifecycle, LetsOneGenerationStartAnother) {
  network_->answerAtOnce = true;
  int inner = 0;
  Util::GenerateHolidayAlbums({}, [&](const std::vector<Album>&) {
    Util::GenerateHolidayAlbums({}, [&](const std::vector<Album>&) { ++inner; });
  });
  EXPECT_EQ(inner, 1);
}

TEST_F(Lifecycle, KeepsGenerationsApart) {
  std::vector<int> order;
  Util::GenerateHolidayAlbums({}, [&](const std::vector<Album>&) { order.push_back(1); });
  Util::GenerateHolidayAlbums({}, [&](const std::vector<Album>&) { order.push_back(2); });
  ASSERT_EQ(network_->OpenRequests(), 2U);
  network_->Answer({});
  network_->Answer({});
  EXPECT_THAT(order, ElementsAre(1, 2));
}

}  // namespace
}  // namespace Zenvora::Test
