#pragma once

#include "PhotoSource.h"

#include <QSize>

namespace Zenvora::Strandel {

/// The size, as stored, of the picture that a file made of boxes shows (HEIC, AVIF); empty when it does not
/// say. Exiv2 takes what the EXIF data say, which crops and turns make wrong.
QSize ReadHeifSize(PhotoSource& source);

}  // namespace Zenvora::Strandel
