#pragma once

#include <QImage>
#include <QPointF>

namespace Zenvora::Lumidex::Host {

/// What two pictures have in common once one is laid over the other.
struct AlignedFinding {
  bool found = false;  ///< They could be laid over each other at all; else nothing below counts.
  /// How much of the first's frame the second shows, and of the second's frame the first; 0..1.
  double firstShown = 0;
  double secondShown = 0;
  double scale = 1;   ///< What the second shows is so many times as large in the first, in frame widths.
  double turned = 0;  ///< Degrees.
  double gain = 1;    ///< The contrast of the second for that of the first.
  double brightness = 0;
  double seen = 0;     ///< The share of the common part in which there is something to see.
  double wrong = 0;    ///< The share of that which does not show the same.
  double largest = 0;  ///< The largest connected place that does not, as a share of the common part.
  QPointF where;       ///< The middle of that place in the second picture, 0..1 across and down.
  double plain = 0;    ///< The share of the common part that is wholly plain, as in drawings and pages.
};

/// Lays one picture over the other (Format_RGB32), which may be a little larger or smaller, moved, turned and
/// brighter or darker, and compares what is common to both. `asTheyLie`: hardly moved, turned or scaled,
/// which is found ten times faster. Pure; takes some tenths of a second.
AlignedFinding Align(const QImage& first, const QImage& second, bool asTheyLie = false);

}  // namespace Zenvora::Lumidex::Host
