#pragma once

#include <vector>

namespace Zenvora::Lumidex::Host {

/// The statements that bring a catalogue of that version, 0 for an empty file, to the next one.
const std::vector<const char*>& MigrationFrom(int version);

}  // namespace Zenvora::Lumidex::Host
