#include "SimilarView.h"

#include "JsonWriter.h"
#include "ReportNote.h"
#include "TerminalText.h"
#include "TextTable.h"
#include "ValueTexts.h"
#include "Words.h"

#include <QString>

#include <cstdint>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::SimilarMember;
using Host::TrashPhoto;

constexpr int kScoreDigits = 3;

std::string ReasonText(Host::KeeperReason reason) {
  switch (reason) {
    case Host::KeeperReason::Whole:
      return Say(Words::tr("whole", "photo"));
    case Host::KeeperReason::CameraFile:
      return Say(Words::tr("the camera's own file"));
    case Host::KeeperReason::CameraData:
      return Say(Words::tr("has camera data"));
    case Host::KeeperReason::MakerNote:
      return Say(Words::tr("has the maker's note"));
    case Host::KeeperReason::Largest:
      return Say(Words::tr("largest", "photo"));
    case Host::KeeperReason::LeastTouched:
      return Say(Words::tr("not written by another program"));
    case Host::KeeperReason::Finer:
      return Say(Words::tr("compressed less"));
    case Host::KeeperReason::Sharpest:
      return Say(Words::tr("sharpest", "photo"));
    case Host::KeeperReason::MoreBytes:
      return Say(Words::tr("more bytes a pixel"));
    case Host::KeeperReason::CameraName:
      return Say(Words::tr("named by the camera"));
    case Host::KeeperReason::Earliest:
      return Say(Words::tr("earliest", "photo"));
    case Host::KeeperReason::FirstName:
      return Say(Words::tr("first by name"));
  }
  return "";
}

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
  return Say(Words::tr("Not compared:")) + '\n' + table.Text(2) + '\n';
}

std::string SummaryText(const SimilarView& view) {
  const std::string photos = GroupDigits(view.photos);
  if (view.groups.empty()) {
    return Say(Words::tr("No similar photos among %1 photos.", nullptr, Amount(view.photos)), {photos}) +
           '\n';
  }
  const auto [count, bytes] = Others(view);
  const std::string groups =
      Say(Words::tr("%1 groups of similar photos", nullptr, Amount(view.groups.size())),
          {GroupDigits(view.groups.size())});
  const std::string among = Say(Words::tr("among %1 photos", nullptr, Amount(view.photos)), {photos});
  const std::string others = Say(Words::tr("%1 photos (%2) besides those to keep.", nullptr, Amount(count)),
                                 {GroupDigits(count), SizeText(bytes)});
  return Say(Words::tr("%1 %2; %3", "groups of similar photos; among how many; others"),
             {groups, among, others}) +
         '\n';
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
    const std::string verdict = isKeeper           ? Say(Words::tr("keep", "a photo"))
                                : trash == nullptr ? std::string()
                                : going != nullptr ? Say(Words::tr("trash", "it goes there"))
                                                   : Say(Words::tr("stay", "a photo does"));
    table.AddRow({verdict, ScoreText(member.score), PixelsText(member.features), SizeText(member.photo.size),
                  TakenText(member), member.photo.path.utf8string(),
                  isKeeper ? ReasonsText(shown.keeper) : ""});
    for (std::size_t j = 0; going != nullptr && j < going->appendix.size(); ++j) {
      const Host::SeenFile& file = going->appendix[j];
      table.AddRow({verdict, "", "", SizeText(file.size), "", file.path.utf8string(), ""});
    }
  }
  return Say(Words::tr("Group %1, %2 photos:", nullptr, Amount(members.size())),
             {GroupDigits(number), GroupDigits(members.size())}) +
         '\n' + table.Text(2) + '\n';
}

std::string ScoreText(float score) {
  return QString::number(static_cast<double>(score), 'f', kScoreDigits).toStdString();
}

std::string ReasonsText(const Host::KeeperChoice& keeper) {
  std::string text;
  for (const Host::KeeperReason reason : keeper.reasons) {
    text += (text.empty() ? "" : ", ") + ReasonText(reason);
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
  TextTable table(
      {{Say(Words::tr("PHOTO"))},
       {Say(Words::tr("CLUSTER")), TextTable::Align::Right},
       {Say(together ? Words::tr("TO ITS CENTRE") : Words::tr("TO ITS OWN CENTRE")), TextTable::Align::Right},
       {together ? "" : Say(Words::tr("TO THE OTHER'S")), TextTable::Align::Right}});
  table.AddRow({view.first.utf8string(), std::to_string(facts.firstCluster), ScoreText(facts.firstToFirst),
                together ? "" : ScoreText(facts.firstToSecond)});
  table.AddRow({view.second.utf8string(), std::to_string(facts.secondCluster),
                ScoreText(facts.secondToSecond), together ? "" : ScoreText(facts.secondToFirst)});
  const QString verdict =
      together ? Words::tr("The photos score %1 against each other and are in one group.")
               : Words::tr("The photos score %1 against each other and are in different groups.");
  return Say(verdict, {ScoreText(facts.score)}) + "\n\n" + table.Text() + '\n' +
         Say(Words::tr("A photo joins the first group whose centre, the mean of its photos at that time, it "
                       "scored\nabove %1 against; later photos move the centre."),
             {ScoreText(Host::kSameGroupScore)}) +
         '\n';
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
    return Say(Words::tr("The groups are as matching all photos again makes them.")) + '\n';
  }
  std::string text;
  for (const std::string& difference : differences) {
    text += EscapeForTerminal(difference) + '\n';
  }
  return text + Say(Words::tr("\"lumidex similar --anew\" makes the groups from nothing.")) + '\n';
}

}  // namespace Zenvora::Lumidex::Cli
