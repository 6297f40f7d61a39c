#include "PictureMarks.h"

#include <zenvora/strandel/FormatByHead.h>

#include <algorithm>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

constexpr const char* kJpegXl = "JPEG XL";
constexpr const char* kRaw = "RAW";

/// JPEG XL has a box of its own before the one with the brands.
constexpr std::string_view kJxlMark("\0\0\0\x0CJXL \r\n\x87\n", 12);
constexpr std::size_t kBrandBytes = kFormatHeadBytes - 16;

struct Mark {
  std::size_t at;
  std::string_view bytes;
  const char* format;
};

constexpr Mark kOpaqueMarks[] = {
    {0, "FOVb", kRaw},         // Sigma X3F
    {0, "IIII", kRaw},         // Phase One, older
    {0, "MMMM", kRaw},         //
    {0, "\xFF\x0A", kJpegXl},  // Bare
};

constexpr Mark kMarks[] = {
    {0, "\xFF\xD8\xFF", "JPEG"},
    {0, "\x89PNG\r\n\x1A\n", "PNG"},
    {8, "WEBP", "WebP"},
    {0, "GIF8", "GIF"},
    {0, "BM", "BMP"},
    {0, "8BPS", "PSD"},
    {0, std::string_view("\0\0\0\x0CjP  ", 8), "JPEG 2000"},
    {0, "\xFF\x4F\xFF\x51", "JPEG 2000"},
    {0, "FUJIFILM", kRaw},
    {0, std::string_view("IIU\0", 4), kRaw},
    {0, "IIRO", kRaw},
    {0, "IIRS", kRaw},
    {0, "MMOR", kRaw},
    {6, "HEAPCCDR", kRaw},
    {0, std::string_view("\0MRM", 4), kRaw},
    {0, std::string_view("II*\0", 4), "TIFF"},
    {0, std::string_view("MM\0*", 4), "TIFF"},
    {0, std::string_view("II+\0", 4), "TIFF"},
    {0, std::string_view("MM\0+", 4), "TIFF"},
};

/// Of those that several formats use the least telling last.
constexpr Mark kBrands[] = {
    {0, "avif", "AVIF"}, {0, "avis", "AVIF"}, {0, "crx ", kRaw},   {0, "jxl ", kJpegXl}, {0, "heic", "HEIC"},
    {0, "heif", "HEIC"}, {0, "heix", "HEIC"}, {0, "heim", "HEIC"}, {0, "heis", "HEIC"},  {0, "hevc", "HEIC"},
    {0, "hevx", "HEIC"}, {0, "hevm", "HEIC"}, {0, "hevs", "HEIC"}, {0, "mif1", "HEIC"},  {0, "mif2", "HEIC"},
    {0, "msf1", "HEIC"}, {0, "miaf", "HEIC"},
};

template <std::size_t count>
std::string FormatIn(const Mark (&marks)[count], std::string_view head) {
  const auto* const found = std::find_if(std::begin(marks), std::end(marks), [head](const Mark& mark) {
    return head.size() >= mark.at && head.substr(mark.at, mark.bytes.size()) == mark.bytes;
  });
  return found == std::end(marks) ? std::string() : std::string(found->format);
}

/// What stands before the box with the brands.
std::size_t BrandBoxAt(std::string_view head) {
  return head.substr(0, kJxlMark.size()) == kJxlMark ? kJxlMark.size() : 0;
}

/// By the box with the brands, whose length comes to `length`; of several formats the one first in the list.
std::string FormatByBrand(std::string_view box, std::size_t& length) {
  if (box.size() < 16 || box.substr(4, 4) != "ftyp") {
    return {};
  }
  length = static_cast<std::size_t>(ByteView(box).Big(0, 4).value_or(0));
  const Mark* best = std::end(kBrands);
  // The first brand, a version, then what else it is compatible with.
  for (std::size_t at = 8; at + 4 <= std::min({length, box.size(), kBrandBytes}); at += at == 8 ? 8 : 4) {
    const Mark* const found = std::find_if(std::begin(kBrands), std::end(kBrands),
                                           [&](const Mark& mark) { return mark.bytes == box.substr(at, 4); });
    best = std::min(best, found);
  }
  return best == std::end(kBrands) ? std::string() : std::string(best->format);
}

}  // namespace

bool BeginsLikeTiff(PhotoSource& source) {
  const std::string_view head = source.At(0, 2).Text();
  return head == "II" || head == "MM";
}

bool BeginsLikeBigTiff(PhotoSource& source) {
  const std::string_view head = source.At(0, 8).Text();
  return head == std::string_view("II+\0\x08\0\0\0", 8) || head == std::string_view("MM\0+\0\x08\0\0", 8);
}

std::string OpaqueFormat(PhotoSource& source) {
  constexpr std::uint64_t kMoreThanAMark = 16;
  return source.Size() > kMoreThanAMark ? FormatIn(kOpaqueMarks, source.At(0, 4).Text()) : std::string();
}

bool BeginsLikeContainer(PhotoSource& source) {
  const std::string_view head = source.At(0, kJxlMark.size()).Text();
  return (head.size() >= 8 && head.substr(4, 4) == "ftyp") || head == kJxlMark;
}

std::string FormatByBrand(PhotoSource& source) {
  const std::string_view head = source.At(0, kFormatHeadBytes).Text();
  const std::size_t start = BrandBoxAt(head);
  std::size_t length = 0;
  const std::string format = FormatByBrand(head.substr(start), length);
  return start + length < source.Size() ? format : std::string();
}

std::string FormatByHead(std::string_view beginning) {
  std::size_t length = 0;
  std::string format = FormatByBrand(beginning.substr(BrandBoxAt(beginning)), length);
  if (format.empty() && BrandBoxAt(beginning) != 0) {
    format = kJpegXl;
  }
  if (format.empty()) {
    format = FormatIn(kOpaqueMarks, beginning);
  }
  return format.empty() ? FormatIn(kMarks, beginning) : format;
}

}  // namespace Zenvora::Strandel
