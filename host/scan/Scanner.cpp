#include "FolderWalker.h"
#include "MovedPhotos.h"
#include "MovedShotFiles.h"

#include <host/base/TaskThreads.h>
#include <host/catalogue/JournalLock.h>
#include <host/catalogue/UndoFolder.h>
#include <host/scan/Scanner.h>
#include <host/shots/ContentTrace.h>
#include <host/shots/PhotoDate.h>
#include <host/shots/PhotoInfo.h>
#include <host/shots/PhotoReading.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <exception>
#include <filesystem>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr std::size_t kBatchSize = 500;
constexpr auto kBatchAge = std::chrono::seconds(2);
constexpr auto kProgressInterval = std::chrono::milliseconds(100);
/// That many results at most wait for the catalogue: it bounds the memory.
constexpr std::size_t kMostUnderWay = 1024;

struct PhotoToRead {
  ioPath path;
  bool known = false;  ///< The catalogue has the photo already.
};

struct PhotoRead {
  bool ok = false;
  bool known = false;
  PhotoRecord record;   ///< When ok.
  ScanFinding finding;  ///< When not.
};

PhotoRead ReadOne(const PhotoToRead& photo) {
  PhotoRead result;
  result.known = photo.known;
  try {
    result.ok = ReadPhoto(photo.path, result.record, result.finding);
  } catch (const std::exception& error) {
    // Memory has run out: this file is skipped, and the scan goes on.
    result.finding = {ScanFinding::Kind::Unreadable, photo.path, error.what()};
  }
  return result;
}

/// Canonical, so that a photo has one path however its folder is named.
std::vector<ioPath> CanonicalRoots(const std::vector<ioPath>& roots) {
  std::vector<ioPath> canonical;
  for (const ioPath& root : roots) {
    const std::string name = root.utf8string();
    std::error_code error;
    const ioPath path = root.canonical(error);
    if (error) {
      ThrowHostError(name, name + " cannot be scanned: " + ErrorText(error) + ".");
    }
    const FileState state = QueryFile(path);
    if (state.kind != FileState::Kind::File && state.kind != FileState::Kind::Folder) {
      ThrowHostError(name, name + " cannot be scanned: it is neither a folder nor a file.");
    }
    canonical.push_back(path);
  }
  return canonical;
}

/// One scan, from its first folder to its last commit, on the calling thread.
class ScanRun {
 public:
  ScanRun(Catalogue& catalogue, const std::vector<ioPath>& roots, const ScanOptions& options,
          const ScanProgressHandler& progress)
      : catalogue_(catalogue),
        options_(options),
        progressHandler_(progress),
        roots_(CanonicalRoots(roots)),
        walker_(roots_),
        moves_(catalogue.Database()),
        volumes_(moves_),
        movedPhotos_(moves_, volumes_),
        readers_(options.threads, &ReadOne) {}

  ScanResult Run();

 private:
  bool IsCancelled() const {
    return options_.cancel != nullptr && options_.cancel->load(std::memory_order_relaxed);
  }
  void LoadStamps();
  void WalkAll();
  void Take(const FolderWalker::Found& found);
  void CollectAll();
  void Collect(bool wait);
  void AddResult(PhotoRead& result);
  void CommitWhenDue();
  void Commit();
  void Follow();
  void MarkLost();
  void ReportProgress(bool always);
  ScanResult Finish();

  Catalogue& catalogue_;
  const ScanOptions& options_;
  const ScanProgressHandler& progressHandler_;
  const std::vector<ioPath> roots_;

  /// What the catalogue knows below the roots and the scan has not met yet.
  std::unordered_map<ioPath, FileStamp> stamps_;
  FolderWalker walker_;
  CatalogueMoves moves_;
  VolumesSeen volumes_;
  MovedPhotos movedPhotos_;
  std::vector<PhotoRecord> batch_;
  SteadyClock::time_point batchBegun_;
  SteadyClock::time_point reported_;
  ScanProgress progress_;
  ScanResult result_;
  // Last: its threads end before anything else does.
  TaskThreads<PhotoToRead, PhotoRead> readers_;
};

ScanResult ScanRun::Run() {
  LoadStamps();
  WalkAll();
  CollectAll();
  Commit();
  if (!IsCancelled()) {
    Follow();
  }
  if (!IsCancelled()) {
    MarkLost();
  }
  result_.cancelled = IsCancelled();
  ReportProgress(true);
  return Finish();
}

void ScanRun::LoadStamps() {
  for (const ioPath& root : roots_) {
    stamps_.merge(catalogue_.Stamps(root));
  }
}

void ScanRun::WalkAll() {
  FolderWalker::Found found;
  while (!IsCancelled() && walker_.Next(found)) {
    Take(found);
    Collect(false);
    while (readers_.UnderWay() >= kMostUnderWay && !IsCancelled()) {
      Collect(true);
    }
  }
  progress_.foundAll = !IsCancelled();
}

void ScanRun::Take(const FolderWalker::Found& found) {
  ++progress_.found;
  volumes_.Note(found.path, found.state);
  const auto known = stamps_.find(found.path);
  const bool isKnown = known != stamps_.end();
  const bool isUnchanged = isKnown && !options_.full && !known->second.lost && !known->second.isOutdated &&
                           known->second.size == found.state.size &&
                           known->second.modifiedNs == found.state.modifiedNs;
  if (isKnown) {
    stamps_.erase(known);
  }
  if (isUnchanged) {
    ++result_.unchanged;
    ++progress_.done;
  } else {
    readers_.Submit({found.path, isKnown});
  }
}

void ScanRun::CollectAll() {
  while (readers_.UnderWay() > 0 && !IsCancelled()) {
    Collect(true);
  }
}

void ScanRun::Collect(bool wait) {
  for (PhotoRead& result : readers_.Collect(wait)) {
    AddResult(result);
  }
  CommitWhenDue();
  ReportProgress(false);
}

void ScanRun::AddResult(PhotoRead& result) {
  ++progress_.done;
  if (!result.ok) {
    result_.findings.push_back(std::move(result.finding));
    return;
  }
  ++result_.dated[static_cast<std::size_t>(result.record.takenSource)];
  if (movedPhotos_.Take(result.record, result.known)) {
    return;
  }
  ++(result.known ? result_.updated : result_.added);
  if (options_.dryRun) {
    return;
  }
  if (batch_.empty()) {
    batchBegun_ = SteadyClock::now();
  }
  batch_.push_back(std::move(result.record));
  if (batch_.size() >= kBatchSize) {
    Commit();
  }
}

void ScanRun::CommitWhenDue() {
  if (!batch_.empty() && SteadyClock::now() - batchBegun_ >= kBatchAge) {
    Commit();
  }
}

void ScanRun::Commit() {
  catalogue_.Store(batch_);
  batch_.clear();
}

void ScanRun::Follow() {
  MovedPhotos::Verdict verdict = movedPhotos_.Decide([this] { return IsCancelled(); });
  if (IsCancelled()) {
    return;
  }
  CatalogueMoves::Outcome outcome{verdict.moved.size(), verdict.lost};
  if (!options_.dryRun && !verdict.moved.empty()) {
    const JournalLock lock(catalogue_.File());
    std::vector<MovedName> names;
    for (const FollowedPhoto& photo : verdict.moved) {
      names.emplace_back(photo.from, photo.record.path);
    }
    outcome = moves_.Follow(verdict.moved, FindMovedShotFiles(names), verdict.others);
  } else if (!options_.dryRun) {
    catalogue_.Store(verdict.others);
  }
  result_.moved = outcome.moved;
  result_.lost = outcome.lost;
  result_.added += verdict.added;
  result_.updated += verdict.updated;
  result_.findings.insert(result_.findings.end(), verdict.findings.begin(), verdict.findings.end());
  for (const FollowedPhoto& photo : verdict.moved) {
    stamps_.erase(photo.from);
  }
}

void ScanRun::MarkLost() {
  if (!options_.dryRun) {
    moves_.StoreVolumes(volumes_.Now());
  }
  std::vector<ioPath> lost;
  for (const auto& [path, stamp] : stamps_) {
    if (IsCancelled()) {
      return;
    }
    if (stamp.lost || walker_.IsHidden(path)) {
      continue;
    }
    // Asked again: what the walk skipped, such as a folder that is hidden by now, is not lost.
    const FileState::Kind kind = QueryFile(path).kind;
    const bool isThere = kind == FileState::Kind::File || kind == FileState::Kind::Unknown;
    // Former scans took in what undo keeps.
    if (!isThere || IsUndoFolder(path.parent_path())) {
      lost.push_back(path);
    }
  }
  result_.lost += options_.dryRun ? lost.size() : static_cast<std::uint64_t>(catalogue_.MarkLost(lost));
}

void ScanRun::ReportProgress(bool always) {
  const auto now = SteadyClock::now();
  if (progressHandler_ && (always || now - reported_ >= kProgressInterval)) {
    reported_ = now;
    progressHandler_(progress_);
  }
}

ScanResult ScanRun::Finish() {
  result_.found = progress_.found;
  const std::vector<ScanFinding>& walked = walker_.Findings();
  result_.findings.insert(result_.findings.end(), walked.begin(), walked.end());
  // The threads finish in any order; the list does not show it.
  std::sort(result_.findings.begin(), result_.findings.end(), [](const ScanFinding& a, const ScanFinding& b) {
    return std::tie(a.path, a.kind, a.cause) < std::tie(b.path, b.kind, b.cause);
  });
  return std::move(result_);
}

}  // namespace

ScanResult Scan(Catalogue& catalogue, const std::vector<ioPath>& roots, const ScanOptions& options,
                const ScanProgressHandler& progress) {
  return ScanRun(catalogue, roots, options, progress).Run();
}

}  // namespace Zenvora::Lumidex::Host
