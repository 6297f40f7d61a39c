#pragma once

#include "CopyCheck.h"
#include "JudgedPictures.h"
#include "PictureAligner.h"

#include <QPointF>

#include <optional>
#include <string>

namespace Zenvora::Lumidex::Host {

/// "the upper left", "the middle", "the right"; `at`: 0..1 across and down.
std::string PlaceName(const QPointF& at);

/// True when the one size is the other scaled and rounded.
bool IsScaled(const QSize& a, const QSize& b);

/// What comparing pixel by pixel says; empty when the pictures have to be laid over each other. `compared`:
/// the size at which they were. Pure.
std::optional<PictureVerdict> VerdictOfCopies(const CopyFinding& finding, const QSize& compared,
                                              const JudgedPicture& photo, const JudgedPicture& kept);

/// What laying the photo and the one to keep (the first of the two) over each other says; empty when they do
/// not show the same. Pure.
std::optional<PictureVerdict> VerdictOfAligned(const AlignedFinding& finding);

}  // namespace Zenvora::Lumidex::Host
