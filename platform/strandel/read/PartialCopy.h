#pragma once

#include <zenvora/strandel/PhotoSource.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Zenvora::Strandel {

/// A file in memory of which only some parts have been read; the others are zeros that the system provides
/// when they are looked at, so that they cost no reading; on Linux no memory either.
///
/// For Exiv2, which wants TIFF and raw files whole, of which mostly a few kilobytes matter.
class PartialCopy {
 public:
  /// `source` outlives it. Reads nothing yet.
  explicit PartialCopy(PhotoSource& source);

  /// The file's size, but no more than Exiv2 can count.
  std::uint64_t Size() const { return size_; }
  /// True when the file has more than that.
  bool IsCut() const;
  bool Begun() const { return bytes_ != nullptr; }
  bool Complete() const { return front_ == size_; }

  /// The bytes. The first call reads the beginning of the file and, where a TIFF header points to a first
  /// directory elsewhere, the parts around that. Throws `std::bad_alloc`.
  unsigned char* Bytes();

  /// Reads what is not there yet of the surroundings of `offset`; true when that was worth it.
  bool ReadAround(std::uint64_t offset);
  /// Reads up to `end`; true when that brought anything new.
  bool ReadFront(std::uint64_t end);

 private:
  struct Free {
    std::size_t size;
    void operator()(unsigned char* bytes) const;
  };
  using Memory = std::unique_ptr<unsigned char, Free>;
  struct Part {
    std::uint64_t begin;
    std::uint64_t end;
  };

  /// Straight from the system: an allocator may give used memory again, and then clears all of it. Throws
  /// `std::bad_alloc`.
  static Memory Allocate(std::size_t size);
  std::uint64_t FirstDirectory() const;
  bool Covers(std::uint64_t offset) const;

  PhotoSource& source_;
  const std::uint64_t size_;
  Memory bytes_{nullptr, Free{0}};
  /// Everything before it has been read.
  std::uint64_t front_ = 0;
  std::vector<Part> parts_;
};

}  // namespace Zenvora::Strandel
