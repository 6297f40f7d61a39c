#include "BigTiff.h"
#include "ExivImage.h"
#include "ExivLock.h"
#include "FormatName.h"
#include "ImageMetadata.h"
#include "OtherDates.h"
#include "PictureMarks.h"

#include <zenvora/core/FileNotes.h>
#include <zenvora/core/FileState.h>
#include <zenvora/strandel/HeifSize.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <exception>
#include <new>
#include <utility>

namespace Zenvora::Strandel {

namespace {

/// What becomes of the metadata object.
struct Picture {
  std::string format;
  QSize size;
  Exiv2::ExifData exif;
};

constexpr const char* kUnknown = "Its picture format is not known";
constexpr const char* kDamagedDirectory = "Its TIFF directory is damaged";

std::string WithoutBlanks(const std::string& text) {
  return QString::fromStdString(text).trimmed().toStdString();
}

/// The file is a photo of that format that says this.
void Accept(std::string format, const ExifFields& fields, Picture& picture, PhotoFacts& facts) {
  picture.format = std::move(format);
  facts.status = PhotoFacts::Status::Read;
  facts.cause.clear();
  facts.original = ParseExifDateTime(fields.original, fields.originalSubSeconds);
  facts.digitised = ParseExifDateTime(fields.digitised, fields.digitisedSubSeconds);
  facts.cameraModel = QString::fromStdString(WithoutBlanks(fields.model));
}

void Refuse(PhotoFacts& facts, const std::string& cause) {
  facts.status = PhotoFacts::Status::NotAnImage;
  facts.cause = cause;
}

/// Why a file without any metadata is no photo; empty when it is one.
std::string WhatIsMissing(Exiv2::Image& image, ExivOutcome outcome, const std::string& cause) {
  switch (image.imageType()) {
    case Exiv2::ImageType::jpeg:
      // An EXIF block that makes no sense says nothing about the picture behind it.
      return image.pixelWidth() > 0 || outcome == ExivOutcome::Nonsense
                 ? std::string()
                 : "Its JPEG data breaks off before the picture";
    case Exiv2::ImageType::tiff:
    case Exiv2::ImageType::cr2:
    case Exiv2::ImageType::orf:
    case Exiv2::ImageType::rw2:
      return kDamagedDirectory;
    default:
      return outcome == ExivOutcome::Whole ? std::string() : "It is damaged: " + cause;
  }
}

QSize SizeOf(const Exiv2::Image& image, PhotoSource& source) {
  const QSize inBoxes = image.imageType() == Exiv2::ImageType::bmff ? ReadHeifSize(source) : QSize();
  return inBoxes.isEmpty() ? QSize(image.pixelWidth(), image.pixelHeight()) : inBoxes;
}

void ReadWithExiv2(PhotoSource& source, Picture& picture, PhotoFacts& facts) {
  ExivImage image(source);
  if (!image.IsPicture()) {
    Refuse(facts, kUnknown);
    return;
  }
  std::string cause;
  const ExivOutcome outcome = image.ReadMetadata(cause);
  Exiv2::Image& found = image.Image();
  if (found.exifData().empty()) {
    const std::string missing = WhatIsMissing(found, outcome, cause);
    if (!missing.empty()) {
      Refuse(facts, image.IsCut() ? "It is too large to be read to its end" : missing);
      return;
    }
  }
  Accept(FormatName(found), FieldsIn(found.exifData()), picture, facts);
  facts.xmp = XmpDate(found.xmpData());
  facts.iptc = IptcDate(found.iptcData());
  picture.size = SizeOf(found, source);
  std::swap(picture.exif, found.exifData());
}

void ReadBigTiffFile(PhotoSource& source, Picture& picture, PhotoFacts& facts) {
  const auto lock = LockExiv();
  picture.exif = ReadBigTiff(source);
  if (picture.exif.empty()) {
    Refuse(facts, kDamagedDirectory);
    return;
  }
  Accept(TiffFormatName(picture.exif), FieldsIn(picture.exif), picture, facts);
  const auto number = [&picture](const char* key) {
    const auto found = picture.exif.findKey(Exiv2::ExifKey(key));
    return found == picture.exif.end() || found->count() != 1 ? 0 : static_cast<int>(found->toLong());
  };
  picture.size = {number("Exif.Image.ImageWidth"), number("Exif.Image.ImageLength")};
}

void ReadKnownFormat(PhotoSource& source, Picture& picture, PhotoFacts& facts) {
  try {
    if (BeginsLikeBigTiff(source)) {
      ReadBigTiffFile(source, picture, facts);
    } else {
      ReadWithExiv2(source, picture, facts);
    }
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    Refuse(facts, std::string("It is damaged: ") + error.what());
  }
}

bool SaysNothing(const PhotoFacts& facts) {
  return !facts.original.isValid() && !facts.digitised.isValid() && facts.cameraModel.isEmpty();
}

void ReadContent(PhotoSource& source, Picture& picture, PhotoFacts& facts) {
  if (source.Size() == 0) {
    Refuse(facts, "It is empty");
    return;
  }
  if (const std::string format = OpaqueFormat(source); !format.empty()) {
    Accept(format, ExifFields(), picture, facts);
    return;
  }
  ReadKnownFormat(source, picture, facts);
  // Exiv2 takes films for pictures, and gives a picture up for a colour profile that it does not like.
  if (BeginsLikeContainer(source) && SaysNothing(facts)) {
    if (const std::string format = FormatByBrand(source); !format.empty()) {
      Accept(format, ExifFields(), picture, facts);
      picture.size = picture.size.isEmpty() ? ReadHeifSize(source) : picture.size;
    } else {
      Refuse(facts, kUnknown);
    }
  }
}

PhotoFacts ReadPhoto(const ioPath& file, Picture& picture) {
  PhotoFacts facts;
  PhotoSource source;
  if (!source.Open(file, facts.cause)) {
    return facts;
  }
  try {
    ReadContent(source, picture, facts);
  } catch (const std::bad_alloc&) {
    Refuse(facts, "Reading it takes more memory than there is");
  }
  // What could not be read may have held the date.
  const bool complete = facts.status == PhotoFacts::Status::Read && facts.original.isValid();
  if (!complete && !source.Failure().empty()) {
    facts.status = PhotoFacts::Status::CannotOpen;
    facts.cause = source.Failure();
  }
  return facts;
}

}  // namespace

PhotoFacts ReadPhotoFacts(const ioPath& file) {
  const FileNotes notes(file);
  ImageMetadata::File known;
  known.modifiedNs = QueryFile(file).modifiedNs;
  Picture picture;
  PhotoFacts facts = ReadPhoto(file, picture);
  if (facts.status == PhotoFacts::Status::Read) {
    known.format = std::move(picture.format);
    known.width = picture.size.width();
    known.height = picture.size.height();
    facts.metadata.reset(new ImageMetadata(std::move(picture.exif), std::move(known)));
  }
  return facts;
}

}  // namespace Zenvora::Strandel
