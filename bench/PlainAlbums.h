#pragma once

#include <zenvora/lumidex/Album.h>
#include <zenvora/lumidex/DataModel.h>

#include <vector>

namespace Zenvora::Bench {

/// The rule of holiday albums as it reads: every photo scans the events and words its interval. The yardstick
/// for the library's own way, and the oracle that it must agree with.
std::vector<Lumidex::Album> MakePlainAlbums(const std::vector<Lumidex::DataModel>& photos);

}  // namespace Zenvora::Bench
