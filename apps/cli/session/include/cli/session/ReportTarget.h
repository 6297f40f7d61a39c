#pragma once

#include <host/catalogue/Catalogue.h>

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Cli {

/// Where a symbolic link leads in the end, whether there is a file or not; other names stay. Blocks on the
/// disk.
ioPath FollowLinks(const ioPath& file);

/// A page replaces the file of its name. Throws `UsageError` when that name, or the one that it leads to
/// through symbolic links, is a photo's, the catalogue's or that of one of SQLite's files beside it.
void RequireReportName(const ioPath& report, const ioPath& catalogue);

/// Throws `Failure` when the file that is there is one of the photos, or holds something that is no HTML
/// page. What cannot be read or is no regular file passes: writing the page tells.
void RequireReplaceable(const ioPath& report, const std::vector<Host::PhotoRecord>& photos);

}  // namespace Zenvora::Lumidex::Cli
