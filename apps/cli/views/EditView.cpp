#include "OrientationText.h"

#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <cli/views/EditView.h>
#include <cli/views/JournalView.h>
#include <cli/views/UndoView.h>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string DateText(const QDateTime& date) {
  return date.isValid() ? date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString()
                        : Say(Words::tr("no date"));
}

std::string TriedText(const EditView& view) {
  if (view.tried.empty()) {
    return {};
  }
  TextTable table({{}, {}, {}, {}});
  for (const TriedEdit& tried : view.tried) {
    const Strandel::EditEffect& effect = tried.effect;
    table.AddRow({tried.photo.utf8string(),
                  view.turns ? OrientationText(effect.orientationBefore) : DateText(effect.takenBefore), "->",
                  view.turns ? OrientationText(effect.orientationAfter) : DateText(effect.takenAfter)});
    for (const ioPath& sidecar : tried.sidecars) {
      table.AddRow({sidecar.utf8string(), Say(Words::tr("its sidecar")), "", ""});
    }
  }
  return table.Text() + '\n';
}

std::string SidecarsText(const EditView& view) {
  if (view.sidecars == 0) {
    return {};
  }
  const int amount = Amount(view.sidecars);
  return Say(view.dryRun ? Words::tr("%1 sidecars would be edited along with them.", nullptr, amount)
                         : Words::tr("%1 sidecars edited along with them.", nullptr, amount),
             {GroupDigits(view.sidecars)}) +
         '\n';
}

std::string OutcomeText(const EditView& view) {
  const int amount = Amount(view.edited);
  const std::string photos = GroupDigits(view.edited);
  if (view.dryRun) {
    return Say(Words::tr("%1 photos would be edited. This was a dry run: nothing was changed.", nullptr,
                         amount),
               {photos}) +
           '\n' + (view.edited > 0 || !view.room.Fits() ? RoomText(view.room, view.roomWish) : std::string());
  }
  if (view.edited == 0) {
    return Say(Words::tr("Nothing was changed.")) + '\n';
  }
  return Say(view.canBeUndone ? Words::tr("%1 photos edited; \"lumidex undo\" undoes it.", nullptr, amount)
                              : Words::tr("%1 photos edited; it cannot be undone.", nullptr, amount),
             {photos}) +
         '\n' + ForgottenLine(view.forgotten) + BlockedText(view.blocked);
}

void WriteTried(JsonWriter& json, const std::vector<TriedEdit>& tried) {
  json.BeginArray("changes");
  for (const TriedEdit& edit : tried) {
    json.BeginObject();
    json.Path("path", edit.photo);
    json.Number("orientationBefore", edit.effect.orientationBefore);
    json.Number("orientationAfter", edit.effect.orientationAfter);
    json.Moment("takenBefore", edit.effect.takenBefore);
    json.Moment("takenAfter", edit.effect.takenAfter);
    json.Paths("sidecars", edit.sidecars);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string EditDocument(const EditView& view) {
  JsonWriter json("lumidex.edit", 1);
  json.Path("catalogue", view.catalogue);
  json.Text("command", view.command);
  json.Text("argument", view.argument);
  json.Truth("dryRun", view.dryRun);
  json.Truth("interrupted", view.interrupted);
  json.Number("photos", static_cast<long long>(view.photos));
  json.Number("edited", static_cast<long long>(view.edited));
  json.Number("sidecars", static_cast<long long>(view.sidecars));
  if (view.dryRun) {
    WriteTried(json, view.tried);
  }
  WriteFindings(json, view.findings);
  json.Truth("canBeUndone", view.canBeUndone);
  WriteRoom(json, view.room, view.roomWish);
  WriteBlocked(json, view.blocked);
  json.Number("forgotten", static_cast<long long>(view.forgotten));
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

std::string EditText(const EditView& view) {
  return FindingsText(Say(view.dryRun ? Words::tr("Cannot be edited") : Words::tr("Not edited")),
                      view.findings) +
         TriedText(view) + SidecarsText(view) + OutcomeText(view);
}

}  // namespace Zenvora::Lumidex::Cli
