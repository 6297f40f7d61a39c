#pragma once

#include <zenvora/app/IClock.h>
#include <zenvora/app/IDownloads.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/ILookAndFeelManager.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace Zenvora::Test {

/// Settings in memory.
class FakeSettings : public App::ISettingsManager {
 public:
  std::string GetString(const std::string& key, const std::string& defaultValue) const override;
  void SetString(const std::string& key, const std::string& value) override;

 private:
  mutable std::mutex mutex_;
  std::map<std::string, std::string> values_;
};

/// An interface language that a test sets; counts how often it was asked for.
class FakeLookAndFeel : public App::ILookAndFeelManager {
 public:
  explicit FakeLookAndFeel(const std::string& name) : locale(name) {}
  std::string GetCurrentLocale() const override {
    ++asked;
    return locale;
  }
  std::string locale;
  mutable int asked = 0;
};

/// A clock that stands still.
class FakeClock : public App::IClock {
 public:
  explicit FakeClock(const QDateTime& moment) : now(moment) {}
  QDateTime Now() const override { return now; }
  QDateTime now;
};

/// A host with a resource folder and no window.
class FakeEnvironment : public App::IHostEnvironment {
 public:
  explicit FakeEnvironment(const ioPath& folder) : resources(folder) {}
  ioPath ResourceFolder() const override { return resources; }
  QWidget* MainWindow() const override { return nullptr; }
  ioPath resources;
};

/// A network that answers as told: at once, or when the test says so.
class ScriptedDownloads : public App::IDownloads {
 public:
  std::unique_ptr<Pending> Fetch(const App::DownloadRequest& request, Done done) override;

  /// Answers the oldest open request. False when there is none (any more).
  bool Answer(const App::DownloadReply& reply);
  std::size_t OpenRequests() const { return open_.size(); }

  /// Answer inside `Fetch` with `reply`; else wait for `Answer`.
  bool answerAtOnce = false;
  App::DownloadReply reply;
  std::vector<App::DownloadRequest> requests;

 private:
  class Request;
  std::vector<std::pair<Request*, Done>> open_;
};

/// A network that must not be touched: a request fails the test.
class ForbiddenDownloads : public App::IDownloads {
 public:
  std::unique_ptr<Pending> Fetch(const App::DownloadRequest& request, Done done) override;
};

}  // namespace Zenvora::Test
