#pragma once

#include <zenvora/core/ioPath.h>

#include <QImage>

namespace Zenvora::Lumidex::Host {

/// A picture of the file no larger than `longerSide` pixels on its longer side, upright as the EXIF
/// orientation says. The cheapest source that is large enough serves: an embedded preview, else the picture
/// decoded at reduced size. Null when there is none. Never throws; huge pictures are refused rather than
/// decoded whole.
QImage LoadThumbnail(const ioPath& file, int longerSide);

}  // namespace Zenvora::Lumidex::Host
