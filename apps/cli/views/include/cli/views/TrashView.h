#pragma once

#include <cli/terminal/JsonWriter.h>
#include <host/history/UndoJournal.h>
#include <host/trash/TrashPlan.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <string>
#include <unordered_map>

namespace Zenvora::Lumidex::Cli {

/// What moving photos to the trash shows.
struct TrashView {
  bool dryRun = false;
  bool alike = false;     ///< What is merely alike may go, too.
  bool asked = false;     ///< A person was asked, and has seen the plan.
  bool declined = false;  ///< The answer was no.
  Host::TrashPlan plan;
  /// Of the photos that are planned to go, by their paths.
  std::unordered_map<ioPath, std::size_t> going;
  Host::TrashResult result;  ///< Of a dry run empty.
  bool canBeUndone = false;
};

TrashView MakeTrashView(Host::TrashPlan plan, bool dryRun);

/// The photo among those that are to go; null when it is none.
const Host::TrashPhoto* FindGoing(const TrashView& view, const ioPath& photo);

/// What goes although it is not the same picture as the one that is kept, and why; empty when nothing does.
std::string AlikeText(const TrashView& view);
/// What stays and why, below a heading, and how much is merely alike; empty when nothing stays.
std::string StaysText(const TrashView& view);
/// Asks for a yes or no.
std::string TrashQuestionText(const TrashView& view);
/// "2 photos (3 files, 1.5 MiB)".
std::string AmountText(const Host::TrashPlan& plan);
/// What was moved, or would be.
std::string TrashText(const TrashView& view);
/// The member "trash".
void WriteTrash(JsonWriter& json, const TrashView& view);

}  // namespace Zenvora::Lumidex::Cli
