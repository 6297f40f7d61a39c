// A verified import beside a plain copy of the same files followed by a hash of both sides.

#include <host/base/ContentHash.h>
#include <host/catalogue/Catalogue.h>
#include <host/import/Import.h>
#include <host/import/ImportPlan.h>
#include <host/import/ImportQuestions.h>
#include <host/scan/ImportSources.h>

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Zenvora::Bench {

namespace {

using namespace Lumidex::Host;
namespace fs = std::filesystem;

constexpr int kFiles = 2000;
constexpr std::size_t kFileBytes = 2'000'000;

/// Files such as a camera writes, no two alike: a head that says JPEG, and noise.
class Card {
 public:
  Card() {
    std::mt19937_64 noise(1);
    std::string content(kFileBytes, '\0');
    for (std::size_t at = 0; at + sizeof(std::uint64_t) <= content.size(); at += sizeof(std::uint64_t)) {
      const std::uint64_t word = noise();
      std::copy_n(reinterpret_cast<const char*>(&word), sizeof word, content.begin() + static_cast<long>(at));
    }
    content.replace(0, 4, "\xFF\xD8\xFF\xE0");
    for (int i = 0; i < kFiles; ++i) {
      const std::string number = std::to_string(i);
      content.replace(64, number.size(), number);
      const ioPath file = Folder() / ("IMG_" + number + ".JPG");
      std::ofstream(file.native(), std::ios::binary) << content;
    }
  }
  ioPath Folder() const { return ioPath(folder_.path()); }

 private:
  const QTemporaryDir folder_;
};

const Card& TheCard() {
  static const Card card;
  return card;
}

/// What the system remembers of the files would make later rows quicker than earlier ones.
void Settle() {
#ifndef _WIN32
  sync();
  for (const auto& entry : fs::directory_iterator(TheCard().Folder().native())) {
    const int handle = open(entry.path().c_str(), O_RDONLY | O_CLOEXEC);
    posix_fadvise(handle, 0, 0, POSIX_FADV_DONTNEED);
    close(handle);
  }
#endif
}

std::string HashOf(const fs::path& file) {
  std::error_code error;
  return HashFile(ioPath(file), ContentHash::Kind::Sha256, error).toHex().toStdString();
}

void Count(benchmark::State& state) {
  state.SetBytesProcessed(state.iterations() * kFiles * static_cast<std::int64_t>(kFileBytes));
  state.SetItemsProcessed(state.iterations() * kFiles);
}

/// `synced`: waits for the disk at the end, as whoever pulls the card had better do.
void PlainCopyAndHash(benchmark::State& state) {
  const bool synced = state.range(0) != 0;
  for (auto _ : state) {
    state.PauseTiming();
    Settle();
    {
      const QTemporaryDir target;
      const fs::path folder = target.path().toStdString();
      state.ResumeTiming();
      for (const auto& entry : fs::directory_iterator(TheCard().Folder().native())) {
        fs::copy_file(entry.path(), folder / entry.path().filename());
      }
#ifndef _WIN32
      if (synced) {
        sync();
      }
#endif
      for (const auto& entry : fs::directory_iterator(TheCard().Folder().native())) {
        if (HashOf(entry.path()) != HashOf(folder / entry.path().filename())) {
          state.SkipWithError("the copy differs");
        }
      }
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  Count(state);
}
BENCHMARK(PlainCopyAndHash)->ArgName("synced")->Arg(0)->Arg(1)->Unit(benchmark::kSecond)->UseRealTime();

/// As when everything is to be copied.
ImportPlan PlanOf(Catalogue& catalogue, const ioPath& folder) {
  ImportFacts facts;
  facts.sources = GatherSources({TheCard().Folder()});
  facts.copyAll = true;
  ImportAnswers answers;
  AskReadable(facts, answers);
  LookAtSources(facts, catalogue.Photos(), nullptr, nullptr);
  answers.folder = folder;
  for (const std::size_t source : facts.fresh) {
    answers.files.push_back({source, true});
  }
  LookAtFolder(facts, answers, catalogue.File(), nullptr);
  return PlanImport(facts, answers);
}

void VerifiedImport(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Settle();
    {
      const QTemporaryDir place;
      state.ResumeTiming();
      Catalogue catalogue(ioPath(place.path()) / "catalogue.sqlite", Catalogue::Mode::ReadWrite);
      const ImportResult result =
          RunImport(PlanOf(catalogue, ioPath(place.path()) / "copies"), catalogue, {}, nullptr);
      if (result.copied != kFiles) {
        state.SkipWithError("not all was copied");
      }
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  Count(state);
}
BENCHMARK(VerifiedImport)->Unit(benchmark::kSecond)->UseRealTime();

}  // namespace

}  // namespace Zenvora::Bench
