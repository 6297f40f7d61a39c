#include "PhotoPixels.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <mutex>

namespace Zenvora::Lumidex::Host {

namespace {

/// Decoders that must hold the whole picture take about 4 bytes a pixel, JPEG's far fewer.
constexpr std::int64_t kMostPixels = 100'000'000;
constexpr std::int64_t kMostJpegPixels = 300'000'000;
/// From here on one picture at a time, whatever the number of threads.
constexpr std::int64_t kLargePixels = 40'000'000;

bool IsJpeg(const QByteArray& format) {
  return format == "jpeg" || format == "jpg";
}

/// Formats without a reliable signature would claim any file.
bool IsPhotoFormat(const QByteArray& format) {
  constexpr std::array kFormats = {"jpeg", "jpg", "png", "tiff", "tif",  "webp",
                                   "gif",  "bmp", "jp2", "heic", "heif", "avif"};
  return std::any_of(kFormats.begin(), kFormats.end(),
                     [&format](const char* known) { return format == known; });
}

QImage InSrgb(QImage image) {
  const QColorSpace space = image.colorSpace();
  if (space.isValid() && space != QColorSpace(QColorSpace::SRgb)) {
    image = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    image.convertToColorSpace(QColorSpace::SRgb);
  }
  return image;
}

}  // namespace

QSize FittedSize(const QSize& size, int longerSide) {
  const int longer = std::max(size.width(), size.height());
  if (longer <= longerSide || size.isEmpty()) {
    return size;
  }
  const double scale = static_cast<double>(longerSide) / longer;
  return {std::max(1, static_cast<int>(std::lround(size.width() * scale))),
          std::max(1, static_cast<int>(std::lround(size.height() * scale)))};
}

QImage DecodePicture(QIODevice& device, int longerSide, bool upright) {
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  if (!reader.canRead()) {
    return {};
  }
  const QByteArray format = reader.format();
  const QSize size = reader.size();
  const std::int64_t pixels = static_cast<std::int64_t>(size.width()) * size.height();
  if (!IsPhotoFormat(format) || size.isEmpty() || pixels > (IsJpeg(format) ? kMostJpegPixels : kMostPixels)) {
    return {};
  }
  static std::mutex largeOnes;
  std::unique_lock<std::mutex> oneAtATime(largeOnes, std::defer_lock);
  if (pixels > kLargePixels) {
    oneAtATime.lock();
  }
  reader.setAutoTransform(upright);
  const QSize wished = FittedSize(size, longerSide);
  if (IsJpeg(format) && wished != size) {
    reader.setScaledSize(wished);
  }
  QImage image = reader.read();
  if (image.isNull()) {
    return {};
  }
  const QSize fitted = FittedSize(image.size(), longerSide);
  if (fitted != image.size()) {
    image = image.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return InSrgb(image);
}

QImage DecodeBytes(const QByteArray& bytes, int longerSide) {
  QBuffer buffer;
  buffer.setData(bytes);
  return buffer.open(QIODevice::ReadOnly) ? DecodePicture(buffer, longerSide, false) : QImage();
}

QImage Turned(const QImage& stored, int orientation) {
  if (orientation < 2 || orientation > 8) {
    return stored;
  }
  // Mirrored first, then turned clockwise.
  const bool mirrored = orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
  const int turn = orientation == 3 || orientation == 4   ? 180
                   : orientation == 6 || orientation == 7 ? 90
                   : orientation == 5 || orientation == 8 ? 270
                                                          : 0;
  const QImage flipped = mirrored ? stored.mirrored(true, false) : stored;
  return turn == 0 ? flipped : flipped.transformed(QTransform().rotate(turn));
}

}  // namespace Zenvora::Lumidex::Host
