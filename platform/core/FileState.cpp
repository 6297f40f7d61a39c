#include "SystemFiles.h"

#include <zenvora/core/FileState.h>

namespace Zenvora {

FileState QueryFile(const ioPath& file) noexcept {
  // The system would take a name with a NUL for a shorter one.
  if (!file.name_fault().empty()) {
    FileState state;
    state.kind = FileState::Kind::Missing;
    state.error = std::make_error_code(std::errc::no_such_file_or_directory);
    return state;
  }
  return AskSystem(file);
}

bool IsSameFile(const ioPath& left, const ioPath& right) noexcept {
  const auto isThere = [](const FileState& state) {
    return state.kind == FileState::Kind::File || state.kind == FileState::Kind::Folder ||
           state.kind == FileState::Kind::Other;
  };
  const FileState a = QueryFile(left);
  const FileState b = QueryFile(right);
  return isThere(a) && isThere(b) && a.identity == b.identity;
}

}  // namespace Zenvora
