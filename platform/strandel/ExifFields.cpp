#include "ExifFields.h"

#include <algorithm>
#include <vector>

namespace Zenvora::Strandel {

namespace {

enum Tag : unsigned {
  kJpegOfRaw = 0x002E,
  kModel = 0x0110,
  kExifDirectory = 0x8769,
  kDateTimeOriginal = 0x9003,
  kDateTimeDigitised = 0x9004,
  kSubSecondsOriginal = 0x9291,
  kSubSecondsDigitised = 0x9292,
};

enum Type : unsigned { kByte = 1, kAscii = 2, kLong = 4, kUndefined = 7, kDirectory = 13 };

constexpr std::size_t kEntrySize = 12;
// Longer ones are no date and no camera's name.
constexpr std::size_t kMaxText = 256;

class Reader {
 public:
  Reader(PhotoSource& source, const Stretch& block) : source_(source), block_(block) {}

  /// The offset of the first directory; 0 when the block is no TIFF structure.
  std::uint64_t Begin() {
    unsigned char head[8];
    if (!Get(0, head, sizeof head) || !BeginsLikeTiff(head)) {
      return 0;
    }
    bigEndian_ = head[0] == 'M';
    previewInFirst_ = head[2] == 0x55;
    return Number(head + 4, 4);
  }

  bool ReadDirectory(std::uint64_t offset, ExifFields& fields, std::uint64_t& exif, Stretch& preview) {
    unsigned char counted[2];
    if (offset < 8 || !Get(offset, counted, sizeof counted)) {
      return false;
    }
    const auto count = static_cast<std::size_t>(Number(counted, 2));
    std::vector<unsigned char> table(count * kEntrySize);
    // A table that is cut short still has its first entries.
    const std::size_t whole = GetSome(offset + 2, table.data(), table.size()) / kEntrySize;
    for (std::size_t i = 0; i < whole; ++i) {
      Take(table.data() + i * kEntrySize, fields, exif, preview);
    }
    return whole > 0;
  }

 private:
  std::size_t GetSome(std::uint64_t offset, void* to, std::size_t count) {
    if (offset >= block_.length) {
      return 0;
    }
    const auto inside = static_cast<std::size_t>(std::min<std::uint64_t>(count, block_.length - offset));
    return source_.Read(block_.offset + offset, to, inside);
  }
  bool Get(std::uint64_t offset, void* to, std::size_t count) { return GetSome(offset, to, count) == count; }

  std::uint32_t Number(const unsigned char* bytes, int size) const {
    std::uint32_t number = 0;
    for (int i = 0; i < size; ++i) {
      number = number << 8U | bytes[bigEndian_ ? i : size - 1 - i];
    }
    return number;
  }

  void Take(const unsigned char* entry, ExifFields& fields, std::uint64_t& exif, Stretch& preview) {
    switch (Number(entry, 2)) {
      case kModel:
        return TakeText(entry, fields.model);
      case kDateTimeOriginal:
        return TakeText(entry, fields.original);
      case kDateTimeDigitised:
        return TakeText(entry, fields.digitised);
      case kSubSecondsOriginal:
        return TakeText(entry, fields.originalSubSeconds);
      case kSubSecondsDigitised:
        return TakeText(entry, fields.digitisedSubSeconds);
      case kExifDirectory: {
        const std::uint32_t type = Number(entry + 2, 2);
        if (type == kLong || type == kDirectory) {
          exif = Number(entry + 8, 4);
        }
        return;
      }
      case kJpegOfRaw:
        if (previewInFirst_) {
          preview = {block_.offset + Number(entry + 8, 4), Number(entry + 4, 4)};
        }
        return;
      default:
        return;
    }
  }

  void TakeText(const unsigned char* entry, std::string& text) {
    const std::uint32_t type = Number(entry + 2, 2);
    if (type != kAscii && type != kByte && type != kUndefined) {
      return;
    }
    const std::size_t length = Number(entry + 4, 4);
    std::string found;
    if (length <= 4) {
      found.assign(reinterpret_cast<const char*>(entry) + 8, length);
    } else {
      found.resize(std::min(length, kMaxText));
      found.resize(GetSome(Number(entry + 8, 4), found.data(), found.size()));
    }
    found.resize(std::min(found.size(), found.find('\0')));
    if (!found.empty()) {
      text = found;
    }
  }

  PhotoSource& source_;
  const Stretch block_;
  bool bigEndian_ = false;
  bool previewInFirst_ = false;
};

}  // namespace

bool BeginsLikeTiff(const unsigned char* head) {
  const bool little = head[0] == 'I' && head[1] == 'I';
  const bool big = head[0] == 'M' && head[1] == 'M';
  if (!little && !big) {
    return false;
  }
  const int low = little ? head[2] : head[3];
  const int high = little ? head[3] : head[2];
  const bool tiff = low == 42 && high == 0;
  const bool panasonic = little && low == 0x55 && high == 0;
  const bool olympus = (low == 'R' && (high == 'O' || high == 'S')) || (low == 'S' && high == 'R') ||
                       (low == 'O' && high == 'R');
  return tiff || panasonic || olympus;
}

bool ReadExifFields(PhotoSource& source, const Stretch& block, ExifFields& fields, Stretch& preview) {
  Reader reader(source, block);
  const std::uint64_t first = reader.Begin();
  std::uint64_t exif = 0;
  preview = Stretch();
  if (first == 0 || !reader.ReadDirectory(first, fields, exif, preview)) {
    return false;
  }
  if (exif != 0 && exif != first) {
    std::uint64_t deeper = 0;
    Stretch none;
    reader.ReadDirectory(exif, fields, deeper, none);
  }
  return true;
}

}  // namespace Zenvora::Strandel
