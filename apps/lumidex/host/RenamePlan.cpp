#include "RenameNames.h"
#include "RenameOrdering.h"
#include "RenameSequence.h"
#include "ShotNames.h"

#include <host/HostError.h>
#include <host/RenamePlan.h>

#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = RenameProblem::Kind;
using Indices = std::vector<std::size_t>;
using IndicesByKey = std::unordered_map<std::string, Indices>;
using PathsByKey = std::unordered_map<std::string, ioPath>;

constexpr std::size_t kLongestToken = 64;

struct PlannedFile {
  std::size_t shot = 0;  // Of `PlannedShot`.
  KeyedMove move;
  bool moves = false;
};

struct PlannedShot {
  std::size_t given = 0;
  Indices files;
  std::string oldKey;  // Of the name without extension.
  std::string newKey;  // Empty: no new name.
  bool moves = false;
  std::optional<RenameProblem> problem;
};

void CheckToken(const std::string& token) {
  std::string fault = token.empty() ? "is empty" : FindNewNameFault("a" + token + "a");
  if (fault.empty() && token.size() > kLongestToken) {
    fault = "is too long";
  }
  if (!fault.empty()) {
    ThrowHostError(token, "The token for names of files on their way " + fault);
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
    if (given.set.files.empty()) {
      return;
    }
    const std::string folder = SplitFolder(given.set.files.front().path).folder;
    shot.oldKey = folder + NameKey(given.set.name);
    const bool named = !pattern_.NeedsDate() || given.taken.isValid();
    const std::string name = named ? pattern_.NameFor({given.set.name, given.taken, number}) : given.set.name;
    if (named) {
      shot.newKey = folder + NameKey(name);
    }
    for (const ShotFile& file : given.set.files) {
      AddFile(index, file, name);
    }
    if (!named) {
      Fail(shot, Kind::NoDate, given.set.files.front().path, {}, {}, "has no date");
    }
  }

  void AddFile(std::size_t index, const ShotFile& source, const std::string& name) {
    PlannedShot& shot = shots_[index];
    const std::string newName = name + source.suffix;
    const FileName old = SplitFolder(source.path);
    PlannedFile file;
    file.shot = index;
    file.move.from = source.path;
    file.move.to = Sibling(source.path, newName);
    file.move.fromKey = old.folder + NameKey(old.name);
    file.move.toKey = old.folder + NameKey(newName);
    file.moves = !shot.newKey.empty() && old.name != newName;
    shot.moves = shot.moves || file.moves;
    const std::string fault = file.moves ? FindNewNameFault(newName) : std::string();
    if (!fault.empty()) {
      Fail(shot, Kind::BadName, file.move.from, file.move.to, {}, fault);
    }
    if (!sources_.insert(old.folder + old.name).second) {
      Fail(shot, Kind::Repeated, source.path, {}, {}, "is given twice");
    }
    sourceKeys_.insert(file.move.fromKey);
    shot.files.push_back(files_.size());
    files_.push_back(std::move(file));
  }

  void FindStrangers() {
    for (const ioPath& entry : entries_) {
      const FileName file = SplitFolder(entry);
      if (sources_.count(file.folder + file.name) > 0) {
        continue;
      }
      strangers_.emplace(file.folder + NameKey(file.name), entry);
      if (IsShotFile(ioPath(file.name))) {
        strangeShots_.emplace(file.folder + NameKey(SplitShotName(file.name).base), entry);
      }
    }
  }

  /// What gets one name: shots, or single files.
  void FindTwins() {
    IndicesByKey byShot;
    IndicesByKey byFile;
    for (std::size_t i = 0; i < shots_.size(); ++i) {
      if (!shots_[i].problem && !shots_[i].newKey.empty()) {
        byShot[shots_[i].newKey].push_back(i);
        for (const std::size_t file : shots_[i].files) {
          byFile[files_[file].move.toKey].push_back(file);
        }
      }
    }
    for (const PlannedFile& file : files_) {
      if (file.moves) {
        FailIfTwin(file, byShot, byFile);
      }
    }
  }

  void FailIfTwin(const PlannedFile& file, const IndicesByKey& byShot, const IndicesByKey& byFile) {
    PlannedShot& shot = shots_[file.shot];
    if (shot.problem) {
      return;
    }
    const Indices& shots = byShot.at(shot.newKey);
    if (shots.size() > 1) {
      const PlannedShot& other = shots_[shots[0] == file.shot ? shots[1] : shots[0]];
      Fail(shot, Kind::SameName, file.move.from, file.move.to, files_[other.files.front()].move.from,
           "would be the name of two photos");
      return;
    }
    const Indices& files = byFile.at(file.move.toKey);
    if (files.size() > 1) {
      const bool first = &files_[files[0]] == &file;
      Fail(shot, Kind::SameName, file.move.from, file.move.to, files_[files[first ? 1 : 0]].move.from,
           "would be the name of two files");
    }
  }

  void FindTakenNames() {
    for (const PlannedFile& file : files_) {
      PlannedShot& shot = shots_[file.shot];
      if (!file.moves || shot.problem) {
        continue;
      }
      const auto stranger = strangers_.find(file.move.toKey);
      const auto strangeShot = strangeShots_.find(shot.newKey);
      if (stranger != strangers_.end()) {
        Fail(shot, Kind::Taken, file.move.from, file.move.to, stranger->second,
             "is the name of something that stays");
      } else if (strangeShot != strangeShots_.end() && shot.newKey != shot.oldKey) {
        // The settings of a stranger would become those of the photo.
        Fail(shot, Kind::Taken, file.move.from, file.move.to, strangeShot->second,
             "is the name of a photo that stays, or of something beside one");
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
        waiting[files_[i].move.toKey].push_back(i);
        waiting[shots_[files_[i].shot].newKey + kShotMark].push_back(i);
      }
    }
    while (!staying.empty()) {
      const PlannedShot& shot = shots_[staying.back()];
      staying.pop_back();
      for (const std::size_t file : shot.files) {
        Block(waiting[files_[file].move.fromKey], files_[file].move.from, staying);
      }
      if (!shot.files.empty()) {
        Block(waiting[shot.oldKey + kShotMark], files_[shot.files.front()].move.from, staying);
      }
    }
  }

  void Block(const Indices& files, const ioPath& other, Indices& staying) {
    for (const std::size_t i : files) {
      PlannedShot& shot = shots_[files_[i].shot];
      if (!shot.problem) {
        Fail(shot, Kind::Blocked, files_[i].move.from, files_[i].move.to, other,
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

  RenamePlan MakePlan(bool refused) {
    RenamePlan plan;
    std::vector<KeyedMove> moves;
    for (const PlannedShot& shot : shots_) {
      if (shot.problem) {
        plan.problems.push_back(*shot.problem);
        continue;
      }
      for (const std::size_t i : shot.files) {
        const PlannedFile& file = files_[i];
        if (!file.moves) {
          ++plan.unchanged;
        } else if (!refused) {
          plan.renames.push_back({file.move.from, file.move.to});
          moves.push_back(file.move);
        }
      }
    }
    plan.steps = SequenceMoves(moves, [this](const KeyedMove& move) { return TemporaryName(move); });
    return plan;
  }

  ioPath TemporaryName(const KeyedMove& move) {
    const std::string folder = SplitFolder(move.from).folder;
    const std::string extension = move.from.extension().utf8string();
    for (;;) {
      std::string name = ".lumidex-" + options_.token + '-' + std::to_string(++temporaries_);
      if (name.size() + extension.size() <= kLongestFileName) {
        name += extension;
      }
      const std::string key = folder + NameKey(name);
      if (strangers_.count(key) == 0 && sourceKeys_.count(key) == 0) {
        return Sibling(move.from, name);
      }
    }
  }

  // No file's key ends like this.
  static constexpr const char* kShotMark = "/";

  const std::vector<RenameShot>& given_;
  const RenamePattern& pattern_;
  const std::vector<ioPath>& entries_;
  const RenameOptions& options_;
  std::vector<PlannedShot> shots_;  // As planned.
  std::vector<PlannedFile> files_;
  std::unordered_set<std::string> sources_;
  std::unordered_set<std::string> sourceKeys_;
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
