#include "FirstFit.h"

#include <zenvora/quillet/MatchTemplate.h>

namespace Zenvora::Quillet {

std::optional<std::size_t> FirstFit::FindFirst(const Template& query) noexcept {
  return FindFirstByScan(vectors_, query, threshold_,
                         [](const Template* vector) -> const Template& { return *vector; });
}

}  // namespace Zenvora::Quillet
