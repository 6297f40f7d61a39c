// Renaming ten thousand files: the journal's way beside bare calls of the system.

#include <LumidexUtil/FileAccessLocker.h>
#include <host/catalogue/Catalogue.h>
#include <host/history/UndoJournal.h>

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Bench {

namespace {

using Lumidex::Host::Catalogue;
using Lumidex::Host::PhotoRecord;
using Lumidex::Host::RenameMove;
using Lumidex::Host::RenamePlan;
using Lumidex::Host::UndoJournal;

/// A folder of empty files that are renamed to and fro.
class Batch {
 public:
  explicit Batch(std::int64_t count) {
    const ioPath root(folder_.path());
    for (std::int64_t i = 0; i < count; ++i) {
      const std::string number = std::to_string(i);
      there_.push_back({root / ("IMG_" + number + ".jpg"), root / ("2024-05-17_" + number + ".jpg")});
      back_.push_back({there_.back().to, there_.back().from});
      std::ofstream(there_.back().from.native());
    }
  }

  /// Each call the other way.
  const std::vector<RenameMove>& Next() {
    forward_ = !forward_;
    return forward_ ? there_ : back_;
  }
  const std::vector<RenameMove>& Moves() const { return there_; }
  ioPath CatalogueFile() const { return ioPath(catalogueFolder_.path()) / "catalogue.sqlite"; }

 private:
  const QTemporaryDir folder_;
  const QTemporaryDir catalogueFolder_;
  std::vector<RenameMove> there_;
  std::vector<RenameMove> back_;
  bool forward_ = false;
};

void BareRename(benchmark::State& state) {
  Batch batch(state.range(0));
  for (auto _ : state) {
    for (const RenameMove& move : batch.Next()) {
      std::filesystem::rename(move.from.native(), move.to.native());
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BareRename)->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();

/// `state.range(1)`: whether the photos are in the catalogue.
void JournalledRename(benchmark::State& state) {
  Batch batch(state.range(0));
  if (state.range(1) != 0) {
    Catalogue catalogue(batch.CatalogueFile(), Catalogue::Mode::ReadWrite);
    std::vector<PhotoRecord> photos(batch.Moves().size());
    for (std::size_t i = 0; i < photos.size(); ++i) {
      photos[i].path = batch.Moves()[i].from;
    }
    catalogue.Store(photos);
  }
  const auto locker = Lumidex::FileAccessLocker::Create();
  UndoJournal journal(batch.CatalogueFile(), *locker);
  const std::atomic<bool> never{false};
  for (auto _ : state) {
    state.PauseTiming();
    RenamePlan plan;
    plan.steps = batch.Next();
    plan.renames = plan.steps;
    state.ResumeTiming();
    const auto result = journal.Renames().Run(QStringLiteral("rename"), plan, never, nullptr);
    if (result.files != plan.steps.size()) {
      state.SkipWithError("not all files were renamed");
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(JournalledRename)
    ->Args({10'000, 0})
    ->Args({10'000, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace

}  // namespace Zenvora::Bench
