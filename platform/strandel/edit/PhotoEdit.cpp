#include "EditRefusal.h"
#include "ExivLock.h"
#include "ImageLayout.h"
#include "MetadataPlan.h"
#include "NewExif.h"
#include "OtherDates.h"
#include "PlanCheck.h"
#include "PngRescue.h"
#include "StagingFile.h"
#include "TextsInPlace.h"
#include "TiffEdit.h"

#include <zenvora/core/FileNotes.h>
#include <zenvora/core/FileState.h>
#include <zenvora/strandel/EditRules.h>
#include <zenvora/strandel/PhotoEdit.h>
#include <zenvora/strandel/PhotoFacts.h>
#include <zenvora/strandel/PhotoSource.h>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <memory>
#include <new>
#include <string_view>

namespace Zenvora::Strandel {

PhotoEditError::~PhotoEditError() noexcept = default;

namespace {

[[noreturn]] void Throw(const ioPath& photo, const std::string& cause) {
  BOOST_THROW_EXCEPTION(PhotoEditError()
                        << TagFilename(photo.utf8string())
                        << TagDescription("Cannot edit " + photo.utf8string() + ": " + cause));
}

void Open(PhotoSource& source, const ioPath& photo) {
  std::string cause;
  if (!source.Open(photo, cause)) {
    throw EditRefusal(cause);
  }
}

std::optional<PictureFormat> AskFormat(PhotoSource& source, std::string& cause) {
  std::string head(kFormatHead, '\0');
  head.resize(source.Read(0, head.data(), head.size()));
  if (!source.Failure().empty()) {
    throw EditRefusal(source.Failure());
  }
  if (head.empty()) {
    throw EditRefusal("it is empty");
  }
  return FormatOf(head, cause);
}

bool IsSameState(const FileState& a, const FileState& b) {
  return a.kind == b.kind && a.size == b.size && a.modifiedNs == b.modifiedNs && a.identity == b.identity;
}

/// A photo in memory.
struct Content {
  PictureFormat format = PictureFormat::Jpeg;
  std::string bytes;
  std::int64_t modifiedNs = 0;
};

/// Exiv2 counts in 32 bits on some systems, and so does TIFF.
constexpr std::uint64_t kMostBytes = (std::uint64_t{1} << 31U) - 1;
constexpr char kTooLarge[] = "it is larger than 2 GiB";

Content ReadWhole(const ioPath& photo) {
  const FileState before = QueryFile(photo);
  PhotoSource source;
  Open(source, photo);
  std::string cause;
  const auto format = AskFormat(source, cause);
  if (!format) {
    throw EditRefusal(cause);
  }
  if (source.Size() > kMostBytes) {
    throw EditRefusal(kTooLarge);
  }
  Content content;
  content.format = *format;
  content.modifiedNs = before.modifiedNs;
  content.bytes.resize(static_cast<std::size_t>(source.Size()));
  const bool whole = source.ReadAll(0, content.bytes.data(), content.bytes.size());
  if (!source.Failure().empty()) {
    throw EditRefusal(source.Failure());
  }
  if (!whole || !IsSameState(before, QueryFile(photo))) {
    throw EditRefusal("it was changed while it was read");
  }
  return content;
}

using ExivPicture = std::unique_ptr<Exiv2::Image>;

ExivPicture ReadMetadata(const std::string& bytes) {
  ExivPicture image(Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(bytes.data()),
                                              static_cast<long>(bytes.size()))
                        .release());
  if (image == nullptr) {
    throw EditRefusal("its picture format is not known");
  }
  try {
    image->readMetadata();
  } catch (const Exiv2::AnyError&) {
    if (image->imageType() != Exiv2::ImageType::png || !RescuePng(bytes, *image)) {
      throw;
    }
  }
  return image;
}

/// Such a block is no reason to say that the photo has no date.
void RequireReadableExif(const Exiv2::Image& image, std::string_view block) {
  if (image.exifData().empty() && !block.empty() && TiffEdit(std::string(block)).HasFields()) {
    throw EditRefusal("its EXIF data are damaged");
  }
}

/// The file with the plan carried out; all that the plan does not name stays where it is.
std::string Carry(const MetadataPlan& plan, PictureFormat format, const std::string& before) {
  const ImageLayout layout = ReadLayout(format, before);
  std::string bytes = before;
  ChangeTextsInPlace(bytes, layout.texts, plan);
  std::optional<std::string> exif;
  if (!plan.exif.empty()) {
    const std::string_view block = ExifBlock(bytes, layout);
    TiffEdit tiff(block.empty() ? TiffEdit::Empty() : std::string(block));
    tiff.Apply(plan.exif);
    exif = tiff.Bytes();
  }
  return WithExif(format, bytes, layout, exif);
}

/// Makers' notes have other meanings for the same numbers.
bool IsOfPictures(const Exiv2::Exifdatum& datum) {
  const std::string group = datum.groupName();
  return group.rfind("Image", 0) == 0 || group.rfind("Sub", 0) == 0 || group == "Thumbnail";
}

/// The pictures inside of an EXIF block or a TIFF file: those that it shows, smaller ones, raw ones.
class InnerPictures {
 public:
  InnerPictures(const Exiv2::ExifData& exif, std::string_view before, std::string_view after)
      : exif_(exif), before_(before), after_(after), budget_(std::uint64_t{before.size()} * 4) {}

  void CheckSame() {
    struct Tags {
      std::uint16_t places, sizes;
    };
    for (const Tags& tags : {Tags{0x0111, 0x0117}, Tags{0x0144, 0x0145}, Tags{0x0201, 0x0202}}) {
      for (const Exiv2::Exifdatum& datum : exif_) {
        if (datum.tag() == tags.places && IsOfPictures(datum)) {
          CheckSame(datum, tags.sizes);
        }
      }
    }
  }

 private:
  void CheckSame(const Exiv2::Exifdatum& places, std::uint16_t sizesTag) {
    const auto sizes = std::find_if(exif_.begin(), exif_.end(), [&](const Exiv2::Exifdatum& datum) {
      return datum.tag() == sizesTag && datum.ifdId() == places.ifdId();
    });
    for (long i = 0; sizes != exif_.end() && i < std::min(places.count(), sizes->count()); ++i) {
      CheckSame(static_cast<std::uint32_t>(places.toLong(i)), static_cast<std::uint32_t>(sizes->toLong(i)));
    }
  }

  void CheckSame(std::size_t at, std::size_t claimed) {
    if (at >= before_.size()) {
      return;
    }
    const std::size_t size = std::min(claimed, before_.size() - at);
    // Pictures upon pictures are made to keep somebody busy.
    if (size > budget_) {
      throw EditRefusal("its TIFF directory is damaged");
    }
    budget_ -= size;
    if (before_.substr(at, size) != after_.substr(at, size)) {
      throw EditRefusal("its picture would change");
    }
  }

  const Exiv2::ExifData& exif_;
  const std::string_view before_;
  const std::string_view after_;
  std::uint64_t budget_;
};

void Check(const Content& content, const std::string& after, const Exiv2::Image& image,
           const MetadataPlan& plan) {
  CheckSamePicture(content.format, content.bytes, after);
  const ImageLayout before = ReadLayout(content.format, content.bytes);
  const ImageLayout now = ReadLayout(content.format, after);
  InnerPictures(image.exifData(), ExifBlock(content.bytes, before), ExifBlock(after, now)).CheckSame();
  CheckAgainstPlan(image, *ReadMetadata(after), plan);
}

std::string Edited(const Content& content, const PhotoEdit& edit) {
  const auto lock = LockExiv();
  try {
    const ExivPicture image = ReadMetadata(content.bytes);
    const ImageLayout layout = ReadLayout(content.format, content.bytes);
    const std::string_view block = ExifBlock(content.bytes, layout);
    RequireReadableExif(*image, block);
    MetadataPlan plan = PlanEdit(*image, edit, content.format == PictureFormat::Tiff);
    if (block.empty() && !plan.exif.empty()) {
      const std::vector<ExifChange> fields = FieldsOfNewExif(content.format, content.bytes, layout);
      plan.exif.insert(plan.exif.end(), fields.begin(), fields.end());
    }
    std::string after = Carry(plan, content.format, content.bytes);
    Check(content, after, *image, plan);
    return after;
  } catch (const Exiv2::AnyError& error) {
    throw EditRefusal(std::string("it is damaged: ") + error.what());
  }
}

void CheckEdit(const PhotoEdit& edit) {
  const bool shifts = edit.shift.count() != 0;
  if (edit.turn == Turn::None && !shifts && !edit.date.isValid()) {
    throw EditRefusal("there is nothing to change");
  }
  if (shifts && edit.date.isValid()) {
    throw EditRefusal("its date cannot be set and shifted at once");
  }
  const int year = edit.date.isValid() ? edit.date.date().year() : 1;
  if (year < 1 || year > 9999) {
    throw EditRefusal("the year must be 1 to 9999");
  }
}

/// How a photo is shown and sorted.
struct Shown {
  int orientation = 1;
  QDateTime taken;
};

std::string TextOf(const Exiv2::ExifData& exif, const char* key) {
  const auto found = exif.findKey(Exiv2::ExifKey(key));
  return found == exif.end() ? std::string() : found->toString();
}

Shown ShownBy(const Exiv2::Image& image) {
  const Exiv2::ExifData& exif = image.exifData();
  Shown shown;
  const auto orientation = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
  if (orientation != exif.end() && orientation->count() > 0) {
    // What makes no sense counts as upright.
    shown.orientation = TurnedOrientation(static_cast<int>(orientation->toLong()), Turn::None);
  }
  shown.taken = ParseExifDateTime(TextOf(exif, "Exif.Photo.DateTimeOriginal"),
                                  TextOf(exif, "Exif.Photo.SubSecTimeOriginal"));
  if (!shown.taken.isValid()) {
    shown.taken = ParseExifDateTime(TextOf(exif, "Exif.Photo.DateTimeDigitized"),
                                    TextOf(exif, "Exif.Photo.SubSecTimeDigitized"));
  }
  if (!shown.taken.isValid()) {
    shown.taken = XmpDate(image.xmpData());
  }
  if (!shown.taken.isValid()) {
    shown.taken = IptcDate(image.iptcData());
  }
  return shown;
}

Shown ReadShown(const std::string& bytes) {
  const auto lock = LockExiv();
  try {
    return ShownBy(*ReadMetadata(bytes));
  } catch (const Exiv2::AnyError& error) {
    throw EditRefusal(std::string("it is damaged: ") + error.what());
  }
}

/// Whatever goes wrong in the work becomes an error that names the photo.
template <class Work>
void Explaining(const ioPath& photo, const Work& work) {
  const FileNotes notes(photo);
  try {
    work();
  } catch (const EditRefusal& refusal) {
    Throw(photo, refusal.what());
  } catch (const std::bad_alloc&) {
    Throw(photo, "editing it takes more memory than there is");
  } catch (const Exception&) {
    throw;
  } catch (const std::exception& error) {
    Throw(photo, std::string("it is damaged: ") + error.what());
  }
}

}  // namespace

std::string WhyNotEditable(const ioPath& photo) {
  std::string cause;
  try {
    PhotoSource source;
    Open(source, photo);
    if (AskFormat(source, cause) && source.Size() > kMostBytes) {
      cause = kTooLarge;
    }
  } catch (const EditRefusal& refusal) {
    cause = refusal.what();
  }
  return cause;
}

void WriteEdited(const ioPath& photo, const ioPath& staging, const PhotoEdit& edit) {
  Explaining(photo, [&] {
    CheckEdit(edit);
    const Content content = ReadWhole(photo);
    WriteStagingFile(staging, photo, content.modifiedNs, Edited(content, edit));
  });
}

EditEffect TryEdit(const ioPath& photo, const PhotoEdit& edit) {
  EditEffect effect;
  Explaining(photo, [&] {
    CheckEdit(edit);
    const Content content = ReadWhole(photo);
    const Shown before = ReadShown(content.bytes);
    const Shown after = ReadShown(Edited(content, edit));
    effect = {before.orientation, after.orientation, before.taken, after.taken};
  });
  return effect;
}

}  // namespace Zenvora::Strandel
