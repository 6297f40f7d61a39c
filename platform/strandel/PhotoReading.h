#pragma once

#include "ExivImage.h"

#include <zenvora/strandel/PhotoFacts.h>

#include <functional>

namespace Zenvora::Strandel {

/// Reads a photo as `ReadPhotoFacts` does. `take` sees the image when there is one, while Exiv2 is locked,
/// and may move data out of it. `reach`: how much of the metadata matters.
PhotoFacts ReadPhoto(const ioPath& file, ExivReach reach, const std::function<void(Exiv2::Image&)>& take);

}  // namespace Zenvora::Strandel
