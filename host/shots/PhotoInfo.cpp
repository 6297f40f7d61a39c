#include <LumidexUtil/MetadataReaders.h>
#include <host/base/HostError.h>
#include <host/shots/PhotoInfo.h>

#include <zenvora/core/FileState.h>
#include <zenvora/quillet/picture/ImageLoader.h>

#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

using Proc::IImageMetadata;
using Metadata = boost::intrusive_ptr<IImageMetadata>;

/// One of the two numbers of a position.
struct Axis {
  const char* name;
  const char* positive;  ///< The reference.
  const char* negative;
  const char* positiveName;
  const char* negativeName;
};

constexpr Axis kLatitude = {"latitude", "N", "S", "north", "south"};
constexpr Axis kLongitude = {"longitude", "E", "W", "east", "west"};

Core::Property GpsProperty(const Metadata& metadata, const std::string& tag) {
  return metadata->GetProperty(IImageMetadata::EXIF, IImageMetadata::BLOCK_GPS, tag);
}

QString GpsText(const Metadata& metadata, const char* tag) {
  return QString::fromStdString(GpsProperty(metadata, tag)[IImageMetadata::TEXT_VALUE].GetString());
}

void DoubtReference(const Axis& axis, const QString& reference, double degrees,
                    std::vector<std::string>& doubts) {
  if (reference == QLatin1String(axis.positive) || reference == QLatin1String(axis.negative)) {
    return;
  }
  const std::string name = axis.name;
  const std::string fault = reference.isEmpty()
                                ? "does not say the reference of its " + name
                                : "gives \"" + reference.toStdString() + "\" as the reference of its " + name;
  doubts.push_back("it " + fault + "; " + (std::signbit(degrees) ? axis.negativeName : axis.positiveName) +
                   " is assumed");
}

void Doubt(StatedPosition& position) {
  if (position.place == Quillet::Geo::GPSData::Invalid()) {
    position.doubts.emplace_back("its position has numbers over zero and is none");
    return;
  }
  DoubtReference(kLatitude, position.latitudeReference, position.place.GetLatitude(), position.doubts);
  DoubtReference(kLongitude, position.longitudeReference, position.place.GetLongitude(), position.doubts);
  if (!position.place.IsValid()) {
    position.doubts.emplace_back("its position is not on the globe");
  }
}

}  // namespace

std::optional<StatedPosition> PositionOf(const Metadata& metadata) {
  const bool hasLatitude = !GpsProperty(metadata, IImageMetadata::TAG_LATITUDE).IsEmpty();
  const bool hasLongitude = !GpsProperty(metadata, IImageMetadata::TAG_LONGITUDE).IsEmpty();
  if (!hasLatitude && !hasLongitude) {
    return std::nullopt;
  }
  StatedPosition position;
  position.place = Util::GetGPSData(metadata);
  position.latitudeReference = GpsText(metadata, "GPSLatitudeRef");
  position.longitudeReference = GpsText(metadata, "GPSLongitudeRef");
  if (!hasLatitude || !hasLongitude) {
    position.doubts.emplace_back(hasLatitude ? "it has a latitude and no longitude"
                                             : "it has a longitude and no latitude");
  } else {
    Doubt(position);
  }
  return position;
}

PhotoInfo ReadPhotoInfo(const ioPath& photo) {
  const FileState state = QueryFile(photo);
  const Strandel::PhotoFacts facts = Strandel::ReadPhotoFacts(photo);
  if (facts.status != Strandel::PhotoFacts::Status::Read) {
    ThrowHostError(photo.utf8string(),
                   "Cannot read the metadata of " + photo.utf8string() + ": " + facts.cause);
  }
  const Metadata& metadata = facts.metadata;
  PhotoInfo info;
  info.photo = photo;
  info.size = state.size;
  info.camera = Util::GetCameraModel(metadata).trimmed();
  info.position = PositionOf(metadata);
  info.date = DateOf(facts, state.modifiedNs);
  info.frame = Quillet::ImageLoader::GetFrameInfo(photo, metadata);
  return info;
}

}  // namespace Zenvora::Lumidex::Host
