#pragma once

namespace Zenvora::Test {

/// A name that only those keep who never take names for text of one code page: bytes that are no text and a
/// line feed; on Windows, where names are text, letters of which no code page has all.
#ifdef _WIN32
constexpr char kStrangeName[] = "\xD0\x91\xD3\xA8 \xE5\x86\x99 \xF0\x9F\x93\xB7";
#else
constexpr char kStrangeName[] = "caf\xE9\n \xFF";
#endif

}  // namespace Zenvora::Test
