#pragma once

#include <zenvora/core/Exception.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/Export.h>

#include <QDateTime>

#include <chrono>
#include <string>

namespace Zenvora::Strandel {

/// How a picture is turned, clockwise.
enum class Turn {
  None,
  Right,  ///< By a quarter.
  Half,
  Left,  ///< By three quarters.
};

/// What is to be changed of a photo's metadata. At least one thing; `shift` and `date` exclude each other.
struct PhotoEdit {
  Turn turn = Turn::None;
  /// Added to the dates that are there; 0 leaves them.
  std::chrono::seconds shift{0};
  /// Becomes the photo's date: its day and time of day as they stand, whatever its zone; the year 1..9999.
  /// Invalid leaves the dates.
  QDateTime date;
};

/// A photo could not be edited. `what()` is one English sentence with the photo's name and the cause; carries
/// `TagFilename`.
class ZENVORA_STRANDEL_EXPORT PhotoEditError : public Exception {
 public:
  PhotoEditError() = default;
  PhotoEditError(const PhotoEditError&) = default;
  PhotoEditError(PhotoEditError&&) = default;
  PhotoEditError& operator=(const PhotoEditError&) = default;
  PhotoEditError& operator=(PhotoEditError&&) = default;
  ~PhotoEditError() noexcept override;
};

/// What an edit changes in how a photo is shown and sorted.
struct EditEffect {
  int orientationBefore = 1;  ///< EXIF Orientation, 1..8; 1 also when none is there.
  int orientationAfter = 1;
  /// The original date, else the digitised one, that of XMP or of IPTC, as `PhotoFacts`; invalid: none.
  QDateTime takenBefore;
  QDateTime takenAfter;
};

/// Why no photo of this file's format, or none so large, can be edited, by its content and not by its name;
/// in English, without the file's name. Empty: it may be edited, which says nothing yet of what is in this
/// file. Blocks on the disk; safe from any thread.
ZENVORA_STRANDEL_EXPORT std::string WhyNotEditable(const ioPath& photo);

/// Writes a copy of the photo with other metadata to the new file `staging`: the same picture, bit for bit,
/// with the same permissions and time of change, on the disk when this returns. The photo is only read. What
/// is changed, and how it is checked, is in docs/decisions/metadata.md.
///
/// Throws `PhotoEditError` when the edit asks for nothing or for both kinds of dates; when the photo is no
/// regular file, cannot be read, is larger than 2 GiB - 1, of a format that is not edited or damaged; when it
/// has no date to shift, or one that would leave the years 1..9999; when `staging` exists or cannot be
/// written. Then there is no new file. Blocks on the disk; takes memory of a few times the photo's size. Safe
/// from any thread, but one photo at a time is edited.
ZENVORA_STRANDEL_EXPORT void WriteEdited(const ioPath& photo, const ioPath& staging, const PhotoEdit& edit);

/// What `WriteEdited` would change, found by doing all of its work but the writing. Throws `PhotoEditError`
/// for every photo that `WriteEdited` would refuse. Blocks on the disk, takes as much memory; safe from any
/// thread, but one photo at a time is edited.
ZENVORA_STRANDEL_EXPORT EditEffect TryEdit(const ioPath& photo, const PhotoEdit& edit);

}  // namespace Zenvora::Strandel
