#include "RenameView.h"

#include "JournalView.h"
#include "JsonWriter.h"
#include "TerminalText.h"
#include "TextTable.h"

#include <map>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::RenameMove;
using Host::RenameProblem;

const char* KindName(RenameProblem::Kind kind) {
  switch (kind) {
    case RenameProblem::Kind::NoDate:
      return "no-date";
    case RenameProblem::Kind::BadName:
      return "bad-name";
    case RenameProblem::Kind::SameName:
      return "same-name";
    case RenameProblem::Kind::Taken:
      return "taken";
    case RenameProblem::Kind::Blocked:
      return "blocked";
    case RenameProblem::Kind::Repeated:
      return "repeated";
  }
  return "";
}

std::string CauseText(const RenameProblem& problem) {
  const std::string target =
      problem.target.empty() ? std::string() : problem.target.filename().utf8string() + ' ';
  const std::string other =
      problem.other.empty() ? std::string() : ": " + problem.other.filename().utf8string();
  return target + problem.cause + other;
}

std::string ProblemsText(const RenameView& view) {
  if (view.plan.problems.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  for (const RenameProblem& problem : view.plan.problems) {
    table.AddRow({problem.file.utf8string(), CauseText(problem)});
  }
  return "Cannot be renamed:\n" + table.Text(2) + '\n';
}

/// Old and new names, folder by folder in the order in which each occurs first.
std::string MovesText(const std::vector<RenameMove>& moves) {
  std::vector<ioPath> folders;
  std::map<ioPath, TextTable> tables;
  for (const RenameMove& move : moves) {
    const ioPath folder = move.from.parent_path();
    const auto place = tables.emplace(folder, TextTable({{}, {}, {}}));
    if (place.second) {
      folders.push_back(folder);
    }
    const bool stays = move.to.parent_path() == folder;
    place.first->second.AddRow(
        {move.from.filename().utf8string(), "->", (stays ? move.to.filename() : move.to).utf8string()});
  }
  std::string text;
  for (const ioPath& folder : folders) {
    text += EscapeForTerminal(folder.utf8string()) + "\n" + tables.at(folder).Text(2) + '\n';
  }
  return text;
}

std::string NotesText(const RenameView& view) {
  std::string text;
  if (view.fileTimes > 0 && !view.refused) {
    text += Counted(view.fileTimes, "photo") +
            (view.fileTimes == 1 ? " has no date of its own; its file's time is used.\n"
                                 : " have no date of their own; their files' times are used.\n");
  }
  if (view.plan.unchanged > 0) {
    text += Counted(view.plan.unchanged, "file") +
            (view.plan.unchanged == 1 ? " has its name already.\n" : " have their names already.\n");
  }
  return text;
}

std::string RefusedText(const RenameView& view) {
  const std::size_t problems = view.plan.problems.size();
  return "Nothing " + std::string(view.dryRun ? "would be" : "was") + " renamed: " + GroupDigits(problems) +
         " of " + Counted(view.shots, "photo") +
         " cannot have the new name. With --skip-problems the\nothers are renamed.\n";
}

std::string OutcomeText(const RenameView& view) {
  if (view.refused) {
    return RefusedText(view);
  }
  if (view.plan.renames.empty()) {
    return "Nothing to rename.\n";
  }
  const std::string what = PhotosAndFiles(view.plan.shots, view.plan.renames.size());
  if (view.dryRun) {
    return what + " would be renamed. This was a dry run: nothing was changed.\n";
  }
  if (view.result.files == 0) {
    return "Nothing was renamed.\n";
  }
  if (!view.result.findings.empty()) {
    return Counted(view.result.files, "file") + " could not be given back the old name.\n";
  }
  return what + " renamed" + (view.canBeUndone ? "; \"lumidex undo\" takes it back.\n" : ".\n");
}

void WriteProblems(JsonWriter& json, const std::vector<RenameProblem>& problems) {
  json.BeginArray("problems");
  for (const RenameProblem& problem : problems) {
    json.BeginObject();
    json.Text("kind", KindName(problem.kind));
    json.Path("path", problem.file);
    if (!problem.target.empty()) {
      json.Path("target", problem.target);
    }
    if (!problem.other.empty()) {
      json.Path("other", problem.other);
    }
    json.Text("cause", problem.cause);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string PhotosAndFiles(std::size_t photos, std::size_t files) {
  const std::string text = Counted(photos, "photo");
  return photos == files ? text : text + " (" + Counted(files, "file") + ')';
}

std::string RenameDocument(const RenameView& view) {
  const bool done = view.dryRun || view.result.files > 0;
  const std::size_t files = view.result.findings.empty() ? view.plan.renames.size() : view.result.files;
  JsonWriter json("lumidex.rename", 1);
  json.Path("catalogue", view.catalogue);
  json.Truth("dryRun", view.dryRun);
  json.Truth("interrupted", view.result.cancelled);
  json.Truth("refused", view.refused);
  json.Number("photos", static_cast<long long>(view.shots));
  json.Number("photosRenamed", static_cast<long long>(done ? view.plan.shots : 0));
  json.Number("filesRenamed", static_cast<long long>(done ? files : 0));
  json.Number("filesUnchanged", static_cast<long long>(view.plan.unchanged));
  json.Number("fileTimes", static_cast<long long>(view.fileTimes));
  json.BeginArray("renames");
  for (const RenameMove& move : view.plan.renames) {
    json.BeginObject();
    json.Path("from", move.from);
    json.Path("to", move.to);
    json.EndObject();
  }
  json.EndArray();
  WriteProblems(json, view.plan.problems);
  WriteFindings(json, view.result.findings);
  json.Truth("canBeUndone", view.canBeUndone);
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

std::string RenameText(const RenameView& view) {
  return ProblemsText(view) + (view.dryRun ? MovesText(view.plan.renames) : "") +
         FindingsText("In the way", view.result.findings) + NotesText(view) + OutcomeText(view);
}

}  // namespace Zenvora::Lumidex::Cli
