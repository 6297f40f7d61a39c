#include <host/catalogue/UndoFolder.h>

#include <zenvora/core/FileState.h>

#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

const std::string kEnding = ".undo";

}  // namespace

ioPath UndoFolderOf(const ioPath& catalogue) {
  return ioPath(catalogue.utf8string() + kEnding);
}

bool IsUndoFolder(const ioPath& folder) {
  const std::string path = folder.utf8string();
  if (path.size() <= kEnding.size() ||
      path.compare(path.size() - kEnding.size(), kEnding.size(), kEnding) != 0) {
    return false;
  }
  const ioPath catalogue(path.substr(0, path.size() - kEnding.size()));
  return QueryFile(catalogue).kind == FileState::Kind::File &&
         QueryFile(folder / "lock").kind == FileState::Kind::File;
}

}  // namespace Zenvora::Lumidex::Host
