#pragma once

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/StepState.h>
#include <host/catalogue/StepType.h>
#include <host/journal/UndoTypes.h>

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A row of the table of steps.
struct StepRow {
  qlonglong number = 0;
  StepType type = StepType::Unknown;
  QString name;
  State state = State::Doing;
  QByteArray moves;  ///< What its kind packed there; as a rule nothing.
};

/// What a step did to files, by their paths: so that the journal can tell which steps stand in each other's
/// way.
struct StepTraces {
  std::set<std::string> changed;  ///< Other bytes.
  std::set<std::string> gone;     ///< Renamed, or in the trash.
  std::set<std::string> taken;    ///< Names that it gave.
  std::set<std::string> made;     ///< Files that were not there before.
};

/// What is known of a kind of step without an open journal, for the list of steps.
struct KindFacts {
  StepType type = StepType::Unknown;
  /// Such a step is done while others have the journal: one that is under way may be at work now.
  bool worksBeside = false;
  /// How many bytes are kept for each step, as if nothing were shared with the photos; steps for which
  /// nothing is kept need not be there. Null: the kind keeps nothing.
  std::map<qlonglong, std::uint64_t> (*keptBytes)(const CatalogueDatabase& database) = nullptr;
};

/// What one kind of undoable act brings to the journal, which knows none of them itself: how its steps are
/// recovered, undone and redone. What begins such a step, and plans it, is the kind's own affair.
///
/// All functions block on the disk, are called on the thread that opened the journal, and throw `HostError`.
class StepKind {
 public:
  virtual ~StepKind() = default;

  virtual const KindFacts& Facts() const = 0;

  /// A step was under way when the program or the machine stopped: finishes it or takes it back, as far as
  /// its files can be reached, and says in the journal's notes what became of it.
  virtual void Recover(StepRow& step) = 0;
  /// Takes a step that stands back, or does it again (`redo`), and sets its state. What cannot be done is a
  /// finding.
  virtual UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                             const UndoProgress& progress) = 0;

  /// The journal was opened, and what was under way is recovered.
  virtual void TidyUp() {}
  /// Adds what the step did, as it stands.
  virtual void AddTraces(qlonglong /*step*/, StepTraces& /*traces*/) const {}
  /// Why the step must be neither given up nor forgotten now; none: it may.
  virtual std::optional<FileFinding> WhyHeld(qlonglong /*step*/) const { return std::nullopt; }
  /// The step stays as it is for good: nothing is left of an attempt to take it back.
  virtual void GiveUp(qlonglong /*step*/) {}
  /// The names of what is kept for the step (`KeptFiles`); it is removed once the step is forgotten.
  virtual std::vector<std::string> KeptNames(qlonglong /*step*/) const { return {}; }
};

}  // namespace Zenvora::Lumidex::Host
