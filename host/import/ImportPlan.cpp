#include "ImportNames.h"

#include <host/import/ImportPlan.h>
#include <host/scan/FileVerdicts.h>
#include <host/shots/ShotNames.h>

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Outcome = ImportPlan::Outcome;
using LeftKind = LeftFile::Kind;

class Planner {
 public:
  Planner(const ImportFacts& facts, const ImportAnswers& answers)
      : facts_(facts), sources_(facts.sources.files), answers_(answers) {}

  ImportPlan Plan() {
    plan_.housekeeping = facts_.sources.housekeeping;
    plan_.left = facts_.sources.left;
    for (const std::size_t i : facts_.unreadable) {
      plan_.left.push_back({LeftKind::Unreadable, sources_[i].path, kCannotBeRead, false});
    }
    for (const KnownSource& known : facts_.known) {
      AddKnown(known);
    }
    if (facts_.interrupted) {
      plan_.outcome = Outcome::Interrupted;
    } else if (answers_.declined) {
      plan_.outcome = Outcome::Declined;
    } else {
      Place();
      MarkWhatIsLeft();
    }
    return std::move(plan_);
  }

 private:
  void AddKnown(const KnownSource& known) {
    const ImportSource& source = sources_[known.source];
    known_.insert(known.source);
    plan_.known.push_back({known.kind, source.path, known.other});
    if (known.kind != KnownKind::Repeated) {
      AddPlaced(source, known.other);
    }
    if (known.kind == KnownKind::Copied && source.isPhoto) {
      // A run that was killed may not have come to taking it in.
      plan_.stays.push_back(known.other);
    }
  }

  /// `path`: where the source, or a copy of it, lies.
  void AddPlaced(const ImportSource& source, const ioPath& path) {
    placed_.push_back({source.path, path, source.shot});
    if (path.parent_path() != answers_.folder) {
      return;
    }
    const std::string name = path.filename().utf8string();
    const std::size_t suffix = source.suffix.size();
    const bool ends = name.size() > suffix && name.substr(name.size() - suffix) == source.suffix;
    std::string base = ends ? name.substr(0, name.size() - suffix) : SplitShotName(name).base;
    if (source.leads) {
      homes_[source.shot] = std::move(base);
    } else {
      homes_.emplace(source.shot, std::move(base));
    }
  }

  bool IsCopied(const ImportAnswers::File& file) const {
    return file.copy && known_.count(file.source) == 0 && facts_.folder.holds.count(file.source) == 0;
  }

  void Place() {
    FreeNames names(facts_.folder);
    std::vector<std::vector<std::size_t>> shots;
    std::unordered_map<std::size_t, std::size_t> places;
    for (const ImportAnswers::File& file : answers_.files) {
      const ImportSource& source = sources_[file.source];
      if (IsCopied(file)) {
        const auto [place, isNew] = places.emplace(source.shot, shots.size());
        if (isNew) {
          shots.emplace_back();
        }
        shots[place->second].push_back(file.source);
      } else if (known_.count(file.source) == 0) {
        Leave(source, file.copy);
        if (source.path.parent_path() == answers_.folder && IsToLeave(source.path)) {
          names.Take(source.path.filename());
        }
      }
    }
    for (const std::vector<std::size_t>& files : shots) {
      GiveNames(files, names);
    }
    for (const ImportAnswers::File& file : answers_.files) {
      if (IsCopied(file)) {
        const ImportSource& source = sources_[file.source];
        plan_.copies.push_back({source.path, source.state, targets_.at(file.source), source.isPhoto});
        plan_.bytes += source.state.size;
        shots_.push_back(source.shot);
      }
    }
    if (!plan_.copies.empty()) {
      plan_.folder = answers_.folder;
      LookForMixedShots();
      FindObstacle();
    }
  }

  /// To files of one shot. They go beside those of the shot that are there; where something else has a name
  /// there, to one that they share with nobody.
  void GiveNames(const std::vector<std::size_t>& files, FreeNames& names) {
    std::vector<std::size_t> others;
    const auto home = homes_.find(sources_[files.front()].shot);
    for (const std::size_t file : files) {
      const ioPath beside = home == homes_.end() ? ioPath() : ioPath(home->second + sources_[file].suffix);
      if (!beside.empty() && names.TakeFree(beside)) {
        targets_.emplace(file, answers_.folder / beside);
      } else {
        others.push_back(file);
      }
    }
    std::vector<ShotName> parts;
    for (const std::size_t file : others) {
      const std::string name = sources_[file].path.filename().utf8string();
      const std::string& suffix = sources_[file].suffix;
      parts.push_back({name.substr(0, name.size() - suffix.size()), suffix});
    }
    const std::vector<ioPath> given = parts.empty() ? std::vector<ioPath>() : names.Give(parts);
    for (std::size_t i = 0; i < given.size(); ++i) {
      targets_.emplace(others[i], answers_.folder / given[i]);
    }
  }

  /// `isThere`: it was to be copied and lies in the folder of copies.
  void Leave(const ImportSource& source, bool isThere) {
    AddPlaced(source, source.path);
    if (source.isPhoto) {
      plan_.stays.push_back(source.path);
    }
    if (!isThere) {
      if (source.leads) {
        ++(source.isPhoto ? plan_.photosInPlace : plan_.filmsInPlace);
      }
      plan_.copyDeclined = plan_.copyDeclined || IsToLeave(source.path);
    }
  }

  void LookForMixedShots() {
    const auto end = std::remove_if(placed_.begin(), placed_.end(), [this](const PlacedFile& file) {
      return file.path.parent_path() != plan_.folder;
    });
    placed_.erase(end, placed_.end());
    plan_.splits = FindSplits(plan_.copies, shots_, placed_);
    plan_.joins = FindJoins(plan_.copies, shots_, placed_, facts_.folder.names);
  }

  void FindObstacle() {
    plan_.obstacle = facts_.folder.obstacle;
    const std::int64_t free = facts_.folder.freeBytes;
    if (plan_.obstacle.empty() && free >= 0 && plan_.bytes > static_cast<std::uint64_t>(free)) {
      plan_.obstacle = "There is not enough space in " + plan_.folder.utf8string() + ": " +
                       std::to_string(plan_.bytes) + " bytes are needed, " + std::to_string(free) +
                       " are free.";
    }
    if (plan_.obstacle.empty() && !facts_.journalObstacle.empty()) {
      plan_.obstacle = facts_.journalObstacle + ".";
    }
  }

  /// What the user wants to be elsewhere afterwards, unless he said otherwise.
  bool IsToLeave(const ioPath& file) const {
    return facts_.copyAll || facts_.removable.count(file.parent_path()) > 0;
  }

  void MarkWhatIsLeft() {
    plan_.copiesOff = !plan_.copyDeclined &&
                      std::any_of(sources_.begin(), sources_.end(),
                                  [this](const ImportSource& source) { return IsToLeave(source.path); });
    for (LeftFile& file : plan_.left) {
      file.copiedOff = plan_.copiesOff && IsToLeave(file.path);
    }
    // Where files stay, what is hidden beside them stays hidden.
    const auto end = std::remove_if(plan_.left.begin(), plan_.left.end(), [](const LeftFile& file) {
      return file.kind == LeftKind::Hidden && !file.copiedOff;
    });
    plan_.left.erase(end, plan_.left.end());
  }

  const ImportFacts& facts_;
  const std::vector<ImportSource>& sources_;
  const ImportAnswers& answers_;
  ImportPlan plan_;
  std::unordered_set<std::size_t> known_;
  std::vector<PlacedFile> placed_;
  /// By shots, what those of their files share that are in the folder of copies.
  std::unordered_map<std::size_t, std::string> homes_;
  /// By sources.
  std::unordered_map<std::size_t, ioPath> targets_;
  /// Of the copies.
  std::vector<std::size_t> shots_;
};

}  // namespace

ImportPlan PlanImport(const ImportFacts& facts, const ImportAnswers& answers) {
  return Planner(facts, answers).Plan();
}

}  // namespace Zenvora::Lumidex::Host
