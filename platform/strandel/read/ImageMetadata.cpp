#include "ImageMetadata.h"

#include "ExifText.h"

#include <zenvora/strandel/IFormatCodecVideo.h>

#include <QDateTime>

#include <chrono>
#include <utility>

namespace Zenvora::Proc {

// Here, so that their type information lies in one library.
IImageMetadata::~IImageMetadata() = default;
IFormatCodecVideo::~IFormatCodecVideo() = default;

const std::string IImageMetadata::EXIF = "Exif";
const std::string IImageMetadata::BLOCK_IMAGE = "Image";
const std::string IImageMetadata::BLOCK_PHOTO = "Photo";
const std::string IImageMetadata::BLOCK_GPS = "GPSInfo";
const std::string IImageMetadata::TAG_LATITUDE = "GPSLatitude";
const std::string IImageMetadata::TAG_LONGITUDE = "GPSLongitude";
const std::string IImageMetadata::FILE_INFO = "File";
const std::string IImageMetadata::BLOCK_PICTURE = "Picture";
const std::string IImageMetadata::TAG_FORMAT = "Format";
const std::string IImageMetadata::TAG_WIDTH = "Width";
const std::string IImageMetadata::TAG_HEIGHT = "Height";
const std::string IImageMetadata::BLOCK_STATE = "State";
const std::string IImageMetadata::TAG_MODIFIED = "Modified";
const std::string IImageMetadata::TEXT_VALUE = "Text";

}  // namespace Zenvora::Proc

namespace Zenvora::Strandel {

namespace {

using Proc::IImageMetadata;

Core::Property WithText(std::string text) {
  Core::Property property;
  if (!text.empty()) {
    property.Set(IImageMetadata::TEXT_VALUE, Core::Property(std::move(text)));
  }
  return property;
}

std::string NumberText(int number) {
  return number > 0 ? std::to_string(number) : std::string();
}

std::string MomentText(std::int64_t ns) {
  const auto ms = std::chrono::floor<std::chrono::milliseconds>(std::chrono::nanoseconds(ns));
  return QDateTime::fromMSecsSinceEpoch(ms.count(), Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
}

}  // namespace

ImageMetadata::ImageMetadata(Exiv2::ExifData exif, File file)
    : exif_(std::move(exif)), file_(std::move(file)) {}

ImageMetadata::~ImageMetadata() = default;

unsigned int ImageMetadata::AddRef() const {
  return references_.AddRefImpl();
}

unsigned int ImageMetadata::GetRefCount() const {
  return references_.GetRefCountImpl();
}

unsigned int ImageMetadata::Release() const {
  const unsigned int left = references_.ReleaseImpl();
  if (left == 0) {
    delete this;
  }
  return left;
}

Core::Property ImageMetadata::GetProperty(const std::string& family, const std::string& block,
                                          const std::string& tag) const {
  if (family == EXIF) {
    return ExifProperty(block, tag);
  }
  return family == FILE_INFO ? FileProperty(block, tag) : Core::Property();
}

Core::Property ImageMetadata::ExifProperty(const std::string& block, const std::string& tag) const {
  std::uint16_t number = 0;
  Exiv2::TypeId meant = Exiv2::invalidTypeId;
  try {
    const Exiv2::ExifKey key("Exif." + block + '.' + tag);
    number = key.tag();
    meant = key.defaultTypeId();
  } catch (const Exiv2::AnyError&) {
    return {};
  }
  // One maker's raw files have a name of their own for the first directory.
  const std::string other = block == BLOCK_IMAGE ? "PanasonicRaw" : block;
  const Exiv2::Exifdatum* found = nullptr;
  for (const Exiv2::Exifdatum& datum : exif_) {
    if (datum.tag() == number) {
      const std::string group = datum.groupName();
      if (group == block) {
        found = &datum;
        break;
      }
      if (found == nullptr && group == other) {
        found = &datum;
      }
    }
  }
  return found == nullptr ? Core::Property() : WithText(ExifText(*found, meant));
}

Core::Property ImageMetadata::FileProperty(const std::string& block, const std::string& tag) const {
  if (block == BLOCK_PICTURE) {
    return WithText(tag == TAG_FORMAT   ? file_.format
                    : tag == TAG_WIDTH  ? NumberText(file_.width)
                    : tag == TAG_HEIGHT ? NumberText(file_.height)
                                        : std::string());
  }
  return block == BLOCK_STATE && tag == TAG_MODIFIED ? WithText(MomentText(file_.modifiedNs))
                                                     : Core::Property();
}

}  // namespace Zenvora::Strandel
