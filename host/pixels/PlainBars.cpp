#include "PlainBars.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// How far a channel may be from the bar's colour; JPEG blurs more than that only near edges.
constexpr int kTolerance = 10;
/// Shares of a row that have the bar's colour: of a row without text, at least; of the first row of the
/// picture, at most; of all rows of the bar on average, at least.
constexpr double kPlain = 0.95;
constexpr double kPicture = 0.7;
constexpr double kWithText = 0.55;
/// No bar takes more than this of what is left of the picture.
constexpr double kWidestBar = 0.3;
constexpr double kLeastLeft = 0.4;
constexpr int kSmallest = 12;
/// Bars in frames in frames.
constexpr int kRounds = 3;

enum class Side { Top, Bottom, Left, Right };

/// The picture seen from one side: rows run along that side, from the outside inwards.
class Strip {
 public:
  Strip(const QImage& picture, const QRect& part, Side side) : picture_(picture), part_(part), side_(side) {}

  bool IsUpright() const { return side_ == Side::Top || side_ == Side::Bottom; }
  int Rows() const { return IsUpright() ? part_.height() : part_.width(); }
  int Columns() const { return IsUpright() ? part_.width() : part_.height(); }

  QRgb At(int row, int column) const {
    switch (side_) {
      case Side::Top:
        return Pixel(part_.left() + column, part_.top() + row);
      case Side::Bottom:
        return Pixel(part_.left() + column, part_.bottom() - row);
      case Side::Left:
        return Pixel(part_.left() + row, part_.top() + column);
      case Side::Right:
        break;
    }
    return Pixel(part_.right() - row, part_.top() + column);
  }

 private:
  QRgb Pixel(int x, int y) const { return reinterpret_cast<const QRgb*>(picture_.constScanLine(y))[x]; }

  const QImage& picture_;
  const QRect part_;
  const Side side_;
};

/// Of every channel, of the outermost row.
QRgb MedianColour(const Strip& strip) {
  std::array<std::vector<int>, 3> channels;
  for (int column = 0; column < strip.Columns(); ++column) {
    const QRgb pixel = strip.At(0, column);
    channels[0].push_back(qRed(pixel));
    channels[1].push_back(qGreen(pixel));
    channels[2].push_back(qBlue(pixel));
  }
  std::array<int, 3> medians{};
  for (std::size_t i = 0; i < channels.size(); ++i) {
    const auto middle = channels[i].begin() + static_cast<std::ptrdiff_t>(channels[i].size() / 2);
    std::nth_element(channels[i].begin(), middle, channels[i].end());
    medians[i] = *middle;
  }
  return qRgb(medians[0], medians[1], medians[2]);
}

bool AreAlike(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) <= kTolerance && std::abs(qGreen(a) - qGreen(b)) <= kTolerance &&
         std::abs(qBlue(a) - qBlue(b)) <= kTolerance;
}

double ShareOf(QRgb colour, const Strip& strip, int row) {
  int alike = 0;
  for (int column = 0; column < strip.Columns(); ++column) {
    alike += AreAlike(strip.At(row, column), colour) ? 1 : 0;
  }
  return static_cast<double>(alike) / strip.Columns();
}

/// Whether the picture changes between these rows, and not little by little, as a sky does.
bool IsEdge(const Strip& strip, int row, int next) {
  int alike = 0;
  for (int column = 0; column < strip.Columns(); ++column) {
    alike += AreAlike(strip.At(row, column), strip.At(next, column)) ? 1 : 0;
  }
  return alike <= kPicture * strip.Columns();
}

/// How many rows the bar on this side has; 0: there is none.
int BarOn(const Strip& strip) {
  const QRgb colour = MedianColour(strip);
  if (ShareOf(colour, strip, 0) < kPlain) {
    return 0;
  }
  const int most = static_cast<int>(strip.Rows() * kWidestBar);
  std::vector<double> shares;
  for (int row = 0; row < std::min(most + 2, strip.Rows()); ++row) {
    shares.push_back(ShareOf(colour, strip, row));
  }
  int bar = 0;
  double sum = 0;
  for (std::size_t rows = 1; rows + 1 < shares.size(); ++rows) {
    sum += shares[rows - 1];
    if (shares[rows - 1] < kPlain || sum < kWithText * static_cast<double>(rows)) {
      continue;
    }
    // The row of the edge may be a mixture. One row more goes, which the other side has coloured.
    const int last = static_cast<int>(rows) - 1;
    if (shares[rows] <= kPicture && IsEdge(strip, last, last + 1)) {
      bar = last + 2;
    } else if (shares[rows] < kPlain && shares[rows + 1] <= kPicture && IsEdge(strip, last, last + 2)) {
      bar = last + 3;
    }
  }
  return bar;
}

QRect Without(const QRect& part, Side side, int rows) {
  switch (side) {
    case Side::Top:
      return part.adjusted(0, rows, 0, 0);
    case Side::Bottom:
      return part.adjusted(0, 0, 0, -rows);
    case Side::Left:
      return part.adjusted(rows, 0, 0, 0);
    case Side::Right:
      break;
  }
  return part.adjusted(0, 0, -rows, 0);
}

/// Cuts one round of bars off; false when there were none.
bool CutOnce(const QImage& picture, QRect& part) {
  bool cut = false;
  for (const Side side : {Side::Top, Side::Bottom, Side::Left, Side::Right}) {
    if (part.width() < kSmallest || part.height() < kSmallest) {
      break;
    }
    const int rows = BarOn(Strip(picture, part, side));
    const QRect rest = Without(part, side, rows);
    if (rows > 0 && rest.width() >= kLeastLeft * picture.width() &&
        rest.height() >= kLeastLeft * picture.height()) {
      part = rest;
      cut = true;
    }
  }
  return cut;
}

}  // namespace

QRect WithinPlainBars(const QImage& picture) {
  QRect part = picture.rect();
  for (int round = 0; round < kRounds && CutOnce(picture, part); ++round) {
  }
  return part;
}

}  // namespace Zenvora::Lumidex::Host
