#pragma once

#include "PhotoSource.h"

namespace Zenvora::Strandel {

/// True for TIFF files and the raw formats that begin like them.
bool BeginsLikeTiff(PhotoSource& source);

/// Pictures that are told by their first bytes and whose metadata is not read.
bool BeginsLikeOpaquePicture(PhotoSource& source);

/// True for files made of boxes, as HEIC, CR3 and JPEG XL are, but films as well.
bool BeginsLikeContainer(PhotoSource& source);

/// True when such a file says by its brands that it holds a picture, and goes on behind its first box.
bool HasPictureBrand(PhotoSource& source);

}  // namespace Zenvora::Strandel
