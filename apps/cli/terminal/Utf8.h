#pragma once

#include <cstddef>
#include <string_view>

namespace Zenvora::Lumidex::Cli {

/// One step through a text that should be UTF-8.
struct Utf8Step {
  char32_t code = 0;
  /// Bytes taken; 1 for a byte that begins no valid sequence.
  std::size_t length = 1;
  bool valid = false;
};

/// The character at the beginning of `text`, which must not be empty. Overlong forms, surrogates and values
/// above U+10FFFF are not valid (RFC 3629).
Utf8Step FirstCharacter(std::string_view text);

bool IsValidUtf8(std::string_view text);

}  // namespace Zenvora::Lumidex::Cli
