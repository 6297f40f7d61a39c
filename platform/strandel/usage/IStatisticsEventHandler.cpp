#include <zenvora/strandel/IStatisticsEventHandler.h>

namespace Zenvora::Strandel {

using Handler = IStatisticsEventHandler;

const std::string Handler::KEY_ITEM_TYPE = "item type";
const std::string Handler::KEY_LAUNCH_MODE = "launch mode";
const std::string Handler::KEY_INPUT_ITEMS_COUNT = "items in";
const std::string Handler::KEY_OUTPUT_ITEMS_COUNT = "items out";
const std::string Handler::KEY_RENAME_TYPE = "rename type";

const std::string Handler::VAL_ITEM_TYPE_PHOTO = "photo";
const std::string Handler::VAL_ITEM_TYPE_ALBUM = "album";
const std::string Handler::VAL_ITEM_TYPE_PLACE = "place";
const std::string Handler::VAL_ITEM_TYPE_TAG = "tag";
const std::string Handler::VAL_ITEM_TYPE_PERSON = "person";
const std::string Handler::VAL_LAUNCH_MODE_BOTTOM_PANEL_BUTTON = "bottom panel button";
const std::string Handler::VAL_LAUNCH_MODE_CANCELL_ADD_ALBUM = "cancel of adding an album";
const std::string Handler::VAL_LAUNCH_MODE_COMMAND_LINE = "command line";
const std::string Handler::VAL_LAUNCH_MODE_CONTEXT_MENU = "context menu";
const std::string Handler::VAL_LAUNCH_MODE_DIALOG = "dialog";
const std::string Handler::VAL_LAUNCH_MODE_DRAGNDROP = "drag and drop";
const std::string Handler::VAL_LAUNCH_MODE_EXTERNAL = "external";
const std::string Handler::VAL_LAUNCH_MODE_FIRST_SCREEN_BUTTON = "first screen button";
const std::string Handler::VAL_LAUNCH_MODE_MAIN_MENU = "main menu";
const std::string Handler::VAL_LAUNCH_MODE_MULTIPLE_PANEL_BUTTON = "multiple panel button";
const std::string Handler::VAL_LAUNCH_MODE_SHORTCUT = "shortcut";
const std::string Handler::VAL_LAUNCH_MODE_SINGLE_PANEL_BUTTON = "single panel button";
const std::string Handler::VAL_LAUNCH_MODE_TILE_BUTTON = "tile button";
const std::string Handler::VAL_LAUNCH_MODE_TILE_DOUBLE_CLICK = "tile double click";
const std::string Handler::VAL_LAUNCH_MODE_TOP_PANEL_BUTTON = "top panel button";
const std::string Handler::VAL_LAUNCH_MODE_TREE_ITEM_DOUBLE_CLICK = "tree item double click";
const std::string Handler::VAL_LAUNCH_MODE_TREE_ITEM_LABEL_BUTTON = "tree item label button";
const std::string Handler::VAL_RENAME_TYPE_TEXT = "text";
const std::string Handler::VAL_RENAME_TYPE_NUMBER = "number";
const std::string Handler::VAL_RENAME_TYPE_DATE = "date";
const std::string Handler::VAL_RENAME_TYPE_DATETIME = "date and time";

IStatisticsEventHandler::~IStatisticsEventHandler() = default;

}  // namespace Zenvora::Strandel
