#pragma once

#include <zenvora/core/ioPath.h>

#include <QImage>
#include <QSize>

namespace Zenvora::Lumidex::Host {

/// A preview of the file that Exiv2 finds: the smallest whose longer side has at least `longerSide` pixels,
/// else the largest. Upright. Previews of another shape than the picture (with bars to fill a fixed frame) do
/// not count. Null when there is none. Never throws.
QImage LoadEmbeddedPreview(const ioPath& file, int longerSide);

/// The thumbnail in a JPEG's EXIF block, as stored (not turned); null when it is smaller than wished or does
/// not have the shape of `picture` (the pixels as stored). `head`: the file's first 64 KiB or more. Pure;
/// never throws.
QImage ExifThumbnail(const QByteArray& head, const QSize& picture, int longerSide);

/// True when two pictures may be the same one at two sizes. Pure.
bool SameShape(const QSize& a, const QSize& b);

}  // namespace Zenvora::Lumidex::Host
