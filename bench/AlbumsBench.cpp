// Album generation from 10 thousand to a million photos: the library's way beside the plain one.

#include "PeakMemory.h"
#include "PlainAlbums.h"

#include <LumidexUtil/HolidayAlbums.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <cstdint>
#include <random>
#include <utility>

namespace Zenvora::Bench {

using Lumidex::Album;
using Lumidex::DataModel;

namespace {

/// Photos spread over fifteen years, about a third of which fall on weekends or into events. Always the same
/// ones.
std::vector<DataModel> MakePhotos(std::int64_t count) {
  std::mt19937_64 random(1);
  const QDate first(2005, 1, 1);
  const auto days = static_cast<std::uint64_t>(first.daysTo(QDate(2020, 1, 1)));
  std::vector<DataModel> photos;
  photos.reserve(static_cast<std::size_t>(count));
  for (std::int64_t i = 0; i < count; ++i) {
    DataModel photo(QString(), QString::number(i), Lumidex::ItemType::Photo);
    const QDate day = first.addDays(static_cast<qint64>(random() % days));
    photo.SetDateTime(QDateTime(day, QTime(0, 0).addSecs(static_cast<int>(random() % 86400))));
    photos.push_back(photo);
  }
  return photos;
}

bool Agree(const std::vector<Album>& left, const std::vector<Album>& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const Album& a, const Album& b) {
    return a.GetModel().GetName() == b.GetModel().GetName() &&
           a.GetModel().GetDateTime() == b.GetModel().GetDateTime() && a.GetPhotoIds() == b.GetPhotoIds();
  });
}

void Describe(benchmark::State& state, const std::vector<Album>& albums) {
  std::size_t members = 0;
  for (const Album& album : albums) {
    members += album.GetPhotoIds().size();
  }
  state.counters["albums"] = static_cast<double>(albums.size());
  state.counters["grouped_%"] = 100.0 * static_cast<double>(members) / static_cast<double>(state.range(0));
  state.counters["peak_MiB"] = PeakMemoryMiB();
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetComplexityN(state.range(0));
}

void Albums(benchmark::State& state) {
  const std::vector<DataModel> photos = MakePhotos(state.range(0));
  std::vector<Album> albums;
  for (auto _ : state) {
    state.PauseTiming();
    std::vector<DataModel> input = photos;
    ResetPeakMemory();
    state.ResumeTiming();
    Util::GenerateHolidayAlbums(std::move(input), [&](const std::vector<Album>& result) { albums = result; });
    state.PauseTiming();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    state.ResumeTiming();
  }
  Describe(state, albums);
  if (!Agree(albums, MakePlainAlbums(photos))) {
    state.SkipWithError("the library and the plain way disagree");
  }
}

void AlbumsThePlainWay(benchmark::State& state) {
  const std::vector<DataModel> photos = MakePhotos(state.range(0));
  std::vector<Album> albums;
  ResetPeakMemory();
  for (auto _ : state) {
    albums = MakePlainAlbums(photos);
  }
  Describe(state, albums);
}

BENCHMARK(Albums)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(AlbumsThePlainWay)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace Zenvora::Bench
