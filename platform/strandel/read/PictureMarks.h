#pragma once

#include <zenvora/strandel/PhotoSource.h>

#include <string>

namespace Zenvora::Strandel {

/// True for TIFF files and the raw formats that begin like them.
bool BeginsLikeTiff(PhotoSource& source);

/// True for TIFF files whose places take 64 bits.
bool BeginsLikeBigTiff(PhotoSource& source);

/// The format of pictures that are told by their first bytes and whose metadata is not read; empty for
/// others.
std::string OpaqueFormat(PhotoSource& source);

/// True for files made of boxes, as HEIC, CR3 and JPEG XL are, but films as well.
bool BeginsLikeContainer(PhotoSource& source);

/// The format of the picture that such a file says by its brands to hold; empty unless it does, and goes on
/// behind its first box.
std::string FormatByBrand(PhotoSource& source);

}  // namespace Zenvora::Strandel
