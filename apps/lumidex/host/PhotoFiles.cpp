#include "EmbeddedPreviews.h"
#include "FileDevice.h"
#include "PhotoPixels.h"

#include <host/PhotoFiles.h>

#include <QByteArray>
#include <QImageReader>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::uint64_t kMostBytes = 512ULL * 1024 * 1024;
constexpr int kHeadBytes = 128 * 1024;
/// Above this, taking the EXIF thumbnail saves more than looking for it costs.
constexpr std::int64_t kWorthLooking = 4'000'000;

/// Waiting on a pipe or reading a device would never end.
bool IsReasonableFile(const ioPath& file) {
  std::error_code error;
  if (file.empty() || !std::filesystem::is_regular_file(file.for_system(), error) || error) {
    return false;
  }
  const std::uint64_t size = file.file_size();
  return size > 0 && size <= kMostBytes;
}

int LongerSide(const QImage& image) {
  return std::max(image.width(), image.height());
}

QImage ThumbnailInJpeg(const QByteArray& head, QIODevice& device, int longerSide) {
  QImageReader reader(&device);
  const QSize size = reader.size();
  if (static_cast<std::int64_t>(size.width()) * size.height() < kWorthLooking) {
    return {};
  }
  const QImage found = ExifThumbnail(head, size, longerSide);
  const QImageIOHandler::Transformations turn = reader.transformation();
  const int orientation = turn == QImageIOHandler::TransformationNone        ? 1
                          : turn == QImageIOHandler::TransformationRotate180 ? 3
                          : turn == QImageIOHandler::TransformationRotate90  ? 6
                          : turn == QImageIOHandler::TransformationRotate270 ? 8
                                                                             : 0;
  // Mirrored pictures are too rare for a short cut.
  return orientation == 0 ? QImage() : Turned(found, orientation);
}

QImage Load(const ioPath& file, int longerSide) {
  FileDevice device(file);
  if (!device.isOpen()) {
    return {};
  }
  const QByteArray head = device.peek(kHeadBytes);
  const bool tiff = head.startsWith("II") || head.startsWith("MM");
  QImage best;
  if (head.startsWith("\xFF\xD8")) {
    best = ThumbnailInJpeg(head, device, longerSide);
    if (!best.isNull()) {
      return best;
    }
    device.seek(0);
  } else if (tiff) {
    // Most raw formats are TIFF files whose first picture is tiny: their previews come first.
    best = LoadEmbeddedPreview(file, longerSide);
    if (LongerSide(best) >= longerSide) {
      return best;
    }
  }
  QImage decoded = DecodePicture(device, longerSide, true);
  if (!decoded.isNull() && LongerSide(decoded) >= LongerSide(best)) {
    return decoded;
  }
  return best.isNull() && !tiff ? LoadEmbeddedPreview(file, longerSide) : best;
}

}  // namespace

QImage LoadThumbnail(const ioPath& file, int longerSide) {
  if (longerSide < 1 || !IsReasonableFile(file)) {
    return {};
  }
  try {
    return Load(file, longerSide);
  } catch (const std::exception&) {
    return {};  // Out of memory, or a file that vanished: no picture either way.
  }
}

}  // namespace Zenvora::Lumidex::Host
