#include "ExivImage.h"
#include "FormatName.h"
#include "HeifSize.h"
#include "ImageMetadata.h"
#include "PictureMarks.h"

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <exception>
#include <functional>
#include <new>
#include <utility>

namespace Zenvora::Strandel {

namespace {

/// Sees an image and its file while Exiv2 is locked, and may move data out of the image.
using TakeImage = std::function<void(Exiv2::Image&, PhotoSource&)>;

std::string WithoutBlanks(const std::string& text) {
  return QString::fromStdString(text).trimmed().toStdString();
}

void Take(const ExifFields& fields, PhotoFacts& facts) {
  facts.status = PhotoFacts::Status::Read;
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
      return "Its TIFF directory is damaged";
    default:
      return outcome == ExivOutcome::Whole ? std::string() : "It is damaged: " + cause;
  }
}

void ReadWithExiv2(PhotoSource& source, const TakeImage& take, PhotoFacts& facts) {
  ExivImage image(source);
  if (!image.IsPicture()) {
    Refuse(facts, "Its content is of no known picture format");
    return;
  }
  std::string cause;
  const ExivOutcome outcome = image.ReadMetadata(cause);
  if (image.Image().exifData().empty()) {
    const std::string missing = WhatIsMissing(image.Image(), outcome, cause);
    if (!missing.empty()) {
      Refuse(facts, image.IsCut() ? "It is too large to be read to its end" : missing);
      return;
    }
  }
  Take(image.Fields(), facts);
  take(image.Image(), source);
}

void ReadKnownFormat(PhotoSource& source, const TakeImage& take, PhotoFacts& facts) {
  try {
    ReadWithExiv2(source, take, facts);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    Refuse(facts, std::string("It is damaged: ") + error.what());
  }
}

bool SaysNothing(const PhotoFacts& facts) {
  return !facts.original.isValid() && !facts.digitised.isValid() && facts.cameraModel.isEmpty();
}

void ReadContent(PhotoSource& source, const TakeImage& take, PhotoFacts& facts) {
  if (source.Size() == 0) {
    Refuse(facts, "It is empty");
    return;
  }
  if (BeginsLikeOpaquePicture(source)) {
    Take(ExifFields(), facts);
    return;
  }
  ReadKnownFormat(source, take, facts);
  // Exiv2 takes films for pictures, and gives a picture up for a colour profile that it does not like.
  if (BeginsLikeContainer(source) && SaysNothing(facts)) {
    if (HasPictureBrand(source)) {
      facts.cause.clear();
      Take(ExifFields(), facts);
    } else {
      Refuse(facts, "Its content is of no known picture format");
    }
  }
}

/// `take` is called when there is an image.
PhotoFacts ReadPhoto(const ioPath& file, const TakeImage& take) {
  PhotoFacts facts;
  PhotoSource source;
  if (!source.Open(file, facts.cause)) {
    return facts;
  }
  try {
    ReadContent(source, take, facts);
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

QSize SizeOf(const Exiv2::Image& image, PhotoSource& source) {
  const QSize inBoxes = image.imageType() == Exiv2::ImageType::bmff ? ReadHeifSize(source) : QSize();
  return inBoxes.isEmpty() ? QSize(image.pixelWidth(), image.pixelHeight()) : inBoxes;
}

}  // namespace

PhotoFacts ReadPhotoFacts(const ioPath& file) {
  ImageMetadata::File known;
  known.modifiedNs = QueryFile(file).modifiedNs;
  Exiv2::ExifData exif;
  PhotoFacts facts = ReadPhoto(file, [&known, &exif](Exiv2::Image& image, PhotoSource& source) {
    known.format = FormatName(image);
    const QSize size = SizeOf(image, source);
    known.width = size.width();
    known.height = size.height();
    std::swap(exif, image.exifData());
  });
  if (facts.status == PhotoFacts::Status::Read) {
    facts.metadata.reset(new ImageMetadata(std::move(exif), std::move(known)));
  }
  return facts;
}

}  // namespace Zenvora::Strandel
