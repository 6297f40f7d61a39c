#pragma once

#include "Session.h"

#include <host/UndoJournal.h>

#include <zenvora/lumidex/IFileAccessLocker.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The open journal of a session's catalogue. What its recovery did is noted on the console.
class OpenJournal {
 public:
  /// Throws `Host::HostError`.
  explicit OpenJournal(Session& session);

  Host::UndoJournal& Get() { return *journal_; }
  IFileAccessLocker& Locker() { return *locker_; }

  /// Forgets what is beyond the limits of the settings. A failure is only worth a warning: what was asked
  /// for is done. Returns how many steps were forgotten.
  std::size_t Prune();
  /// True when the step done last can be undone.
  bool CanUndoLast() const;

 private:
  Session& session_;
  boost::intrusive_ptr<IFileAccessLocker> locker_;
  std::unique_ptr<Host::UndoJournal> journal_;
};

/// For commands that use the catalogue but not its journal: finishes or takes back what a former run left
/// half done. When another program has the journal open, it is at work, and this goes on without.
void RecoverIfNeeded(Session& session);

}  // namespace Zenvora::Lumidex::Cli
