#include "CopyVerifiers.h"
#include "ImportRecords.h"
#include "StagingFolder.h"

#include <host/base/FileCopy.h>
#include <host/base/HostError.h>
#include <host/import/Import.h>
#include <host/journal/JournalFolder.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/core/Patience.h>
#include <zenvora/qtutility/DiskQuestions.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using SteadyClock = std::chrono::steady_clock;
using Status = CopyOutcome::Status;
using Missing = MissingCopy::Kind;

constexpr auto kProgressInterval = std::chrono::milliseconds(100);
/// They wait for the disk more than they compute.
constexpr int kThreadsPerCore = 4;
constexpr int kMostAutomaticThreads = 8;
constexpr int kMostThreads = 16;
/// Copies that get their names together: each such step waits for the disk a few times.
constexpr std::size_t kBatchSize = 64;
constexpr auto kBatchAge = std::chrono::seconds(1);

int ThreadCount(const ImportOptions& options) {
  const int cores = static_cast<int>(std::thread::hardware_concurrency());
  const int wanted =
      options.threads > 0 ? options.threads : std::min(cores * kThreadsPerCore, kMostAutomaticThreads);
  return std::clamp(wanted, 1, kMostThreads);
}

Missing KindOf(Status status) {
  switch (status) {
    case Status::Unreadable:
      return Missing::Unreadable;
    case Status::Changed:
      return Missing::Changed;
    case Status::Different:
      return Missing::Different;
    case Status::NotWritten:
    case Status::NoRoom:
      return Missing::NotWritten;
    case Status::Copied:
    case Status::GivenUp:
      break;
  }
  return Missing::NotReached;
}

class ImportRun {
 public:
  ImportRun(const ImportPlan& plan, Catalogue& catalogue, const ImportOptions& options,
            const ImportProgressHandler& progress)
      : plan_(plan), catalogue_(catalogue), options_(options), progress_(progress) {}

  ImportResult Run() {
    if (!plan_.copies.empty()) {
      CopyAll();
    }
    if (!IsCancelled() && !plan_.stays.empty()) {
      TakeInPlace();
    }
    result_.cancelled = IsCancelled();
    ReportRepeated();
    Report(true);
    return std::move(result_);
  }

 private:
  bool IsCancelled() const { return options_.cancel != nullptr && *options_.cancel; }
  bool Goes() const { return !IsCancelled() && result_.stopped.empty(); }

  void CopyAll() {
    HoldRoom();
    staging_.emplace(plan_.folder);
    std::error_code error;
    const ioPath folder = plan_.folder.canonical(error);
    records_.emplace(catalogue_, error ? plan_.folder : folder);
    Remember();
    verifiers_.emplace(ThreadCount(options_));
    std::size_t next = 0;
    for (; next < plan_.copies.size() && Goes() && HasRoom(next); ++next) {
      if (!CopyOne(next)) {
        break;
      }
      Collect(false);
      while (verifiers_->IsFull()) {
        Collect(true);
      }
    }
    // What is copied is soon compared: that much patience a Ctrl-C and a full disk have.
    while (!verifiers_->IsIdle()) {
      Collect(true);
    }
    Settle();
    Tell([this] { records_->Close(); });
    result_.step = records_->Step();
    for (; next < plan_.copies.size(); ++next) {
      Miss(next, Missing::NotReached,
           IsCancelled() ? "the import was interrupted" : "the import ended before");
    }
    verifiers_.reset();
    records_.reset();
    staging_.reset();
  }

  void HoldRoom() {
    std::uint64_t bytes = 0;
    for (const ImportCopy& copy : plan_.copies) {
      bytes += BytesToUndo(copy.source, copy.target);
    }
    holdsRoom_ = JournalFolder::HoldBeside(catalogue_.File().absolute(), bytes);
  }

  /// As the library does when it is told to copy: the next import begins there.
  void Remember() const {
    App::Services::Current().Get<App::ISettingsManager>()->SetString(App::SettingsKey::kLastUsedCopyDirectory,
                                                                     plan_.folder.utf8string());
  }

  bool HasRoom(std::size_t index) {
    const std::int64_t free = Util::GetAvailableDiskSpace(plan_.folder);
    if (free >= 0 && plan_.copies[index].state.size > static_cast<std::uint64_t>(free)) {
      Stop("The disk is full: " + plan_.folder.utf8string() + " has " + std::to_string(free) +
           " bytes left.");
      return false;
    }
    return true;
  }

  /// False when the import is over with it; then it stands for itself in what is missing.
  bool CopyOne(std::size_t index) {
    const ImportCopy& copy = plan_.copies[index];
    const std::uint64_t before = progressNow_.bytes;
    CopyVerifiers::Task task{index, staging_->NextPart(copy.target), copy.isPhoto, {}};
    task.copied = CopyToNew(copy.source, copy.state, task.copy, [this, before](std::uint64_t bytes) {
      progressNow_.bytes = before + bytes;
      Report(false);
      return !IsCancelled();
    });
    const Status status = task.copied.status;
    if (status == Status::Copied) {
      verifiers_->Submit(std::move(task));
      return true;
    }
    progressNow_.bytes = before;
    if (status == Status::GivenUp) {
      return false;
    }
    if (status == Status::NoRoom) {
      Stop("Nothing more can be copied to " + plan_.folder.utf8string() + ": " + task.copied.cause + ".");
    }
    Miss(index, KindOf(status), task.copied.cause);
    return true;
  }

  void Collect(bool wait) {
    for (CopyVerifiers::Result& result : verifiers_->Collect(wait)) {
      if (batch_.empty()) {
        batchBegun_ = SteadyClock::now();
      }
      if (result.verified.status == Status::Copied) {
        batch_.push_back(std::move(result));
      } else {
        FailVerified(result);
      }
    }
    const bool due =
        batch_.size() >= kBatchSize || (!batch_.empty() && SteadyClock::now() - batchBegun_ >= kBatchAge);
    if (due) {
      Settle();
    }
    Report(false);
  }

  void FailVerified(const CopyVerifiers::Result& result) {
    result.task.copy.remove();
    if (result.verified.status == Status::NoRoom) {
      Stop("Nothing more can be copied to " + plan_.folder.utf8string() + ": " + result.verified.cause + ".");
    }
    Miss(result.task.index, KindOf(result.verified.status), result.verified.cause);
  }

  /// Gives what is compared its names, and the catalogue its photos.
  void Settle() {
    if (batch_.empty()) {
      return;
    }
    std::vector<ManifestRecord> records;
    records.reserve(batch_.size());
    for (const CopyVerifiers::Result& result : batch_) {
      const ImportCopy& copy = plan_.copies[result.task.index];
      records.push_back({copy.source, copy.target.filename(), result.verified.size, result.verified.sha256,
                         result.verified.modifiedNs, result.state.modifiedNs});
    }
    try {
      // Before the names: a copy under its name is always in the journal and in the list, also after a kill
      // in between.
      records_->Note(records);
      staging_->Manifest().Append(records);
    } catch (const HostError& error) {
      GiveUpBatch(error.what());
      return;
    }
    std::vector<PhotoRecord> photos;
    for (CopyVerifiers::Result& result : batch_) {
      Name(result, photos);
    }
    batch_.clear();
    SyncFolderOf(plan_.copies.front().target);
    if (!holdsRoom_) {
      Tell([this] { HoldRoom(); });
    }
    // What has its name stays, and the next run takes it in where this fails.
    Tell([this, &photos] {
      records_->Store(photos);
      result_.added += photos.size();
    });
  }

  /// Without what is told there is no going on.
  template <class Act>
  void Tell(const Act& act) {
    try {
      act();
    } catch (const HostError& error) {
      Stop(error.what());
    }
  }

  /// The first cause counts: the others follow from it.
  void Stop(const std::string& cause) {
    if (result_.stopped.empty()) {
      result_.stopped = cause;
    }
  }

  void Name(CopyVerifiers::Result& result, std::vector<PhotoRecord>& photos) {
    const ImportCopy& copy = plan_.copies[result.task.index];
    std::error_code error;
    Patiently([&] {
      error = MoveToFreeName(result.task.copy, copy.target);
      return !error || !MayPass(error);
    });
    if (error) {
      result.task.copy.remove();
      Tell([this, &copy] { records_->Drop(copy.target); });
      const bool taken = error == std::errc::file_exists;
      Miss(result.task.index, taken ? Missing::NameTaken : Missing::NotWritten,
           taken ? "another file got the name " + copy.target.filename().utf8string() + " meanwhile"
                 : "it cannot be given its name: " + ErrorText(error));
      return;
    }
    ++result_.copied;
    ++progressNow_.files;
    result_.bytes += result.verified.size;
    if (result.isRead) {
      result.record.path = records_->PathOf(copy.target);
      photos.push_back(std::move(result.record));
    } else if (copy.isPhoto) {
      result.finding.path = copy.target;
      result_.findings.push_back(std::move(result.finding));
    }
  }

  void GiveUpBatch(const std::string& cause) {
    Stop(cause);
    for (const CopyVerifiers::Result& result : batch_) {
      result.task.copy.remove();
      Tell([this, &result] { records_->Drop(plan_.copies[result.task.index].target); });
      Miss(result.task.index, Missing::NotWritten, "the copy cannot be recorded");
    }
    batch_.clear();
  }

  void TakeInPlace() {
    try {
      AddInPlace();
    } catch (const HostError& error) {
      // What was copied is worth its report.
      if (plan_.copies.empty()) {
        throw;
      }
      Stop(error.what());
    }
  }

  /// A scan of those files does all that is to be done.
  void AddInPlace() {
    ScanOptions options;
    options.threads = options_.threads;
    options.cancel = options_.cancel;
    std::vector<ioPath> there;
    for (const ioPath& path : plan_.stays) {
      if (QueryFile(path).kind == FileState::Kind::File) {
        there.push_back(path);
      } else {
        result_.findings.push_back({ScanFinding::Kind::Unreadable, path, "It is gone"});
      }
    }
    ScanResult scanned = Scan(catalogue_, there, options, nullptr);
    result_.added += scanned.added;
    std::move(scanned.findings.begin(), scanned.findings.end(), std::back_inserter(result_.findings));
  }

  void Miss(std::size_t index, Missing kind, const std::string& cause) {
    const ImportCopy& copy = plan_.copies[index];
    missed_.insert(copy.source);
    result_.missing.push_back({kind, copy.source, copy.target, cause});
  }

  void ReportRepeated() {
    for (const KnownFile& known : plan_.known) {
      if (known.kind == KnownFile::Kind::Repeated && missed_.count(known.other) > 0) {
        result_.missing.push_back(
            {Missing::Repeated,
             known.path,
             {},
             "it is identical to " + known.other.utf8string() + ", which could not be copied"});
      }
    }
    std::sort(result_.missing.begin(), result_.missing.end(),
              [](const MissingCopy& left, const MissingCopy& right) { return left.source < right.source; });
  }

  void Report(bool always) {
    const auto now = SteadyClock::now();
    if (progress_ && (always || now - reported_ >= kProgressInterval)) {
      reported_ = now;
      progressNow_.totalFiles = plan_.copies.size();
      progressNow_.totalBytes = plan_.bytes;
      progress_(progressNow_);
    }
  }

  const ImportPlan& plan_;
  Catalogue& catalogue_;
  const ImportOptions& options_;
  const ImportProgressHandler& progress_;

  std::optional<StagingFolder> staging_;
  std::optional<ImportRecords> records_;
  bool holdsRoom_ = false;
  std::vector<CopyVerifiers::Result> batch_;
  SteadyClock::time_point batchBegun_;
  std::unordered_set<ioPath> missed_;
  ImportProgress progressNow_;
  SteadyClock::time_point reported_;
  ImportResult result_;
  // Last: its threads end before anything else does.
  std::optional<CopyVerifiers> verifiers_;
};

}  // namespace

ImportResult RunImport(const ImportPlan& plan, Catalogue& catalogue, const ImportOptions& options,
                       const ImportProgressHandler& progress) {
  return ImportRun(plan, catalogue, options, progress).Run();
}

}  // namespace Zenvora::Lumidex::Host
