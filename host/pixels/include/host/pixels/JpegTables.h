#pragma once

#include <cstdint>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// What the segments before the picture of a JPEG file say of who wrote it.
struct JpegTables {
  bool isJpeg = false;
  int width = 0;  ///< As stored; 0: not found.
  int height = 0;
  bool hasJfif = false;
  /// An editing program left a block of its own.
  bool hasEditorBlock = false;
  double quantisation = 0;  ///< The mean of the table of light; 0: not found.
  bool isStandard = false;  ///< That table is the standard's, scaled.
};

/// Reads the first bytes of a file; what is damaged counts as absent. Pure.
JpegTables ReadJpegTables(std::string_view beginning);

}  // namespace Zenvora::Lumidex::Host
