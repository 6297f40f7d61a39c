#include "JpegBits.h"

#include <host/pixels/JpegTables.h>

#include <zenvora/strandel/JpegSegments.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace Zenvora::Lumidex::Host {

using Strandel::ByteView;
using Strandel::JpegSegment;
using Strandel::JpegSegments;

namespace {

constexpr std::size_t kCells = 64;
using Table = std::array<int, kCells>;

/// The standard's example for light (ITU-T T.81, table K.1), in the order in which files store it.
constexpr Table kStandard = {16, 11, 12,  14,  12,  10, 16, 14,  13,  14,  18,  17,  16, 19,  24,  40,
                             26, 24, 22,  22,  24,  49, 35, 37,  29,  40,  58,  51,  61, 60,  57,  51,
                             56, 55, 64,  72,  92,  78, 64, 68,  87,  69,  55,  56,  80, 109, 81,  87,
                             95, 98, 103, 104, 103, 62, 77, 113, 121, 112, 100, 120, 92, 101, 103, 99};

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
  const ByteView bytes(beginning);
  JpegSegments segments(bytes);
  for (auto segment = segments.Next(); segment && segment->isWhole; segment = segments.Next()) {
    const ByteView body = bytes.Part(segment->body);
    if (segment->marker == JpegSegment::kStartOfScan || segment->marker == JpegSegment::kEndOfImage) {
      break;
    }
    if (segment->marker == JpegSegment::kQuantisation) {
      ReadQuantisation(body.Text(), tables);
    } else if (segment->IsFrame() && body.Size() >= 5) {
      const QSize size = Strandel::JpegFrameSize(body);
      tables.height = size.height();
      tables.width = size.width();
    } else if (segment->marker == JpegSegment::kApp0 && body.BeginsWith("JFIF")) {
      tables.hasJfif = true;
    } else if (segment->marker == JpegSegment::kApp13 && body.BeginsWith("Photoshop")) {
      tables.hasEditorBlock = true;
    }
  }
  return tables;
}

}  // namespace Zenvora::Lumidex::Host
