#pragma once

#include "SampleScenes.h"

#include <support/ExivPath.h>
#include <support/TempTree.h>

#include <exiv2/exiv2.hpp>

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <algorithm>
#include <cstdint>
#include <string>

namespace Zenvora::Lumidex::Host::TestPictures {

inline QImage Scene(SceneKind kind, std::uint32_t seed = 1, QSize size = {640, 480}) {
  SceneLook look;
  look.kind = kind;
  look.seed = seed;
  look.size = size;
  return DrawScene(look).convertToFormat(QImage::Format_RGB32);
}

inline QImage Plain(const QSize& size, const QColor& colour) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

inline QByteArray Encoded(const QImage& image, const char* format = "JPEG", int quality = 92) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format, quality);
  return bytes;
}

/// A tenth of the bytes in the middle are others, as on a failing disk; decoders give up there.
inline QByteArray Damaged(QByteArray jpeg) {
  std::uint32_t lot = 12345;
  const int begin = jpeg.size() / 2;
  for (int i = begin; i < begin + jpeg.size() / 10; ++i) {
    lot = lot * 1664525U + 1013904223U;
    jpeg[i] = static_cast<char>(lot >> 24U);
  }
  // One that no decoder goes on behind.
  jpeg[begin] = '\xFF';
  jpeg[begin + 1] = '\xC0';
  return jpeg;
}

/// A tenth of the bytes in the middle are this one. No mark comes of it, and decoders say nothing.
inline QByteArray Overwritten(QByteArray jpeg, char byte = '\0') {
  const int begin = jpeg.size() / 2;
  std::fill(jpeg.begin() + begin, jpeg.begin() + begin + jpeg.size() / 10, byte);
  return jpeg;
}

/// A JPEG file with this EXIF thumbnail; null: none.
inline ioPath WithThumbnail(const Zenvora::Test::TempTree& tree, const std::string& name,
                            const QImage& picture, const QImage& thumbnail, int orientation = 1) {
  ioPath file = tree.Write(name, Encoded(picture).toStdString());
  const auto image = Exiv2::ImageFactory::open(Zenvora::Test::ExivPath(file));
  Exiv2::ExifData exif;
  exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
  if (!thumbnail.isNull()) {
    const QByteArray small = Encoded(thumbnail);
    Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(small.constData()),
                                            small.size());
  }
  image->setExifData(exif);
  image->writeMetadata();
  return file;
}

/// The head of a PNG file that claims this size and depth, with a right checksum; no pixels follow.
inline QByteArray PngHead(std::uint32_t width, std::uint32_t height, int bits, int colourType) {
  QByteArray head("IHDR");
  for (const std::uint32_t side : {width, height}) {
    for (int shift = 24; shift >= 0; shift -= 8) {
      head.append(static_cast<char>(side >> shift & 0xFFU));
    }
  }
  head.append(static_cast<char>(bits));
  head.append(static_cast<char>(colourType));
  head.append(3, '\0');
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const char c : head) {
    crc ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit) {
      crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
  }
  crc ^= 0xFFFFFFFFU;
  QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d") + head;
  for (int shift = 24; shift >= 0; shift -= 8) {
    png.append(static_cast<char>(crc >> shift & 0xFFU));
  }
  // An empty IDAT and the end, so that readers look at the head.
  return png + QByteArray::fromHex(
                   "0000000049444154"
                   "35af061e"
                   "0000000049454e44"
                   "ae426082");
}

}  // namespace Zenvora::Lumidex::Host::TestPictures
