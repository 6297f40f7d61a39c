#include "PngRescue.h"

#include "EditRefusal.h"
#include "OldPngExif.h"

#include <string>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kMark = 8;
constexpr std::uint64_t kFrame = 12;  ///< Length, type and checksum of a chunk.
constexpr std::uint64_t kMostMetadata = std::uint64_t{16} * 1024 * 1024;
constexpr int kMostChunks = 100'000;
constexpr std::string_view kExifMark("Exif\0\0", 6);
constexpr std::string_view kXmpKeyword("XML:com.adobe.xmp\0", 18);

void DecodeExif(std::string_view block, Exiv2::Image& image) {
  if (block.substr(0, kExifMark.size()) == kExifMark) {
    block.remove_prefix(kExifMark.size());
  }
  if (image.exifData().empty()) {
    Exiv2::ExifParser::decode(image.exifData(), reinterpret_cast<const Exiv2::byte*>(block.data()),
                              static_cast<std::uint32_t>(block.size()));
  }
}

/// The text of an iTXt chunk: behind its keyword come two numbers, then a language and a translated keyword.
void DecodeXmp(std::string_view content, Exiv2::Image& image) {
  content.remove_prefix(kXmpKeyword.size());
  if (content.size() < 2 || content[0] != '\0' || !image.xmpData().empty()) {
    return;
  }
  content.remove_prefix(2);
  for (int i = 0; i < 2; ++i) {
    const std::size_t end = content.find('\0');
    if (end == std::string_view::npos) {
      return;
    }
    content.remove_prefix(end + 1);
  }
  Exiv2::XmpParser::decode(image.xmpData(), std::string(content));
}

void Decode(std::string_view type, const std::string& content, Exiv2::Image& image) {
  try {
    if (type == "eXIf") {
      DecodeExif(content, image);
    } else if (type == "iTXt" && std::string_view(content).substr(0, kXmpKeyword.size()) == kXmpKeyword) {
      DecodeXmp(content, image);
    } else if (const auto old = OldPngExif::Parse(type, content)) {
      DecodeExif(old->block, image);
    }
  } catch (const EditRefusal&) {
    // One more chunk that cannot be read.
  } catch (const Exiv2::AnyError&) {
    // Likewise.
  }
}

bool HoldsMetadata(std::string_view type) {
  return type == "eXIf" || type == "iTXt" || type == "tEXt" || type == "zTXt";
}

}  // namespace

bool RescuePng(const ReadBytes& read, std::uint64_t size, Exiv2::Image& image) {
  bool hasPicture = false;
  std::uint64_t at = kMark;
  for (int chunk = 0; chunk < kMostChunks; ++chunk) {
    unsigned char head[8];
    if (read(at, head, sizeof head) != sizeof head) {
      break;
    }
    const std::uint64_t length = std::uint64_t{head[0]} << 24U | std::uint64_t{head[1]} << 16U |
                                 std::uint64_t{head[2]} << 8U | head[3];
    const std::string_view type(reinterpret_cast<const char*>(head) + 4, 4);
    if (chunk == 0 && type != "IHDR") {
      return false;
    }
    hasPicture = hasPicture || type == "IDAT";
    if (type == "IEND" || length + kFrame > size - at) {
      break;
    }
    if (HoldsMetadata(type) && length <= kMostMetadata) {
      std::string content(static_cast<std::size_t>(length), '\0');
      content.resize(read(at + sizeof head, content.data(), content.size()));
      Decode(type, content, image);
    }
    at += length + kFrame;
  }
  return hasPicture;
}

}  // namespace Zenvora::Strandel
