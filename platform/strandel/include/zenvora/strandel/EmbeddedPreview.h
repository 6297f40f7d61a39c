#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/Export.h>

#include <QByteArray>
#include <QSize>

namespace Zenvora::Strandel {

/// A smaller picture that a photo file carries.
struct EmbeddedPreview {
  /// An encoded picture, mostly JPEG, in some raw files TIFF; empty when there is none.
  QByteArray bytes;
  /// Its pixels as stored.
  QSize size;
  /// EXIF Orientation (0x0112) of the photo: 1..8 when it is right, other numbers say nothing.
  int orientation = 1;
  /// False when it does not have the photo's shape, as thumbnails with bars have not, or when the file tells
  /// the size of a part instead of the photo's.
  bool sameShape = false;
};

/// The smallest preview of the photo's shape whose longer side has at least `longerSide` pixels, else the
/// largest; one of another shape only when there is no such. Up to 64 MiB. Never throws for bad content,
/// never changes the file and never waits for one that is no regular file. Blocks on the disk: raw files up
/// to 512 MiB are read whole. Safe from any thread, but one file at a time.
ZENVORA_STRANDEL_EXPORT EmbeddedPreview ReadEmbeddedPreview(const ioPath& file, int longerSide);

}  // namespace Zenvora::Strandel
