#include "RunningMean.h"

#include <cstddef>

namespace Zenvora::Lumidex {

void AddToMean(std::vector<float>& mean, std::int32_t& count, const std::vector<float>& vector) {
  const auto before = static_cast<float>(count);
  ++count;
  const auto after = static_cast<float>(count);
  for (std::size_t i = 0; i < mean.size(); ++i) {
    mean[i] = (mean[i] * before + vector[i]) / after;
  }
}

}  // namespace Zenvora::Lumidex
