#include "SampleExif.h"

#include <zenvora/strandel/JpegHead.h>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

std::string ExifDate(const QDateTime& moment) {
  const QDate day = moment.date();
  const QTime time = moment.time();
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d:%02d:%02d %02d:%02d:%02d", day.year(), day.month(), day.day(),
                time.hour(), time.minute(), time.second());
  return text.data();
}

std::string SubSeconds(const QDateTime& moment) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%02d", moment.time().msec() / 10);
  return text.data();
}

/// Degrees, minutes and hundredths of seconds.
std::string Angle(double degrees) {
  const auto hundredths = static_cast<long long>(std::llround(std::abs(degrees) * 360000));
  return std::to_string(hundredths / 360000) + "/1 " + std::to_string(hundredths / 6000 % 60) + "/1 " +
         std::to_string(hundredths % 6000) + "/100";
}

void AddDates(Exiv2::ExifData& exif, const SampleShot& shot) {
  if (shot.dating == SampleDating::None) {
    return;
  }
  const bool zeros = shot.dating == SampleDating::Zeros;
  const std::string date = zeros ? "0000:00:00 00:00:00" : ExifDate(shot.taken);
  const bool fine = !zeros && SampleCameras()[shot.camera].subSeconds;
  if (shot.dating != SampleDating::DigitisedOnly) {
    exif["Exif.Image.DateTime"] = date;
    exif["Exif.Photo.DateTimeOriginal"] = date;
    if (fine) {
      exif["Exif.Photo.SubSecTimeOriginal"] = SubSeconds(shot.taken);
    }
  }
  exif["Exif.Photo.DateTimeDigitized"] = date;
  if (fine) {
    exif["Exif.Photo.SubSecTimeDigitized"] = SubSeconds(shot.taken);
  }
}

void AddPosition(Exiv2::ExifData& exif, const SampleShot& shot) {
  const auto set = [&exif](const char* key, Exiv2::TypeId type, const std::string& text) {
    const auto value = Exiv2::Value::create(type);
    value->read(text);
    exif.add(Exiv2::ExifKey(key), value.get());
  };
  set("Exif.GPSInfo.GPSVersionID", Exiv2::unsignedByte, "2 3 0 0");
  set("Exif.GPSInfo.GPSLatitudeRef", Exiv2::asciiString, shot.latitude < 0 ? "S" : "N");
  set("Exif.GPSInfo.GPSLatitude", Exiv2::unsignedRational, Angle(shot.latitude));
  set("Exif.GPSInfo.GPSLongitudeRef", Exiv2::asciiString, shot.longitude < 0 ? "W" : "E");
  set("Exif.GPSInfo.GPSLongitude", Exiv2::unsignedRational, Angle(shot.longitude));
  set("Exif.GPSInfo.GPSAltitudeRef", Exiv2::unsignedByte, "0");
  set("Exif.GPSInfo.GPSAltitude", Exiv2::unsignedRational, std::to_string(shot.altitude) + "/1");
}

void AddExposure(Exiv2::ExifData& exif, const SampleShot& shot) {
  const bool dark = shot.look.hour < 6.5 || shot.look.hour > 19.5;
  constexpr std::array<int, 4> kNight = {15, 30, 40, 60};
  constexpr std::array<int, 4> kDay = {125, 250, 320, 500};
  const std::size_t step = shot.look.seed % 4;
  exif["Exif.Photo.ExposureTime"] =
      Exiv2::URational(1, static_cast<std::uint32_t>(dark ? kNight[step] : kDay[step]));
  exif["Exif.Photo.FNumber"] = Exiv2::URational(dark ? 20 : 56, 10);
  exif["Exif.Photo.ISOSpeedRatings"] =
      static_cast<std::uint16_t>(dark ? 800 << (step % 3) : 100 << (step % 2));
  exif["Exif.Photo.FocalLength"] =
      Exiv2::URational(static_cast<std::uint32_t>(24 + 11 * (shot.look.seed / 7 % 3)), 1);
}

/// Of compressed pictures, by the levels of support of EXIF 2.3.
void AddWhatExifRequires(Exiv2::ExifData& exif, const QSize& size) {
  constexpr std::uint32_t kDotsPerInch = 72;
  exif["Exif.Image.XResolution"] = Exiv2::URational(kDotsPerInch, 1);
  exif["Exif.Image.YResolution"] = Exiv2::URational(kDotsPerInch, 1);
  exif["Exif.Image.ResolutionUnit"] = std::uint16_t{2};
  exif["Exif.Image.YCbCrPositioning"] = std::uint16_t{1};
  exif["Exif.Photo.ExifVersion"] = "48 50 51 48";
  exif["Exif.Photo.ComponentsConfiguration"] = "1 2 3 0";
  exif["Exif.Photo.FlashpixVersion"] = "48 49 48 48";
  exif["Exif.Photo.ColorSpace"] = std::uint16_t{1};
  exif["Exif.Photo.PixelXDimension"] = static_cast<std::uint32_t>(size.width());
  exif["Exif.Photo.PixelYDimension"] = static_cast<std::uint32_t>(size.height());
}

}  // namespace

QByteArray WithSampleExif(const QByteArray& jpeg, const SampleShot& shot) {
  Exiv2::ExifData exif;
  exif["Exif.Image.Make"] = "Lumidex Sample";
  exif["Exif.Image.Model"] = SampleCameras()[shot.camera].model;
  exif["Exif.Image.Software"] = "Lumidex";
  exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(shot.orientation);
  AddDates(exif, shot);
  AddExposure(exif, shot);
  AddWhatExifRequires(exif, Strandel::ReadJpegHead(jpeg.left(static_cast<int>(Strandel::kJpegHead))).size);
  if (shot.hasPosition) {
    AddPosition(exif, shot);
  }
  Exiv2::Blob blob;
  Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);

  // The block goes first, right behind the start-of-image marker.
  const std::size_t length = blob.size() + 8;
  QByteArray result = jpeg.left(2);
  result.append("\xFF\xE1", 2);
  result.append(static_cast<char>(length >> 8));
  result.append(static_cast<char>(length & 0xFF));
  result.append("Exif\0\0", 6);
  result.append(reinterpret_cast<const char*>(blob.data()), static_cast<int>(blob.size()));
  result.append(jpeg.constData() + 2, jpeg.size() - 2);
  return result;
}

}  // namespace Zenvora::Lumidex::Host
