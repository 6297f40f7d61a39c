#include "ImageLayout.h"

#include "EditRefusal.h"
#include "FormatLayouts.h"
#include "TiffEdit.h"

#include <algorithm>

namespace Zenvora::Strandel {

namespace {

ImageLayout ReadTiffLayout(const std::string& bytes) {
  constexpr std::uint16_t kXmp = 0x02BC;
  constexpr std::uint16_t kIptc = 0x83BB;
  constexpr std::uint16_t kImageResources = 0x8649;
  ImageLayout layout;
  layout.exif = ByteRange{0, bytes.size()};
  const TiffEdit tiff(bytes);
  for (const std::uint16_t tag : {kXmp, kIptc, kImageResources}) {
    if (const auto range = tiff.ValueOf(tag)) {
      layout.texts.push_back(*range);
    }
  }
  return layout;
}

bool IsSame(PictureFormat format, const std::string& before, const std::string& after) {
  const ImageLayout old = ReadLayout(format, before);
  const ImageLayout now = ReadLayout(format, after);
  return std::equal(old.picture.begin(), old.picture.end(), now.picture.begin(), now.picture.end(),
                    [&](ByteRange a, ByteRange b) { return View(before, a) == View(after, b); });
}

}  // namespace

std::string Replaced(const std::string& bytes, ByteRange old, const std::string& with) {
  std::string result;
  result.reserve(bytes.size() - old.size + with.size());
  result.append(bytes, 0, old.at).append(with).append(bytes, old.End(), std::string::npos);
  return result;
}

std::string BigEndianBytes(std::uint64_t value, int size) {
  std::string bytes;
  for (int i = size - 1; i >= 0; --i) {
    bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  }
  return bytes;
}

std::string LittleEndianBytes(std::uint64_t value, int size) {
  std::string bytes = BigEndianBytes(value, size);
  std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

std::optional<PictureFormat> FormatOf(std::string_view head, std::string& cause) {
  struct Mark {
    std::size_t at;
    std::string_view bytes;
    std::optional<PictureFormat> format;
    const char* name;
  };
  static const Mark kMarks[] = {
      {0, "\xFF\xD8\xFF", PictureFormat::Jpeg, ""},
      {0, "\x89PNG\r\n\x1A\n", PictureFormat::Png, ""},
      {8, "WEBP", PictureFormat::WebP, ""},
      {0, std::string_view("II*\0", 4), PictureFormat::Tiff, ""},
      {0, std::string_view("MM\0*", 4), PictureFormat::Tiff, ""},
      {0, "IIRO", PictureFormat::Tiff, ""},
      {0, "IIRS", PictureFormat::Tiff, ""},
      {0, "MMOR", PictureFormat::Tiff, ""},
      {4, "ftypcrx", std::nullopt, "CR3"},
      {4, "ftypavi", std::nullopt, "AVIF"},
      {4, "ftyp", std::nullopt, "HEIC"},
      {4, "JXL ", std::nullopt, "JPEG XL"},
      {0, "\xFF\x0A", std::nullopt, "JPEG XL"},
      {0, "FUJIFILM", std::nullopt, "RAF"},
      {0, std::string_view("IIU\0", 4), std::nullopt, "RW2"},
      {0, "FOVb", std::nullopt, "X3F"},
      {0, std::string_view("II+\0", 4), std::nullopt, "BigTIFF"},
      {0, std::string_view("MM\0+", 4), std::nullopt, "BigTIFF"},
      {0, "GIF8", std::nullopt, "GIF"},
      {0, "BM", std::nullopt, "BMP"},
      {0, "8BPS", std::nullopt, "PSD"},
  };
  cause.clear();
  for (const Mark& mark : kMarks) {
    if (head.size() > mark.at && ByteView(head.substr(mark.at)).BeginsWith(mark.bytes)) {
      if (!mark.format) {
        cause = std::string("photos of the format ") + mark.name + " cannot be edited";
      }
      return mark.format;
    }
  }
  cause = "its format cannot be edited";
  return std::nullopt;
}

ImageLayout ReadLayout(PictureFormat format, const std::string& bytes) {
  switch (format) {
    case PictureFormat::Jpeg:
      return ReadJpegLayout(bytes);
    case PictureFormat::Png:
      return ReadPngLayout(bytes);
    case PictureFormat::WebP:
      return ReadWebPLayout(bytes);
    default:
      return ReadTiffLayout(bytes);
  }
}

std::string_view ExifBlock(const std::string& bytes, const ImageLayout& layout) {
  if (layout.oldExif) {
    return layout.oldExif->block;
  }
  return layout.exif ? View(bytes, *layout.exif) : std::string_view();
}

std::string WithExif(PictureFormat format, const std::string& bytes, const ImageLayout& layout,
                     const std::optional<std::string>& exif) {
  if (format == PictureFormat::Png) {
    return PngWithExif(bytes, layout, exif);
  }
  if (!exif) {
    return bytes;
  }
  switch (format) {
    case PictureFormat::Jpeg:
      return JpegWithExif(bytes, layout, *exif);
    case PictureFormat::WebP:
      return WebPWithExif(bytes, layout, *exif);
    default:
      return *exif;
  }
}

void CheckSamePicture(PictureFormat format, const std::string& before, const std::string& after) {
  const bool same = format == PictureFormat::WebP ? IsSameWebP(before, after) : IsSame(format, before, after);
  if (!same) {
    throw EditRefusal("its picture would change");
  }
}

}  // namespace Zenvora::Strandel
