#pragma once

#include <QDateTime>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace Zenvora::Tavolin {

/// What the notes of a freedesktop.org trash are called besides the file's name there.
constexpr char kTrashNoteEnd[] = ".trashinfo";

/// The `number`-th name to try for a file in a trash, from 1: its own, then with the number before the
/// extension. Cut so that the note's name takes `longest` bytes at most, between characters of UTF-8 and in
/// front of the number and a short extension. All of it is bytes. Pure.
std::string NameInTrash(const std::string& name, unsigned number, std::size_t longest);

/// The text of a note: a path (bytes) and when it was deleted, in local time. Pure.
std::string TrashNoteText(const std::string& path, const QDateTime& deleted);

/// The path that a note names, its bytes; none when it is no note. Pure.
std::optional<std::string> PathInTrashNote(const std::string& text);

/// What a note of the Windows recycle bin holds.
struct RecycleNote {
  std::uint64_t size = 0;  ///< Of the file, bytes.
  QDateTime deleted;       ///< With milliseconds.
  std::u16string path;     ///< Without the prefix for long paths.
};

/// The bytes of such a note, in the form that Windows 10 and later write. Pure.
std::string RecycleNoteBytes(const RecycleNote& note);

/// None when it is no note of that form. Pure.
std::optional<RecycleNote> ParseRecycleNote(const std::string& bytes);

}  // namespace Zenvora::Tavolin
