#pragma once

#include <zenvora/app/IDiskSpace.h>
#include <zenvora/app/IFolderAccess.h>
#include <zenvora/qtutility/Export.h>

#include <memory>

namespace Zenvora::Util {

/// The room on the system's volumes.
ZENVORA_QTUTILITY_EXPORT std::shared_ptr<App::IDiskSpace> MakeSystemDiskSpace();

/// What the system lets the user of this process do.
ZENVORA_QTUTILITY_EXPORT std::shared_ptr<App::IFolderAccess> MakeSystemFolderAccess();

}  // namespace Zenvora::Util
