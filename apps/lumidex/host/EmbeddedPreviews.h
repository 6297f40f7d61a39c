#pragma once

#include <zenvora/core/ioPath.h>

#include <QImage>

namespace Zenvora::Lumidex::Host {

/// Which previews will do.
enum class PreviewShape {
  OfThePicture,  ///< Not those with bars to fill a fixed frame.
  Any,           ///< These too when there is no other: for files that nothing else here can show.
};

/// A preview that the file carries: the smallest whose longer side has at least `longerSide` pixels, else the
/// largest. Upright. Null when there is none. Never throws for bad content.
QImage LoadEmbeddedPreview(const ioPath& file, int longerSide, PreviewShape shape);

}  // namespace Zenvora::Lumidex::Host
