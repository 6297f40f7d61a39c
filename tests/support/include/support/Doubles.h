#pragma once

#include <zenvora/app/IAlerts.h>
#include <zenvora/app/IClock.h>
#include <zenvora/app/IDiskSpace.h>
#include <zenvora/app/IDownloads.h>
#include <zenvora/app/IFolderAccess.h>
#include <zenvora/app/IFolderDialog.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/ILookAndFeelManager.h>
#include <zenvora/app/IRemovableStorage.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/RefCountImpl.h>
#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/IUndo.h>

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <system_error>
#include <utility>
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

/// A clock that stands still: sleeping takes no time, but is remembered. Sleep on one thread only.
class FakeClock : public App::IClock {
 public:
  explicit FakeClock(const QDateTime& moment = {}) : now(moment) {}
  QDateTime Now() const override { return now; }
  void SleepFor(std::chrono::milliseconds pause) const override {
    sleeps.push_back(pause);
    if (onSleep) {
      onSleep(sleeps.size());
    }
  }
  QDateTime now;
  mutable std::vector<std::chrono::milliseconds> sleeps;
  /// What happens meanwhile; gets the number of the sleep, from 1.
  std::function<void(std::size_t)> onSleep;
};

/// Counts who holds what, and looks at no file. For one thread.
class FakeLocker : public Lumidex::IFileAccessLocker {
 public:
  unsigned int AddRef() const override { return count_.AddRefImpl(); }
  unsigned int GetRefCount() const override { return count_.GetRefCountImpl(); }
  unsigned int Release() const override { return count_.ReleaseImpl(); }
  void Lock(const ioPath& path) override {
    calls.push_back("lock " + path.utf8string());
    if (failing) {
      throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
    }
    held.insert(path);
  }
  void Unlock(const ioPath& path) override {
    calls.push_back("unlock " + path.utf8string());
    held.erase(path);
  }
  std::vector<std::string> calls;
  std::set<ioPath> held;
  bool failing = false;

 private:
  RefCountImpl count_;
};

/// An undo receiver that remembers what it was told.
class FakeUndo : public Lumidex::IUndo {
 public:
  void BeginStep(const QString&) override {}
  void EndStep() override {}
  bool Undo() override { return false; }
  bool Redo() override { return false; }
  void RegisterFileChange(Lumidex::DataModel& item, const ioPath& newPath) override {
    changes.emplace_back(item.GetPath(), newPath);
    if (onChange) {
      onChange(item, newPath);
    }
  }
  std::vector<std::pair<ioPath, ioPath>> changes;
  std::function<void(Lumidex::DataModel&, const ioPath&)> onChange;
};

/// A host with a resource folder and no window, unless a test sets one.
class FakeEnvironment : public App::IHostEnvironment {
 public:
  explicit FakeEnvironment(const ioPath& folder) : resources(folder) {}
  ioPath ResourceFolder() const override { return resources; }
  QWidget* MainWindow() const override { return window; }
  ioPath resources;
  QWidget* window = nullptr;
};

/// A user who gives the scripted answers, in their order, and remembers what was shown. Closes an alert that
/// is not in the script, which fails the test; so does an answer that is left over at the end, and one that
/// the alert does not offer.
class ScriptedAlerts : public App::IAlerts {
 public:
  explicit ScriptedAlerts(std::vector<App::AlertButton> answers = {}) : answers_(std::move(answers)) {}
  ~ScriptedAlerts() override;
  App::AlertButton Show(const App::Alert& alert) override;

  std::vector<App::Alert> shown;
  /// What happens while an alert is shown.
  std::function<void()> onShow;

 private:
  const std::vector<App::AlertButton> answers_;
};

/// The same for the folder dialog: an empty answer is Cancel.
class ScriptedFolderDialog : public App::IFolderDialog {
 public:
  explicit ScriptedFolderDialog(std::vector<QString> answers = {}) : answers_(std::move(answers)) {}
  ~ScriptedFolderDialog() override;
  QString Ask(const App::FolderQuestion& question) override;

  std::vector<App::FolderQuestion> asked;

 private:
  const std::vector<QString> answers_;
};

/// Volumes with as much room as a test says, by their exact roots; the others do not tell.
class FakeDiskSpace : public App::IDiskSpace {
 public:
  std::int64_t FreeBytes(const ioPath& place) const override {
    asked.push_back(place);
    const auto found = free.find(place);
    return found == free.end() ? otherwise : found->second;
  }
  std::map<ioPath, std::int64_t> free;
  std::int64_t otherwise = -1;
  mutable std::vector<ioPath> asked;
};

/// Folders that allow everything, but for those named.
class FakeFolderAccess : public App::IFolderAccess {
 public:
  bool CanCreateFileIn(const ioPath& folder) const override {
    askedToCreate.push_back(folder);
    return closed.count(folder) == 0;
  }
  bool CanReadFileIn(const ioPath& folder) const override {
    askedToRead.push_back(folder);
    return closed.count(folder) == 0;
  }
  std::set<ioPath> closed;
  mutable std::vector<ioPath> askedToCreate;
  mutable std::vector<ioPath> askedToRead;
};

/// Storage of which the named folders can be pulled out, with all that is in them.
class FakeRemovableStorage : public App::IRemovableStorage {
 public:
  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override;
  std::vector<ioPath> roots;
  mutable std::vector<std::vector<ioPath>> asked;
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
