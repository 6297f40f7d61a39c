#pragma once

#include <QImage>

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Bench {

/// A hash of a picture as it is commonly computed, to be compared by the number of bits that differ.
struct PictureHash {
  std::string name;
  std::vector<std::uint8_t> (*bits)(const QImage&);  ///< One bit each.
};

/// The usual ones: average (8 x 8), difference (9 x 8), cosine transform (8 x 8 of 32 x 32), block means
/// (16 x 16).
const std::vector<PictureHash>& UsualHashes();

}  // namespace Zenvora::Bench
