#pragma once

#include <host/SimilarPhotos.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// By what a photo is better than others of its group.
enum class KeeperReason {
  Largest,     ///< The most pixels.
  Sharpest,    ///< The most detail; less than a tenth more does not count.
  CameraData,  ///< It has the date or the camera that the camera wrote.
  Earliest,    ///< Taken before the others, by the camera's clock.
  FirstName,   ///< They differ in nothing but their names.
};

/// "largest", "sharpest", "has camera data", "earliest", "first by name".
const char* KeeperReasonName(KeeperReason reason);

/// Which photo of a group to keep.
struct KeeperChoice {
  std::size_t index = 0;
  /// What left others behind, the weightiest first. Empty for a group of one.
  std::vector<KeeperReason> reasons;
};

/// A group, and which of its photos to keep.
struct SuggestedGroup {
  SimilarGroup group;
  KeeperChoice keeper;
};

/// Weighs one thing after the other, in the order of `KeeperReason`; each leaves those behind that are not
/// the best in it, until one photo is left. Pure. `members` is not empty.
KeeperChoice SuggestKeeper(const std::vector<SimilarMember>& members);

}  // namespace Zenvora::Lumidex::Host
