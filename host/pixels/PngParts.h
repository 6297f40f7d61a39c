#pragma once

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/PngChunks.h>

#include <QByteArray>
#include <QIODevice>

namespace Zenvora::Lumidex::Host {

/// What of a PNG file is looked at: what lies before its pixels and how far their first chunk goes, or all of
/// it.
enum class PngPart { Head, Whole };

enum class PngState {
  Sound,          ///< Also of what is no PNG file.
  DamagedExtras,  ///< Chunks that no picture needs have other checksums than they should.
  Damaged,        ///< Chunks that the picture needs are not there, or damaged.
};

/// Whether the chunk is what its checksum says.
bool HasItsChecksum(const Strandel::ByteSource& file, const Strandel::PngChunk& chunk);

/// Whether a decoder may be let at the part: libpng gives nothing of a damaged one (`MendPng` does), and for
/// both kinds of damage it writes to the terminal.
PngState StateOfPng(const Strandel::ByteSource& file, PngPart part);
/// The same of an open device that can seek, which is left where it was. Blocks on a disk.
PngState StateOfPng(QIODevice& device, PngPart part);
/// The file without the chunks that no picture needs and that are damaged.
QByteArray WithoutDamagedExtras(QIODevice& device);

}  // namespace Zenvora::Lumidex::Host
