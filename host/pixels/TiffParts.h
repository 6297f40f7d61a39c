#pragma once

#include <zenvora/strandel/TiffDirectories.h>

namespace Zenvora::Lumidex::Host {

/// Whether all strips and tiles that a directory tells of lie within the file. Pure.
bool HoldsAllParts(const Strandel::TiffStructure& tiff, const Strandel::TiffDirectory& directory);

/// Whether a decoder may be let at the first picture of a TIFF file: its strips and tiles lie within the
/// file, with as many bytes as its size calls for where it is not compressed. For others libtiff 4.5 writes
/// beyond its memory. True for what is no TIFF file.
bool HoldsFirstPicture(const Strandel::ByteSource& file);

}  // namespace Zenvora::Lumidex::Host
