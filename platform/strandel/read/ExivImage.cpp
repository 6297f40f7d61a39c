#include "ExivImage.h"

#include "ExifText.h"
#include "ExivLock.h"
#include "PhotoIo.h"
#include "PictureMarks.h"
#include "PngRescue.h"

#include <exiv2/webpimage.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

namespace Zenvora::Strandel {

namespace {

/// Of files that keep their directories in unusual places.
constexpr std::uint64_t kMostRead = std::uint64_t{64} * 1024 * 1024;
/// Longer ones are no date and no camera's name.
constexpr std::size_t kMaxText = 256;

enum Tag : std::uint16_t {
  kModel = 0x0110,
  kExifDirectory = 0x8769,
  kGpsDirectory = 0x8825,
  kDateTimeOriginal = 0x9003,
  kDateTimeDigitised = 0x9004,
  kSubSecondsOriginal = 0x9291,
  kSubSecondsDigitised = 0x9292,
};

bool IsAboutTheEnd(int code) {
  return code == Exiv2::kerFailedToReadImageData || code == Exiv2::kerInputDataReadFailed ||
         code == Exiv2::kerNotAJpeg;
}

/// Exiv2 also knows sidecars, drawings and films, and takes minutes for some broken films.
bool HoldsPhoto(int type) {
  namespace Known = Exiv2::ImageType;
  static constexpr std::array kPhotos = {Known::bmff, Known::bmp,  Known::cr2, Known::crw,  Known::gif,
                                         Known::jp2,  Known::jpeg, Known::mrw, Known::orf,  Known::png,
                                         Known::psd,  Known::raf,  Known::rw2, Known::tiff, Known::webp};
  return std::find(kPhotos.begin(), kPhotos.end(), type) != kPhotos.end();
}

/// Some formats keep the fields in the first directory. The earlier ones count more; -1: none of them.
int RankOf(const std::string& group) {
  static constexpr std::array kGroups = {"Photo", "Image", "PanasonicRaw"};
  const auto* const found = std::find(kGroups.begin(), kGroups.end(), group);
  return found == kGroups.end() ? -1 : static_cast<int>(found - kGroups.begin());
}

std::string TextOf(const Exiv2::Exifdatum& datum) {
  std::string text;
  TextBytes(datum, Exiv2::asciiString, kMaxText, text);
  return text;
}

struct Found {
  ExifFields fields;
  /// A text that is not empty by its length, but holds nothing: perhaps it was not read.
  bool blank = false;
  std::uint64_t exifDirectory = 0;
  std::uint64_t gpsDirectory = 0;
  /// Likewise a coordinate.
  bool blankPosition = false;
};

class Collector {
 public:
  Found Collect(const Exiv2::ExifData& exif) {
    for (const Exiv2::Exifdatum& datum : exif) {
      Read(datum);
    }
    return found_;
  }

 private:
  void Read(const Exiv2::Exifdatum& datum) {
    constexpr std::uint16_t kLatitude = 2;
    constexpr std::uint16_t kLongitude = 4;
    switch (datum.tag()) {
      case kModel:
        return ReadText(datum, modelRank_, found_.fields.model);
      case kDateTimeOriginal:
        return ReadText(datum, originalRank_, found_.fields.original);
      case kSubSecondsOriginal:
        return ReadText(datum, originalSubRank_, found_.fields.originalSubSeconds);
      case kDateTimeDigitised:
        return ReadText(datum, digitisedRank_, found_.fields.digitised);
      case kSubSecondsDigitised:
        return ReadText(datum, digitisedSubRank_, found_.fields.digitisedSubSeconds);
      case kExifDirectory:
        return ReadPlace(datum, found_.exifDirectory);
      case kGpsDirectory:
        return ReadPlace(datum, found_.gpsDirectory);
      case kLatitude:
      case kLongitude:
        found_.blankPosition = found_.blankPosition || (datum.groupName() == "GPSInfo" && SaysNothing(datum));
        return;
      default:
        return;
    }
  }
  static void ReadPlace(const Exiv2::Exifdatum& datum, std::uint64_t& place) {
    if (RankOf(datum.groupName()) > 0 && datum.count() == 1) {
      place = static_cast<std::uint32_t>(datum.toLong());
    }
  }
  static constexpr int kNoRank = 100;
  void ReadText(const Exiv2::Exifdatum& datum, int& rank, std::string& text) {
    const int own = RankOf(datum.groupName());
    if (own < 0 || own >= rank) {
      return;
    }
    const std::string read = TextOf(datum);
    if (read.empty()) {
      found_.blank = found_.blank || datum.size() > 4;
      return;
    }
    rank = own;
    text = read;
  }

  Found found_;
  int modelRank_ = kNoRank;
  int originalRank_ = kNoRank;
  int originalSubRank_ = kNoRank;
  int digitisedRank_ = kNoRank;
  int digitisedSubRank_ = kNoRank;
};

bool LacksFacts(const ExifFields& fields) {
  return fields.original.empty() && fields.digitised.empty() && fields.model.empty();
}

}  // namespace

ExifFields FieldsIn(const Exiv2::ExifData& exif) {
  return Collector().Collect(exif).fields;
}

ExivImage::ExivImage(PhotoSource& source) : source_(source), copy_(source) {
  // Read in parallel, but not where the copy is so large that several would be too much for some systems.
  if (source.Size() <= kMostRead && BeginsLikeTiff(source)) {
    copy_.Bytes();
  }
  lock_ = LockExiv();
  io_ = new PhotoIo(source, copy_);
  // Exiv2 0.27 takes nothing else.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  image_.reset(Exiv2::ImageFactory::open(Exiv2::BasicIo::AutoPtr(io_)).release());
#pragma GCC diagnostic pop
  if (image_ != nullptr && !HoldsPhoto(image_->imageType())) {
    image_.reset();
  }
  if (image_ == nullptr) {
    io_ = nullptr;
  }
}

ExivImage::~ExivImage() = default;

ExivOutcome ExivImage::ReadMetadata(std::string& cause) {
  // The directories, the EXIF directory, that of the position, the rest: no file takes more rounds.
  constexpr int kMostRounds = 4;
  ExivOutcome outcome = ReadOnce(cause);
  for (int round = 1; round < kMostRounds && ReadMore(); ++round) {
    outcome = ReadOnce(cause);
  }
  return outcome;
}

ExivOutcome ExivImage::ReadOnce(std::string& cause) {
  try {
    image_->readMetadata();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const Exiv2::AnyError& error) {
    if (Rescue()) {
      cause.clear();
      return ExivOutcome::Whole;
    }
    cause = error.what();
    return IsAboutTheEnd(error.code()) ? ExivOutcome::BrokenOff : ExivOutcome::Nonsense;
  } catch (const std::exception& error) {
    cause = error.what();
    return ExivOutcome::Nonsense;
  }
  cause.clear();
  return ExivOutcome::Whole;
}

/// True when it brought bytes that may hold what is missing.
bool ExivImage::ReadMore() {
  if (!copy_.Begun() || copy_.Complete()) {
    return false;
  }
  const Found found = Collector().Collect(image_->exifData());
  if (found.exifDirectory != 0 && copy_.ReadAround(found.exifDirectory)) {
    return true;
  }
  if (found.gpsDirectory != 0 && copy_.ReadAround(found.gpsDirectory)) {
    return true;
  }
  return (found.blank || found.blankPosition || LacksFacts(found.fields)) && copy_.ReadFront(kMostRead);
}

/// True when all that went wrong is a text chunk of a PNG file.
bool ExivImage::Rescue() {
  return image_->imageType() == Exiv2::ImageType::png && RescuePng(source_, *image_);
}

void ExivImage::WantEverything() {
  io_->WantEverything();
}

}  // namespace Zenvora::Strandel
