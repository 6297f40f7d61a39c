#pragma once

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// All symbolic links in folders and, where the names of folders are in `deep`, below them; links are not
/// followed, folders that cannot be read are skipped. Blocks on the disk.
std::vector<ioPath> FindLinks(const std::vector<ioPath>& flat, const std::vector<ioPath>& deep);

/// Where a link's text has its last name; npos: it ends with no name of a file. Pure.
std::size_t LastNameOf(const std::string& text);

/// The file or link that a link with this text names, its folder spelled in the one true way.
std::optional<ioPath> TargetOfLink(const ioPath& link, const std::string& text);

}  // namespace Zenvora::Lumidex::Host
