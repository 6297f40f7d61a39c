#include "ReportNote.h"

#include "TerminalText.h"

namespace Zenvora::Lumidex::Cli {

std::string ReportLines(const std::optional<ioPath>& report, int missingPictures) {
  if (!report) {
    return {};
  }
  std::string text = "Report: " + EscapeForTerminal(report->utf8string()) + '\n';
  if (missingPictures > 0) {
    text += "  " + Counted(static_cast<unsigned long long>(missingPictures), "picture") +
            " could not be read and got a placeholder.\n";
  }
  return text;
}

void WriteReportMember(JsonWriter& json, const std::optional<ioPath>& report, int missingPictures) {
  if (!report) {
    json.Null("report");
    return;
  }
  json.BeginObject("report");
  json.Path("path", *report);
  json.Number("missingPictures", missingPictures);
  json.EndObject();
}

}  // namespace Zenvora::Lumidex::Cli
