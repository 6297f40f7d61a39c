#include "ReportNote.h"

#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <cli/views/AlbumNames.h>
#include <cli/views/AlbumsView.h>

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
  return row.notAccepted == 0 ? Say(Words::tr("yes"))
                              : Say(Words::tr("yes, %1 more now", nullptr, Amount(row.notAccepted)),
                                    {GroupDigits(row.notAccepted)});
}

std::string TableText(const AlbumsView& view) {
  std::vector<TextTable::Column> columns = {{Say(Words::tr("ALBUM"))},
                                            {Say(Words::tr("WHEN"))},
                                            {Say(Words::tr("FIRST DAY"))},
                                            {Say(Words::tr("LAST DAY"))},
                                            {Say(Words::tr("PHOTOS")), TextTable::Align::Right}};
  if (!view.areStored) {
    columns.push_back({Say(Words::tr("ACCEPTED"))});
  }
  TextTable table(columns);
  for (const AlbumRow& row : view.rows) {
    const AlbumTitle title = ShownTitle(row.name);
    table.AddRow({title.title, title.interval, DayText(row.firstDay), DayText(row.lastDay),
                  GroupDigits(row.photos.size()), AcceptedText(row)});
  }
  return table.Text();
}

std::string MembersText(const AlbumsView& view) {
  std::string text;
  for (const AlbumRow& row : view.rows) {
    text += '\n' +
            Say(Words::tr("%1 (%2 photos)", nullptr, Amount(row.photos.size())),
                {EscapeForTerminal(ShownName(row.name)), GroupDigits(row.photos.size())}) +
            '\n';
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
  const std::string shown = EscapeForTerminal(ShownName(row.name));
  const int added = row.result.photosAdded;
  const std::string photos = GroupDigits(static_cast<unsigned long long>(added));
  if (row.result.created) {
    return Say(Words::tr("Accepted %1: %2 photos.", nullptr, added), {shown, photos}) + '\n';
  }
  if (added > 0) {
    return Say(Words::tr("Added %1 photos to %2, which was accepted before.", nullptr, added),
               {photos, shown}) +
           '\n';
  }
  return Say(Words::tr("%1 was accepted before, and there are no photos to add."), {shown}) + '\n';
}

std::string AcceptedLines(const AlbumsView& view) {
  std::string text;
  for (const AcceptedRow& row : view.accepted) {
    text += AcceptedLine(row);
  }
  return view.canBeUndone ? text + Say(Words::tr("\"lumidex undo\" undoes it.")) + '\n' : text;
}

/// What stands behind "from".
std::string SourceText(const AlbumsView& view) {
  const std::string photos =
      Say(Words::tr("%1 photos", "albums from", Amount(view.photos)), {GroupDigits(view.photos)});
  return view.undated == 0
             ? photos
             : Say(Words::tr("%1, %2 of them have no date", "photos; how many", Amount(view.undated)),
                   {photos, GroupDigits(view.undated)});
}

std::string SummaryText(const AlbumsView& view) {
  if (view.areStored) {
    const std::size_t albums = view.rows.size();
    return view.rows.empty()
               ? Say(Words::tr("No album has been accepted yet. \"lumidex albums\" shows proposals.")) + '\n'
               : '\n' +
                     Say(Words::tr("%1 accepted albums.", nullptr, Amount(albums)), {GroupDigits(albums)}) +
                     '\n';
  }
  if (view.rows.empty()) {
    return Say(Words::tr("No albums to propose from %1: an album needs 20 photos or more of one\nholiday, or "
                         "of the weekends of one month."),
               {SourceText(view)}) +
           '\n';
  }
  const auto accepted = static_cast<std::size_t>(
      std::count_if(view.rows.begin(), view.rows.end(), [](const AlbumRow& row) { return row.accepted; }));
  const std::string albums =
      Say(Words::tr("%1 albums", nullptr, Amount(view.rows.size())), {GroupDigits(view.rows.size())});
  return '\n' +
         Say(Words::tr("%1 from %2; %3 accepted.", "albums, photos, how many", Amount(accepted)),
             {albums, SourceText(view), GroupDigits(accepted)}) +
         '\n';
}

std::string LeftOutText(const AlbumsView& view) {
  return view.leftOut == 0
             ? std::string()
             : Say(Words::tr("%1 photos were left out, because they have no date but the times of their "
                             "files. To include them, run: lumidex albums --file-times",
                             nullptr, Amount(view.leftOut)),
                   {GroupDigits(view.leftOut)}) +
                   '\n';
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
  json.Number("leftOut", static_cast<long long>(view.leftOut));
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
  json.Truth("canBeUndone", view.canBeUndone);
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
  return text + SummaryText(view) + LeftOutText(view) + AcceptedLines(view) +
         ReportLines(view.report, view.missingPictures);
}

}  // namespace Zenvora::Lumidex::Cli
