#include "DeviceBytes.h"
#include "JpegMending.h"
#include "PngMending.h"
#include "PngParts.h"
#include "TiffParts.h"

#include <host/pixels/PhotoPixels.h>

#include <zenvora/quillet/picture/DecoderNotes.h>
#include <zenvora/strandel/FormatByHead.h>
#include <zenvora/strandel/JpegSegments.h>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <mutex>

namespace Zenvora::Lumidex::Host {

namespace {

/// JPEG is decoded row by row, but for progressive ones.
constexpr std::int64_t kMostJpegPixels = 300'000'000;
/// From here on one picture at a time, whatever the number of threads.
constexpr std::int64_t kLargePixels = 40'000'000;
constexpr const char* kDamagedHead = "the head of the picture is damaged";
constexpr const char* kDamagedPicture = "nothing of the picture can be decoded";

bool IsJpeg(const QByteArray& format) {
  return format == "jpeg" || format == "jpg";
}

/// Formats without a reliable signature would claim any file.
bool IsPhotoFormat(const QByteArray& format) {
  constexpr std::array kFormats = {"jpeg", "jpg", "png",  "tiff", "tif",  "webp", "gif",
                                   "bmp",  "jp2", "heic", "heif", "avif", "jxl"};
  return std::any_of(kFormats.begin(), kFormats.end(),
                     [&format](const char* known) { return format == known; });
}

/// True for a JPEG stream whose decoder keeps the whole picture, or whose kind is not to be found out.
bool IsHeldWhole(QIODevice& device) {
  constexpr int kLastSequential = 0xC1;
  DeviceBytes bytes(device);
  Strandel::JpegSegments segments(bytes);
  for (auto segment = segments.Next(); segment && segment->isWhole; segment = segments.Next()) {
    if (segment->IsFrame()) {
      return segment->marker > kLastSequential;
    }
  }
  return true;
}

bool IsTooLarge(QImageReader& reader, QIODevice& device, std::int64_t pixels) {
  if (IsJpeg(reader.format())) {
    if (pixels <= kMostPixels) {
      return false;
    }
    return pixels > kMostJpegPixels || IsHeldWhole(device);
  }
  const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
  return pixels > kMostPixels || pixels * std::max(bits, 8) / 8 > kMostBytes;
}

/// Why there is no reader for what the device begins with, and what would bring one.
std::string NoReaderText(QIODevice& device) {
  device.seek(0);
  const std::string head = device.peek(Strandel::kFormatHeadBytes).toStdString();
  const std::string format = Strandel::FormatByHead(head);
  if (format.empty()) {
    return "its content is not a picture of a known format";
  }
  const auto isOneOf = [&format](std::initializer_list<const char*> formats) {
    return std::any_of(formats.begin(), formats.end(), [&format](const char* one) { return format == one; });
  };
  const std::string text = format + " pictures cannot be decoded by this installation";
  if (isOneOf({"HEIC", "AVIF", "JPEG XL", "PSD"})) {
    return text + "; install the plug-ins of KImageFormats for Qt 5";
  }
  if (isOneOf({"TIFF", "WebP", "JPEG 2000"})) {
    return text + "; install the plug-ins of Qt Image Formats for Qt 5";
  }
  return format == "RAW" ? text + ", and the file holds no preview" : "the head of the picture is damaged";
}

QImage InSrgb(QImage image) {
  const QColorSpace space = image.colorSpace();
  if (space.isValid() && space != QColorSpace(QColorSpace::SRgb)) {
    image = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    image.convertToColorSpace(QColorSpace::SRgb);
  }
  return image;
}

/// As far as it goes; null when that is nothing.
QImage ReadDamagedJpeg(QIODevice& device, const QSize& size, bool upright) {
  QByteArray bytes = device.seek(0) ? device.readAll() : QByteArray();
  if (!MendJpeg(bytes)) {
    return {};
  }
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::ReadOnly)) {
    return {};
  }
  QImageReader reader(&buffer);
  reader.setAutoTransform(upright);
  reader.setScaledSize(size);
  return reader.read();
}

DecodedPicture DecodeWithoutExtras(QIODevice& device, int longerSide, bool upright) {
  QByteArray bytes = WithoutDamagedExtras(device);
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  return DecodePicture(buffer, longerSide, upright);
}

/// Large pictures are decoded one at a time.
std::unique_lock<std::mutex> LockIfLarge(std::int64_t pixels) {
  static std::mutex largeOnes;
  return pixels > kLargePixels ? std::unique_lock<std::mutex>(largeOnes) : std::unique_lock<std::mutex>();
}

DecodedPicture Scaled(DecodedPicture result, const QImage& image, int longerSide) {
  const QSize fitted = FittedSize(image.size(), longerSide);
  result.image = InSrgb(
      fitted == image.size() ? image : image.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  return result;
}

/// As far as it goes.
DecodedPicture DecodeDamagedPng(QIODevice& device, int longerSide) {
  MendedPng png = MendPng(device);
  DecodedPicture result;
  result.size = png.size;
  const auto lock = LockIfLarge(static_cast<std::int64_t>(png.size.width()) * png.size.height());
  QBuffer buffer(&png.bytes);
  buffer.open(QIODevice::ReadOnly);
  const QImage image = png.bytes.isEmpty() ? QImage() : QImageReader(&buffer, "png").read();
  if (image.isNull()) {
    result.cause = png.isTooLarge ? TooLargeText(png.size) : kDamagedPicture;
    return result;
  }
  result.isDamaged = true;
  return Scaled(std::move(result), WithoutGaps(image, png), longerSide);
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

std::string TooLargeText(const QSize& size) {
  return "the picture is too large: " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
         " pixels";
}

DecodedPicture DecodePicture(QIODevice& device, int longerSide, bool upright) {
  Quillet::WatchDecoderNotes();
  const PngState head = StateOfPng(device, PngPart::Head);
  if (head == PngState::Damaged) {
    return DecodeDamagedPng(device, longerSide);
  }
  if (head == PngState::DamagedExtras) {
    return DecodeWithoutExtras(device, longerSide, upright);
  }
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  if (!reader.canRead() || !IsPhotoFormat(reader.format())) {
    return {{}, {}, NoReaderText(device)};
  }
  const QSize size = reader.size();
  if (size.isEmpty()) {
    return {{}, {}, kDamagedHead};
  }
  const bool jpeg = IsJpeg(reader.format());
  const bool turned = upright && reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  DecodedPicture result;
  result.size = turned ? size.transposed() : size;
  const std::int64_t pixels = static_cast<std::int64_t>(size.width()) * size.height();
  if (IsTooLarge(reader, device, pixels)) {
    result.cause = TooLargeText(size);
    return result;
  }
  if (!HoldsFirstPicture(device)) {
    result.cause = kCutText;
    return result;
  }
  const PngState whole = StateOfPng(device, PngPart::Whole);
  if (whole == PngState::Damaged) {
    return DecodeDamagedPng(device, longerSide);
  }
  if (whole == PngState::DamagedExtras) {
    return DecodeWithoutExtras(device, longerSide, upright);
  }
  const auto oneAtATime = LockIfLarge(pixels);
  reader.setAutoTransform(upright);
  const QSize wished = FittedSize(size, longerSide);
  if (jpeg && wished != size) {
    reader.setScaledSize(wished);
  }
  QImage image = reader.read();
  if (image.isNull() && jpeg) {
    image = ReadDamagedJpeg(device, wished, upright);
    result.isDamaged = !image.isNull();
  }
  if (image.isNull()) {
    result.cause = kDamagedPicture;
    return result;
  }
  return Scaled(std::move(result), image, longerSide);
}

QSize PictureSize(QIODevice& device) {
  Quillet::WatchDecoderNotes();
  const qint64 before = device.pos();
  QSize size;
  if (StateOfPng(device, PngPart::Head) != PngState::Damaged) {
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    if (reader.canRead() && IsPhotoFormat(reader.format())) {
      size = reader.size();
    }
  }
  device.seek(before);
  return size;
}

QImage DecodeBytes(const QByteArray& bytes, int longerSide) {
  QBuffer buffer;
  buffer.setData(bytes);
  return buffer.open(QIODevice::ReadOnly) ? DecodePicture(buffer, longerSide, false).image : QImage();
}

QImage OnWhite(const QImage& picture) {
  if (!picture.hasAlphaChannel()) {
    return picture.convertToFormat(QImage::Format_RGB32);
  }
  QImage plain(picture.size(), QImage::Format_RGB32);
  plain.fill(Qt::white);
  QPainter painter(&plain);
  painter.drawImage(0, 0, picture);
  return plain;
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
