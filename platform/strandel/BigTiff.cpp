#include "BigTiff.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kFirstDirectoryAt = 8;
constexpr std::uint64_t kEntry = 20;
constexpr std::uint64_t kMostEntries = 2000;
constexpr std::size_t kMostValue = std::size_t{64} * 1024;
constexpr std::size_t kMostRead = std::size_t{1024} * 1024;
constexpr std::uint16_t kExifDirectory = 0x8769;
constexpr std::uint16_t kGpsDirectory = 0x8825;

enum Type : std::uint16_t { kLastOfTiff = 12, kDirectory = 13, kLong8 = 16, kDirectory8 = 18 };

std::size_t SizeOfType(std::uint64_t type) {
  static constexpr std::array<std::size_t, 19> kSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                         8, 4, 8, 4, 0, 0, 8, 8, 8};
  return type < kSizes.size() ? kSizes[type] : 0;
}

class Reader {
 public:
  explicit Reader(PhotoSource& source) : source_(source) { bigEndian_ = Bytes(0, 2) == "MM"; }

  Exiv2::ExifData Read() {
    const auto first = Number(kFirstDirectoryAt, 8);
    if (first) {
      ReadDirectory(*first, "Image");
    }
    return exif_;
  }

 private:
  std::string Bytes(std::uint64_t at, std::size_t count) {
    std::string bytes(count, '\0');
    bytes.resize(read_ + count <= kMostRead ? source_.Read(at, bytes.data(), count) : 0);
    read_ += bytes.size();
    return bytes.size() == count ? bytes : std::string();
  }

  std::uint64_t NumberIn(const std::string& bytes, std::size_t at, std::size_t size) const {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
      number = number << 8U | static_cast<unsigned char>(bytes[at + (bigEndian_ ? i : size - 1 - i)]);
    }
    return number;
  }

  std::optional<std::uint64_t> Number(std::uint64_t at, std::size_t size) {
    const std::string bytes = Bytes(at, size);
    return bytes.empty() ? std::nullopt : std::optional(NumberIn(bytes, 0, size));
  }

  void ReadDirectory(std::uint64_t at, const char* group) {
    const std::uint64_t count = std::min(Number(at, 8).value_or(0), kMostEntries);
    for (std::uint64_t index = 0; index < count; ++index) {
      const std::string entry = Bytes(at + 8 + index * kEntry, kEntry);
      if (entry.empty()) {
        return;
      }
      Take(entry, group);
    }
  }

  void Take(const std::string& entry, const char* group) {
    const auto tag = static_cast<std::uint16_t>(NumberIn(entry, 0, 2));
    const auto type = static_cast<std::uint16_t>(NumberIn(entry, 2, 2));
    const std::uint64_t count = NumberIn(entry, 4, 8);
    const std::size_t each = SizeOfType(type);
    if (each == 0 || count == 0 || count > kMostValue / each) {
      return;
    }
    const std::size_t size = each * static_cast<std::size_t>(count);
    const std::string value = size <= 8 ? entry.substr(12, size) : Bytes(NumberIn(entry, 12, 8), size);
    if (value.empty()) {
      return;
    }
    const bool inFirst = std::string(group) == "Image";
    if (inFirst && (tag == kExifDirectory || tag == kGpsDirectory) && count == 1) {
      ReadDirectory(NumberIn(value, 0, each), tag == kExifDirectory ? "Photo" : "GPSInfo");
    } else {
      Add(tag, group, type, value, each);
    }
  }

  void Add(std::uint16_t tag, const char* group, std::uint16_t type, const std::string& bytes,
           std::size_t each) {
    Exiv2::Value::AutoPtr value;
    if (type <= kLastOfTiff) {
      value = Exiv2::Value::create(static_cast<Exiv2::TypeId>(type));
      if (value->read(reinterpret_cast<const Exiv2::byte*>(bytes.data()), static_cast<long>(bytes.size()),
                      bigEndian_ ? Exiv2::bigEndian : Exiv2::littleEndian) != 0) {
        return;
      }
    } else {
      const std::uint64_t number = NumberIn(bytes, 0, each);
      if (bytes.size() != each || number > std::numeric_limits<std::uint32_t>::max()) {
        return;
      }
      value = Exiv2::Value::create(Exiv2::unsignedLong);
      value->read(std::to_string(number));
    }
    exif_.add(Exiv2::ExifKey(tag, group), value.get());
  }

  PhotoSource& source_;
  bool bigEndian_ = false;
  std::size_t read_ = 0;
  Exiv2::ExifData exif_;
};

}  // namespace

Exiv2::ExifData ReadBigTiff(PhotoSource& source) {
  return Reader(source).Read();
}

}  // namespace Zenvora::Strandel
