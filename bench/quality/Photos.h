#pragma once

#include <zenvora/core/ioPath.h>

#include <QImage>

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Bench {

/// Which photos of a folder are measured, and which of them show the same.
struct PhotoChoice {
  ioPath folder;
  /// A text file: each line holds names of files that show the same picture or moment, tabulators between
  /// them; '#' begins a remark. Empty: none.
  ioPath same;
  /// Photos taken by one camera within so many seconds show the same moment.
  int moment = 5;
  /// 0 or 1: only every other photo; -1: all.
  int half = -1;
};

struct Photos {
  std::vector<ioPath> files;
  std::vector<std::string> names;  ///< The file names alone.
  /// Pairs of indices, the smaller one first, that show the same; they are not counted.
  std::set<std::pair<std::size_t, std::size_t>> same;
  std::vector<std::string> passedOver;  ///< Names and causes.
};

/// Files named like photos below the folder that can be decoded, are no icons (48 pixels at least) and not
/// extremely long (6 : 1 at most). Throws `std::runtime_error`.
Photos ChoosePhotos(const PhotoChoice& choice);

/// The photo, upright, no larger than `longerSide`; from the picture itself, never from a preview unless
/// there is nothing else.
QImage PictureOf(const ioPath& file, int longerSide);

}  // namespace Zenvora::Bench
