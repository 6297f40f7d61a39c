#include "ExivImage.h"

#include "PhotoIo.h"

#include <glog/logging.h>

#include <mutex>
#include <utility>

namespace Zenvora::Strandel {

namespace {

void LogQuietly(int level, const char* text) {
  VLOG(2) << "Exiv2 level " << level << ": " << text;
}

/// Every reader of this library takes it; guards Exiv2's XMP tables.
std::mutex& XmpMutex() {
  static std::mutex mutex;
  return mutex;
}

void SetUpOnce() {
  static const bool done = [] {
    Exiv2::LogMsg::setHandler(LogQuietly);
    Exiv2::XmpParser::initialize();
    // CR3 and JPEG XL are off by default.
    Exiv2::enableBMFF(true);
    return true;
  }();
  static_cast<void>(done);
}

std::string Text(const Exiv2::ExifData& exif, const char* key) {
  const auto found = exif.findKey(Exiv2::ExifKey(key));
  return found == exif.end() ? std::string() : found->toString();
}

std::string FirstText(const Exiv2::ExifData& exif, const char* key, const char* otherKey) {
  const std::string text = Text(exif, key);
  return text.empty() ? Text(exif, otherKey) : text;
}

ExifFields FieldsOf(const Exiv2::ExifData& exif) {
  ExifFields fields;
  fields.model = Text(exif, "Exif.Image.Model");
  fields.original = FirstText(exif, "Exif.Photo.DateTimeOriginal", "Exif.Image.DateTimeOriginal");
  fields.originalSubSeconds = Text(exif, "Exif.Photo.SubSecTimeOriginal");
  fields.digitised = Text(exif, "Exif.Photo.DateTimeDigitized");
  fields.digitisedSubSeconds = Text(exif, "Exif.Photo.SubSecTimeDigitized");
  return fields;
}

bool HoldsPicture(int type) {
  return type != Exiv2::ImageType::xmp && type != Exiv2::ImageType::exv;
}

}  // namespace

ExivResult ReadExivImage(PhotoSource& source, ExifFields& fields, std::string& cause) {
  // Outlives the try block: metadata read before the damage still serves.
  decltype(Exiv2::ImageFactory::open(nullptr, 0)) image;
  const std::lock_guard<std::mutex> lock(XmpMutex());
  SetUpOnce();
  try {
    // Exiv2 0.27 takes nothing else.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    image = Exiv2::ImageFactory::open(Exiv2::BasicIo::AutoPtr(new PhotoIo(source)));
#pragma GCC diagnostic pop
    if (image.get() == nullptr || !HoldsPicture(image->imageType())) {
      return ExivResult::UnknownFormat;
    }
    image->readMetadata();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    cause = error.what();
    if (image.get() == nullptr || image->exifData().empty()) {
      return ExivResult::Damaged;
    }
  }
  try {
    fields = FieldsOf(image->exifData());
  } catch (const Exiv2::AnyError& error) {
    cause = error.what();
    return ExivResult::Damaged;
  }
  return ExivResult::Read;
}

}  // namespace Zenvora::Strandel
