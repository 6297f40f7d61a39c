#include "BmffExif.h"
#include "ExivImage.h"
#include "JpegExif.h"

#include <zenvora/strandel/PhotoFacts.h>

#include <cstring>
#include <new>

namespace Zenvora::Strandel {

namespace {

constexpr std::size_t kHeadSize = 16;

/// Pictures that are told by their first bytes and whose metadata is not read.
bool BeginsLikeOpaquePicture(const unsigned char* head) {
  struct Mark {
    const char* bytes;
    std::size_t length;
  };
  static constexpr Mark kMarks[] = {
      {"FOVb", 4},             // Sigma X3F
      {"IIII", 4},             // Phase One, older
      {"MMMM", 4},             //
      {"II+\0\x08\0\0\0", 8},  // BigTIFF
      {"MM\0+\0\x08\0\0", 8},  //
      {"\xFF\x0A", 2},         // JPEG XL, bare
  };
  for (const Mark& mark : kMarks) {
    if (std::memcmp(head, mark.bytes, mark.length) == 0) {
      return true;
    }
  }
  return false;
}

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

void ReadTiff(PhotoSource& source, PhotoFacts& facts) {
  ExifFields fields;
  Stretch preview;
  if (!ReadExifFields(source, {0, source.Size()}, fields, preview)) {
    Refuse(facts, "Its TIFF directory is damaged");
    return;
  }
  if (preview.length > 0 && fields.original.empty()) {
    ReadJpegFields(source, preview, fields);
  }
  Take(fields, facts);
}

void ReadJpeg(PhotoSource& source, PhotoFacts& facts) {
  ExifFields fields;
  if (ReadJpegFields(source, {0, source.Size()}, fields)) {
    Take(fields, facts);
  } else {
    Refuse(facts, "Its JPEG data breaks off before the picture");
  }
}

void ReadHeif(PhotoSource& source, PhotoFacts& facts) {
  ExifFields fields;
  if (ReadHeifFields(source, fields)) {
    Take(fields, facts);
  } else {
    Refuse(facts, "Its data breaks off before the picture");
  }
}

void ReadOther(PhotoSource& source, PhotoFacts& facts) {
  ExifFields fields;
  std::string cause;
  switch (ReadExivImage(source, fields, cause)) {
    case ExivResult::Read:
      Take(fields, facts);
      return;
    case ExivResult::Damaged:
      Refuse(facts, "It is damaged: " + cause);
      return;
    case ExivResult::UnknownFormat:
      Refuse(facts, "Its content is of no known picture format");
      return;
  }
}

void ReadContent(PhotoSource& source, PhotoFacts& facts) {
  unsigned char head[kHeadSize] = {};
  if (source.Size() == 0) {
    Refuse(facts, "It is empty");
    return;
  }
  source.Read(0, head, sizeof head);
  if (BeginsLikeJpeg(head)) {
    ReadJpeg(source, facts);
  } else if (BeginsLikeTiff(head)) {
    ReadTiff(source, facts);
  } else if (source.Size() > sizeof head && BeginsLikeOpaquePicture(head)) {
    Take(ExifFields(), facts);
  } else if (BeginsLikeHeif(source)) {
    ReadHeif(source, facts);
  } else {
    ReadOther(source, facts);
  }
}

}  // namespace

PhotoFacts ReadPhotoFacts(const ioPath& file) {
  PhotoFacts facts;
  PhotoSource source;
  if (!source.Open(file, facts.cause)) {
    return facts;
  }
  try {
    ReadContent(source, facts);
  } catch (const std::bad_alloc&) {
    Refuse(facts, "Reading it takes more memory than there is");
  }
  if (facts.status != PhotoFacts::Status::Read && !source.Failure().empty()) {
    facts.status = PhotoFacts::Status::CannotOpen;
    facts.cause = source.Failure();
  }
  return facts;
}

}  // namespace Zenvora::Strandel
