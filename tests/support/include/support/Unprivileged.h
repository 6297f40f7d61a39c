#pragma once

#ifndef _WIN32
#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <functional>

namespace Zenvora::Test {

/// The user and group without rights that systems have for such uses.
constexpr std::uint32_t kNobody = 65534;

/// Runs `question` as a user without rights, in another process if this one has them, and returns its answer.
/// `question` may look at files and call the library, but not wait for other threads. Fails the test when the
/// process dies instead.
bool AskAsNobody(const std::function<bool()>& question);

/// Lets every user reach what is in the folder of a test.
void LetEverybodyIn(const ioPath& folder);

/// Gives one more user permissions (bits 4, 2, 1) on a file or folder by an access list; `others`: what
/// everybody else may. False where the file system has none.
bool AddToAccessList(const ioPath& path, std::uint32_t user, unsigned int permissions, unsigned int others);

}  // namespace Zenvora::Test
#endif
