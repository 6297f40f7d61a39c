#pragma once

#include <mutex>

namespace Zenvora::Strandel {

/// Sets Exiv2 up and keeps everybody else in the process from using it as long as the lock is held: its XMP
/// parser keeps tables for the whole process that it changes without a lock.
[[nodiscard]] std::unique_lock<std::mutex> LockExiv();

}  // namespace Zenvora::Strandel
