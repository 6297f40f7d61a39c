#pragma once

#include <zenvora/core/ioPath.h>

#include <string>

namespace Zenvora::Lumidex::Host {

/// How far a file is what the camera wrote. What cannot be read says nothing for it.
struct PhotoOrigin {
  /// What cannot be decoded of its picture, in English; empty: it is whole.
  std::string degradation;
  bool raw = false;         ///< A raw file of a camera.
  bool cameraTags = false;  ///< EXIF tells the camera, and when or how the photo was taken.
  bool makerNote = false;   ///< The maker's note is there and can be read.
  bool sizeAsTold = true;   ///< EXIF tells no size, or the picture's own (turned or not).
  bool edited = false;      ///< Software that edits pictures has left its name.
  bool cameraName = false;  ///< Named as cameras and phones name files.
  /// A JPEG file with a JFIF header, which general programs write and most cameras do not.
  bool hasJfif = false;
  /// A JPEG file with the quantisation tables of the standard, as general programs scale them.
  bool standardTables = false;
  /// A smaller copy holds all of its detail. Not of the file alone: found out when the two are compared.
  bool enlarged = false;
  /// The mean of the light's quantisation table of a JPEG file; finer is smaller. 0: nothing is quantised, or
  /// unknown.
  double quantisation = 0;
  double bytesPerPixel = 0;  ///< Of the file; 0: the size is unknown.
};

/// Raised whenever an origin may be read differently, so that stored ones are read anew.
/// `kVerdictVersion` goes with it, since comparing adds to origins.
constexpr int kOriginVersion = 2;

/// Reads a file's origin. Never throws for bad content. Blocks on the disk; safe from any thread.
PhotoOrigin ReadPhotoOrigin(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
