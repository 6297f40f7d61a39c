#pragma once

#include "ImageLayout.h"

namespace Zenvora::Strandel {

// What `ImageLayout.h` offers, for each format by itself.

constexpr std::string_view kExifMark("Exif\0\0", 6);

ImageLayout ReadJpegLayout(const std::string& bytes);
ImageLayout ReadPngLayout(const std::string& bytes);
ImageLayout ReadWebPLayout(const std::string& bytes);

std::string JpegWithExif(const std::string& bytes, const ImageLayout& layout, const std::string& exif);
/// PNG chunks have checksums, so that also texts which were changed in place call for it; `exif`: nothing to
/// keep what is there.
std::string PngWithExif(std::string bytes, const ImageLayout& layout, const std::optional<std::string>& exif);
std::string WebPWithExif(const std::string& bytes, const ImageLayout& layout, const std::string& exif);

/// An EXIF block turns a flag of the file's header on, which is no part of the picture.
bool IsSameWebP(const std::string& before, const std::string& after);

inline std::string_view View(const std::string& bytes, ByteRange range) {
  return ByteView(bytes).Part(range).Text();
}
std::string Replaced(const std::string& bytes, ByteRange old, const std::string& with);
/// A number in `size` bytes.
std::string BigEndianBytes(std::uint64_t value, int size);
std::string LittleEndianBytes(std::uint64_t value, int size);

}  // namespace Zenvora::Strandel
