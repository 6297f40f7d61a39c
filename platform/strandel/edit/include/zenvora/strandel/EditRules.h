#pragma once

#include <zenvora/strandel/Export.h>
#include <zenvora/strandel/PhotoEdit.h>

#include <QDateTime>

#include <chrono>

namespace Zenvora::Strandel {

/// The EXIF Orientation (1..8) of a picture that is shown by `orientation` and then turned. Any other number
/// counts as 1. Pure.
ZENVORA_STRANDEL_EXPORT int TurnedOrientation(int orientation, Turn turn);

/// The date, moved as on a clock without daylight saving time; invalid when it leaves the years 1..9999. UTC
/// stands for "no zone". Pure.
ZENVORA_STRANDEL_EXPORT QDateTime ShiftedTime(const QDateTime& date, std::chrono::seconds shift);

}  // namespace Zenvora::Strandel
