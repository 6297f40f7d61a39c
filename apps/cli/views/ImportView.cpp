#include <cli/session/CauseText.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/ImportView.h>

#include <algorithm>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::KnownFile;
using Host::LeftFile;
using Host::MissingCopy;
using Host::ScanFinding;

/// People read no thousand lines; `--json` has them all.
constexpr std::size_t kMostLeftLines = 20;

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
    text += Say(Words::tr("Would be added to the catalogue without copying:")) + '\n' + table.Text(2) + '\n';
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
  return ShotsText(Say(Words::tr("Copies of one shot would get different names:")), plan.splits) +
         ShotsText(Say(Words::tr("Copies would share names with files of other shots:")), plan.joins);
}

std::string MissingText(const ImportView& view) {
  if (view.result.missing.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  for (const MissingCopy& missing : view.result.missing) {
    table.AddRow({missing.source.utf8string(), CauseText(missing.cause)});
  }
  return Say(Words::tr("Not copied:")) + '\n' + table.Text(2) + '\n';
}

std::string FindingsText(const ImportView& view) {
  if (view.result.findings.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  for (const ScanFinding& finding : view.result.findings) {
    table.AddRow({finding.path.utf8string(), CauseText(finding.cause)});
  }
  return Say(Words::tr("Not added to the catalogue:")) + '\n' + table.Text(2) + '\n';
}

std::string ReasonText(const LeftFile& file) {
  return !file.cause.empty() ? CauseText(file.cause)
         : file.kind == LeftFile::Kind::Hidden
             ? Say(Words::tr("It is hidden"))
             : Say(Words::tr("It is not a photo, a video or a file that belongs to one"));
}

std::string SourcesText(const ImportView& view) {
  std::string names;
  for (const ioPath& source : view.sources) {
    names += (names.empty() ? "" : ", ") + EscapeForTerminal(source.utf8string());
  }
  return names;
}

std::string LeftText(const ImportView& view) {
  if (view.plan.left.empty()) {
    return {};
  }
  TextTable table({{}, {}});
  // What would be lost with the source, and what could not be read, comes first: each is named.
  const auto matters = [](const LeftFile& file) {
    return file.copiedOff || file.kind != LeftFile::Kind::NotAPhoto;
  };
  std::vector<LeftFile> left = view.plan.left;
  std::stable_sort(left.begin(), left.end(), [&matters](const LeftFile& one, const LeftFile& other) {
    return matters(one) > matters(other);
  });
  std::size_t shown = 0;
  for (const LeftFile& file : left) {
    if (!matters(file) && shown >= kMostLeftLines) {
      break;
    }
    table.AddRow({file.path.utf8string(), ReasonText(file)});
    ++shown;
  }
  std::string text = Say(Words::tr("Skipped:")) + '\n' + table.Text(2);
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
    text += Say(Words::tr("%1 photos are in the catalogue already.", nullptr, Amount(files)),
                {GroupDigits(files)}) +
            '\n';
  }
  if (const auto files = count(KnownFile::Kind::Copied)) {
    text +=
        Say(Words::tr("%1 files were copied before.", nullptr, Amount(files)), {GroupDigits(files)}) + '\n';
  }
  if (const auto files = count(KnownFile::Kind::Repeated)) {
    text += Say(Words::tr("%1 photos occur twice in the sources.", nullptr, Amount(files)),
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
    return EscapeForTerminal(CauseText(plan.obstacle)) + '\n' +
           Say(view.dryRun ? Words::tr("Nothing would be imported.") : Words::tr("Nothing was imported.")) +
           '\n';
  }
  if (view.dryRun) {
    const std::string copies =
        Say(Words::tr("%1 files (%2) would be copied", nullptr, Amount(plan.copies.size())),
            {GroupDigits(plan.copies.size()), SizeText(plan.bytes)});
    const std::string added =
        Say(Words::tr("%1 photos added without copying.", "would be", Amount(plan.stays.size())),
            {GroupDigits(plan.stays.size())});
    return Say(Words::tr("%1, %2 %3", "copies; photos added; dry run"),
               {copies, added, Say(Words::tr("This was a dry run:\nnothing was changed."))}) +
           '\n';
  }
  std::string text;
  if (!plan.copies.empty()) {
    text += Say(Words::tr("%1 files (%2) copied to %3 and verified.", nullptr, Amount(view.result.copied)),
                {GroupDigits(view.result.copied), SizeText(view.result.bytes),
                 EscapeForTerminal(plan.folder.utf8string())}) +
            '\n';
  }
  text += Say(Words::tr("%1 photos added to the catalogue.", nullptr, Amount(view.result.added)),
              {GroupDigits(view.result.added)}) +
          '\n';
  if (const std::size_t missing = view.result.missing.size(); missing > 0) {
    text += Say(Words::tr("%1 files were not copied; run the same command to try again.", nullptr,
                          Amount(missing)),
                {GroupDigits(missing)}) +
            '\n';
  }
  if (view.canBeUndone) {
    text += Say(Words::tr("\"lumidex undo\" moves the copies of this run to the trash.")) + '\n';
  }
  return text;
}

/// What stays where it is, and why.
std::string InPlaceText(const ImportView& view) {
  const Host::ImportPlan& plan = view.plan;
  const std::size_t files = plan.photosInPlace + plan.filmsInPlace;
  if (plan.outcome != Host::ImportPlan::Outcome::Ready || files == 0) {
    return {};
  }
  std::string text;
  if (view.noCopy || plan.copyDeclined) {
    text = Say(
        Words::tr("%1 files are not copied, as you chose; they stay where they are.", nullptr, Amount(files)),
        {GroupDigits(files)});
  } else {
    text = Say(
        Words::tr(
            "%1 files are not copied, because they are not on removable storage; \"--to DIR\" copies them.",
            nullptr, Amount(files)),
        {GroupDigits(files)});
  }
  text += '\n';
  if (plan.filmsInPlace > 0) {
    text += Say(Words::tr("%1 of them are videos, which the catalogue does not hold.", nullptr,
                          Amount(plan.filmsInPlace)),
                {GroupDigits(plan.filmsInPlace)}) +
            '\n';
  }
  return text;
}

std::string HousekeepingText(const ImportView& view) {
  const std::size_t files = view.plan.copiesOff ? view.plan.housekeeping : 0;
  return files == 0 ? std::string()
                    : Say(Words::tr("%1 housekeeping files of cameras and systems are not copied.", nullptr,
                                    Amount(files)),
                          {GroupDigits(files)}) +
                          '\n';
}

std::string VerdictText(const ImportView& view) {
  using Kind = Host::ImportVerdict::Kind;
  const std::string sources = SourcesText(view);
  switch (view.verdict.kind) {
    case Kind::NotAsked:
      return {};
    case Kind::SomethingLeft:
      return Say(Words::tr("Not everything in %1 is copied: do not format or empty it yet."), {sources}) +
             '\n';
    case Kind::CopiesWithin:
      return Say(Words::tr("Copies are in %1 itself: do not format or empty it."), {sources}) + '\n';
    case Kind::NothingLeft:
      break;
  }
  // What is left all the same is no reason to wait, but it is no copy either.
  const std::string left =
      view.plan.housekeeping == 0
          ? Say(Words::tr("Every file in %1 has a verified copy elsewhere."), {sources})
          : Say(Words::tr("Every file in %1, except for housekeeping files, has a verified copy elsewhere."),
                {sources});
  return left + '\n' +
         Say(view.verdict.wholeVolumes ? Words::tr("It is safe to format.")
                                       : Words::tr("It is safe to format as far as this folder is concerned; "
                                                   "what is outside it was not checked.")) +
         '\n';
}

}  // namespace

std::string ImportText(const ImportView& view) {
  return LeftText(view) + ShotsText(view.plan) + (view.dryRun ? PlanText(view) : "") + MissingText(view) +
         FindingsText(view) +
         (view.result.stopped.empty() ? "" : EscapeForTerminal(view.result.stopped) + '\n') +
         KnownText(view) + OutcomeText(view) + InPlaceText(view) + HousekeepingText(view) +
         (view.dryRun ? "" : VerdictText(view));
}

}  // namespace Zenvora::Lumidex::Cli
