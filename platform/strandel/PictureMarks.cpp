#include "PictureMarks.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

namespace Zenvora::Strandel {

namespace {

using Head = std::array<char, 16>;

Head HeadOf(PhotoSource& source) {
  Head head = {};
  source.Read(0, head.data(), head.size());
  return head;
}

/// JPEG XL has a box of its own before the one with the brands.
constexpr char kJxlMark[] = "\0\0\0\x0CJXL \r\n\x87\n";
constexpr std::size_t kJxlMarkSize = sizeof kJxlMark - 1;

}  // namespace

bool BeginsLikeTiff(PhotoSource& source) {
  const Head head = HeadOf(source);
  return std::memcmp(head.data(), "II", 2) == 0 || std::memcmp(head.data(), "MM", 2) == 0;
}

bool BeginsLikeOpaquePicture(PhotoSource& source) {
  struct Mark {
    const char* bytes;
    std::size_t length;
  };
  static constexpr Mark kMarks[] = {
      {"FOVb", 4},             // Sigma X3F
      {"IIII", 4},             // Phase One, older
      {"MMMM", 4},             //
      {"II+\0\x08\0\0\0", 8},  // BigTIFF
      {"MM\0+\0\x08\0\0", 8},  //
      {"\xFF\x0A", 2},         // JPEG XL, bare
  };
  const Head head = HeadOf(source);
  return source.Size() > head.size() &&
         std::any_of(std::begin(kMarks), std::end(kMarks), [&](const Mark& mark) {
           return std::memcmp(head.data(), mark.bytes, mark.length) == 0;
         });
}

bool BeginsLikeContainer(PhotoSource& source) {
  const Head head = HeadOf(source);
  return std::memcmp(head.data() + 4, "ftyp", 4) == 0 ||
         std::memcmp(head.data(), kJxlMark, kJxlMarkSize) == 0;
}

bool HasPictureBrand(PhotoSource& source) {
  static constexpr std::array kBrands = {"heic", "heif", "heix", "heim", "heis", "hevc",
                                         "hevx", "hevm", "hevs", "mif1", "mif2", "msf1",
                                         "miaf", "avif", "avis", "crx ", "jxl "};
  constexpr std::size_t kMostBytes = 256;
  const std::size_t start =
      std::memcmp(HeadOf(source).data(), kJxlMark, kJxlMarkSize) == 0 ? kJxlMarkSize : std::size_t{0};
  std::string box(kMostBytes, '\0');
  box.resize(source.Read(start, box.data(), box.size()));
  if (box.size() < 16 || box.compare(4, 4, "ftyp") != 0) {
    return false;
  }
  const auto byte = [&box](std::size_t at) { return std::size_t{static_cast<unsigned char>(box[at])}; };
  const std::size_t length = byte(0) << 24U | byte(1) << 16U | byte(2) << 8U | byte(3);
  if (start + length >= source.Size()) {
    return false;
  }
  // The first brand, a version, then what else it is compatible with.
  for (std::size_t at = 8; at + 4 <= std::min(length, box.size()); at += at == 8 ? 8 : 4) {
    const std::string brand = box.substr(at, 4);
    if (std::find(kBrands.begin(), kBrands.end(), brand) != kBrands.end()) {
      return true;
    }
  }
  return false;
}

}  // namespace Zenvora::Strandel
