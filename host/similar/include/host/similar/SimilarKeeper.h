#pragma once

#include <host/pixels/PictureVerdict.h>
#include <host/similar/SimilarPhotos.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// By what a photo is better than others of its group, the weightiest first.
enum class KeeperReason {
  Whole,       ///< All of its picture can be decoded.
  CameraFile,  ///< It is as the camera wrote it: the camera's data, its size, no trace of an editing program.
  CameraData,  ///< It has the date or the camera that the camera wrote, and the size that they tell.
  MakerNote,   ///< It has the maker's note.
  NotEnlarged,   ///< Others are but enlargements of a smaller copy.
  Largest,       ///< The most pixels.
  LeastTouched,  ///< No general program has written the file.
  Finer,         ///< Its light is quantised more finely; by less than a tenth does not count.
  Sharpest,      ///< The most detail; less than a tenth more does not count.
  MoreBytes,     ///< More bytes a pixel; less than a tenth more does not count.
  CameraName,    ///< Its name is as the camera gave it.
  Earliest,      ///< Taken before the others, by the camera's clock.
  FirstName,     ///< They differ in nothing but their names.
};

/// "whole", "the camera's own file", "has camera data", "has the maker's note", "not enlarged", "largest",
/// "not written by another program", "compressed less", "sharpest", "more bytes a pixel", "named by the
/// camera", "earliest", "first by name".
const char* KeeperReasonName(KeeperReason reason);

/// Which photo of a group to keep.
struct KeeperChoice {
  std::size_t index = 0;
  /// What left others behind, the weightiest first. Empty for a group of one.
  std::vector<KeeperReason> reasons;
};

/// A group, which of its photos to keep, and what the others are to that one.
struct SuggestedGroup {
  SimilarGroup group;
  KeeperChoice keeper;
  /// What each member is to the one to keep, as far as it was judged; of that one itself it says nothing.
  std::vector<PictureVerdict> verdicts;
};

/// Weighs one thing after the other, in the order of `KeeperReason`; each leaves those behind that are not
/// the best in it, until one photo is left. Pure. `members` is not empty.
KeeperChoice SuggestKeeper(const std::vector<SimilarMember>& members);

/// True when the larger one may have been made of the smaller one by enlarging: it has no sign of being the
/// camera's that the other lacks. Only pixels can say whether it was. Pure.
bool MayBeEnlarged(const SimilarMember& larger, const SimilarMember& smaller);

/// Those between which sharpness decides, by index: whatever weighs more leaves them together. Empty where
/// one photo is left before. Pure. `members` is not empty.
std::vector<std::size_t> SharpnessContenders(const std::vector<SimilarMember>& members);

}  // namespace Zenvora::Lumidex::Host
