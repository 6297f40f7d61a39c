#pragma once

#include "Changes.h"
#include "Photos.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zenvora::Bench {

/// One picture of the measurement: a photo as it is, or changed.
struct Sample {
  std::size_t photo = 0;
  int change = kUnchanged;  ///< Index into `AllChanges()`, or one of the two below.
  std::vector<float> descriptor;
  std::vector<std::vector<std::uint8_t>> hashes;  ///< In the order of `UsualHashes()`.

  static constexpr int kUnchanged = -1;
  /// The photo itself, described from its pixels although it was described from a preview.
  static constexpr int kWithoutPreview = -2;
};

/// Describes every photo and everything derived from it, in two threads. The derived files lie in `work` for
/// a moment. `longerSide`: of the pictures that are changed.
std::vector<Sample> MakeSamples(const Photos& photos, const ioPath& work, int longerSide);

/// How alike two samples are; larger is more alike.
using Likeness = std::function<double(const Sample&, const Sample&)>;

struct Recall {
  std::string name;
  std::size_t found = 0;
  std::size_t all = 0;
};

struct Score {
  double threshold = 0;
  std::vector<Recall> rows;  ///< By change.
  Recall everyday{"all of these", 0, 0};
  Recall added{"all of these", 0, 0};
  std::size_t wrong = 0;  ///< Pairs of different photos above the threshold.
  std::size_t differentPairs = 0;
  double Precision() const;
};

/// Counts pairs of a photo and a sample: those of one photo must lie above the threshold, those of different
/// photos must not. Photos that show the same count as neither. Added borders and captions count as rows
/// only.
Score ScoreAt(const Photos& photos, const std::vector<Sample>& samples, const Likeness& likeness,
              double threshold);
/// At the lowest threshold with a precision of at least `precision`.
Score ScoreAtBest(const Photos& photos, const std::vector<Sample>& samples, const Likeness& likeness,
                  double precision);

/// The most alike pairs of different photos and the least alike of one, for people to look at.
std::vector<std::string> Extremes(const Photos& photos, const std::vector<Sample>& samples,
                                  const Likeness& likeness, std::size_t count);

}  // namespace Zenvora::Bench
