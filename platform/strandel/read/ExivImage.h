#pragma once

#include "ExifFields.h"
#include "PartialCopy.h"

#include <zenvora/strandel/PhotoSource.h>

#include <exiv2/exiv2.hpp>

#include <memory>
#include <mutex>
#include <string>

namespace Zenvora::Strandel {

class PhotoIo;

/// How far the reading of a file's metadata got.
enum class ExivOutcome {
  Whole,
  BrokenOff,  ///< The file ends, or cannot be read, before what it says that it has.
  Nonsense,   ///< Something in it makes no sense.
};

/// The fields that make up `PhotoFacts`.
ExifFields FieldsIn(const Exiv2::ExifData& exif);

/// A file being read by Exiv2.
///
/// One at a time in the whole process, in whatever thread, for as long as it lives: reading metadata also
/// reads XMP, whose parser keeps tables for the whole process that it changes without a lock. The beginning
/// of the file is read before that.
class ExivImage {
 public:
  /// `source` outlives it. Throws what Exiv2 throws, and `std::bad_alloc`.
  explicit ExivImage(PhotoSource& source);
  ~ExivImage();
  ExivImage(const ExivImage&) = delete;
  ExivImage& operator=(const ExivImage&) = delete;

  /// False when Exiv2 knows no picture that begins so; then nothing else may be called.
  bool IsPicture() const { return image_ != nullptr; }

  /// Reads the metadata, and of TIFF and raw files as much as that takes. Throws nothing but
  /// `std::bad_alloc`. `cause` says what is damaged; what was found before the damage is there nevertheless.
  ExivOutcome ReadMetadata(std::string& cause);

  Exiv2::Image& Image() { return *image_; }
  /// To be called before the pictures inside of the file are asked for.
  void WantEverything();
  /// True when the file is too large to be read to its end.
  bool IsCut() const { return copy_.IsCut(); }

 private:
  ExivOutcome ReadOnce(std::string& cause);
  bool Rescue();
  bool ReadMore();

  PhotoSource& source_;
  PartialCopy copy_;
  std::unique_lock<std::mutex> lock_;
  std::unique_ptr<Exiv2::Image> image_;
  PhotoIo* io_ = nullptr;  ///< Belongs to the image.
};

}  // namespace Zenvora::Strandel
