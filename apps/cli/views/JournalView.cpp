#include <cli/session/CauseText.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <cli/views/JournalView.h>

namespace Zenvora::Lumidex::Cli {

std::string FindingsText(const std::string& title, const std::vector<Host::FileFinding>& findings) {
  if (findings.empty()) {
    return {};
  }
  std::string text = Say(Words::tr("%1:", "a heading"), {title}) + '\n';
  for (const Host::FileFinding& finding : findings) {
    text += "  " + EscapeForTerminal(CauseText(finding.cause)) + '\n';
  }
  return text + '\n';
}

void WriteFindings(JsonWriter& json, const std::vector<Host::FileFinding>& findings) {
  json.BeginArray("findings");
  for (const Host::FileFinding& finding : findings) {
    json.BeginObject();
    json.Path("path", finding.file);
    json.Text("cause", finding.cause);
    json.EndObject();
  }
  json.EndArray();
}

void WriteRecovered(JsonWriter& json, const std::vector<std::string>& recovered) {
  json.BeginArray("recovered");
  for (const std::string& text : recovered) {
    json.Text("", text);
  }
  json.EndArray();
}

}  // namespace Zenvora::Lumidex::Cli
