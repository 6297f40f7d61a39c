#include "Measure.h"

#include "Hashes.h"

#include <host/pixels/PhotoAnalysis.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <limits>
#include <map>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

namespace Zenvora::Bench {

namespace {

namespace fs = std::filesystem;
using Lumidex::Host::AnalysisOptions;
using Lumidex::Host::DescribePhoto;
using Lumidex::Host::LayoutAnalyser;
using Lumidex::Host::PhotoDescription;
using Lumidex::Host::PixelSource;

constexpr int kHashed = 256;
constexpr std::size_t kThreads = 2;

enum class Relation { Own, Different, NotCounted };

struct Pair {
  const Sample* photo;
  const Sample* other;
  Relation relation;
  double likeness;
};

bool IsAdded(const Sample& sample) {
  return sample.change >= 0 &&
         AllChanges()[static_cast<std::size_t>(sample.change)].kind == ChangeKind::Added;
}

Relation RelationOf(const Photos& photos, const Sample& photo, const Sample& other) {
  if (photo.photo == other.photo) {
    return other.change == Sample::kUnchanged ? Relation::NotCounted : Relation::Own;
  }
  const bool twice = other.change == Sample::kUnchanged && other.photo < photo.photo;
  const bool same =
      photos.same.count({std::min(photo.photo, other.photo), std::max(photo.photo, other.photo)}) > 0;
  return twice || same || IsAdded(other) || other.change == Sample::kWithoutPreview ? Relation::NotCounted
                                                                                    : Relation::Different;
}

std::vector<Pair> PairsOf(const Photos& photos, const std::vector<Sample>& samples,
                          const Likeness& likeness) {
  std::vector<Pair> pairs;
  for (const Sample& photo : samples) {
    if (photo.change != Sample::kUnchanged) {
      continue;
    }
    for (const Sample& other : samples) {
      const Relation relation = RelationOf(photos, photo, other);
      if (relation != Relation::NotCounted) {
        pairs.push_back({&photo, &other, relation, likeness(photo, other)});
      }
    }
  }
  return pairs;
}

std::string RowName(int change) {
  return change == Sample::kWithoutPreview ? "embedded thumbnail"
                                           : AllChanges()[static_cast<std::size_t>(change)].name;
}

void Count(Recall& recall, bool found) {
  ++recall.all;
  recall.found += found ? 1 : 0;
}

Score ScoreOf(const std::vector<Pair>& pairs, double threshold) {
  Score score;
  score.threshold = threshold;
  std::map<int, Recall> rows;
  for (const Pair& pair : pairs) {
    const bool found = pair.likeness > threshold;
    if (pair.relation == Relation::Different) {
      ++score.differentPairs;
      score.wrong += found ? 1 : 0;
    } else {
      Count(rows[pair.other->change], found);
      Count(IsAdded(*pair.other) ? score.added : score.everyday, found);
    }
  }
  for (auto& [change, row] : rows) {
    row.name = RowName(change);
    score.rows.push_back(std::move(row));
  }
  return score;
}

std::string NameOf(const Photos& photos, const Sample& sample) {
  return photos.names[sample.photo] +
         (sample.change == Sample::kUnchanged ? "" : " (" + RowName(sample.change) + ")");
}

class Maker {
 public:
  Maker(const Photos& photos, const ioPath& work, int longerSide)
      : photos_(photos), work_(work), longerSide_(longerSide) {}

  void Make(std::size_t photo) {
    AnalysisOptions options;
    const PhotoDescription usual = DescribePhoto(photos_.files[photo], analyser_, options);
    options.usePreviews = false;
    const PhotoDescription whole = DescribePhoto(photos_.files[photo], analyser_, options);
    const QImage picture = PictureOf(photos_.files[photo], longerSide_);
    Add(photo, Sample::kUnchanged, usual.descriptor, picture);
    if (usual.source == PixelSource::Preview && whole.source == PixelSource::Picture) {
      Add(photo, Sample::kWithoutPreview, whole.descriptor, picture);
    }
    const ioPath file = work_ / ioPath("changed-" + std::to_string(photo));
    for (std::size_t i = 0; i < AllChanges().size(); ++i) {
      WriteChanged(picture, AllChanges()[i], static_cast<std::uint32_t>(photo * 1000 + i), file);
      PhotoDescription changed = DescribePhoto(file, analyser_, options);
      if (!changed.cause.empty()) {
        throw std::runtime_error(photos_.names[photo] + " (" + AllChanges()[i].name + "): " + changed.cause);
      }
      Add(photo, static_cast<int>(i), std::move(changed.descriptor), PictureOf(file, kHashed));
    }
    fs::remove(file.for_system());
  }

  std::vector<Sample> samples;

 private:
  void Add(std::size_t photo, int change, std::vector<float> descriptor, const QImage& picture) {
    Sample sample;
    sample.photo = photo;
    sample.change = change;
    sample.descriptor = std::move(descriptor);
    for (const PictureHash& hash : UsualHashes()) {
      sample.hashes.push_back(hash.bits(picture));
    }
    const std::lock_guard<std::mutex> lock(mutex_);
    samples.push_back(std::move(sample));
  }

  const LayoutAnalyser analyser_;
  const Photos& photos_;
  const ioPath work_;
  const int longerSide_;
  std::mutex mutex_;
};

}  // namespace

std::vector<Sample> MakeSamples(const Photos& photos, const ioPath& work, int longerSide) {
  Maker maker(photos, work, longerSide);
  std::atomic<std::size_t> next{0};
  std::exception_ptr failure;
  std::mutex failing;
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      try {
        for (std::size_t photo = next++; photo < photos.files.size(); photo = next++) {
          maker.Make(photo);
        }
      } catch (...) {
        const std::lock_guard<std::mutex> lock(failing);
        failure = std::current_exception();
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  if (failure) {
    std::rethrow_exception(failure);
  }
  std::sort(maker.samples.begin(), maker.samples.end(), [](const Sample& a, const Sample& b) {
    return std::pair(a.photo, a.change) < std::pair(b.photo, b.change);
  });
  return std::move(maker.samples);
}

double Score::Precision() const {
  const std::size_t found = everyday.found;
  return found + wrong == 0 ? 1 : static_cast<double>(found) / static_cast<double>(found + wrong);
}

Score ScoreAt(const Photos& photos, const std::vector<Sample>& samples, const Likeness& likeness,
              double threshold) {
  return ScoreOf(PairsOf(photos, samples, likeness), threshold);
}

Score ScoreAtBest(const Photos& photos, const std::vector<Sample>& samples, const Likeness& likeness,
                  double precision) {
  std::vector<Pair> pairs = PairsOf(photos, samples, likeness);
  std::sort(pairs.begin(), pairs.end(), [](const Pair& a, const Pair& b) { return a.likeness > b.likeness; });
  double best = pairs.empty() ? 0 : pairs.front().likeness;
  std::size_t right = 0;
  std::size_t wrong = 0;
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (pairs[i].relation == Relation::Different) {
      ++wrong;
    } else if (!IsAdded(*pairs[i].other)) {
      ++right;
    }
    // A threshold lies between two likenesses, never within equals.
    const bool last = i + 1 == pairs.size() || pairs[i + 1].likeness < pairs[i].likeness;
    if (last && static_cast<double>(right) >= precision * static_cast<double>(right + wrong)) {
      best = i + 1 == pairs.size() ? -std::numeric_limits<double>::infinity() : pairs[i + 1].likeness;
    }
  }
  return ScoreOf(pairs, best);
}

std::vector<std::string> Extremes(const Photos& photos, const std::vector<Sample>& samples,
                                  const Likeness& likeness, std::size_t count) {
  std::vector<Pair> pairs = PairsOf(photos, samples, likeness);
  std::sort(pairs.begin(), pairs.end(), [](const Pair& a, const Pair& b) { return a.likeness > b.likeness; });
  std::vector<std::string> lines;
  const auto append = [&](const Pair& pair) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4f  ", pair.likeness);
    lines.push_back(text + NameOf(photos, *pair.photo) + "  -  " + NameOf(photos, *pair.other));
  };
  const auto appendOf = [&](Relation relation, auto begin, auto end) {
    std::size_t left = count;
    for (auto pair = begin; pair != end && left > 0; ++pair) {
      if (pair->relation == relation) {
        append(*pair);
        --left;
      }
    }
  };
  lines.emplace_back("most alike of different photos:");
  appendOf(Relation::Different, pairs.begin(), pairs.end());
  lines.emplace_back("least alike of one photo:");
  appendOf(Relation::Own, pairs.rbegin(), pairs.rend());
  return lines;
}

}  // namespace Zenvora::Bench
