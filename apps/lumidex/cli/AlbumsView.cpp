#include "AlbumsView.h"

#include "AlbumNames.h"
#include "JsonWriter.h"
#include "ReportNote.h"
#include "TerminalText.h"
#include "TextTable.h"

#include <algorithm>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string DayText(const QDate& day) {
  return day.isValid() ? day.toString(Qt::ISODate).toStdString() : "-";
}

std::string AcceptedText(const AlbumRow& row) {
  if (!row.accepted) {
    return "-";
  }
  return row.notAccepted == 0 ? "yes" : "yes, " + GroupDigits(row.notAccepted) + " more now";
}

std::string TableText(const AlbumsView& view) {
  std::vector<TextTable::Column> columns = {
      {"ALBUM"}, {"WHEN"}, {"FIRST DAY"}, {"LAST DAY"}, {"PHOTOS", TextTable::Align::Right}};
  if (!view.areStored) {
    columns.push_back({"ACCEPTED"});
  }
  TextTable table(columns);
  for (const AlbumRow& row : view.rows) {
    const AlbumTitle title = TitleOf(row.name);
    table.AddRow({title.title, title.interval, DayText(row.firstDay), DayText(row.lastDay),
                  GroupDigits(row.photos.size()), AcceptedText(row)});
  }
  return table.Text();
}

std::string MembersText(const AlbumsView& view) {
  std::string text;
  for (const AlbumRow& row : view.rows) {
    text +=
        '\n' + EscapeForTerminal(OneLineName(row.name)) + " (" + Counted(row.photos.size(), "photo") + ")\n";
    TextTable members({{}, {}});
    for (const Host::PhotoRecord* const photo : row.photos) {
      const QString taken =
          photo->taken.isValid() ? photo->taken.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) : QString();
      members.AddRow({taken.toStdString(), photo->path.utf8string()});
    }
    text += members.Text(2);
  }
  return text;
}

std::string AcceptedLine(const AcceptedRow& row) {
  const std::string shown = EscapeForTerminal(OneLineName(row.name));
  const std::string photos = Counted(static_cast<unsigned long long>(row.result.photosAdded), "photo");
  if (row.result.created) {
    return "Accepted " + shown + ": " + photos + ".\n";
  }
  if (row.result.photosAdded > 0) {
    return "Added " + photos + " to " + shown + ", accepted before.\n";
  }
  return "Nothing to change in " + shown + ", accepted before.\n";
}

std::string AcceptedLines(const AlbumsView& view) {
  std::string text;
  for (const AcceptedRow& row : view.accepted) {
    text += AcceptedLine(row);
  }
  return text;
}

std::string UndatedText(const AlbumsView& view) {
  if (view.undated == 0) {
    return {};
  }
  return ", " + GroupDigits(view.undated) + (view.undated == 1 ? " of them has" : " of them have") +
         " no date";
}

std::string SummaryText(const AlbumsView& view) {
  if (view.areStored) {
    return view.rows.empty() ? "No album is accepted yet. \"lumidex albums\" shows proposals.\n"
                             : "\n" + Counted(view.rows.size(), "accepted album") + ".\n";
  }
  const std::string photos = Counted(view.photos, "photo") + UndatedText(view);
  if (view.rows.empty()) {
    return "No albums to propose from " + photos +
           ": an album needs 20 photos or more of one\nholiday, or of the weekends of one month.\n";
  }
  const auto accepted = static_cast<std::size_t>(
      std::count_if(view.rows.begin(), view.rows.end(), [](const AlbumRow& row) { return row.accepted; }));
  return "\n" + Counted(view.rows.size(), "album") + " from " + photos + "; " + GroupDigits(accepted) +
         " accepted.\n";
}

void WriteMembers(JsonWriter& json, const AlbumRow& row) {
  json.BeginArray("members");
  for (const Host::PhotoRecord* const photo : row.photos) {
    json.BeginObject();
    json.Text("id", photo->id);
    json.Path("path", photo->path);
    json.Moment("taken", photo->taken);
    json.EndObject();
  }
  json.EndArray();
}

void WriteRows(JsonWriter& json, const AlbumsView& view) {
  json.BeginArray("albums");
  for (const AlbumRow& row : view.rows) {
    const AlbumTitle title = TitleOf(row.name);
    json.BeginObject();
    json.Text("name", row.name);
    json.Text("title", title.title);
    json.Text("interval", title.interval);
    json.Day("firstDay", row.firstDay);
    json.Day("lastDay", row.lastDay);
    json.Number("photos", static_cast<long long>(row.photos.size()));
    json.Truth("accepted", row.accepted);
    json.Number("notAccepted", static_cast<long long>(row.notAccepted));
    if (view.withMembers) {
      WriteMembers(json, row);
    }
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string AlbumsDocument(const AlbumsView& view) {
  JsonWriter json("lumidex.albums", 1);
  json.Path("catalogue", view.catalogue);
  json.Text("kind", view.areStored ? "accepted" : "proposed");
  json.Text("locale", view.locale);
  json.Number("photos", static_cast<long long>(view.photos));
  json.Number("undated", static_cast<long long>(view.undated));
  WriteRows(json, view);
  json.BeginArray("accepted");
  for (const auto& [name, result] : view.accepted) {
    json.BeginObject();
    json.Text("name", name);
    json.Text("id", result.albumId);
    json.Truth("created", result.created);
    json.Number("photosAdded", result.photosAdded);
    json.EndObject();
  }
  json.EndArray();
  WriteReportMember(json, view.report, view.missingPictures);
  if (view.calendarFault) {
    json.Text("calendarFault", *view.calendarFault);
  } else {
    json.Null("calendarFault");
  }
  return json.Finish();
}

std::string AlbumsText(const AlbumsView& view) {
  std::string text = view.rows.empty() ? "" : TableText(view);
  if (view.withMembers) {
    text += MembersText(view);
  }
  return text + SummaryText(view) + AcceptedLines(view) + ReportLines(view.report, view.missingPictures);
}

}  // namespace Zenvora::Lumidex::Cli
