// What every network must do, and what a resource makes of it: on the scripted and on the real one.

#include "ResourceFixture.h"

#include <support/HttpServer.h>

#include <zenvora/tavolin/NetworkDownloads.h>

#include <QCoreApplication>

#include <array>
#include <memory>
#include <thread>

namespace Zenvora::Tavolin {

namespace {

using namespace std::chrono_literals;

constexpr auto kWeek = std::chrono::hours(7 * 24);
constexpr auto kDay = std::chrono::hours(24);
constexpr char kPath[] = "/files/holidayEvents/HolidayEvents.json";

/// A network and the server at its other end.
class World {
 public:
  virtual ~World() = default;
  virtual std::shared_ptr<App::IDownloads> Network() = 0;
  virtual QString BaseUrl() const = 0;
  /// What the next answers are.
  virtual void Offer(const App::DownloadReply& reply) = 0;
  /// Lets answers come until the condition holds.
  virtual bool RunUntil(const std::function<bool()>& condition) = 0;
};

class ScriptedWorld : public World {
 public:
  std::shared_ptr<App::IDownloads> Network() override { return network_; }
  QString BaseUrl() const override { return QLatin1String(kServer); }
  void Offer(const App::DownloadReply& reply) override { reply_ = reply; }
  bool RunUntil(const std::function<bool()>& condition) override {
    while (!condition() && network_->Answer(reply_)) {
    }
    return condition();
  }

 private:
  const std::shared_ptr<Zenvora::Test::ScriptedDownloads> network_ =
      std::make_shared<Zenvora::Test::ScriptedDownloads>();
  App::DownloadReply reply_;
};

class RealWorld : public World {
 public:
  std::shared_ptr<App::IDownloads> Network() override { return network_; }
  QString BaseUrl() const override { return server_.BaseUrl() + QStringLiteral("/files"); }
  void Offer(const App::DownloadReply& reply) override {
    Zenvora::Test::HttpAnswer answer;
    answer.body = reply.body;
    answer.etag = reply.etag;
    answer.status = reply.outcome == Outcome::Fetched       ? 200
                    : reply.outcome == Outcome::NotModified ? 304
                                                            : 500;
    server_.Answer(kPath, answer);
  }
  bool RunUntil(const std::function<bool()>& condition) override { return Tavolin::RunUntil(condition); }

 private:
  const std::shared_ptr<App::IDownloads> network_ = MakeNetworkDownloads();
  Zenvora::Test::HttpServer server_;
};

enum class Kind { Scripted, Real };

std::unique_ptr<World> MakeWorld(Kind kind) {
  if (kind == Kind::Scripted) {
    return std::make_unique<ScriptedWorld>();
  }
  return std::make_unique<RealWorld>();
}

std::string KindName(const ::testing::TestParamInfo<Kind>& info) {
  return info.param == Kind::Scripted ? "Scripted" : "Real";
}

}  // namespace

class DownloadContract : public ResourceTest, public ::testing::WithParamInterface<Kind> {
 public:
  DownloadContract() : scope_(world->Network()) { SetBaseUrl(world->BaseUrl().toStdString()); }

  App::DownloadRequest Request() const {
    App::DownloadRequest request;
    request.url = QUrl(world->BaseUrl() + QStringLiteral("/holidayEvents/HolidayEvents.json"));
    request.sizeLimit = 1024;
    request.redirectLimit = 5;
    return request;
  }

  const std::unique_ptr<World> world = MakeWorld(GetParam());

 private:
  const App::ServiceScope<App::IDownloads> scope_;
};

TEST_P(DownloadContract, DeliversEveryOutcomeOnceOnTheCallingThread) {
  for (const auto& offer :
       {Fetched("body", "\"v1\""), Fetched("", ""), NotModified(), Failed(QStringLiteral("why"))}) {
    world->Offer(offer);
    std::vector<App::DownloadReply> replies;
    std::vector<std::thread::id> threads;
    const auto pending = world->Network()->Fetch(Request(), [&](const App::DownloadReply& reply) {
      replies.push_back(reply);
      threads.push_back(std::this_thread::get_id());
    });
    ASSERT_NE(pending, nullptr);
    ASSERT_TRUE(world->RunUntil([&] { return !replies.empty(); }));
    QCoreApplication::processEvents();
    ASSERT_EQ(replies.size(), 1U);
    EXPECT_EQ(threads[0], std::this_thread::get_id());
    EXPECT_EQ(replies[0].outcome, offer.outcome);
    EXPECT_EQ(replies[0].body, offer.body);
    EXPECT_EQ(replies[0].etag, offer.etag);
    EXPECT_EQ(replies[0].error.isEmpty(), offer.outcome != Outcome::Failed);
  }
}

TEST_P(DownloadContract, IsSilentAboutARequestGivenUp) {
  world->Offer(Fetched("body"));
  bool called = false;
  bool other = false;
  auto pending = world->Network()->Fetch(Request(), [&](const App::DownloadReply&) { called = true; });
  const auto kept = world->Network()->Fetch(Request(), [&](const App::DownloadReply&) { other = true; });
  pending.reset();
  EXPECT_TRUE(world->RunUntil([&] { return other; }));
  EXPECT_FALSE(called);
}

TEST_P(DownloadContract, LetsTheAnswerDestroyItsRequest) {
  world->Offer(Fetched("body"));
  bool called = false;
  std::unique_ptr<App::IDownloads::Pending> pending;
  pending = world->Network()->Fetch(Request(), [&](const App::DownloadReply& reply) {
    pending.reset();
    called = reply.body == "body";
  });
  EXPECT_TRUE(world->RunUntil([&] { return called; }));
}

TEST_P(DownloadContract, LetsTheAnswerMakeTheNextRequest) {
  world->Offer(Fetched("body"));
  int answers = 0;
  std::unique_ptr<App::IDownloads::Pending> pending;
  std::function<void()> ask = [&] {
    pending = world->Network()->Fetch(Request(), [&](const App::DownloadReply&) {
      if (++answers < 4) {
        ask();
      }
    });
  };
  ask();
  EXPECT_TRUE(world->RunUntil([&] { return answers == 4; }));
}

TEST_P(DownloadContract, RunsSeveralRequestsAtOnce) {
  world->Offer(Fetched("body"));
  int answers = 0;
  std::array<std::unique_ptr<App::IDownloads::Pending>, 5> pending;
  for (auto& request : pending) {
    request = world->Network()->Fetch(Request(), [&](const App::DownloadReply&) { ++answers; });
  }
  EXPECT_TRUE(world->RunUntil([&] { return answers == 5; }));
}

// The life of a copy, as a user's months go by.
TEST_P(DownloadContract, KeepsAResourceFresh) {
  const auto download = [this] {
    CalendarResource resource;
    resource.StartDownload(false);
    EXPECT_TRUE(world->RunUntil([&] { return !resource.calls.all.empty(); }));
    EXPECT_EQ(resource.calls.all.size(), 1U);
    return resource.GetStatus();
  };
  world->Offer(Failed(QStringLiteral("why")));
  EXPECT_EQ(download(), Status::Failed);

  PassTime(kDay);
  world->Offer(Fetched(Calendar("one"), "\"v1\""));
  EXPECT_EQ(download(), Status::Ready);
  EXPECT_EQ(StoredBody(), Calendar("one"));
  EXPECT_EQ(StoredTime(), clock->now);

  PassTime(kWeek);
  world->Offer(NotModified());
  EXPECT_EQ(download(), Status::Ready);
  EXPECT_EQ(StoredTime(), clock->now);

  PassTime(kWeek);
  const QDateTime kept = StoredTime();
  world->Offer(Failed(QStringLiteral("why")));
  EXPECT_EQ(download(), Status::Ready);
  EXPECT_EQ(StoredTime(), kept);

  PassTime(kDay);
  world->Offer(Fetched("<html>", "\"v2\""));
  EXPECT_EQ(download(), Status::Ready);
  EXPECT_EQ(StoredBody(), Calendar("one"));

  PassTime(kDay);
  world->Offer(Fetched(Calendar("two"), "\"v2\""));
  EXPECT_EQ(download(), Status::Ready);
  EXPECT_EQ(StoredBody(), Calendar("two"));
  EXPECT_EQ(StoredTime(), clock->now);
}

TEST_P(DownloadContract, GivesUpSilentlyWhenTheResourceIsDestroyed) {
  world->Offer(Fetched(Calendar("one")));
  Calls calls;
  {
    DownloadableResource resource;
    resource.Init(QStringLiteral("HolidayEvents"), QStringLiteral("json"), QStringLiteral("holidayEvents"));
    resource.SetDownloadHandler(calls.Record());
    resource.StartDownload(false);
  }
  CalendarResource next;
  next.StartDownload(true);
  EXPECT_TRUE(world->RunUntil([&] { return !next.calls.all.empty(); }));
  EXPECT_TRUE(calls.all.empty());
}

TEST_P(DownloadContract, SettlesWhenTheApplicationQuits) {
  // Nothing is offered in time: the application quits first.
  CalendarResource resource;
  resource.StartDownload(false);
  const Zenvora::Test::LogCapture log;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
  QCoreApplication::exec();
  ASSERT_EQ(resource.calls.all.size(), 1U);
  EXPECT_EQ(resource.GetStatus(), Status::Failed);
}

INSTANTIATE_TEST_SUITE_P(Networks, DownloadContract, ::testing::Values(Kind::Scripted, Kind::Real), KindName);

}  // namespace Zenvora::Tavolin
