#include "OrderedWork.h"

#include <host/SimilarJudging.h>

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

/// The work of the threads, with what they share.
class Threads {
 public:
  explicit Threads(const AnalysisOptions& options) : options_(options) {}

  unsigned Count() const { return static_cast<unsigned>(std::max(options_.threads, 0)); }
  bool IsCancelled() const { return options_.cancel != nullptr && *options_.cancel; }

 private:
  const AnalysisOptions& options_;
};

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
bool ReadOrigins(const std::vector<SimilarGroup>& groups, VerdictStore& store, const Threads& threads,
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
  OrderedWork<std::optional<PhotoOrigin>> work(
      photos.size(), threads.Count(), kAheadPerThread,
      [&photos](std::size_t item) { return ReadKnownOrigin(*photos[item]); });
  std::size_t done = 0;
  while (done < photos.size()) {
    std::optional<std::optional<PhotoOrigin>> origin =
        work.TakeNextUnless([&threads] { return threads.IsCancelled(); });
    if (!origin) {
      break;
    }
    if (*origin) {
      read.emplace_back(*photos[done], **origin);
    }
    ++done;
    if (read.size() >= kBatch) {
      store.StoreOrigins(std::exchange(read, {}));
    }
    if (progress) {
      progress({SimilarProgress::Step::Reading, done, photos.size()});
    }
  }
  if (!read.empty()) {
    store.StoreOrigins(read);
  }
  return done == photos.size();
}

// --- Verdicts

/// Some members of a group, so that the one to keep is not decoded for each of them, and the threads share
/// large groups.
struct Bunch {
  const PhotoRecord* kept = nullptr;
  std::vector<const PhotoRecord*> photos;
};

std::vector<Bunch> ToJudge(const std::vector<SuggestedGroup>& groups, const VerdictStore& store) {
  constexpr std::size_t kMostPhotos = 8;
  std::vector<Bunch> bunches;
  for (const SuggestedGroup& group : groups) {
    const PhotoRecord& kept = group.group.members[group.keeper.index].photo;
    Bunch bunch{&kept, {}};
    for (const SimilarMember& member : group.group.members) {
      if (&member.photo != &kept && !store.Verdict(member.photo, kept)) {
        bunch.photos.push_back(&member.photo);
      }
      if (bunch.photos.size() == kMostPhotos) {
        bunches.push_back(std::exchange(bunch, {&kept, {}}));
      }
    }
    if (!bunch.photos.empty()) {
      bunches.push_back(std::move(bunch));
    }
  }
  return bunches;
}

using Verdicts = std::vector<std::optional<PictureVerdict>>;

/// One for each photo; none where a file is not the one that the catalogue knows, and after a cancel.
Verdicts JudgeBunch(const Bunch& bunch, const Threads& threads) {
  Verdicts verdicts;
  try {
    JudgedAgainst kept(bunch.kept->path);
    for (const PhotoRecord* const photo : bunch.photos) {
      if (threads.IsCancelled() || !IsAsKnown(*bunch.kept) || !IsAsKnown(*photo)) {
        verdicts.emplace_back();
        continue;
      }
      verdicts.emplace_back(kept.Judge(photo->path));
      if (!IsAsKnown(*photo)) {
        verdicts.back().reset();
      }
    }
    if (!IsAsKnown(*bunch.kept)) {
      // It may have been decoded after it had changed.
      verdicts.clear();
    }
  } catch (const std::exception&) {
    // For want of memory: those that are left are tried again the next time.
  }
  verdicts.resize(bunch.photos.size());
  return verdicts;
}

JudgingResult Judge(const std::vector<SuggestedGroup>& groups, VerdictStore& store, const Threads& threads,
                    const SimilarProgressHandler& progress) {
  const std::vector<Bunch> bunches = ToJudge(groups, store);
  std::size_t total = 0;
  for (const Bunch& bunch : bunches) {
    total += bunch.photos.size();
  }
  constexpr std::size_t kAheadPerThread = 4;
  OrderedWork<Verdicts> work(bunches.size(), threads.Count(), kAheadPerThread,
                             [&](std::size_t item) { return JudgeBunch(bunches[item], threads); });
  JudgingResult result;
  std::vector<JudgedPhoto> judged;
  std::size_t done = 0;
  for (const Bunch& bunch : bunches) {
    std::optional<Verdicts> verdicts = work.TakeNextUnless([&threads] { return threads.IsCancelled(); });
    if (!verdicts) {
      result.cancelled = true;
      break;
    }
    for (std::size_t i = 0; i < bunch.photos.size(); ++i) {
      if ((*verdicts)[i]) {
        judged.push_back({*bunch.photos[i], *bunch.kept, std::move(*(*verdicts)[i])});
        ++result.judged;
      }
    }
    done += bunch.photos.size();
    if (judged.size() >= kBatch) {
      store.StoreVerdicts(std::exchange(judged, {}));
    }
    if (progress) {
      progress({SimilarProgress::Step::Comparing, done, total});
    }
  }
  if (!judged.empty()) {
    store.StoreVerdicts(judged);
  }
  return result;
}

}  // namespace

JudgingResult JudgeSimilar(const SimilarPhotos& similar, VerdictStore& store, const AnalysisOptions& options,
                           const SimilarProgressHandler& progress) {
  const Threads threads(options);
  if (!ReadOrigins(similar.Groups(2), store, threads, progress)) {
    JudgingResult result;
    result.cancelled = true;
    return result;
  }
  JudgingResult result = Judge(SuggestGroups(similar, store, 2), store, threads, progress);
  result.cancelled = result.cancelled || threads.IsCancelled();
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
