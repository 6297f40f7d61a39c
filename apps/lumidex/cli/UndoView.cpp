#include "UndoView.h"

#include "JournalView.h"
#include "JsonWriter.h"
#include "TerminalText.h"
#include "TextTable.h"
#include "UndoSettings.h"
#include "ValueTexts.h"

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::UndoResult;
using Host::UndoStep;

const char* StateText(const UndoStep& step) {
  return step.undone ? "undone" : step.givenUp ? "given up" : "";
}

const char* KindName(const UndoView& view) {
  return view.limits ? "limits" : view.steps ? "list" : view.skipped ? "skip" : view.redo ? "redo" : "undo";
}

std::string StepsText(const std::vector<UndoStep>& steps) {
  if (steps.empty()) {
    return "There is nothing that could be undone.\n";
  }
  TextTable table(
      {{"WHEN"}, {"WHAT"}, {"FILES", TextTable::Align::Right}, {"KEPT", TextTable::Align::Right}, {""}});
  for (const UndoStep& step : steps) {
    const QString when = step.begun.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    table.AddRow({when.toStdString(), step.name.toStdString(), GroupDigits(step.files),
                  SizeText(step.keptBytes), StateText(step)});
  }
  return table.Text();
}

std::string ResultText(const UndoResult& result, bool redo) {
  const std::string name = EscapeForTerminal(result.name.toStdString());
  std::string text = FindingsText("Left as they are", result.findings);
  if (result.files == 0) {
    text += "Nothing of \"" + name + "\" was " + (redo ? "done again" : "taken back") + ".\n";
  } else {
    const std::string left =
        result.findings.empty() ? "" : ", but for " + Counted(result.findings.size(), "file");
    text += (redo ? "Done again: " : "Taken back: ") + name + left + ".\n";
  }
  if (result.stands && !result.findings.empty()) {
    text += "Older steps wait for it; \"lumidex undo --skip\" leaves it as it is for good.\n";
  }
  return text;
}

std::string SkippedText(const std::vector<UndoStep>& steps) {
  if (steps.empty()) {
    return "There is nothing to skip.\n";
  }
  std::string text;
  for (const UndoStep& step : steps) {
    const std::string kept = step.keptBytes == 0 ? ""
                                                 : " What is kept of it (" + SizeText(step.keptBytes) +
                                                       ") stays until it is too old or too much.";
    text += "Given up: " + EscapeForTerminal(step.name.toStdString()) + "." + kept + '\n';
  }
  return text;
}

std::string LimitsLine(const UndoView& view) {
  const std::string forgotten =
      view.forgotten == 0 ? "" : " " + Counted(view.forgotten, "older step") + " cannot be undone any more.";
  return "Steps can be undone within " + LimitsText(*view.limits) + "." + forgotten + '\n';
}

void WriteSteps(JsonWriter& json, const char* name, const std::vector<UndoStep>& steps) {
  json.BeginArray(name);
  for (const UndoStep& step : steps) {
    json.BeginObject();
    json.Number("number", step.number);
    json.Text("name", step.name);
    json.Text("begun", step.begun.toUTC().toString(Qt::ISODate));
    json.Truth("undone", step.undone);
    json.Truth("givenUp", step.givenUp);
    json.Number("files", static_cast<long long>(step.files));
    json.Number("keptBytes", static_cast<long long>(step.keptBytes));
    json.EndObject();
  }
  json.EndArray();
}

void WriteDone(JsonWriter& json, const std::vector<UndoResult>& results) {
  json.BeginArray("done");
  for (const UndoResult& result : results) {
    json.BeginObject();
    json.Text("name", result.name);
    json.Number("files", static_cast<long long>(result.files));
    WriteFindings(json, result.findings);
    json.EndObject();
  }
  json.EndArray();
}

void WriteLimits(JsonWriter& json, const UndoView& view) {
  json.BeginObject("limits");
  json.Number("days", view.limits->days);
  json.Number("bytes", static_cast<long long>(view.limits->bytes));
  json.EndObject();
  json.Number("forgotten", static_cast<long long>(view.forgotten));
}

}  // namespace

std::string UndoDocument(const UndoView& view) {
  JsonWriter json("lumidex.undo", 1);
  json.Path("catalogue", view.catalogue);
  json.Text("kind", KindName(view));
  json.Truth("interrupted", view.interrupted);
  if (view.limits) {
    WriteLimits(json, view);
  } else if (view.steps) {
    WriteSteps(json, "steps", *view.steps);
  } else if (view.skipped) {
    WriteSteps(json, "skipped", *view.skipped);
  } else {
    WriteDone(json, view.done);
  }
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

std::string UndoText(const UndoView& view) {
  if (view.limits) {
    return LimitsLine(view);
  }
  if (view.steps) {
    return StepsText(*view.steps);
  }
  if (view.skipped) {
    return SkippedText(*view.skipped);
  }
  std::string text;
  for (const UndoResult& result : view.done) {
    text += ResultText(result, view.redo);
  }
  return text.empty() ? std::string("There is nothing to ") + (view.redo ? "do again" : "take back") + ".\n"
                      : text;
}

}  // namespace Zenvora::Lumidex::Cli
