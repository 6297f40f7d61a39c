#pragma once

#include <host/pixels/PhotoAnalysis.h>

#include <zenvora/core/ioPath.h>

#include <QImage>
#include <QSize>

#include <cstdint>
#include <string>

namespace Zenvora::Lumidex::Host {

/// Pixels of a photo, or why there are none.
struct FoundPixels {
  QImage image;  ///< Upright.
  PixelSource source = PixelSource::None;
  bool isJpeg = false;     ///< The pixels were decoded from the JPEG file itself.
  QSize size;              ///< As in `PhotoDescription`.
  std::string cause;       ///< When the image is null.
  bool isDamaged = false;  ///< A part of the image is not what the picture shows.
};

/// JPEG pictures with at least so many pixels may be shown by a preview that the file carries.
constexpr std::int64_t kPreviewsNever = INT64_MAX;

/// A picture of the file no larger than `longerSide`, from the cheapest source that is large enough: an
/// embedded preview that shows the picture's shape, else the picture decoded at reduced size, else any
/// preview. Never waits on what is no regular file. May throw for want of memory.
FoundPixels FindPixels(const ioPath& file, int longerSide, std::int64_t previewsFrom);

/// What a preview of another shape than the picture's shows between dark bars at two opposite sides; null
/// when it has no such bars, or none that explain its shape. Pure.
QImage BetweenDarkBars(const QImage& preview, const QSize& picture);

}  // namespace Zenvora::Lumidex::Host
