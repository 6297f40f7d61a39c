#include "ReportNote.h"

#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>

namespace Zenvora::Lumidex::Cli {

std::string ReportLines(const std::optional<ioPath>& report, int missingPictures) {
  if (!report) {
    return {};
  }
  std::string text = Say(Words::tr("Report: %1"), {EscapeForTerminal(report->utf8string())}) + '\n';
  if (missingPictures > 0) {
    text += "  " +
            Say(Words::tr("%1 pictures could not be read; placeholders stand for them.", nullptr,
                          missingPictures),
                {GroupDigits(static_cast<unsigned long long>(missingPictures))}) +
            '\n';
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
