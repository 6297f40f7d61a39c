#pragma once

#include <zenvora/core/ioPath.h>

#include <string_view>

namespace Zenvora::Lumidex::Host {

/// True when the compressed data of a JPEG file cannot be what its encoder wrote, as where a part of the file
/// was overwritten: codes that its tables do not have, values out of range, or bytes that are left over or
/// missing when all blocks are decoded. Decoders make something of such data and say nothing. Sequential and
/// progressive pictures with Huffman codes are looked at, up to the end of the first picture; false for all
/// others. Pure; never throws for bad content, may throw for want of memory.
bool HasBrokenJpegData(std::string_view bytes);

/// True for a JPEG file with marks within its picture that belong to no JPEG file, or with broken data. Reads
/// the file whole, up to 512 MiB, and blocks on the disk; safe from any thread.
bool IsDamagedJpeg(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
