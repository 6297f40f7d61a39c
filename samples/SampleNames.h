#pragma once

#include "SamplePlan.h"

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Where a shot is kept, before it has a name.
struct SampleShelf {
  /// A folder of its own for a trip or party; empty: where the camera puts it.
  std::string album;
  /// A name given by hand, with its folder; overrides all else.
  std::string byHand;
};

/// Names given by hand: what file names out in the world look like.
const std::vector<std::string>& OddSampleNames();

/// Fills in the paths. `shelves[i]` belongs to `shots[i]`; the shots must be in the order of their dates.
void NameSampleShots(std::vector<SampleShot>& shots, const std::vector<SampleShelf>& shelves);

}  // namespace Zenvora::Lumidex::Host
