#include "ImportView.h"

#include "JournalView.h"
#include "JsonWriter.h"
#include "TerminalText.h"
#include "TextTable.h"
#include "ValueTexts.h"
#include "Words.h"

#include <algorithm>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::KnownFile;
using Host::LeftFile;
using Host::MissingCopy;
using Host::ScanFinding;

/// People read no thousand lines; `--json` has them all.
constexpr std::size_t kMostLeftLines = 20;

const char* MissingKindName(MissingCopy::Kind kind) {
  switch (kind) {
    case MissingCopy::Kind::Unreadable:
      return "unreadable";
    case MissingCopy::Kind::Changed:
      return "changed";
    case MissingCopy::Kind::NotWritten:
      return "not-written";
    case MissingCopy::Kind::Different:
      return "different";
    case MissingCopy::Kind::NameTaken:
      return "name-taken";
    case MissingCopy::Kind::NotReached:
      return "not-reached";
    case MissingCopy::Kind::Repeated:
      return "repeated";
  }
  return "";
}

const char* KnownKindName(KnownFile::Kind kind) {
  switch (kind) {
    case KnownFile::Kind::Catalogued:
      return "catalogued";
    case KnownFile::Kind::Copied:
      return "copied";
    case KnownFile::Kind::Repeated:
      return "repeated";
  }
  return "";
}

const char* FindingKindName(ScanFinding::Kind kind) {
  switch (kind) {
    case ScanFinding::Kind::NotAnImage:
      return "not-an-image";
    case ScanFinding::Kind::Unreadable:
      return "unreadable";
    case ScanFinding::Kind::Loop:
      return "loop";
  }
  return "";
}

const char* OutcomeName(const ImportView& view) {
  using Outcome = Host::ImportPlan::Outcome;
  if (view.result.cancelled || view.plan.outcome == Outcome::Interrupted) {
    return "interrupted";
  }
  if (view.plan.outcome == Outcome::Declined) {
    return "declined";
  }
  if (!view.plan.obstacle.empty()) {
    return "refused";
  }
  return view.dryRun ? "planned" : view.result.stopped.empty() ? "done" : "stopped";
}

void WritePaths(JsonWriter& json, const char* name, const std::vector<ioPath>& paths) {
  json.BeginArray(name);
  for (const ioPath& path : paths) {
    json.BeginObject();
    json.Path("path", path);
    json.EndObject();
  }
  json.EndArray();
}

void WritePlan(JsonWriter& json, const Host::ImportPlan& plan) {
  json.BeginArray("copies");
  for (const Host::ImportCopy& copy : plan.copies) {
    json.BeginObject();
    json.Path("source", copy.source);
    json.Path("target", copy.target);
    json.Number("size", static_cast<long long>(copy.state.size));
    json.EndObject();
  }
  json.EndArray();
  WritePaths(json, "stays", plan.stays);
  json.BeginArray("known");
  for (const KnownFile& known : plan.known) {
    json.BeginObject();
    json.Text("kind", KnownKindName(known.kind));
    json.Path("path", known.path);
    json.Path("other", known.other);
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("left");
  for (const LeftFile& left : plan.left) {
    json.BeginObject();
    json.Text("kind", LeftKindName(left.kind));
    json.Path("path", left.path);
    json.Text("cause", left.cause);
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("splits");
  for (const Host::SplitShot& split : plan.splits) {
    json.BeginObject();
    WritePaths(json, "sources", split.sources);
    WritePaths(json, "targets", split.targets);
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("joins");
  for (const Host::JoinedShot& join : plan.joins) {
    json.BeginObject();
    WritePaths(json, "sources", join.sources);
    WritePaths(json, "targets", join.targets);
    WritePaths(json, "others", join.others);
    json.EndObject();
  }
  json.EndArray();
}

void WriteResult(JsonWriter& json, const Host::ImportResult& result) {
  json.Number("copied", static_cast<long long>(result.copied));
  json.Number("bytesCopied", static_cast<long long>(result.bytes));
  json.Number("added", static_cast<long long>(result.added));
  json.BeginArray("missing");
  for (const MissingCopy& missing : result.missing) {
    json.BeginObject();
    json.Text("kind", MissingKindName(missing.kind));
    json.Path("source", missing.source);
    if (!missing.target.empty()) {
      json.Path("target", missing.target);
    }
    json.Text("cause", missing.cause);
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("findings");
  for (const ScanFinding& finding : result.findings) {
    json.BeginObject();
    json.Text("kind", FindingKindName(finding.kind));
    json.Path("path", finding.path);
    json.Text("cause", finding.cause);
    json.EndObject();
  }
  json.EndArray();
}

std::string PlanText(const ImportView& view) {
  std::string text;
  if (!view.plan.copies.empty()) {
    TextTable table({{}, {}, {}});
    for (const Host::ImportCopy& copy : view.plan.copies) {
      table.AddRow({copy.source.utf8string(), "->", copy.target.filename().utf8string()});
    }
    text += Say(Words::tr("Would be copied to %1:"), {EscapeForTerminal(view.plan.folder.utf8string())}) +
            '\n' + table.Text(2) + '\n';
  }
  if (!view.plan.stays.empty()) {
    TextTable table(std::vector<TextTable::Column>(1));
    for (const ioPath& path : view.plan.stays) {
      table.AddRow({path.utf8string()});
    }
    text += Say(Words::tr("Would be taken in where they lie:")) + '\n' + table.Text(2) + '\n';
  }
  return text;
}

template <class Shot>
std::string ShotsText(const std::string& what, const std::vector<Shot>& shots) {
  if (shots.empty()) {
    return {};
  }
  TextTable table({{}, {}, {}});
  for (const Shot& shot : shots) {
    for (std::size_t i = 0; i < shot.sources.size(); ++i) {
      table.AddRow({shot.sources[i].utf8string(), "->", shot.targets[i].filename().utf8string()});
    }
  }
  return what + '\n' + table.Text(2) + '\n';
}

std::string ShotsText(const Host::ImportPlan& plan) {
  return ShotsText(Say(Words::tr("These files are of one shot each, and the free names for them are not:")),
                   plan.splits) +
         ShotsText(Say(Words::tr("These files are of other shots than those whose names they share there:")),
                   plan.joins);
}

std::string MissingText(const ImportView& view) {
  if (view.result.missing.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  for (const MissingCopy& missing : view.result.missing) {
    table.AddRow({missing.source.utf8string(), missing.cause});
  }
  return Say(Words::tr("Missing:")) + '\n' + table.Text(2) + '\n';
}

std::string FindingsText(const ImportView& view) {
  if (view.result.findings.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  for (const ScanFinding& finding : view.result.findings) {
    table.AddRow({finding.path.utf8string(), finding.cause});
  }
  return Say(Words::tr("Not taken into the catalogue:")) + '\n' + table.Text(2) + '\n';
}

std::string LeftText(const ImportView& view) {
  if (view.plan.left.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  // What could not be read comes first: the rest is nothing to worry about.
  std::vector<LeftFile> left = view.plan.left;
  std::stable_sort(left.begin(), left.end(), [](const LeftFile& one, const LeftFile& other) {
    return (one.kind != LeftFile::Kind::NotAPhoto) > (other.kind != LeftFile::Kind::NotAPhoto);
  });
  std::size_t shown = 0;
  for (const LeftFile& file : left) {
    if (file.kind == LeftFile::Kind::NotAPhoto && shown >= kMostLeftLines) {
      break;
    }
    table.AddRow({file.path.utf8string(),
                  file.cause.empty() ? Say(Words::tr("It is not named like a photo")) : file.cause});
    ++shown;
  }
  std::string text = Say(Words::tr("Left out:")) + '\n' + table.Text(2);
  if (shown < left.size()) {
    const std::size_t more = left.size() - shown;
    text += "  " +
            Say(Words::tr("and %1 more (--json lists them)", nullptr, Amount(more)), {GroupDigits(more)}) +
            '\n';
  }
  return text + '\n';
}

std::string KnownText(const ImportView& view) {
  const auto count = [&view](KnownFile::Kind kind) {
    return static_cast<unsigned long long>(
        std::count_if(view.plan.known.begin(), view.plan.known.end(),
                      [kind](const KnownFile& known) { return known.kind == kind; }));
  };
  std::string text;
  if (const auto files = count(KnownFile::Kind::Catalogued)) {
    text +=
        Say(Words::tr("%1 photos in the catalogue already.", nullptr, Amount(files)), {GroupDigits(files)}) +
        '\n';
  }
  if (const auto files = count(KnownFile::Kind::Copied)) {
    text += Say(Words::tr("%1 files copied before.", nullptr, Amount(files)), {GroupDigits(files)}) + '\n';
  }
  if (const auto files = count(KnownFile::Kind::Repeated)) {
    text += Say(Words::tr("%1 photos there twice among the sources.", nullptr, Amount(files)),
                {GroupDigits(files)}) +
            '\n';
  }
  return text;
}

std::string OutcomeText(const ImportView& view) {
  const Host::ImportPlan& plan = view.plan;
  if (plan.outcome != Host::ImportPlan::Outcome::Ready) {
    return Say(Words::tr("Nothing was imported.")) + '\n';
  }
  if (!plan.obstacle.empty()) {
    return EscapeForTerminal(plan.obstacle) + '\n' +
           Say(view.dryRun ? Words::tr("Nothing would be imported.") : Words::tr("Nothing was imported.")) +
           '\n';
  }
  if (view.dryRun) {
    return Say(Words::tr("%1 files (%2) would be copied", nullptr, Amount(plan.copies.size())),
               {GroupDigits(plan.copies.size()), SizeText(plan.bytes)}) +
           ", " +
           Say(Words::tr("%1 photos taken in where they lie.", "would be", Amount(plan.stays.size())),
               {GroupDigits(plan.stays.size())}) +
           ' ' + Say(Words::tr("This was a dry run:\nnothing was changed.")) + '\n';
  }
  std::string text;
  if (!plan.copies.empty()) {
    text += Say(Words::tr("%1 files (%2) copied to %3, each compared.", nullptr, Amount(view.result.copied)),
                {GroupDigits(view.result.copied), SizeText(view.result.bytes),
                 EscapeForTerminal(plan.folder.utf8string())}) +
            '\n';
  }
  text += Say(Words::tr("%1 photos new in the catalogue.", nullptr, Amount(view.result.added)),
              {GroupDigits(view.result.added)}) +
          '\n';
  if (const std::size_t missing = view.result.missing.size(); missing > 0) {
    text += Say(Words::tr("%1 files missing; the same command tries again.", nullptr, Amount(missing)),
                {GroupDigits(missing)}) +
            '\n';
  }
  return text;
}

}  // namespace

const char* LeftKindName(LeftFile::Kind kind) {
  switch (kind) {
    case LeftFile::Kind::NotAPhoto:
      return "not-a-photo";
    case LeftFile::Kind::NoFile:
      return "no-file";
    case LeftFile::Kind::Unreadable:
      return "unreadable";
    case LeftFile::Kind::Loop:
      return "loop";
  }
  return "";
}

std::string ImportDocument(const ImportView& view) {
  JsonWriter json("lumidex.import", 1);
  json.Path("catalogue", view.catalogue);
  json.Truth("dryRun", view.dryRun);
  json.Text("outcome", OutcomeName(view));
  if (view.plan.folder.empty()) {
    json.Null("folder");
  } else {
    json.Path("folder", view.plan.folder);
  }
  json.Number("found", static_cast<long long>(view.found));
  json.Number("bytesPlanned", static_cast<long long>(view.plan.bytes));
  json.Text("obstacle", view.plan.obstacle);
  json.Text("stopped", view.result.stopped);
  WritePlan(json, view.plan);
  WriteResult(json, view.result);
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

std::string ImportText(const ImportView& view) {
  return LeftText(view) + ShotsText(view.plan) + (view.dryRun ? PlanText(view) : "") + MissingText(view) +
         FindingsText(view) +
         (view.result.stopped.empty() ? "" : EscapeForTerminal(view.result.stopped) + '\n') +
         KnownText(view) + OutcomeText(view);
}

}  // namespace Zenvora::Lumidex::Cli
