#pragma once

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/Export.h>

#include <QSize>

namespace Zenvora::Strandel {

/// The size, as stored, of the picture that a file made of boxes shows (HEIC, AVIF); empty when it does not
/// say. Exiv2 takes what the EXIF data say, which crops and turns make wrong.
ZENVORA_STRANDEL_EXPORT QSize ReadHeifSize(const ByteSource& file);

/// The largest size that such a file claims for any picture in it; empty when it claims none. Decoders tell
/// it only when they have decoded.
ZENVORA_STRANDEL_EXPORT QSize LargestHeifSize(const ByteSource& file);

}  // namespace Zenvora::Strandel
