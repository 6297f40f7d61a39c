#include <zenvora/strandel/JpegHead.h>

#include <cstdint>
#include <optional>

namespace Zenvora::Strandel {

namespace {

constexpr int kOrientation = 0x0112;
constexpr int kThumbnailAt = 0x0201;
constexpr int kThumbnailBytes = 0x0202;

/// A stretch of bytes that answers questions beyond its end with nothing.
class Bytes {
 public:
  Bytes(const unsigned char* begin, std::size_t size) : begin_(begin), size_(size) {}

  std::size_t Size() const { return size_; }
  bool Has(std::size_t at, std::size_t count) const { return at <= size_ && count <= size_ - at; }
  unsigned char At(std::size_t at) const { return begin_[at]; }
  const char* From(std::size_t at) const { return reinterpret_cast<const char*>(begin_) + at; }
  Bytes Part(std::size_t at, std::size_t count) const { return {begin_ + at, count}; }

  /// An unsigned number of `count` bytes.
  std::optional<std::uint32_t> Number(std::size_t at, std::size_t count, bool bigEndian) const {
    if (!Has(at, count)) {
      return std::nullopt;
    }
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < count; ++i) {
      number = number << 8U | begin_[at + (bigEndian ? i : count - 1 - i)];
    }
    return number;
  }

 private:
  const unsigned char* begin_;
  std::size_t size_;
};

/// The TIFF structure of an EXIF block.
class Exif {
 public:
  explicit Exif(const Bytes& bytes) : bytes_(bytes), bigEndian_(bytes.Size() > 0 && bytes.At(0) == 'M') {}

  std::optional<std::uint32_t> FirstDirectory() const { return bytes_.Number(4, 4, bigEndian_); }

  std::optional<std::uint32_t> DirectoryAfter(std::uint32_t directory) const {
    const auto count = bytes_.Number(directory, 2, bigEndian_);
    return count ? bytes_.Number(std::size_t{directory} + 2 + std::size_t{*count} * kEntry, 4, bigEndian_)
                 : std::nullopt;
  }

  /// A whole number, SHORT or LONG.
  std::optional<std::uint32_t> Field(std::uint32_t directory, std::uint32_t tag) const {
    const auto count = bytes_.Number(directory, 2, bigEndian_);
    for (std::uint32_t i = 0; i < count.value_or(0); ++i) {
      const std::size_t entry = std::size_t{directory} + 2 + std::size_t{i} * kEntry;
      const auto found = bytes_.Number(entry, 2, bigEndian_);
      if (!found) {
        break;
      }
      if (*found == tag) {
        const std::uint32_t type = bytes_.Number(entry + 2, 2, bigEndian_).value_or(0);
        return bytes_.Number(entry + 8, type == kShort ? 2 : 4, bigEndian_);
      }
    }
    return std::nullopt;
  }

  QByteArray Thumbnail(std::uint32_t directory) const {
    const auto at = Field(directory, kThumbnailAt);
    const auto size = Field(directory, kThumbnailBytes);
    if (!at || !size || *size < 4 || !bytes_.Has(*at, *size) || bytes_.At(*at) != 0xFF ||
        bytes_.At(*at + 1) != 0xD8) {
      return {};
    }
    return {bytes_.From(*at), static_cast<int>(*size)};
  }

 private:
  static constexpr std::size_t kEntry = 12;
  static constexpr std::uint32_t kShort = 3;

  const Bytes bytes_;
  const bool bigEndian_;
};

void ReadExif(const Bytes& block, JpegHead& head) {
  const Exif exif(block);
  const auto first = exif.FirstDirectory();
  if (!first) {
    return;
  }
  head.orientation = static_cast<int>(exif.Field(*first, kOrientation).value_or(1));
  if (const auto second = exif.DirectoryAfter(*first); second && *second != 0) {
    head.thumbnail = exif.Thumbnail(*second);
  }
}

bool IsExif(const Bytes& segment) {
  return segment.Size() > 14 && QByteArray::fromRawData(segment.From(0), 4) == "Exif" && segment.At(4) == 0 &&
         ((segment.At(6) == 'I' && segment.At(7) == 'I') || (segment.At(6) == 'M' && segment.At(7) == 'M'));
}

/// All that begin a frame, whatever its coding.
bool IsFrame(unsigned char marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

}  // namespace

JpegHead ReadJpegHead(const QByteArray& beginning) {
  constexpr unsigned char kApp1 = 0xE1;
  constexpr unsigned char kScan = 0xDA;
  JpegHead head;
  const Bytes bytes(reinterpret_cast<const unsigned char*>(beginning.constData()),
                    static_cast<std::size_t>(beginning.size()));
  bool exifRead = false;
  std::size_t at = 2;
  while (bytes.Has(at, 4) && bytes.At(at) == 0xFF) {
    const unsigned char marker = bytes.At(at + 1);
    if (marker == 0xFF) {
      ++at;
      continue;
    }
    const std::size_t length = *bytes.Number(at + 2, 2, true);
    if (marker == kScan || length < 2 || !bytes.Has(at + 2, length)) {
      break;
    }
    const Bytes segment = bytes.Part(at + 4, length - 2);
    if (marker == kApp1 && !exifRead && IsExif(segment)) {
      ReadExif(segment.Part(6, segment.Size() - 6), head);
      exifRead = true;
    } else if (IsFrame(marker) && segment.Has(0, 5)) {
      head.size = {static_cast<int>(*segment.Number(3, 2, true)),
                   static_cast<int>(*segment.Number(1, 2, true))};
      break;
    }
    at += 2 + length;
  }
  return head;
}

}  // namespace Zenvora::Strandel
