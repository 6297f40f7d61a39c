#pragma once

#include <zenvora/core/ioPath.h>

#include <QString>

#include <string>

// What each system has its own of. `PathBytes` is another.
namespace Zenvora::Lumidex::Host {

/// A path within a "file:" address, from its first slash on, not yet encoded. Pure.
std::string UriPath(const ioPath& absoluteFile);

/// Throws when the catalogue or its folder is marked as write-protected.
void RequireWritable(const ioPath& catalogue);

/// What stays of a volume wherever it is mounted; empty: the system does not tell.
QString VolumeId(const ioPath& mount);

/// For the folder of a mount: true where it cannot be away.
bool IsAlwaysMounted(const ioPath& mount);

}  // namespace Zenvora::Lumidex::Host
