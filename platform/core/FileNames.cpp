#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>

namespace Zenvora {

namespace {

// The system would take a name with a NUL for a shorter one.
bool AreNames(const ioPath& left, const ioPath& right) {
  return left.name_fault().empty() && right.name_fault().empty();
}

}  // namespace

std::error_code MoveToFreeName(const ioPath& from, const ioPath& to) {
  return AreNames(from, to) ? MoveUnlessTaken(from, to) : std::make_error_code(std::errc::invalid_argument);
}

std::error_code AddName(const ioPath& file, const ioPath& second) {
  if (!AreNames(file, second)) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  return MakeHardLink(file, second) ? std::error_code() : LastSystemError();
}

}  // namespace Zenvora
