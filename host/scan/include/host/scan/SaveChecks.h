#pragma once

#include <host/scan/FileVerdicts.h>
#include <host/scan/ImportSources.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What commands do to files.
enum class FileAct { Import, Rename, Rotate, ShiftDate, SetDate, Trash };

/// Something that a command would refuse.
struct CheckFinding {
  FileVerdict::Kind kind = FileVerdict::Kind::Done;
  ioPath path;
  std::string text;  ///< In the words in which the command itself would say it.
  std::set<FileAct> acts;
};

/// How much saving the files anew would take on one volume.
struct CheckedVolume {
  ioPath folder;  ///< One of the checked ones on it.
  std::uint64_t files = 0;
  std::uint64_t bytesNeeded = 0;
  std::int64_t bytesFree = -1;  ///< Negative: unknown.
};

struct CheckReport {
  /// Looked at, for whichever command.
  std::size_t files = 0;
  /// Ordered by path, then by kind.
  std::vector<CheckFinding> findings;
  std::vector<CheckedVolume> volumes;
  /// What an import leaves since it is neither a photo nor a video or is hidden, where that lies on storage
  /// from which an import copies only when told so. Elsewhere it is among the findings. Ordered by path.
  std::vector<LeftFile> left;
  /// What edits of all of the photos would replace: those that are not refused, with their sidecars.
  std::vector<ioPath> edited;
  bool cancelled = false;
};

struct CheckOptions {
  /// What is asked for; all by default.
  std::set<FileAct> acts = {FileAct::Import,    FileAct::Rename,  FileAct::Rotate,
                            FileAct::ShiftDate, FileAct::SetDate, FileAct::Trash};
  /// Set from any thread to stop soon; the report then tells of some files only.
  const std::atomic<bool>* cancel = nullptr;
  /// Photos done, photos in all.
  std::function<void(std::size_t, std::size_t)> progress;
};

/// Asks for each file what each of the commands would say of it. `arguments`: what a person named, absolute
/// paths that exist. A folder stands for all photos in it and below with what belongs to them, for an import
/// for all that it would look at (`GatherSources`). Where an answer depends on what a command is told, that
/// is listed which holds whatever it is told. Changes nothing. Blocks on the disk: for edits each photo is
/// read whole and edited in memory. Throws `HostError`.
CheckReport CheckFiles(const std::vector<ioPath>& arguments, const CheckOptions& options);

}  // namespace Zenvora::Lumidex::Host
