#include <cli/terminal/JsonWriter.h>
#include <cli/views/ImportView.h>
#include <cli/views/JournalView.h>
#include <cli/views/ScanView.h>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::KnownFile;
using Host::LeftFile;
using Host::MissingCopy;

const char* KindName(LeftFile::Kind kind) {
  switch (kind) {
    case LeftFile::Kind::NotAPhoto:
      return "not-a-photo";
    case LeftFile::Kind::Hidden:
      return "hidden";
    case LeftFile::Kind::NoFile:
      return "no-file";
    case LeftFile::Kind::Unreadable:
      return "unreadable";
    case LeftFile::Kind::Loop:
      return "loop";
  }
  return "";
}

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
  json.Paths("stays", plan.stays);
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
    WriteLeft(json, left);
    json.Truth("copiedOff", left.copiedOff);
    json.EndObject();
  }
  json.EndArray();
  json.Number("housekeeping", static_cast<long long>(plan.housekeeping));
  json.Number("inPlace",
              static_cast<long long>(plan.photosInPlace) + static_cast<long long>(plan.filmsInPlace));
  json.BeginArray("splits");
  for (const Host::SplitShot& split : plan.splits) {
    json.BeginObject();
    json.Paths("sources", split.sources);
    json.Paths("targets", split.targets);
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("joins");
  for (const Host::JoinedShot& join : plan.joins) {
    json.BeginObject();
    json.Paths("sources", join.sources);
    json.Paths("targets", join.targets);
    json.Paths("others", join.others);
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
  WriteScanFindings(json, result.findings);
}

void WriteVerdict(JsonWriter& json, const ImportView& view) {
  using Kind = Host::ImportVerdict::Kind;
  if (view.dryRun || view.verdict.kind == Kind::NotAsked) {
    json.Null("safeToFormat");
  } else {
    json.Truth("safeToFormat", view.verdict.kind == Kind::NothingLeft);
  }
  json.Truth("wholeVolumes", view.verdict.wholeVolumes);
  json.Truth("canBeUndone", view.canBeUndone);
}

}  // namespace

void WriteLeft(JsonWriter& json, const LeftFile& left) {
  json.Text("kind", KindName(left.kind));
  json.Path("path", left.path);
  json.Text("cause", left.cause);
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
  WriteVerdict(json, view);
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

}  // namespace Zenvora::Lumidex::Cli
