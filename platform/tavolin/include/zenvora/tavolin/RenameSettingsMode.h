#pragma once

namespace Zenvora::Tavolin {

/// What the names that a batch rename gives are chiefly made of. The numbers are stored: they never change.
enum class RenameSettingsMode : int {
  Text = 0,
  Number = 1,
  Date = 2,
  DateTime = 3,
};

}  // namespace Zenvora::Tavolin
