#pragma once

#include <zenvora/strandel/PhotoSource.h>

#include <exiv2/exiv2.hpp>

namespace Zenvora::Strandel {

/// The fields of the first directory of a TIFF file whose places take 64 bits, and of its EXIF and GPS
/// directories. Exiv2 does not read such files. Empty when the directory is damaged; of values without end or
/// beyond the file nothing is there. Reads a MiB at most. Needs the lock on Exiv2.
Exiv2::ExifData ReadBigTiff(PhotoSource& source);

}  // namespace Zenvora::Strandel
