#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/shots/PhotoReading.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct ScanOptions {
  /// Threads that read metadata; 0: one per core, at most 8.
  int threads = 0;
  /// Reads every file again, also unchanged ones.
  bool full = false;
  /// Only tells what would be done; the catalogue is not changed.
  bool dryRun = false;
  /// Set from any thread (a signal handler too) to stop soon; what is committed stays.
  const std::atomic<bool>* cancel = nullptr;
};

/// Counts so far. `found` grows until `foundAll`.
struct ScanProgress {
  std::uint64_t found = 0;
  bool foundAll = false;
  std::uint64_t done = 0;
};
/// Called on the scanning thread, at most about ten times a second, and once at the end.
using ScanProgressHandler = std::function<void(const ScanProgress&)>;

struct ScanResult {
  std::uint64_t found = 0;  ///< Files named like photos.
  std::uint64_t added = 0;
  std::uint64_t updated = 0;
  std::uint64_t unchanged = 0;
  /// Known photos that were found under other names: they keep all that is known of them.
  std::uint64_t moved = 0;
  std::uint64_t lost = 0;  ///< Known photos under the scanned folders whose files are gone, newly marked.
  std::uint64_t dated[kDateSourceCount] = {};  ///< Of the files read: how many by `DateSource`.
  bool cancelled = false;
  std::vector<ScanFinding> findings;
};

/// Walks the folders (a file is taken as itself), reads the metadata of new and changed photos in several
/// threads, and commits them in batches, so that a kill loses at most the last batch. A folder that cannot be
/// read is a finding, and no photo below it is marked lost; nor is any after a cancelled scan. Files reached
/// twice (nested roots, links) count once. Photos whose files others moved or renamed are known again by
/// their content; steps of the journal follow them. Hidden files and folders (leading dot) are skipped.
/// Throws `HostError` when a root does not exist, the catalogue fails, or photos were moved while another
/// program is at work with the journal.
ScanResult Scan(Catalogue& catalogue, const std::vector<ioPath>& roots, const ScanOptions& options,
                const ScanProgressHandler& progress);

}  // namespace Zenvora::Lumidex::Host
