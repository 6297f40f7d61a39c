#pragma once

#include <zenvora/strandel/TiffDirectories.h>

#include <QIODevice>

namespace Zenvora::Lumidex::Host {

/// Whether all strips and tiles that a directory tells of lie within the file. Pure.
bool HoldsAllParts(const Strandel::TiffStructure& tiff, const Strandel::TiffDirectory& directory);

/// Whether a decoder may be let at the first picture of a TIFF file: its strips and tiles lie within the
/// file, with as many bytes as its size calls for where it is not compressed. For others libtiff 4.5 writes
/// beyond its memory. True for what is no TIFF file.
bool HoldsFirstPicture(const Strandel::ByteSource& file);
/// The same of an open device that can seek, which is left where it was. Blocks on a disk.
bool HoldsFirstPicture(QIODevice& device);

}  // namespace Zenvora::Lumidex::Host
