#include "TiffParts.h"

#include "DeviceBytes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Host {

using Strandel::ByteRange;
using Strandel::ByteSource;
using Strandel::TiffDirectory;
using Strandel::TiffStructure;

namespace {

enum Tag : std::uint16_t {
  kWidth = 0x0100,
  kLength = 0x0101,
  kBitsPerSample = 0x0102,
  kCompression = 0x0103,
  kPhotometric = 0x0106,
  kStrips = 0x0111,
  kSamples = 0x0115,
  kRowsPerStrip = 0x0116,
  kStripBytes = 0x0117,
  kPlanes = 0x011C,
  kTileWidth = 0x0142,
  kTileLength = 0x0143,
  kTiles = 0x0144,
  kTileBytes = 0x0145,
};

struct Parts {
  std::uint16_t places;
  std::uint16_t sizes;
};
constexpr std::array kParts = {Parts{kStrips, kStripBytes}, Parts{kTiles, kTileBytes}};

class Picture {
 public:
  Picture(const TiffStructure& tiff, const TiffDirectory& directory) : tiff_(tiff), directory_(directory) {}

  bool HoldsAll(const Parts& parts) const {
    const std::vector<std::uint64_t> places = Numbers(parts.places);
    const std::vector<std::uint64_t> sizes = Numbers(parts.sizes);
    for (std::size_t i = 0; i < std::min(places.size(), sizes.size()); ++i) {
      if (!Holds({places[i], sizes[i]})) {
        return false;
      }
    }
    return true;
  }

  /// Whether the numbers of that tag are of a kind that is understood, as many as claimed and not too many.
  bool Says(std::uint16_t tag) const {
    const auto entry = tiff_.Find(directory_, tag);
    return !entry || Numbers(tag).size() == entry->count;
  }

  /// Whether there is room behind each place for what the picture's size calls for. Of compressed pictures
  /// nobody knows, nor of those whose colours are stored less often than their light.
  bool HasRoom() const {
    constexpr std::uint64_t kPlain = 1;
    constexpr std::uint64_t kLightAndColours = 6;
    if (Number(kCompression, kPlain) != kPlain || Number(kPhotometric, 0) == kLightAndColours) {
      return true;
    }
    const bool isTiled = tiff_.Find(directory_, kTiles).has_value();
    const std::uint64_t height = Number(kLength, 0);
    const std::uint64_t rows = isTiled ? Number(kTileLength, 0)
                                       : std::clamp<std::uint64_t>(Number(kRowsPerStrip, height), 1,
                                                                   std::max<std::uint64_t>(height, 1));
    const std::uint64_t row = BytesOfRow(isTiled ? Number(kTileWidth, 0) : Number(kWidth, 0));
    const std::vector<std::uint64_t> places = Numbers(isTiled ? kTiles : kStrips);
    const std::uint64_t perPlane = (height + rows - 1) / std::max<std::uint64_t>(rows, 1);
    for (std::size_t i = 0; i < places.size(); ++i) {
      const std::uint64_t first = isTiled || perPlane == 0 ? 0 : i % perPlane * rows;
      if (!Holds({places[i], row * (isTiled ? rows : std::min(rows, height - first))})) {
        return false;
      }
    }
    return true;
  }

 private:
  bool Holds(ByteRange range) const { return range.End() <= tiff_.Bytes().Size(); }

  std::vector<std::uint64_t> Numbers(std::uint16_t tag) const {
    constexpr std::uint64_t kMost = 1'000'000;
    const auto entry = tiff_.Find(directory_, tag);
    return entry ? tiff_.Numbers(*entry, kMost) : std::vector<std::uint64_t>();
  }
  /// Bounded, so that the product of three is a number.
  std::uint64_t Number(std::uint16_t tag, std::uint64_t otherwise) const {
    constexpr std::uint64_t kMost = 0xFFFFF;
    const std::vector<std::uint64_t> numbers = Numbers(tag);
    return std::min(numbers.empty() ? otherwise : numbers.front(), kMost);
  }
  std::uint64_t BytesOfRow(std::uint64_t width) const {
    constexpr std::uint64_t kApart = 2;
    const std::uint64_t samples = Number(kPlanes, 1) == kApart ? 1 : Number(kSamples, 1);
    return (width * std::min<std::uint64_t>(Number(kBitsPerSample, 1), 64) *
                std::min<std::uint64_t>(samples, 64) +
            7) /
           8;
  }

  const TiffStructure& tiff_;
  const TiffDirectory& directory_;
};

/// Nothing for what is no TIFF file.
std::optional<TiffStructure::Form> FormOf(const ByteSource& file) {
  const std::string_view head = file.At(0, 4).Text();
  if (head == std::string_view("II*\0", 4) || head == std::string_view("MM\0*", 4)) {
    return TiffStructure::Form::Classic;
  }
  const bool isBig = head == std::string_view("II+\0", 4) || head == std::string_view("MM\0+", 4);
  return isBig ? std::optional(TiffStructure::Form::Big) : std::nullopt;
}

}  // namespace

bool HoldsAllParts(const TiffStructure& tiff, const TiffDirectory& directory) {
  const Picture picture(tiff, directory);
  return std::all_of(kParts.begin(), kParts.end(),
                     [&picture](const Parts& parts) { return picture.HoldsAll(parts); });
}

bool HoldsFirstPicture(const ByteSource& file) {
  const auto form = FormOf(file);
  if (!form) {
    return true;
  }
  const TiffStructure tiff(file, *form);
  const auto directory = tiff.DirectoryAt(tiff.First().value_or(0));
  if (!directory || !directory->isWhole) {
    return false;
  }
  const Picture picture(tiff, *directory);
  const auto isSaid = [&picture](const Parts& parts) {
    return picture.Says(parts.places) && picture.Says(parts.sizes);
  };
  return std::all_of(kParts.begin(), kParts.end(), isSaid) && HoldsAllParts(tiff, *directory) &&
         picture.HasRoom();
}

bool HoldsFirstPicture(QIODevice& device) {
  DeviceBytes bytes(device);
  return HoldsFirstPicture(ByteSource(bytes));
}

}  // namespace Zenvora::Lumidex::Host
