#pragma once

#include <zenvora/core/ioPath.h>

#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A former and a present name.
using MovedName = std::pair<ioPath, ioPath>;

/// What lies beside photos that others moved and must have gone along with them: sidecars, thumbnails and the
/// like of the same shot that are not where they were. What stayed behind, or was left a copy there, is not
/// among it; nor is what got another name than its photo. Where photos exchanged their names, so did these.
/// Each present name once. Blocks on the disk.
std::vector<MovedName> FindMovedCompanions(const std::vector<MovedName>& photos);

}  // namespace Zenvora::Lumidex::Host
