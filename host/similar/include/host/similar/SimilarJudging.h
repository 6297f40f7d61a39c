#pragma once

#include <host/similar/SimilarKeeper.h>
#include <host/similar/SimilarUpdate.h>
#include <host/similar/VerdictStore.h>

#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct JudgingResult {
  std::size_t judged = 0;  ///< Photos whose verdicts were not stored before.
  bool cancelled = false;
};

/// Reads the origins of all members of groups that are not stored, measures how sharp those are between which
/// that decides, then judges each member against the one to keep, from the pixels of both, where that is not
/// stored. One to keep that turns out to be enlarged from another is remembered as such, and its group judged
/// anew. Works in several threads; what was found out
/// is stored every few photos, so that a run which was stopped goes on where it was. What changed on the disk
/// since it was taken in is skipped. `store` must be of the catalogue of `similar`. Throws `HostError`
/// when the catalogue fails.
JudgingResult JudgeSimilar(SimilarPhotos& similar, VerdictStore& store, const AnalysisOptions& options,
                           const SimilarProgressHandler& progress);

/// The groups of at least `least` photos, each with the one to keep and the verdicts that are stored.
std::vector<SuggestedGroup> SuggestGroups(const SimilarPhotos& similar, const VerdictStore& store,
                                          std::size_t least);

/// The verdict on two photos of the catalogue, stored or made now; what is made now is stored. `Unknown` when
/// a file is not as the catalogue knows it. Blocks while both pictures are decoded.
PictureVerdict JudgePair(VerdictStore& store, const PhotoRecord& photo, const PhotoRecord& kept);

}  // namespace Zenvora::Lumidex::Host
