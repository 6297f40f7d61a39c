#include "FeatureVectors.h"

#include <cmath>

namespace Zenvora::Bench {

namespace {

double LengthOf(const Template& vector) {
  double squares = 0;
  for (const float value : vector) {
    squares += static_cast<double>(value) * static_cast<double>(value);
  }
  return std::sqrt(squares);
}

}  // namespace

double FeatureVectors::Share() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t bits = state_;
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9U;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBU;
  bits ^= bits >> 31;
  return static_cast<double>(bits >> 11) * 0x1p-53;
}

double FeatureVectors::Normal() {
  constexpr double kTwoPi = 6.283185307179586;
  return std::sqrt(-2 * std::log(1 - Share())) * std::cos(kTwoPi * Share());
}

Template FeatureVectors::Picture() {
  constexpr double kRandomPictures = 0.3;
  const bool random = Share() < kRandomPictures;
  Template picture(kSize);
  for (float& value : picture) {
    value = static_cast<float>(random ? Normal() : 0.25 - 0.5 * std::log(1 - Share()));
  }
  return picture;
}

Template FeatureVectors::Neighbour(const Template& picture, double cosine) {
  const double length = LengthOf(picture);
  Template aside(kSize);
  double share = 0;
  for (std::size_t i = 0; i < kSize; ++i) {
    aside[i] = static_cast<float>(Normal());
    share += static_cast<double>(aside[i]) * static_cast<double>(picture[i]);
  }
  share /= length * length;
  for (std::size_t i = 0; i < kSize; ++i) {
    aside[i] -= static_cast<float>(share) * picture[i];
  }
  const double factor = std::sqrt(1 / (cosine * cosine) - 1) * length / LengthOf(aside);
  for (std::size_t i = 0; i < kSize; ++i) {
    aside[i] = picture[i] + static_cast<float>(factor) * aside[i];
  }
  return aside;
}

std::vector<Template> FeatureVectors::Next(std::size_t count) {
  // As a share of the groups, what makes 45 % of the photos: bursts have 5 on average.
  constexpr double kSingles = 0.45 / (0.45 + 0.55 / 5);
  std::vector<Template> photos;
  photos.reserve(count);
  while (photos.size() < count) {
    if (left_ > 0) {
      photos.push_back(Neighbour(first_, 0.93 + 0.06 * Share()));
      --left_;
      continue;
    }
    first_ = Picture();
    photos.push_back(first_);
    if (Share() >= kSingles) {
      left_ = 1 + static_cast<std::size_t>(7 * Share());
    }
  }
  return photos;
}

std::vector<Template> FeatureVectors::NextParallel(std::size_t count) {
  if (axis_.empty()) {
    axis_ = Picture();
  }
  std::vector<Template> vectors;
  vectors.reserve(count);
  while (vectors.size() < count) {
    vectors.push_back(Neighbour(axis_, std::sqrt(0.88)));
  }
  return vectors;
}

}  // namespace Zenvora::Bench
