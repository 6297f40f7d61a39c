#pragma once

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Zenvora::Bench {

struct VerdictOptions {
  /// Of everything that is drawn; the collections of all seeds are counted together.
  std::vector<std::uint32_t> seeds;
  /// Photos to take copies of instead of drawn ones; empty: those drawn.
  ioPath folder;
  std::size_t originals = 10;  ///< For each seed, or of the folder.
  std::size_t drawn = 20;      ///< Pages, receipts and so on, of each kind for each seed.
  bool isListing = false;      ///< Name the photos of which something is not as wished.
};

/// Prints what the verdicts between originals, copies, versions and other pictures are, and which of an
/// original and its copy is suggested to be kept. True when all goals are met. Throws `std::runtime_error`.
bool MeasureVerdicts(const VerdictOptions& options);

}  // namespace Zenvora::Bench
