#include "LearntBasis.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <random>

namespace Zenvora::Quillet {

namespace {

/// Directions that are learnt; the others only fill the space.
constexpr std::size_t kLearnt = 64;
/// Enough for the order of the first ones; more would not be worth the time.
constexpr int kRounds = 5;

std::size_t RoundUp(std::size_t value, std::size_t step) {
  return (value + step - 1) / step * step;
}

double Dot(const double* a, const double* b, std::size_t size) {
  constexpr std::size_t kLanes = 8;
  double lanes[kLanes] = {};
  std::size_t at = 0;
  for (; at + kLanes <= size; at += kLanes) {
    for (std::size_t i = 0; i < kLanes; ++i) {
      lanes[i] += a[at + i] * b[at + i];
    }
  }
  double sum = 0;
  for (; at < size; ++at) {
    sum += a[at] * b[at];
  }
  return std::accumulate(lanes, lanes + kLanes, sum);
}

/// Rows of doubles that are made orthonormal one by one.
class Rows {
 public:
  Rows(std::size_t count, std::size_t size) : size_(size), values_(count * size) {}

  double* operator[](std::size_t row) { return values_.data() + row * size_; }
  const double* operator[](std::size_t row) const { return values_.data() + row * size_; }

  void Randomise(std::size_t row, std::mt19937& random) {
    std::generate_n((*this)[row], size_,
                    [&random] { return static_cast<double>(random()) / 4294967296.0 - 0.5; });
  }

  /// Makes `row` a unit vector at right angles to those before it, of whatever lies in it, or of chance.
  void Settle(std::size_t row, std::mt19937& random) {
    for (;;) {
      const double before = std::sqrt(Dot((*this)[row], (*this)[row], size_));
      Clear(row);
      double after = std::sqrt(Dot((*this)[row], (*this)[row], size_));
      // Where little is left, much of it is rounding. Twice is enough.
      if (after < before / 2) {
        Clear(row);
        after = std::sqrt(Dot((*this)[row], (*this)[row], size_));
      }
      if (after > before * 1e-6 && after > 0) {
        std::for_each((*this)[row], (*this)[row] + size_, [after](double& value) { value /= after; });
        return;
      }
      Randomise(row, random);
    }
  }

 private:
  void Clear(std::size_t row) {
    double* const values = (*this)[row];
    for (std::size_t other = 0; other < row; ++other) {
      const double* const direction = (*this)[other];
      const double share = Dot(values, direction, size_);
      for (std::size_t i = 0; i < size_; ++i) {
        values[i] -= share * direction[i];
      }
    }
  }

  std::size_t size_;
  std::vector<double> values_;
};

/// `count` rows as the columns of a matrix for `MatchKernel::rotate`.
std::vector<float> AsColumns(const Rows& rows, std::size_t count, std::size_t size, std::size_t width) {
  std::vector<float> matrix(size * width);
  for (std::size_t row = 0; row < count; ++row) {
    const double* const values = rows[row];
    for (std::size_t i = 0; i < size; ++i) {
      matrix[i * width + row] = static_cast<float>(values[i]);
    }
  }
  return matrix;
}

std::vector<const float*> Pointers(const std::vector<float>& values, std::size_t count, std::size_t stride) {
  std::vector<const float*> pointers(count);
  for (std::size_t i = 0; i < count; ++i) {
    pointers[i] = values.data() + i * stride;
  }
  return pointers;
}

/// Turns the first `learnt` rows towards the sample's principal directions.
void Approach(const MatchKernel& kernel, const std::vector<float>& sample, std::size_t count,
              std::size_t size, std::size_t stride, std::size_t learnt, Rows& rows, std::mt19937& random) {
  const std::size_t width = RoundUp(learnt, kWidthStep);
  const auto vectors = Pointers(sample, count, stride);
  std::vector<float> shares(count * width);
  std::vector<float> turned(learnt * count);
  std::vector<float> sums(learnt * stride);
  const auto shareRows = Pointers(turned, learnt, count);
  for (int round = 0; round < kRounds; ++round) {
    kernel.rotate(AsColumns(rows, learnt, size, width).data(), width, size, vectors.data(), count,
                  shares.data());
    for (std::size_t i = 0; i < count; ++i) {
      for (std::size_t row = 0; row < learnt; ++row) {
        turned[row * count + i] = shares[i * width + row];
      }
    }
    kernel.rotate(sample.data(), stride, count, shareRows.data(), learnt, sums.data());
    for (std::size_t row = 0; row < learnt; ++row) {
      std::copy_n(sums.data() + row * stride, size, rows[row]);
      rows.Settle(row, random);
    }
  }
}

/// Of the matrix as it was rounded: the largest distance of its products from those of an orthonormal one.
double DefectOf(const LearntBasis& basis) {
  Rows rounded(basis.count, basis.size);
  for (std::size_t row = 0; row < basis.count; ++row) {
    for (std::size_t i = 0; i < basis.size; ++i) {
      rounded[row][i] = static_cast<double>(basis.matrix[i * basis.width + row]);
    }
  }
  double squares = 0;
  for (std::size_t row = 0; row < basis.count; ++row) {
    const double own = Dot(rounded[row], rounded[row], basis.size) - 1;
    squares += own * own;
    for (std::size_t other = 0; other < row; ++other) {
      const double product = Dot(rounded[row], rounded[other], basis.size);
      squares += 2 * product * product;
    }
  }
  // What rounding may have hidden.
  return std::sqrt(squares) + 1e-10;
}

}  // namespace

LearntBasis LearnBasis(const MatchKernel& kernel, const std::vector<float>& sample, std::size_t count,
                       std::size_t size, std::size_t stride, std::size_t directions) {
  LearntBasis basis;
  basis.size = size;
  basis.count = std::min(size, directions);
  basis.width = RoundUp(basis.count, kWidthStep);
  Rows rows(basis.count, size);
  std::mt19937 random(20);
  for (std::size_t row = 0; row < basis.count; ++row) {
    rows.Randomise(row, random);
  }
  const std::size_t learnt = std::min(basis.count, kLearnt);
  Approach(kernel, sample, count, size, stride, learnt, rows, random);
  for (std::size_t row = learnt; row < basis.count; ++row) {
    rows.Settle(row, random);
  }
  basis.matrix = AsColumns(rows, basis.count, size, basis.width);
  basis.defect = DefectOf(basis);
  return basis;
}

}  // namespace Zenvora::Quillet
