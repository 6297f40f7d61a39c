#include "TemplateCode.h"

#include "MatchScore.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zenvora::Quillet {

namespace {

/// Half the distance between floats about 1.
constexpr double kFloatUnit = 1.0 / 16777216;
/// A number is rounded by at most a half, and a little for the sum that does it.
constexpr double kRounding = 0.504;
/// A row that is marked as out of date has an endless rest; no query's rest may make nothing of it.
constexpr double kLeastRest = 1e-6;
/// The blur of rows beside their rests, roughly; only how much slips through depends on it.
constexpr double kBlurShare = 0.1;
/// What a byte can hold on both sides of 0.
constexpr std::int64_t kMostNarrow = 127;
/// With the last of them bytes reach over all numbers.
constexpr int kShifts[] = {3, 4, 5, 6, 7, 8};

std::size_t RoundUp(std::size_t value, std::size_t step) {
  return (value + step - 1) / step * step;
}

float Up(double value) {
  return std::nextafter(static_cast<float>(value), std::numeric_limits<float>::infinity());
}

std::int64_t Low(std::int32_t pair) {
  return static_cast<std::int16_t>(pair & 0xFFFF);
}

std::int64_t High(std::int32_t pair) {
  return pair >> 16;
}

std::int64_t SquaresOf(const std::int32_t* pairs, std::size_t count) {
  std::int64_t sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    sum += Low(pairs[i]) * Low(pairs[i]) + High(pairs[i]) * High(pairs[i]);
  }
  return sum;
}

/// Time of one row of a tile beside that of the rest of the work, in cycles.
double RowCost(InstructionSet set) {
  switch (set) {
    case InstructionSet::Plain:
      return 40;
    case InstructionSet::Sse2:
      return 6;
    case InstructionSet::Avx2:
      return 3;
    case InstructionSet::Avx512:
      return 2;
    case InstructionSet::Avx512Vnni:
      return 1.3;
  }
  return 6;
}

}  // namespace

TemplateCode::TemplateCode(const MatchKernel& kernel, const std::vector<Vector>& sample, std::size_t size,
                           float threshold, double marginScale)
    : kernel_(kernel) {
  const std::size_t stride = RoundUp(size, kWidthStep);
  basis_.size = size;
  normal_.resize(kTogether * size);
  // Judged by what it was not learnt from: it fits its own sample too well.
  constexpr std::size_t kJudgeEvery = 5;
  std::vector<Vector> judges;
  std::vector<float> normals;
  std::size_t learnt = 0;
  for (std::size_t i = 0; i < sample.size(); ++i) {
    if (i % kJudgeEvery == 0) {
      judges.push_back(sample[i]);
    } else {
      normals.resize((learnt + 1) * stride);
      Normalise(sample[i], normals.data() + learnt * stride);
      ++learnt;
    }
  }
  basis_ = LearnBasis(kernel, normals, learnt, size, stride, kMostDirections);
  pairCount_ = (basis_.count + 1) / 2;
  turned_.resize(kTogether * basis_.width);
  turnedPairs_.resize(kTogether * pairCount_);
  for (std::size_t i = 0; i < kTogether; ++i) {
    normalRows_.push_back(normal_.data() + i * size);
  }
  SetMargin(threshold, marginScale);
  ChooseParts(judges);
}

std::size_t TemplateCode::MemoryBytes() const noexcept {
  return sizeof(*this) + parts_.capacity() * sizeof(Part) + normalRows_.capacity() * sizeof(const float*) +
         (basis_.matrix.capacity() + normal_.capacity() + turned_.capacity()) * sizeof(float) +
         turnedPairs_.capacity() * sizeof(std::int32_t);
}

void TemplateCode::SetMargin(float threshold, double marginScale) {
  const auto size = static_cast<double>(basis_.size);
  const double root = std::sqrt(static_cast<double>(basis_.count));
  const double chain = static_cast<double>(kChain) + size / static_cast<double>(kChain) + 4;
  const double sums = chain * kFloatUnit / (1 - chain * kFloatUnit);
  const double turning =
      basis_.defect + 4 * kFloatUnit + root * sums * (1 + basis_.defect) * (1 + 4 * kFloatUnit);
  error_ = turning + root * kRounding / kScale;
  sound_ = basis_.defect < 1e-3 && error_ < 0.1;
  const double margin = 2 * error_ * (1 + error_) + error_ * error_ + 16 * kFloatUnit;
  const double limit = static_cast<double>(threshold) - margin * marginScale;
  limit_ = std::nextafter(static_cast<float>(limit), -std::numeric_limits<float>::infinity());
  marginScale_ = marginScale;
  error_ *= marginScale;
}

void TemplateCode::Normalise(const Vector& vector, float* out) const {
  const double factor = HasDirection(vector.squares) ? 1 / std::sqrt(vector.squares) : 0;
  for (std::size_t i = 0; i < basis_.size; ++i) {
    out[i] = factor == 0 ? 0 : static_cast<float>(static_cast<double>(vector.values[i]) * factor);
  }
}

void TemplateCode::Round(const float* coordinates, std::int32_t* pairs) const {
  // Truncation of what is positive: a form that compilers make vectors of.
  constexpr float kOffset = 32768;
  const auto whole = [](float coordinate) {
    return static_cast<std::int32_t>(coordinate * static_cast<float>(kScale) + (kOffset + 0.5F)) -
           static_cast<std::int32_t>(kOffset);
  };
  // Behind the last direction the matrix has columns of zeros.
  for (std::size_t i = 0; i < pairCount_; ++i) {
    const std::uint32_t low = static_cast<std::uint32_t>(whole(coordinates[2 * i])) & 0xFFFFU;
    const std::uint32_t high = static_cast<std::uint32_t>(whole(coordinates[2 * i + 1])) << 16;
    pairs[i] = static_cast<std::int32_t>(high | low);
  }
}

double TemplateCode::RestBehind(double squaresBehind, double squares) const {
  const double behind = std::sqrt(squaresBehind) + error_;
  if (basis_.count == basis_.size) {
    return behind;
  }
  const double known = std::max(0.0, std::sqrt(squares) - error_);
  return std::sqrt(behind * behind + std::max(0.0, 1 - known * known));
}

std::int64_t TemplateCode::Narrow(std::int64_t number) const {
  const std::int64_t half = std::int64_t{1} << (shift_ - 1);
  return std::clamp((number + half) >> shift_, -kMostNarrow, kMostNarrow);
}

/// The squared length of what the narrow numbers of a row miss, or of those of a query that meet them.
double TemplateCode::Blur(const std::int32_t* pairs, const Part& part, Side side) const {
  std::int64_t squares = 0;
  const std::int32_t* const begin = pairs + part.pairsBegin + part.wideCount;
  const std::size_t count = part.pairCount - part.wideCount;
  if (side == Side::Query) {
    squares = SquaresOf(begin, count);
  } else if (side == Side::Row) {
    for (std::size_t i = 0; i < count; ++i) {
      for (const std::int64_t number : {Low(begin[i]), High(begin[i])}) {
        const std::int64_t missed = number - Narrow(number) * (std::int64_t{1} << shift_);
        squares += missed * missed;
      }
    }
  }
  const double factor = (side == Side::Query ? kBlurShare : 1 / kBlurShare) * marginScale_ / kScale;
  return static_cast<double>(squares) * factor * factor;
}

void TemplateCode::Rests(const std::int32_t* pairs, Side side, float* rests) const {
  const double unit = 1 / (kScale * kScale);
  const double squares = static_cast<double>(SquaresOf(pairs, pairCount_)) * unit;
  double blurs[kMostParts];
  double blur = 0;
  for (std::size_t part = 0; part < parts_.size(); ++part) {
    blur += Blur(pairs, parts_[part], side);
    blurs[part] = blur;
  }
  std::int64_t behind = 0;
  for (std::size_t part = parts_.size(); part-- > 0;) {
    const bool last = part + 1 == parts_.size() && basis_.count == basis_.size;
    const double rest = last ? 0 : RestBehind(static_cast<double>(behind) * unit, squares);
    const double blurred = std::sqrt(rest * rest + blurs[part]);
    rests[part] = Up(std::max(blurred * (1 + 4 * kFloatUnit), kLeastRest));
    behind += SquaresOf(pairs + parts_[part].pairsBegin, parts_[part].pairCount);
  }
}

void TemplateCode::Turn(const Vector* vectors, std::size_t count, std::int32_t* pairs) {
  for (std::size_t i = 0; i < count; ++i) {
    Normalise(vectors[i], normal_.data() + i * basis_.size);
  }
  kernel_.rotate(basis_.matrix.data(), basis_.width, basis_.size, normalRows_.data(), count, turned_.data());
  for (std::size_t i = 0; i < count; ++i) {
    Round(turned_.data() + i * basis_.width, pairs + i * pairCount_);
  }
}

void TemplateCode::CodeQueries(const Vector* vectors, std::size_t count, std::int32_t* pairs, float* rests) {
  Turn(vectors, count, pairs);
  for (std::size_t i = 0; i < count; ++i) {
    Rests(pairs + i * pairCount_, Side::Query, rests + i * parts_.size());
  }
}

void TemplateCode::CodeRows(const Vector* vectors, std::size_t count, std::int16_t* halves, float* rests) {
  Turn(vectors, count, turnedPairs_.data());
  for (std::size_t i = 0; i < count; ++i) {
    const std::int32_t* const pairs = turnedPairs_.data() + i * pairCount_;
    Pack(pairs, halves + i * HalfCount());
    Rests(pairs, Side::Row, rests + i * parts_.size());
  }
}

void TemplateCode::Pack(const std::int32_t* pairs, std::int16_t* halves) const {
  const std::size_t wide = parts_[0].wideCount;
  for (std::size_t i = 0; i < wide; ++i) {
    *halves++ = static_cast<std::int16_t>(Low(pairs[i]));
    *halves++ = static_cast<std::int16_t>(High(pairs[i]));
  }
  for (std::size_t i = wide; i < pairCount_; ++i) {
    const std::int64_t low = Narrow(Low(pairs[i])) & 0xFF;
    *halves++ = static_cast<std::int16_t>(Narrow(High(pairs[i])) * 256 + low);
  }
}

/// Segments double in length, so that what is hard to tell apart costs little more than looking at all of it.
void TemplateCode::SetParts(std::size_t firstPairs) {
  constexpr std::size_t kLeastGrowth = 16;
  parts_.clear();
  std::size_t begin = 0;
  std::size_t end = std::min(firstPairs, pairCount_);
  std::size_t halves = 0;
  while (begin < pairCount_) {
    // No crumbs.
    if (end + kLeastGrowth / 2 > pairCount_) {
      end = pairCount_;
    }
    parts_.push_back({begin, end - begin, begin == 0 ? std::min(kWidePairs, end) : 0, halves});
    halves += parts_.back().HalfCount();
    begin = end;
    end += std::max(end, kLeastGrowth);
  }
}

void TemplateCode::ChooseParts(const std::vector<Vector>& sample) {
  constexpr std::size_t kMostRows = 192;
  constexpr std::size_t kCandidates[] = {8, 12, 16, 20, 24, 28, 32, 40, 48, 56, 64};
  static_assert(kCandidates[0] >= kWidePairs);
  SetParts(pairCount_);
  // Neighbours stay neighbours: whole tiles are judged.
  const std::size_t count = std::min(sample.size(), kMostRows);
  std::vector<std::int32_t> pairs(count * pairCount_);
  for (std::size_t i = 0; i < count; i += kTogether) {
    Turn(sample.data() + i, std::min(kTogether, count - i), pairs.data() + i * pairCount_);
  }
  ChooseShift(pairs);
  std::size_t best = kCandidates[0];
  double bestCost = std::numeric_limits<double>::infinity();
  for (const std::size_t candidate : kCandidates) {
    const double cost = CostOf(candidate, pairs, count);
    if (cost < bestCost) {
      best = candidate;
      bestCost = cost;
    }
  }
  SetParts(best);
}

/// The steps that miss least of the narrow numbers.
void TemplateCode::ChooseShift(const std::vector<std::int32_t>& pairs) {
  const std::size_t wide = std::min(kWidePairs, pairCount_);
  int best = shift_;
  double bestBlur = std::numeric_limits<double>::infinity();
  for (const int shift : kShifts) {
    shift_ = shift;
    double blur = 0;
    for (std::size_t i = 0; i + pairCount_ <= pairs.size(); i += pairCount_) {
      blur += Blur(pairs.data() + i, {0, pairCount_, wide, 0}, Side::Row);
    }
    if (blur < bestBlur) {
      best = shift;
      bestBlur = blur;
    }
  }
  shift_ = best;
  scale_ = static_cast<float>(static_cast<double>(1 << shift_) / (kScale * kScale));
}

double TemplateCode::CostOf(std::size_t firstPairs, const std::vector<std::int32_t>& pairs,
                            std::size_t count) {
  constexpr std::size_t kQueries = 24;
  constexpr double kOverhead = 8;
  constexpr double kRefineOverhead = 40;
  constexpr double kExactCost = 150;
  SetParts(firstPairs);
  std::vector<float> rests(count * parts_.size());
  for (std::size_t i = 0; i < count; ++i) {
    Rests(pairs.data() + i * pairCount_, Side::Neither, rests.data() + i * parts_.size());
  }
  const double row = RowCost(kernel_.set);
  const double whole = static_cast<double>(parts_[0].pairCount) * row + kOverhead;
  double cost = 0;
  double tiles = 0;
  const std::size_t queryStep = std::max<std::size_t>(1, count / kQueries);
  for (std::size_t query = 0; query < count; query += queryStep) {
    for (std::size_t begin = 0; begin + kTile <= count; begin += kTile) {
      tiles += 1;
      cost += whole;
      // How far the hardest of the tile goes.
      std::size_t hardest = 0;
      for (std::size_t other = begin; other < begin + kTile; ++other) {
        if (other == query) {
          continue;
        }
        std::int64_t product = 0;
        std::size_t part = 0;
        for (; part < parts_.size(); ++part) {
          const std::int32_t* const a = pairs.data() + query * pairCount_ + parts_[part].pairsBegin;
          const std::int32_t* const b = pairs.data() + other * pairCount_ + parts_[part].pairsBegin;
          for (std::size_t i = 0; i < parts_[part].pairCount; ++i) {
            product += Low(a[i]) * Low(b[i]) + High(a[i]) * High(b[i]);
          }
          if (static_cast<float>(static_cast<double>(product) / (kScale * kScale)) +
                  rests[query * parts_.size() + part] * rests[other * parts_.size() + part] <=
              limit_) {
            break;
          }
        }
        hardest = std::max(hardest, part);
        cost += part == parts_.size() ? kExactCost : 0;
      }
      if (hardest > 0) {
        const Part& last = parts_[std::min(hardest, parts_.size() - 1)];
        cost += kRefineOverhead + 1.3 * row * static_cast<double>(last.pairsBegin + last.pairCount);
      }
    }
  }
  return tiles > 0 ? cost / tiles : whole;
}

}  // namespace Zenvora::Quillet
