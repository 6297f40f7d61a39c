#pragma once

#include "ExifFields.h"

namespace Zenvora::Strandel {

/// True for the first bytes (at least 3) of a JPEG stream.
bool BeginsLikeJpeg(const unsigned char* head);

/// Reads the EXIF fields of the JPEG stream that fills `block`, going from segment to segment up to its EXIF
/// block or its picture, whichever comes first; the picture itself is not read. A broken EXIF block is passed
/// over. False when neither comes: the stream breaks off before.
bool ReadJpegFields(PhotoSource& source, const Stretch& block, ExifFields& fields);

}  // namespace Zenvora::Strandel
