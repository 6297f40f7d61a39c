#include "DeviceBytes.h"
#include "JpegBits.h"
#include "JpegMending.h"

#include <host/pixels/JpegDamage.h>

#include <zenvora/core/FileState.h>
#include <zenvora/quillet/picture/FileDevice.h>
#include <zenvora/strandel/JpegSegments.h>

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace Zenvora::Lumidex::Host {

using Strandel::ByteView;
using Strandel::JpegSegment;
using Strandel::JpegSegments;

namespace {

constexpr int kLastCell = 63;
constexpr std::size_t kMostTables = 4;

struct Component {
  int name = 0;
  int across = 1;  ///< Blocks of a unit.
  int down = 1;
  std::size_t quantisation = 0;
  int width = 0;  ///< In blocks, without those that only fill the last unit.
  int height = 0;
  /// Of progressive pictures: which cells of each block are not zero so far.
  std::vector<std::uint64_t> filled;

  std::size_t light = 0;  ///< Tables of the scan.
  std::size_t detail = 0;
  int before = 0;  ///< The mean of the block before.
};

/// Decodes as little as tells whether the data can be right.
class Picture {
 public:
  explicit Picture(std::string_view bytes) : bytes_(bytes) {}

  bool IsBroken() {
    constexpr int kMostScans = 250;
    int scans = 0;
    JpegSegments segments{ByteView(bytes_)};
    for (auto segment = segments.Next(); segment; segment = segments.Next()) {
      if (segment->marker == JpegSegment::kEndOfImage || scans > kMostScans) {
        return false;
      }
      // Before the first scan no decoder takes it for a picture.
      if (segment->StandsAlone() || !segment->isWhole) {
        return scans > 0;
      }
      const std::string_view body = ByteView(bytes_).Part(segment->body).Text();
      if (segment->marker != JpegSegment::kStartOfScan) {
        if (!ReadSegment(segment->marker, body)) {
          return scans > 0;
        }
        continue;
      }
      if (!BeginScan(body)) {
        return scans > 0;
      }
      std::size_t at = static_cast<std::size_t>(segment->whole.End());
      if (!DecodeScan(at)) {
        return true;
      }
      segments.GoTo(at);
      ++scans;
    }
    return scans > 0 && !segments.IsAtEnd();
  }

 private:
  /// False when the picture is none of those that are looked at.
  bool ReadSegment(int marker, std::string_view segment) {
    switch (marker) {
      case 0xC4:
        ReadCodes(segment);
        return true;
      case 0xDB:
        ReadQuantisation(segment);
        return true;
      case 0xDD:
        interval_ = Short(segment, 0);
        return true;
      case 0xC0:
      case 0xC1:
      case 0xC2:
        isProgressive_ = marker == 0xC2;
        return components_.empty() && ReadFrame(segment);
      default:
        return marker < 0xC0 || marker > 0xCF;
    }
  }

  void ReadCodes(std::string_view segment) {
    constexpr std::size_t kCounts = 16;
    for (std::size_t at = 0; at + 1 + kCounts <= segment.size();) {
      const auto table = static_cast<std::size_t>(Byte(segment, at));
      std::size_t codes = 0;
      for (std::size_t i = 1; i <= kCounts; ++i) {
        codes += static_cast<std::size_t>(Byte(segment, at + i));
      }
      if ((table & 15U) < kMostTables && table >> 4U < 2) {
        codes_[table >> 4U][table & 15U].Read(segment.substr(at + 1, kCounts),
                                              segment.substr(at + 1 + kCounts));
      }
      at += 1 + kCounts + codes;
    }
  }

  void ReadQuantisation(std::string_view segment) {
    for (std::size_t at = 0; at < segment.size();) {
      const bool isWide = Byte(segment, at) >> 4 != 0;
      const auto number = static_cast<std::size_t>(Byte(segment, at) & 15);
      if (number < kMostTables) {
        steps_[number] = isWide ? Short(segment, at + 1) : Byte(segment, at + 1);
      }
      at += isWide ? 129 : 65;
    }
  }

  bool ReadFrame(std::string_view segment) {
    constexpr std::int64_t kMostPixels = 300'000'000;
    const int height = Short(segment, 1);
    const int width = Short(segment, 3);
    const int count = Byte(segment, 5);
    if (Byte(segment, 0) != 8 || height == 0 || width == 0 || std::int64_t{width} * height > kMostPixels ||
        count < 1 || count > 4 || segment.size() < 6 + 3 * static_cast<std::size_t>(count)) {
      return false;
    }
    int across = 1;
    int down = 1;
    for (int i = 0; i < count; ++i) {
      const std::size_t at = 6 + 3 * static_cast<std::size_t>(i);
      Component component;
      component.name = Byte(segment, at);
      component.across = Byte(segment, at + 1) >> 4;
      component.down = Byte(segment, at + 1) & 15;
      component.quantisation = static_cast<std::size_t>(Byte(segment, at + 2)) % kMostTables;
      if (component.across < 1 || component.across > 4 || component.down < 1 || component.down > 4) {
        return false;
      }
      across = std::max(across, component.across);
      down = std::max(down, component.down);
      components_.push_back(component);
    }
    const auto parts = [](int whole, int part) { return (whole + part - 1) / part; };
    unitsAcross_ = parts(width, 8 * across);
    unitsDown_ = parts(height, 8 * down);
    for (Component& component : components_) {
      component.width = parts(parts(width * component.across, across), 8);
      component.height = parts(parts(height * component.down, down), 8);
      if (isProgressive_) {
        component.filled.resize(static_cast<std::size_t>(component.width) *
                                static_cast<std::size_t>(component.height));
      }
    }
    return true;
  }

  /// False when the scan's head makes no sense or names what is not there.
  bool BeginScan(std::string_view head) {
    const auto count = static_cast<std::size_t>(Byte(head, 0));
    if (count < 1 || count > 4 || head.size() != 4 + 2 * count) {
      return false;
    }
    first_ = Byte(head, 1 + 2 * count);
    last_ = Byte(head, 2 + 2 * count);
    isRefined_ = Byte(head, 3 + 2 * count) >> 4 != 0;
    shift_ = Byte(head, 3 + 2 * count) & 15;
    scan_.clear();
    for (std::size_t i = 0; i < count; ++i) {
      const int name = Byte(head, 1 + 2 * i);
      const auto found = std::find_if(components_.begin(), components_.end(),
                                      [name](const Component& one) { return one.name == name; });
      if (found == components_.end()) {
        return false;
      }
      found->light = static_cast<std::size_t>(Byte(head, 2 + 2 * i) >> 4) % kMostTables;
      found->detail = static_cast<std::size_t>(Byte(head, 2 + 2 * i) & 15) % kMostTables;
      scan_.push_back(&*found);
      const bool isWithLight = !isProgressive_ || (first_ == 0 && !isRefined_);
      const bool isWithDetail = !isProgressive_ || first_ > 0;
      if ((isWithLight && !codes_[0][found->light].IsThere()) ||
          (isWithDetail && !codes_[1][found->detail].IsThere())) {
        return false;
      }
    }
    return isProgressive_ ? first_ <= last_ && last_ <= kLastCell && shift_ < 14 &&
                                (first_ == 0 ? last_ == 0 : count == 1)
                          : true;
  }

  /// False when its data are broken. `at`: their first byte, then the marker behind them.
  bool DecodeScan(std::size_t& at) {
    // Some cameras write a few bytes more than the picture has.
    constexpr std::size_t kMostLeft = 16;
    const bool isAlone = scan_.size() == 1;
    const int across = isAlone ? scan_.front()->width : unitsAcross_;
    const std::int64_t units = std::int64_t{across} * (isAlone ? scan_.front()->height : unitsDown_);
    JpegBits bits(bytes_, at);
    int marker = 0;
    for (std::int64_t unit = 0; unit < units; ++unit) {
      if (unit % std::max<std::int64_t>(interval_, 1) == 0 && (unit == 0 || interval_ > 0)) {
        if (unit > 0 && (bits.LeftBefore(marker) > kMostLeft ||
                         marker != 0xD0 + static_cast<int>((unit / interval_ - 1) % 8))) {
          return false;
        }
        run_ = 0;
        for (Component* const component : scan_) {
          component->before = 0;
        }
      }
      if (!DecodeUnit(bits, static_cast<std::size_t>(unit)) || bits.IsBeyondEnd()) {
        return false;
      }
    }
    const std::size_t left = bits.LeftBefore(marker);
    at = bits.Position() - 2;
    const bool isRestart = marker >= 0xD0 && marker <= 0xD7;
    return left <= kMostLeft && (interval_ > 0 || !isRestart);
  }

  bool DecodeUnit(JpegBits& bits, std::size_t unit) {
    for (Component* const component : scan_) {
      const int blocks = scan_.size() == 1 ? 1 : component->across * component->down;
      for (int i = 0; i < blocks; ++i) {
        if (!(isProgressive_ ? DecodePart(bits, *component, unit)
                             : DecodeMean(bits, *component) && DecodeDetail(bits, *component))) {
          return false;
        }
      }
    }
    return true;
  }

  bool DecodePart(JpegBits& bits, Component& component, std::size_t unit) {
    if (first_ == 0) {
      if (isRefined_) {
        bits.Read(1);
        return true;
      }
      return DecodeMean(bits, component);
    }
    std::uint64_t& filled = component.filled[unit];
    return isRefined_ ? RefineDetail(bits, component, filled) : FillDetail(bits, component, filled);
  }

  bool DecodeMean(JpegBits& bits, Component& component) const {
    constexpr int kMostBits = 11;
    // A mean of 128 levels times eight, and as much again for encoders that round oddly.
    constexpr int kMost = 2048;
    const int size = codes_[0][component.light].Next(bits);
    if (size < 0 || size > kMostBits) {
      return false;
    }
    const int value = static_cast<int>(bits.Read(size));
    component.before += size > 0 && value < 1 << (size - 1) ? value - (1 << size) + 1 : value;
    const int step = std::max(steps_[component.quantisation], 1);
    return std::abs(component.before) <= (kMost / step + 1) >> (isProgressive_ ? shift_ : 0);
  }

  bool DecodeDetail(JpegBits& bits, const Component& component) const {
    const JpegCodes& codes = codes_[1][component.detail];
    for (int cell = 1; cell <= kLastCell; ++cell) {
      const int symbol = codes.Next(bits);
      const int size = symbol & 15;
      if (symbol < 0) {
        return false;
      }
      if (symbol == 0) {
        return true;
      }
      cell += symbol >> 4;
      if (cell > kLastCell) {
        return false;
      }
      bits.Read(size);
    }
    return true;
  }

  /// The number of blocks, this one included, that have nothing more; by the code that says so.
  static int RunOf(JpegBits& bits, int power) { return (1 << power) + static_cast<int>(bits.Read(power)); }

  bool FillDetail(JpegBits& bits, const Component& component, std::uint64_t& filled) {
    if (run_ > 0) {
      --run_;
      return true;
    }
    const JpegCodes& codes = codes_[1][component.detail];
    for (int cell = first_; cell <= last_; ++cell) {
      const int symbol = codes.Next(bits);
      const int size = symbol & 15;
      const int skipped = symbol >> 4;
      if (symbol < 0) {
        return false;
      }
      if (size == 0 && skipped < 15) {
        run_ = RunOf(bits, skipped) - 1;
        return true;
      }
      cell += skipped;
      if (cell > last_) {
        return false;
      }
      if (size > 0) {
        bits.Read(size);
        filled |= std::uint64_t{1} << cell;
      }
    }
    return true;
  }

  bool RefineDetail(JpegBits& bits, const Component& component, std::uint64_t& filled) {
    const auto isFilled = [&filled](int cell) { return (filled >> cell & 1U) != 0; };
    const JpegCodes& codes = codes_[1][component.detail];
    int cell = first_;
    for (; run_ == 0 && cell <= last_; ++cell) {
      const int symbol = codes.Next(bits);
      const int size = symbol & 15;
      int skipped = symbol >> 4;
      if (symbol < 0 || size > 1) {
        return false;
      }
      if (size == 0 && skipped < 15) {
        run_ = RunOf(bits, skipped);
        break;
      }
      bits.Read(size);
      for (; cell <= last_; ++cell) {
        if (isFilled(cell)) {
          bits.Read(1);
        } else if (--skipped < 0) {
          break;
        }
      }
      if (cell > last_) {
        return size == 0;
      }
      filled |= static_cast<std::uint64_t>(size) << cell;
    }
    if (run_ > 0) {
      for (; cell <= last_; ++cell) {
        bits.Read(isFilled(cell) ? 1 : 0);
      }
      --run_;
    }
    return true;
  }

  const std::string_view bytes_;
  std::array<std::array<JpegCodes, kMostTables>, 2> codes_;
  std::array<int, kMostTables> steps_{};
  std::vector<Component> components_;
  bool isProgressive_ = false;
  int interval_ = 0;  ///< Units between restarts; 0: there are none.
  int unitsAcross_ = 0;
  int unitsDown_ = 0;

  std::vector<Component*> scan_;
  int first_ = 0;  ///< Cells of the scan.
  int last_ = kLastCell;
  bool isRefined_ = false;
  int shift_ = 0;
  int run_ = 0;
};

}  // namespace

bool HasBrokenJpegData(std::string_view bytes) {
  return Short(bytes, 0) == 0xFFD8 && Picture(bytes).IsBroken();
}

bool IsDamagedJpeg(const ioPath& file) {
  // What is larger is not decoded either.
  constexpr std::uint64_t kMost = 512ULL * 1024 * 1024;
  Quillet::FileDevice device(file);
  if (QueryFile(file).size > kMost || !device.isOpen() || device.peek(2) != "\xFF\xD8") {
    return false;
  }
  QByteArray bytes = device.readAll();
  return HasBrokenJpegData(ViewOf(bytes).Text()) || MendJpeg(bytes);
}

}  // namespace Zenvora::Lumidex::Host
