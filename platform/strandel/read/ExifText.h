#pragma once

#include <exiv2/exiv2.hpp>

#include <cstddef>
#include <string>

namespace Zenvora::Strandel {

/// The bytes of a field that is text by its type, or by the standard (`meant`) whatever the file says, up to
/// the first NUL and to `most`. False for fields of other types.
bool TextBytes(const Exiv2::Exifdatum& datum, Exiv2::TypeId meant, std::size_t most, std::string& text);

/// True for a value without components, and for fractions that are all 0/0: that is how cameras write what
/// they do not know.
bool SaysNothing(const Exiv2::Exifdatum& datum);

/// The value as text: "48/1 51/1 2436/100". Empty for a value that says nothing, and for
/// more than 64 KiB that are no text.
std::string ExifText(const Exiv2::Exifdatum& datum, Exiv2::TypeId meant);

}  // namespace Zenvora::Strandel
