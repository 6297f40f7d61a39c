// Descriptors of camera files beside the bare libraries that do the unavoidable part, on the same warm files,
// one thread.

#include <host/catalogue/Catalogue.h>
#include <host/pixels/PhotoAnalysis.h>
#include <host/scan/Scanner.h>
#include <host/shots/PhotoReading.h>
#include <host/similar/SimilarPhotos.h>
#include <host/similar/SimilarUpdate.h>
#include <samples/Sample.h>

#include <benchmark/benchmark.h>
#include <exiv2/exiv2.hpp>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace Zenvora::Bench {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Lumidex::Host::DescribePhoto;
using Lumidex::Host::LayoutAnalyser;
using Lumidex::Host::MakeSample;
using Lumidex::Host::PhotoDescription;
using Lumidex::Host::PhotoRecord;
using Lumidex::Host::PixelSource;
using Lumidex::Host::ReadPhoto;
using Lumidex::Host::SampleOptions;
using Lumidex::Host::ScanFinding;

constexpr int kDrawn = 50;
/// As many as fit into memory with ease; they take turns.
constexpr std::size_t kLarge = 16;
constexpr QSize kCamera{4000, 3000};
constexpr int kThumbnail = 160;

/// Files of twelve megapixels, each with and without a thumbnail in its EXIF block.
class CameraFiles {
 public:
  CameraFiles() {
    const fs::path folder(folder_.path().toStdString());
    SampleOptions options;
    options.photos = kDrawn;
    MakeSample(ioPath(folder / "drawn"), options, {});
    for (const auto& entry : fs::recursive_directory_iterator(folder / "drawn")) {
      if (entry.is_regular_file() && without_.size() < kLarge) {
        Enlarge(entry.path(), folder / std::to_string(without_.size()));
      }
    }
  }

  const std::vector<ioPath>& With() const { return with_; }
  const std::vector<ioPath>& Without() const { return without_; }

 private:
  void Enlarge(const fs::path& drawn, const fs::path& stem) {
    const QImage picture(QString::fromStdString(drawn.string()));
    const QImage large = picture.scaled(picture.width() < picture.height() ? kCamera.transposed() : kCamera,
                                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const std::string without = stem.string() + " without.jpg";
    large.save(QString::fromStdString(without), "JPEG", 92);
    auto exif = Exiv2::ImageFactory::open(drawn.string());
    exif->readMetadata();
    const std::string with = stem.string() + " with.jpg";
    fs::copy_file(without, with);
    for (const std::string& name : {without, with}) {
      const auto image = Exiv2::ImageFactory::open(name);
      image->readMetadata();
      Exiv2::ExifData data = exif->exifData();
      Exiv2::ExifThumb(data).erase();
      if (name == with) {
        AddThumbnail(large, data);
      }
      image->setExifData(data);
      image->writeMetadata();
    }
    without_.emplace_back(without);
    with_.emplace_back(with);
  }

  static void AddThumbnail(const QImage& large, Exiv2::ExifData& data) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    large.scaled(kThumbnail, kThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "JPEG", 85);
    Exiv2::ExifThumb(data).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(bytes.constData()),
                                            bytes.size());
  }

  QTemporaryDir folder_;
  std::vector<ioPath> with_;
  std::vector<ioPath> without_;
};

const CameraFiles& TheFiles() {
  static const CameraFiles files;
  return files;
}

void BareMetadataAndThumbnail(const ioPath& file) {
  const auto image = Exiv2::ImageFactory::open(file.utf8string());
  image->readMetadata();
  const Exiv2::DataBuf bytes = Exiv2::ExifThumbC(image->exifData()).copy();
  QImage thumbnail;
  thumbnail.loadFromData(bytes.pData_, static_cast<int>(bytes.size_), "JPEG");
  benchmark::DoNotOptimize(thumbnail.constBits());
}

void BareScaledDecoding(const ioPath& file) {
  QImageReader reader(QString::fromStdString(file.utf8string()), "jpeg");
  reader.setScaledSize(reader.size().scaled(kThumbnail, kThumbnail, Qt::KeepAspectRatio));
  const QImage image = reader.read();
  benchmark::DoNotOptimize(image.constBits());
}

void Describe(const ioPath& file, PixelSource expected, benchmark::State& state) {
  const PhotoDescription description = DescribePhoto(file, LayoutAnalyser());
  if (description.source != expected) {
    state.SkipWithError("the pixels came from elsewhere");
  }
}

/// Both take turns file by file and in going first, so that whatever else the machine does hits both alike.
void Compare(benchmark::State& state, const std::vector<ioPath>& files, int rounds,
             const std::function<void(const ioPath&)>& bare, const std::function<void(const ioPath&)>& ours,
             double goal) {
  for (const ioPath& file : files) {
    bare(file);
    ours(file);
  }
  Clock::duration bareTime{};
  Clock::duration ourTime{};
  std::size_t count = 0;
  for (auto _ : state) {
    for (std::size_t i = 0; i < files.size() * static_cast<std::size_t>(rounds); ++i, ++count) {
      const ioPath& file = files[i % files.size()];
      const bool bareFirst = (i / files.size() + i) % 2 == 0;
      const auto start = Clock::now();
      bareFirst ? bare(file) : ours(file);
      const auto middle = Clock::now();
      bareFirst ? ours(file) : bare(file);
      const auto end = Clock::now();
      bareTime += bareFirst ? middle - start : end - middle;
      ourTime += bareFirst ? end - middle : middle - start;
    }
  }
  const auto perSecond = [count](Clock::duration time) {
    return static_cast<double>(count) / std::chrono::duration<double>(time).count();
  };
  const double share = 100 * perSecond(ourTime) / perSecond(bareTime);
  state.counters["bare_files/s"] = perSecond(bareTime);
  state.counters["our_files/s"] = perSecond(ourTime);
  state.counters["ours_in_%_of_bare"] = share;
  state.counters["goal_met"] = share >= goal ? 1 : 0;
}

void MetadataAndDescriptorFromThumbnails(benchmark::State& state) {
  const auto ours = [&state](const ioPath& file) {
    PhotoRecord record;
    ScanFinding finding;
    benchmark::DoNotOptimize(ReadPhoto(file, record, finding));
    Describe(file, PixelSource::Preview, state);
  };
  Compare(state, TheFiles().With(), 60, BareMetadataAndThumbnail, ours, 40);
}

void DescriptorWithoutThumbnails(benchmark::State& state) {
  const auto ours = [&state](const ioPath& file) { Describe(file, PixelSource::Picture, state); };
  Compare(state, TheFiles().Without(), 2, BareScaledDecoding, ours, 80);
}

/// The pure rule alone.
void DescriptorOfPixels(benchmark::State& state) {
  const QImage picture = QImage(QString::fromStdString(TheFiles().With().front().utf8string()))
                             .scaled(kThumbnail, kThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  for (auto _ : state) {
    benchmark::DoNotOptimize(LayoutAnalyser().Describe(picture));
  }
}

/// As many files as a long journey brings home. Behind their pictures is a hole, to be of a camera's size,
/// and at their ends noise: what a camera compressed looks like it.
class Journey {
 public:
  static constexpr int kFiles = 10'000;
  static constexpr std::uintmax_t kSize = 3'000'000;

  Journey() {
    const fs::path folder(Folder());
    fs::create_directory(folder);
    SampleOptions options;
    options.photos = kDrawn;
    MakeSample(ioPath(fs::path(folder_.path().toStdString()) / "drawn"), options, {});
    std::vector<fs::path> drawn;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path().toStdString() + "/drawn")) {
      if (entry.is_regular_file()) {
        drawn.push_back(entry.path());
      }
    }
    for (int i = 0; i < kFiles; ++i) {
      const fs::path copy = folder / (std::to_string(i) + ".jpg");
      if (static_cast<std::size_t>(i) < drawn.size()) {
        MakeCameraLike(drawn[static_cast<std::size_t>(i)], copy);
      } else {
        fs::copy_file(folder / (std::to_string(static_cast<std::size_t>(i) % drawn.size()) + ".jpg"), copy);
      }
      files_.emplace_back(copy);
    }
    std::mt19937 random(1);
    std::string noise(std::size_t{64} * 1024, '\0');
    for (const ioPath& file : files_) {
      std::generate(noise.begin(), noise.end(), [&random] { return static_cast<char>(random()); });
      fs::resize_file(file.native(), kSize - noise.size());
      std::ofstream(file.native(), std::ios::binary | std::ios::app) << noise;
    }
  }

  const std::vector<ioPath>& Files() const { return files_; }
  std::string Folder() const { return folder_.path().toStdString() + "/journey"; }

 private:
  /// Of a megapixel, which is what it takes to be looked at for a thumbnail.
  static void MakeCameraLike(const fs::path& drawn, const fs::path& file) {
    const QImage picture(QString::fromStdString(drawn.string()));
    picture.scaled(QSize(1200, 1200), Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .save(QString::fromStdString(file.string()), "JPEG", 60);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.scaled(kThumbnail, kThumbnail, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "JPEG", 85);
    const auto exif = Exiv2::ImageFactory::open(drawn.string());
    exif->readMetadata();
    Exiv2::ExifData data = exif->exifData();
    Exiv2::ExifThumb(data).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(bytes.constData()),
                                            bytes.size());
    const auto image = Exiv2::ImageFactory::open(file.string());
    image->readMetadata();
    image->setExifData(data);
    image->writeMetadata();
  }

  QTemporaryDir folder_;
  std::vector<ioPath> files_;
};

const Journey& TheJourney() {
  static const Journey journey;
  return journey;
}

/// Everything up to the descriptors in the catalogue.
void ScanAndDescribe(const ioPath& catalogueFile, int threads, benchmark::State& state) {
  namespace Host = Lumidex::Host;
  Host::Catalogue catalogue(catalogueFile, Host::Catalogue::Mode::ReadWrite);
  Host::ScanOptions scan;
  scan.threads = threads;
  const auto scanned = Host::Scan(catalogue, {ioPath(TheJourney().Folder())}, scan, {});
  const LayoutAnalyser analyser;
  Host::SimilarPhotos similar(catalogueFile, Host::NameOf(analyser));
  Host::AnalysisOptions options;
  options.threads = threads;
  const std::vector<PhotoRecord> photos = similar.Pending();
  std::vector<ioPath> files;
  for (const PhotoRecord& photo : photos) {
    files.push_back(photo.path);
  }
  std::vector<Host::AnalysedPhoto> batch;
  std::size_t fromThumbnails = 0;
  Host::DescribePhotos(files, analyser, options, [&](std::size_t index, PhotoDescription&& found) {
    fromThumbnails += found.source == PixelSource::Preview ? 1 : 0;
    Host::AnalysedPhoto photo;
    photo.id = photos[index].id;
    photo.stamp = {photos[index].size, photos[index].modifiedNs, false};
    photo.features.vector = std::move(found.descriptor);
    photo.features.width = found.size.width();
    photo.features.height = found.size.height();
    batch.push_back(std::move(photo));
    if (batch.size() == 256 || index + 1 == files.size()) {
      similar.Store(batch);
      batch.clear();
    }
  });
  if (scanned.added != Journey::kFiles || fromThumbnails != Journey::kFiles) {
    state.SkipWithError("not every file was added and described from its thumbnail");
  }
}

/// The libraries in one thread, ours in `range(0)`.
void ScanAndDescriptors(benchmark::State& state) {
  const auto bare = [] {
    for (const ioPath& file : TheJourney().Files()) {
      BareMetadataAndThumbnail(file);
    }
  };
  bare();
  const QTemporaryDir catalogues;
  int run = 0;
  const auto perSecond = [](Clock::time_point from, Clock::time_point to) {
    return Journey::kFiles / std::chrono::duration<double>(to - from).count();
  };
  for (auto _ : state) {
    const auto begin = Clock::now();
    bare();
    const auto middle = Clock::now();
    ScanAndDescribe(ioPath(catalogues.filePath(QString::number(run++)).toStdString()),
                    static_cast<int>(state.range(0)), state);
    const auto end = Clock::now();
    state.SetIterationTime(std::chrono::duration<double>(end - middle).count());
    state.counters["bare_files/s"] = perSecond(begin, middle);
    state.counters["our_files/s"] = perSecond(middle, end);
    state.counters["ours_in_%_of_bare"] = 100 * perSecond(middle, end) / perSecond(begin, middle);
  }
}

BENCHMARK(ScanAndDescriptors)
    ->ArgName("threads")
    ->Arg(1)
    ->Arg(2)
    ->Iterations(2)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(MetadataAndDescriptorFromThumbnails)->Unit(benchmark::kMillisecond);
BENCHMARK(DescriptorWithoutThumbnails)->Unit(benchmark::kMillisecond);
BENCHMARK(DescriptorOfPixels)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace Zenvora::Bench
