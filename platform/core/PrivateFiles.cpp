#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>

namespace Zenvora {

std::error_code MakePrivateFolders(const ioPath& folder) {
  const auto isThere = [&folder] { return QueryFile(folder).kind == FileState::Kind::Folder; };
  if (isThere()) {
    return {};
  }
  const ioPath parent = folder.parent_path();
  if (!parent.empty() && parent != folder) {
    if (const std::error_code error = MakePrivateFolders(parent)) {
      return error;
    }
  }
  if (!MakePrivateFolder(folder)) {
    const std::error_code error = LastSystemError();
    // Somebody else was faster.
    return isThere() ? std::error_code() : error;
  }
  return {};
}

}  // namespace Zenvora
