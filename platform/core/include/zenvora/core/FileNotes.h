#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <map>
#include <string>
#include <utility>

namespace Zenvora {

/// What libraries remark on a file while this thread reads it. The remarks are kept as long as the object
/// lives and then go to the log (level 1 of the verbose lines) with the file's name: each one once, with how
/// often it came; remarks that differ in numbers alone count as one. An object within another for the same
/// file adds to that one. Scoped to the thread that made it; objects end in the reverse order of their
/// making.
class ZENVORA_CORE_EXPORT FileNotes {
 public:
  explicit FileNotes(const ioPath& file);
  ~FileNotes();
  FileNotes(const FileNotes&) = delete;
  FileNotes& operator=(const FileNotes&) = delete;

  /// Takes down a remark of `library` on the file that this thread reads; one on no file goes to the log at
  /// once. For handlers that libraries call: from any thread, never throws.
  static void Take(const char* library, const std::string& text) noexcept;

 private:
  struct Note {
    std::string text;  ///< As it came first.
    std::size_t count = 0;
  };

  void Add(const char* library, const std::string& text);

  const ioPath file_;
  FileNotes* const outer_;
  FileNotes& keeper_;  ///< The outer object when that is for the same file, else this one.
  std::map<std::string, Note> notes_;
  std::size_t others_ = 0;  ///< Remarks beyond those that are kept.
};

}  // namespace Zenvora
