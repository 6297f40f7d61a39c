#include "FormatName.h"

#include <algorithm>
#include <cstdint>

namespace Zenvora::Strandel {

namespace {

bool HoldsSensorData(const Exiv2::ExifData& exif) {
  constexpr std::uint16_t kPhotometric = 0x0106;
  constexpr std::uint16_t kTiffEpStandard = 0x9216;
  constexpr std::uint16_t kDngVersion = 0xC612;
  constexpr long kColourFilterArray = 32803;
  constexpr long kLinearRaw = 34892;
  return std::any_of(exif.begin(), exif.end(), [](const Exiv2::Exifdatum& datum) {
    switch (datum.tag()) {
      case kPhotometric:
        return datum.count() == 1 && (datum.toLong() == kColourFilterArray || datum.toLong() == kLinearRaw);
      case kTiffEpStandard:
      case kDngVersion:
        return datum.groupName() == "Image";
      default:
        return false;
    }
  });
}

std::string NameOfBoxes(const std::string& mimeType) {
  return mimeType == "image/avif"          ? "AVIF"
         : mimeType == "image/jxl"         ? "JPEG XL"
         : mimeType == "image/x-canon-cr3" ? "RAW"
                                           : "HEIC";
}

}  // namespace

std::string TiffFormatName(const Exiv2::ExifData& exif) {
  return HoldsSensorData(exif) ? "RAW" : "TIFF";
}

std::string FormatName(const Exiv2::Image& image) {
  namespace Known = Exiv2::ImageType;
  switch (image.imageType()) {
    case Known::jpeg:
      return "JPEG";
    case Known::png:
      return "PNG";
    case Known::bmp:
      return "BMP";
    case Known::gif:
      return "GIF";
    case Known::webp:
      return "WebP";
    case Known::jp2:
      return "JPEG 2000";
    case Known::psd:
      return "PSD";
    case Known::bmff:
      return NameOfBoxes(image.mimeType());
    case Known::tiff:
      return image.mimeType() != "image/tiff" ? "RAW" : TiffFormatName(image.exifData());
    case Known::cr2:
    case Known::crw:
    case Known::mrw:
    case Known::orf:
    case Known::raf:
    case Known::rw2:
      return "RAW";
    default:
      return {};
  }
}

}  // namespace Zenvora::Strandel
