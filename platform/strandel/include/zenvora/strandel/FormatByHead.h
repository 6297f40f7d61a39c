#pragma once

#include <zenvora/strandel/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Zenvora::Strandel {

/// How many of a file's first bytes tell its format.
constexpr std::size_t kFormatHeadBytes = 272;

/// The format that a file begins like, named as in the table of picture formats ("HEIC", "TIFF"; raw files
/// that are TIFF inside count as TIFF); empty for one that is not in it. Says nothing of what follows. Pure.
ZENVORA_STRANDEL_EXPORT std::string FormatByHead(std::string_view beginning);

}  // namespace Zenvora::Strandel
