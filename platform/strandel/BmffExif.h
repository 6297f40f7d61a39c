#pragma once

#include "ExifFields.h"

namespace Zenvora::Strandel {

/// True when the file is of the family of HEIC, HEIF and AVIF pictures, by the brands in its first box.
bool BeginsLikeHeif(PhotoSource& source);

/// Reads the EXIF fields of such a file from its item of the type "Exif"; without one, or with a broken one,
/// there are none. Other boxes (colour profiles, XMP, the picture) are not looked into. False when the file
/// has no table of items: it breaks off before.
bool ReadHeifFields(PhotoSource& source, ExifFields& fields);

}  // namespace Zenvora::Strandel
