#pragma once

#include "ImageLayout.h"
#include "MetadataPlan.h"

#include <string>
#include <vector>

namespace Zenvora::Strandel {

/// What EXIF 2.3 wants every new block in a picture of that format to say besides what is to be said:
/// resolution, colour space and versions; in JPEG files also how the pixels are coded, and how many there
/// are. Empty for TIFF, which is no block of its own.
std::vector<ExifChange> FieldsOfNewExif(PictureFormat format, const std::string& bytes,
                                        const ImageLayout& layout);

}  // namespace Zenvora::Strandel
