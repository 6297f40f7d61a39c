#include "PngRescue.h"

#include "OldPngExif.h"

#include <zenvora/strandel/PngChunks.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

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
  } catch (const OldPngExif::Damaged&) {
    // One more chunk that cannot be read.
  } catch (const Exiv2::AnyError&) {
    // Likewise.
  }
}

bool HoldsMetadata(std::string_view type) {
  return type == "eXIf" || type == "iTXt" || type == "tEXt" || type == "zTXt";
}

}  // namespace

bool RescuePng(const ByteSource& bytes, Exiv2::Image& image) {
  bool hasPicture = false;
  PngChunks chunks(bytes);
  for (int count = 0; count < kMostChunks; ++count) {
    const auto chunk = chunks.Next();
    if (!chunk || (count == 0 && chunk->Type() != "IHDR")) {
      break;
    }
    hasPicture = hasPicture || chunk->Type() == "IDAT";
    if (chunk->Type() == "IEND" || !chunk->isWhole) {
      break;
    }
    if (HoldsMetadata(chunk->Type()) && chunk->body.size <= kMostMetadata) {
      const auto size = static_cast<std::size_t>(chunk->body.size);
      Decode(chunk->Type(), std::string(bytes.At(chunk->body.at, size).Text()), image);
    }
  }
  return hasPicture;
}

}  // namespace Zenvora::Strandel
