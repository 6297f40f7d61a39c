// Downloads and the end of the application. Each test has an application object of its own, or none.

#include <support/Doubles.h>
#include <support/HttpServer.h>
#include <support/LogCapture.h>
#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/tavolin/DownloadableResource.h>
#include <zenvora/tavolin/NetworkDownloads.h>

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace Zenvora::Tavolin {

namespace {

using Status = IDownloadableResourceInfo::Status;

constexpr char kCalendar[] = R"({"events": {}})";
constexpr char kTarget[] = "/holidayEvents/HolidayEvents.json";

/// Qt's application object wants arguments that outlive it.
struct Arguments {
  int count = 1;
  char name[5] = "test";
  char* texts[2] = {name, nullptr};
};

}  // namespace

class DownloadShutdown : public ::testing::Test {
 public:
  DownloadShutdown() {
    qputenv("XDG_CACHE_HOME", QByteArray::fromStdString(tree.Path("cache").utf8string()));
    silent.silent = true;
    silent.then = Zenvora::Test::HttpAnswer::Then::Stall;
  }

  /// Makes an application object with the given network (null: the real one) and a server that never answers.
  void BeginApplication(std::shared_ptr<App::IDownloads> network = nullptr) {
    server.reset();
    application.emplace(arguments_.count, arguments_.texts);
    server.emplace();
    server->Answer(kTarget, silent);
    const auto settings = std::make_shared<Zenvora::Test::FakeSettings>();
    settings->SetString(App::SettingsKey::kDownloadBaseUrl, server->BaseUrl().toStdString());
    application->GetServices().Exchange<App::ISettingsManager>(settings);
    application->GetServices().Exchange<App::IDownloads>(std::move(network));
  }
  void EndApplication() { application.reset(); }
  static void RunEventLoopToItsEnd() {
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    QCoreApplication::exec();
  }

  static void Prepare(DownloadableResource& resource) {
    resource.Init(QStringLiteral("HolidayEvents"), QStringLiteral("json"), QStringLiteral("holidayEvents"));
  }
  void Start(DownloadableResource& resource) {
    Prepare(resource);
    resource.SetDownloadHandler([this](bool ok, const IDownloadableResourceInfo&) {
      ++calls;
      succeeded = ok;
      sawApplication = QCoreApplication::instance() != nullptr;
    });
    resource.StartDownload(true);
  }

  const Zenvora::Test::TempTree tree;
  Zenvora::Test::HttpAnswer silent;
  int calls = 0;
  bool succeeded = false;
  bool sawApplication = false;

 private:
  Arguments arguments_;

 public:
  std::optional<App::ApplicationOf<QCoreApplication>> application;
  std::optional<Zenvora::Test::HttpServer> server;
};

TEST_F(DownloadShutdown, SettlesBeforeTheApplicationObjectIsGone) {
  for (const bool real : {false, true}) {
    calls = 0;
    BeginApplication(real ? nullptr : std::make_shared<Zenvora::Test::ScriptedDownloads>());
    DownloadableResource resource;
    Start(resource);
    EXPECT_EQ(calls, 0);
    EndApplication();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(succeeded);
    EXPECT_TRUE(sawApplication);
    EXPECT_EQ(resource.GetStatus(), Status::Failed);
  }
}

TEST_F(DownloadShutdown, SettlesInTheMiddleOfATransfer) {
  Zenvora::Test::HttpAnswer endless;
  endless.body = "x";
  endless.length = -2;
  endless.endless = true;
  endless.pause = std::chrono::milliseconds(1);
  BeginApplication();
  server->Answer(kTarget, endless);
  DownloadableResource resource;
  Start(resource);
  while (server->Requests().empty()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  QCoreApplication::processEvents();
  EndApplication();
  EXPECT_EQ(calls, 1);
}

TEST_F(DownloadShutdown, SettlesWithTheStoredCopy) {
  tree.Write("cache/lumidex/holidayEvents/HolidayEvents.json", kCalendar);
  BeginApplication();
  DownloadableResource resource;
  Start(resource);
  EXPECT_EQ(calls, 0);
  EndApplication();
  EXPECT_EQ(calls, 1);
  EXPECT_TRUE(succeeded);
}

TEST_F(DownloadShutdown, SettlesWhenTheEventLoopQuits) {
  BeginApplication();
  DownloadableResource resource;
  Start(resource);
  RunEventLoopToItsEnd();
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(succeeded);
  EndApplication();
  EXPECT_EQ(calls, 1);
}

TEST_F(DownloadShutdown, SettlesAllThatArePending) {
  BeginApplication();
  DownloadableResource resources[3];
  for (auto& resource : resources) {
    Start(resource);
  }
  EndApplication();
  EXPECT_EQ(calls, 3);
}

TEST_F(DownloadShutdown, IsSilentAboutObjectsDestroyedBefore) {
  BeginApplication();
  {
    DownloadableResource resource;
    Start(resource);
  }
  EndApplication();
  EXPECT_EQ(calls, 0);
}

TEST_F(DownloadShutdown, DeletesWhatItsHandlerWantedDeletedLater) {
  struct Owner : QObject {
    DownloadableResource resource;
  };
  BeginApplication();
  auto* const owner = new Owner;
  bool gone = false;
  QObject::connect(owner, &QObject::destroyed, [&] { gone = true; });
  Prepare(owner->resource);
  owner->resource.SetDownloadHandler([=](bool, const IDownloadableResourceInfo&) { owner->deleteLater(); });
  owner->resource.StartDownload(true);
  EndApplication();
  EXPECT_TRUE(gone);
}

TEST_F(DownloadShutdown, SettlesADownloadThatAHandlerStartsAtTheEnd) {
  BeginApplication();
  DownloadableResource first;
  DownloadableResource second;
  bool settledInside = false;
  Prepare(first);
  first.SetDownloadHandler([&](bool, const IDownloadableResourceInfo&) {
    Start(second);
    settledInside = calls == 1;
  });
  first.StartDownload(true);
  EndApplication();
  EXPECT_TRUE(settledInside);
  EXPECT_EQ(second.GetStatus(), Status::Failed);
}

// A program of others: its application object brings no services, the process's own stay in force to the end.
TEST_F(DownloadShutdown, AsksNobodyOnceTheApplicationObjectGoes) {
  const auto settings = std::make_shared<Zenvora::Test::FakeSettings>();
  const auto network = std::make_shared<Zenvora::Test::ScriptedDownloads>();
  settings->SetString(App::SettingsKey::kDownloadBaseUrl, "http://server.test");
  const App::ServiceScope<App::ISettingsManager> settingsScope(settings);
  const App::ServiceScope<App::IDownloads> networkScope(network);
  Arguments arguments;
  std::optional<QCoreApplication> foreign;
  foreign.emplace(arguments.count, arguments.texts);
  DownloadableResource first;
  DownloadableResource second;
  bool settledInside = false;
  Prepare(first);
  first.SetDownloadHandler([&](bool, const IDownloadableResourceInfo&) {
    Start(second);
    settledInside = calls == 1;
  });
  first.StartDownload(true);
  EXPECT_EQ(network->requests.size(), 1U);
  foreign.reset();
  EXPECT_TRUE(settledInside);
  EXPECT_EQ(network->requests.size(), 1U);
}

TEST_F(DownloadShutdown, SettlesADownloadThatAHandlerStartsWhenTheEventLoopQuits) {
  BeginApplication();
  DownloadableResource first;
  DownloadableResource second;
  Prepare(first);
  first.SetDownloadHandler([&](bool, const IDownloadableResourceInfo&) { Start(second); });
  first.StartDownload(true);
  RunEventLoopToItsEnd();
  EXPECT_EQ(first.GetStatus(), Status::Failed);
  EndApplication();
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(second.GetStatus(), Status::Failed);
}

TEST_F(DownloadShutdown, LogsWhatHandlersThrowAtTheEndAndSettlesTheRest) {
  const Zenvora::Test::LogCapture log;
  BeginApplication();
  DownloadableResource throwing[2];
  int thrown = 0;
  for (auto& resource : throwing) {
    Prepare(resource);
    resource.SetDownloadHandler([&](bool, const IDownloadableResourceInfo&) {
      if (++thrown == 1) {
        throw std::runtime_error("from the handler");
      }
      throw 1;
    });
    resource.StartDownload(true);
  }
  DownloadableResource other;
  Start(other);
  EndApplication();
  EXPECT_EQ(thrown, 2);
  EXPECT_EQ(calls, 1);
  const auto errors = log.Lines(google::GLOG_ERROR);
  ASSERT_EQ(errors.size(), 2U);
  EXPECT_NE(errors[0].text.find("from the handler"), std::string::npos);
}

TEST_F(DownloadShutdown, ServesTheNextApplicationObject) {
  for (int life = 1; life <= 3; ++life) {
    BeginApplication();
    DownloadableResource resource;
    Start(resource);
    EXPECT_EQ(calls, life - 1);
    EndApplication();
    EXPECT_EQ(calls, life);
  }
}

TEST_F(DownloadShutdown, NeedsAnApplicationObjectForTheNetwork) {
  const auto network = MakeNetworkDownloads();
  App::DownloadRequest request;
  request.url = QUrl(QStringLiteral("http://127.0.0.1:9/"));
  std::optional<App::DownloadReply> answer;
  const auto pending = network->Fetch(request, [&](const App::DownloadReply& reply) { answer = reply; });
  ASSERT_TRUE(answer.has_value());
  EXPECT_EQ(answer->outcome, App::DownloadReply::Outcome::Failed);
  EXPECT_NE(answer->error.toStdString().find("no application object"), std::string::npos);
}

TEST_F(DownloadShutdown, SettlesAtOnceWithoutAnApplicationObject) {
  const auto settings = std::make_shared<Zenvora::Test::FakeSettings>();
  settings->SetString(App::SettingsKey::kDownloadBaseUrl, "http://127.0.0.1:9");
  const App::ServiceScope<App::ISettingsManager> scope(settings);
  DownloadableResource resource;
  Start(resource);
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(succeeded);

  tree.Write("cache/lumidex/holidayEvents/HolidayEvents.json", kCalendar);
  resource.StartDownload(true);
  EXPECT_EQ(calls, 2);
  EXPECT_TRUE(succeeded);
}

}  // namespace Zenvora::Tavolin

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  FLAGS_logtostderr = true;
  FLAGS_stderrthreshold = google::GLOG_FATAL;
  google::InitGoogleLogging(argv[0]);
  return RUN_ALL_TESTS();
}
