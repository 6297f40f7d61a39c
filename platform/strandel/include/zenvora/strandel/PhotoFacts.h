#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/Export.h>
#include <zenvora/strandel/IImageMetadata.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <QDateTime>
#include <QString>

#include <string>

namespace Zenvora::Strandel {

/// What a scan needs to know of a photo file's metadata.
struct PhotoFacts {
  enum class Status {
    Read,        ///< The file is an image of a known format; the other fields hold what it says.
    NotAnImage,  ///< The content is of no known image format, or too damaged to read.
    CannotOpen,  ///< The file is missing, no regular file, or may not be read.
  };
  Status status = Status::CannotOpen;
  /// Why the status is not `Read`, in English, without the file's name.
  std::string cause;

  /// EXIF DateTimeOriginal (0x9003) with its sub-seconds, the camera's local time; invalid when absent or no
  /// real date.
  QDateTime original;
  /// EXIF DateTimeDigitized (0x9004), likewise.
  QDateTime digitised;
  /// When it was taken, else digitised, as its XMP and its IPTC data say, as written there; a day alone is
  /// its midnight. Likewise invalid.
  QDateTime xmp;
  QDateTime iptc;
  /// EXIF Model (0x0110) without surrounding blanks; empty when absent.
  QString cameraModel;
  /// What else the file says; null unless it was read.
  boost::intrusive_ptr<Proc::IImageMetadata> metadata;
};

/// Reads the metadata of one file. Never throws for bad content, never changes the file and never waits for
/// one that is no regular file. Blocks on the disk. Safe from any thread. docs/decisions/metadata.md says
/// what is read how.
ZENVORA_STRANDEL_EXPORT PhotoFacts ReadPhotoFacts(const ioPath& file);

/// Reads an EXIF date text "yyyy:MM:dd hh:mm:ss" (DCF writers also put '-', '/' or '.' between date parts,
/// 'T' between date and time, or leave the seconds out) with optional sub-second digits. A fraction and a
/// time zone behind the time are passed over, but for the fraction when there are no other sub-seconds. Pure.
/// Invalid for zeros, blanks and dates that do not exist.
ZENVORA_STRANDEL_EXPORT QDateTime ParseExifDateTime(const std::string& text, const std::string& subSeconds);

/// A camera's local time as a value: local time here, but UTC where this computer's clock skips that hour, so
/// that the day and hour that the camera showed are never lost. Invalid when the date or the time is.
ZENVORA_STRANDEL_EXPORT QDateTime CameraTime(const QDate& date, const QTime& time);

}  // namespace Zenvora::Strandel
