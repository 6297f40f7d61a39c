#include "BigTiff.h"

#include <zenvora/strandel/TiffDirectories.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kMostEntries = 2000;
constexpr std::size_t kMostValue = std::size_t{64} * 1024;
constexpr std::size_t kMostRead = std::size_t{1024} * 1024;
constexpr std::uint16_t kExifDirectory = 0x8769;
constexpr std::uint16_t kGpsDirectory = 0x8825;
constexpr std::uint16_t kLastOfClassic = 12;

class Reader {
 public:
  explicit Reader(PhotoSource& source) : tiff_(source, TiffStructure::Form::Big) {}

  Exiv2::ExifData Read() {
    if (const auto first = tiff_.First()) {
      ReadDirectory(*first, "Image");
    }
    return exif_;
  }

 private:
  void ReadDirectory(std::uint64_t at, const std::string& group) {
    const auto directory = tiff_.DirectoryAt(at);
    const std::uint64_t count = directory ? std::min(directory->count, kMostEntries) : 0;
    for (std::uint64_t index = 0; index < count; ++index) {
      const auto entry = tiff_.Entry(*directory, index);
      if (!entry) {
        return;
      }
      ReadEntry(*entry, group);
    }
  }

  void ReadEntry(const TiffEntry& entry, const std::string& group) {
    if (entry.value.size == 0 || entry.value.size > kMostValue || read_ > kMostRead) {
      return;
    }
    const auto size = static_cast<std::size_t>(entry.value.size);
    const std::string value(tiff_.Bytes().At(entry.value.at, size).Text());
    read_ += value.size();
    if (value.size() < size) {
      return;
    }
    const bool inFirst = group == "Image";
    if (inFirst && (entry.tag == kExifDirectory || entry.tag == kGpsDirectory) && entry.count == 1) {
      ReadDirectory(NumberIn(value), entry.tag == kExifDirectory ? "Photo" : "GPSInfo");
    } else {
      Add(entry, group, value);
    }
  }

  /// Of one value of up to eight bytes.
  std::uint64_t NumberIn(const std::string& value) const {
    return ByteView(value).Number(0, value.size(), tiff_.Order()).value_or(0);
  }

  void Add(const TiffEntry& entry, const std::string& group, const std::string& bytes) {
    const bool isClassic = entry.type <= kLastOfClassic;
    const auto value =
        Exiv2::Value::create(isClassic ? static_cast<Exiv2::TypeId>(entry.type) : Exiv2::unsignedLong);
    if (isClassic) {
      if (value->read(reinterpret_cast<const Exiv2::byte*>(bytes.data()), static_cast<long>(bytes.size()),
                      tiff_.Order() == ByteOrder::Big ? Exiv2::bigEndian : Exiv2::littleEndian) != 0) {
        return;
      }
    } else {
      const std::uint64_t number = entry.count == 1 ? NumberIn(bytes) : UINT64_MAX;
      if (number > std::numeric_limits<std::uint32_t>::max()) {
        return;
      }
      value->read(std::to_string(number));
    }
    exif_.add(Exiv2::ExifKey(entry.tag, group), value.get());
  }

  const TiffStructure tiff_;
  std::size_t read_ = 0;
  Exiv2::ExifData exif_;
};

}  // namespace

Exiv2::ExifData ReadBigTiff(PhotoSource& source) {
  return Reader(source).Read();
}

}  // namespace Zenvora::Strandel
