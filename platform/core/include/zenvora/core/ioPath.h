#pragma once

#include <zenvora/core/Export.h>

#include <QString>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <system_error>

namespace Zenvora {

/// The name of a file or folder. Text goes in and out as UTF-8; the system is called in its native form
/// (bytes on Linux, UTF-16 on Windows). Windows knows '/' and '\\' as separators and joins with '\\'; both
/// stay as they are written and compare equal.
///
/// On Linux a file name is any bytes: a name that is not valid UTF-8 survives unchanged through `utf8string`
/// and back, but not through `QString`. Nothing is normalised: neither case, nor Unicode form, nor "..", nor
/// symbolic links, so two names of one file compare unequal. Repeated separators compare equal to one.
///
/// Thread-safety: as a value: distinct objects from any thread. `rename`, `remove`, `file_size` and `exists`
/// call the file system and block as long as it does. They fail on what is no name (`name_fault`).
class ZENVORA_CORE_EXPORT ioPath {
 public:
  ioPath() = default;
  /// From UTF-8 text (any bytes on Linux). On Windows bytes that are not UTF-8 become U+FFFD.
  ioPath(const std::string& utf8);  // Implicit: paths are written as texts everywhere
  ioPath(const char* utf8);
  explicit ioPath(const QString& text);
  explicit ioPath(std::filesystem::path native);

  bool operator==(const ioPath& other) const {
    // One look at the bytes tells as a rule.
    return path_.native() == other.path_.native() || path_ == other.path_;
  }
  bool operator!=(const ioPath& other) const { return !(*this == other); }
  /// Element by element, so that a folder's files stand together. A strict weak order for maps; not for
  /// people.
  bool operator<(const ioPath& other) const {
    return path_.native() != other.path_.native() && path_ < other.path_;
  }

  /// Joins with one separator. An absolute right side replaces the left.
  ioPath& operator/=(const ioPath& right);
  ioPath operator/(const ioPath& right) const;

  bool empty() const noexcept { return path_.empty(); }
  void clear() noexcept { path_.clear(); }

  /// The path without its last element; of a root, the root itself; of a single name, empty.
  ioPath parent_path() const;
  /// Root name and root folder together: "/", "C:\" or "\\server\share\"; empty for a relative path.
  ioPath root_path() const;
  /// On Windows the volume, "C:" or "\\server\share"; empty on Linux.
  ioPath root_name() const;
  /// The last element, empty after a trailing separator.
  ioPath filename() const;
  /// The file name's part from its last dot on, dot included; empty when there is none or when the only dot
  /// is the name's first character (".jpg" is all name).
  ioPath extension() const;
  /// Replaces the extension (with or without its dot); an empty one removes it.
  ioPath& replace_extension(const ioPath& extension = ioPath());

  /// One attempt to give the file or folder the name `to`; an existing file at `to` is replaced in one step.
  /// True on success. False when the system refuses (missing source, other volume, no permission, a folder in
  /// the way of a file or the reverse): nothing has changed then. On Linux an empty folder gives way to a
  /// folder.
  bool rename(const ioPath& to) const;
  /// Deletes the file or the empty folder. True when it was there and is gone now.
  bool remove() const;
  /// Size in bytes, 0..2^64-1, following symbolic links; 0 also when there is no regular file or it cannot be
  /// asked.
  std::uint64_t file_size() const;
  /// True when something of that name is there (a dangling symbolic link is not).
  bool exists() const;

  std::string utf8string() const;
  QString qstring() const;
  /// The form that wide system calls take: UTF-16 on Windows, UTF-32 on Linux (bytes that are not UTF-8
  /// become U+FFFD).
  std::wstring wstring() const;
  const std::filesystem::path& native() const noexcept { return path_; }

  /// Why no file or folder can have this name here: it is empty, holds a NUL character, or, on Windows,
  /// stands for something else (`WindowsNames::FindFault`). In English, to be put behind the name; empty: it
  /// is a name. Says nothing of whether it exists.
  std::string name_fault() const;
  /// The form to hand to the system: the path itself; on Windows, when it is long, absolute and with the
  /// prefix that lifts the limit of 260 characters. Not for keeping nor for people.
  std::filesystem::path for_system() const;
  /// True when it does not depend on a current folder; on Windows also of a share.
  bool is_absolute() const;
  /// The path from the current folder on. Links stay; on Windows also "." and ".." are gone.
  ioPath absolute() const;
  /// The one absolute name of an existing file or folder, without links, "." and ".."; on Windows in the
  /// spelling that the disk has. Empty, with the cause, when there is none. Blocks on the disk.
  ioPath canonical(std::error_code& error) const;
  /// Equal for equal paths.
  std::size_t hash() const noexcept;

 private:
  /// Also no file named as if it were a folder.
  bool IsName() const;

  std::filesystem::path path_;
};

/// Writes the UTF-8 form, unquoted.
ZENVORA_CORE_EXPORT std::ostream& operator<<(std::ostream& stream, const ioPath& path);

}  // namespace Zenvora

template <>
struct std::hash<Zenvora::ioPath> {
  std::size_t operator()(const Zenvora::ioPath& path) const noexcept { return path.hash(); }
};
