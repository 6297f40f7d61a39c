#include "SimilarDetail.h"

#include <host/base/TaskThreads.h>
#include <host/similar/SimilarJudging.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Little is lost with a kill, and the catalogue is not written to all the time.
constexpr std::size_t kBatch = 64;

bool IsAsKnown(const PhotoRecord& photo) {
  const FileState state = QueryFile(photo.path);
  return state.kind == FileState::Kind::File && state.size == photo.size &&
         state.modifiedNs == photo.modifiedNs;
}

bool IsCancelled(const AnalysisOptions& options) {
  return options.cancel != nullptr && *options.cancel;
}

// --- Origins

/// What the file says; none when it is not the one that the catalogue knows.
std::optional<PhotoOrigin> ReadKnownOrigin(const PhotoRecord& photo) {
  try {
    if (IsAsKnown(photo)) {
      PhotoOrigin origin = ReadPhotoOrigin(photo.path);
      if (IsAsKnown(photo)) {
        return origin;
      }
    }
  } catch (const std::exception&) {
    // For want of memory: it is tried again the next time.
  }
  return std::nullopt;
}

/// Returns whether all were read.
bool ReadOrigins(const std::vector<SimilarGroup>& groups, VerdictStore& store, const AnalysisOptions& options,
                 const SimilarProgressHandler& progress) {
  std::vector<const PhotoRecord*> photos;
  for (const SimilarGroup& group : groups) {
    for (const SimilarMember& member : group.members) {
      if (!store.Origin(member.photo)) {
        photos.push_back(&member.photo);
      }
    }
  }
  constexpr std::size_t kAheadPerThread = 64;
  std::vector<std::pair<PhotoRecord, PhotoOrigin>> read;
  const std::size_t done = WorkInOrder(
      photos.size(), options.threads, kAheadPerThread,
      [&photos](std::size_t item) { return ReadKnownOrigin(*photos[item]); },
      [&options] { return IsCancelled(options); },
      [&](std::size_t item, const std::optional<PhotoOrigin>& origin) {
        if (origin) {
          read.emplace_back(*photos[item], *origin);
        }
        if (read.size() >= kBatch) {
          store.StoreOrigins(std::exchange(read, {}));
        }
        if (progress) {
          progress({SimilarProgress::Step::Reading, item + 1, photos.size()});
        }
      });
  if (!read.empty()) {
    store.StoreOrigins(read);
  }
  return done == photos.size();
}

// --- Verdicts

/// Some members of a group, so that the one to keep is not decoded for each of them, and the threads share
/// large groups.
struct Bunch {
  const SimilarMember* kept = nullptr;
  /// It is to be kept for its size, which enlarging gives, too.
  bool isLargest = false;
  std::vector<const SimilarMember*> photos;
};

std::vector<Bunch> ToJudge(const std::vector<SuggestedGroup>& groups, const VerdictStore& store) {
  constexpr std::size_t kMostPhotos = 8;
  std::vector<Bunch> bunches;
  for (const SuggestedGroup& group : groups) {
    const SimilarMember& kept = group.group.members[group.keeper.index];
    const std::vector<KeeperReason>& reasons = group.keeper.reasons;
    const Bunch empty{
        &kept, std::find(reasons.begin(), reasons.end(), KeeperReason::Largest) != reasons.end(), {}};
    Bunch bunch = empty;
    for (const SimilarMember& member : group.group.members) {
      if (&member != &kept && !store.Verdict(member.photo, kept.photo)) {
        bunch.photos.push_back(&member);
      }
      if (bunch.photos.size() == kMostPhotos) {
        bunches.push_back(std::exchange(bunch, empty));
      }
    }
    if (!bunch.photos.empty()) {
      bunches.push_back(std::move(bunch));
    }
  }
  return bunches;
}

struct JudgedBunch {
  /// One for each photo; none where a file is not the one that the catalogue knows, and after a cancel.
  std::vector<std::optional<PictureVerdict>> verdicts;
  bool keptIsEnlarged = false;
};

JudgedBunch JudgeBunch(const Bunch& bunch, const AnalysisOptions& options) {
  JudgedBunch judged;
  try {
    const PhotoRecord& keptPhoto = bunch.kept->photo;
    JudgedAgainst kept(keptPhoto.path);
    for (const SimilarMember* const member : bunch.photos) {
      const PhotoRecord& photo = member->photo;
      if (IsCancelled(options) || !IsAsKnown(keptPhoto) || !IsAsKnown(photo)) {
        judged.verdicts.emplace_back();
        continue;
      }
      judged.verdicts.emplace_back(kept.Judge(photo.path));
      const Verdict verdict = judged.verdicts.back()->verdict;
      if (bunch.isLargest && !judged.keptIsEnlarged && MayBeEnlarged(*bunch.kept, *member) &&
          (verdict == Verdict::Same || verdict == Verdict::Alike)) {
        judged.keptIsEnlarged = kept.IsKeptEnlarged(photo.path);
      }
      if (!IsAsKnown(photo)) {
        judged.verdicts.back().reset();
      }
    }
    if (!IsAsKnown(keptPhoto)) {
      // It may have been decoded after it had changed.
      judged = {};
    }
  } catch (const std::exception&) {
    // For want of memory: those that are left are tried again the next time.
  }
  judged.verdicts.resize(bunch.photos.size());
  return judged;
}

struct JudgingRound {
  JudgingResult result;
  /// Photos to be kept turned out to be enlarged, so that others will be suggested.
  bool hasEnlarged = false;
};

JudgingRound Judge(const std::vector<SuggestedGroup>& groups, VerdictStore& store,
                   const AnalysisOptions& options, const SimilarProgressHandler& progress) {
  const std::vector<Bunch> bunches = ToJudge(groups, store);
  std::size_t total = 0;
  for (const Bunch& bunch : bunches) {
    total += bunch.photos.size();
  }
  constexpr std::size_t kAheadPerThread = 4;
  JudgingRound round;
  std::vector<JudgedPhoto> judged;
  std::size_t done = 0;
  const auto take = [&](std::size_t item, JudgedBunch&& found) {
    const Bunch& bunch = bunches[item];
    if (found.keptIsEnlarged) {
      // Before the verdicts: once those are stored nobody looks again.
      PhotoOrigin origin = bunch.kept->origin.value_or(PhotoOrigin());
      origin.enlarged = true;
      store.StoreOrigins({{bunch.kept->photo, origin}});
      round.hasEnlarged = true;
    }
    for (std::size_t i = 0; i < bunch.photos.size(); ++i) {
      if (std::optional<PictureVerdict>& verdict = found.verdicts[i]) {
        judged.push_back({bunch.photos[i]->photo, bunch.kept->photo, std::move(*verdict)});
        ++round.result.judged;
      }
    }
    done += bunch.photos.size();
    if (judged.size() >= kBatch) {
      store.StoreVerdicts(std::exchange(judged, {}));
    }
    if (progress) {
      progress({SimilarProgress::Step::Comparing, done, total});
    }
  };
  round.result.cancelled = WorkInOrder(
                               bunches.size(), options.threads, kAheadPerThread,
                               [&](std::size_t item) { return JudgeBunch(bunches[item], options); },
                               [&options] { return IsCancelled(options); }, take) < bunches.size();
  if (!judged.empty()) {
    store.StoreVerdicts(judged);
  }
  return round;
}

}  // namespace

JudgingResult JudgeSimilar(SimilarPhotos& similar, VerdictStore& store, const AnalysisOptions& options,
                           const SimilarProgressHandler& progress) {
  JudgingResult result;
  result.cancelled = !ReadOrigins(similar.Groups(2), store, options, progress);
  for (bool isOver = result.cancelled; !isOver;) {
    result.cancelled = !MeasureDetail(similar, store, options, progress);
    if (result.cancelled) {
      break;
    }
    const JudgingRound round = Judge(SuggestGroups(similar, store, 2), store, options, progress);
    result.judged += round.result.judged;
    result.cancelled = round.result.cancelled || IsCancelled(options);
    isOver = result.cancelled || !round.hasEnlarged;
  }
  return result;
}

std::vector<SuggestedGroup> SuggestGroups(const SimilarPhotos& similar, const VerdictStore& store,
                                          std::size_t least) {
  std::vector<SuggestedGroup> suggested;
  for (SimilarGroup& group : similar.Groups(least)) {
    for (SimilarMember& member : group.members) {
      member.origin = store.Origin(member.photo);
    }
    const KeeperChoice keeper = SuggestKeeper(group.members);
    SuggestedGroup& one = suggested.emplace_back();
    one.keeper = keeper;
    one.verdicts.resize(group.members.size());
    for (std::size_t i = 0; i < group.members.size(); ++i) {
      if (i != keeper.index) {
        one.verdicts[i] = store.Verdict(group.members[i].photo, group.members[keeper.index].photo)
                              .value_or(PictureVerdict());
      }
    }
    one.group = std::move(group);
  }
  return suggested;
}

PictureVerdict JudgePair(VerdictStore& store, const PhotoRecord& photo, const PhotoRecord& kept) {
  if (const std::optional<PictureVerdict> known = store.Verdict(photo, kept)) {
    return *known;
  }
  if (!IsAsKnown(photo) || !IsAsKnown(kept)) {
    return {};
  }
  PictureVerdict verdict = JudgePicture(photo.path, kept.path);
  if (!IsAsKnown(photo) || !IsAsKnown(kept)) {
    return {};
  }
  store.StoreVerdicts({{photo, kept, verdict}});
  return verdict;
}

}  // namespace Zenvora::Lumidex::Host
