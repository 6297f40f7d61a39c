#pragma once

#include <exiv2/exiv2.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>

namespace Zenvora::Strandel {

/// Reads up to `count` bytes from `at`, and returns how many were there.
using ReadBytes = std::function<std::size_t(std::uint64_t at, void* to, std::size_t count)>;

/// Exiv2 gives a PNG file up for one text chunk that it cannot read. This goes on where that happened: what
/// the other chunks say in EXIF and XMP comes to `image` where it has nothing yet. False when the file ends
/// before its picture begins. Needs the lock on Exiv2.
bool RescuePng(const ReadBytes& read, std::uint64_t size, Exiv2::Image& image);

}  // namespace Zenvora::Strandel
