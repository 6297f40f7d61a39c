#pragma once

namespace Zenvora::Lumidex {

/// How an action was started. The numbers are passed between libraries: they never change.
enum class LaunchMode : int {
  Unknown = -1,
  None = 0,     ///< Not started by a person.
  Default = 1,  ///< In the way that the action always is.
  MainMenu = 2,
  ContextMenu = 3,
  Shortcut = 4,
  Dialog = 5,
  DragNDrop = 6,
  External = 7,
  TileButton = 8,
  TileDoubleClick = 9,
  TopPanelButton = 10,
  BottomPanelButton = 11,
  SinglePanelButton = 12,
  MultiplePanelButton = 13,
  FirstScreenButton = 14,
  TreeItemLabelButton = 15,
  TreeItemDoubleClick = 16,
  CancellAddAlbum = 17,
  CommandLine = 18,
};

}  // namespace Zenvora::Lumidex
