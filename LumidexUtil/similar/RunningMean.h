#pragma once

#include <cstdint>
#include <vector>

namespace Zenvora::Lumidex {

/// Takes one more vector, at least as long as `mean`, into the mean of `count` vectors. Each of the three
/// operations on an element is rounded on its own.
void AddToMean(std::vector<float>& mean, std::int32_t& count, const std::vector<float>& vector);

}  // namespace Zenvora::Lumidex
