#pragma once

#include <host/rename/RenamePlan.h>

#include <functional>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A file that gets another name, with the keys of both: paths that a file system may take for one have
/// equal keys. Owns nothing.
struct KeyedMove {
  const RenameMove* move;
  std::string_view fromKey;
  std::string_view toKey;
};

/// Puts the moves into an order in which each one's target is free when its turn comes. What goes in a circle
/// goes through `temporary(move)`, which must give a free name, a new one with each call. No two moves may
/// have one target key or one source, and no target may be a name of something that stays. Pure, in O(n log
/// n); moves that wait for nothing keep their order.
std::vector<RenameMove> SequenceMoves(const std::vector<KeyedMove>& moves,
                                      const std::function<ioPath(const RenameMove&)>& temporary);

}  // namespace Zenvora::Lumidex::Host
