#include <host/similar/SimilarUpdate.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/quillet/match/MatchTemplate.h>

#include <glog/logging.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Little is lost with a kill, and the catalogue is not written to all the time.
constexpr std::size_t kBatch = 256;

/// Why the file cannot be read at all; empty: it can.
std::string WhyUnreadable(const ioPath& file) {
  const FileState state = QueryFile(file);
  if (state.kind == FileState::Kind::Missing) {
    return "it no longer exists";
  }
  if (state.kind != FileState::Kind::File) {
    return state.error ? ErrorText(state.error) : "it is no longer a file";
  }
  return std::ifstream(file.for_system(), std::ios::binary).is_open() ? "" : "it cannot be opened";
}

/// Gathers what was found out and stores it piece by piece.
class Gathering {
 public:
  Gathering(SimilarPhotos& similar, const std::vector<PhotoRecord>& photos, SimilarUpdateResult& result)
      : similar_(similar), photos_(photos), result_(result) {}

  void Take(std::size_t index, PhotoDescription&& found) {
    ++result_.analysed;
    const PhotoRecord& photo = photos_[index];
    if (found.descriptor.empty()) {
      // Only what is known of the content is worth remembering.
      const std::string cause = found.mayPass ? found.cause : WhyUnreadable(photo.path);
      if (!cause.empty()) {
        result_.unreadable.emplace_back(photo.path, cause);
        return;
      }
    }
    AnalysedPhoto analysed;
    analysed.id = photo.id;
    analysed.stamp = {photo.size, photo.modifiedNs, false};
    analysed.features.vector = std::move(found.descriptor);
    analysed.features.problem = found.cause;
    analysed.features.width = found.size.width();
    analysed.features.height = found.size.height();
    analysed.features.checked = found.source == PixelSource::Picture;
    if (analysed.features.vector.empty()) {
      result_.notComparable.push_back(photo.path);
    }
    batch_.push_back(std::move(analysed));
    if (batch_.size() >= kBatch) {
      Flush();
    }
  }

  void Flush() {
    if (!batch_.empty()) {
      similar_.Store(batch_);
      batch_.clear();
    }
  }

 private:
  SimilarPhotos& similar_;
  const std::vector<PhotoRecord>& photos_;
  SimilarUpdateResult& result_;
  std::vector<AnalysedPhoto> batch_;
};

void Analyse(SimilarPhotos& similar, const PhotoAnalyser& analyser, const AnalysisOptions& options,
             const SimilarProgressHandler& progress, SimilarUpdateResult& result) {
  const std::vector<PhotoRecord> photos = similar.Pending();
  std::vector<ioPath> files;
  files.reserve(photos.size());
  for (const PhotoRecord& photo : photos) {
    files.push_back(photo.path);
  }
  Gathering gathering(similar, photos, result);
  DescribePhotos(files, analyser, options, [&](std::size_t index, PhotoDescription&& found) {
    gathering.Take(index, std::move(found));
    if (progress) {
      progress({SimilarProgress::Step::Analysing, result.analysed, photos.size()});
    }
  });
  gathering.Flush();
  result.cancelled = result.analysed < photos.size();
}

bool IsAsKnown(const PhotoRecord& photo) {
  const FileState state = QueryFile(photo.path);
  return state.kind == FileState::Kind::File && state.size == photo.size &&
         state.modifiedNs == photo.modifiedNs;
}

/// Takes over what the picture itself shows, where a preview showed something else. False: the preview will
/// do.
bool Correct(PhotoFeatures& features, PhotoDescription&& found) {
  // Thumbnails that thirty cameras wrote score 0.99 and more.
  constexpr float kShowsThePicture = 0.95F;
  features.checked = true;
  if (found.source != PixelSource::Picture || found.descriptor.empty()) {
    // There are no other pixels to be had.
    return false;
  }
  const float score = Quillet::MatchTemplate(found.descriptor, features.vector);
  VLOG(1) << "A preview scores " << score << " against its picture";
  if (score >= kShowsThePicture) {
    return false;
  }
  features.vector = std::move(found.descriptor);
  features.width = found.size.width();
  features.height = found.size.height();
  return true;
}

/// Compares previews of members of groups with the pictures. Returns how many were of something else.
std::size_t CheckPreviews(SimilarPhotos& similar, const PhotoAnalyser& analyser, AnalysisOptions options,
                          const SimilarProgressHandler& progress, SimilarUpdateResult& result) {
  std::vector<SimilarMember> members;
  std::vector<ioPath> files;
  for (SimilarGroup& group : similar.Groups(2)) {
    for (SimilarMember& member : group.members) {
      if (!member.features.checked) {
        files.push_back(member.photo.path);
        members.push_back(std::move(member));
      }
    }
  }
  options.usePreviews = false;
  std::size_t corrected = 0;
  std::vector<AnalysedPhoto> checked;
  const std::size_t done =
      DescribePhotos(files, analyser, options, [&](std::size_t index, PhotoDescription&& found) {
        const PhotoRecord& photo = members[index].photo;
        if (!found.mayPass && IsAsKnown(photo)) {
          PhotoFeatures& features = members[index].features;
          corrected += Correct(features, std::move(found)) ? 1 : 0;
          checked.push_back({photo.id, {photo.size, photo.modifiedNs, false}, std::move(features)});
        }
        if (checked.size() >= kBatch) {
          similar.Store(std::exchange(checked, {}));
        }
        if (progress) {
          progress({SimilarProgress::Step::Checking, index + 1, members.size()});
        }
      });
  if (!checked.empty()) {
    similar.Store(checked);
  }
  result.cancelled = result.cancelled || done < members.size();
  return corrected;
}

}  // namespace

AnalyserName NameOf(const PhotoAnalyser& analyser) {
  return {QString::fromStdString(analyser.Name()), analyser.Version(),
          static_cast<std::size_t>(analyser.Size())};
}

SimilarUpdateResult UpdateSimilar(SimilarPhotos& similar, const PhotoAnalyser& analyser,
                                  const AnalysisOptions& options, const SimilarProgressHandler& progress) {
  SimilarUpdateResult result;
  Analyse(similar, analyser, options, progress, result);
  if (result.cancelled) {
    return result;
  }
  static const std::atomic<bool> never{false};
  const std::atomic<bool>& cancelled = options.cancel != nullptr ? *options.cancel : never;
  std::size_t corrected = 0;
  do {
    result.clustered += similar.AddToClusters(cancelled, [&progress](std::size_t done, std::size_t total) {
      if (progress) {
        progress({SimilarProgress::Step::Grouping, done, total});
      }
    });
    result.cancelled = cancelled;
    // In their right places photos can meet others that nobody has looked at.
    corrected = result.cancelled ? 0 : CheckPreviews(similar, analyser, options, progress, result);
  } while (corrected > 0 && !result.cancelled);
  return result;
}

}  // namespace Zenvora::Lumidex::Host
