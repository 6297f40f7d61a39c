#pragma once

#include <host/catalogue/CatalogueDatabase.h>
#include <host/journal/StepKind.h>
#include <host/journal/UndoTypes.h>

#include <cstdint>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// All steps, the latest first. Of a catalogue of any version; one without a journal has none.
std::vector<UndoStep> QuerySteps(const CatalogueDatabase& database, const std::vector<KindFacts>& kinds);

/// Which of `steps` (the latest first) the limits leave no place for beside `needed` bytes: the oldest that
/// can be undone, and before any of those what was given up. Where one goes that can be undone, all
/// before it go, since they could not be reached any more.
std::vector<UndoStep> StepsBeyond(const std::vector<UndoStep>& steps, const UndoLimits& limits,
                                  std::uint64_t needed);

inline bool IsTooOld(const UndoStep& step, const UndoLimits& limits) {
  return step.daysOfUse > limits.days;
}

}  // namespace Zenvora::Lumidex::Host
