#include <host/base/HostError.h>
#include <host/shots/PhotoDate.h>
#include <host/shots/PhotoReading.h>
#include <host/shots/ShotDates.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>

#include <glog/logging.h>

#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

// Fewer photos are read faster than the records of a large catalogue.
constexpr std::size_t kWorthAsking = 200;

bool IsBetter(const ShotDate& one, const ShotDate& other) {
  if (!one.taken.isValid() || !other.taken.isValid()) {
    return one.taken.isValid() && !other.taken.isValid();
  }
  return IsBetterSource(one.source, other.source);
}

}  // namespace

ShotDates::ShotDates(const ioPath& catalogue, std::size_t shots) {
  if (shots < kWorthAsking || !catalogue.exists()) {
    return;
  }
  try {
    for (PhotoRecord& photo : Catalogue(catalogue, Catalogue::Mode::ReadOnly).Photos()) {
      const ioPath path = photo.path;
      known_.emplace(path, std::move(photo));
    }
  } catch (const HostError& error) {
    VLOG(1) << "dates are read from the files alone: " << error.what();
  }
}

ShotDate ShotDates::Of(const ShotSet& shot) const {
  ShotDate best;
  for (const ShotFile& file : shot.files) {
    if (!IsPhotoName(file.path)) {
      continue;
    }
    const ShotDate date = OfPhoto(file.path);
    if (IsBetter(date, best) || (best.fault.empty() && !best.taken.isValid())) {
      best = date;
    }
    if (best.source == DateSource::Original) {
      break;
    }
  }
  return best;
}

ShotDate ShotDates::OfPhoto(const ioPath& photo) const {
  const auto known = known_.find(photo);
  if (known != known_.end()) {
    const FileState state = QueryFile(photo);
    if (state.size == known->second.size && state.modifiedNs == known->second.modifiedNs) {
      return {known->second.taken, known->second.takenSource, {}};
    }
  }
  PhotoRecord record;
  ScanFinding finding;
  return ReadPhoto(photo, record, finding) ? ShotDate{record.taken, record.takenSource, {}}
                                           : ShotDate{{}, DateSource::None, finding.cause};
}

}  // namespace Zenvora::Lumidex::Host
