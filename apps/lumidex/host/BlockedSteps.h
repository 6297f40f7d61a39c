#pragma once

#include "CatalogueDatabase.h"

#include <host/UndoJournal.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// Which older steps that stand cannot be taken back, or not whole, while `step` stands as it is: what they
/// left is not there any more. The latest first.
std::vector<BlockedStep> StepsBlockedBy(const CatalogueDatabase& database, qlonglong step);

/// The same for a step to come that changes `files` for good.
std::vector<BlockedStep> StepsBlockedBy(const CatalogueDatabase& database, const std::vector<ioPath>& files);

}  // namespace Zenvora::Lumidex::Host
