#pragma once

#include <host/catalogue/MoveRows.h>
#include <host/rename/RenamePattern.h>
#include <host/shots/ShotSets.h>

#include <zenvora/core/ioPath.h>

#include <QDateTime>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct RenameShot {
  ShotSet set;
  /// When it was taken, as the camera's clock showed; invalid: unknown.
  QDateTime taken;
  /// Why that is not known, in English; empty: there is no photo in it.
  std::string dateFault = {};
  /// As of `TornLinks`; empty: there is none.
  ioPath link = {};
};

/// In which order shots get their numbers.
enum class RenameOrder {
  AsGiven,
  /// The earlier first; those of one moment by name, those without a date last.
  ByDate,
  /// Folder by folder, digits by their value: IMG_9 before IMG_10.
  ByName,
};

/// What becomes of the shots without a problem when others have one.
enum class RenameFailing {
  Nothing,  ///< Nothing at all is renamed.
  Others,   ///< The others are renamed, under the very names that they would get if all were.
};

struct RenameOptions {
  RenameOrder order = RenameOrder::AsGiven;
  std::uint32_t start = 1;
  RenameFailing onProblem = RenameFailing::Nothing;
  /// A text that no other run uses, for the names of files on their way: part of a name, at most 64 bytes.
  std::string token;
};

/// Why a shot cannot have its new name.
struct RenameProblem {
  enum class Kind {
    NoDate,    ///< The pattern needs a date, and the shot has none.
    BadName,   ///< The new name is none that files should have.
    SameName,  ///< Another shot, or another file of the shot, gets or keeps that name.
    Taken,     ///< Something that is not renamed has that name, or a file of a shot of that name.
    Blocked,   ///< The name is that of a shot which stays because of a problem of its own.
    Repeated,  ///< The file also belongs to a shot that was given before.
    Torn,      ///< A symbolic link of the shot's name lies beside it, and links keep their names.
  };
  Kind kind = Kind::NoDate;
  /// Index of the shot as given.
  std::size_t shot = 0;
  ioPath file;
  /// The new name; empty when there is none.
  ioPath target;
  /// Which file stands against it; empty when none does.
  ioPath other;
  /// English, to be put behind the name: of `target`, or of `file` when that is empty.
  std::string cause;
};

struct RenamePlan {
  /// Each file that gets another name, old and new, in the order of the shots. Empty when the plan is
  /// refused.
  std::vector<RenameMove> renames;
  /// How many shots these files are of.
  std::size_t shots = 0;
  /// What is to be done, step by step. When a step's turn comes, its source is there and its target free, in
  /// the eyes also of systems that ignore case or Unicode form; so any number of steps can be undone in
  /// reverse order. Files of a circle of names, and those whose name changes in case or Unicode form only,
  /// go through a hidden name in their folder. Empty when the plan is refused.
  std::vector<RenameMove> steps;
  /// Links that are to lead to the new names, `RenameLinks.h` finds them.
  std::vector<RenameLink> links;
  /// By shot as planned, at most one for each. Not empty: refused, unless the options say otherwise.
  std::vector<RenameProblem> problems;
  /// Files that have their new name already. No problem.
  std::size_t unchanged = 0;
};

/// Plans a batch rename; renames nothing. Names are made by `pattern` and checked for every system, numbers
/// counted by shots. A shot is renamed whole or not at all, and never so that two shots become one.
///
/// `entries`: everything that is in the shots' folders (hidden things and folders too), spelled as on the
/// disk and each folder as in `shots`; whether files of the shots are among them does not matter. Pure: the
/// same arguments give the same plan. What the disk will know better only then (a name that came up since, a
/// short name of Windows) has to be caught when the steps are done. Takes O(n log n). Throws `HostError` when
/// `options.token` cannot be part of a name.
RenamePlan MakeRenamePlan(const std::vector<RenameShot>& shots, const RenamePattern& pattern,
                          const std::vector<ioPath>& entries, const RenameOptions& options);

}  // namespace Zenvora::Lumidex::Host
