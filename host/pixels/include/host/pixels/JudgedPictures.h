#pragma once

#include <host/pixels/PictureVerdict.h>

#include <zenvora/core/ioPath.h>

#include <QImage>
#include <QSize>

#include <string>

namespace Zenvora::Lumidex::Host {

/// A picture to compare, and what is known of the file that it was decoded from.
struct JudgedPicture {
  /// Upright, in sRGB, no larger than `kJudgedSide`. Null: `cause` says why.
  QImage image;
  QSize size;               ///< The whole picture's pixels, upright.
  bool isPreview = false;   ///< The picture itself cannot be decoded here; this is a preview of it.
  std::string degradation;  ///< What of the picture cannot be decoded; empty: all of it can.
  std::string cause;
};

/// Pictures are compared with at most so many pixels on the longer side.
constexpr int kJudgedSide = 1280;

/// Decodes a photo to be judged, never from its thumbnail unless nothing else of it can be decoded. Never
/// throws for bad content. Blocks on the disk; safe from any thread.
JudgedPicture ReadJudgedPicture(const ioPath& file);

/// Why a verdict is `Same` without a look at any pixel.
constexpr char kIdenticalFiles[] = "identical files";

/// False also for empty files and what is no file. Reads both as far as they are equal; blocks on the disk.
bool HoldTheSameBytes(const ioPath& first, const ioPath& second);

/// The verdict between two decoded pictures. Pure; safe from any thread.
PictureVerdict JudgePictures(const JudgedPicture& photo, const JudgedPicture& kept);

}  // namespace Zenvora::Lumidex::Host
