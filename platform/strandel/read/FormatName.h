#pragma once

#include <exiv2/exiv2.hpp>
#include <exiv2/webpimage.hpp>

#include <string>

namespace Zenvora::Strandel {

/// The format by the content, named as in the table of picture formats (docs/formats/pictures.md); empty for
/// one that is not in it.
std::string FormatName(const Exiv2::Image& image);

/// The same of a TIFF structure: raw files of most makers are such, and what is in them tells.
std::string TiffFormatName(const Exiv2::ExifData& exif);

}  // namespace Zenvora::Strandel
