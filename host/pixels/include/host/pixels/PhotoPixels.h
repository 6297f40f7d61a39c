#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QSize>

#include <cstdint>
#include <string>

namespace Zenvora::Lumidex::Host {

/// Of pictures that the decoder holds whole, also where a pixel is but a bit: scaling makes bytes of them.
constexpr std::int64_t kMostPixels = 100'000'000;
/// Memory of such a picture, in the form that its decoder gives.
constexpr std::int64_t kMostBytes = 400'000'000;
/// The cause for pictures that are beyond such limits.
std::string TooLargeText(const QSize& size);

/// What decoding a picture gave.
struct DecodedPicture {
  QImage image;  ///< Null when there is a cause.
  /// The whole picture's, turned as the image is; empty when its head cannot be read.
  QSize size;
  std::string cause;       ///< In English, without the file's name.
  bool isDamaged = false;  ///< A part of the image is not what the picture shows.
};

/// What is told of damaged pictures, and of those whose file ends too soon.
constexpr const char* kDamagedText = "a part of the picture is damaged";
constexpr const char* kCutText = "it breaks off before the end of its picture";

/// Decodes a picture in one of the formats that photos come in, no larger than `longerSide`, in sRGB, turned
/// upright when `upright`. No image for other formats, for pictures that would take too much memory, which is
/// found out before it is taken, and for ones too damaged to give any pixels. The device must be open and
/// able to seek.
DecodedPicture DecodePicture(QIODevice& device, int longerSide, bool upright);
/// The pixels of the picture that `DecodePicture` would decode, as stored or turned; empty when there is
/// none. The device is left where it was.
QSize PictureSize(QIODevice& device);
/// The picture alone, from bytes in memory; never turned.
QImage DecodeBytes(const QByteArray& bytes, int longerSide);

/// The picture with 32 bits a pixel; what is transparent counts as white. Pure.
QImage OnWhite(const QImage& picture);

/// The picture as EXIF's orientation (1..8; others change nothing) says. Pure.
QImage Turned(const QImage& stored, int orientation);

/// The size with `longerSide` pixels on the longer side; smaller ones stay. No side is ever 0. Pure.
QSize FittedSize(const QSize& size, int longerSide);

}  // namespace Zenvora::Lumidex::Host
