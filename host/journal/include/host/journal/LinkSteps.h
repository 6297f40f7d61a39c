#pragma once

#include <host/catalogue/LinkRows.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// Symbolic links to renamed files: each gets a successor, which takes its name in one step when the files
/// have theirs. However far that came, what a link says tells it, so that all can be redone. Links that
/// others changed since stay as they are. All throw `HostError`.

/// Makes the successors, so that what stands in the way shows before any file is renamed.
void PrepareLinks(const std::vector<LinkChange>& links);
/// Points all links to the new names, or to the old ones, and waits until that is on the disk.
void PointLinks(const std::vector<LinkChange>& links, bool toNew);
/// Removes successors that are not needed.
void ClearLinks(const std::vector<LinkChange>& links);

}  // namespace Zenvora::Lumidex::Host
