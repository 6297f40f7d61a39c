#pragma once

#include <zenvora/strandel/ByteView.h>

#include <exiv2/exiv2.hpp>

namespace Zenvora::Strandel {

/// Exiv2 gives a PNG file up for one text chunk that it cannot read. This goes on where that happened: what
/// the other chunks say in EXIF and XMP comes to `image` where it has nothing yet. False when the file ends
/// before its picture begins. Needs the lock on Exiv2.
bool RescuePng(const ByteSource& bytes, Exiv2::Image& image);

}  // namespace Zenvora::Strandel
