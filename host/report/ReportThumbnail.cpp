#include "ReportThumbnail.h"

#include <host/pixels/PhotoFiles.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <new>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kJpegQuality = 80;

/// Nothing but the pixels: neither transparency, which JPEG would make black, nor texts and profiles of the
/// original.
QImage Flattened(const QImage& image) {
  QImage plain(image.size(), QImage::Format_RGB32);
  plain.fill(Qt::white);
  QPainter painter(&plain);
  painter.drawImage(0, 0, image);
  return plain;
}

}  // namespace

ReportThumbnail MakeReportThumbnail(const ioPath& file, int longerSide) {
  try {
    const QImage image = LoadThumbnail(file, longerSide);
    if (image.isNull()) {
      return {};
    }
    ReportThumbnail result;
    QBuffer buffer(&result.jpeg);
    if (!buffer.open(QIODevice::WriteOnly) || !Flattened(image).save(&buffer, "JPEG", kJpegQuality)) {
      return {};
    }
    result.size = image.size();
    return result;
  } catch (const std::bad_alloc&) {
    return {};
  }
}

}  // namespace Zenvora::Lumidex::Host
