#include "Vectors.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>

namespace Zenvora::Test {

namespace {

Template Random(std::size_t size, Chance& chance) {
  Template vector(size);
  std::generate(vector.begin(), vector.end(), [&chance] { return chance.Normal(); });
  return vector;
}

Template Histogram(std::size_t size, Chance& chance) {
  Template vector(size);
  std::generate(vector.begin(), vector.end(), [&chance] {
    const float share = chance.Share();
    return 0.2F + share * share * share;
  });
  return vector;
}

double Length(const Template& vector) {
  double squares = 0;
  for (const float value : vector) {
    squares += static_cast<double>(value) * static_cast<double>(value);
  }
  return std::sqrt(squares);
}

/// At that cosine to `vector`, as near as floats allow.
Template At(double cosine, const Template& vector, Chance& chance) {
  const double length = Length(vector);
  Template other = Random(vector.size(), chance);
  double share = 0;
  for (std::size_t i = 0; i < vector.size(); ++i) {
    share += static_cast<double>(other[i]) * static_cast<double>(vector[i]) / (length * length);
  }
  for (std::size_t i = 0; i < vector.size(); ++i) {
    other[i] -= static_cast<float>(share * static_cast<double>(vector[i]));
  }
  const double otherLength = Length(other);
  if (vector.size() < 2 || !(otherLength > 0)) {
    return vector;
  }
  for (std::size_t i = 0; i < vector.size(); ++i) {
    other[i] =
        static_cast<float>(cosine * static_cast<double>(vector[i]) / length +
                           std::sqrt(1 - cosine * cosine) * static_cast<double>(other[i]) / otherLength);
  }
  return other;
}

std::vector<Template> Mixed(std::size_t count, std::size_t size, Chance& chance) {
  std::vector<Template> vectors;
  while (vectors.size() < count) {
    vectors.push_back(chance.Share() < 0.3F ? Random(size, chance) : Histogram(size, chance));
    const std::size_t first = vectors.size() - 1;
    for (std::size_t copies = chance.Share() < 0.5F ? 0 : 1 + chance.Below(7); copies > 0; --copies) {
      vectors.push_back(At(0.93 + 0.06 * static_cast<double>(chance.Share()), vectors[first], chance));
    }
  }
  vectors.resize(count);
  return vectors;
}

/// Each of the first half is met by one of the second.
std::vector<Template> Edge(std::size_t count, std::size_t size, double threshold, Chance& chance) {
  std::vector<Template> vectors;
  for (std::size_t i = 0; i < count / 2; ++i) {
    vectors.push_back(Random(size, chance));
  }
  while (vectors.size() < count) {
    const double off = 1e-6 * (2 * static_cast<double>(chance.Share()) - 1);
    vectors.push_back(At(threshold + off, vectors[vectors.size() - count / 2], chance));
  }
  return vectors;
}

Template Broken(std::size_t size, Chance& chance) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  Template vector = chance.Share() < 0.5F ? Random(size, chance) : Template(size, 1.0F);
  const auto scale = [&vector](float factor) {
    std::for_each(vector.begin(), vector.end(), [factor](float& value) { value *= factor; });
  };
  float& some = vector[chance.Below(size)];
  switch (chance.Below(12)) {
    case 0:
      return Template(size, 0.0F);
    case 1:
      return Template(size, -0.0F);
    case 2:
      some = std::numeric_limits<float>::quiet_NaN();
      break;
    case 3:
      some = kInfinity;
      break;
    case 4:
      some = -kInfinity;
      break;
    case 5:
      scale(1e38F / 8);
      break;
    case 6:
      scale(1e-38F);
      break;
    case 7:
      scale(1e-44F);
      break;
    case 8:
      return Template(size, std::numeric_limits<float>::max());
    case 9:
      return Template(size, std::numeric_limits<float>::denorm_min());
    case 10:
      return Random(chance.Below(2 * size), chance);
    default:
      break;
  }
  return vector;
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, VectorKind kind) {
  constexpr const char* kNames[] = {"random", "histogram", "mixed",    "edge",
                                    "copies", "broken",    "parallel", "sparse"};
  return stream << kNames[static_cast<int>(kind)];
}

float Chance::Normal() {
  float sum = -6;
  for (int i = 0; i < 12; ++i) {
    sum += Share();
  }
  return sum;
}

std::vector<Template> MakeVectors(VectorKind kind, std::size_t count, std::size_t size, float threshold,
                                  unsigned seed) {
  Chance chance(seed);
  if (kind == VectorKind::Mixed) {
    return Mixed(count, size, chance);
  }
  if (kind == VectorKind::Edge) {
    return Edge(count, size, static_cast<double>(threshold), chance);
  }
  const Template common = Random(size, chance);
  std::vector<Template> vectors;
  while (vectors.size() < count) {
    switch (kind) {
      case VectorKind::Histogram:
        vectors.push_back(Histogram(size, chance));
        break;
      case VectorKind::Copies: {
        Template vector = vectors.size() < 12 ? Random(size, chance) : vectors[chance.Below(12)];
        const float factor = 0.5F + chance.Share();
        std::for_each(vector.begin(), vector.end(), [factor](float& value) { value *= factor; });
        vectors.push_back(vector);
        break;
      }
      case VectorKind::Broken:
        vectors.push_back(Broken(size, chance));
        break;
      case VectorKind::Parallel:
        vectors.push_back(At(std::sqrt(0.88), common, chance));
        break;
      case VectorKind::Sparse: {
        Template vector(size);
        for (std::size_t i = 0; i < 3; ++i) {
          vector[chance.Below(size)] = chance.Share();
        }
        vectors.push_back(vector);
        break;
      }
      default:
        vectors.push_back(Random(size, chance));
    }
  }
  return vectors;
}

}  // namespace Zenvora::Test
