#pragma once

#include <string>

namespace Zenvora::Conf {

/// What is known of a file's picture without decoding it.
struct FrameInfo {
  /// By the content; a name of `Quillet::FormatHelper`, as "JPEG". Empty: not known.
  std::string format;
  int width = 0;  ///< Pixels as stored; 0: not known.
  int height = 0;
  /// EXIF Orientation, 1..8: how the stored pixels are turned for showing. 1 also when the file does not say.
  int orientation = 1;
  /// Pictures of an animation, pages; 1 in formats that hold one picture, 0: not known.
  int frames = 0;

  /// Pixels as shown: a quarter turn exchanges the sides.
  int ShownWidth() const { return IsOnItsSide() ? height : width; }
  int ShownHeight() const { return IsOnItsSide() ? width : height; }
  bool IsOnItsSide() const { return orientation > 4; }
};

}  // namespace Zenvora::Conf
