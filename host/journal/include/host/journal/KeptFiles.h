#pragma once

#include <host/base/HostError.h>

#include <zenvora/core/ioPath.h>

#include <QByteArray>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// There is no room on the disk.
class NoRoomError : public HostError {};

/// SHA-1 of a file's content. Throws `HostError` when it cannot be read.
QByteArray DigestOf(const ioPath& file);

/// Versions of photos that undo may need, in one folder. All functions throw `HostError` and block on the
/// disk.
class KeptFiles {
 public:
  explicit KeptFiles(const ioPath& folder) : folder_(folder) {}

  ioPath PathOf(const std::string& name) const { return folder_ / ioPath(name); }
  /// Keeps what `file` holds now, with its time and, as far as the system lets us, its rights, its owner and
  /// what people noted of it (`NewFile::CopyRightsOf`), safe on the disk when this returns: its blocks are
  /// shared where the file system can, or the file gets a second name, else it is copied. What was kept under
  /// the name before is replaced. True when it is a copy, and
  /// putting it back makes another one.
  bool Keep(const ioPath& file, const std::string& name) const;
  /// Makes the new file `staging` of what is kept, likewise.
  void PutBeside(const std::string& name, const ioPath& staging) const;
  /// Writes what is kept over the content of `file`, which has no other name, in the room that it has: safe
  /// on the disk when this returns. Throws `NoRoomError` where that is too small, as a rule before anything
  /// is written; whether something was, only the content tells.
  void WriteOver(const std::string& name, const ioPath& file) const;
  /// Whether it was there does not matter.
  void Remove(const std::string& name) const;
  /// Removes the versions that have none of these names. Whatever else lies there is somebody else's.
  void RemoveOthers(const std::set<std::string>& wanted) const;
  /// Moves the versions with numbers beyond `last` to a new folder within this one, so that no version to
  /// come takes their names. Returns that folder; empty: there were none.
  ioPath SetAside(std::int64_t last) const;

 private:
  std::vector<ioPath> Names() const;

  const ioPath folder_;
};

}  // namespace Zenvora::Lumidex::Host
