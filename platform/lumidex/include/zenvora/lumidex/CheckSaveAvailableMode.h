#pragma once

namespace Zenvora::Lumidex {

/// What is looked at before files are saved: a set of bits, to be combined with `|`. As a result the one
/// check that failed, or `None`. The numbers are passed between libraries: they never change.
enum class CheckSaveAvailableMode : int {
  None = 0,
  DiskSpace = 1,         ///< Is there room for all of them?
  FolderPermission = 2,  ///< Can a file be made in each folder?
  FilePermission = 4,    ///< Can each file be written to?
};

constexpr CheckSaveAvailableMode operator|(CheckSaveAvailableMode left, CheckSaveAvailableMode right) {
  return static_cast<CheckSaveAvailableMode>(static_cast<int>(left) | static_cast<int>(right));
}

constexpr CheckSaveAvailableMode operator&(CheckSaveAvailableMode left, CheckSaveAvailableMode right) {
  return static_cast<CheckSaveAvailableMode>(static_cast<int>(left) & static_cast<int>(right));
}

constexpr CheckSaveAvailableMode& operator|=(CheckSaveAvailableMode& left, CheckSaveAvailableMode right) {
  return left = left | right;
}

}  // namespace Zenvora::Lumidex
