#include "Photos.h"

#include "PixelSources.h"

#include <host/shots/PhotoReading.h>
#include <host/shots/ShotNames.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace Zenvora::Bench {

namespace {

namespace fs = std::filesystem;
using Lumidex::Host::PhotoRecord;

constexpr int kSmallest = 48;
constexpr int kLongest = 6;
constexpr int kCompared = 256;

struct Candidate {
  ioPath file;
  QImage picture;
  PhotoRecord record;
};

bool ShowTheSamePixels(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) {
    return false;
  }
  for (int y = 0; y < a.height(); ++y) {
    if (std::memcmp(a.constScanLine(y), b.constScanLine(y), static_cast<std::size_t>(a.width()) * 4) != 0) {
      return false;
    }
  }
  return true;
}

bool IsDatedByCamera(const PhotoRecord& photo) {
  return photo.takenSource == Lumidex::Host::DateSource::Original ||
         photo.takenSource == Lumidex::Host::DateSource::Digitised;
}

bool AreOfOneMoment(const PhotoRecord& a, const PhotoRecord& b, int seconds) {
  return IsDatedByCamera(a) && IsDatedByCamera(b) && a.camera == b.camera &&
         std::abs(a.taken.secsTo(b.taken)) <= seconds;
}

std::vector<ioPath> FilesBelow(const ioPath& folder) {
  std::vector<ioPath> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder.for_system())) {
    if (entry.is_regular_file() && Lumidex::Host::IsPhotoName(ioPath(entry.path()))) {
      files.emplace_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end(),
            [](const ioPath& a, const ioPath& b) { return a.utf8string() < b.utf8string(); });
  return files;
}

/// Names to numbers of groups.
std::multimap<std::string, int> ReadTable(const ioPath& file) {
  std::multimap<std::string, int> groups;
  if (file.empty()) {
    return groups;
  }
  std::ifstream in(file.for_system());
  if (!in) {
    throw std::runtime_error("cannot read " + file.utf8string());
  }
  int number = 0;
  for (std::string line; std::getline(in, line); ++number) {
    std::istringstream names(line.substr(0, line.find('#')));
    for (std::string name; std::getline(names, name, '\t');) {
      if (!name.empty()) {
        groups.emplace(name, number);
      }
    }
  }
  return groups;
}

bool AreInOneGroup(const std::multimap<std::string, int>& groups, const std::string& a,
                   const std::string& b) {
  const auto ofA = groups.equal_range(a);
  const auto ofB = groups.equal_range(b);
  return std::any_of(ofA.first, ofA.second, [&](const auto& one) {
    return std::any_of(ofB.first, ofB.second, [&](const auto& other) { return one.second == other.second; });
  });
}

/// Empty: it is measured.
std::string WhyPassedOver(const ioPath& file, const Lumidex::Host::FoundPixels& found) {
  const auto described = Lumidex::Host::DescribePhoto(file, Lumidex::Host::LayoutAnalyser());
  if (found.image.isNull() || described.descriptor.empty()) {
    return described.cause;
  }
  const int shorter = std::min(found.image.width(), found.image.height());
  const int longer = std::max(found.image.width(), found.image.height());
  if (shorter * kLongest < longer) {
    return "too long";
  }
  const int pixels = found.size.isEmpty() ? shorter : std::min(found.size.width(), found.size.height());
  return std::min(pixels, shorter) < kSmallest ? "too small" : "";
}

}  // namespace

QImage PictureOf(const ioPath& file, int longerSide) {
  return Lumidex::Host::FindPixels(file, longerSide, Lumidex::Host::kPreviewsNever)
      .image.convertToFormat(QImage::Format_RGB32);
}

Photos ChoosePhotos(const PhotoChoice& choice) {
  const auto groups = ReadTable(choice.same);
  Photos photos;
  std::vector<Candidate> chosen;
  int number = 0;
  for (const ioPath& file : FilesBelow(choice.folder)) {
    const auto found = Lumidex::Host::FindPixels(file, kCompared, Lumidex::Host::kPreviewsNever);
    const std::string name = file.filename().utf8string();
    const std::string cause = WhyPassedOver(file, found);
    if (!cause.empty()) {
      photos.passedOver.push_back(name + ": " + cause);
      continue;
    }
    if (choice.half >= 0 && number++ % 2 != choice.half) {
      continue;
    }
    Candidate candidate{file, found.image.convertToFormat(QImage::Format_RGB32), {}};
    Lumidex::Host::ScanFinding finding;
    Lumidex::Host::ReadPhoto(file, candidate.record, finding);
    for (std::size_t i = 0; i < chosen.size(); ++i) {
      if (ShowTheSamePixels(chosen[i].picture, candidate.picture) ||
          AreOfOneMoment(chosen[i].record, candidate.record, choice.moment) ||
          AreInOneGroup(groups, photos.names[i], name)) {
        photos.same.emplace(i, chosen.size());
      }
    }
    photos.files.push_back(file);
    photos.names.push_back(name);
    chosen.push_back(std::move(candidate));
  }
  return photos;
}

}  // namespace Zenvora::Bench
