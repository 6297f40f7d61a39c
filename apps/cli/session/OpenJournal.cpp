#include <LumidexUtil/FileAccessLocker.h>
#include <cli/session/CauseText.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/UndoSettings.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <host/base/HostError.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/core/PrivateFiles.h>

#include <glog/logging.h>

#include <algorithm>

namespace Zenvora::Lumidex::Cli {

OpenJournal::OpenJournal(Session& session)
    : session_(session),
      locker_(FileAccessLocker::Create()),
      journal_(std::make_unique<Host::UndoJournal>(session.CatalogueFile(), *locker_)) {
  // Also those that a former program stored.
  MakePrivate(App::UserSettingsFile().parent_path());
  MakePrivate(App::UserSettingsFile());
  for (const std::string& note : journal_->RecoveryNotes()) {
    session.console.Note(CauseText(note));
    session.recovered.push_back(note);
  }
}

std::size_t OpenJournal::Prune(const std::vector<Host::UndoStep>& announced) {
  try {
    const Host::UndoLimits limits = StoredLimits(session_.console);
    const std::vector<Host::UndoStep> before = journal_->Steps();
    const std::size_t dropped = journal_->Prune(limits, announced);
    const std::size_t tooOld = static_cast<std::size_t>(std::count_if(
        before.begin(), before.end(),
        [&limits](const Host::UndoStep& step) { return !step.givenUp && step.daysOfUse > limits.days; }));
    if (tooOld > 0) {
      session_.console.Note(
          Say(Words::tr("%1 steps cannot be undone any more, because more than %2 days of use have passed.",
                        nullptr, Amount(tooOld)),
              {GroupDigits(tooOld), GroupDigits(static_cast<unsigned long long>(limits.days))}));
    }
    return dropped - tooOld;
  } catch (const Host::HostError& error) {
    session_.console.Warning(error.what());
    return 0;
  }
}

bool OpenJournal::CanUndoLast() const {
  const std::vector<Host::UndoStep> steps = journal_->Steps();
  return !steps.empty() && !steps.front().undone && !steps.front().givenUp;
}

void RequireRecovered(Session& session) {
  if (Host::NeedsRecovery(session.CatalogueFile())) {
    const OpenJournal recovering(session);
  }
}

void RecoverIfNeeded(Session& session) {
  try {
    RequireRecovered(session);
  } catch (const Host::HostError& error) {
    VLOG(1) << "not recovered: " << error.what();
  }
}

}  // namespace Zenvora::Lumidex::Cli
