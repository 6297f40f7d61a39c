#pragma once

#include <host/HostError.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstdint>
#include <functional>

namespace Zenvora::Lumidex::Host {

struct SampleOptions {
  std::uint32_t seed = 1;
  /// About how many photos, 50..100000.
  int photos = 360;
  const std::atomic<bool>* cancel = nullptr;
};

struct SampleResult {
  int photos = 0;
  bool cancelled = false;
};

/// Makes a believable collection of JPEG files below `folder`: drawn scenes with EXIF dates over several years, holidays,
/// weekends, bursts of near-duplicates, positions, camera models, odd file names. The same seed and number give the
/// same files. The folder must be empty or missing, so that no picture is ever overwritten.
/// `progress` (may be empty): photos done, photos in all. Throws `HostError`.
SampleResult MakeSample(const ioPath& folder, const SampleOptions& options,
                        const std::function<void(int, int)>& progress);

}  // namespace Zenvora::Lumidex::Host
