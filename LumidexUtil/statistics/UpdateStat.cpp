#include <LumidexUtil/UpdateStat.h>

#include <zenvora/strandel/IStatisticsEventHandler.h>

#include <algorithm>
#include <array>
#include <utility>

namespace Zenvora::Lumidex {

namespace {

using Handler = Strandel::IStatisticsEventHandler;
using Parameters = std::map<std::string, std::string>;

/// The words lie in another library: pointers to them are found when a table is first used.
using Entry = std::pair<int, const std::string*>;

template <class Table, class Enum>
void AddFrom(const Table& table, Enum wanted, const std::string& key, Parameters& parameters) {
  const auto entry = std::find_if(table.begin(), table.end(), [wanted](const Entry& candidate) {
    return candidate.first == static_cast<int>(wanted);
  });
  if (entry != table.end()) {
    parameters.emplace(key, *entry->second);
  }
}

bool SaysNothing(LaunchMode mode) {
  return mode == LaunchMode::Unknown || mode == LaunchMode::None || mode == LaunchMode::Default;
}

/// A moved-from map may hold anything; the caller's is to be empty.
Parameters Taken(Parameters& parameters) {
  return std::exchange(parameters, {});
}

}  // namespace

Parameters UpdateStat(ItemType type, Parameters&& parameters) {
  static const std::array<Entry, 5> TABLE = {{
      {0, &Handler::VAL_ITEM_TYPE_PHOTO},
      {2, &Handler::VAL_ITEM_TYPE_ALBUM},
      {3, &Handler::VAL_ITEM_TYPE_PLACE},
      {1, &Handler::VAL_ITEM_TYPE_TAG},
      {7, &Handler::VAL_ITEM_TYPE_PERSON},
  }};
  AddFrom(TABLE, type, Handler::KEY_ITEM_TYPE, parameters);
  return Taken(parameters);
}

Parameters UpdateStat(LaunchMode mode, Parameters&& parameters) {
  static const std::array<Entry, 17> TABLE = {{
      {11, &Handler::VAL_LAUNCH_MODE_BOTTOM_PANEL_BUTTON},
      {17, &Handler::VAL_LAUNCH_MODE_CANCELL_ADD_ALBUM},
      {18, &Handler::VAL_LAUNCH_MODE_COMMAND_LINE},
      {3, &Handler::VAL_LAUNCH_MODE_CONTEXT_MENU},
      {5, &Handler::VAL_LAUNCH_MODE_DIALOG},
      {6, &Handler::VAL_LAUNCH_MODE_DRAGNDROP},
      {7, &Handler::VAL_LAUNCH_MODE_EXTERNAL},
      {14, &Handler::VAL_LAUNCH_MODE_FIRST_SCREEN_BUTTON},
      {2, &Handler::VAL_LAUNCH_MODE_MAIN_MENU},
      {13, &Handler::VAL_LAUNCH_MODE_MULTIPLE_PANEL_BUTTON},
      {4, &Handler::VAL_LAUNCH_MODE_SHORTCUT},
      {12, &Handler::VAL_LAUNCH_MODE_SINGLE_PANEL_BUTTON},
      {8, &Handler::VAL_LAUNCH_MODE_TILE_BUTTON},
      {9, &Handler::VAL_LAUNCH_MODE_TILE_DOUBLE_CLICK},
      {10, &Handler::VAL_LAUNCH_MODE_TOP_PANEL_BUTTON},
      {16, &Handler::VAL_LAUNCH_MODE_TREE_ITEM_DOUBLE_CLICK},
      {15, &Handler::VAL_LAUNCH_MODE_TREE_ITEM_LABEL_BUTTON},
  }};
  if (!SaysNothing(mode)) {
    AddFrom(TABLE, mode, Handler::KEY_LAUNCH_MODE, parameters);
  }
  return Taken(parameters);
}

Parameters UpdateStat(LaunchMode mode, std::size_t inputCount, Parameters&& parameters) {
  parameters.emplace(Handler::KEY_INPUT_ITEMS_COUNT, std::to_string(inputCount));
  return UpdateStat(mode, std::move(parameters));
}

Parameters UpdateStat(LaunchMode mode, std::size_t inputCount, std::size_t outputCount,
                      Parameters&& parameters) {
  parameters.emplace(Handler::KEY_OUTPUT_ITEMS_COUNT, std::to_string(outputCount));
  return UpdateStat(mode, inputCount, std::move(parameters));
}

Parameters UpdateStat(Tavolin::RenameSettingsMode mode, Parameters&& parameters) {
  static const std::array<Entry, 4> TABLE = {{
      {0, &Handler::VAL_RENAME_TYPE_TEXT},
      {1, &Handler::VAL_RENAME_TYPE_NUMBER},
      {2, &Handler::VAL_RENAME_TYPE_DATE},
      {3, &Handler::VAL_RENAME_TYPE_DATETIME},
  }};
  AddFrom(TABLE, mode, Handler::KEY_RENAME_TYPE, parameters);
  return Taken(parameters);
}

}  // namespace Zenvora::Lumidex
