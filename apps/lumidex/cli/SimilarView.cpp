#include "SimilarView.h"

#include "JsonWriter.h"
#include "ReportNote.h"
#include "TerminalText.h"
#include "TextTable.h"
#include "ValueTexts.h"

#include <QString>

#include <cstdint>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::SimilarMember;
using Host::TrashPhoto;

constexpr int kScoreDigits = 3;

std::string TakenText(const SimilarMember& member) {
  const QDateTime& taken = member.photo.taken;
  return taken.isValid() ? taken.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString() : "-";
}

/// Photos besides those to keep, and their bytes.
std::pair<std::size_t, std::uint64_t> Others(const SimilarView& view) {
  std::size_t count = 0;
  std::uint64_t bytes = 0;
  for (const SimilarView::Group& shown : view.groups) {
    for (std::size_t i = 0; i < shown.group.members.size(); ++i) {
      if (i != shown.keeper.index) {
        ++count;
        bytes += shown.group.members[i].photo.size;
      }
    }
  }
  return {count, bytes};
}

std::string ProblemsText(const SimilarView& view) {
  if (view.problems.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  for (const auto& [file, cause] : view.problems) {
    table.AddRow({file.utf8string(), cause});
  }
  return "Not compared:\n" + table.Text(2) + '\n';
}

std::string SummaryText(const SimilarView& view) {
  const std::string of = " among " + Counted(view.photos, "photo");
  if (view.groups.empty()) {
    return "No similar photos" + of + ".\n";
  }
  const auto [count, bytes] = Others(view);
  return Counted(view.groups.size(), "group") + " of similar photos" + of + "; " + Counted(count, "photo") +
         " (" + SizeText(bytes) + ") besides those to keep.\n";
}

void WriteMember(JsonWriter& json, const SimilarMember& member, const Host::KeeperChoice* keeper) {
  json.BeginObject();
  json.Text("id", member.photo.id);
  json.Path("path", member.photo.path);
  json.Real("score", member.score);
  json.Number("width", member.features.width);
  json.Number("height", member.features.height);
  json.Number("size", static_cast<long long>(member.photo.size));
  json.Moment("taken", member.photo.taken);
  json.Truth("keep", keeper != nullptr);
  json.BeginArray("reasons");
  if (keeper != nullptr) {
    for (const Host::KeeperReason reason : keeper->reasons) {
      json.Text("", Host::KeeperReasonName(reason));
    }
  }
  json.EndArray();
  json.EndObject();
}

void WriteGroups(JsonWriter& json, const SimilarView& view) {
  json.BeginArray("groups");
  for (const SimilarView::Group& shown : view.groups) {
    json.BeginObject();
    json.Number("cluster", shown.group.cluster);
    json.BeginArray("members");
    for (std::size_t i = 0; i < shown.group.members.size(); ++i) {
      WriteMember(json, shown.group.members[i], i == shown.keeper.index ? &shown.keeper : nullptr);
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string GroupText(const SimilarView::Group& shown, std::size_t number, const TrashView* trash) {
  const std::vector<SimilarMember>& members = shown.group.members;
  TextTable table({{},
                   {"", TextTable::Align::Right},
                   {"", TextTable::Align::Right},
                   {"", TextTable::Align::Right},
                   {},
                   {},
                   {}});
  for (std::size_t i = 0; i < members.size(); ++i) {
    const SimilarMember& member = members[i];
    const bool isKeeper = i == shown.keeper.index;
    const TrashPhoto* const going = trash != nullptr ? FindGoing(*trash, member.photo.path) : nullptr;
    const char* const verdict = isKeeper           ? "keep"
                                : trash == nullptr ? ""
                                : going != nullptr ? "trash"
                                                   : "stay";
    table.AddRow({verdict, ScoreText(member.score), PixelsText(member.features), SizeText(member.photo.size),
                  TakenText(member), member.photo.path.utf8string(),
                  isKeeper ? ReasonsText(shown.keeper) : ""});
    for (std::size_t j = 0; going != nullptr && j < going->appendix.size(); ++j) {
      const Host::SeenFile& file = going->appendix[j];
      table.AddRow({verdict, "", "", SizeText(file.size), "", file.path.utf8string(), ""});
    }
  }
  return "Group " + GroupDigits(number) + ", " + Counted(members.size(), "photo") + ":\n" + table.Text(2) +
         '\n';
}

std::string ScoreText(float score) {
  return QString::number(static_cast<double>(score), 'f', kScoreDigits).toStdString();
}

std::string ReasonsText(const Host::KeeperChoice& keeper) {
  std::string text;
  for (const Host::KeeperReason reason : keeper.reasons) {
    text += (text.empty() ? "" : ", ") + std::string(Host::KeeperReasonName(reason));
  }
  return text;
}

std::string PixelsText(const Host::PhotoFeatures& features) {
  return features.width == 0 ? "-" : std::to_string(features.width) + "x" + std::to_string(features.height);
}

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
  for (const auto& [file, cause] : view.problems) {
    json.BeginObject();
    json.Path("path", file);
    json.Text("cause", cause);
    json.EndObject();
  }
  json.EndArray();
  WriteReportMember(json, view.report, view.missingPictures);
  if (view.trash) {
    WriteTrash(json, *view.trash);
  }
  return json.Finish();
}

std::string SimilarText(const SimilarView& view) {
  std::string text = ProblemsText(view);
  std::size_t number = 0;
  const TrashView* const trash = view.trash ? &*view.trash : nullptr;
  for (const SimilarView::Group& group : view.groups) {
    // Who was asked has seen them.
    text += trash != nullptr && trash->asked ? "" : GroupText(group, ++number, trash);
  }
  text += trash != nullptr ? TrashText(*trash) : SummaryText(view);
  return text + ReportLines(view.report, view.missingPictures);
}

std::string ExplainDocument(const ExplainView& view) {
  const Host::SimilarityFacts& facts = view.facts;
  JsonWriter json("lumidex.similar.explain", 1);
  json.Real("threshold", Host::kSameGroupScore);
  json.Real("score", facts.score);
  json.Truth("together", facts.firstCluster == facts.secondCluster);
  json.BeginArray("photos");
  const auto photo = [&json](const ioPath& path, std::int64_t cluster, float own, float others) {
    json.BeginObject();
    json.Path("path", path);
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

std::string ExplainText(const ExplainView& view) {
  const Host::SimilarityFacts& facts = view.facts;
  const bool together = facts.firstCluster == facts.secondCluster;
  TextTable table({{"PHOTO"},
                   {"CLUSTER", TextTable::Align::Right},
                   {together ? "TO ITS CENTRE" : "TO ITS OWN CENTRE", TextTable::Align::Right},
                   {together ? "" : "TO THE OTHER'S", TextTable::Align::Right}});
  table.AddRow({view.first.utf8string(), std::to_string(facts.firstCluster), ScoreText(facts.firstToFirst),
                together ? "" : ScoreText(facts.firstToSecond)});
  table.AddRow({view.second.utf8string(), std::to_string(facts.secondCluster),
                ScoreText(facts.secondToSecond), together ? "" : ScoreText(facts.secondToFirst)});
  std::string text = "The photos score " + ScoreText(facts.score) + " against each other and are in " +
                     (together ? "one group.\n\n" : "different groups.\n\n") + table.Text();
  return text +
         "\nA photo joins the first group whose centre, the mean of its photos at that time, it scored\n"
         "above " +
         ScoreText(Host::kSameGroupScore) + " against; later photos move the centre.\n";
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

std::string CheckText(const std::vector<std::string>& differences) {
  if (differences.empty()) {
    return "The groups are as matching all photos again makes them.\n";
  }
  std::string text;
  for (const std::string& difference : differences) {
    text += EscapeForTerminal(difference) + '\n';
  }
  return text + "\"lumidex similar --anew\" makes the groups from nothing.\n";
}

}  // namespace Zenvora::Lumidex::Cli
