#include "EmbeddedPreviews.h"

#include "PhotoPixels.h"

#include <exiv2/exiv2.hpp>
#include <glog/logging.h>

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <exception>
#include <mutex>

namespace Zenvora::Lumidex::Host {

namespace {

/// Cameras cut a few rows off or round: more is another shape.
constexpr double kShapeTolerance = 0.03;
constexpr std::size_t kMostPreviewBytes = std::size_t{64} * 1024 * 1024;

/// Broken metadata is no news worth a line on the terminal.
void PrepareExiv2() {
  static const bool done = [] {
    Exiv2::LogMsg::setHandler(
        [](int level, const char* text) { VLOG(2) << "Exiv2 level " << level << ": " << text; });
    Exiv2::XmpParser::initialize();
    Exiv2::enableBMFF(true);
    return true;
  }();
  static_cast<void>(done);
}

QSize SizeOf(const Exiv2::PreviewProperties& preview) {
  return {static_cast<int>(preview.width_), static_cast<int>(preview.height_)};
}

int LongerSide(const QSize& size) {
  return std::max(size.width(), size.height());
}

int OrientationOf(const Exiv2::ExifData& exif) {
  const auto found = Exiv2::orientation(exif);
  return found == exif.end() || found->count() == 0 ? 1 : static_cast<int>(found->toLong());
}

/// The EXIF block of a JPEG: from behind "Exif\0\0" on. Empty when there is none within `head`.
QByteArray ExifBlock(const QByteArray& head) {
  const auto byte = [&head](int at) { return static_cast<std::uint8_t>(head[at]); };
  int at = 2;
  while (at + 10 <= head.size() && byte(at) == 0xFF) {
    const int marker = byte(at + 1);
    const int length = byte(at + 2) << 8 | byte(at + 3);
    if (marker == 0xDA || length < 2) {
      break;
    }
    if (marker == 0xE1 && std::memcmp(head.constData() + at + 4, "Exif\0\0", 6) == 0) {
      return head.mid(at + 10, length - 8);
    }
    at += 2 + length;
  }
  return {};
}

const Exiv2::PreviewProperties* Choose(const Exiv2::PreviewPropertiesList& bySize, const QSize& picture,
                                       int longerSide) {
  const Exiv2::PreviewProperties* largest = nullptr;
  for (const auto& preview : bySize) {
    // A picture of unknown size says nothing about shapes.
    if (preview.size_ > kMostPreviewBytes || (!picture.isEmpty() && !SameShape(SizeOf(preview), picture))) {
      continue;
    }
    largest = &preview;
    if (LongerSide(SizeOf(preview)) >= longerSide) {
      break;
    }
  }
  return largest;
}

}  // namespace

bool SameShape(const QSize& a, const QSize& b) {
  if (a.isEmpty() || b.isEmpty()) {
    return false;
  }
  const double ratioA = static_cast<double>(a.width()) / a.height();
  const double ratioB = static_cast<double>(b.width()) / b.height();
  return std::abs(ratioA / ratioB - 1) <= kShapeTolerance;
}

QImage LoadEmbeddedPreview(const ioPath& file, int longerSide) {
  try {
    // Exiv2's tables of XMP names are not made for several threads.
    static std::mutex oneReader;
    std::unique_lock<std::mutex> lock(oneReader);
    PrepareExiv2();
    const auto image = Exiv2::ImageFactory::open(file.utf8string());
    image->readMetadata();
    const QSize picture(image->pixelWidth(), image->pixelHeight());
    const Exiv2::PreviewManager manager(*image);
    const Exiv2::PreviewPropertiesList found = manager.getPreviewProperties();
    const Exiv2::PreviewProperties* chosen = Choose(found, picture, longerSide);
    if (chosen == nullptr) {
      // Some formats tell the size of a part instead of the picture's: any preview is better than none.
      chosen = Choose(found, {}, longerSide);
    }
    if (chosen == nullptr) {
      return {};
    }
    const Exiv2::PreviewImage preview = manager.getPreviewImage(*chosen);
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(preview.pData()),
                                               static_cast<int>(preview.size()));
    const int orientation = OrientationOf(image->exifData());
    lock.unlock();
    return Turned(DecodeBytes(bytes, longerSide), orientation);
  } catch (const std::exception&) {
    return {};
  }
}

QImage ExifThumbnail(const QByteArray& head, const QSize& picture, int longerSide) {
  const QByteArray block = ExifBlock(head);
  if (block.isEmpty()) {
    return {};
  }
  try {
    PrepareExiv2();
    Exiv2::ExifData exif;
    Exiv2::ExifParser::decode(exif, reinterpret_cast<const Exiv2::byte*>(block.constData()),
                              static_cast<std::uint32_t>(block.size()));
    const Exiv2::DataBuf thumbnail = Exiv2::ExifThumbC(exif).copy();
    if (thumbnail.size_ <= 0) {
      return {};
    }
    const QImage decoded =
        DecodeBytes(QByteArray::fromRawData(reinterpret_cast<const char*>(thumbnail.pData_),
                                            static_cast<int>(thumbnail.size_)),
                    longerSide);
    return LongerSide(decoded.size()) >= longerSide && SameShape(decoded.size(), picture) ? decoded
                                                                                          : QImage();
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace Zenvora::Lumidex::Host
