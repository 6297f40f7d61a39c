#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Test {

/// Puts TIFF structures together byte by byte, right or wrong.
class TiffBytes {
 public:
  enum class Order { LittleEndian, BigEndian };

  /// `mark`: what stands in place of the 42.
  explicit TiffBytes(Order order, unsigned mark = 42);

  struct Entry {
    unsigned tag;
    unsigned type;
    unsigned count;
    unsigned value;  ///< Number or offset.
  };
  /// Appends bytes and returns their offset.
  unsigned Add(const std::string& bytes);
  /// An entry for a text with its final NUL, which is appended when it is too long for the entry itself.
  Entry Text(unsigned tag, const std::string& text);
  /// Appends a directory and returns its offset.
  unsigned AddDirectory(const std::vector<Entry>& entries);
  /// The structure with its first directory at `first`.
  std::string Finish(unsigned first) const;

  std::string Number(unsigned value, int bytes) const;

 private:
  const Order order_;
  std::string bytes_;
};

/// The usual structure: a model and an EXIF directory with the original date.
std::string SmallTiff(TiffBytes::Order order, unsigned mark = 42);

}  // namespace Zenvora::Test
