#include <host/similar/SimilarKeeper.h>

#include <zenvora/core/ioPath.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Of two decodings of one scene the sharpness differs by some hundredths, and cameras adapt their
/// compression to each shot of a burst.
constexpr double kNearly = 0.9;

std::int64_t PixelsOf(const SimilarMember& member) {
  return std::int64_t{member.features.width} * member.features.height;
}

bool HasCameraDate(const SimilarMember& member) {
  return member.photo.takenSource == DateSource::Original ||
         member.photo.takenSource == DateSource::Digitised;
}

/// Nothing speaks for or against a file that was not looked at.
PhotoOrigin OriginOf(const SimilarMember& member) {
  return member.origin.value_or(PhotoOrigin());
}

/// A copy of another size keeps what the camera wrote of the picture, and it is not true any more.
bool HasCameraData(const SimilarMember& member) {
  return (HasCameraDate(member) || !member.photo.camera.isEmpty()) && OriginOf(member).sizeAsTold;
}

bool IsCameraFile(const SimilarMember& member) {
  const PhotoOrigin origin = OriginOf(member);
  return origin.raw || (origin.cameraTags && origin.sizeAsTold && !origin.edited);
}

/// How much speaks for a general program as the writer of the file.
int Traces(const SimilarMember& member) {
  const PhotoOrigin origin = OriginOf(member);
  return (origin.hasJfif ? 1 : 0) + (origin.standardTables ? 1 : 0) + (origin.edited ? 1 : 0);
}

/// Those that are left, of a group.
class Candidates {
 public:
  explicit Candidates(const std::vector<SimilarMember>& members) : members_(members), left_(members.size()) {
    std::iota(left_.begin(), left_.end(), std::size_t{0});
  }

  /// Leaves behind those that are not good, unless none is.
  template <class IsGood>
  void Weigh(KeeperReason reason, const IsGood& isGood) {
    std::vector<std::size_t> good;
    std::copy_if(left_.begin(), left_.end(), std::back_inserter(good),
                 [&](std::size_t index) { return isGood(members_[index]); });
    if (!good.empty() && good.size() < left_.size()) {
      left_ = std::move(good);
      choice_.reasons.push_back(reason);
    }
  }

  /// The most that any of them has.
  template <class Measure>
  auto Most(const Measure& measure) const {
    auto most = measure(members_[left_.front()]);
    for (const std::size_t index : left_) {
      most = std::max(most, measure(members_[index]));
    }
    return most;
  }

  ioPath FirstPath() const {
    const std::size_t first =
        *std::min_element(left_.begin(), left_.end(), [this](std::size_t left, std::size_t right) {
          return members_[left].photo.path < members_[right].photo.path;
        });
    return members_[first].photo.path;
  }

  const std::vector<std::size_t>& Left() const { return left_; }

  KeeperChoice Choice() const {
    KeeperChoice choice = choice_;
    choice.index = left_.front();
    return choice;
  }

 private:
  const std::vector<SimilarMember>& members_;
  std::vector<std::size_t> left_;
  KeeperChoice choice_;
};

/// All that weighs more than sharpness.
void WeighOrigins(Candidates& candidates) {
  candidates.Weigh(KeeperReason::Whole,
                   [](const SimilarMember& member) { return OriginOf(member).degradation.empty(); });
  candidates.Weigh(KeeperReason::CameraFile, IsCameraFile);
  candidates.Weigh(KeeperReason::CameraData, HasCameraData);
  candidates.Weigh(KeeperReason::MakerNote,
                   [](const SimilarMember& member) { return OriginOf(member).makerNote; });
  candidates.Weigh(KeeperReason::NotEnlarged,
                   [](const SimilarMember& member) { return !OriginOf(member).enlarged; });
  candidates.Weigh(KeeperReason::Largest, [most = candidates.Most(PixelsOf)](const SimilarMember& member) {
    return PixelsOf(member) == most;
  });
  const auto untouched = [](const SimilarMember& member) { return -Traces(member); };
  candidates.Weigh(KeeperReason::LeastTouched,
                   [&, most = candidates.Most(untouched)](const SimilarMember& member) {
                     return untouched(member) == most;
                   });
  const auto fineness = [](const SimilarMember& member) { return -OriginOf(member).quantisation; };
  candidates.Weigh(KeeperReason::Finer, [&, most = candidates.Most(fineness)](const SimilarMember& member) {
    return fineness(member) >= most / kNearly;
  });
}

}  // namespace

const char* KeeperReasonName(KeeperReason reason) {
  switch (reason) {
    case KeeperReason::Whole:
      return "whole";
    case KeeperReason::CameraFile:
      return "the camera's own file";
    case KeeperReason::CameraData:
      return "has camera data";
    case KeeperReason::MakerNote:
      return "has the maker's note";
    case KeeperReason::NotEnlarged:
      return "not enlarged";
    case KeeperReason::Largest:
      return "largest";
    case KeeperReason::LeastTouched:
      return "not written by another program";
    case KeeperReason::Finer:
      return "compressed less";
    case KeeperReason::Sharpest:
      return "sharpest";
    case KeeperReason::MoreBytes:
      return "more bytes a pixel";
    case KeeperReason::CameraName:
      return "named by the camera";
    case KeeperReason::Earliest:
      return "earliest";
    case KeeperReason::FirstName:
      return "first by name";
  }
  return "";
}

KeeperChoice SuggestKeeper(const std::vector<SimilarMember>& members) {
  Candidates candidates(members);
  WeighOrigins(candidates);
  const auto sharpness = [](const SimilarMember& member) { return member.features.sharpness; };
  candidates.Weigh(KeeperReason::Sharpest, [most = candidates.Most(sharpness)](const SimilarMember& member) {
    return member.features.sharpness >= most * kNearly;
  });
  const auto fullness = [](const SimilarMember& member) { return OriginOf(member).bytesPerPixel; };
  // Of files that keep every pixel the larger one only has more noise.
  const auto isLossless = [](const SimilarMember& member) {
    return OriginOf(member).quantisation > 0 ? 0 : 1;
  };
  if (candidates.Most(isLossless) == 0) {
    candidates.Weigh(KeeperReason::MoreBytes,
                     [&, most = candidates.Most(fullness)](const SimilarMember& member) {
                       return fullness(member) >= most * kNearly;
                     });
  }
  candidates.Weigh(KeeperReason::CameraName,
                   [](const SimilarMember& member) { return OriginOf(member).cameraName; });
  // The times of files say when they were copied. Undated photos come last.
  const auto earliness = [](const SimilarMember& member) {
    return HasCameraDate(member) ? -member.photo.taken.toMSecsSinceEpoch()
                                 : std::numeric_limits<qint64>::min();
  };
  candidates.Weigh(KeeperReason::Earliest,
                   [&, most = candidates.Most(earliness)](const SimilarMember& member) {
                     return earliness(member) == most;
                   });
  candidates.Weigh(KeeperReason::FirstName, [first = candidates.FirstPath()](const SimilarMember& member) {
    return member.photo.path == first;
  });
  return candidates.Choice();
}

bool MayBeEnlarged(const SimilarMember& larger, const SimilarMember& smaller) {
  return larger.features.width > smaller.features.width && larger.features.height > smaller.features.height &&
         !IsCameraFile(larger) && Traces(larger) >= Traces(smaller) &&
         (OriginOf(smaller).cameraName || !OriginOf(larger).cameraName);
}

std::vector<std::size_t> SharpnessContenders(const std::vector<SimilarMember>& members) {
  Candidates candidates(members);
  WeighOrigins(candidates);
  return candidates.Left().size() > 1 ? candidates.Left() : std::vector<std::size_t>();
}

}  // namespace Zenvora::Lumidex::Host
