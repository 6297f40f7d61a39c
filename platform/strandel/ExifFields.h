#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Strandel {

/// The texts of the EXIF fields that make up `PhotoFacts`, as written; empty when absent.
struct ExifFields {
  std::string model;
  std::string original;
  std::string originalSubSeconds;
  std::string digitised;
  std::string digitisedSubSeconds;
  /// Degrees, minutes and seconds, each as numerator and denominator, and the sides that they count to.
  std::vector<std::pair<std::uint32_t, std::uint32_t>> latitude;
  std::string latitudeSide;
  std::vector<std::pair<std::uint32_t, std::uint32_t>> longitude;
  std::string longitudeSide;
};

}  // namespace Zenvora::Strandel
