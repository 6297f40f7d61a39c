#pragma once

#include <CLI/CLI.hpp>
#include <cli/session/Session.h>
#include <cli/terminal/JsonWriter.h>
#include <host/journal/JournalRoom.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What the person said beforehand about a step that undo has no room for.
struct RoomWish {
  bool forgetOlder = false;  ///< Older steps may be forgotten for it.
  bool noUndo = false;       ///< Nothing is to be kept for it: it cannot be undone.
};

/// `--forget-older` and `--no-undo`.
void AddRoomOptions(CLI::App& command, RoomWish& wish);

/// What a step that edits `files` (all of them, settings beside photos too) would keep, by the limits of the
/// settings. With `--no-undo` nothing, whatever there is.
Host::JournalRoom RoomFor(Session& session, const std::vector<ioPath>& files, const RoomWish& wish);

/// To be called before anything is changed. Asks at a terminal whether older steps may be forgotten, unless
/// that was said beforehand: false when the answer is no. Throws `Failure` when nobody can be asked, and when
/// the step alone is beyond the limit.
bool AgreeOnRoom(Session& session, const Host::JournalRoom& room, const RoomWish& wish);

/// The same for new limits, which leave no place for these steps. Does not ask when there are none.
bool AgreeOnLimits(Session& session, const std::vector<Host::UndoStep>& forgotten, bool forgetOlder);

/// For a dry run: whether `AgreeOnRoom` would throw.
bool WouldBeRefused(const Host::JournalRoom& room, const RoomWish& wish);

/// For a dry run: what the step would make undo forget, or why it would be refused, and where disks lack
/// room; empty when it fits.
std::string RoomText(const Host::JournalRoom& room, const RoomWish& wish);

/// The member "undo" of what edits and what checks tell.
void WriteRoom(JsonWriter& json, const Host::JournalRoom& room, const RoomWish& wish);

}  // namespace Zenvora::Lumidex::Cli
