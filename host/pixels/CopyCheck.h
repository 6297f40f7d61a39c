#pragma once

#include <QImage>
#include <QPoint>
#include <QPointF>

namespace Zenvora::Lumidex::Host {

/// How two pictures of one size differ when each pixel is set against its own.
struct CopyFinding {
  /// How far the light of the place that differs most does, measured by what compressing at quality 20 does
  /// there; a copy has at most 1.
  double worst = 0;
  QPoint where;
  double worstColour = 0;  ///< The same of colour.
  QPoint whereColour;
  double seen = 0;  ///< The share in which there is something to see.
  /// The share of what has something to see in it that does not differ more than a copy may.
  double alike = 0;
  double gain = 1;        ///< The contrast of the second for that of the first.
  double brightness = 0;  ///< The middle one of the differences from the first to the second, in grey levels.
  double otherTone = 0;   ///< The same without its sign, or that of a colour where it is more.
  /// How much of the finest detail the second has for that of the first; above 1 it was sharpened.
  double sharpness = 1;
  double colour = 0;  ///< How strong the first's colours are, in grey levels; the second's below.
  double otherColour = 0;
};

/// How much of what compressing may do copies of high quality still may differ by. Programs scale in ways
/// that no small filter makes good.
constexpr double LeastStrictness(bool isScaled) {
  return isScaled ? 0.4 : 0.1;
}

/// Compares pictures of one size (Format_RGB32, 16 pixels a side at least). `isScaled`: the one or the other
/// was brought to that size. Pure.
CopyFinding CompareAsCopies(const QImage& first, const QImage& second, bool isScaled);

/// The place that differs most.
struct WholeFinding {
  double worst = 0;  ///< As in `CopyFinding`.
  QPointF where;     ///< 0..1 across and down.
  /// What all but a thousandth of the other places with something in them stay below.
  double elsewhere = 0;
  double strictness = 1;  ///< The share of the allowance that the pair got, less for copies of high quality.
  double sharpness = 1;   ///< How much of the finest detail the first has for that of the second.
};

/// Compares the light of pictures of one size (Format_Grayscale8, 32 pixels a side at least) piece by piece,
/// so that they may be large. Pure.
WholeFinding CompareWhole(const QImage& first, const QImage& second, bool isScaled);

}  // namespace Zenvora::Lumidex::Host
