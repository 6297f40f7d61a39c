#pragma once

#include <host/rename/RenamePlan.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Which of the links lead to files that are renamed, and what they are to say then: what they say now with
/// the new name at its end, so that a relative one stays relative. A link to a link stays. Blocks on the
/// disk.
std::vector<RenameLink> PlanLinks(const std::vector<ioPath>& links, const std::vector<RenameMove>& renames);

/// Marks the shots that have a link of their name beside them, such as settings that lie elsewhere: links
/// keep their names, so that the two would be torn apart. A link that leads to the shot itself does no harm.
void MarkTornLinks(const std::vector<ioPath>& links, std::vector<RenameShot>& shots);

}  // namespace Zenvora::Lumidex::Host
