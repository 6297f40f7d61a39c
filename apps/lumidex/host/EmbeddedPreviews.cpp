#include "EmbeddedPreviews.h"

#include "PhotoPixels.h"

#include <zenvora/strandel/EmbeddedPreview.h>

namespace Zenvora::Lumidex::Host {

QImage LoadEmbeddedPreview(const ioPath& file, int longerSide, PreviewShape shape) {
  const Strandel::EmbeddedPreview preview = Strandel::ReadEmbeddedPreview(file, longerSide);
  if (preview.bytes.isEmpty() || (shape == PreviewShape::OfThePicture && !preview.sameShape)) {
    return {};
  }
  return Turned(DecodeBytes(preview.bytes, longerSide), preview.orientation);
}

}  // namespace Zenvora::Lumidex::Host
