#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/journal/SeenFile.h>
#include <host/similar/SimilarKeeper.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What lies beside photos and says nothing without them.
struct AttachedFile : SeenFile {
  std::vector<ioPath> photos;  ///< It stays while one of them is there.
  /// Of settings those of the same bytes beside the photo that is kept, without which they stay; a path that
  /// is empty: none are needed.
  SeenFile equal = {};
};

/// A photo that is to go to the trash.
struct TrashPhoto {
  SeenFile photo;
  SeenFile kept;                       ///< The one that is kept in its stead.
  std::vector<AttachedFile> attached;  ///< Goes after it.
  PictureVerdict verdict = {};         ///< What it is to that one.
};

/// A photo besides the one to keep that stays.
struct TrashStay {
  ioPath photo;
  std::string cause;   ///< One English sentence that names the file.
  bool isRule = true;  ///< It would stay the next time, too; false: something is wrong with it.
  /// It could go but for this, which it is to the one to keep.
  std::optional<Verdict> byVerdict;
};

/// What may go, by its verdict against the one to keep.
enum class TrashChoice {
  Same,         ///< The same picture only.
  SameOrAlike,  ///< Also what is merely alike, and may be somebody's work.
};

struct TrashPlan {
  std::vector<TrashPhoto> photos;  ///< Group by group, raw files last.
  std::vector<TrashStay> stays;    ///< Group by group.

  /// Photos that are not the same picture as the one that is kept.
  std::size_t CountAlike() const;
  /// Photos with what goes along.
  std::size_t CountFiles() const;
  std::uint64_t CountBytes() const;
};

using HasMore = std::function<bool(const PhotoRecord& photo, const PhotoRecord& kept)>;

/// What goes to the trash when of each group only the photo to keep is to stay, and what stays all the same:
/// - what is the very file that is kept here or in another group, under whatever name, or a link;
/// - other formats of the shot that the kept photo is of, as `GroupShots` has it;
/// - raw files, unless a raw file of the group stays;
/// - what `JudgeTrash` refuses: what lies in a trash, is a link, has a link that leads to it; and all of a
/// group whose kept photo does, or is a link;
/// - what is not on the disk as the catalogue knows it, and all of a group whose kept photo is not: then
///   nobody knows whether they still show the same;
/// - all of a group whose kept photo breaks off before the end of its picture;
/// - all of a group whose kept photo cannot be decoded as a whole;
/// - what is like the middle of its group, but not like the kept photo itself;
/// - what has settings beside it that would go along and of which the kept photo has none of the same bytes;
/// - what is another picture than the kept one, what could not be compared with it, and what is merely alike
///   unless that was chosen.
/// Settings and thumbnails beside a photo go along with it when they are that file's alone, or when nothing
/// else of the shot stays that could need them. Changes nothing; blocks on the disk. docs/decisions/trash.md
/// has the reasons.
/// `hasMore`: whether a photo has tags or albums that the kept one has not; then it stays. Empty: none has.
/// `folders`: where links are looked for besides the folders of the photos and what is below them.
TrashPlan PlanTrash(const std::vector<SuggestedGroup>& groups, TrashChoice choice = TrashChoice::Same,
                    const HasMore& hasMore = nullptr, const std::set<ioPath>& folders = {});

/// Why the photo must not go now, in an English sentence; empty: it may. To be asked right before it goes.
/// Blocks on the disk.
std::string FindTrashFault(const SeenFile& photo, const SeenFile& kept);
/// The same, and where both were identical files, whether they still are.
std::string FindTrashFault(const TrashPhoto& photo);
/// The same for what goes along with a photo.
std::string FindTrashFault(const AttachedFile& attached);

}  // namespace Zenvora::Lumidex::Host
