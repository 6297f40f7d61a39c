#include <host/pixels/JpegTables.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::size_t kCells = 64;
using Table = std::array<int, kCells>;

/// The standard's example for light (ITU-T T.81, table K.1), in the order in which files store it.
constexpr Table kStandard = {16, 11, 12,  14,  12,  10, 16, 14,  13,  14,  18,  17,  16, 19,  24,  40,
                             26, 24, 22,  22,  24,  49, 35, 37,  29,  40,  58,  51,  61, 60,  57,  51,
                             56, 55, 64,  72,  92,  78, 64, 68,  87,  69,  55,  56,  80, 109, 81,  87,
                             95, 98, 103, 104, 103, 62, 77, 113, 121, 112, 100, 120, 92, 101, 103, 99};

int Byte(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

int Short(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) * 256 + Byte(bytes, at + 1);
}

/// As the common JPEG library scales the standard's table by a quality of 1..100.
bool IsScaledStandard(const Table& table) {
  for (int quality = 1; quality <= 100; ++quality) {
    const int percent = quality < 50 ? 5000 / quality : 200 - 2 * quality;
    const auto isScaled = [percent](int cell, int standard) {
      return cell == std::clamp((standard * percent + 50) / 100, 1, 255);
    };
    if (std::equal(table.begin(), table.end(), kStandard.begin(), isScaled)) {
      return true;
    }
  }
  return false;
}

void ReadQuantisation(std::string_view segment, JpegTables& tables) {
  constexpr int kLight = 0;
  std::size_t at = 0;
  while (at < segment.size()) {
    const bool isWide = Byte(segment, at) >> 4 != 0;
    const int number = Byte(segment, at) & 15;
    const std::size_t length = isWide ? 2 * kCells : kCells;
    if (at + 1 + length > segment.size()) {
      return;
    }
    if (number == kLight && tables.quantisation == 0) {
      Table table{};
      int sum = 0;
      for (std::size_t i = 0; i < kCells; ++i) {
        table[i] = isWide ? Short(segment, at + 1 + 2 * i) : Byte(segment, at + 1 + i);
        sum += table[i];
      }
      tables.quantisation = static_cast<double>(sum) / kCells;
      tables.isStandard = IsScaledStandard(table);
    }
    at += 1 + length;
  }
}

}  // namespace

JpegTables ReadJpegTables(std::string_view beginning) {
  JpegTables tables;
  if (Short(beginning, 0) != 0xFFD8) {
    return tables;
  }
  tables.isJpeg = true;
  const auto begins = [](std::string_view segment, std::string_view mark) {
    return segment.compare(0, mark.size(), mark) == 0;
  };
  std::size_t at = 2;
  while (at + 4 <= beginning.size() && Byte(beginning, at) == 0xFF) {
    const int marker = Byte(beginning, at + 1);
    if (marker == 0xFF) {
      ++at;
      continue;
    }
    const auto length = static_cast<std::size_t>(Short(beginning, at + 2));
    if (marker == 0xDA || length < 2 || at + 2 + length > beginning.size()) {
      break;
    }
    const std::string_view segment = beginning.substr(at + 4, length - 2);
    const bool isFrame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    if (marker == 0xDB) {
      ReadQuantisation(segment, tables);
    } else if (isFrame && segment.size() >= 5) {
      tables.height = Short(segment, 1);
      tables.width = Short(segment, 3);
    } else if (marker == 0xE0 && begins(segment, "JFIF")) {
      tables.hasJfif = true;
    } else if (marker == 0xED && begins(segment, "Photoshop")) {
      tables.hasEditorBlock = true;
    }
    at += 2 + length;
  }
  return tables;
}

}  // namespace Zenvora::Lumidex::Host
