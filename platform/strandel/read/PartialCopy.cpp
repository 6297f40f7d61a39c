#include "PartialCopy.h"

#include <zenvora/strandel/TiffDirectories.h>

#include <algorithm>
#include <limits>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kMiB = std::uint64_t{1024} * 1024;
constexpr std::uint64_t kFront = kMiB;
constexpr std::uint64_t kAround = kMiB / 2;
/// So much behind its beginning holds most directories with their short values.
constexpr std::uint64_t kDirectory = std::uint64_t{8} * 1024;

/// Exiv2 counts in `long`, and in TIFF files in 32 bits.
constexpr std::uint64_t kMostCounted =
    std::min<std::uint64_t>(std::numeric_limits<long>::max(), std::numeric_limits<std::uint32_t>::max());

}  // namespace

PartialCopy::PartialCopy(PhotoSource& source)
    : source_(source), size_(std::min(source.Size(), kMostCounted)) {}

bool PartialCopy::IsCut() const {
  return source_.Size() > size_;
}

unsigned char* PartialCopy::Bytes() {
  if (!Begun()) {
    const auto size = static_cast<std::size_t>(size_) + 1;
    bytes_ = Allocate(size);
    ReadFront(kFront);
    ReadAround(FirstDirectory());
  }
  return bytes_.get();
}

bool PartialCopy::ReadAround(std::uint64_t offset) {
  if (offset >= size_ || Covers(offset)) {
    return false;
  }
  const Part part{std::max(front_, offset - std::min(offset, kAround)), std::min(size_, offset + kAround)};
  source_.Read(part.begin, bytes_.get() + part.begin, static_cast<std::size_t>(part.end - part.begin));
  parts_.push_back(part);
  return true;
}

bool PartialCopy::ReadFront(std::uint64_t end) {
  end = std::min(end, size_);
  if (end <= front_) {
    return false;
  }
  source_.Read(front_, bytes_.get() + front_, static_cast<std::size_t>(end - front_));
  front_ = end;
  return true;
}

std::uint64_t PartialCopy::FirstDirectory() const {
  const ByteView bytes(std::string_view(reinterpret_cast<const char*>(bytes_.get()), size_));
  return TiffStructure(bytes, TiffStructure::Form::Classic).First().value_or(0);
}

bool PartialCopy::Covers(std::uint64_t offset) const {
  const std::uint64_t end = std::min(size_, offset + kDirectory);
  return end <= front_ || std::any_of(parts_.begin(), parts_.end(), [&](const Part& part) {
           return part.begin <= offset && end <= part.end;
         });
}

}  // namespace Zenvora::Strandel
