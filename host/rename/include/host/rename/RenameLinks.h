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

}  // namespace Zenvora::Lumidex::Host
