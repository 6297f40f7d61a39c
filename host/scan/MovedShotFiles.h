#pragma once

#include <host/catalogue/CatalogueMoves.h>

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// What lies beside photos that others moved and must have gone along with them: sidecars, thumbnails and the
/// like of the same shot that are not where they were. What stayed behind, or was left a copy there, is not
/// among it; nor is what got another name than its photo. Where photos exchanged their names, so did these.
/// Each present name once. Blocks on the disk.
std::vector<MovedName> FindMovedShotFiles(const std::vector<MovedName>& photos);

}  // namespace Zenvora::Lumidex::Host
