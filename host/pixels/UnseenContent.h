#pragma once

#include <zenvora/core/ioPath.h>

#include <QSize>

#include <optional>

namespace Zenvora::Lumidex::Host {

/// True for animations and files of several pages: the first picture does not say what they show. Blocks on
/// the disk.
bool HoldsSeveralPictures(const ioPath& file);

/// True when a JPEG file has something behind the end of its picture that `kept` has not behind its own, as
/// the film of a photo that moves. Reads both whole; blocks on the disk.
bool HoldsMoreBehind(const ioPath& photo, const ioPath& kept);

/// What the pixels of two pictures of one size say at that size.
struct PixelDifference {
  double part = 0;  ///< Of the pixels that differ by more than rounding, 0..1.
};

/// Compares two files that keep every pixel (PNG, BMP, TIFF, GIF) at their full size: what was compressed
/// again cannot be the reason for a difference. Empty when one of them is of another format, or the pictures
/// are of different sizes, cannot be decoded or are too large (over 50 megapixels). May throw for want of
/// memory; blocks on the disk.
std::optional<PixelDifference> CompareLossless(const ioPath& first, const ioPath& second, const QSize& size);

}  // namespace Zenvora::Lumidex::Host
