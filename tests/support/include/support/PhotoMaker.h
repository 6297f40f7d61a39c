#pragma once

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Test {

/// One more EXIF field.
struct ExifField {
  std::string key;   ///< As Exiv2 names it, "Exif.GPSInfo.GPSLatitude".
  std::string text;  ///< "48/1 51/1 2436/100"
  std::string type;  ///< "Ascii", "Rational" and so on; empty: that of the standard.
};

/// What a made photo says of itself. Texts go into the EXIF fields as they are, right or wrong; empty ones
/// (and the orientation 0) are left out.
struct PhotoTags {
  std::string dateTimeOriginal;   ///< 0x9003, such as "2021:05:01 10:20:30".
  std::string dateTimeDigitized;  ///< 0x9004.
  std::string model;              ///< 0x0110.
  int orientation = 0;            ///< 0x0112, 1..8.
  std::string subSec;             ///< Sub-seconds of both dates (0x9291, 0x9292).
  /// Pixels, 1..65535; only JPEG files follow it, the others are tiny.
  int width = 16;
  int height = 16;
  std::vector<ExifField> more;
};

/// The bytes of a valid picture file. A JPEG is mid-grey with a white square of 8 pixels in its first corner
/// (top left before the orientation is applied).
std::string MakeJpeg(const PhotoTags& tags);
std::string MakePng(const PhotoTags& tags);
std::string MakeTiff(const PhotoTags& tags);
std::string MakeWebP(const PhotoTags& tags);

/// The same as a file; its folders are made. Return `file`. Throw `std::runtime_error` when the file cannot
/// be written.
ioPath WriteJpeg(const ioPath& file, const PhotoTags& tags = PhotoTags());
ioPath WritePng(const ioPath& file, const PhotoTags& tags = PhotoTags());
ioPath WriteTiff(const ioPath& file, const PhotoTags& tags = PhotoTags());

}  // namespace Zenvora::Test
