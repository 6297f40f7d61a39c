#pragma once

#include <host/PhotoAnalysis.h>
#include <host/SimilarPhotos.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct SimilarUpdateResult {
  std::size_t analysed = 0;   ///< Photos that were looked at.
  std::size_t clustered = 0;  ///< Photos that were put into clusters.
  bool cancelled = false;
  /// Photos whose files could not be read this time, and why. They are tried again the next time.
  std::vector<std::pair<ioPath, std::string>> unreadable;
};

/// Which step is how far. Steps follow each other.
struct SimilarProgress {
  enum class Step {
    Analysing,
    Grouping,
    Measuring,  ///< Detail, of photos of a group that are the largest together.
  };
  Step step = Step::Analysing;
  std::size_t done = 0;
  std::size_t total = 0;
};
using SimilarProgressHandler = std::function<void(const SimilarProgress&)>;

AnalyserName NameOf(const PhotoAnalyser& analyser);

/// Analyses the photos that are pending in `similar`, in several threads, and puts all that can be compared
/// into clusters; where several photos of a group are the largest, their detail is measured. What was found
/// out is stored every few hundred photos, so that a run which was stopped goes on where it was. `similar`
/// must be of the analyser's name. Throws `HostError` when the catalogue fails.
SimilarUpdateResult UpdateSimilar(SimilarPhotos& similar, const PhotoAnalyser& analyser,
                                  const AnalysisOptions& options, const SimilarProgressHandler& progress);

}  // namespace Zenvora::Lumidex::Host
