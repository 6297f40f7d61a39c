#pragma once

#include <zenvora/strandel/Export.h>

#include <QByteArray>
#include <QSize>

#include <cstddef>

namespace Zenvora::Strandel {

/// What the beginning of a JPEG file says of its picture.
struct JpegHead {
  QSize size;  ///< Pixels as stored; empty when the frame's header is not within the beginning.
  /// The thumbnail of the EXIF block, itself JPEG; empty when there is none.
  QByteArray thumbnail;
  /// EXIF Orientation (0x0112): 1..8 when it is right, other numbers say nothing.
  int orientation = 1;
};

/// Enough of a file for all that the EXIF block can hold and the headers around it.
constexpr std::size_t kJpegHead = std::size_t{128} * 1024;

/// Looks at the first bytes of a file alone: a hundred times faster than reading all metadata, and in any
/// number of threads at once. What is damaged or out of bounds counts as absent. Pure; never throws for bad
/// content.
ZENVORA_STRANDEL_EXPORT JpegHead ReadJpegHead(const QByteArray& beginning);

}  // namespace Zenvora::Strandel
