#pragma once

#include <zenvora/strandel/Export.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Zenvora::Strandel {

/// A part of a file. What repeats the claims of a damaged file may reach beyond the file's end.
struct ByteRange {
  std::uint64_t at = 0;
  std::uint64_t size = 0;  ///< Bytes.

  /// Behind its last byte; the largest number where the sum is larger.
  std::uint64_t End() const { return size > UINT64_MAX - at ? UINT64_MAX : at + size; }
};

enum class ByteOrder { Big, Little };

/// Bytes in memory. Nothing beyond their end can be read, and no part of a view leaves it. It owns nothing:
/// the bytes outlive it. Pure.
class ByteView {
 public:
  ByteView() = default;
  ByteView(std::string_view bytes) : bytes_(bytes) {}
  ByteView(const std::string& bytes) : bytes_(bytes) {}

  std::size_t Size() const { return bytes_.size(); }
  std::string_view Text() const { return bytes_; }
  bool BeginsWith(std::string_view mark) const { return bytes_.substr(0, mark.size()) == mark; }

  /// The bytes of the range, as far as they are there.
  ByteView Part(ByteRange range) const {
    const std::size_t at = static_cast<std::size_t>(std::min<std::uint64_t>(range.at, bytes_.size()));
    return bytes_.substr(at, static_cast<std::size_t>(std::min<std::uint64_t>(range.size, bytes_.size())));
  }

  /// The unsigned number in `size` bytes, 1 to 8; nothing when one of them is not there.
  std::optional<std::uint64_t> Number(std::uint64_t at, std::size_t size, ByteOrder order) const {
    const std::string_view bytes = Part({at, size}).Text();
    if (bytes.size() < size) {
      return std::nullopt;
    }
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
      number = number << 8U | static_cast<unsigned char>(bytes[order == ByteOrder::Big ? i : size - 1 - i]);
    }
    return number;
  }
  std::optional<std::uint64_t> Big(std::uint64_t at, std::size_t size) const {
    return Number(at, size, ByteOrder::Big);
  }
  std::optional<std::uint64_t> Little(std::uint64_t at, std::size_t size) const {
    return Number(at, size, ByteOrder::Little);
  }

 private:
  std::string_view bytes_;
};

/// What reads bytes by their place, from a file or a device.
class ZENVORA_STRANDEL_EXPORT ByteReader {
 public:
  virtual ~ByteReader() = default;
  virtual std::uint64_t Size() const = 0;
  /// At most `count` bytes from `at` on; fewer at the end and after a failure. The view holds until the next
  /// call. May block on a disk.
  virtual ByteView At(std::uint64_t at, std::size_t count) = 0;
};

/// Bytes by their place: in memory, or as a reader brings them. Cheap to copy; whatever it was made of
/// outlives it.
class ByteSource {
 public:
  ByteSource(ByteView memory) : memory_(memory) {}
  ByteSource(const std::string& memory) : memory_(memory) {}
  ByteSource(ByteReader& reader) : reader_(&reader) {}

  std::uint64_t Size() const { return reader_ != nullptr ? reader_->Size() : memory_.Size(); }
  /// As `ByteReader::At`.
  ByteView At(std::uint64_t at, std::size_t count) const {
    return reader_ != nullptr ? reader_->At(at, count) : memory_.Part({at, count});
  }

 private:
  ByteView memory_;
  ByteReader* reader_ = nullptr;
};

}  // namespace Zenvora::Strandel
