#pragma once

#include <host/shots/PhotoDate.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/picture/FrameInfo.h>
#include <zenvora/quillet/picture/GPSData.h>
#include <zenvora/strandel/IImageMetadata.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Where a photo says that it was taken.
struct StatedPosition {
  Quillet::Geo::GPSData place = Quillet::Geo::GPSData::Invalid();
  /// As written, "N"; empty: none.
  QString latitudeReference;
  QString longitudeReference;
  /// Why the place may be wrong or is none, each in English, to be put behind the photo's name and a colon.
  std::vector<std::string> doubts;
};

/// What a person may want to know of a photo.
struct PhotoInfo {
  ioPath photo;
  std::uint64_t size = 0;  ///< Bytes.
  QString camera;          ///< Without blanks at its ends; empty: not known.
  std::optional<StatedPosition> position;
  PhotoDate date;
  Conf::FrameInfo frame;
};

/// None when the metadata say nothing of a place. Pure.
std::optional<StatedPosition> PositionOf(const boost::intrusive_ptr<Proc::IImageMetadata>& metadata);

/// Reads one photo. Throws `HostError` when it cannot be read. Blocks on the disk; safe from
/// any thread.
PhotoInfo ReadPhotoInfo(const ioPath& photo);

}  // namespace Zenvora::Lumidex::Host
