#pragma once

#include <zenvora/core/ioPath.h>

#include <QImage>

namespace Zenvora::Lumidex::Host {

/// A square from the middle of a picture, pixel by pixel, upright; null when it cannot be decoded. The
/// picture must be one that `DecodePicture` has decoded, so that its size is within the limits. Blocks.
QImage ReadMiddle(const ioPath& file, int side);

/// True when the middle of a larger picture shows more than the same part of a smaller one enlarged would.
/// Null pictures may. Pure.
bool HoldsMoreDetail(const QImage& larger, const QImage& smaller);

/// True when the larger picture shows nothing that the smaller one does not, where that one shows most: then
/// the larger one was made by enlarging. False where both are nearly of one size, and where the smaller one
/// has too little detail to tell. Format_RGB32. Pure.
bool IsEnlargement(const QImage& larger, const QImage& smaller);

}  // namespace Zenvora::Lumidex::Host
