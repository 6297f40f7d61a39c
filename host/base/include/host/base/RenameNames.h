#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// The longest name of a file, in bytes of UTF-8, that every usual file system takes.
constexpr std::size_t kLongestFileName = 255;

/// Why no name that is to be taken to any system may hold the character (a code point), to be put behind "a
/// name cannot hold"; empty: it may.
std::string FindCharacterFault(char32_t character);

/// Why a file should not be given this name (no path), on any system: what one of them refuses, hides,
/// shortens or takes for something else. In English, to be put behind the name; empty: it may.
std::string FindNewNameFault(const std::string& fileName);

/// Equal for names that some file system takes for one: case and Unicode form do not count. A name that is no
/// UTF-8 is told apart by its bytes; only the case of ASCII letters does not count then.
std::string NameKey(std::string_view name);

/// Compares, byte by byte, as people sort names: digits by their value, case last. Names that differ may
/// have the same key.
std::string NaturalKey(const std::string& name);

}  // namespace Zenvora::Lumidex::Host
