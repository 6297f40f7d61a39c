#pragma once

#include <host/catalogue/CatalogueMoves.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <QString>

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Tells a photo that is gone from one whose volume is not there. Blocks on the disk; belongs to one thread.
class VolumesSeen {
 public:
  explicit VolumesSeen(const CatalogueMoves& catalogue);

  /// A photo was found there.
  void Note(const ioPath& photo, const FileState& state);
  /// Where volumes with photos are now.
  const std::unordered_map<std::string, QString>& Now() const { return now_; }

  /// `path`: a name under which nothing is. True when its volume is the one that is there now, so that the
  /// photo was removed or moved; `found`: a file that may be it.
  bool IsThere(const ioPath& path, const ioPath& found);

 private:
  bool IsSameVolume(const std::string& mounted, const QString& id);

  const CatalogueMoves& catalogue_;
  const std::unordered_map<std::string, QString> former_;
  std::unordered_map<std::string, QString> now_;
  std::set<std::uint64_t> devices_;
  std::unordered_map<std::string, bool> isSame_;
};

/// Notes in the catalogue where the volumes of photos are that were just stored.
void NoteVolumesOf(const Catalogue& catalogue, const std::vector<PhotoRecord>& photos);

}  // namespace Zenvora::Lumidex::Host
