#include <cli/session/CauseText.h>
#include <cli/session/StepText.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/JournalView.h>
#include <cli/views/TrashView.h>

#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string OutcomeText(const TrashView& view) {
  if (view.plan.photos.empty()) {
    return Say(Words::tr("Nothing to move to the trash.")) + '\n';
  }
  if (view.dryRun) {
    return Say(Words::tr("%1 would be moved to the trash. This was a dry run: nothing was changed.",
                         "so many photos", Amount(view.plan.photos.size())),
               {AmountText(view.plan)}) +
           '\n';
  }
  const Host::TrashResult& result = view.result;
  if (result.files == 0) {
    return Say(Words::tr("Nothing was moved.")) + '\n';
  }
  const int amount = Amount(result.photos);
  return Say(view.canBeUndone
                 ? Words::tr("%1 moved to the trash; \"lumidex undo\" brings back what is still there.",
                             "so many photos", amount)
                 : Words::tr("%1 moved to the trash.", "so many photos", amount),
             {PhotosAndFilesText(result.photos, result.files)}) +
         '\n';
}

void WriteFile(JsonWriter& json, const Host::SeenFile& file, const Host::TrashPhoto& photo) {
  json.BeginObject();
  json.Path("path", file.path);
  json.Path("kept", photo.kept.path);
  json.Number("size", static_cast<long long>(file.size));
  json.Text("verdict", Host::VerdictName(photo.verdict.verdict));
  json.EndObject();
}

}  // namespace

TrashView MakeTrashView(Host::TrashPlan plan, bool dryRun) {
  TrashView view;
  view.dryRun = dryRun;
  view.plan = std::move(plan);
  for (std::size_t i = 0; i < view.plan.photos.size(); ++i) {
    view.going.emplace(view.plan.photos[i].photo.path, i);
  }
  return view;
}

const Host::TrashPhoto* FindGoing(const TrashView& view, const ioPath& photo) {
  const auto found = view.going.find(photo);
  return found == view.going.end() ? nullptr : &view.plan.photos[found->second];
}

std::string AmountText(const Host::TrashPlan& plan) {
  const std::size_t files = plan.CountFiles();
  const std::string fileCount =
      files == plan.photos.size()
          ? std::string()
          : Say(Words::tr("%1 files", nullptr, Amount(files)), {GroupDigits(files)}) + ", ";
  return PhotosText(plan.photos.size()) + " (" + fileCount + SizeText(plan.CountBytes()) + ')';
}

std::string AlikeText(const TrashView& view) {
  TextTable table({{}, {}, {}});
  for (const Host::TrashPhoto& photo : view.plan.photos) {
    if (photo.verdict.verdict != Host::Verdict::Same) {
      table.AddRow(
          {photo.photo.path.utf8string(),
           Say(Words::tr("alike to %1", "a photo is; a file"), {photo.kept.path.filename().utf8string()}),
           CauseText(photo.verdict.why)});
    }
  }
  const std::string rows = table.Text(2);
  return view.plan.CountAlike() == 0
             ? std::string()
             : Say(Words::tr("Not the same picture as the photo to keep, only alike:")) + '\n' + rows + '\n';
}

std::string StaysText(const TrashView& view) {
  std::string text;
  std::size_t alike = 0;
  for (const Host::TrashStay& stay : view.plan.stays) {
    // The groups tell what each photo is to the one to keep.
    if (!stay.byVerdict) {
      text += "  " + EscapeForTerminal(CauseText(stay.cause)) + '\n';
    }
    alike += stay.byVerdict == Host::Verdict::Alike ? 1 : 0;
  }
  if (!text.empty()) {
    text = Say(Words::tr("Not moved:")) + '\n' + text + '\n';
  }
  if (alike > 0) {
    text += Say(Words::tr("%1 photos are alike and not the same picture; they stay unless --alike is given.",
                          nullptr, Amount(alike)),
                {GroupDigits(alike)}) +
            '\n';
  }
  return text;
}

std::string TrashQuestionText(const TrashView& view) {
  const std::size_t alike = view.plan.CountAlike();
  if (alike == 0) {
    return Say(Words::tr("Move %1 to the trash? [y/N]"), {AmountText(view.plan)});
  }
  return Say(
      Words::tr("Move %1 to the trash, %2 of which are only alike? [y/N]", "so many photos", Amount(alike)),
      {AmountText(view.plan), GroupDigits(alike)});
}

std::string TrashText(const TrashView& view) {
  return (view.asked ? "" : AlikeText(view) + StaysText(view)) +
         FindingsText(Say(Words::tr("Left where they are")), view.result.findings) + OutcomeText(view);
}

void WriteTrash(JsonWriter& json, const TrashView& view) {
  json.BeginObject("trash");
  json.Truth("dryRun", view.dryRun);
  json.Truth("alike", view.alike);
  json.Truth("interrupted", view.result.cancelled);
  json.BeginArray("planned");
  for (const Host::TrashPhoto& photo : view.plan.photos) {
    WriteFile(json, photo.photo, photo);
    for (const Host::SeenFile& file : photo.attached) {
      WriteFile(json, file, photo);
    }
  }
  json.EndArray();
  json.BeginArray("stays");
  for (const Host::TrashStay& stay : view.plan.stays) {
    json.BeginObject();
    json.Path("path", stay.photo);
    json.Text("cause", stay.cause);
    json.Truth("rule", stay.isRule);
    json.EndObject();
  }
  json.EndArray();
  json.Number("photosMoved", static_cast<long long>(view.result.photos));
  json.Number("filesMoved", static_cast<long long>(view.result.files));
  json.BeginArray("moved");
  for (const Host::TrashMove& move : view.result.moved) {
    json.BeginObject();
    json.Path("from", move.from);
    json.Path("to", move.to);
    json.EndObject();
  }
  json.EndArray();
  WriteFindings(json, view.result.findings);
  json.Truth("canBeUndone", view.canBeUndone);
  json.EndObject();
}

}  // namespace Zenvora::Lumidex::Cli
