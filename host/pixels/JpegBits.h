#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Zero behind the end.
inline int Byte(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

/// Of two bytes, the higher one first.
inline int Short(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) * 256 + Byte(bytes, at + 1);
}

/// Bits of a scan, up to the next marker.
class JpegBits {
 public:
  JpegBits(std::string_view bytes, std::size_t at) : bytes_(bytes), at_(at) {}

  /// The next bits without going behind them; zeros behind the end.
  std::uint32_t Peek(int count) {
    while (held_ < count) {
      Hold();
    }
    return static_cast<std::uint32_t>(bits_ >> (held_ - count)) & ((1U << count) - 1U);
  }
  void Skip(int count) { held_ -= count; }
  std::uint32_t Read(int count) {
    if (count == 0) {
      return 0;
    }
    const std::uint32_t value = Peek(count);
    Skip(count);
    return value;
  }
  /// More was read than there is.
  bool IsBeyondEnd() const { return invented_ > held_; }

  /// Leaves the bits that fill the last byte, and goes behind the next marker. Returns how many bytes were
  /// left over; none when only such as fill follow.
  std::size_t LeftBefore(int& marker) {
    std::size_t left = static_cast<std::size_t>(std::max(held_ - invented_, 0)) / 8;
    for (; at_ + 1 < bytes_.size(); ++at_) {
      if (Byte(bytes_, at_) == 0xFF && Byte(bytes_, at_ + 1) == 0xFF) {
        continue;
      }
      if (Byte(bytes_, at_) == 0xFF && Byte(bytes_, at_ + 1) != 0) {
        break;
      }
      ++left;
    }
    marker = Byte(bytes_, at_ + 1);
    at_ += 2;
    bits_ = 0;
    held_ = 0;
    invented_ = 0;
    return left;
  }
  std::size_t Position() const { return at_; }

 private:
  void Hold() {
    const int byte = Byte(bytes_, at_);
    const bool isMarker = at_ >= bytes_.size() || (byte == 0xFF && Byte(bytes_, at_ + 1) != 0);
    bits_ = bits_ << 8U | static_cast<std::uint64_t>(isMarker ? 0 : byte);
    held_ += 8;
    if (isMarker) {
      invented_ += 8;
    } else {
      at_ += byte == 0xFF ? 2 : 1;
    }
  }

  const std::string_view bytes_;
  std::size_t at_;
  std::uint64_t bits_ = 0;
  int held_ = 0;
  int invented_ = 0;  ///< Of all those held and taken, how many the file does not have.
};

/// A table of Huffman codes, by the sixteen bits that follow.
class JpegCodes {
 public:
  static constexpr int kLongest = 16;

  bool IsThere() const { return !symbols_.empty(); }

  void Read(std::string_view counts, std::string_view values) {
    symbols_.assign(std::size_t{1} << kLongest, {});
    std::size_t next = 0;
    std::size_t value = 0;
    for (int length = 1; length <= kLongest; ++length) {
      const std::size_t span = std::size_t{1} << (kLongest - length);
      for (int left = Byte(counts, static_cast<std::size_t>(length - 1)); left > 0; --left, ++value) {
        const std::size_t end = std::min(next + span, symbols_.size());
        std::fill(symbols_.begin() + static_cast<std::ptrdiff_t>(std::min(next, end)),
                  symbols_.begin() + static_cast<std::ptrdiff_t>(end),
                  Symbol{static_cast<std::uint8_t>(length), static_cast<std::uint8_t>(Byte(values, value))});
        next = end;
      }
    }
  }

  /// -1 for bits that are no code.
  int Next(JpegBits& bits) const {
    const Symbol& symbol = symbols_[bits.Peek(kLongest)];
    bits.Skip(symbol.length);
    return symbol.length == 0 ? -1 : symbol.value;
  }

 private:
  struct Symbol {
    std::uint8_t length = 0;
    std::uint8_t value = 0;
  };
  std::vector<Symbol> symbols_;
};

}  // namespace Zenvora::Lumidex::Host
