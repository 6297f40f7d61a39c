#pragma once

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// All symbolic links in folders and, where the names of folders are in `deep`, below them; links are not
/// followed, folders that cannot be read are skipped. Blocks on the disk.
std::vector<ioPath> FindLinks(const std::vector<ioPath>& flat, const std::vector<ioPath>& deep);

}  // namespace Zenvora::Lumidex::Host
