#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <string>

namespace Zenvora::Strandel {

/// Writes the new file `staging` with the rights of `original` and a time of change (nanoseconds since 1970),
/// down to the disk. Throws `EditRefusal` with the cause; then there is no new file.
void WriteStagingFile(const ioPath& staging, const ioPath& original, std::int64_t modifiedNs,
                      const std::string& bytes);

}  // namespace Zenvora::Strandel
