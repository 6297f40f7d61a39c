#pragma once

#include "CopyCheck.h"
#include "PictureAligner.h"

#include <host/pixels/JudgedPictures.h>

#include <QPointF>

#include <cstdint>
#include <optional>
#include <string>

namespace Zenvora::Lumidex::Host {

/// "the upper left", "the middle", "the right"; `at`: 0..1 across and down.
std::string PlaceName(const QPointF& at);

std::int64_t PixelsOf(const QSize& size);

/// True when the one size is the other scaled and rounded.
bool IsScaled(const QSize& a, const QSize& b);

/// What comparing pixel by pixel says; empty when the pictures have to be laid over each other. `compared`:
/// the size at which they were. Pure.
std::optional<PictureVerdict> VerdictOfCopies(const CopyFinding& finding, const QSize& compared,
                                              const JudgedPicture& photo, const JudgedPicture& kept);

/// What comparing at the full size says against a verdict that both are the same; empty: nothing. Pure.
std::optional<PictureVerdict> VerdictOfWhole(const WholeFinding& finding, bool isScaled);

/// What laying the photo and the one to keep (the first of the two) over each other says; empty when they do
/// not show the same. Pure.
std::optional<PictureVerdict> VerdictOfAligned(const AlignedFinding& finding);

}  // namespace Zenvora::Lumidex::Host
