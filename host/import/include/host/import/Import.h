#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/import/ImportPlan.h>
#include <host/scan/Scanner.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct ImportOptions {
  /// Threads that read copies back; 0: four per core, at most 8.
  int threads = 0;
  /// Set from any thread to stop soon: what is copied whole by then stays.
  const std::atomic<bool>* cancel = nullptr;
};

/// A copy that was planned and is not there.
struct MissingCopy {
  enum class Kind {
    Unreadable,  ///< The source.
    Changed,     ///< The source changes while it is read, again and again.
    NotWritten,  ///< This copy could not be written.
    Different,   ///< Read back, it was not what had been read. It is gone again.
    NameTaken,   ///< Something else got its name meanwhile.
    NotReached,  ///< The import ended before.
    Repeated,    ///< Its content was to come by another source, which is missing.
  };
  Kind kind = Kind::NotReached;
  ioPath source;
  ioPath target;      ///< Empty for what is repeated.
  std::string cause;  ///< English, to be put behind the name and a colon.
};

struct ImportResult {
  std::uint64_t copied = 0;  ///< Files that got their names, whole and compared.
  std::uint64_t bytes = 0;   ///< Of those.
  std::uint64_t added = 0;   ///< Photos that are new in the catalogue, copied or not.
  /// The step of the undo journal that holds the copies; 0: there are none.
  std::int64_t step = 0;
  std::vector<MissingCopy> missing;
  /// Of the photos taken into the catalogue.
  std::vector<ScanFinding> findings;
  bool cancelled = false;
  /// Why the import ended before its end, in one sentence: the disk is full, the folder is gone. Empty: it
  /// did not, or it was cancelled.
  std::string stopped;
};

/// Files and bytes copied so far.
struct ImportProgress {
  std::uint64_t files = 0;
  std::uint64_t totalFiles = 0;
  std::uint64_t bytes = 0;
  std::uint64_t totalBytes = 0;
};
/// Called on the importing thread, at most about ten times a second, and once at the end.
using ImportProgressHandler = std::function<void(const ImportProgress&)>;

/// Carries out a plan whose outcome is `Ready`. Sources are only read. Before the first copy, room for
/// undoing all of them is held beside the catalogue. A copy is written into a hidden folder beside its place,
/// waited for until it is on the disk, read back from there, compared with what was read from the source
/// (SHA-256), and noted in the undo journal and in the list of copies; only then it gets its name, which
/// nothing may have, and goes into the catalogue, some copies at a time. The copies of a run are one step of
/// the journal; what is taken in where it lies is none. Content, time, permissions and noted attributes are
/// kept. Before each copy the room is asked for again. What fails for one file is missing, and the others are
/// copied; a full disk or a folder that takes no files ends the import.
///
/// A kill at any moment leaves whole, compared files under their names and nothing else that is seen; a plan
/// made again then holds what is missing. A catalogue that fails ends the import, too. Throws `HostError`
/// when there is no room for undoing it, another import works in the folder, nothing can be written there at
/// all, or the catalogue fails and there is nothing to be copied.
ImportResult RunImport(const ImportPlan& plan, Catalogue& catalogue, const ImportOptions& options,
                       const ImportProgressHandler& progress);

}  // namespace Zenvora::Lumidex::Host
