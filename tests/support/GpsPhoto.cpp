#include <support/ExivPath.h>
#include <support/GpsPhoto.h>

#include <exiv2/exiv2.hpp>

namespace Zenvora::Test {

void AddGps(const ioPath& photo, const GpsTags& tags) {
  const auto image = Exiv2::ImageFactory::open(ExivPath(photo));
  image->readMetadata();
  const auto put = [&image](const char* key, const Exiv2::TypeId type, const std::string& text) {
    if (!text.empty()) {
      const auto value = Exiv2::Value::create(type);
      value->read(text);
      image->exifData().add(Exiv2::ExifKey(key), value.get());
    }
  };
  put("Exif.GPSInfo.GPSLatitudeRef", Exiv2::asciiString, tags.latitudeSide);
  put("Exif.GPSInfo.GPSLatitude", Exiv2::unsignedRational, tags.latitude);
  put("Exif.GPSInfo.GPSLongitudeRef", Exiv2::asciiString, tags.longitudeSide);
  put("Exif.GPSInfo.GPSLongitude", Exiv2::unsignedRational, tags.longitude);
  image->writeMetadata();
}

}  // namespace Zenvora::Test
