#pragma once

#include <zenvora/lumidex/Export.h>

#include <cstdint>
#include <vector>

namespace Zenvora::Lumidex {

/// A cluster of similar photos: the mean of their feature vectors, and how many of them are in it. A plain
/// value.
struct ZENVORA_LUMIDEX_EXPORT Cluster {
  /// `count`: the number of photos whose mean `centre` is. The id is 0 until a data source gives one.
  Cluster(const std::vector<float>& centre, int count);

  /// By which its data source knows it; 0: not stored yet.
  std::int64_t id = 0;
  std::vector<float> centre;
  std::int32_t count = 0;
};

}  // namespace Zenvora::Lumidex
