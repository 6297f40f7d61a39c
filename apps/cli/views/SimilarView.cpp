#include "ReportNote.h"

#include <cli/session/CauseText.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/SimilarView.h>

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
      return Say(Words::tr("undamaged", "photo"));
    case Host::KeeperReason::CameraFile:
      return Say(Words::tr("the camera's own file"));
    case Host::KeeperReason::CameraData:
      return Say(Words::tr("has camera data"));
    case Host::KeeperReason::MakerNote:
      return Say(Words::tr("has maker notes"));
    case Host::KeeperReason::NotEnlarged:
      return Say(Words::tr("not enlarged"));
    case Host::KeeperReason::Largest:
      return Say(Words::tr("largest", "photo"));
    case Host::KeeperReason::LeastTouched:
      return Say(Words::tr("not written by another program"));
    case Host::KeeperReason::Finer:
      return Say(Words::tr("compressed less"));
    case Host::KeeperReason::Sharpest:
      return Say(Words::tr("sharpest", "photo"));
    case Host::KeeperReason::MoreBytes:
      return Say(Words::tr("more bytes per pixel"));
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

struct Amounts {
  std::size_t photos = 0;
  std::uint64_t bytes = 0;
};

/// Of photos besides those to keep; with a verdict, of those alone that have it.
Amounts Others(const SimilarView& view, std::optional<Host::Verdict> verdict = {}) {
  Amounts amounts;
  for (const Host::SuggestedGroup& shown : view.groups) {
    for (std::size_t i = 0; i < shown.group.members.size(); ++i) {
      if (i != shown.keeper.index && (!verdict || shown.verdicts[i].verdict == *verdict)) {
        ++amounts.photos;
        amounts.bytes += shown.group.members[i].photo.size;
      }
    }
  }
  return amounts;
}

std::string ProblemsText(const SimilarView& view) {
  TextTable table({{}, {}});
  std::size_t known = 0;
  for (const SimilarView::Problem& problem : view.problems) {
    if (problem.isNew) {
      table.AddRow({problem.photo.utf8string(), CauseText(problem.cause)});
    } else {
      ++known;
    }
  }
  std::string text;
  if (known < view.problems.size()) {
    text = Say(Words::tr("Not compared:")) + '\n' + table.Text(2) + '\n';
  }
  if (known > 0) {
    text += Say(Words::tr("%1 photos cannot be compared, as before; \"lumidex similar --not-compared\" lists "
                          "them.",
                          nullptr, Amount(known)),
                {GroupDigits(known)}) +
            '\n';
  }
  return text;
}

/// How many of those besides the ones to keep nobody misses.
std::string SameText(const SimilarView& view) {
  const Amounts same = Others(view, Host::Verdict::Same);
  if (same.photos == 0) {
    return {};
  }
  return Say(Words::tr("%1 of them (%2) are the same picture as the photo to keep; \"lumidex similar "
                       "--trash\" moves them to the trash.",
                       nullptr, Amount(same.photos)),
             {GroupDigits(same.photos), SizeText(same.bytes)}) +
         '\n';
}

std::string SummaryText(const SimilarView& view) {
  const std::string photos = GroupDigits(view.photos);
  if (view.groups.empty()) {
    return Say(Words::tr("No similar photos among %1 photos.", nullptr, Amount(view.photos)), {photos}) +
           '\n';
  }
  const Amounts all = Others(view);
  const std::string groups =
      Say(Words::tr("%1 groups of similar photos", nullptr, Amount(view.groups.size())),
          {GroupDigits(view.groups.size())});
  const std::string among = Say(Words::tr("among %1 photos", nullptr, Amount(view.photos)), {photos});
  const std::string others =
      Say(Words::tr("%1 photos (%2) besides those to keep.", nullptr, Amount(all.photos)),
          {GroupDigits(all.photos), SizeText(all.bytes)});
  return Say(Words::tr("%1 %2; %3", "groups of similar photos; among how many; others"),
             {groups, among, others}) +
         '\n' + SameText(view);
}

std::string JudgedText(const Host::PictureVerdict& judged) {
  QString sentence;
  switch (judged.verdict) {
    case Host::Verdict::Same:
      sentence = Words::tr("They are the same picture.");
      break;
    case Host::Verdict::Alike:
      sentence = Words::tr("They are alike, and not the same picture.");
      break;
    case Host::Verdict::Different:
      sentence = Words::tr("They are different pictures.");
      break;
    case Host::Verdict::Unknown:
      sentence = Words::tr("Their pictures could not be compared.");
      break;
  }
  return Say(sentence) + (judged.why.empty() ? "" : " (" + EscapeForTerminal(CauseText(judged.why)) + ")");
}

}  // namespace

std::string VerdictText(Host::Verdict verdict) {
  switch (verdict) {
    case Host::Verdict::Same:
      return Say(Words::tr("same", "a picture"));
    case Host::Verdict::Alike:
      return Say(Words::tr("alike", "a picture"));
    case Host::Verdict::Different:
      return Say(Words::tr("different", "a picture"));
    case Host::Verdict::Unknown:
      break;
  }
  return Say(Words::tr("unknown", "a verdict"));
}

std::string GroupText(const Host::SuggestedGroup& shown, const TrashView* trash) {
  const std::vector<SimilarMember>& members = shown.group.members;
  std::vector<TextTable::Column> columns = {
      {}, {"", TextTable::Align::Right}, {"", TextTable::Align::Right}, {"", TextTable::Align::Right}, {}, {},
      {}};
  if (trash != nullptr) {
    columns.insert(columns.begin(), TextTable::Column());
  }
  TextTable table(columns);
  const auto add = [&table, trash](const std::string& fate, std::vector<std::string> cells) {
    if (trash != nullptr) {
      cells.insert(cells.begin(), fate);
    }
    table.AddRow(std::move(cells));
  };
  for (std::size_t i = 0; i < members.size(); ++i) {
    const SimilarMember& member = members[i];
    const bool isKeeper = i == shown.keeper.index;
    const TrashPhoto* const going = trash != nullptr ? FindGoing(*trash, member.photo.path) : nullptr;
    const std::string keep = Say(Words::tr("keep", "a photo"));
    const std::string fate = isKeeper           ? keep
                             : going != nullptr ? Say(Words::tr("trash", "it goes there"))
                                                : Say(Words::tr("stay", "a photo does"));
    const std::string verdict = !isKeeper          ? VerdictText(shown.verdicts[i].verdict)
                                : trash == nullptr ? keep
                                                   : std::string();
    add(fate, {verdict, ScoreText(member.score), PixelsText(member.features), SizeText(member.photo.size),
               TakenText(member), member.photo.path.utf8string(),
               isKeeper ? ReasonsText(shown.keeper) : CauseText(shown.verdicts[i].why)});
    for (std::size_t j = 0; going != nullptr && j < going->attached.size(); ++j) {
      const Host::SeenFile& file = going->attached[j];
      add(fate, {"", "", "", SizeText(file.size), "", file.path.utf8string(), ""});
    }
  }
  return Say(Words::tr("Group %1, %2 photos:", nullptr, Amount(members.size())),
             {GroupDigits(shown.group.number), GroupDigits(members.size())}) +
         '\n' + table.Text(2) + '\n';
}

std::string ScoreText(float score) {
  return QString::number(static_cast<double>(score), 'f', kScoreDigits)
      .replace(QLatin1Char('.'), QString::fromStdString(DecimalMark()))
      .toStdString();
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

std::string SimilarText(const SimilarView& view) {
  std::string text;
  const TrashView* const trash = view.trash ? &*view.trash : nullptr;
  // Who was asked has seen them.
  if (trash == nullptr || !trash->asked) {
    for (const Host::SuggestedGroup& group : view.groups) {
      text += GroupText(group, trash);
    }
  }
  text += ProblemsText(view) + (trash != nullptr ? TrashText(*trash) : SummaryText(view));
  return text + ReportLines(view.report, view.missingPictures);
}

std::string ExplainText(const ExplainView& view) {
  const Host::SimilarityFacts& facts = view.facts;
  const bool together = facts.firstCluster == facts.secondCluster;
  TextTable table(
      {{Say(Words::tr("PHOTO"))},
       {Say(Words::tr("GROUP")), TextTable::Align::Right},
       {Say(Words::tr("VERDICT"))},
       {Say(together ? Words::tr("TO ITS CENTRE") : Words::tr("TO ITS OWN CENTRE")), TextTable::Align::Right},
       {together ? "" : Say(Words::tr("TO THE OTHER'S")), TextTable::Align::Right}});
  const auto add = [&](const ExplainedPhoto& photo, float own, float others) {
    table.AddRow({photo.path.utf8string(), photo.group ? GroupDigits(*photo.group) : "-",
                  !photo.group   ? "-"
                  : photo.isKept ? Say(Words::tr("keep", "a photo"))
                                 : VerdictText(photo.verdict),
                  ScoreText(own), together ? "" : ScoreText(others)});
  };
  add(view.first, facts.firstToFirst, facts.firstToSecond);
  add(view.second, facts.secondToSecond, facts.secondToFirst);
  const QString verdict =
      together ? Words::tr("The photos score %1 against each other and are in one group.")
               : Words::tr("The photos score %1 against each other and are in different groups.");
  return Say(verdict, {ScoreText(facts.score)}) + '\n' + JudgedText(view.verdict) + "\n\n" + table.Text() +
         '\n' +
         Say(Words::tr(
                 "A photo joins the first group whose centre scores above %1 against it. The centre is the\n"
                 "mean of the photos in the group at that time; later photos move it."),
             {ScoreText(Host::kSameGroupScore)}) +
         '\n';
}

std::string CheckText(const std::vector<std::string>& differences) {
  if (differences.empty()) {
    return Say(Words::tr("Matching all photos again gives the same groups.")) + '\n';
  }
  std::string text;
  for (const std::string& difference : differences) {
    text += EscapeForTerminal(difference) + '\n';
  }
  return text + Say(Words::tr("\"lumidex similar --anew\" makes all groups again.")) + '\n';
}

}  // namespace Zenvora::Lumidex::Cli
