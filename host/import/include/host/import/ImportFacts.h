#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/scan/ImportSources.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace Zenvora::Lumidex::Host {

// An import is made ready in turns of looking and asking, and then planned (host/import/ImportPlan.h):
//
//   ImportFacts facts;  // with the sources
//   ImportAnswers answers;
//   if (AskReadable(facts, answers)) {
//     LookAtSources(facts, photos, cancel, progress);
//     if (AskCopies(facts, answers)) {
//       LookAtFolder(facts, answers, catalogue, cancel);
//     }
//   }
//   const ImportPlan plan = PlanImport(facts, answers);

/// Why a source need not be copied.
enum class KnownKind {
  Catalogued,  ///< The catalogue has a photo of that content.
  Copied,      ///< It was copied before, and the copy is whole.
  Repeated,    ///< Another one of the sources has that content.
};

/// Sources are told by their place in `ImportFacts::sources.files`.
struct KnownSource {
  KnownKind kind = KnownKind::Catalogued;
  std::size_t source = 0;
  ioPath other;  ///< The file that has the content.
};

/// The folder that copies go to, as it is before the import.
struct CopyFolder {
  std::vector<ioPath> names;  ///< Of all that is in it.
  bool ignoresCase = false;   ///< A name finds its file in another case, too.
  /// Sources that lie in it or below, by whichever way.
  std::unordered_set<std::size_t> holds;
  std::int64_t freeBytes = -1;  ///< Negative: unknown.
  /// Why no file can be made in it, in one sentence; empty: nothing is in the way.
  std::string obstacle;
};

/// What disks and the catalogue say of an import.
struct ImportFacts {
  GatheredSources sources;
  /// Told in advance: every file is copied, whatever it lies on, as if all of it could be pulled out.
  bool copyAll = false;
  std::vector<std::size_t> readable;
  std::vector<std::size_t> unreadable;
  std::vector<KnownSource> known;  ///< Of those that are readable.
  std::vector<std::size_t> fresh;  ///< The others of them: whether to copy these is asked.
  /// Folders of sources, and of what is left, that can be pulled out; not looked for with `copyAll`.
  std::unordered_set<ioPath> removable;
  CopyFolder folder;
  /// Why the import could not be undone, likewise, without a full stop.
  std::string journalObstacle;
  bool interrupted = false;  ///< Not all was looked at.
};

/// What the user wants.
struct ImportAnswers {
  struct File {
    std::size_t source = 0;
    bool copy = false;  ///< Else it is taken in where it lies.
  };
  /// Nothing is to be added, or nobody could be asked.
  bool declined = false;
  /// Each fresh source, in the order in which copies get their names.
  std::vector<File> files;
  ioPath folder;  ///< Of the copies, absolute, without links; empty: nothing is copied. It may not exist yet.
};

/// Files looked at so far, of all.
using ImportFactsProgress = std::function<void(std::uint64_t done, std::uint64_t total)>;

/// Finds out which of the readable sources are there already, which reads files of equal size, and which
/// folders can be pulled out. `photos`: what the catalogue has; those whose files are gone or changed do not
/// count, nor those that can be pulled out. `cancel`: set from any thread to stop soon; may be null. Blocks
/// on the disk.
void LookAtSources(ImportFacts& facts, const std::vector<PhotoRecord>& photos,
                   const std::atomic<bool>* cancel, const ImportFactsProgress& progress);

/// Looks at the folder that was chosen: what was copied there before is known from now on; and at the room
/// beside the catalogue, which need not exist yet, for undoing the import. Makes nothing. Blocks on the disk.
void LookAtFolder(ImportFacts& facts, const ImportAnswers& answers, const ioPath& catalogue,
                  const std::atomic<bool>* cancel);

}  // namespace Zenvora::Lumidex::Host
