#pragma once

#include <cli/session/Session.h>
#include <host/history/UndoJournal.h>

#include <zenvora/lumidex/IFileAccessLocker.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The open journal of a session's catalogue. What its recovery did is noted on the console.
///
/// It is held for a step and no longer: not while somebody is asked, nor while something is planned or
/// printed, so that a command that waits keeps nobody from working.
class OpenJournal {
 public:
  /// Throws `Host::HostError`.
  explicit OpenJournal(Session& session);

  Host::UndoJournal& Get() { return *journal_; }
  IFileAccessLocker& Locker() { return *locker_; }

  /// After a step: forgets the older ones that were announced as far as the limits of the settings ask for
  /// it, and those that are too old, which is noted. A failure is only worth a warning: what was asked for is
  /// done. Returns how many of those announced are forgotten.
  std::size_t Prune(const std::vector<Host::UndoStep>& announced = {});
  /// True when the step done last can be undone.
  bool CanUndoLast() const;

 private:
  Session& session_;
  boost::intrusive_ptr<IFileAccessLocker> locker_;
  std::unique_ptr<Host::UndoJournal> journal_;
};

/// For commands that will open the journal later, for what they plan: finishes or undoes what a former
/// run left half done. Throws `Host::HostError`, also when another program has the journal open.
void RequireRecovered(Session& session);

/// For commands that use the catalogue but not its journal: finishes or undoes what a former run left
/// half done. When another program has the journal open, it is at work, and this goes on without.
void RecoverIfNeeded(Session& session);

}  // namespace Zenvora::Lumidex::Cli
