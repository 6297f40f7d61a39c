#pragma once

#include "ImageLayout.h"
#include "MetadataPlan.h"

#include <string>
#include <vector>

namespace Zenvora::Strandel {

/// Changes the XMP and IPTC data of a plan where they stand in the file, byte for byte: their blocks keep
/// their form and size. Throws `EditRefusal` when one is not found or would need more room.
void ChangeTextsInPlace(std::string& bytes, const std::vector<ByteRange>& places, const MetadataPlan& plan);

}  // namespace Zenvora::Strandel
