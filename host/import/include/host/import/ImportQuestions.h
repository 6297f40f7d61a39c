#pragma once

#include <host/import/ImportFacts.h>

namespace Zenvora::Lumidex::Host {

// Each question goes through the library's checks to the services in force (`App::IAlerts`,
// `App::IFolderDialog`) and is put once. Main thread only: blocks on the disk and until the user answered.

/// Which sources can be read; when some cannot, the user is asked whether to go on with the others
/// (`CheckFilesReadableDialog`). False: not to go on.
bool AskReadable(ImportFacts& facts, ImportAnswers& answers);

/// Which of the fresh sources are copied, and where to (`CheckFilesToCopyBeforeAddDialog`). Nothing is made,
/// written or remembered: carrying out the plan does that. False: there is no folder to look at, since
/// nothing is to be copied.
bool AskCopies(const ImportFacts& facts, ImportAnswers& answers);

}  // namespace Zenvora::Lumidex::Host
