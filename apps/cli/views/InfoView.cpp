#include "OrientationText.h"

#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/InfoView.h>
#include <cli/views/JournalView.h>

#include <algorithm>
#include <cmath>

namespace Zenvora::Lumidex::Cli {

namespace {

using Source = Host::DateSource;

/// A hand's breadth.
constexpr int kDecimals = 6;

bool IsDoubtful(const Host::PhotoInfo& photo) {
  return photo.position && !photo.position->doubts.empty();
}

/// With a question mark when the hemisphere is a guess.
std::string CoordinateText(double degrees, const QString& reference, const char* positive,
                           const char* negative) {
  // Zero keeps the sign of its reference.
  const char* const hemisphere = std::signbit(degrees) ? negative : positive;
  const std::string number = QString::number(std::abs(degrees), 'f', kDecimals).toStdString();
  return number + ' ' + hemisphere + (reference == QLatin1String(hemisphere) ? "" : "?");
}

std::string PositionText(const std::optional<Host::StatedPosition>& position) {
  if (!position || position->place == Quillet::Geo::GPSData::Invalid()) {
    return position ? "?" : "";
  }
  return CoordinateText(position->place.GetLatitude(), position->latitudeReference, "N", "S") + ", " +
         CoordinateText(position->place.GetLongitude(), position->longitudeReference, "E", "W");
}

std::string DateText(const Host::PhotoDate& date) {
  return date.taken.isValid() ? date.taken.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString() : "";
}

std::string SourceText(Source source) {
  switch (source) {
    case Source::Original:
      return "DateTimeOriginal";
    case Source::Digitised:
      return "DateTimeDigitized";
    case Source::Xmp:
      return "XMP";
    case Source::Iptc:
      return "IPTC";
    case Source::FileTime:
      return Say(Words::tr("file time", "where a date is from"));
    case Source::None:
      break;
  }
  return {};
}

std::string FrameText(const Conf::FrameInfo& frame) {
  std::string text = frame.format;
  if (frame.width > 0 && frame.height > 0) {
    text += (text.empty() ? "" : " ") + std::to_string(frame.width) + " x " + std::to_string(frame.height);
  }
  return frame.frames > 1
             ? text + ", " +
                   Say(Words::tr("%1 frames", nullptr, frame.frames), {std::to_string(frame.frames)})
             : text;
}

std::string PhotosText(const std::vector<Host::PhotoInfo>& photos) {
  if (photos.empty()) {
    return {};
  }
  // Names last: they are the longest.
  TextTable table({{Say(Words::tr("DATE"))},
                   {Say(Words::tr("FROM"))},
                   {Say(Words::tr("CAMERA"))},
                   {Say(Words::tr("POSITION"))},
                   {Say(Words::tr("PICTURE"))},
                   {Say(Words::tr("ORIENTATION"))},
                   {Say(Words::tr("SIZE")), TextTable::Align::Right},
                   {Say(Words::tr("PHOTO"))}});
  for (const Host::PhotoInfo& photo : photos) {
    table.AddRow({DateText(photo.date), SourceText(photo.date.source), photo.camera.toStdString(),
                  PositionText(photo.position), FrameText(photo.frame),
                  OrientationText(photo.frame.orientation), SizeText(photo.size), photo.photo.utf8string()});
  }
  return table.Text();
}

std::string DoubtsText(const std::vector<Host::PhotoInfo>& photos) {
  std::string text;
  for (const Host::PhotoInfo& photo : photos) {
    for (const std::string& doubt : photo.position ? photo.position->doubts : std::vector<std::string>()) {
      text += "  " + EscapeForTerminal(photo.photo.utf8string() + ": " + doubt) + ".\n";
    }
  }
  return text.empty() ? text : '\n' + Say(Words::tr("Doubtful positions:")) + '\n' + text;
}

void WriteReference(JsonWriter& json, const char* name, const QString& reference) {
  if (reference.isEmpty()) {
    json.Null(name);
  } else {
    json.Text(name, reference);
  }
}

void WritePosition(JsonWriter& json, const std::optional<Host::StatedPosition>& position) {
  if (!position) {
    json.Null("position");
    return;
  }
  json.BeginObject("position");
  json.Real("latitude", position->place.GetLatitude());
  json.Real("longitude", position->place.GetLongitude());
  WriteReference(json, "latitudeReference", position->latitudeReference);
  WriteReference(json, "longitudeReference", position->longitudeReference);
  json.BeginArray("doubts");
  for (const std::string& doubt : position->doubts) {
    json.Text("", doubt);
  }
  json.EndArray();
  json.EndObject();
}

void WriteFrame(JsonWriter& json, const Conf::FrameInfo& frame) {
  const auto number = [&json](const char* name, int value) {
    if (value > 0) {
      json.Number(name, value);
    } else {
      json.Null(name);
    }
  };
  json.BeginObject("frame");
  json.Text("format", frame.format);
  number("width", frame.width);
  number("height", frame.height);
  json.Number("orientation", frame.orientation);
  number("frames", frame.frames);
  json.EndObject();
}

void WritePhoto(JsonWriter& json, const Host::PhotoInfo& photo) {
  json.BeginObject();
  json.Path("path", photo.photo);
  json.Number("size", static_cast<long long>(photo.size));
  json.Moment("date", photo.date.taken);
  json.Text("dateSource", Host::DateSourceName(photo.date.source));
  json.Text("camera", photo.camera);
  WritePosition(json, photo.position);
  WriteFrame(json, photo.frame);
  json.EndObject();
}

}  // namespace

bool HasDoubts(const InfoView& view) {
  return std::any_of(view.photos.begin(), view.photos.end(), IsDoubtful);
}

std::string InfoDocument(const InfoView& view) {
  JsonWriter json("lumidex.info", 1);
  json.Truth("interrupted", view.interrupted);
  json.BeginArray("photos");
  for (const Host::PhotoInfo& photo : view.photos) {
    WritePhoto(json, photo);
  }
  json.EndArray();
  WriteFindings(json, view.findings);
  return json.Finish();
}

std::string InfoText(const InfoView& view) {
  return FindingsText(Say(Words::tr("Not read")), view.findings) + PhotosText(view.photos) +
         DoubtsText(view.photos);
}

}  // namespace Zenvora::Lumidex::Cli
