#include "ImportQuestions.h"
#include "KnownContent.h"
#include "PathText.h"
#include "ShotNames.h"

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <host/ImportPlan.h>

#include <zenvora/core/FileProbes.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/tavolin/NativePath.h>

#include <QHash>
#include <QSet>

#include <map>
#include <set>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Outcome = ImportPlan::Outcome;
using LeftKind = LeftFile::Kind;
/// Where to copy from (empty: it stays), and the path under which it is added.
using PlannedPairs = QList<QPair<QString, QString>>;

constexpr char kCannotBeRead[] = "It cannot be read";

class Planner {
 public:
  Planner(const GatheredSources& sources, const std::vector<PhotoRecord>& photos,
          const ImportPlanOptions& options, const ImportPlanProgress& progress)
      : sources_(sources.files), photos_(photos), options_(options), progress_(progress) {
    plan_.left = sources.left;
  }

  ImportPlan Run() {
    if (!sources_.empty()) {
      KeepReadable() && FindKnown() && Place();
    }
    if (plan_.outcome == Outcome::Ready && IsCancelled()) {
      plan_.outcome = Outcome::Interrupted;
    }
    return std::move(plan_);
  }

 private:
  bool IsCancelled() const { return options_.cancel != nullptr && *options_.cancel; }
  bool Stop(Outcome outcome) {
    plan_.outcome = outcome;
    return false;
  }

  CopyGoesOn GoesOn() const {
    return [this](std::uint64_t) { return !IsCancelled(); };
  }

  QList<QString> Texts() const {
    QList<QString> texts;
    for (const std::size_t i : chosen_) {
      texts.append(ReversibleText(sources_[i].path));
    }
    return texts;
  }

  bool KeepReadable() {
    ImportQuestions questions(false, {});
    QList<QString> asked;
    for (const ImportSource& source : sources_) {
      if (IsText(source.path)) {
        asked.append(ReversibleText(source.path));
      }
    }
    const QList<QString> readable = Util::CheckFilesReadable(asked);
    if (readable.size() != asked.size() && Util::CheckFilesReadableDialog(asked).isEmpty() &&
        !readable.isEmpty()) {
      return Stop(Outcome::Declined);
    }
    const auto taken = QSet<QString>(readable.begin(), readable.end());
    for (std::size_t i = 0; i < sources_.size(); ++i) {
      const ioPath& path = sources_[i].path;
      // The checks find no file whose name is no text.
      if (IsText(path) ? taken.contains(ReversibleText(path)) : OpensForReading(path)) {
        chosen_.push_back(i);
      } else {
        plan_.left.push_back({LeftKind::Unreadable, path, kCannotBeRead});
      }
    }
    return !chosen_.empty();
  }

  bool FindKnown() {
    KnownContent content(photos_, GoesOn());
    std::vector<std::size_t> fresh;
    std::uint64_t done = 0;
    // Photos come first in their shots: what lies beside them is known by them.
    for (const std::size_t i : chosen_) {
      const ImportSource& source = sources_[i];
      if (IsCancelled()) {
        return Stop(Outcome::Interrupted);
      }
      if (!(source.isPhoto ? IsKnownPhoto(content, source) : IsKnownSideFile(source))) {
        fresh.push_back(i);
      }
      if (progress_) {
        progress_(++done, chosen_.size());
      }
    }
    chosen_ = std::move(fresh);
    return !chosen_.empty();
  }

  bool IsKnownPhoto(KnownContent& content, const ImportSource& source) {
    const auto known = content.FindPhoto(source);
    if (!known) {
      content.Add(source);
      return false;
    }
    plan_.known.push_back({known->isSource ? KnownFile::Kind::Repeated : KnownFile::Kind::Catalogued,
                           source.path, known->path});
    if (!known->isSource) {
      knownShots_.emplace(source.shot, known->path);
    }
    return true;
  }

  /// Beside the photo that is there already, under that photo's name.
  bool IsKnownSideFile(const ImportSource& source) {
    const auto photo = knownShots_.find(source.shot);
    if (photo == knownShots_.end()) {
      return false;
    }
    const auto split = [](const ioPath& path) { return SplitShotName(path.filename().utf8string()); };
    const ioPath other = Sibling(photo->second, split(photo->second).base + split(source.path).suffix);
    const FileState state = QueryFile(other);
    if (state.kind != FileState::Kind::File || state.size != source.state.size ||
        state.identity == source.state.identity || !SameContent(source.path, other, GoesOn())) {
      return false;
    }
    plan_.known.push_back({KnownFile::Kind::Copied, source.path, other});
    return true;
  }

  bool Place() {
    std::vector<ioPath> nameless;
    for (const std::size_t i : chosen_) {
      if (!IsText(sources_[i].path)) {
        nameless.push_back(sources_[i].path.parent_path());
      }
    }
    ImportQuestions questions(options_.copyAll, nameless);
    PlannedPairs pairs = Util::CheckFilesToCopyBeforeAddDialog(Texts());
    if (pairs.isEmpty()) {
      return Stop(Outcome::Declined);
    }
    if (DropCopied(pairs, questions.ChosenFolder())) {
      // Names are given anew, as if those had not been asked for.
      questions.BeginRound();
      pairs = chosen_.empty() ? PlannedPairs() : Util::CheckFilesToCopyBeforeAddDialog(Texts());
    }
    TakeOver(pairs);
    if (!plan_.copies.empty()) {
      plan_.folder = Tavolin::FromNative(questions.ChosenFolder());
      FindSplits();
      LookAtFolder();
    }
    return true;
  }

  /// True when some of what would be copied was copied there before.
  bool DropCopied(const PlannedPairs& pairs, const ioPath& folder) {
    if (folder.empty()) {
      return false;
    }
    QSet<QString> toCopy;
    for (const auto& [source, target] : pairs) {
      toCopy.insert(source);
    }
    const KnownCopies copies(Tavolin::FromNative(folder), GoesOn());
    std::vector<std::size_t> rest;
    for (const std::size_t i : chosen_) {
      const ImportSource& source = sources_[i];
      const bool isCopy = toCopy.contains(ReversibleText(source.path));
      if (const auto copy = isCopy ? copies.Find(source) : std::nullopt) {
        plan_.known.push_back({KnownFile::Kind::Copied, source.path, *copy});
        if (source.isPhoto) {
          // A run that was killed may not have come to taking it in.
          plan_.stays.push_back(*copy);
        }
      } else {
        rest.push_back(i);
      }
    }
    const bool dropped = rest.size() < chosen_.size();
    chosen_ = std::move(rest);
    return dropped;
  }

  void TakeOver(const PlannedPairs& pairs) {
    QHash<QString, std::size_t> places;
    for (const std::size_t i : chosen_) {
      places.insert(ReversibleText(sources_[i].path), i);
    }
    for (const auto& [source, target] : pairs) {
      const ImportSource& file = sources_[places.value(source.isEmpty() ? target : source)];
      if (!source.isEmpty()) {
        plan_.copies.push_back(
            {file.path, file.state, Tavolin::FromNative(PathOfReversible(target)), file.isPhoto});
        plan_.bytes += file.state.size;
        shots_[file.shot].push_back(plan_.copies.size() - 1);
      } else if (file.isPhoto) {
        plan_.stays.push_back(file.path);
      }
    }
  }

  void FindSplits() {
    for (const auto& [shot, copies] : shots_) {
      std::set<std::string> bases;
      bool renamed = false;
      SplitShot split;
      for (const std::size_t i : copies) {
        const ImportCopy& copy = plan_.copies[i];
        const std::string name = copy.target.filename().utf8string();
        bases.insert(SplitShotName(name).base);
        renamed = renamed || name != copy.source.filename().utf8string();
        split.sources.push_back(copy.source);
        split.targets.push_back(copy.target);
      }
      if (renamed && bases.size() > 1) {
        plan_.splits.push_back(std::move(split));
      }
    }
  }

  void LookAtFolder() {
    ioPath place = plan_.folder;
    while (QueryFile(place).kind == FileState::Kind::Missing && place.parent_path() != place) {
      place = place.parent_path();
    }
    if (QueryFile(place).kind != FileState::Kind::Folder) {
      plan_.obstacle = place.utf8string() + " is no folder.";
      return;
    }
    // As for any new file in a folder: its name lets folder and volume be found, and is never used.
    DataModel stub;
    stub.SetPath(place / "stub.dat");
    stub.SetSize(plan_.bytes);
    using Util::CheckSaveAvailableMode;
    const auto [failed, text] = Util::CheckSaveAvailable(
        {stub}, CheckSaveAvailableMode::DiskSpace | CheckSaveAvailableMode::FolderPermission);
    // Room is asked of the very folder: the check looks at the root of its path.
    plan_.freeBytes = Util::GetAvailableDiskSpace(place);
    const bool isFull = plan_.freeBytes > 0 && plan_.bytes > static_cast<std::uint64_t>(plan_.freeBytes);
    if (failed == CheckSaveAvailableMode::FolderPermission) {
      plan_.obstacle = text.toStdString() + ".";
    } else if (isFull) {
      plan_.obstacle = "There is not enough space in " + plan_.folder.utf8string() + ": " +
                       std::to_string(plan_.bytes) + " bytes are needed, " + std::to_string(plan_.freeBytes) +
                       " are free.";
    }
  }

  const std::vector<ImportSource>& sources_;
  const std::vector<PhotoRecord>& photos_;
  const ImportPlanOptions& options_;
  const ImportPlanProgress& progress_;
  ImportPlan plan_;
  /// Of the sources, what is still in question.
  std::vector<std::size_t> chosen_;
  std::unordered_map<std::size_t, ioPath> knownShots_;
  /// Of the copies, by shot.
  std::map<std::size_t, std::vector<std::size_t>> shots_;
};

}  // namespace

ImportPlan PlanImport(const GatheredSources& sources, const std::vector<PhotoRecord>& photos,
                      const ImportPlanOptions& options, const ImportPlanProgress& progress) {
  return Planner(sources, photos, options, progress).Run();
}

}  // namespace Zenvora::Lumidex::Host
