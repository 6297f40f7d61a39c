#pragma once

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A photo or a video, or what belongs to one: thumbnails, spoken notes, settings.
struct ImportSource {
  ioPath path;  ///< Absolute; a link to a file keeps its own name.
  FileState state;
  bool isPhoto = false;
  /// What the others of its shot are known by: each photo, or of a shot without one each film. All of a shot
  /// without either is told by itself.
  bool leads = false;
  bool isAlone = false;  ///< Its shot has neither a photo nor a video.
  /// Equal for the files of one press of the shutter.
  std::size_t shot = 0;
  std::string suffix = {};  ///< As of `ShotFile`.
};

/// Something among the sources that is not taken.
struct LeftFile {
  enum class Kind {
    NotAPhoto,   ///< Neither a photo nor a video, nor what belongs to one.
    Hidden,      ///< Hidden itself, or below a hidden folder.
    NoFile,      ///< A pipe or a device: it is never opened.
    Unreadable,  ///< A file or folder that could not be read.
    Loop,        ///< A link that leads back.
  };
  Kind kind = Kind::NotAPhoto;
  ioPath path;
  std::string cause;  ///< English; empty when the kind says it all.
  /// It lies on what is copied off: whoever erases that loses it. Planning finds out.
  bool copiedOff = false;
};

/// Why it is left, English, to be put behind its name and a colon.
std::string ReasonToLeave(const LeftFile& file);

struct GatheredSources {
  std::vector<ImportSource> files;
  std::vector<LeftFile> left;
  /// Files and folders that cameras and systems keep for themselves; they are left without a word each.
  std::size_t housekeeping = 0;
};

enum class Gathered {
  Photos,      ///< Photos with what belongs to them; hidden things are skipped.
  Everything,  ///< Videos, too, and what belongs to nothing; the rest is left, hidden things among it.
};

/// Finds the photos and the videos that `sources` (absolute paths) hold, and what belongs to such: folders
/// with all below them, as a scan goes through them. What cameras and systems keep for themselves is passed
/// over with `Everything`, unless it begins like a picture or a video. A photo or a video that is named
/// itself brings what lies beside it along, but none of another name. Nothing is opened but folders and what
/// is named like housekeeping. Throws `HostError` when a source does not exist. Blocks on the disk.
GatheredSources GatherSources(const std::vector<ioPath>& sources, Gathered wanted = Gathered::Photos);

}  // namespace Zenvora::Lumidex::Host
