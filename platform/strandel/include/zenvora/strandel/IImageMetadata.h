#pragma once

#include <zenvora/core/IRefCountable.h>
#include <zenvora/core/Property.h>
#include <zenvora/strandel/Export.h>

#include <string>

namespace Zenvora::Proc {

/// What one image file says of itself, as properties that are found by family, block and tag.
///
/// Families are `EXIF`, the fields of the EXIF data, and `FILE_INFO`, what is known of the file and its
/// picture besides. A property that is there has one child, `TEXT_VALUE`, with the value as text.
///
/// Thread-safety: does not change once made; all operations from any thread. The order of the virtual
/// operations is part of the binary interface: those of `IRefCountable`, then `GetProperty`.
class ZENVORA_STRANDEL_EXPORT IImageMetadata : public virtual IRefCountable {
 protected:
  ~IImageMetadata() override;

 public:
  static const std::string EXIF;
  static const std::string BLOCK_IMAGE;  ///< The first directory: camera, orientation.
  static const std::string BLOCK_PHOTO;  ///< How and when the photo was taken.
  static const std::string BLOCK_GPS;
  static const std::string TAG_LATITUDE;
  static const std::string TAG_LONGITUDE;

  static const std::string FILE_INFO;
  static const std::string BLOCK_PICTURE;
  static const std::string TAG_FORMAT;  ///< By the content; a name of `Quillet::FormatHelper`, as "JPEG".
  static const std::string TAG_WIDTH;   ///< Pixels as stored, at least 1.
  static const std::string TAG_HEIGHT;
  static const std::string BLOCK_STATE;
  static const std::string TAG_MODIFIED;  ///< "2021-05-01T10:20:30.125Z"

  /// The child of a property that holds its text.
  static const std::string TEXT_VALUE;

  /// The property, empty when the file has none or the names are of none. `block` and `tag` of EXIF are
  /// named as in the EXIF standard ("GPSLatitudeRef"), or the tag by its number ("0x0110").
  virtual Core::Property GetProperty(const std::string& family, const std::string& block,
                                     const std::string& tag) const = 0;
};

}  // namespace Zenvora::Proc
