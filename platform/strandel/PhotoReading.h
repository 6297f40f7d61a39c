#pragma once

#include "ExivImage.h"

#include <zenvora/strandel/PhotoFacts.h>

#include <functional>

namespace Zenvora::Strandel {

/// Sees an image and its file while Exiv2 is locked, and may move data out of the image.
using TakeImage = std::function<void(Exiv2::Image&, PhotoSource&)>;

/// Reads a photo as `ReadPhotoFacts` does. `take` is called when there is an image. `reach`: how much of the
/// metadata matters.
PhotoFacts ReadPhoto(const ioPath& file, ExivReach reach, const TakeImage& take);

}  // namespace Zenvora::Strandel
