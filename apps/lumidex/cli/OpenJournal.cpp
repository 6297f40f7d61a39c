#include "OpenJournal.h"

#include "UndoSettings.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/HostError.h>

#include <zenvora/app/Application.h>

#include <glog/logging.h>

namespace Zenvora::Lumidex::Cli {

OpenJournal::OpenJournal(Session& session)
    : session_(session),
      locker_(FileAccessLocker::Create()),
      journal_(std::make_unique<Host::UndoJournal>(session.CatalogueFile(), *locker_)) {
  for (const std::string& note : journal_->RecoveryNotes()) {
    session.console.Note(note);
    session.recovered.push_back(note);
  }
}

std::size_t OpenJournal::Prune() {
  try {
    return journal_->Prune(StoredLimits(session_.console), App::GetCurrentDateTime().toUTC());
  } catch (const Host::HostError& error) {
    session_.console.Warning(error.what());
    return 0;
  }
}

bool OpenJournal::CanUndoLast() const {
  const std::vector<Host::UndoStep> steps = journal_->Steps();
  return !steps.empty() && !steps.front().undone && !steps.front().givenUp;
}

void RecoverIfNeeded(Session& session) {
  if (!Host::NeedsRecovery(session.CatalogueFile())) {
    return;
  }
  try {
    const OpenJournal recovering(session);
  } catch (const Host::HostError& error) {
    VLOG(1) << "not recovered: " << error.what();
  }
}

}  // namespace Zenvora::Lumidex::Cli
