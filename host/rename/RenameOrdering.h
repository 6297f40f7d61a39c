#pragma once

#include <host/rename/RenamePlan.h>

#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// The indices of the shots in the order in which they are numbered. Shots that the order does not tell apart
/// stay as given.
std::vector<std::size_t> OrderShots(const std::vector<RenameShot>& shots, RenameOrder order);

}  // namespace Zenvora::Lumidex::Host
