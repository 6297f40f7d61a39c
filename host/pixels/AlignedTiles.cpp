#include "AlignedTiles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kTile = 16;

/// The error of a tile in other colours; beyond any that light comes to.
constexpr double kOther = 1e9;

struct Sums {
  double mean = 0;
  double variance = 0;
};

Sums SumsOf(const PicturePlane& plane, int left, int top) {
  double sum = 0;
  double squares = 0;
  for (int y = top; y < top + kTile; ++y) {
    for (int x = left; x < left + kTile; ++x) {
      const double value = static_cast<double>(plane.At(x, y));
      sum += value;
      squares += value * value;
    }
  }
  constexpr double kCount = kTile * kTile;
  return {sum / kCount, std::max(0.0, squares / kCount - sum * sum / kCount / kCount)};
}

/// The mean square of what is not explained, with light and contrast evened out within reason.
double Unexplained(const PicturePlane& first, const PicturePlane& second, int left, int top, int dx, int dy) {
  const Sums a = SumsOf(first, left + dx, top + dy);
  const Sums b = SumsOf(second, left, top);
  double product = 0;
  for (int y = 0; y < kTile; ++y) {
    const float* const from = first.Row(top + dy + y) + left + dx;
    const float* const to = second.Row(top + y) + left;
    for (int x = 0; x < kTile; ++x) {
      product += static_cast<double>(from[x]) * static_cast<double>(to[x]);
    }
  }
  const double together = product / (kTile * kTile) - a.mean * b.mean;
  const double gain = std::clamp(together / std::max(a.variance, 1.0), 0.7, 1.4);
  // Light may differ by some levels from place to place.
  const double moved = std::max(0.0, std::abs(a.mean - b.mean) - 10);
  return std::max(0.0, b.variance + gain * gain * a.variance - 2 * gain * together) + moved * moved;
}

}  // namespace

AlignedTiles::AlignedTiles(const PicturePlane& first, const PicturePlane& second, const PicturePlane& colour)
    : first_(first),
      second_(second),
      colour_(colour),
      columns_(second.Width() / kTile),
      rows_(second.Height() / kTile),
      tiles_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) {
      At(column, row) = Judge(column * kTile, row * kTile);
    }
  }
}

bool AlignedTiles::IsCommon(int left, int top) const {
  for (int y = top; y < top + kTile; ++y) {
    for (int x = left; x < left + kTile; ++x) {
      if (first_.At(x, y) < 0) {
        return false;
      }
    }
  }
  return true;
}

double AlignedTiles::Allowed(int left, int top) const {
  constexpr double kNoise = 40;
  constexpr double kShare = 0.45;
  return kNoise + kShare * std::max(SumsOf(first_, left, top).variance, SumsOf(second_, left, top).variance);
}

AlignedTiles::Tile AlignedTiles::Judge(int left, int top) const {
  if (!IsCommon(left, top)) {
    return {};
  }
  constexpr double kPlain = 4;
  const Sums a = SumsOf(first_, left, top);
  const Sums b = SumsOf(second_, left, top);
  // More than another white balance.
  constexpr double kOtherColour = 28;
  if (std::sqrt(SumsOf(colour_, left, top).mean) > kOtherColour) {
    return {State::Seen, kOther};
  }
  const double error = Unexplained(first_, second_, left, top, 0, 0) / Allowed(left, top);
  const bool isPlain = error <= 1 && a.variance < kPlain && b.variance < kPlain;
  return {isPlain ? State::Plain : State::Seen, error};
}

double AlignedTiles::LeastError(int left, int top) const {
  // Hands move, and what is near moves more.
  constexpr int kMoved = 3;
  double least = Unexplained(first_, second_, left, top, 0, 0);
  for (int dy = -kMoved; dy <= kMoved; ++dy) {
    for (int dx = -kMoved; dx <= kMoved; ++dx) {
      const bool inside = left + dx >= 0 && top + dy >= 0 && left + dx + kTile <= first_.Width() &&
                          top + dy + kTile <= first_.Height();
      if (inside && IsCommon(left + dx, top + dy)) {
        least = std::min(least, Unexplained(first_, second_, left, top, dx, dy));
      }
    }
  }
  return least / Allowed(left, top);
}

double AlignedTiles::Strictness() const {
  // Of what is seen six tenths are the same in any two that show the same. What is left there is the noise
  // of this pair, and what differs elsewhere is set against it.
  constexpr double kUsual = 0.6;
  constexpr double kTimes = 3;
  constexpr double kLeast = 0.2;
  std::vector<double> errors;
  for (const Tile& tile : tiles_) {
    if (tile.state == State::Seen) {
      errors.push_back(tile.error);
    }
  }
  if (errors.empty()) {
    return 1;
  }
  const auto usual =
      errors.begin() + static_cast<std::ptrdiff_t>(kUsual * static_cast<double>(errors.size()));
  std::nth_element(errors.begin(), usual, errors.end());
  return std::clamp(kTimes * *usual, kLeast, 1.0);
}

void AlignedTiles::Count(AlignedFinding& finding) {
  const double strictness = Strictness();
  double common = 0;
  double plain = 0;
  double wrong = 0;
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) {
      Tile& tile = At(column, row);
      common += tile.state != State::Beyond ? 1 : 0;
      plain += tile.state == State::Plain ? 1 : 0;
      if (tile.state == State::Seen && tile.error > strictness && tile.error < kOther &&
          LeastError(column * kTile, row * kTile) <= strictness) {
        tile.error = 0;
      }
      tile.isWrong = tile.state == State::Seen && tile.error > strictness;
      wrong += tile.isWrong ? 1 : 0;
    }
  }
  if (common == 0) {
    return;
  }
  finding.plain = plain / common;
  finding.seen = 1 - finding.plain;
  finding.wrong = wrong / std::max(1.0, common - plain);
  double largest = 0;
  for (int row = 0; row < rows_; ++row) {
    for (int column = 0; column < columns_; ++column) {
      const double taken = Take(column, row);
      if (taken > largest) {
        largest = taken;
        finding.where = {(column + 0.5) / columns_, (row + 0.5) / rows_};
      }
    }
  }
  finding.largest = largest / common;
}

double AlignedTiles::Take(int column, int row) {
  double taken = 0;
  std::vector<std::pair<int, int>> waiting = {{column, row}};
  while (!waiting.empty()) {
    const auto [x, y] = waiting.back();
    waiting.pop_back();
    if (x < 0 || y < 0 || x >= columns_ || y >= rows_ || !At(x, y).isWrong) {
      continue;
    }
    At(x, y).isWrong = false;
    ++taken;
    // By the corners as well: of one thing before another some tiles are always alike.
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        waiting.emplace_back(x + dx, y + dy);
      }
    }
  }
  return taken;
}

}  // namespace Zenvora::Lumidex::Host
