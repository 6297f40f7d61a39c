#pragma once

#include <zenvora/core/ioPath.h>

#include <exiv2/exiv2.hpp>

namespace Zenvora::Test {

/// The name of a file as Exiv2 takes it.
inline auto ExivPath(const ioPath& file) {
#ifdef EXV_UNICODE_PATH
  return file.wstring();
#else
  return file.utf8string();
#endif
}

}  // namespace Zenvora::Test
