#pragma once

#include <zenvora/app/IRemovableStorage.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/tavolin/Export.h>

#include <QString>

#include <memory>
#include <vector>

namespace Zenvora::Tavolin {

/// Whether the folder lies on something that people pull out: a stick, a card, a camera or phone, an external
/// disk. Shares of the network and disk images are not, nor is whatever the system itself runs from. Unknown
/// is not removable. A folder that does not exist lies where its nearest one does that exists. Any thread;
/// blocks on the system.
ZENVORA_TAVOLIN_EXPORT bool IsRemovable(const QString& folder);

/// Those of the folders that do, in their order and spelling; asks the system for its volumes once.
ZENVORA_TAVOLIN_EXPORT std::vector<ioPath> GetRemovable(const std::vector<ioPath>& folders);

/// What the system knows of its storage (docs/decisions/checks.md).
ZENVORA_TAVOLIN_EXPORT std::shared_ptr<App::IRemovableStorage> MakeSystemRemovableStorage();

}  // namespace Zenvora::Tavolin
