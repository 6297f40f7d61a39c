#include "UnseenContent.h"

#include "DeviceBytes.h"
#include "PixelSources.h"
#include "PngParts.h"

#include <zenvora/core/FileNotes.h>
#include <zenvora/quillet/picture/DecoderNotes.h>
#include <zenvora/quillet/picture/FileDevice.h>
#include <zenvora/strandel/FormatByHead.h>
#include <zenvora/strandel/JpegSegments.h>

#include <QByteArray>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr qint64 kMostRead = qint64{512} * 1024 * 1024;

std::string FormatOf(const ioPath& file) {
  Quillet::FileDevice device(file);
  const QByteArray head =
      device.isOpen() ? device.read(static_cast<qint64>(Strandel::kFormatHeadBytes)) : QByteArray();
  return Strandel::FormatByHead(ViewOf(head).Text());
}

/// Where the first picture of a JPEG stream ends, behind its last marker; the stream's size when it does not.
std::size_t EndOfJpeg(Strandel::ByteView bytes) {
  Strandel::JpegSegments segments(bytes, Strandel::JpegSegments::Gaps::Skipped);
  for (auto segment = segments.Next(); segment; segment = segments.Next()) {
    if (segment->marker == Strandel::JpegSegment::kEndOfImage) {
      return static_cast<std::size_t>(segment->whole.End());
    }
  }
  return bytes.Size();
}

/// What stands behind the picture of a JPEG file, without the padding that some cameras write.
QByteArray TailOf(const ioPath& file) {
  if (FormatOf(file) != "JPEG") {
    return {};
  }
  Quillet::FileDevice device(file);
  if (!device.isOpen() || device.size() > kMostRead) {
    return {};
  }
  const QByteArray bytes = device.readAll();
  const std::size_t end = EndOfJpeg(ViewOf(bytes));
  QByteArray tail = bytes.mid(static_cast<int>(end));
  const bool isPadding = std::all_of(tail.begin(), tail.end(), [&tail](char byte) {
    return byte == tail.front() && (byte == '\0' || byte == '\xFF' || byte == '\n');
  });
  return isPadding ? QByteArray() : tail;
}

int PicturesIn(const ioPath& file) {
  const FileNotes notes(file);
  Quillet::WatchDecoderNotes();
  Quillet::FileDevice device(file);
  if (!device.isOpen() || StateOfPng(device, PngPart::Head) == PngState::Damaged) {
    return 0;
  }
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  return reader.canRead() ? reader.imageCount() : 0;
}

bool KeepsEveryPixel(const std::string& format) {
  constexpr std::array<std::string_view, 4> kFormats = {"PNG", "BMP", "TIFF", "GIF"};
  return std::find(kFormats.begin(), kFormats.end(), format) != kFormats.end();
}

}  // namespace

bool HoldsSeveralPictures(const ioPath& file) {
  const std::string format = FormatOf(file);
  return (format == "GIF" || format == "TIFF" || format == "WEBP" || format == "PNG") && PicturesIn(file) > 1;
}

bool HoldsMoreBehind(const ioPath& photo, const ioPath& kept) {
  const QByteArray tail = TailOf(photo);
  return !tail.isEmpty() && tail != TailOf(kept);
}

std::optional<PixelDifference> CompareLossless(const ioPath& first, const ioPath& second, const QSize& size) {
  constexpr qint64 kMostPixels = 50'000'000;
  constexpr int kRounding = 2;
  if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels ||
      !KeepsEveryPixel(FormatOf(first)) || !KeepsEveryPixel(FormatOf(second))) {
    return std::nullopt;
  }
  const int longer = std::max(size.width(), size.height());
  const QImage left = FindPixels(first, longer, kPreviewsNever).image.convertToFormat(QImage::Format_RGB32);
  const QImage right = FindPixels(second, longer, kPreviewsNever).image.convertToFormat(QImage::Format_RGB32);
  if (left.isNull() || left.size() != right.size() || left.size() != size) {
    return std::nullopt;
  }
  qint64 differing = 0;
  for (int y = 0; y < left.height(); ++y) {
    const auto* const ours = reinterpret_cast<const QRgb*>(left.constScanLine(y));
    const auto* const theirs = reinterpret_cast<const QRgb*>(right.constScanLine(y));
    differing += std::count_if(ours, ours + left.width(), [&](const QRgb& pixel) {
      const QRgb twin = theirs[&pixel - ours];
      return std::abs(qRed(pixel) - qRed(twin)) > kRounding ||
             std::abs(qGreen(pixel) - qGreen(twin)) > kRounding ||
             std::abs(qBlue(pixel) - qBlue(twin)) > kRounding;
    });
  }
  return PixelDifference{static_cast<double>(differing) /
                         (static_cast<double>(size.width()) * size.height())};
}

}  // namespace Zenvora::Lumidex::Host
