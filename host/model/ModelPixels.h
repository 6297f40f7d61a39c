#pragma once

#include "ModelHead.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Raised whenever the numbers below change: vectors from before are then made anew.
constexpr int kModelPixelsVersion = 1;

/// The largest part in the middle of a picture that has the shape of `wanted`. Never empty. Pure.
QRect MiddleOf(const QSize& picture, const QSize& wanted);

/// What the model is fed with for an upright sRGB picture, which is not null: its middle at the model's size,
/// on white, channel by channel, row by row. Pure.
std::vector<float> ModelPixels(const QImage& picture, const ModelHead& head);

/// The vector with the length 1. Throws `ModelFault` when it has not `length` numbers, when one is not
/// finite, and when all are zero, for that is like nothing. Pure.
std::vector<float> ModelVector(std::vector<float> output, std::size_t length);

}  // namespace Zenvora::Lumidex::Host
