#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/scan/ImportSources.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct ImportPlanOptions {
  /// Copies every file, whatever it lies on, as if all of it could be pulled out; without it only what can
  /// be.
  bool copyAll = false;
  /// Set from any thread to stop soon.
  const std::atomic<bool>* cancel = nullptr;
};

/// One file that is to be copied.
struct ImportCopy {
  ioPath source;
  FileState state;  ///< Of the source, when it was planned.
  ioPath target;    ///< In the folder of copies; free when it was planned.
  bool isPhoto = false;
};

/// A file whose content is there already.
struct KnownFile {
  enum class Kind {
    Catalogued,  ///< The catalogue has a photo of that content.
    Copied,      ///< It was copied before, and the copy is whole.
    Repeated,    ///< Another one of the sources has that content.
  };
  Kind kind = Kind::Catalogued;
  ioPath path;
  ioPath other;
};

/// A shot whose files would get different names, and so be shots of their own.
struct SplitShot {
  std::vector<ioPath> sources;
  std::vector<ioPath> targets;  ///< One for each.
};

/// Files of one shot that would get the name of another, and so count as its files.
struct JoinedShot {
  std::vector<ioPath> sources;
  std::vector<ioPath> targets;  ///< One for each.
  std::vector<ioPath> others;   ///< Of the other shot: in the folder already, or copies to it.
};

/// What an import would do.
struct ImportPlan {
  enum class Outcome {
    Ready,
    Declined,     ///< The user wants nothing to be added, or nobody could be asked.
    Interrupted,  ///< Planning was given up; nothing of the plan counts.
  };
  Outcome outcome = Outcome::Ready;
  /// Where the copies go, absolute; empty when there are none. It may not exist yet.
  ioPath folder;
  std::vector<ImportCopy> copies;
  /// Photos that are taken into the catalogue where they lie: those that stay, and copies of a former run.
  std::vector<ioPath> stays;
  std::vector<KnownFile> known;
  std::vector<LeftFile> left;
  std::size_t housekeeping = 0;  ///< As of `GatheredSources`.
  /// Sources are copied off: all that they hold is to be elsewhere afterwards. What of `left` speaks against
  /// it has the mark.
  bool copiesOff = false;
  /// Of those that can be pulled out, some are not copied because the user said so.
  bool copyDeclined = false;
  /// What is not copied since it lies where it can stay, or the user said so.
  std::size_t photosInPlace = 0;
  std::size_t filmsInPlace = 0;
  std::vector<SplitShot> splits;
  std::vector<JoinedShot> joins;
  std::uint64_t bytes = 0;      ///< Of the copies.
  std::int64_t freeBytes = -1;  ///< Where they go; negative: unknown.
  /// Why the copies cannot be made there at all, in one sentence; empty: nothing is in the way.
  std::string obstacle;
};

/// Files looked at so far, of all.
using ImportPlanProgress = std::function<void(std::uint64_t done, std::uint64_t total)>;

/// Plans what an import of the sources does, by the library's own checks: which files can be read
/// (`CheckFilesReadableDialog`), and which are copied, where to and under which names
/// (`CheckFilesToCopyBeforeAddDialog`). Their questions go to the services in force (`App::IAlerts`,
/// `App::IFolderDialog`). Nothing is made, written or remembered: carrying out the plan does all of that.
///
/// `photos`: what the catalogue has. What is there already is neither copied nor added again; that reads
/// files of equal size. Files whose names are no text are told apart and keep their bytes. Throws
/// `HostError`. Blocks on the disk and on the user; main thread only.
ImportPlan PlanImport(const GatheredSources& sources, const std::vector<PhotoRecord>& photos,
                      const ImportPlanOptions& options, const ImportPlanProgress& progress);

}  // namespace Zenvora::Lumidex::Host
