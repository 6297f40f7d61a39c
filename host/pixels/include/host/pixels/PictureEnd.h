#pragma once

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

/// True when a file ends before its picture does, as after a copy that was interrupted: such a picture can
/// often be decoded all the same, with grey in the place of what is missing. Known of JPEG, PNG, WebP, TIFF
/// and raw formats like it, and of what is made of boxes (HEIC, CR3). False for all that it cannot tell.
/// Reads the file piece by piece, and all of it only when its last bytes do not tell.
bool EndsTooSoon(const ioPath& file);

/// True for a PNG file of which parts that its picture needs are missing or not what their checksums say.
/// Reads the file piece by piece.
bool IsDamagedPng(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
