#include "ImportManifest.h"
#include "ImportNames.h"
#include "ImportQuestions.h"
#include "KnownContent.h"

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <host/base/FolderEntries.h>
#include <host/base/PathText.h>
#include <host/import/ImportPlan.h>
#include <host/scan/FileVerdicts.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileProbes.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/tavolin/NativePath.h>
#include <zenvora/tavolin/RemovableStorage.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Outcome = ImportPlan::Outcome;
using LeftKind = LeftFile::Kind;
/// Where to copy from (empty: it stays), and the path under which it is added.
using PlannedPairs = QList<QPair<QString, QString>>;

class Planner {
 public:
  Planner(const GatheredSources& sources, const std::vector<PhotoRecord>& photos,
          const ImportPlanOptions& options, const ImportPlanProgress& progress)
      : sources_(sources.files), photos_(photos), options_(options), progress_(progress) {
    plan_.left = sources.left;
    plan_.housekeeping = sources.housekeeping;
  }

  ImportPlan Run() {
    if (!sources_.empty()) {
      KeepReadable() && FindKnown() && Place();
    }
    if (plan_.outcome == Outcome::Ready) {
      SeeWhatIsCopiedOff();
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
        plan_.left.push_back({LeftKind::Unreadable, path, kCannotBeRead, false});
      }
    }
    return !chosen_.empty();
  }

  bool FindKnown() {
    // Told to copy everything, what is catalogued among the sources is no copy of the others.
    KnownContent content(photos_, options_.copyAll ? sources_ : std::vector<ImportSource>(), GoesOn());
    std::vector<std::size_t> fresh;
    std::uint64_t done = 0;
    // Photos and films come first in their shots: what lies beside them is known by them.
    for (const std::size_t i : chosen_) {
      const ImportSource& source = sources_[i];
      if (IsCancelled()) {
        return Stop(Outcome::Interrupted);
      }
      if (!(source.leads ? IsKnownPhoto(content, source) : IsKnownBeside(source))) {
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
    if (known->isSource) {
      plan_.known.push_back({KnownFile::Kind::Repeated, source.path, known->path});
    } else {
      AddKnown(KnownFile::Kind::Catalogued, source, known->path);
    }
    return true;
  }

  /// Beside the photo or film that is there already, under its name.
  bool IsKnownBeside(const ImportSource& source) {
    const auto leaders = leadersThere_.find(source.shot);
    if (leaders == leadersThere_.end()) {
      return false;
    }
    const ioPath& photo = leaders->second.front();
    const auto split = [](const ioPath& path) { return SplitShotName(path.filename().utf8string()); };
    const ioPath other = Sibling(photo, split(photo).base + split(source.path).suffix);
    const FileState state = QueryFile(other);
    if (state.kind != FileState::Kind::File || state.size != source.state.size ||
        state.identity == source.state.identity || !SameContent(source.path, other, GoesOn())) {
      return false;
    }
    AddKnown(KnownFile::Kind::Copied, source, other);
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
    const ioPath folder = Tavolin::FromNative(questions.ChosenFolder());
    TakeOver(pairs, folder);
    if (!plan_.copies.empty()) {
      plan_.folder = folder;
      SeeToNames();
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
    std::unordered_set<std::size_t> dropped;
    // Photos and films first: by them it is known whose the files beside them are.
    for (const bool leaders : {true, false}) {
      for (const std::size_t i : chosen_) {
        const ImportSource& source = sources_[i];
        const bool isAsked = source.leads == leaders && toCopy.contains(ReversibleText(source.path));
        if (const auto copy = isAsked ? copies.Find(source, leadersThere_[source.shot]) : std::nullopt) {
          AddKnown(KnownFile::Kind::Copied, source, *copy);
          dropped.insert(i);
          if (source.isPhoto) {
            // A run that was killed may not have come to taking it in.
            plan_.stays.push_back(*copy);
          }
        }
      }
    }
    const auto end = std::remove_if(chosen_.begin(), chosen_.end(),
                                    [&dropped](std::size_t i) { return dropped.count(i) > 0; });
    chosen_.erase(end, chosen_.end());
    return !dropped.empty();
  }

  void AddKnown(KnownFile::Kind kind, const ImportSource& source, const ioPath& other) {
    plan_.known.push_back({kind, source.path, other});
    placed_.push_back({source.path, other, source.shot});
    if (source.leads) {
      leadersThere_[source.shot].push_back(other);
    }
  }

  void TakeOver(const PlannedPairs& pairs, const ioPath& folder) {
    QHash<QString, std::size_t> places;
    for (const std::size_t i : chosen_) {
      places.insert(ReversibleText(sources_[i].path), i);
    }
    for (const auto& [source, target] : pairs) {
      const ImportSource& file = sources_[places.value(source.isEmpty() ? target : source)];
      if (!source.isEmpty() && !LiesIn(folder, file.path)) {
        plan_.copies.push_back(
            {file.path, file.state, Tavolin::FromNative(PathOfReversible(target)), file.isPhoto});
        plan_.bytes += file.state.size;
        shots_.push_back(file.shot);
        continue;
      }
      placed_.push_back({file.path, file.path, file.shot});
      if (file.isPhoto) {
        plan_.stays.push_back(file.path);
      }
      // Else it lies in the folder of copies.
      if (source.isEmpty() && file.leads) {
        ++(file.isPhoto ? plan_.photosInPlace : plan_.filmsInPlace);
      }
      declined_ = declined_ || (source.isEmpty() && IsToLeave(file.path));
    }
  }

  /// What the user wants to be elsewhere afterwards, unless he said otherwise.
  bool IsToLeave(const ioPath& file) {
    if (options_.copyAll) {
      return true;
    }
    const ioPath folder = file.parent_path();
    const auto [known, isNew] = removable_.try_emplace(folder, false);
    if (isNew) {
      known->second = !Tavolin::GetRemovable({folder}).empty();
    }
    return known->second;
  }

  void SeeWhatIsCopiedOff() {
    plan_.copyDeclined = declined_;
    const auto leaves = [this](const ImportSource& source) { return IsToLeave(source.path); };
    plan_.copiesOff = !declined_ && std::any_of(sources_.begin(), sources_.end(), leaves);
    for (LeftFile& file : plan_.left) {
      file.copiedOff = plan_.copiesOff && IsToLeave(file.path);
    }
    // Where files stay, what is hidden beside them stays hidden.
    const auto end = std::remove_if(plan_.left.begin(), plan_.left.end(), [](const LeftFile& file) {
      return file.kind == LeftKind::Hidden && !file.copiedOff;
    });
    plan_.left.erase(end, plan_.left.end());
  }

  /// Also by way of a link, which its name does not tell.
  static bool LiesIn(const ioPath& folder, const ioPath& file) {
    std::error_code error;
    for (ioPath place = file.canonical(error); !place.empty() && place.parent_path() != place;) {
      place = place.parent_path();
      if (place == folder) {
        return true;
      }
    }
    return false;
  }

  void SeeToNames() {
    std::vector<ioPath> entries;
    std::error_code ignored;
    for (FolderEntry& entry : ReadFolderEntries(plan_.folder, EntryChoice::All, ignored)) {
      entries.push_back(std::move(entry.name));
    }
    MakeNamesServe(plan_.copies, entries);
    const auto end = std::remove_if(placed_.begin(), placed_.end(), [this](const PlacedFile& file) {
      return file.path.parent_path() != plan_.folder;
    });
    placed_.erase(end, placed_.end());
    plan_.splits = FindSplits(plan_.copies, shots_, placed_);
    plan_.joins = FindJoins(plan_.copies, shots_, placed_, entries);
  }

  void LookAtFolder() {
    ioPath place = plan_.folder;
    while (QueryFile(place).kind == FileState::Kind::Missing && place.parent_path() != place) {
      place = place.parent_path();
    }
    if (QueryFile(place).kind != FileState::Kind::Folder) {
      plan_.obstacle = place.utf8string() + " is not a folder.";
      return;
    }
    if (const std::string fault = FindLinkFault(plan_.folder); !fault.empty()) {
      plan_.obstacle = fault;
      return;
    }
    // As for any new file in a folder: its name lets folder and volume be found, and is never used.
    DataModel stub;
    stub.SetPath(place / "stub.dat");
    using Util::CheckSaveAvailableMode;
    const auto [failed, text] = Util::CheckSaveAvailable({stub}, CheckSaveAvailableMode::FolderPermission);
    // Room is asked of the very folder: the check looks at the root of its path, and at nothing else when
    // that is full.
    plan_.freeBytes = Util::GetAvailableDiskSpace(place);
    const bool isFull = plan_.freeBytes >= 0 && plan_.bytes > static_cast<std::uint64_t>(plan_.freeBytes);
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
  /// Photos of the shots whose content is there already; of shots without photos their films.
  std::unordered_map<std::size_t, std::vector<ioPath>> leadersThere_;
  std::vector<PlacedFile> placed_;
  /// Folders, whether they can be pulled out.
  std::unordered_map<ioPath, bool> removable_;
  /// Something that could be pulled out is not to be copied.
  bool declined_ = false;
  /// Of the copies.
  std::vector<std::size_t> shots_;
};

}  // namespace

ImportPlan PlanImport(const GatheredSources& sources, const std::vector<PhotoRecord>& photos,
                      const ImportPlanOptions& options, const ImportPlanProgress& progress) {
  return Planner(sources, photos, options, progress).Run();
}

}  // namespace Zenvora::Lumidex::Host
