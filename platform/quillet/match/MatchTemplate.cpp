#include "MatchKernel.h"
#include "MatchScore.h"

#include <zenvora/quillet/match/MatchTemplate.h>

namespace Zenvora::Quillet {

float MatchTemplate(const std::vector<float>& a, const std::vector<float>& b) {
  if (a.size() != b.size()) {
    return 0;
  }
  double sums[3];
  BestKernel().dots(a.data(), b.data(), a.size(), sums);
  return ScoreOf(sums[0], sums[1], sums[2]);
}

}  // namespace Zenvora::Quillet
