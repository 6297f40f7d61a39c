#pragma once

#include <QImage>
#include <QPoint>

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

/// Compares pictures of one size (Format_RGB32, 16 pixels a side at least). `isScaled`: the one or the other
/// was brought to that size. Pure.
CopyFinding CompareAsCopies(const QImage& first, const QImage& second, bool isScaled);

}  // namespace Zenvora::Lumidex::Host
