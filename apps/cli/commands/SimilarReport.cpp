#include "SimilarJobs.h"

#include <cli/session/CauseText.h>
#include <cli/session/ReportTarget.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <host/report/Report.h>
#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/Application.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string FileName(const Host::SimilarMember& member) {
  return member.photo.path.filename().utf8string();
}

/// What a reader looks for first.
int RankOf(const Host::SuggestedGroup& shown, std::size_t index) {
  if (index == shown.keeper.index) {
    return 0;
  }
  switch (shown.verdicts[index].verdict) {
    case Host::Verdict::Same:
      return 1;
    case Host::Verdict::Alike:
      return 2;
    case Host::Verdict::Different:
      return 3;
    case Host::Verdict::Unknown:
      break;
  }
  return 4;
}

Host::ReportMark MarkOf(const Host::SuggestedGroup& shown, std::size_t index) {
  using Tone = Host::ReportMark::Tone;
  constexpr std::array kTones = {Tone::Chosen, Tone::Good, Tone::Careful, Tone::Plain, Tone::Plain};
  const std::array words = {Words::tr("Keep this one", "a photo"), Words::tr("Same picture"),
                            Words::tr("Alike", "a photo"), Words::tr("Different", "a photo"),
                            Words::tr("Could not be compared", "a photo")};
  const auto rank = static_cast<std::size_t>(RankOf(shown, index));
  return {words[rank], kTones[rank]};
}

Host::ReportAlbum OnPage(const Host::SuggestedGroup& shown) {
  const std::vector<Host::SimilarMember>& members = shown.group.members;
  const Host::SimilarMember& keeper = members[shown.keeper.index];
  Host::ReportAlbum group;
  const std::string reasons = ReasonsText(shown.keeper);
  const std::string heading =
      Say(Words::tr("Group %1: %2 photos like %3", nullptr, Amount(members.size())),
          {GroupDigits(shown.group.number), GroupDigits(members.size()), FileName(keeper)});
  const std::string advice = reasons.empty()
                                 ? Say(Words::tr("Keep %1", "a file"), {FileName(keeper)})
                                 : Say(Words::tr("Keep %1: %2", "a file: why"), {FileName(keeper), reasons});
  group.name = QString::fromStdString(heading + '\n' + advice);
  group.firstDay = keeper.photo.taken.date();
  group.chosen = 0;
  std::vector<std::size_t> order(members.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&shown](std::size_t left, std::size_t right) {
    return RankOf(shown, left) < RankOf(shown, right);
  });
  for (const std::size_t index : order) {
    const Host::SimilarMember& member = members[index];
    group.photos.push_back(member.photo);
    const std::string facts =
        Say(Words::tr("%1, %2, score %3", "pixels, size, number"),
            {PixelsText(member.features), SizeText(member.photo.size), ScoreText(member.score)});
    const std::string why = CauseText(shown.verdicts[index].why);
    group.captions.push_back(
        QString::fromStdString(FileName(member) + '\n' + facts + (why.empty() ? "" : '\n' + why)));
    group.marks.push_back(MarkOf(shown, index));
  }
  return group;
}

}  // namespace

int WriteSimilarReport(const ioPath& report, const SimilarView& view, Session& session) {
  Progress progress(session.console, Say(Words::tr("Drawing")), Say(Words::tr("pictures", "of so many")));
  // Also where the program speaks English to a script.
  const Host::InterfaceTexts pageTexts(App::GetCurrentLocale());
  std::vector<Host::ReportAlbum> groups;
  std::vector<Host::PhotoRecord> photos;
  for (const Host::SuggestedGroup& shown : view.groups) {
    groups.push_back(OnPage(shown));
    photos.insert(photos.end(), groups.back().photos.begin(), groups.back().photos.end());
  }
  RequireReplaceable(report, photos);
  Host::ReportOptions options;
  options.locale = QString::fromStdString(App::GetCurrentLocale());
  options.title = QCoreApplication::translate("Report", "Similar photos");
  options.words = {
      "group", "groups", QT_TRANSLATE_NOOP("Report", "Groups by year"),
      QT_TRANSLATE_NOOP("Report", "No similar photos"),
      QT_TRANSLATE_NOOP("Report", "Groups appear here once the catalogue holds photos that are alike.")};
  options.cancel = &session.interrupted;
  return Host::WriteReport(report, groups, options, [&progress](int done, int total) {
    progress.Update(static_cast<std::uint64_t>(done), static_cast<std::uint64_t>(total));
  });
}

}  // namespace Zenvora::Lumidex::Cli
