#include "NewExif.h"

#include <zenvora/strandel/JpegSegments.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

enum Tag : std::uint16_t {
  kXResolution = 0x011A,
  kYResolution = 0x011B,
  kResolutionUnit = 0x0128,
  kYCbCrPositioning = 0x0213,
  kExifVersion = 0x9000,
  kComponentsConfiguration = 0x9101,
  kFlashpixVersion = 0xA000,
  kColorSpace = 0xA001,
  kPixelXDimension = 0xA002,
  kPixelYDimension = 0xA003,
};

constexpr std::uint16_t kInch = 2;
constexpr std::uint16_t kCentimetre = 3;
constexpr std::uint16_t kSrgb = 1;
constexpr std::uint16_t kUncalibrated = 0xFFFF;

/// What a file says of its picture in its format's own way.
struct Picture {
  // What EXIF calls for where nothing is known.
  std::uint32_t xResolution = 72;
  std::uint32_t yResolution = 72;
  std::uint16_t unit = kInch;
  bool hasProfile = false;
  bool isSrgb = false;  ///< The profile says so.
  // Of JPEG files; 0: not found.
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::string components;  ///< As EXIF numbers them.
};

/// 0 where it is not there.
std::uint32_t Number(ByteView bytes, std::size_t at, std::size_t size) {
  return static_cast<std::uint32_t>(bytes.Big(at, size).value_or(0));
}

void ReadProfile(ByteView profile, Picture& picture) {
  picture.hasProfile = true;
  picture.isSrgb = picture.isSrgb || profile.Text().find("sRGB") != std::string_view::npos;
}

// --- JPEG ---

void ReadJfif(ByteView body, Picture& picture) {
  constexpr std::size_t kUnit = 7;
  constexpr std::uint32_t kPerInch = 1;
  constexpr std::uint32_t kPerCentimetre = 2;
  const std::uint32_t unit = Number(body, kUnit, 1);
  const std::uint32_t x = Number(body, kUnit + 1, 2);
  const std::uint32_t y = Number(body, kUnit + 3, 2);
  if ((unit == kPerInch || unit == kPerCentimetre) && x != 0 && y != 0) {
    picture.xResolution = x;
    picture.yResolution = y;
    picture.unit = unit == kPerInch ? kInch : kCentimetre;
  }
}

/// Numbers of the components in the order in which the file has them; empty where EXIF has none for them.
std::string ComponentsOf(ByteView frame) {
  constexpr std::size_t kCount = 5;
  constexpr std::size_t kFirst = 6;
  constexpr std::size_t kEach = 3;
  switch (Number(frame, kCount, 1)) {
    case 1:
      return std::string("\1\0\0\0", 4);
    case 3: {
      const bool rgb = Number(frame, kFirst, 1) == 'R' && Number(frame, kFirst + kEach, 1) == 'G' &&
                       Number(frame, kFirst + 2 * kEach, 1) == 'B';
      return rgb ? std::string("\4\5\6\0", 4) : std::string("\1\2\3\0", 4);
    }
    default:
      return {};
  }
}

Picture LookAtJpeg(ByteView bytes) {
  Picture picture;
  JpegSegments segments(bytes);
  for (auto segment = segments.Next(); segment; segment = segments.Next()) {
    const ByteView body = bytes.Part(segment->body);
    if (segment->marker == JpegSegment::kStartOfScan) {
      break;
    }
    if (segment->marker == JpegSegment::kApp0 && body.BeginsWith(std::string_view("JFIF\0", 5))) {
      ReadJfif(body, picture);
    } else if (segment->marker == JpegSegment::kApp2 &&
               body.BeginsWith(std::string_view("ICC_PROFILE\0", 12))) {
      ReadProfile(body, picture);
    } else if (segment->IsFrame()) {
      const QSize size = JpegFrameSize(body);
      picture.height = static_cast<std::uint32_t>(std::max(size.height(), 0));
      picture.width = static_cast<std::uint32_t>(std::max(size.width(), 0));
      picture.components = ComponentsOf(body);
    }
  }
  return picture;
}

// --- PNG and WebP ---

void ReadPngResolution(ByteView body, Picture& picture) {
  constexpr std::uint32_t kPerMetre = 1;
  const std::uint32_t x = Number(body, 0, 4);
  const std::uint32_t y = Number(body, 4, 4);
  const auto perInch = [](std::uint32_t perMetre) {
    return static_cast<std::uint32_t>((std::uint64_t{perMetre} * 254 + 5000) / 10'000);
  };
  if (Number(body, 8, 1) == kPerMetre && perInch(x) > 0 && perInch(y) > 0) {
    picture.xResolution = perInch(x);
    picture.yResolution = perInch(y);
  }
}

Picture LookAtChunks(ByteView bytes, const ImageLayout& layout, std::size_t typeAt) {
  constexpr std::uint64_t kHead = 8;
  Picture picture;
  for (const ByteRange& range : layout.picture) {
    const ByteView chunk = bytes.Part(range);
    const std::string_view type = chunk.Part({typeAt, 4}).Text();
    const ByteView body = chunk.Part({kHead, chunk.Size()});
    if (type == "pHYs") {
      ReadPngResolution(body, picture);
    } else if (type == "iCCP") {
      // Compressed, but for its name.
      ReadProfile(body.Part({0, body.Text().find('\0')}), picture);
    } else if (type == "ICCP") {
      ReadProfile(body, picture);
    }
  }
  return picture;
}

// --- Fields ---

ExifChange Field(ExifDirectory directory, std::uint16_t tag, ExifChange::Kind kind) {
  ExifChange change;
  change.directory = directory;
  change.tag = tag;
  change.kind = kind;
  return change;
}

ExifChange NumberField(ExifDirectory directory, std::uint16_t tag, std::uint16_t number) {
  ExifChange change = Field(directory, tag, ExifChange::Kind::Number);
  change.number = number;
  return change;
}

ExifChange LongField(std::uint16_t tag, std::uint32_t number) {
  ExifChange change = Field(ExifDirectory::Photo, tag, ExifChange::Kind::Long);
  change.number = number;
  return change;
}

ExifChange RatioField(std::uint16_t tag, std::uint32_t number) {
  ExifChange change = Field(ExifDirectory::Image, tag, ExifChange::Kind::WholeRatio);
  change.number = number;
  return change;
}

ExifChange BytesField(std::uint16_t tag, const std::string& bytes) {
  ExifChange change = Field(ExifDirectory::Photo, tag, ExifChange::Kind::Bytes);
  change.text = bytes;
  return change;
}

}  // namespace

std::vector<ExifChange> FieldsOfNewExif(PictureFormat format, const std::string& bytes,
                                        const ImageLayout& layout) {
  if (format == PictureFormat::Tiff) {
    return {};
  }
  constexpr std::size_t kPngType = 4;
  const bool jpeg = format == PictureFormat::Jpeg;
  const Picture picture =
      jpeg ? LookAtJpeg(bytes) : LookAtChunks(bytes, layout, format == PictureFormat::Png ? kPngType : 0);
  std::vector<ExifChange> fields = {
      RatioField(kXResolution, picture.xResolution),
      RatioField(kYResolution, picture.yResolution),
      NumberField(ExifDirectory::Image, kResolutionUnit, picture.unit),
      BytesField(kExifVersion, "0230"),
      BytesField(kFlashpixVersion, "0100"),
      NumberField(ExifDirectory::Photo, kColorSpace,
                  picture.hasProfile && !picture.isSrgb ? kUncalibrated : kSrgb)};
  if (jpeg && !picture.components.empty()) {
    // Where JFIF has the colours stand.
    constexpr std::uint16_t kCentred = 1;
    fields.push_back(NumberField(ExifDirectory::Image, kYCbCrPositioning, kCentred));
    fields.push_back(BytesField(kComponentsConfiguration, picture.components));
  }
  if (jpeg && picture.width != 0 && picture.height != 0) {
    fields.push_back(LongField(kPixelXDimension, picture.width));
    fields.push_back(LongField(kPixelYDimension, picture.height));
  }
  return fields;
}

}  // namespace Zenvora::Strandel
