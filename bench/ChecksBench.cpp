// The checks before saving, all of them, for a hundred thousand photos in a thousand folders, beside the
// calls of the system that they cannot do without: a look at the volume, a nameless file in each folder, and
// each file's permissions and its opening.

#include <LumidexUtil/CheckSaveAvailable.h>

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>
#endif

namespace Zenvora::Bench {

namespace {

using Lumidex::DataModel;
using Mode = Lumidex::CheckSaveAvailableMode;

constexpr int kFolders = 1000;
constexpr int kFilesInFolder = 100;

class Collection {
 public:
  Collection() {
    const ioPath root(folder_.path());
    items_.reserve(std::size_t{kFolders} * kFilesInFolder);
    for (int i = 0; i < kFolders; ++i) {
      const ioPath folder = root / ("2024-05-" + std::to_string(i));
      std::filesystem::create_directory(folder.native());
      folders_.push_back(folder);
      for (int k = 0; k < kFilesInFolder; ++k) {
        DataModel item;
        item.SetPath(folder / ("IMG_" + std::to_string(k) + ".jpg"));
        item.SetSize(1);
        std::ofstream(item.GetPath().native()).put('x');
        items_.push_back(item);
      }
    }
  }

  const std::vector<ioPath>& Folders() const { return folders_; }
  const std::vector<DataModel>& Items() const { return items_; }

 private:
  const QTemporaryDir folder_;
  std::vector<ioPath> folders_;
  std::vector<DataModel> items_;
};

const Collection& TheCollection() {
  static const Collection collection;
  return collection;
}

#ifndef _WIN32
void BareSaveChecks(benchmark::State& state) {
  const Collection& collection = TheCollection();
  for (auto _ : state) {
    struct statvfs facts = {};
    bool fine = statvfs("/", &facts) == 0;
    for (const ioPath& folder : collection.Folders()) {
      const int handle = open(folder.native().c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
      fine = fine && handle >= 0 && close(handle) == 0;
    }
    for (const DataModel& item : collection.Items()) {
      const char* const name = item.GetPath().native().c_str();
      fine = fine && access(name, W_OK) == 0;
      const int handle = open(name, O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
      fine = fine && handle >= 0 && close(handle) == 0;
    }
    if (!fine) {
      state.SkipWithError("the folder of the benchmark cannot be written");
    }
  }
  state.SetItemsProcessed(state.iterations() * kFolders * kFilesInFolder);
}
BENCHMARK(BareSaveChecks)->Unit(benchmark::kMillisecond);
#endif

void SaveChecks(benchmark::State& state) {
  const Collection& collection = TheCollection();
  for (auto _ : state) {
    const auto verdict = Util::CheckSaveAvailable(
        collection.Items(), Mode::DiskSpace | Mode::FolderPermission | Mode::FilePermission);
    if (verdict.first != Mode::None) {
      state.SkipWithError("the folder of the benchmark cannot be written");
    }
  }
  state.SetItemsProcessed(state.iterations() * kFolders * kFilesInFolder);
}
BENCHMARK(SaveChecks)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace Zenvora::Bench
