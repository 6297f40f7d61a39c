#pragma once

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A photo, or what lies beside one and belongs to it.
struct ImportSource {
  ioPath path;  ///< Absolute; a link to a file keeps its own name.
  FileState state;
  bool isPhoto = false;
  /// Equal for the files of one press of the shutter.
  std::size_t shot = 0;
};

/// Something among the sources that is not taken.
struct LeftFile {
  enum class Kind {
    NotAPhoto,   ///< Neither named like a photo nor beside one.
    NoFile,      ///< A pipe or a device: it is never opened.
    Unreadable,  ///< A file or folder that could not be read.
    Loop,        ///< A link that leads back.
  };
  Kind kind = Kind::NotAPhoto;
  ioPath path;
  std::string cause;  ///< English; empty when the kind says it all.
};

struct GatheredSources {
  std::vector<ImportSource> files;
  std::vector<LeftFile> left;
};

/// Finds the photos that `sources` (absolute paths) hold, and their side files: folders with all below them,
/// as a scan goes through them, hidden things passed over. A photo that is named itself brings its side files
/// along, but no other photo. Nothing is opened but folders. Throws `HostError` when a source does not exist.
/// Blocks on the disk.
GatheredSources GatherSources(const std::vector<ioPath>& sources);

}  // namespace Zenvora::Lumidex::Host
