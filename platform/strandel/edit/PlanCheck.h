#pragma once

#include "MetadataPlan.h"

namespace Zenvora::Strandel {

/// Throws `EditRefusal` when what a photo says differs from before in anything but the plan.
void CheckAgainstPlan(const Exiv2::Image& before, const Exiv2::Image& after, const MetadataPlan& plan);
/// The same of XMP data alone.
void CheckXmpAgainstPlan(const Exiv2::XmpData& before, const Exiv2::XmpData& after, const MetadataPlan& plan);

}  // namespace Zenvora::Strandel
