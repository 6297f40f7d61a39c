#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/lumidex/DataModel.h>

#include <QString>

#include <utility>
#include <vector>

namespace Zenvora::Util {

/// Whether every item can be written in the format that its file's name says, and, in any case, the
/// translated sentence that tells of the opposite. It names the format of the first item that cannot be
/// written; a format that is not known goes for a raw one. True for no items. Looks at names only and never
/// throws; GUI thread, as all that translates.
LUMIDEXUTIL_EXPORT std::pair<bool, QString> CheckFormatsWritable(
    const std::vector<Lumidex::DataModel>& items);

/// The same, with the user being asked whether to go on when some item cannot be written. True to go on. GUI
/// thread only: blocks until the user answered.
LUMIDEXUTIL_EXPORT bool CheckFormatsWritableDialog(const std::vector<Lumidex::DataModel>& items);

}  // namespace Zenvora::Util
