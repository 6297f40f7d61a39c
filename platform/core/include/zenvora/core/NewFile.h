#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <system_error>

namespace Zenvora {

/// A file being written that was not there before. Gone again with the object unless it is released: nothing
/// half written stays behind. An object belongs to one thread; everything blocks on the disk.
class ZENVORA_CORE_EXPORT NewFile {
 public:
  NewFile() = default;
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Makes the file, once for each object; its folder must exist. `file_exists` when there is something of
  /// that name, were it a link that leads nowhere: that stays as it is.
  std::error_code Create(const ioPath& file);
  /// Instead: opens a file that is there (no link) for being written over from its beginning; it will end
  /// where writing ends. The room that it lacks for `bytes` is taken from the disk at once: on an error, such
  /// as that there is none, its content is what it was. Released or not, it stays.
  std::error_code Reuse(const ioPath& file, std::uint64_t bytes);
  /// Gives it the permissions of another file and, as far as this user may and the file system can, its
  /// owner, its group and the further attributes that people and programs gave it. On Windows its hidden
  /// attribute; who may use it is up to the folder there.
  void CopyRightsOf(const ioPath& file);

  /// Gives the file, while nothing is written, the content of another by sharing its blocks, which takes
  /// neither room nor time. False where the file system cannot do it; then nothing has changed. Never on
  /// Windows.
  bool ShareBlocksOf(const ioPath& file);
  std::error_code Write(const void* bytes, std::size_t count);
  /// As writing so many zeros, but they take no room where the file system can do without.
  std::error_code Skip(std::size_t count);
  /// The time of its last change in nanoseconds since 1970-01-01 UTC, 100 of them the least step on Windows.
  /// To be called after all writing.
  std::error_code SetModified(std::int64_t ns);
  /// `durable`: first waits until the bytes are on the disk. No writing afterwards.
  std::error_code Close(bool durable);
  /// The file stays, or has got another name meanwhile.
  void Release() { file_.clear(); }

 private:
  std::error_code EndSkipped();

  ioPath file_;
  std::FILE* stream_ = nullptr;
  /// The end was skipped to, which by itself makes no file longer, or may have been beyond what is written.
  bool skipped_ = false;
  bool stays_ = false;
};

/// Waits until the name of a file is on the disk, which the file itself being there does not say. Not every
/// file system can do it: no error. Nothing on Windows, which does so by itself.
ZENVORA_CORE_EXPORT void SyncFolderOf(const ioPath& file);

}  // namespace Zenvora
