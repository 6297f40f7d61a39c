#pragma once

#include <host/catalogue/CatalogueMoves.h>
#include <host/catalogue/VolumesSeen.h>
#include <host/shots/PhotoReading.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Finds out which of the photos that a scan reads had another name before. Changes nothing. Blocks on the
/// disk; belongs to one thread. docs/decisions/catalogue.md tells what counts as the same photo.
class MovedPhotos {
 public:
  MovedPhotos(CatalogueMoves& catalogue, VolumesSeen& volumes) : catalogue_(catalogue), volumes_(volumes) {}

  /// Takes what was read of a file, and keeps it when only all of the scan can tell which photo it is: then
  /// true. Else the photo can be stored under its name.
  bool Take(PhotoRecord& record, bool isKnown);

  struct Verdict {
    std::vector<FollowedPhoto> moved;
    /// What else was kept.
    std::vector<PhotoRecord> others;
    std::size_t added = 0;    ///< Of the others: whose names no photo of the catalogue has, or has any more.
    std::size_t updated = 0;  ///< Of the others: the rest.
    std::size_t lost = 0;     ///< Photos whose names are those of moved ones now, and that are nowhere.
    std::vector<ScanFinding> findings;
  };
  /// To be called once, when all files were read. Nothing when `isCancelled` says so meanwhile.
  Verdict Decide(const std::function<bool()>& isCancelled);

 private:
  using Indices = std::vector<std::size_t>;

  struct Held {
    PhotoRecord record;
    /// In the form in which the catalogue has that of the photo that it may be.
    ContentTrace trace;
    /// What the catalogue has under its name.
    std::optional<TracedPhoto> own;
    /// Of `groups_`; none: nothing is like it.
    std::string group;
    /// The photo that it is; none: a new one, or the one under its name.
    std::optional<TracedPhoto> match;
    bool isGone = false;
  };

  /// Photos that are alike.
  struct Group {
    bool byId = false;
    /// Those that were not at their places when they were looked for.
    std::vector<TracedPhoto> away;
    /// The others, by their names as systems see them that ignore case.
    std::unordered_map<std::string, TracedPhoto> home;
    Indices held;
  };

  enum class Whereabouts { Home, Away, CannotTell };

  Group& GroupOf(const std::string& key, bool byId, const Held& held);
  std::string ChooseGroup(const Held& held);
  Whereabouts LookFor(const TracedPhoto& photo, const ioPath& found);
  bool MatchSpelling(Held& held);
  bool IsLike(Held& held);
  void Match(Group& group);
  bool MatchByNames(const std::vector<TracedPhoto>& photos, const Indices& held);
  void Report(const std::vector<TracedPhoto>& photos, const Indices& held);
  void SetMatch(std::size_t held, const TracedPhoto& photo);
  void DropDoubtful();
  bool IsReplaced(const TracedPhoto& photo, std::size_t by) const;
  Verdict Finish();

  CatalogueMoves& catalogue_;
  VolumesSeen& volumes_;
  std::vector<Held> held_;
  std::unordered_map<std::string, std::size_t> heldAt_;
  std::unordered_map<std::string, Group> groups_;
  /// Photos by their numbers, and as which of the held ones they are known.
  std::unordered_map<qlonglong, std::size_t> followed_;
  std::unordered_set<qlonglong> doubtful_;
  std::vector<ScanFinding> findings_;
};

}  // namespace Zenvora::Lumidex::Host
