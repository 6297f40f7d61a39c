#pragma once

#include "SampleScenes.h"

#include <QDateTime>

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

constexpr int kLeastSamplePhotos = 50;
constexpr int kMostSamplePhotos = 100'000;

struct SampleCamera {
  const char* model;
  int width;  ///< Pixels of the upright landscape picture.
  int height;
  bool subSeconds;
  bool positions;
  bool turns;          ///< Notes in EXIF how it was held.
  const char* folder;  ///< Where its pictures land; null: in folders by year and month.
};

/// The cameras that shots name by index.
const std::vector<SampleCamera>& SampleCameras();

/// What a file says of its date.
enum class SampleDating { Original, DigitisedOnly, None, Zeros };

struct SampleShot {
  /// Below the collection's folder, UTF-8, with '/'. Unique, also when case is ignored.
  std::string path;
  /// Local time of the camera, as UTC; also of the file.
  QDateTime taken;
  SampleDating dating = SampleDating::Original;
  std::size_t camera = 0;
  bool hasPosition = false;
  double latitude = 0;   ///< Degrees, north positive.
  double longitude = 0;  ///< Degrees, east positive.
  int altitude = 0;      ///< Metres.
  int orientation = 1;   ///< EXIF; the pixels are stored turned accordingly.
  int burst = 0;         ///< Shots of one burst share a number; 0: none.
  SceneLook look;
};

/// Decides everything about a collection of exactly `photos` pictures, in the order of their dates. Pure: the
/// same arguments give the same plan anywhere.
std::vector<SampleShot> PlanSample(std::uint32_t seed, int photos);

}  // namespace Zenvora::Lumidex::Host
