// Reading metadata, and the metadata stage of a scan, beside bare Exiv2, on the same warm files, one core.

#include <LumidexUtil/MetadataReaders.h>
#include <host/scan/Scanner.h>
#include <host/shots/PhotoReading.h>
#include <samples/Sample.h>

#include <benchmark/benchmark.h>
#include <exiv2/exiv2.hpp>

#include <QTemporaryDir>

#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Bench {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kDrawn = 100;
constexpr int kFiles = 5000;

/// Five thousand JPEG files: drawn samples, each copied under many names.
class Files {
 public:
  Files() {
    const fs::path folder(folder_.path().toStdString());
    Lumidex::Host::SampleOptions options;
    options.photos = kDrawn;
    Lumidex::Host::MakeSample(ioPath(folder / "drawn"), options, {});
    std::vector<fs::path> drawn;
    for (const auto& entry : fs::recursive_directory_iterator(folder / "drawn")) {
      if (entry.is_regular_file()) {
        drawn.push_back(entry.path());
      }
    }
    fs::create_directory(folder / "copies");
    for (int i = 0; i < kFiles; ++i) {
      const fs::path copy = folder / "copies" / (std::to_string(i) + ".jpg");
      fs::copy_file(drawn[static_cast<std::size_t>(i) % drawn.size()], copy);
      files_.emplace_back(copy);
    }
    for (const ioPath& file : files_) {
      ReadBare(file);
    }
  }

  const std::vector<ioPath>& All() const { return files_; }
  fs::path Folder() const { return fs::path(folder_.path().toStdString()) / "copies"; }

  static void ReadBare(const ioPath& file) {
    const auto image = Exiv2::ImageFactory::open(file.utf8string());
    image->readMetadata();
    benchmark::DoNotOptimize(image->exifData().count());
  }

 private:
  QTemporaryDir folder_;
  std::vector<ioPath> files_;
};

const Files& TheFiles() {
  static const Files files;
  return files;
}

void ReadAsScan(const ioPath& file) {
  Lumidex::Host::PhotoRecord record;
  Lumidex::Host::ScanFinding finding;
  benchmark::DoNotOptimize(Lumidex::Host::ReadPhoto(file, record, finding));
}

/// Both readers take turns file by file and in going first, so that whatever else the machine does hits both
/// alike. `goal`: the least share of bare Exiv2's speed that `read` must reach, in per cent.
template <class Read>
void BesideBareExiv2(benchmark::State& state, const Read& read, double goal) {
  const auto& files = TheFiles().All();
  Clock::duration bare{};
  Clock::duration own{};
  for (auto _ : state) {
    for (std::size_t i = 0; i < files.size(); ++i) {
      const bool bareFirst = i % 2 == 0;
      const auto start = Clock::now();
      bareFirst ? Files::ReadBare(files[i]) : read(files[i]);
      const auto middle = Clock::now();
      bareFirst ? read(files[i]) : Files::ReadBare(files[i]);
      const auto end = Clock::now();
      bare += bareFirst ? middle - start : end - middle;
      own += bareFirst ? end - middle : middle - start;
    }
  }
  const auto perSecond = [&](Clock::duration time) {
    return static_cast<double>(state.iterations()) * kFiles / std::chrono::duration<double>(time).count();
  };
  state.counters["bare_files/s"] = perSecond(bare);
  state.counters["own_files/s"] = perSecond(own);
  const double share = 100.0 * perSecond(own) / perSecond(bare);
  state.counters["own_in_%_of_bare"] = share;
  state.counters["goal_met"] = share >= goal ? 1 : 0;
}

void MetadataStageBesideBareExiv2(benchmark::State& state) {
  constexpr double kGoal = 70;
  BesideBareExiv2(state, ReadAsScan, kGoal);
}

void FileMetadataBesideBareExiv2(benchmark::State& state) {
  constexpr double kGoal = 85;
  BesideBareExiv2(
      state, [](const ioPath& file) { benchmark::DoNotOptimize(Util::GetMetadata(file)); }, kGoal);
}

/// A photo with the usual fields of a camera and a position.
Exiv2::ExifData PlacedPhoto() {
  Exiv2::ExifData exif;
  exif["Exif.Image.Make"] = "Maker";
  exif["Exif.Image.Model"] = "Model X 100";
  exif["Exif.Image.Orientation"] = std::uint16_t{6};
  exif["Exif.Image.XResolution"] = Exiv2::URational(72, 1);
  exif["Exif.Image.YResolution"] = Exiv2::URational(72, 1);
  exif["Exif.Image.Software"] = "1.0";
  exif["Exif.Photo.ExposureTime"] = Exiv2::URational(1, 125);
  exif["Exif.Photo.FNumber"] = Exiv2::URational(28, 10);
  exif["Exif.Photo.ISOSpeedRatings"] = std::uint16_t{200};
  exif["Exif.Photo.DateTimeOriginal"] = "2021:05:01 10:20:30";
  exif["Exif.Photo.DateTimeDigitized"] = "2021:05:01 10:20:30";
  exif["Exif.Photo.SubSecTimeOriginal"] = "125";
  exif["Exif.Photo.FocalLength"] = Exiv2::URational(50, 1);
  exif["Exif.Photo.LensModel"] = "Lens Y 50 mm";
  for (const auto& [key, text] : {std::pair("Exif.GPSInfo.GPSLatitudeRef", "N"),
                                  std::pair("Exif.GPSInfo.GPSLatitude", "48/1 51/1 2436/100"),
                                  std::pair("Exif.GPSInfo.GPSLongitudeRef", "E"),
                                  std::pair("Exif.GPSInfo.GPSLongitude", "2/1 17/1 4020/100")}) {
    exif[key] = std::string(text);
  }
  return exif;
}

/// The camera and the position of metadata in hand, beside the look-ups of bare Exiv2 that they need, the
/// texts and numbers of these left out.
void PositionAndCameraBesideBareKeys(benchmark::State& state) {
  constexpr double kMost = 2;
  constexpr int kTimes = 1000;
  const QTemporaryDir folder;
  const fs::path file = fs::path(folder.path().toStdString()) / "a.jpg";
  fs::copy_file(TheFiles().All().front().native(), file);
  {
    const auto image = Exiv2::ImageFactory::open(file.string());
    image->setExifData(PlacedPhoto());
    image->writeMetadata();
  }
  const auto image = Exiv2::ImageFactory::open(file.string());
  image->readMetadata();
  const Exiv2::ExifData& exif = image->exifData();
  const auto metadata = Util::GetMetadata(ioPath(file));
  Clock::duration bare{};
  Clock::duration own{};
  for (auto _ : state) {
    const auto start = Clock::now();
    for (int i = 0; i < kTimes; ++i) {
      for (const char* key : {"Exif.Image.Model", "Exif.GPSInfo.GPSLatitude", "Exif.GPSInfo.GPSLatitudeRef",
                              "Exif.GPSInfo.GPSLongitude", "Exif.GPSInfo.GPSLongitudeRef"}) {
        benchmark::DoNotOptimize(exif.findKey(Exiv2::ExifKey(key)));
      }
    }
    const auto middle = Clock::now();
    for (int i = 0; i < kTimes; ++i) {
      benchmark::DoNotOptimize(Util::GetCameraModel(metadata));
      benchmark::DoNotOptimize(Util::GetGPSData(metadata));
    }
    bare += middle - start;
    own += Clock::now() - middle;
  }
  if (!Util::GetGPSData(metadata).IsValid()) {
    state.SkipWithError("the photo has no position");
  }
  const auto nsEach = [&](Clock::duration time) {
    return std::chrono::duration<double, std::nano>(time).count() /
           (static_cast<double>(state.iterations()) * kTimes);
  };
  const double times = nsEach(own) / nsEach(bare);
  state.counters["bare_ns"] = nsEach(bare);
  state.counters["own_ns"] = nsEach(own);
  state.counters["times_bare"] = times;
  state.counters["goal_met"] = times <= kMost ? 1 : 0;
}

/// A whole first scan into a new catalogue, with as many threads as given.
void WholeScan(benchmark::State& state) {
  const ioPath folder(TheFiles().Folder());
  int run = 0;
  const QTemporaryDir catalogues;
  for (auto _ : state) {
    Lumidex::Host::Catalogue catalogue(ioPath(catalogues.filePath(QString::number(run++))),
                                       Lumidex::Host::Catalogue::Mode::ReadWrite);
    Lumidex::Host::ScanOptions options;
    options.threads = static_cast<int>(state.range(0));
    const auto result = Lumidex::Host::Scan(catalogue, {folder}, options, {});
    if (result.added != kFiles) {
      state.SkipWithError("not every file was added");
    }
  }
  state.SetItemsProcessed(state.iterations() * kFiles);
}

BENCHMARK(MetadataStageBesideBareExiv2)->Unit(benchmark::kMillisecond);
BENCHMARK(FileMetadataBesideBareExiv2)->Unit(benchmark::kMillisecond);
BENCHMARK(PositionAndCameraBesideBareKeys)->Unit(benchmark::kMillisecond);
BENCHMARK(WholeScan)->ArgName("threads")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace Zenvora::Bench
