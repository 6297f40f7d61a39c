#include "ReportNote.h"

#include <cli/terminal/JsonWriter.h>
#include <cli/views/SimilarView.h>

namespace Zenvora::Lumidex::Cli {

namespace {

void WriteVerdict(JsonWriter& json, const Host::PictureVerdict& judged) {
  json.Text("verdict", Host::VerdictName(judged.verdict));
  json.Text("why", judged.why);
}

void WriteMember(JsonWriter& json, const Host::SuggestedGroup& shown, std::size_t index) {
  const Host::SimilarMember& member = shown.group.members[index];
  const bool isKeeper = index == shown.keeper.index;
  json.BeginObject();
  json.Text("id", member.photo.id);
  json.Path("path", member.photo.path);
  json.Real("score", member.score);
  json.Number("width", member.features.width);
  json.Number("height", member.features.height);
  json.Number("size", static_cast<long long>(member.photo.size));
  json.Moment("taken", member.photo.taken);
  json.Truth("keep", isKeeper);
  json.BeginArray("reasons");
  if (isKeeper) {
    for (const Host::KeeperReason reason : shown.keeper.reasons) {
      json.Text("", Host::KeeperReasonName(reason));
    }
  }
  json.EndArray();
  if (isKeeper) {
    json.Null("verdict");
    json.Text("why", "");
  } else {
    WriteVerdict(json, shown.verdicts[index]);
  }
  json.EndObject();
}

void WriteGroups(JsonWriter& json, const SimilarView& view) {
  json.BeginArray("groups");
  for (const Host::SuggestedGroup& shown : view.groups) {
    json.BeginObject();
    json.Number("number", static_cast<long long>(shown.group.number));
    json.Number("cluster", shown.group.cluster);
    json.BeginArray("members");
    for (std::size_t i = 0; i < shown.group.members.size(); ++i) {
      WriteMember(json, shown, i);
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string SimilarDocument(const SimilarView& view) {
  JsonWriter json("lumidex.similar", 1);
  json.Path("catalogue", view.catalogue);
  json.BeginArray("recovered");
  for (const std::string& note : view.recovered) {
    json.Text("", note);
  }
  json.EndArray();
  json.Truth("interrupted", view.cancelled);
  json.Text("analyser", view.analyser);
  json.Number("analysed", static_cast<long long>(view.analysed));
  json.Number("photos", static_cast<long long>(view.photos));
  WriteGroups(json, view);
  json.BeginArray("findings");
  for (const SimilarView::Problem& problem : view.problems) {
    json.BeginObject();
    json.Path("path", problem.photo);
    json.Text("cause", problem.cause);
    json.EndObject();
  }
  json.EndArray();
  WriteReportMember(json, view.report, view.missingPictures);
  if (view.trash) {
    WriteTrash(json, *view.trash);
  }
  return json.Finish();
}

std::string ExplainDocument(const ExplainView& view) {
  const Host::SimilarityFacts& facts = view.facts;
  JsonWriter json("lumidex.similar.explain", 1);
  json.Real("threshold", Host::kSameGroupScore);
  json.Real("score", facts.score);
  json.Truth("together", facts.firstCluster == facts.secondCluster);
  WriteVerdict(json, view.verdict);
  json.Path("kept", view.secondIsKept ? view.second.path : view.first.path);
  json.BeginArray("photos");
  const auto photo = [&json](const ExplainedPhoto& place, std::int64_t cluster, float own, float others) {
    json.BeginObject();
    json.Path("path", place.path);
    if (place.group) {
      json.Number("group", static_cast<long long>(*place.group));
    } else {
      json.Null("group");
    }
    json.Truth("keep", place.isKept);
    json.Number("cluster", cluster);
    json.Real("scoreToOwnCentre", own);
    json.Real("scoreToOtherCentre", others);
    json.EndObject();
  };
  photo(view.first, facts.firstCluster, facts.firstToFirst, facts.firstToSecond);
  photo(view.second, facts.secondCluster, facts.secondToSecond, facts.secondToFirst);
  json.EndArray();
  return json.Finish();
}

std::string CheckDocument(const ioPath& catalogue, const std::vector<std::string>& differences) {
  JsonWriter json("lumidex.similar.check", 1);
  json.Path("catalogue", catalogue);
  json.BeginArray("differences");
  for (const std::string& difference : differences) {
    json.Text("", difference);
  }
  json.EndArray();
  return json.Finish();
}

}  // namespace Zenvora::Lumidex::Cli
