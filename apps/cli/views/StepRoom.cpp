#include <cli/session/StepText.h>
#include <cli/session/UndoSettings.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/StepRoom.h>
#include <cli/views/UndoView.h>
#include <host/history/UndoJournal.h>

#include <array>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

/// A limit with room for so many bytes, as "undo --keep-size" takes it; at most a tenth too large.
std::string LimitFor(std::uint64_t bytes) {
  constexpr std::array<std::pair<unsigned, const char*>, 4> kUnits = {
      {{30, "G"}, {20, "M"}, {10, "K"}, {0, ""}}};
  constexpr std::uint64_t kLeast = 10;
  for (const auto& [shift, letter] : kUnits) {
    const std::uint64_t whole = bytes >> shift;
    if (whole >= kLeast || shift == 0) {
      return std::to_string(whole + ((whole << shift) < bytes ? 1 : 0)) + letter;
    }
  }
  return {};
}

std::string TooMuchText(const Host::JournalRoom& room) {
  return Say(Words::tr("To undo the edit, %1 of originals must be kept, but the limit is %2."),
             {SizeText(room.needed), SizeText(room.limit)}) +
         ' ' +
         Say(Words::tr("\"lumidex undo --keep-size %1\" raises the limit; with --no-undo nothing is kept, "
                       "and the edit cannot be undone."),
             {LimitFor(room.needed)});
}

std::string ForgetsText(const Host::JournalRoom& room, bool beforehand) {
  const int amount = Amount(room.forgotten.size());
  return Say(
      beforehand
          ? Words::tr("To keep %1 of originals within the limit of %2, undo would have to forget %3 older "
                      "steps:",
                      nullptr, amount)
          : Words::tr("To keep %1 of originals within the limit of %2, undo forgets %3 older steps:", nullptr,
                      amount),
      {SizeText(room.needed), SizeText(room.limit), GroupDigits(room.forgotten.size())});
}

std::vector<std::string> StepLines(const std::vector<Host::UndoStep>& steps) {
  std::vector<std::string> lines;
  lines.reserve(steps.size());
  for (const Host::UndoStep& step : steps) {
    lines.push_back(WhenText(step) + "  " + StepText(step.name.toStdString()));
  }
  return lines;
}

std::string WithLines(std::string text, const std::vector<Host::UndoStep>& steps) {
  text += '\n';
  for (const std::string& line : StepLines(steps)) {
    text += "  " + EscapeForTerminal(line) + '\n';
  }
  return text;
}

std::string TightText(const Host::JournalRoom& room) {
  std::string text;
  for (const Host::TightVolume& volume : room.tight) {
    text += Say(Words::tr("The disk of %1 has %2 free, but editing all photos needs %3: the last ones would "
                          "not be edited."),
                {EscapeForTerminal(volume.folder.utf8string()),
                 SizeText(static_cast<std::uint64_t>(volume.bytesFree)), SizeText(volume.bytesNeeded)}) +
            '\n';
  }
  return text;
}

std::string RaiseText(const Host::JournalRoom& room) {
  return Say(Words::tr("\"lumidex undo --keep-size %1\" makes room for all of them."),
             {LimitFor(room.total)});
}

/// False when the answer is no.
bool MayForget(Session& session, const std::vector<Host::UndoStep>& steps, bool forgetOlder,
               const std::string& what, const std::string& advice) {
  if (steps.empty() || forgetOlder) {
    return true;
  }
  if (!CanAsk()) {
    throw Failure("undo-limit", Say(Words::tr("Nothing was changed.")) + ' ' + what, StepLines(steps),
                  Say(Words::tr("--forget-older allows it.")) + (advice.empty() ? "" : ' ' + advice));
  }
  return Ask(session.console, WithLines(what, steps) + (advice.empty() ? "" : advice + '\n'),
             Say(Words::tr("Forget them and continue? [y/N]")), session.interrupted);
}

}  // namespace

void AddRoomOptions(CLI::App& command, RoomWish& wish) {
  CLI::Option* const forget =
      command
          .add_flag("--forget-older", wish.forgetOlder,
                    "If the limit of undo is reached, forget the oldest steps without asking.")
          ->disable_flag_override();
  command.add_flag("--no-undo", wish.noUndo, "Keep no originals: \"lumidex undo\" cannot undo this step.")
      ->disable_flag_override()
      ->excludes(forget);
}

Host::JournalRoom RoomFor(Session& session, const std::vector<ioPath>& files, const RoomWish& wish) {
  return wish.noUndo
             ? Host::JournalRoom()
             : Host::PlanRoom(session.CatalogueFile(), files, Host::ReadUndoSteps(session.CatalogueFile()),
                              StoredLimits(session.console));
}

bool WouldBeRefused(const Host::JournalRoom& room, const RoomWish& wish) {
  return !room.Fits() || (!room.forgotten.empty() && !wish.forgetOlder && !CanAsk());
}

bool AgreeOnRoom(Session& session, const Host::JournalRoom& room, const RoomWish& wish) {
  if (!room.Fits()) {
    throw Failure("undo-limit", Say(Words::tr("Nothing was changed.")) + ' ' + TooMuchText(room));
  }
  return MayForget(session, room.forgotten, wish.forgetOlder, ForgetsText(room, true), RaiseText(room));
}

bool AgreeOnLimits(Session& session, const std::vector<Host::UndoStep>& forgotten, bool forgetOlder) {
  return MayForget(session, forgotten, forgetOlder,
                   Say(Words::tr("Within these limits, undo would have to forget %1 older steps:", nullptr,
                                 Amount(forgotten.size())),
                       {GroupDigits(forgotten.size())}),
                   {});
}

std::string RoomText(const Host::JournalRoom& room, const RoomWish& wish) {
  if (wish.noUndo) {
    return Say(Words::tr("No originals would be kept, so the edit could not be undone.")) + '\n';
  }
  if (!room.Fits()) {
    return Say(Words::tr("The edit would be refused.")) + ' ' + TooMuchText(room) + '\n';
  }
  if (room.forgotten.empty()) {
    return TightText(room);
  }
  return TightText(room) + WithLines(ForgetsText(room, !wish.forgetOlder), room.forgotten) +
         (wish.forgetOlder ? std::string() : Say(Words::tr("--forget-older allows it.")) + ' ') +
         RaiseText(room) + '\n';
}

void WriteRoom(JsonWriter& json, const Host::JournalRoom& room, const RoomWish& wish) {
  json.BeginObject("undo");
  json.Truth("keeps", !wish.noUndo);
  json.Number("bytesNeeded", static_cast<long long>(room.needed));
  json.Number("bytesLimit", static_cast<long long>(room.limit));
  json.Truth("fits", room.Fits());
  WriteSteps(json, "forgets", room.forgotten);
  json.BeginArray("tight");
  for (const Host::TightVolume& volume : room.tight) {
    json.BeginObject();
    json.Path("folder", volume.folder);
    json.Number("bytesNeeded", static_cast<long long>(volume.bytesNeeded));
    json.Number("bytesFree", static_cast<long long>(volume.bytesFree));
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

}  // namespace Zenvora::Lumidex::Cli
