// Descriptors of camera files beside the bare libraries that do the unavoidable part, on the same warm files,
// one thread.

#include <host/PhotoAnalysis.h>
#include <host/Sample.h>
#include <host/Scanner.h>

#include <benchmark/benchmark.h>
#include <exiv2/exiv2.hpp>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <chrono>
#include <filesystem>
#include <functional>
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

BENCHMARK(MetadataAndDescriptorFromThumbnails)->Unit(benchmark::kMillisecond);
BENCHMARK(DescriptorWithoutThumbnails)->Unit(benchmark::kMillisecond);
BENCHMARK(DescriptorOfPixels)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace Zenvora::Bench
