#include <zenvora/strandel/TiffDirectories.h>

#include <algorithm>
#include <array>

namespace Zenvora::Strandel {

namespace {

enum Type : std::uint16_t { kShort = 3, kLong = 4, kDirectory = 13, kLong8 = 16, kDirectory8 = 18 };

constexpr std::uint16_t kSubDirectories = 0x014A;
/// More than that no classic file can have.
constexpr std::uint64_t kMostEntries = 0xFFFF;

std::uint64_t Product(std::uint64_t a, std::uint64_t b) {
  return b != 0 && a > UINT64_MAX / b ? UINT64_MAX : a * b;
}

}  // namespace

TiffStructure::TiffStructure(ByteSource bytes, Form form)
    : bytes_(bytes),
      form_(form),
      order_(bytes.At(0, 1).BeginsWith("M") ? ByteOrder::Big : ByteOrder::Little) {}

std::optional<std::uint64_t> TiffStructure::First() const {
  return IsBig() ? Number(8, 8) : Number(4, 4);
}

std::optional<TiffDirectory> TiffStructure::DirectoryAt(std::uint64_t at) const {
  const auto count = Number(at, CountBytes());
  if (!count) {
    return std::nullopt;
  }
  TiffDirectory directory{at, *count, false};
  directory.isWhole = directory.count <= kMostEntries && EndOf(directory) <= bytes_.Size();
  return directory;
}

std::optional<TiffEntry> TiffStructure::Entry(const TiffDirectory& directory, std::uint64_t index) const {
  TiffEntry entry;
  entry.at = directory.at + CountBytes() + Product(index, EntryBytes());
  const ByteView bytes = bytes_.At(entry.at, EntryBytes());
  if (bytes.Size() < EntryBytes()) {
    return std::nullopt;
  }
  entry.tag = static_cast<std::uint16_t>(*bytes.Number(0, 2, order_));
  entry.type = static_cast<std::uint16_t>(*bytes.Number(2, 2, order_));
  entry.count = *bytes.Number(4, PlaceBytes(), order_);
  entry.value.size = Product(entry.count, SizeOfType(entry.type));
  const std::uint64_t valueAt = 4 + PlaceBytes();
  entry.value.at =
      entry.value.size <= PlaceBytes() ? entry.at + valueAt : *bytes.Number(valueAt, PlaceBytes(), order_);
  return entry;
}

std::optional<TiffEntry> TiffStructure::Find(const TiffDirectory& directory, std::uint16_t tag) const {
  for (std::uint64_t index = 0; index < std::min(directory.count, kMostEntries); ++index) {
    auto entry = Entry(directory, index);
    if (!entry || entry->tag == tag) {
      return entry;
    }
  }
  return std::nullopt;
}

std::optional<std::uint64_t> TiffStructure::Next(const TiffDirectory& directory) const {
  return Number(EndOf(directory), PlaceBytes());
}

std::uint64_t TiffStructure::EndOf(const TiffDirectory& directory) const {
  return ByteRange{directory.at + CountBytes(), Product(directory.count, EntryBytes())}.End();
}

std::vector<std::uint64_t> TiffStructure::Numbers(const TiffEntry& entry, std::uint64_t most) const {
  const bool isWhole = entry.type == kShort || entry.type == kLong || entry.type == kDirectory ||
                       entry.type == kLong8 || entry.type == kDirectory8;
  const std::size_t size = SizeOfType(entry.type);
  if (!isWhole || size == 0 || entry.count > most) {
    return {};
  }
  const ByteView bytes = bytes_.At(entry.value.at, static_cast<std::size_t>(entry.value.size));
  std::vector<std::uint64_t> numbers(bytes.Size() / size);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    numbers[i] = *bytes.Number(i * size, size, order_);
  }
  return numbers;
}

std::size_t TiffStructure::SizeOfType(std::uint64_t type) const {
  static constexpr std::array<std::size_t, 19> kSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                         8, 4, 8, 4, 0, 0, 8, 8, 8};
  return type <= (IsBig() ? kDirectory8 : kDirectory) ? kSizes[type] : 0;
}

TiffDirectories::TiffDirectories(const TiffStructure& tiff)
    : tiff_(tiff), waiting_{tiff.First().value_or(0)} {}

std::optional<TiffDirectory> TiffDirectories::Next() {
  constexpr std::size_t kMost = 100;
  while (!waiting_.empty() && seen_.size() < kMost) {
    const std::uint64_t at = waiting_.back();
    waiting_.pop_back();
    if (at != 0 && seen_.insert(at).second) {
      const TiffDirectory directory = tiff_.DirectoryAt(at).value_or(TiffDirectory{at, 0, false});
      if (directory.isWhole) {
        Enqueue(directory);
      }
      return directory;
    }
  }
  return std::nullopt;
}

void TiffDirectories::Enqueue(const TiffDirectory& directory) {
  constexpr std::uint64_t kMostBelow = 1000;
  if (const auto below = tiff_.Find(directory, kSubDirectories)) {
    const std::vector<std::uint64_t> places = tiff_.Numbers(*below, kMostBelow);
    waiting_.insert(waiting_.end(), places.begin(), places.end());
  }
  waiting_.push_back(tiff_.Next(directory).value_or(0));
}

}  // namespace Zenvora::Strandel
