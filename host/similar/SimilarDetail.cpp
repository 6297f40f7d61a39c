#include "SimilarDetail.h"

#include <host/pixels/DetailMeter.h>
#include <host/similar/SimilarKeeper.h>

#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// Little is lost with a kill, and the catalogue is not written to all the time.
constexpr std::size_t kBatch = 256;

std::vector<PhotoRecord> ToMeasure(const SimilarPhotos& similar, const VerdictStore& store) {
  std::vector<PhotoRecord> photos;
  for (SimilarGroup& group : similar.Groups(2)) {
    for (SimilarMember& member : group.members) {
      member.origin = store.Origin(member.photo);
    }
    for (const std::size_t index : SharpnessContenders(group.members)) {
      if (group.members[index].features.sharpness == 0) {
        photos.push_back(group.members[index].photo);
      }
    }
  }
  return photos;
}

}  // namespace

bool MeasureDetail(SimilarPhotos& similar, const VerdictStore& store, AnalysisOptions options,
                   const SimilarProgressHandler& progress) {
  const std::vector<PhotoRecord> photos = ToMeasure(similar, store);
  std::vector<ioPath> files;
  files.reserve(photos.size());
  for (const PhotoRecord& photo : photos) {
    files.push_back(photo.path);
  }
  // A preview does not show whether the picture is sharp.
  options.usePreviews = false;
  std::vector<std::pair<QString, double>> measured;
  const std::size_t done =
      DescribePhotos(files, DetailMeter(), options, [&](std::size_t index, PhotoDescription&& found) {
        if (!found.descriptor.empty()) {
          measured.emplace_back(photos[index].id, static_cast<double>(found.descriptor.front()));
        }
        if (measured.size() >= kBatch) {
          similar.StoreSharpness(std::exchange(measured, {}));
        }
        if (progress) {
          progress({SimilarProgress::Step::Measuring, index + 1, photos.size()});
        }
      });
  if (!measured.empty()) {
    similar.StoreSharpness(measured);
  }
  return done == photos.size();
}

}  // namespace Zenvora::Lumidex::Host
