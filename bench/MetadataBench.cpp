// The metadata stage of a scan beside bare Exiv2, on the same warm files, one core.

#include <host/Sample.h>
#include <host/Scanner.h>

#include <benchmark/benchmark.h>
#include <exiv2/exiv2.hpp>

#include <QTemporaryDir>

#include <chrono>
#include <filesystem>
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

/// The least share of bare Exiv2's speed that the stage must reach, in per cent.
constexpr double kGoal = 70;

/// Both readers take turns file by file and in going first, so that whatever else the machine does hits both
/// alike.
void MetadataStageBesideBareExiv2(benchmark::State& state) {
  const auto& files = TheFiles().All();
  Clock::duration bare{};
  Clock::duration stage{};
  for (auto _ : state) {
    for (std::size_t i = 0; i < files.size(); ++i) {
      const bool bareFirst = i % 2 == 0;
      const auto start = Clock::now();
      bareFirst ? Files::ReadBare(files[i]) : ReadAsScan(files[i]);
      const auto middle = Clock::now();
      bareFirst ? ReadAsScan(files[i]) : Files::ReadBare(files[i]);
      const auto end = Clock::now();
      bare += bareFirst ? middle - start : end - middle;
      stage += bareFirst ? end - middle : middle - start;
    }
  }
  const auto perSecond = [&](Clock::duration time) {
    return static_cast<double>(state.iterations()) * kFiles / std::chrono::duration<double>(time).count();
  };
  state.counters["bare_files/s"] = perSecond(bare);
  state.counters["stage_files/s"] = perSecond(stage);
  const double share = 100.0 * perSecond(stage) / perSecond(bare);
  state.counters["stage_in_%_of_bare"] = share;
  state.counters["goal_met"] = share >= kGoal ? 1 : 0;
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
BENCHMARK(WholeScan)->ArgName("threads")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace Zenvora::Bench
