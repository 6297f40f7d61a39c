#pragma once

#include <host/import/ImportFacts.h>
#include <host/scan/ImportSources.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// One file that is to be copied.
struct ImportCopy {
  ioPath source;
  FileState state;  ///< Of the source, when it was looked at.
  ioPath target;    ///< In the folder of copies; free when that was looked at.
  bool isPhoto = false;
};

/// A file whose content is there already.
struct KnownFile {
  using Kind = KnownKind;
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
    Interrupted,  ///< Not all was looked at; nothing of the plan counts.
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
  std::uint64_t bytes = 0;  ///< Of the copies.
  /// Why the copies cannot be made there at all, in one sentence; empty: nothing is in the way.
  std::string obstacle;
};

/// Plans what an import does. A shot whose name is taken gets a new one for all of its files, numbered as
/// `CheckFilesToCopyBeforeAddDialog` does and shortened where it is too long; names that are no text keep
/// their bytes. Pure.
ImportPlan PlanImport(const ImportFacts& facts, const ImportAnswers& answers);

}  // namespace Zenvora::Lumidex::Host
