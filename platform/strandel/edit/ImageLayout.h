#pragma once

#include "OldPngExif.h"

#include <zenvora/strandel/ByteView.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Zenvora::Strandel {

enum class PictureFormat { Jpeg, Png, WebP, Tiff };

/// The format, by the first bytes of a file, of pictures that can be edited; for others the cause in English.
std::optional<PictureFormat> FormatOf(std::string_view head, std::string& cause);
/// How many bytes that takes.
constexpr std::size_t kFormatHead = 16;

/// Which parts of an image file hold its picture, and which its metadata.
struct ImageLayout {
  /// What makes up the picture and all else that is not edited, in the order of the file. Of TIFF files it is
  /// not told.
  std::vector<ByteRange> picture;
  /// The TIFF structure with the EXIF fields; all of a TIFF file.
  std::optional<ByteRange> exif;
  /// The bytes before it that say so.
  std::size_t exifMark = 0;
  /// Of PNG files that keep the EXIF fields as text: what the text says, and where its chunk's content is.
  std::optional<OldPngExif> oldExif;
  ByteRange oldExifAt;
  /// Where XMP and IPTC data may be changed in place.
  std::vector<ByteRange> texts;
  /// Where a new EXIF block goes.
  std::uint64_t exifGoesTo = 0;
};

/// Throws `EditRefusal` where the file is damaged.
ImageLayout ReadLayout(PictureFormat format, const std::string& bytes);

/// The TIFF structure with the EXIF fields, as long as both live; empty when there is none.
std::string_view ExifBlock(const std::string& bytes, const ImageLayout& layout);

/// The file with another EXIF block, or a first one; nothing: with the one it has. Texts may have been
/// changed in place before. Throws `EditRefusal` where there is no room for it.
std::string WithExif(PictureFormat format, const std::string& bytes, const ImageLayout& layout,
                     const std::optional<std::string>& exif);

/// Throws `EditRefusal` unless both files have the same picture.
void CheckSamePicture(PictureFormat format, const std::string& before, const std::string& after);

}  // namespace Zenvora::Strandel
