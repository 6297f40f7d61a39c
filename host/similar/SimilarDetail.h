#pragma once

#include <host/similar/SimilarUpdate.h>
#include <host/similar/VerdictStore.h>

namespace Zenvora::Lumidex::Host {

/// Measures how sharp the photos are between which sharpness decides, by their origins in `store`, and stores
/// it; those measured before are left out. Returns whether it came to the end. Throws `HostError` when the
/// catalogue fails.
bool MeasureDetail(SimilarPhotos& similar, const VerdictStore& store, AnalysisOptions options,
                   const SimilarProgressHandler& progress);

}  // namespace Zenvora::Lumidex::Host
