#include "RenameOrdering.h"
#include "RenameSequence.h"

#include <host/base/HostError.h>
#include <host/base/RenameNames.h>
#include <host/rename/RenamePlan.h>
#include <host/scan/FileVerdicts.h>
#include <host/shots/ShotNames.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <numeric>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = RenameProblem::Kind;
using Indices = std::vector<std::size_t>;
using IndicesByKey = std::unordered_map<std::string, Indices>;
using PathsByKey = std::unordered_map<std::string, const ioPath*>;

constexpr std::size_t kNone = static_cast<std::size_t>(-1);
constexpr std::size_t kLongestToken = 64;

struct PlannedFile {
  std::size_t shot = 0;  // Of `PlannedShot`.
  const ioPath* from = nullptr;
  ioPath to;
  std::string fromKey;
  std::string toKey;
  bool moves = false;
};

struct PlannedShot {
  std::size_t given = 0;
  /// Of `PlannedFile`.
  std::size_t firstFile = 0;
  std::size_t endFile = 0;
  std::string oldKey;  // Of the name without extension.
  std::string newKey;  // Empty: no new name.
  std::optional<RenameProblem> problem;
};

/// Who gets which name. The keys are those of what is planned.
class Claims {
 public:
  explicit Claims(std::size_t most) { claims_.reserve(most); }

  void Add(std::string_view key, std::size_t claimant) {
    Claim& claim = claims_[key];
    if (claim.first == kNone) {
      claim.first = claimant;
    } else if (claim.second == kNone) {
      claim.second = claimant;
    }
  }

  /// Somebody else who gets the name; `kNone`: nobody.
  std::size_t RivalOf(std::size_t claimant, std::string_view key) const {
    const Claim& claim = claims_.at(key);
    return claim.first == claimant ? claim.second : claim.first;
  }

 private:
  struct Claim {
    std::size_t first = kNone;
    std::size_t second = kNone;
  };

  std::unordered_map<std::string_view, Claim> claims_;
};

void CheckToken(const std::string& token) {
  std::string fault = token.empty() ? "is empty" : FindNewNameFault("a" + token + "a");
  if (fault.empty() && token.size() > kLongestToken) {
    fault = "is too long";
  }
  if (!fault.empty()) {
    ThrowHostError(token, "The token for staging names " + fault);
  }
}

class Planner {
 public:
  Planner(const std::vector<RenameShot>& shots, const RenamePattern& pattern,
          const std::vector<ioPath>& entries, const RenameOptions& options)
      : given_(shots), pattern_(pattern), entries_(entries), options_(options) {}

  RenamePlan Run() {
    NameShots();
    FindStrangers();
    FindTwins();
    FindTakenNames();
    const bool problems = HasProblems();
    const bool refused = problems && options_.onProblem == RenameFailing::Nothing;
    if (problems && !refused) {
      FindBlocked();
    }
    return MakePlan(refused);
  }

 private:
  void NameShots() {
    const std::size_t files =
        std::accumulate(given_.begin(), given_.end(), std::size_t{0},
                        [](std::size_t sum, const RenameShot& shot) { return sum + shot.set.files.size(); });
    shots_.reserve(given_.size());
    files_.reserve(files);
    sources_.reserve(files);
    std::uint64_t number = options_.start;
    for (const std::size_t given : OrderShots(given_, options_.order)) {
      PlannedShot shot;
      shot.given = given;
      shots_.push_back(std::move(shot));
      NameFiles(shots_.size() - 1, number++);
    }
  }

  void NameFiles(std::size_t index, std::uint64_t number) {
    PlannedShot& shot = shots_[index];
    const RenameShot& given = given_[shot.given];
    shot.firstFile = files_.size();
    shot.endFile = shot.firstFile + given.set.files.size();
    if (given.set.files.empty()) {
      return;
    }
    const FileName first(given.set.files.front().path);
    shot.oldKey = KeyOf(first.Folder(), given.set.name);
    const bool named = !pattern_.NeedsDate() || given.taken.isValid();
    const std::string name = named ? pattern_.NameFor({given.set.name, given.taken, number}) : given.set.name;
    if (named) {
      shot.newKey = KeyOf(first.Folder(), name);
    }
    for (const ShotFile& file : given.set.files) {
      AddFile(index, file, name);
    }
    const auto moves = [](const PlannedFile& file) { return file.moves; };
    if (!given.link.empty() &&
        std::any_of(files_.begin() + static_cast<std::ptrdiff_t>(shot.firstFile),
                    files_.begin() + static_cast<std::ptrdiff_t>(shot.endFile), moves)) {
      Fail(shot, Kind::Torn, given.set.files.front().path, {}, given.link, kTornFromLink);
    }
    if (!named) {
      Fail(shot, Kind::NoDate, given.set.files.front().path, {}, {},
           given.dateFault.empty() ? "has no date" : "has no readable date: " + given.dateFault);
    }
  }

  void AddFile(std::size_t index, const ShotFile& source, const std::string& name) {
    PlannedShot& shot = shots_[index];
    const std::string newName = name + source.suffix;
    const FileName old(source.path);
    PlannedFile& file = files_.emplace_back();
    file.shot = index;
    file.from = &source.path;
    file.to = Sibling(source.path, newName);
    file.fromKey = KeyOf(old.Folder(), old.Name());
    file.toKey = KeyOf(old.Folder(), newName);
    file.moves = !shot.newKey.empty() && old.Name() != newName;
    const std::string fault = file.moves ? FindNewNameFault(newName) : std::string();
    if (!fault.empty()) {
      Fail(shot, Kind::BadName, source.path, file.to, {}, fault);
    }
    if (!sources_.insert(source.path.native().native()).second) {
      Fail(shot, Kind::Repeated, source.path, {}, {}, "is given twice");
    }
  }

  void FindStrangers() {
    for (const ioPath& entry : entries_) {
      if (sources_.count(entry.native().native()) > 0) {
        continue;
      }
      const FileName file(entry);
      strangers_.emplace(KeyOf(file.Folder(), file.Name()), &entry);
      if (IsShotFile(file.Name())) {
        strangeShots_.emplace(KeyOf(file.Folder(), SplitShotName(file.Name()).base), &entry);
      }
    }
  }

  /// What gets one name: shots, or single files.
  void FindTwins() {
    Claims shots(shots_.size());
    Claims files(files_.size());
    for (std::size_t i = 0; i < shots_.size(); ++i) {
      if (!shots_[i].problem && !shots_[i].newKey.empty()) {
        shots.Add(shots_[i].newKey, i);
        for (std::size_t file = shots_[i].firstFile; file < shots_[i].endFile; ++file) {
          files.Add(files_[file].toKey, file);
        }
      }
    }
    for (std::size_t i = 0; i < files_.size(); ++i) {
      if (files_[i].moves && !shots_[files_[i].shot].problem) {
        FailIfTwin(i, shots, files);
      }
    }
  }

  void FailIfTwin(std::size_t index, const Claims& shots, const Claims& files) {
    const PlannedFile& file = files_[index];
    PlannedShot& shot = shots_[file.shot];
    const std::size_t otherShot = shots.RivalOf(file.shot, shot.newKey);
    const std::size_t otherFile = files.RivalOf(index, file.toKey);
    if (otherShot != kNone) {
      Fail(shot, Kind::SameName, *file.from, file.to, *files_[shots_[otherShot].firstFile].from,
           "would be the name of two photos");
    } else if (otherFile != kNone) {
      Fail(shot, Kind::SameName, *file.from, file.to, *files_[otherFile].from,
           "would be the name of two files");
    }
  }

  void FindTakenNames() {
    for (const PlannedFile& file : files_) {
      PlannedShot& shot = shots_[file.shot];
      if (!file.moves || shot.problem) {
        continue;
      }
      const auto stranger = strangers_.find(file.toKey);
      const auto strangeShot = strangeShots_.find(shot.newKey);
      if (stranger != strangers_.end()) {
        Fail(shot, Kind::Taken, *file.from, file.to, *stranger->second, "is the name of another file");
      } else if (strangeShot != strangeShots_.end() && shot.newKey != shot.oldKey) {
        // The settings of a stranger would become those of the photo.
        Fail(shot, Kind::Taken, *file.from, file.to, *strangeShot->second,
             "is the name of another photo or its sidecar");
      }
    }
  }

  bool HasProblems() const {
    for (const PlannedShot& shot : shots_) {
      if (shot.problem) {
        return true;
      }
    }
    return false;
  }

  /// Names that are not given up after all, and so on along the chain.
  void FindBlocked() {
    IndicesByKey waiting;
    Indices staying;
    for (std::size_t i = 0; i < shots_.size(); ++i) {
      if (shots_[i].problem) {
        staying.push_back(i);
      }
    }
    for (std::size_t i = 0; i < files_.size(); ++i) {
      if (files_[i].moves) {
        waiting[files_[i].toKey].push_back(i);
        waiting[shots_[files_[i].shot].newKey + kShotMark].push_back(i);
      }
    }
    while (!staying.empty()) {
      const PlannedShot& shot = shots_[staying.back()];
      staying.pop_back();
      for (std::size_t i = shot.firstFile; i < shot.endFile; ++i) {
        Block(waiting[files_[i].fromKey], *files_[i].from, staying);
      }
      if (shot.firstFile < shot.endFile) {
        Block(waiting[shot.oldKey + kShotMark], *files_[shot.firstFile].from, staying);
      }
    }
  }

  void Block(const Indices& files, const ioPath& other, Indices& staying) {
    for (const std::size_t i : files) {
      PlannedShot& shot = shots_[files_[i].shot];
      if (!shot.problem) {
        Fail(shot, Kind::Blocked, *files_[i].from, files_[i].to, other,
             "is the name of a photo that cannot be renamed");
        staying.push_back(files_[i].shot);
      }
    }
  }

  static void Fail(PlannedShot& shot, Kind kind, const ioPath& file, const ioPath& target,
                   const ioPath& other, const std::string& cause) {
    if (!shot.problem) {
      shot.problem = RenameProblem{kind, shot.given, file, target, other, cause};
    }
  }

  /// The last thing to be done: the new names go into the plan.
  RenamePlan MakePlan(bool refused) {
    RenamePlan plan;
    std::vector<KeyedMove> moves;
    // They must stay where they are.
    plan.renames.reserve(files_.size());
    moves.reserve(files_.size());
    for (const PlannedShot& shot : shots_) {
      if (shot.problem) {
        plan.problems.push_back(*shot.problem);
        continue;
      }
      const std::size_t before = plan.renames.size();
      for (std::size_t i = shot.firstFile; i < shot.endFile; ++i) {
        PlannedFile& file = files_[i];
        if (!file.moves) {
          ++plan.unchanged;
        } else if (!refused) {
          plan.renames.push_back({*file.from, std::move(file.to)});
          moves.push_back({&plan.renames.back(), file.fromKey, file.toKey});
        }
      }
      plan.shots += plan.renames.size() > before ? 1 : 0;
    }
    plan.steps = SequenceMoves(moves, [this](const RenameMove& move) { return TemporaryName(move); });
    return plan;
  }

  ioPath TemporaryName(const RenameMove& move) {
    const FileName file(move.from);
    const std::string extension = move.from.extension().utf8string();
    for (;;) {
      std::string name = ".lumidex-" + options_.token + '-' + std::to_string(++temporaries_);
      if (name.size() + extension.size() <= kLongestFileName) {
        name += extension;
      }
      const std::string key = KeyOf(file.Folder(), name);
      if (strangers_.count(key) == 0 && !IsSourceKey(key)) {
        return Sibling(move.from, name);
      }
    }
  }

  /// Seldom asked.
  bool IsSourceKey(const std::string& key) {
    if (sourceKeys_.empty()) {
      for (const PlannedFile& file : files_) {
        sourceKeys_.insert(file.fromKey);
      }
    }
    return sourceKeys_.count(key) > 0;
  }

  // No file's key ends like this.
  static constexpr const char* kShotMark = "/";

  const std::vector<RenameShot>& given_;
  const RenamePattern& pattern_;
  const std::vector<ioPath>& entries_;
  const RenameOptions& options_;
  std::vector<PlannedShot> shots_;  // As planned.
  std::vector<PlannedFile> files_;
  std::unordered_set<std::basic_string_view<std::filesystem::path::value_type>> sources_;
  std::unordered_set<std::string_view> sourceKeys_;
  PathsByKey strangers_;
  PathsByKey strangeShots_;
  std::size_t temporaries_ = 0;
};

}  // namespace

RenamePlan MakeRenamePlan(const std::vector<RenameShot>& shots, const RenamePattern& pattern,
                          const std::vector<ioPath>& entries, const RenameOptions& options) {
  CheckToken(options.token);
  return Planner(shots, pattern, entries, options).Run();
}

}  // namespace Zenvora::Lumidex::Host
