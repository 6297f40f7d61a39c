#pragma once

#include <zenvora/core/ioPath.h>

#include <optional>
#include <string>
#include <system_error>

namespace Zenvora::Lumidex::Host {

/// What a symbolic link to a file says, byte by byte on Linux, in UTF-8 on Windows; nothing where there is no
/// such link.
std::optional<std::string> ReadSymbolicLink(const ioPath& link);

/// Makes a symbolic link to a file under a name that nothing has. Windows lets only some people do it, and
/// not every file system can.
std::error_code MakeSymbolicLink(const ioPath& link, const std::string& target);

/// Gives a link the name of another in one step. Follows neither.
std::error_code ReplaceSymbolicLink(const ioPath& by, const ioPath& link);

/// Removes a link; whatever else is there stays.
void RemoveSymbolicLink(const ioPath& link);

}  // namespace Zenvora::Lumidex::Host
