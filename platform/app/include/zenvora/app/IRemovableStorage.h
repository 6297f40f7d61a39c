#pragma once

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::App {

/// Which folders go away with a thing that people pull out: a stick, a card, a camera, an external disk. May
/// be asked on any thread; blocks on the system; never fails: what is unknown is not removable.
class IRemovableStorage {
 public:
  virtual ~IRemovableStorage() = default;

  /// Those of the folders that lie on such storage, in the given order and spelling.
  virtual std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const = 0;
};

}  // namespace Zenvora::App
