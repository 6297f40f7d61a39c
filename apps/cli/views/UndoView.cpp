#include <cli/session/StepText.h>
#include <cli/session/UndoSettings.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/JournalView.h>
#include <cli/views/UndoView.h>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::BlockedStep;
using Host::SkippedStep;
using Host::UndoResult;
using Host::UndoStep;

std::string StateText(const UndoStep& step) {
  return step.undone     ? Say(Words::tr("undone", "a step"))
         : step.givenUp  ? Say(Words::tr("cannot be undone", "a step"))
         : step.underWay ? Say(Words::tr("running", "a step"))
                         : std::string();
}

const char* KindName(const UndoView& view) {
  return view.limits ? "limits" : view.steps ? "list" : view.skipped ? "skip" : view.redo ? "redo" : "undo";
}

std::string StepsText(const std::vector<UndoStep>& steps) {
  if (steps.empty()) {
    return Say(Words::tr("There is nothing to undo.")) + '\n';
  }
  TextTable table({{Say(Words::tr("WHEN", "a step"))},
                   {Say(Words::tr("WHAT"))},
                   {Say(Words::tr("FILES")), TextTable::Align::Right},
                   {Say(Words::tr("KEPT", "so many bytes")), TextTable::Align::Right},
                   {""}});
  for (const UndoStep& step : steps) {
    table.AddRow({WhenText(step), StepText(step.name.toStdString()), GroupDigits(step.files),
                  SizeText(step.keptBytes), StateText(step)});
  }
  return table.Text();
}

std::string ResultText(const UndoResult& result, bool redo) {
  const std::string name = EscapeForTerminal(StepText(result.name.toStdString()));
  const std::size_t left = result.findings.size();
  std::string text = FindingsText(Say(Words::tr("Left as they are")), result.findings);
  if (result.files == 0) {
    text +=
        Say(redo ? Words::tr("Nothing of \"%1\" was redone.") : Words::tr("Nothing of \"%1\" was undone."),
            {name});
  } else if (left == 0) {
    text += Say(redo ? Words::tr("Redone: %1.") : Words::tr("Undone: %1."), {name});
  } else {
    text += Say(redo ? Words::tr("Redone: %1, except for %2 files.", nullptr, Amount(left))
                     : Words::tr("Undone: %1, except for %2 files.", nullptr, Amount(left)),
                {name, GroupDigits(left)});
  }
  text += '\n';
  if (!redo && result.type == Host::StepType::Import && result.files > 0) {
    text += Say(Words::tr("%1 copies are in the trash now.", nullptr, Amount(result.files)),
                {GroupDigits(result.files)}) +
            '\n';
  }
  if (result.lastCopies > 0) {
    text += Say(Words::tr("The sources of %1 of them are gone or changed: do not empty the trash before you "
                          "have another copy.",
                          nullptr, Amount(result.lastCopies)),
                {GroupDigits(result.lastCopies)}) +
            '\n';
  }
  if (result.stands && left > 0) {
    text += Say(Words::tr(
                "Older steps cannot be undone before this one; \"lumidex undo --skip\" skips it for good.")) +
            '\n';
  }
  if (result.lacksRoomForRedo) {
    text += Say(Words::tr(
                "There is no room to keep what redo needs; \"lumidex undo --no-redo\" undoes without it.")) +
            '\n';
  }
  return text;
}

/// What waits in vain for a step that was skipped.
std::string LineOfBlocked(const BlockedStep& blocked) {
  constexpr std::size_t kMostShown = 10;
  const std::size_t files = blocked.files.size();
  std::string text =
      Say(Words::tr(
              "Undo of \"%1\" (%2) will leave %3 files as they are, because this step changed them later:",
              nullptr, Amount(files)),
          {EscapeForTerminal(StepText(blocked.step.name.toStdString())), WhenText(blocked.step),
           GroupDigits(files)}) +
      '\n';
  for (std::size_t i = 0; i < files && i < kMostShown; ++i) {
    text += "  " + EscapeForTerminal(blocked.files[i].utf8string()) + '\n';
  }
  return files > kMostShown ? text + "  ...\n" : text;
}

std::string SkippedText(const std::vector<SkippedStep>& steps) {
  if (steps.empty()) {
    return Say(Words::tr("There is nothing to skip.")) + '\n';
  }
  std::string text;
  for (const SkippedStep& step : steps) {
    text += Say(Words::tr("Skipped: %1."), {EscapeForTerminal(StepText(step.name.toStdString()))});
    if (step.keptBytes > 0) {
      text += ' ' + Say(Words::tr("Its originals (%1) are kept until they exceed the limits of undo."),
                        {SizeText(step.keptBytes)});
    }
    text += '\n';
    text += BlockedText(step.blocked);
  }
  return text;
}

std::string LimitsLine(const UndoView& view) {
  const std::string forgotten = ForgottenLine(view.forgotten);
  return (view.declined ? Say(Words::tr("Nothing was changed.")) + ' ' : std::string()) +
         LimitsText(*view.limits) + (forgotten.empty() ? "\n" : ' ' + forgotten);
}

void WriteDone(JsonWriter& json, const std::vector<UndoResult>& results) {
  json.BeginArray("done");
  for (const UndoResult& result : results) {
    json.BeginObject();
    json.Text("kind", Host::StepTypeName(result.type));
    json.Text("name", result.name);
    json.Number("files", static_cast<long long>(result.files));
    json.Number("lastCopies", static_cast<long long>(result.lastCopies));
    WriteFindings(json, result.findings);
    json.Truth("lacksRoomForRedo", result.lacksRoomForRedo);
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

void WriteFacts(JsonWriter& json, const UndoStep& step) {
  json.Number("number", step.number);
  json.Text("kind", Host::StepTypeName(step.type));
  json.Text("name", step.name);
  if (step.begun.isValid()) {
    json.Text("begun", step.begun.toUTC().toString(Qt::ISODate));
  } else {
    json.Null("begun");
  }
  json.Truth("undone", step.undone);
  json.Truth("givenUp", step.givenUp);
  json.Truth("underWay", step.underWay);
  json.Number("files", static_cast<long long>(step.files));
  json.Number("keptBytes", static_cast<long long>(step.keptBytes));
  json.Number("daysOfUse", step.daysOfUse);
}

void WriteSkipped(JsonWriter& json, const std::vector<SkippedStep>& steps) {
  json.BeginArray("skipped");
  for (const SkippedStep& step : steps) {
    json.BeginObject();
    WriteFacts(json, step);
    WriteBlocked(json, step.blocked);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string BlockedText(const std::vector<BlockedStep>& steps) {
  std::string text;
  for (const BlockedStep& step : steps) {
    text += LineOfBlocked(step);
  }
  return text;
}

void WriteBlocked(JsonWriter& json, const std::vector<BlockedStep>& steps) {
  json.BeginArray("blocked");
  for (const BlockedStep& blocked : steps) {
    json.BeginObject();
    WriteFacts(json, blocked.step);
    json.Paths("left", blocked.files);
    json.EndObject();
  }
  json.EndArray();
}

std::string ForgottenLine(std::size_t steps) {
  return steps == 0 ? std::string()
                    : Say(Words::tr("%1 older steps cannot be undone any more.", nullptr, Amount(steps)),
                          {GroupDigits(steps)}) +
                          '\n';
}

std::string WhenText(const UndoStep& step) {
  return step.begun.isValid()
             ? step.begun.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")).toStdString()
             : Say(Words::tr("unknown", "a date"));
}

void WriteSteps(JsonWriter& json, const char* name, const std::vector<UndoStep>& steps) {
  json.BeginArray(name);
  for (const UndoStep& step : steps) {
    json.BeginObject();
    WriteFacts(json, step);
    json.EndObject();
  }
  json.EndArray();
}

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
    WriteSkipped(json, *view.skipped);
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
  return text.empty() ? Say(view.redo ? Words::tr("There is nothing to redo.")
                                      : Words::tr("There is nothing to undo.")) +
                            '\n'
                      : text;
}

}  // namespace Zenvora::Lumidex::Cli
