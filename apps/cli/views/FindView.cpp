#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <cli/views/FindView.h>
#include <cli/views/TagText.h>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string TakenText(const Host::PhotoRecord& photo) {
  return photo.taken.isValid() ? photo.taken.toString(QStringLiteral("yyyy-MM-dd HH:mm")).toStdString() : "-";
}

std::string CameraText(const Host::PhotoRecord& photo) {
  return photo.camera.isEmpty() ? "-" : photo.camera.toStdString();
}

void WritePosition(JsonWriter& json, const Host::PhotoRecord& photo) {
  if (!photo.position) {
    json.Null("position");
    return;
  }
  json.BeginObject("position");
  json.Real("latitude", photo.position->latitude);
  json.Real("longitude", photo.position->longitude);
  json.EndObject();
}

void WriteDates(JsonWriter& json, const FindView& view) {
  if (!view.dates) {
    json.Null("dates");
    return;
  }
  json.BeginObject("dates");
  json.Day("first", view.dates->first);
  json.Day("last", view.dates->second);
  json.EndObject();
}

/// With the days, for they show how a short date was understood.
std::string CountText(const FindView& view) {
  const int amount = Amount(view.photos);
  const std::pair<QDate, QDate> dates = view.dates.value_or(std::pair<QDate, QDate>());
  QString text = Words::tr("%1 of %2 photos.", "found, searched", amount);
  if (dates.first.isValid() && dates.second.isValid()) {
    text = dates.first == dates.second
               ? Words::tr("%1 of %2 photos, taken on %3.", "found, searched, date", amount)
               : Words::tr("%1 of %2 photos, taken from %3 to %4.", "found, searched, dates", amount);
  } else if (dates.first.isValid()) {
    text = Words::tr("%1 of %2 photos, taken on %3 or later.", "found, searched, date", amount);
  } else if (dates.second.isValid()) {
    text = Words::tr("%1 of %2 photos, taken on %3 or earlier.", "found, searched, date", amount);
  }
  const QDate first = dates.first.isValid() ? dates.first : dates.second;
  return Say(text,
             {GroupDigits(view.rows.size()), GroupDigits(view.photos),
              first.toString(Qt::ISODate).toStdString(), dates.second.toString(Qt::ISODate).toStdString()});
}

}  // namespace

std::string FindDocument(const FindView& view) {
  JsonWriter json("lumidex.find", 1);
  json.Path("catalogue", view.catalogue);
  WriteDates(json, view);
  json.Number("searched", static_cast<long long>(view.photos));
  json.BeginArray("photos");
  for (const FindView::Row& row : view.rows) {
    json.BeginObject();
    json.Text("id", row.photo.id);
    json.Path("path", row.photo.path);
    json.Moment("taken", row.photo.taken);
    json.Text("takenSource", Host::DateSourceName(row.photo.takenSource));
    json.Text("camera", row.photo.camera);
    WritePosition(json, row.photo);
    WriteTags(json, "tags", row.tags);
    json.EndObject();
  }
  json.EndArray();
  return json.Finish();
}

std::string FindText(const FindView& view) {
  std::string text;
  if (!view.rows.empty()) {
    TextTable table({{Say(Words::tr("TAKEN"))},
                     {Say(Words::tr("CAMERA"))},
                     {Say(Words::tr("TAGS"))},
                     {Say(Words::tr("FILE"))}});
    for (const FindView::Row& row : view.rows) {
      table.AddRow(
          {TakenText(row.photo), CameraText(row.photo), TagNames(row.tags), row.photo.path.utf8string()});
    }
    text = table.Text() + '\n';
  }
  return text + CountText(view) + '\n';
}

std::string FindPaths(const FindView& view) {
  std::string text;
  for (const FindView::Row& row : view.rows) {
    text += row.photo.path.utf8string() + '\n';
  }
  return text;
}

}  // namespace Zenvora::Lumidex::Cli
