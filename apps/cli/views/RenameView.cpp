#include <cli/session/CauseText.h>
#include <cli/session/StepText.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <cli/views/JournalView.h>
#include <cli/views/RenameView.h>

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
    case RenameProblem::Kind::Torn:
      return "torn";
    case RenameProblem::Kind::Repeated:
      return "repeated";
  }
  return "";
}

std::string ProblemText(const RenameProblem& problem) {
  const std::string target =
      problem.target.empty() ? std::string() : problem.target.filename().utf8string() + ' ';
  const std::string other =
      problem.other.empty() ? std::string() : ": " + problem.other.filename().utf8string();
  return target + CauseText(problem.cause + other);
}

/// "a.jpg, b.jpg and 22 more", by their names alone.
std::string SomeNames(const std::vector<const RenameProblem*>& problems) {
  constexpr std::size_t kMost = 3;
  std::string text;
  for (std::size_t i = 0; i < problems.size() && i < kMost; ++i) {
    text += (i == 0 ? "" : ", ") + problems[i]->file.filename().utf8string();
  }
  if (problems.size() <= kMost) {
    return text;
  }
  const std::size_t more = problems.size() - kMost;
  return Say(Words::tr("%1 and %2 more", "files", Amount(more)), {text, GroupDigits(more)});
}

/// Photos that would all get one name are told of together.
std::string ProblemsText(const RenameView& view) {
  if (view.plan.problems.empty()) {
    return {};
  }
  std::map<ioPath, std::vector<const RenameProblem*>> rivals;
  for (const RenameProblem& problem : view.plan.problems) {
    if (problem.kind == RenameProblem::Kind::SameName) {
      rivals[problem.target].push_back(&problem);
    }
  }
  TextTable table({{}, {}});
  for (const RenameProblem& problem : view.plan.problems) {
    if (problem.kind != RenameProblem::Kind::SameName || rivals[problem.target].size() == 1) {
      table.AddRow({problem.file.utf8string(), ProblemText(problem)});
      continue;
    }
    const auto& group = rivals[problem.target];
    if (group.front() == &problem) {
      table.AddRow({problem.target.utf8string(),
                    Say(Words::tr("would be the name of %1 photos: %2", nullptr, Amount(group.size())),
                        {GroupDigits(group.size()), SomeNames(group)})});
    }
  }
  return Say(Words::tr("Cannot be renamed:")) + '\n' + table.Text(2) + '\n';
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

/// Symbolic links, and where they will lead.
std::string LinksText(const RenameView& view) {
  if (view.plan.links.empty()) {
    return {};
  }
  TextTable table({{}, {}, {}});
  for (const Host::RenameLink& link : view.plan.links) {
    table.AddRow({link.link.utf8string(), "->", link.after});
  }
  return Say(Words::tr("Links that lead to the new names:")) + '\n' + table.Text(2) + '\n';
}

std::string NotesText(const RenameView& view) {
  std::string text;
  if (view.result.files > 0 && view.result.findings.empty() && !view.plan.links.empty()) {
    const int links = Amount(view.plan.links.size());
    text += Say(Words::tr("%1 symbolic links lead to the new names.", nullptr, links),
                {GroupDigits(view.plan.links.size())}) +
            '\n';
  }
  if (view.linksNamed > 0) {
    text += Say(Words::tr("%1 symbolic links keep their names.", nullptr, Amount(view.linksNamed)),
                {GroupDigits(view.linksNamed)}) +
            '\n';
  }
  if (view.fileTimes > 0 && !view.refused) {
    text += Say(Words::tr("%1 photos have no date; the times of their files are used.", nullptr,
                          Amount(view.fileTimes)),
                {GroupDigits(view.fileTimes)}) +
            '\n';
  }
  if (view.plan.unchanged > 0) {
    text += Say(Words::tr("%1 files have their new names already.", nullptr, Amount(view.plan.unchanged)),
                {GroupDigits(view.plan.unchanged)}) +
            '\n';
  }
  return text;
}

std::string RefusedText(const RenameView& view) {
  const int amount = Amount(view.shots);
  return Say(view.dryRun ? Words::tr("Nothing would be renamed: %1 of %2 photos cannot get their new names.\n"
                                     "Add --skip-problems to rename the others.",
                                     nullptr, amount)
                         : Words::tr("Nothing was renamed: %1 of %2 photos cannot get their new names.\n"
                                     "Add --skip-problems to rename the others.",
                                     nullptr, amount),
             {GroupDigits(view.plan.problems.size()), GroupDigits(view.shots)}) +
         '\n';
}

std::string OutcomeText(const RenameView& view) {
  if (view.refused) {
    return RefusedText(view);
  }
  if (view.plan.renames.empty()) {
    return Say(Words::tr("Nothing to rename.")) + '\n';
  }
  if (view.result.files == 0 && !view.result.findings.empty()) {
    return Say(Words::tr("Nothing was renamed.")) + '\n';
  }
  const int shots = Amount(view.plan.shots);
  const std::string what = PhotosAndFilesText(view.plan.shots, view.plan.renames.size());
  if (view.dryRun) {
    return Say(Words::tr("%1 would be renamed. This was a dry run: nothing was changed.", "so many photos",
                         shots),
               {what}) +
           '\n';
  }
  if (view.result.files == 0) {
    return Say(Words::tr("Nothing was renamed.")) + '\n';
  }
  if (!view.result.findings.empty()) {
    return Say(Words::tr("%1 files could not get their old names back.", nullptr, Amount(view.result.files)),
               {GroupDigits(view.result.files)}) +
           '\n';
  }
  return Say(view.canBeUndone ? Words::tr("%1 renamed; \"lumidex undo\" undoes it.", "so many photos", shots)
                              : Words::tr("%1 renamed.", "so many photos", shots),
             {what}) +
         '\n';
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
  const bool done = (view.dryRun && view.result.findings.empty()) || view.result.files > 0;
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
  json.BeginArray("links");
  for (const Host::RenameLink& link : view.plan.links) {
    json.BeginObject();
    json.Path("path", link.link);
    json.Path("before", ioPath(link.before));
    json.Path("after", ioPath(link.after));
    json.EndObject();
  }
  json.EndArray();
  json.Number("linksNamed", static_cast<long long>(view.linksNamed));
  WriteProblems(json, view.plan.problems);
  WriteFindings(json, view.result.findings);
  json.Truth("canBeUndone", view.canBeUndone);
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

std::string RenameText(const RenameView& view) {
  return ProblemsText(view) + (view.dryRun ? MovesText(view.plan.renames) + LinksText(view) : "") +
         FindingsText(Say(Words::tr("Problems")), view.result.findings) + NotesText(view) + OutcomeText(view);
}

}  // namespace Zenvora::Lumidex::Cli
