#include "CopyCheck.h"
#include "CopyMeasures.h"

#include <QRect>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kCell = 4;

/// Of a few pixels the one that differs most.
struct Cell {
  QPoint at;
  float error = 0;
  float expected = 0;

  /// For any strictness: what is allowed grows with what is expected.
  float Weight() const {
    constexpr float kFloor = 8;
    return error / (expected + kFloor);
  }
};

/// The mean of how much finer detail the first picture has, in pieces that count by how much the second has.
class Sharpness {
 public:
  void Add(const Filter& fromSecond, const PicturePlane& second) {
    const double detail = MeanOf(SquaredDifference(second, BoxMean(second, 1)));
    sum_ += detail * fromSecond.Finest() / std::max(0.01, std::abs(fromSecond.Sum()));
    weight_ += detail;
  }
  double Mean() const { return weight_ > 0 ? sum_ / weight_ : 1; }

 private:
  double sum_ = 0;
  double weight_ = 0;
};

/// Compares a piece and adds its cells; `piece` lies within `around`, which is what is looked at.
void ComparePiece(const QImage& first, const QImage& second, const QRect& piece, const QRect& around,
                  ErrorRatios& ratios, Sharpness& sharpness, std::vector<Cell>& cells) {
  const auto light = [](const QImage& part) { return LightOf(part.convertToFormat(QImage::Format_RGB32)); };
  const QImage ours = first.copy(around);
  const QImage theirs = second.copy(around);
  const PicturePlane a = light(ours);
  const PicturePlane b = light(theirs);
  const Filter back = FitFilter(b, a);
  const PicturePlane error = CopyError(a, b, FitFilter(a, b), back);
  sharpness.Add(back, b);
  const PicturePlane expected =
      ExpectedError(a, light(CoarselyCompressed(ours)), b, light(CoarselyCompressed(theirs)));
  const QRect inner = piece.translated(-around.topLeft());
  for (int top = inner.top(); top <= inner.bottom(); top += kCell) {
    for (int left = inner.left(); left <= inner.right(); left += kCell) {
      ratios.Add(error.At(left, top), expected.At(left, top));
      Cell most;
      for (int y = top; y <= std::min(top + kCell - 1, inner.bottom()); ++y) {
        for (int x = left; x <= std::min(left + kCell - 1, inner.right()); ++x) {
          const Cell cell{QPoint(x, y) + around.topLeft(), error.At(x, y), expected.At(x, y)};
          most = cell.Weight() > most.Weight() ? cell : most;
        }
      }
      constexpr float kSomething = 4;
      if (most.expected > kSomething) {
        cells.push_back(most);
      }
    }
  }
}

}  // namespace

WholeFinding CompareWhole(const QImage& first, const QImage& second, bool isScaled) {
  // Whole blocks of JPEG, with what compressing spreads around a piece.
  constexpr int kPiece = 512;
  constexpr int kMargin = 16;
  constexpr int kOnePlace = 32;
  constexpr std::size_t kFew = 1000;
  ErrorRatios ratios;
  Sharpness sharpness;
  std::vector<Cell> cells;
  for (int y = 0; y < first.height(); y += kPiece) {
    for (int x = 0; x < first.width(); x += kPiece) {
      const QRect piece = QRect(x, y, kPiece, kPiece).intersected(first.rect());
      ComparePiece(first, second, piece,
                   piece.adjusted(-kMargin, -kMargin, kMargin, kMargin).intersected(first.rect()), ratios,
                   sharpness, cells);
    }
  }
  WholeFinding finding;
  finding.sharpness = sharpness.Mean();
  finding.strictness = ratios.Strictness(LeastStrictness(isScaled));
  const Allowance allowance{kTimes * finding.strictness, kLightFloor};
  const auto ratioOf = [&allowance](const Cell& cell) {
    return allowance.Ratio(static_cast<double>(cell.error), static_cast<double>(cell.expected));
  };
  QPoint worst;
  for (const Cell& cell : cells) {
    if (const double ratio = ratioOf(cell); ratio > finding.worst) {
      finding.worst = ratio;
      worst = cell.at;
    }
  }
  finding.where = {(worst.x() + 0.5) / first.width(), (worst.y() + 0.5) / first.height()};
  std::vector<double> elsewhere;
  for (const Cell& cell : cells) {
    if (std::max(std::abs(cell.at.x() - worst.x()), std::abs(cell.at.y() - worst.y())) > kOnePlace) {
      elsewhere.push_back(ratioOf(cell));
    }
  }
  if (!elsewhere.empty()) {
    const auto most = elsewhere.end() - static_cast<std::ptrdiff_t>(elsewhere.size() / kFew) - 1;
    std::nth_element(elsewhere.begin(), most, elsewhere.end());
    finding.elsewhere = *most;
  }
  return finding;
}

}  // namespace Zenvora::Lumidex::Host
