#include "EditRefusal.h"
#include "FormatLayouts.h"

#include <algorithm>

namespace Zenvora::Strandel {

namespace {

constexpr std::size_t kRiffHead = 12;
constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kExtendedSize = 10;
constexpr unsigned char kHasExif = 0x08;
constexpr char kHasAlpha = 0x10;

/// 0 where it is not there.
std::size_t LittleEndian(ByteView bytes, std::size_t at, std::size_t size) {
  return static_cast<std::size_t>(bytes.Little(at, size).value_or(0));
}

template <class Visit>
std::size_t ForEachWebPChunk(const std::string& bytes, const Visit& visit) {
  constexpr const char* kBreaksOff = "its WebP data breaks off";
  if (bytes.size() < kRiffHead || LittleEndian(bytes, 4, 4) > bytes.size() - kChunkHead) {
    throw EditRefusal(kBreaksOff);
  }
  const std::size_t end = kChunkHead + LittleEndian(bytes, 4, 4);
  std::size_t at = kRiffHead;
  while (at < end) {
    if (end - at < kChunkHead || LittleEndian(bytes, at + 4, 4) > end - at - kChunkHead) {
      throw EditRefusal(kBreaksOff);
    }
    const ByteRange body{at + kChunkHead, LittleEndian(bytes, at + 4, 4)};
    visit(std::string_view(bytes).substr(at, 4), body);
    // Padded to an even length, but for the last one of some writers.
    at = std::min(body.at + body.size + body.size % 2, end);
  }
  return end;
}

/// The header that a WebP file needs as soon as it holds more than a bare picture.
std::string ExtendedHead(std::string_view type, std::string_view content) {
  std::size_t width = 0;
  std::size_t height = 0;
  bool alpha = false;
  if (type == "VP8 " && content.size() >= 10) {
    constexpr unsigned kSizeBits = 0x3FFF;
    width = LittleEndian(content, 6, 2) & kSizeBits;
    height = LittleEndian(content, 8, 2) & kSizeBits;
  } else if (type == "VP8L" && content.size() >= 5) {
    const std::size_t bits = LittleEndian(content, 1, 4);
    width = (bits & 0x3FFFU) + 1;
    height = (bits >> 14U & 0x3FFFU) + 1;
    alpha = (bits >> 28U & 1U) != 0;
  }
  if (width == 0 || height == 0) {
    throw EditRefusal("its WebP data holds no picture");
  }
  return std::string("VP8X") + LittleEndianBytes(kExtendedSize, 4) + (alpha ? kHasAlpha : '\0') +
         std::string(3, '\0') + LittleEndianBytes(width - 1, 3) + LittleEndianBytes(height - 1, 3);
}

/// The picture's parts with the flag in it that an EXIF block turns on.
std::vector<std::string_view> WebPParts(const std::string& bytes, const ImageLayout& layout) {
  std::vector<std::string_view> parts;
  for (const ByteRange& range : layout.picture) {
    const std::string_view part = View(bytes, range);
    if (ByteView(part).BeginsWith("VP8X")) {
      parts.push_back(part.substr(0, kChunkHead));
      parts.push_back(part.substr(std::min(part.size(), kChunkHead + 1)));
    } else {
      parts.push_back(part);
    }
  }
  return parts;
}

bool HasExtendedHead(const std::string& bytes) {
  return std::string_view(bytes).substr(kRiffHead, 4) == "VP8X";
}

}  // namespace

ImageLayout ReadWebPLayout(const std::string& bytes) {
  ImageLayout layout;
  const std::size_t end = ForEachWebPChunk(bytes, [&](std::string_view type, ByteRange body) {
    if (type == "EXIF" && !layout.exif) {
      const std::size_t mark = ByteView(View(bytes, body)).BeginsWith(kExifMark) ? kExifMark.size() : 0;
      layout.exif = ByteRange{body.at + mark, body.size - mark};
      layout.exifMark = mark;
    } else if (type == "XMP ") {
      layout.texts.push_back(body);
      layout.exifGoesTo = layout.exifGoesTo == 0 ? body.at - kChunkHead : layout.exifGoesTo;
    } else {
      layout.picture.push_back({body.at - kChunkHead, body.size + kChunkHead});
    }
  });
  if (layout.picture.empty()) {
    throw EditRefusal("its WebP data holds no picture");
  }
  layout.exifGoesTo = layout.exifGoesTo == 0 ? end : layout.exifGoesTo;
  layout.picture.push_back({end, bytes.size() - end});
  return layout;
}

std::string WebPWithExif(const std::string& bytes, const ImageLayout& layout, const std::string& exif) {
  std::string result;
  if (layout.exif) {
    const std::size_t mark = layout.exifMark;
    const std::size_t head = kChunkHead + mark;
    const std::size_t old = layout.exif->size + mark;
    const std::size_t size = exif.size() + mark;
    const std::size_t start = layout.exif->at - head;
    const std::size_t padded = std::min(old + old % 2, LittleEndian(bytes, 4, 4) - start);
    const std::string chunk = "EXIF" + LittleEndianBytes(size, 4) + std::string(kExifMark.substr(0, mark)) +
                              exif + std::string(size % 2, '\0');
    result = Replaced(bytes, {start, kChunkHead + padded}, chunk);
  } else {
    const std::string chunk =
        "EXIF" + LittleEndianBytes(exif.size(), 4) + exif + std::string(exif.size() % 2, '\0');
    // The last chunk may lack its padding, which nothing can follow then.
    const std::string pad(layout.exifGoesTo % 2, '\0');
    result = Replaced(bytes, {layout.exifGoesTo, 0}, pad + chunk);
  }
  std::string_view first = std::string_view(result).substr(kRiffHead, 4);
  if (first != "VP8X") {
    const ByteRange& picture = layout.picture.front();
    const std::string head = ExtendedHead(std::string_view(bytes).substr(picture.at, 4),
                                          View(bytes, {picture.at + kChunkHead, picture.size - kChunkHead}));
    result.insert(kRiffHead, head);
  }
  char& flags = result[kRiffHead + kChunkHead];
  flags = static_cast<char>(static_cast<unsigned char>(flags) | kHasExif);
  const std::size_t behind = bytes.size() - (kChunkHead + LittleEndian(bytes, 4, 4));
  result.replace(4, 4, LittleEndianBytes(result.size() - kChunkHead - behind, 4));
  return result;
}

bool IsSameWebP(const std::string& before, const std::string& after) {
  const std::vector<std::string_view> old = WebPParts(before, ReadWebPLayout(before));
  std::vector<std::string_view> now = WebPParts(after, ReadWebPLayout(after));
  if (!HasExtendedHead(before) && HasExtendedHead(after)) {
    now.erase(now.begin(), now.begin() + 2);
    return old == now;
  }
  constexpr std::size_t kFlags = kRiffHead + kChunkHead;
  return old == now &&
         (!HasExtendedHead(before) || (before[kFlags] | kHasExif) == (after[kFlags] | kHasExif));
}

}  // namespace Zenvora::Strandel
