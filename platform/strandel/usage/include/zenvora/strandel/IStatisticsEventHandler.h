#pragma once

#include <zenvora/usage/Export.h>

#include <map>
#include <string>

namespace Zenvora::Strandel {

/// Takes the events of usage statistics: what was done, never with what. Its constants are the only words in
/// which libraries and plug-ins tell it; all of them differ.
///
/// They are there as soon as the library is loaded, and never change. What `HandleEvent` may be called on,
/// and what it blocks on, is up to the implementation.
class ZENVORA_USAGE_EXPORT IStatisticsEventHandler {
 public:
  using Parameters = std::map<std::string, std::string>;

  static const std::string KEY_ITEM_TYPE;
  static const std::string KEY_LAUNCH_MODE;
  static const std::string KEY_INPUT_ITEMS_COUNT;
  static const std::string KEY_OUTPUT_ITEMS_COUNT;
  static const std::string KEY_RENAME_TYPE;

  static const std::string VAL_ITEM_TYPE_PHOTO;
  static const std::string VAL_ITEM_TYPE_ALBUM;
  static const std::string VAL_ITEM_TYPE_PLACE;
  static const std::string VAL_ITEM_TYPE_TAG;
  static const std::string VAL_ITEM_TYPE_PERSON;
  static const std::string VAL_LAUNCH_MODE_BOTTOM_PANEL_BUTTON;
  static const std::string VAL_LAUNCH_MODE_CANCELL_ADD_ALBUM;
  static const std::string VAL_LAUNCH_MODE_COMMAND_LINE;
  static const std::string VAL_LAUNCH_MODE_CONTEXT_MENU;
  static const std::string VAL_LAUNCH_MODE_DIALOG;
  static const std::string VAL_LAUNCH_MODE_DRAGNDROP;
  static const std::string VAL_LAUNCH_MODE_EXTERNAL;
  static const std::string VAL_LAUNCH_MODE_FIRST_SCREEN_BUTTON;
  static const std::string VAL_LAUNCH_MODE_MAIN_MENU;
  static const std::string VAL_LAUNCH_MODE_MULTIPLE_PANEL_BUTTON;
  static const std::string VAL_LAUNCH_MODE_SHORTCUT;
  static const std::string VAL_LAUNCH_MODE_SINGLE_PANEL_BUTTON;
  static const std::string VAL_LAUNCH_MODE_TILE_BUTTON;
  static const std::string VAL_LAUNCH_MODE_TILE_DOUBLE_CLICK;
  static const std::string VAL_LAUNCH_MODE_TOP_PANEL_BUTTON;
  static const std::string VAL_LAUNCH_MODE_TREE_ITEM_DOUBLE_CLICK;
  static const std::string VAL_LAUNCH_MODE_TREE_ITEM_LABEL_BUTTON;
  static const std::string VAL_RENAME_TYPE_TEXT;
  static const std::string VAL_RENAME_TYPE_NUMBER;
  static const std::string VAL_RENAME_TYPE_DATE;
  static const std::string VAL_RENAME_TYPE_DATETIME;

  virtual ~IStatisticsEventHandler();

  /// `event`: a word for what was done, such as "rename". Neither it nor the parameters may hold what says
  /// who or what it was done with: no names, paths or texts of the user. Never throws.
  virtual void HandleEvent(const std::string& event, Parameters&& parameters) = 0;
};

}  // namespace Zenvora::Strandel
