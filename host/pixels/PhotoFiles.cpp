#include "PixelSources.h"

#include <host/pixels/PhotoFiles.h>

#include <exception>

namespace Zenvora::Lumidex::Host {

namespace {

/// Above this, taking an embedded preview saves more than looking for it costs.
constexpr std::int64_t kWorthLooking = 4'000'000;

}  // namespace

QImage LoadThumbnail(const ioPath& file, int longerSide) {
  if (longerSide < 1) {
    return {};
  }
  try {
    return FindPixels(file, longerSide, kWorthLooking).image;
  } catch (const std::exception&) {
    return {};  // Out of memory, or a file that vanished: no picture either way.
  }
}

}  // namespace Zenvora::Lumidex::Host
