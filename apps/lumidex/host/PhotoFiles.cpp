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
/// Above this, taking an embedded preview saves more than looking for it costs.
constexpr std::int64_t kWorthLooking = 4'000'000;

/// Waiting on a pipe or reading a device would never end.
bool IsReasonableFile(const ioPath& file) {
  const std::uint64_t size = file.file_size();
  return size > 0 && size <= kMostBytes;
}

int LongerSide(const QImage& image) {
  return std::max(image.width(), image.height());
}

bool IsSlowToDecode(QIODevice& device) {
  const QSize size = QImageReader(&device).size();
  device.seek(0);
  return static_cast<std::int64_t>(size.width()) * size.height() >= kWorthLooking;
}

QImage Load(const ioPath& file, int longerSide) {
  FileDevice device(file);
  if (!device.isOpen()) {
    return {};
  }
  const QByteArray head = device.peek(2);
  const bool tiff = head == "II" || head == "MM";
  QImage best;
  // Most raw formats are TIFF files whose first picture is tiny: their previews come first.
  if (tiff || (head == "\xFF\xD8" && IsSlowToDecode(device))) {
    best = LoadEmbeddedPreview(file, longerSide, tiff ? PreviewShape::Any : PreviewShape::OfThePicture);
    if (LongerSide(best) >= longerSide) {
      return best;
    }
  }
  QImage decoded = DecodePicture(device, longerSide, true);
  if (!decoded.isNull() && LongerSide(decoded) >= LongerSide(best)) {
    return decoded;
  }
  return best.isNull() && !tiff ? LoadEmbeddedPreview(file, longerSide, PreviewShape::Any) : best;
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
