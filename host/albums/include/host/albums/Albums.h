#pragma once

#include <host/catalogue/Catalogue.h>

#include <zenvora/lumidex/Album.h>
#include <zenvora/lumidex/DataModel.h>

#include <atomic>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Photos as library items (name: the file's name), in the same order.
std::vector<DataModel> MakeModels(const std::vector<PhotoRecord>& photos);

/// Runs `Util::GenerateHolidayAlbums` and waits for its answer in an event loop of its own. Needs an
/// application object. `cancel` (may be null): when set while waiting, throws `HostError`, as it does when
/// the application quits meanwhile. Call it on the application's thread; that thread's other events are
/// delivered while it waits.
std::vector<Album> ProposeAlbums(std::vector<DataModel> photos, const std::atomic<bool>* cancel);

}  // namespace Zenvora::Lumidex::Host
