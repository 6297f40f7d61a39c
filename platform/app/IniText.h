#pragma once

#include <cstddef>
#include <string>

namespace Zenvora::App {

/// The number (from 1) of the first line that is neither empty, nor a section's head, nor a comment after
/// ";", nor a key with "=", or 0 when there is none. Pure. Texts that go on over several lines are not
/// accepted: nothing here writes them.
std::size_t FirstLineNotIni(const std::string& text);

}  // namespace Zenvora::App
