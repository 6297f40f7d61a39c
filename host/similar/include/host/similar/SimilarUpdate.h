#pragma once

#include <host/pixels/PhotoAnalysis.h>
#include <host/similar/SimilarPhotos.h>

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
  /// Photos of which this run found out that they cannot be compared.
  std::vector<ioPath> notComparable;
};

/// Which step is how far. Steps follow each other; after checking, grouping can come once more.
struct SimilarProgress {
  enum class Step {
    Analysing,
    Grouping,
    Checking,   ///< Whether previews show the pictures, of photos of a group.
    Reading,    ///< Where photos of a group come from.
    Measuring,  ///< Detail, of photos of a group between which it decides.
    Comparing,  ///< Each photo of a group with the one to keep; measuring and this can come once more.
  };
  Step step = Step::Analysing;
  std::size_t done = 0;
  std::size_t total = 0;
};
using SimilarProgressHandler = std::function<void(const SimilarProgress&)>;

AnalyserName NameOf(const PhotoAnalyser& analyser);

/// Analyses the photos that are pending in `similar`, in several threads, and puts all that can be compared
/// into clusters. Members of groups that were described from previews are compared with their pictures; where
/// the two disagree, the picture is described instead, and the groups are made anew. What was
/// found out is stored every few hundred photos, so that a run which was stopped goes on where it was.
/// `similar` must be of the analyser's name. Throws `HostError` when the catalogue fails.
SimilarUpdateResult UpdateSimilar(SimilarPhotos& similar, const PhotoAnalyser& analyser,
                                  const AnalysisOptions& options, const SimilarProgressHandler& progress);

}  // namespace Zenvora::Lumidex::Host
