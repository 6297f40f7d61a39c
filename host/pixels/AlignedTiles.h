#pragma once

#include "PictureAligner.h"
#include "PicturePlane.h"

#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Two pictures of one size that lie over each other, compared tile by tile.
class AlignedTiles {
 public:
  /// `first` laid over `second`, with what lies beyond it below 0; `colour`: the squares of how far their
  /// colours differ. All three have to outlive this.
  AlignedTiles(const PicturePlane& first, const PicturePlane& second, const PicturePlane& colour);

  /// Fills in what of the common part is seen, plain and wrong. To be called once.
  void Count(AlignedFinding& finding);

 private:
  enum class State : char { Beyond, Plain, Seen };

  struct Tile {
    State state = State::Beyond;
    /// What is not explained, for the most that may not be where the pictures hardly fit elsewhere.
    double error = 0;
    bool isWrong = false;
  };

  Tile& At(int column, int row) {
    return tiles_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                  static_cast<std::size_t>(column)];
  }
  bool IsCommon(int left, int top) const;
  double Allowed(int left, int top) const;
  Tile Judge(int left, int top) const;
  /// The error when the tile may be moved a little.
  double LeastError(int left, int top) const;
  /// The most that an error may be in this pair.
  double Strictness() const;
  /// Counts what is wrong here and beside it, and forgets it.
  double Take(int column, int row);

  const PicturePlane& first_;
  const PicturePlane& second_;
  const PicturePlane& colour_;
  int columns_ = 0;
  int rows_ = 0;
  std::vector<Tile> tiles_;
};

}  // namespace Zenvora::Lumidex::Host
