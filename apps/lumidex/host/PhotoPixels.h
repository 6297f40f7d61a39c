#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QImage>

namespace Zenvora::Lumidex::Host {

/// Decodes a picture in one of the formats that photos come in, no larger than `longerSide`, in sRGB, turned
/// upright when `upright`. Null for other formats, huge pictures and ones too damaged to give any pixels. The
/// device must be open and able to seek.
QImage DecodePicture(QIODevice& device, int longerSide, bool upright);
/// The same for bytes in memory; never turned.
QImage DecodeBytes(const QByteArray& bytes, int longerSide);

/// The picture as EXIF's orientation (1..8; others change nothing) says. Pure.
QImage Turned(const QImage& stored, int orientation);

/// The size with `longerSide` pixels on the longer side; smaller ones stay. No side is ever 0. Pure.
QSize FittedSize(const QSize& size, int longerSide);

}  // namespace Zenvora::Lumidex::Host
