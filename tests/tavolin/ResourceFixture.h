#pragma once

#include <support/Doubles.h>
#include <support/LogCapture.h>
#include <support/TempTree.h>

#include <zenvora/tavolin/DownloadableResource.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Tavolin {

using Status = IDownloadableResourceInfo::Status;
using Outcome = App::DownloadReply::Outcome;

inline constexpr char kServer[] = "http://server.test/files";
inline constexpr char kAddress[] = "http://server.test/files/holidayEvents/HolidayEvents.json";

/// A valid calendar that `mark` tells from others.
QByteArray Calendar(const QByteArray& mark);

App::DownloadReply Fetched(const QByteArray& body, const QByteArray& etag = QByteArray());
App::DownloadReply NotModified();
App::DownloadReply Failed(const QString& error);

/// Runs the thread's event loop until `condition` holds; false after half a minute.
bool RunUntil(const std::function<bool()>& condition);

/// What a handler was told.
struct Calls {
  struct Call {
    bool ok;
    Status status;
  };
  std::vector<Call> all;

  DownloadableResource::Handler Record() {
    return [this](bool ok, const IDownloadableResourceInfo& info) { all.push_back({ok, info.GetStatus()}); };
  }
};

/// A cache folder of its own, a clock that stands still, a base URL and a scripted network.
class ResourceTest : public ::testing::Test {
 public:
  ResourceTest();
  ~ResourceTest() override;
  ResourceTest(const ResourceTest&) = delete;
  ResourceTest& operator=(const ResourceTest&) = delete;

  void SetBaseUrl(const std::string& url) { settings->SetString(App::SettingsKey::kDownloadBaseUrl, url); }

  /// Where the calendar's copy is.
  QString CopyName() const;
  QByteArray StoredBody() const;
  QDateTime StoredTime() const;
  /// Puts a copy in the cache that was written `age` before the clock's time. No entity tag.
  void StoreCopy(const QByteArray& body, std::chrono::milliseconds age);
  /// The same through a download, so that the entity tag is beside it.
  void StoreCopyWithTag(const QByteArray& body, const QByteArray& etag, std::chrono::milliseconds age);
  void PassTime(std::chrono::milliseconds time) { clock->now = clock->now.addMSecs(time.count()); }

  /// The warnings, each on a line.
  static std::string Warnings(const Zenvora::Test::LogCapture& log);

  const Zenvora::Test::TempTree tree;
  const std::shared_ptr<Zenvora::Test::FakeSettings> settings =
      std::make_shared<Zenvora::Test::FakeSettings>();
  const std::shared_ptr<Zenvora::Test::FakeClock> clock;
  const std::shared_ptr<Zenvora::Test::ScriptedDownloads> network =
      std::make_shared<Zenvora::Test::ScriptedDownloads>();

 private:
  const QByteArray formerCache_;
  const App::ServiceScope<App::ISettingsManager> settingsScope_;
  const App::ServiceScope<App::IClock> clockScope_;
  const App::ServiceScope<App::IDownloads> networkScope_;
};

/// The calendar resource with a recording handler.
class CalendarResource : public DownloadableResource {
 public:
  CalendarResource() {
    Init(QStringLiteral("HolidayEvents"), QStringLiteral("json"), QStringLiteral("holidayEvents"));
    SetDownloadHandler(calls.Record());
  }

  using DownloadableResource::Response;
  using DownloadableResource::SetStatus;
  Calls calls;
};

}  // namespace Zenvora::Tavolin
