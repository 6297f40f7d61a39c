#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>

// What each system has its own of.
namespace Zenvora::Util {

constexpr std::int64_t kUnknownBytes = -1;

/// What a system counts in, brought into the range of the answer. Pure.
std::int64_t LimitedBytes(std::uint64_t count, std::uint64_t unit);

/// False when there is no such place; `bytes` is set otherwise.
bool AskFreeBytes(const ioPath& place, std::int64_t& bytes);

/// Tries it, and leaves nothing behind.
bool CreatesFileIn(const ioPath& folder);
/// Whether the way leads through the folder, whatever it holds.
bool IsReached(const ioPath& folder);

}  // namespace Zenvora::Util
