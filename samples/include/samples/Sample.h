#pragma once

#include <host/base/HostError.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstdint>
#include <functional>

namespace Zenvora::Lumidex::Host {

struct SampleOptions {
  std::uint32_t seed = 1;
  /// How many photos, 50..100000.
  int photos = 360;
  /// Set from any thread (a signal handler too) to stop after the files in work.
  const std::atomic<bool>* cancel = nullptr;
};

struct SampleResult {
  int photos = 0;          ///< Written, each of them whole.
  bool cancelled = false;  ///< Stopped before all were written.
};

/// Makes a believable collection of JPEG files below `folder`: drawn scenes with EXIF dates over several
/// years, holidays, weekends, bursts of near-duplicates, positions, camera models, odd file names. The same
/// seed and number give the same files. The folder must be empty or missing, so that no picture is ever
/// overwritten. `progress` (may be empty), called on the calling thread: photos done, photos in all. Throws
/// `HostError` naming the folder or file and the cause; what was written before stays, but no part of a file.
/// Draws in several threads and blocks until all is written. Needs Qt Gui's JPEG plug-in, but no window
/// system.
SampleResult MakeSample(const ioPath& folder, const SampleOptions& options,
                        const std::function<void(int, int)>& progress);

}  // namespace Zenvora::Lumidex::Host
