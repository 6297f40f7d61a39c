#include "JpegExif.h"

#include <algorithm>
#include <cstring>

namespace Zenvora::Strandel {

namespace {

// More than any writer makes; a chain of empty segments through a large file is no photo.
constexpr int kMaxSegments = 4096;
// Stray bytes that are passed over before a segment's mark.
constexpr int kMaxStray = 4096;

enum Marker : unsigned char { kStartOfImage = 0xD8, kEndOfImage = 0xD9, kStartOfScan = 0xDA, kApp1 = 0xE1 };

bool IsFrame(unsigned char marker) {
  // 0xC4, 0xC8 and 0xCC are tables.
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool StandsAlone(unsigned char marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= kStartOfImage);
}

/// Moves `at` behind the next marker.
bool FindMarker(PhotoSource& source, std::uint64_t end, std::uint64_t& at, unsigned char& marker) {
  bool prefix = false;
  for (int stray = 0; stray < kMaxStray && at < end; ++stray) {
    unsigned char byte = 0;
    if (!source.ReadAll(at, &byte, 1)) {
      return false;
    }
    ++at;
    if (prefix && byte != 0xFF && byte != 0) {
      marker = byte;
      return true;
    }
    prefix = byte == 0xFF;
  }
  return false;
}

/// The TIFF structure inside an EXIF segment; length 0 when it is none.
Stretch ExifBlock(PhotoSource& source, const Stretch& body) {
  char mark[6];
  if (body.length <= sizeof mark || !source.ReadAll(body.offset, mark, sizeof mark) ||
      std::memcmp(mark, "Exif\0", 5) != 0) {
    return Stretch();
  }
  return {body.offset + sizeof mark, body.length - sizeof mark};
}

}  // namespace

bool BeginsLikeJpeg(const unsigned char* head) {
  return head[0] == 0xFF && head[1] == kStartOfImage && head[2] == 0xFF;
}

bool ReadJpegFields(PhotoSource& source, const Stretch& block, ExifFields& fields) {
  const std::uint64_t end = block.offset + block.length;
  std::uint64_t at = block.offset + 2;
  for (int segment = 0; segment < kMaxSegments; ++segment) {
    unsigned char marker = 0;
    if (!FindMarker(source, end, at, marker) || marker == kEndOfImage) {
      return false;
    }
    if (StandsAlone(marker)) {
      continue;
    }
    unsigned char counted[2];
    if (!source.ReadAll(at, counted, sizeof counted)) {
      return false;
    }
    if (IsFrame(marker) || marker == kStartOfScan) {
      return true;
    }
    const std::uint64_t length = std::uint64_t{counted[0]} << 8U | counted[1];
    if (length < 2) {
      return false;
    }
    if (marker == kApp1) {
      const Stretch exif = ExifBlock(source, {at + 2, std::min(length - 2, end - std::min(end, at + 2))});
      Stretch preview;
      if (exif.length > 0 && ReadExifFields(source, exif, fields, preview)) {
        return true;
      }
    }
    at += length;
  }
  return false;
}

}  // namespace Zenvora::Strandel
