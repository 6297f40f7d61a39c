// Putting photos into clusters of similar ones: the index beside scans of all centres. Scans that would take
// hours are timed for some photos, evenly spread over the run; everything of them is in the row's name and
// counters.

#include "FeatureVectors.h"

#include <zenvora/quillet/match/MatchTemplate.h>
#include <zenvora/quillet/match/TemplateIndex.h>

#include <benchmark/benchmark.h>

#ifdef LUMIDEX_BENCH_OPENBLAS
#include <cblas.h>
#endif
#ifdef LUMIDEX_BENCH_FAISS
#include <faiss/IndexFlat.h>
#include <faiss/impl/AuxIndexStructures.h>
#include <omp.h>
#endif

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <optional>

namespace Zenvora::Bench {

namespace {

using Quillet::TemplateIndex;

constexpr float kThreshold = 0.91F;
constexpr std::size_t kSize = FeatureVectors::kSize;
constexpr std::size_t kBatch = 10'000;
/// Photos that a scan is timed for.
constexpr std::size_t kTimed = 60;

double Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

struct Cluster {
  Template centre;
  int count;
};

/// The mean goes on running.
void Join(Cluster& cluster, const Template& photo) {
  const auto before = static_cast<float>(cluster.count);
  const auto after = static_cast<float>(++cluster.count);
  for (std::size_t i = 0; i < kSize; ++i) {
    const float sum = cluster.centre[i] * before;
    cluster.centre[i] = sum + photo[i];
  }
  for (float& value : cluster.centre) {
    value /= after;
  }
}

/// The clusters and their index.
class Library {
 public:
  const std::vector<std::unique_ptr<Cluster>>& Clusters() const { return clusters_; }
  TemplateIndex& Index() { return index_; }

  /// The cluster that `photo` joined, or none when it has one of its own now.
  std::optional<std::size_t> Add(const Template& photo) {
    const auto found = index_.FindFirst(photo);
    if (!found) {
      clusters_.push_back(std::make_unique<Cluster>(Cluster{photo, 1}));
      index_.Append(clusters_.back()->centre);
      return found;
    }
    Join(*clusters_[*found], photo);
    index_.Updated(*found);
    return found;
  }

  /// Those from `begin` to before `end`, announced.
  void AddAll(const std::vector<Template>& photos, std::size_t begin, std::size_t end) {
    std::vector<const Template*> coming;
    coming.reserve(end - begin);
    for (std::size_t i = begin; i < end; ++i) {
      coming.push_back(&photos[i]);
    }
    const auto announced = index_.Expect(std::move(coming));
    for (std::size_t i = begin; i < end; ++i) {
      Add(photos[i]);
    }
  }

 private:
  TemplateIndex index_{kThreshold};
  std::vector<std::unique_ptr<Cluster>> clusters_;
};

/// What a loop without second thoughts does: three sums of floats, one after the other.
float ScalarMatch(const Template& a, const Template& b) {
  float ab = 0;
  float aa = 0;
  float bb = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    ab += a[i] * b[i];
    aa += a[i] * a[i];
    bb += b[i] * b[i];
  }
  return ab / std::sqrt(aa * bb);
}

const Template& CentreOf(const std::unique_ptr<Cluster>& cluster) {
  return cluster->centre;
}

void ReportMemory(benchmark::State& state, Library& library) {
  const auto clusters = static_cast<double>(library.Clusters().size());
  state.counters["clusters"] = clusters;
  state.counters["rows/centres"] =
      static_cast<double>(library.Index().MemoryBytes()) / (clusters * kSize * sizeof(float));
}

/// All photos, in batches. The photos are made outside of the time.
void SimilarIndex(benchmark::State& state) {
  for (auto _ : state) {
    FeatureVectors source(1);
    Library library;
    double time = 0;
    for (std::int64_t done = 0; done < state.range(0); done += kBatch) {
      const auto photos = source.Next(kBatch);
      const double begin = Seconds();
      library.AddAll(photos, 0, photos.size());
      time += Seconds() - begin;
    }
    state.SetIterationTime(time);
    ReportMemory(state, library);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(SimilarIndex)
    ->Arg(100'000)
    ->Arg(200'000)
    ->Arg(1'000'000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// Looks for the first match among the clusters. `prepare` is called before, outside of the time.
struct Competitor {
  std::function<void(const std::vector<std::unique_ptr<Cluster>>&)> prepare;
  std::function<std::optional<std::size_t>(const std::vector<std::unique_ptr<Cluster>>&, const Template&)>
      find;
};

/// Times `competitor` for `timed` of the photos, just before each joins the clusters, which the index makes.
/// The answers must be the same.
void TimeSome(benchmark::State& state, const Competitor& competitor, std::size_t timed) {
  for (auto _ : state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    FeatureVectors source(1);
    Library library;
    double time = 0;
    double differing = 0;
    for (std::size_t done = 0; done < count; done += kBatch) {
      const auto photos = source.Next(kBatch);
      std::size_t added = 0;
      for (std::size_t i = 0; i < kBatch; ++i) {
        const std::size_t every = count / timed;
        if ((done + i) % every != every / 2) {
          continue;
        }
        library.AddAll(photos, added, i);
        added = i + 1;
        if (competitor.prepare) {
          competitor.prepare(library.Clusters());
        }
        const double begin = Seconds();
        const auto found = competitor.find(library.Clusters(), photos[i]);
        time += Seconds() - begin;
        differing += found == library.Add(photos[i]) ? 0 : 1;
      }
      library.AddAll(photos, added, kBatch);
    }
    state.SetIterationTime(time);
    state.counters["timed_photos"] = static_cast<double>(timed);
    state.counters["s_for_all_if_so"] = time / static_cast<double>(timed) * static_cast<double>(count);
    state.counters["differing"] = differing;
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(timed));
}

void SimilarScalarScanOfSome(benchmark::State& state) {
  TimeSome(state,
           {nullptr,
            [](const auto& clusters, const Template& photo) {
              return Quillet::FindFirstByScan(clusters, photo, kThreshold, CentreOf, ScalarMatch);
            }},
           kTimed);
}
BENCHMARK(SimilarScalarScanOfSome)
    ->Arg(100'000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void SimilarPlainScanOfSome(benchmark::State& state) {
  TimeSome(state,
           {nullptr,
            [](const auto& clusters, const Template& photo) {
              return Quillet::FindFirstByScan(clusters, photo, kThreshold, CentreOf);
            }},
           1000);
}
BENCHMARK(SimilarPlainScanOfSome)
    ->Arg(100'000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// All photos by the index and by the scan of all centres: every answer and every bit of every centre must be
/// the same. Takes half an hour, so it is there only where LUMIDEX_BENCH_LONG is set.
void SimilarIndexBesideWholePlainScan(benchmark::State& state) {
  for (auto _ : state) {
    FeatureVectors source(1);
    Library library;
    std::vector<std::unique_ptr<Cluster>> scanned;
    double indexTime = 0;
    double scanTime = 0;
    double differing = 0;
    for (std::int64_t done = 0; done < state.range(0); done += kBatch) {
      const auto photos = source.Next(kBatch);
      std::vector<std::optional<std::size_t>> answers;
      answers.reserve(photos.size());
      const double begin = Seconds();
      std::vector<const Template*> coming;
      coming.reserve(photos.size());
      for (const Template& photo : photos) {
        coming.push_back(&photo);
      }
      {
        const auto announced = library.Index().Expect(std::move(coming));
        for (const Template& photo : photos) {
          answers.push_back(library.Add(photo));
        }
      }
      const double middle = Seconds();
      for (std::size_t i = 0; i < photos.size(); ++i) {
        const auto found = Quillet::FindFirstByScan(scanned, photos[i], kThreshold, CentreOf);
        differing += found == answers[i] ? 0 : 1;
        if (found) {
          Join(*scanned[*found], photos[i]);
        } else {
          scanned.push_back(std::make_unique<Cluster>(Cluster{photos[i], 1}));
        }
      }
      indexTime += middle - begin;
      scanTime += Seconds() - middle;
    }
    double differingCentres = 0;
    for (std::size_t i = 0; i < scanned.size(); ++i) {
      const Cluster& cluster = *library.Clusters()[i];
      differingCentres +=
          cluster.count == scanned[i]->count &&
                  std::memcmp(cluster.centre.data(), scanned[i]->centre.data(), kSize * sizeof(float)) == 0
              ? 0
              : 1;
    }
    state.SetIterationTime(indexTime);
    state.counters["scan_s"] = scanTime;
    state.counters["differing"] = differing;
    state.counters["differing_centres"] = differingCentres;
    state.counters["clusters"] = static_cast<double>(scanned.size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

[[maybe_unused]] const auto* const kWholePlainScan =
    std::getenv("LUMIDEX_BENCH_LONG") == nullptr
        ? nullptr
        : benchmark::RegisterBenchmark("SimilarIndexBesideWholePlainScan", SimilarIndexBesideWholePlainScan)
              -> Arg(100'000) -> Iterations(1) -> UseManualTime() -> Unit(benchmark::kMillisecond);

Template UnitOf(const Template& vector) {
  double squares = 0;
  for (const float value : vector) {
    squares += static_cast<double>(value) * static_cast<double>(value);
  }
  Template unit(vector);
  for (float& value : unit) {
    value = static_cast<float>(static_cast<double>(value) / std::sqrt(squares));
  }
  return unit;
}

/// The centres as rows of one matrix, each of length 1.
[[maybe_unused]] std::vector<float> UnitRows(const std::vector<std::unique_ptr<Cluster>>& clusters) {
  std::vector<float> rows;
  rows.reserve(clusters.size() * kSize);
  for (const auto& cluster : clusters) {
    const Template unit = UnitOf(cluster->centre);
    rows.insert(rows.end(), unit.begin(), unit.end());
  }
  return rows;
}

/// Below it no score of theirs can be a match.
[[maybe_unused]] constexpr float kSurelyBelow = kThreshold - 1e-4F;

#ifdef LUMIDEX_BENCH_OPENBLAS
/// One product with the matrix of all centres; what comes near the threshold is compared exactly.
void SimilarSgemvOfSome(benchmark::State& state) {
  openblas_set_num_threads(1);
  std::vector<float> rows;
  std::vector<float> scores;
  const auto prepare = [&](const auto& clusters) {
    rows = UnitRows(clusters);
    scores.resize(clusters.size());
  };
  const auto find = [&](const auto& clusters, const Template& photo) -> std::optional<std::size_t> {
    const Template unit = UnitOf(photo);
    const auto count = static_cast<int>(clusters.size());
    const int size = static_cast<int>(kSize);
    cblas_sgemv(CblasRowMajor, CblasNoTrans, count, size, 1, rows.data(), size, unit.data(), 1, 0,
                scores.data(), 1);
    for (std::size_t i = 0; i < scores.size(); ++i) {
      if (scores[i] > kSurelyBelow && Quillet::MatchTemplate(photo, clusters[i]->centre) > kThreshold) {
        return i;
      }
    }
    return std::nullopt;
  };
  TimeSome(state, {prepare, find}, kTimed);
}
BENCHMARK(SimilarSgemvOfSome)->Arg(100'000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
#endif

#ifdef LUMIDEX_BENCH_FAISS
/// One search at a time for all centres near enough; those are compared exactly, first come first.
void SimilarFaissOfSome(benchmark::State& state) {
  omp_set_num_threads(1);
  std::unique_ptr<faiss::IndexFlatIP> index;
  const auto prepare = [&](const auto& clusters) {
    index = std::make_unique<faiss::IndexFlatIP>(static_cast<faiss::Index::idx_t>(kSize));
    index->add(static_cast<faiss::Index::idx_t>(clusters.size()), UnitRows(clusters).data());
  };
  const auto find = [&](const auto& clusters, const Template& photo) -> std::optional<std::size_t> {
    const Template unit = UnitOf(photo);
    faiss::RangeSearchResult result(1);
    index->range_search(1, unit.data(), kSurelyBelow, &result);
    std::vector<std::size_t> near(result.labels, result.labels + result.lims[1]);
    std::sort(near.begin(), near.end());
    for (const std::size_t i : near) {
      if (Quillet::MatchTemplate(photo, clusters[i]->centre) > kThreshold) {
        return i;
      }
    }
    return std::nullopt;
  };
  TimeSome(state, {prepare, find}, kTimed);
}
BENCHMARK(SimilarFaissOfSome)->Arg(100'000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The best match only, which is another question, but the search that it is made for.
void SimilarFaissBestOfSome(benchmark::State& state) {
  omp_set_num_threads(1);
  std::unique_ptr<faiss::IndexFlatIP> index;
  const auto prepare = [&](const auto& clusters) {
    index = std::make_unique<faiss::IndexFlatIP>(static_cast<faiss::Index::idx_t>(kSize));
    index->add(static_cast<faiss::Index::idx_t>(clusters.size()), UnitRows(clusters).data());
  };
  const auto find = [&](const auto&, const Template& photo) -> std::optional<std::size_t> {
    const Template unit = UnitOf(photo);
    float score = 0;
    faiss::Index::idx_t best = -1;
    index->search(1, unit.data(), 1, &score, &best);
    return score > kThreshold ? std::optional<std::size_t>(static_cast<std::size_t>(best)) : std::nullopt;
  };
  TimeSome(state, {prepare, find}, kTimed);
}
BENCHMARK(SimilarFaissBestOfSome)
    ->Arg(100'000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
#endif

/// A library of 28,000 clusters.
Library& Grown() {
  static Library library;
  static FeatureVectors source(2);
  while (library.Clusters().size() < 28'000) {
    const auto photos = source.Next(1'000);
    library.AddAll(photos, 0, photos.size());
  }
  return library;
}

/// Nothing is announced: photos come one at a time.
void SimilarOneAtATimeIndex(benchmark::State& state) {
  Library& library = Grown();
  const auto photos = FeatureVectors(3).Next(2'000);
  library.Index().FindFirst(photos[0]);
  std::size_t next = 0;
  for (auto _ : state) {
    library.Add(photos[next++]);
  }
  state.SetItemsProcessed(state.iterations());
  ReportMemory(state, library);
}
BENCHMARK(SimilarOneAtATimeIndex)->Iterations(2'000)->Unit(benchmark::kMicrosecond);

void SimilarOneAtATimeScalarScan(benchmark::State& state) {
  const Library& library = Grown();
  const auto photos = FeatureVectors(3).Next(60);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        Quillet::FindFirstByScan(library.Clusters(), photos[next++], kThreshold, CentreOf, ScalarMatch));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SimilarOneAtATimeScalarScan)->Iterations(60)->Unit(benchmark::kMicrosecond);

/// Vectors that are all nearly similar, and questions of their kind. `range(1)`: whether they are announced.
void SimilarHostileIndex(benchmark::State& state) {
  FeatureVectors source(4);
  const auto centres = source.NextParallel(static_cast<std::size_t>(state.range(0)));
  const auto photos = source.NextParallel(480);
  TemplateIndex index(kThreshold);
  for (const Template& centre : centres) {
    index.Append(centre);
  }
  index.FindFirst(photos[0]);
  for (auto _ : state) {
    std::vector<const Template*> coming;
    coming.reserve(photos.size());
    for (const Template& photo : photos) {
      coming.push_back(&photo);
    }
    std::optional<TemplateIndex::Announcement> announced;
    if (state.range(1) != 0) {
      announced.emplace(index.Expect(std::move(coming)));
    }
    for (const Template& photo : photos) {
      benchmark::DoNotOptimize(index.FindFirst(photo));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(photos.size()));
}
BENCHMARK(SimilarHostileIndex)
    ->Args({20'000, 0})
    ->Args({20'000, 1})
    ->Args({60'000, 0})
    ->Args({60'000, 1})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

void SimilarHostilePlainScan(benchmark::State& state) {
  FeatureVectors source(4);
  const auto centres = source.NextParallel(static_cast<std::size_t>(state.range(0)));
  const auto photos = source.NextParallel(480);
  for (auto _ : state) {
    for (const Template& photo : photos) {
      benchmark::DoNotOptimize(Quillet::FindFirstByScan(
          centres, photo, kThreshold, [](const Template& centre) -> const Template& { return centre; }));
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(photos.size()));
}
BENCHMARK(SimilarHostilePlainScan)->Arg(20'000)->Arg(60'000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace Zenvora::Bench
