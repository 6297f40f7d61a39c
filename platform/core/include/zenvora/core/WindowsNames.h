#pragma once

#include <zenvora/core/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// What Windows makes of the names of files. Pure, and the same on every system: what is a name there decides
/// also here whether files can be taken there.
namespace Zenvora::WindowsNames {

/// The length of the part that names a volume: "C:" of "C:\a", "\\server\share" of a network path, with the
/// prefix in front ("\\?\C:", "\\?\UNC\server\share", "\\.\device"); 0 when there is none. Either separator
/// counts.
ZENVORA_CORE_EXPORT std::size_t RootNameLength(std::wstring_view path);

/// Why the path cannot be meant as the name of a file or folder: it is relative to a drive's own current
/// folder ("C:a"), names a device (reserved as "NUL.txt" is, or "\\.\…"), ends in a dot or blank, which are
/// dropped, or holds a character that no name has (':' too: the data behind it would be a hidden stream of
/// the file). In English, to be put behind the name ("holds the character …"); empty: it is a name. Only
/// NUL, separators and devices are looked for behind the prefix "\\?\", which switches the rest off.
ZENVORA_CORE_EXPORT std::string FindFault(std::wstring_view path);

/// An absolute path with the prefix that lifts the limit of 260 characters: "\\?\C:\a" or
/// "\\?\UNC\server\share\a". Separators become '\'; a path with a prefix stays as it is. The prefix also
/// switches off the reading of "." and "..": `absolute` must hold none.
ZENVORA_CORE_EXPORT std::wstring Extended(std::wstring_view absolute);

/// The reverse, for people and for comparing.
ZENVORA_CORE_EXPORT std::wstring Plain(std::wstring_view path);

}  // namespace Zenvora::WindowsNames
