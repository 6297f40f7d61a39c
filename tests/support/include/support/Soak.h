#pragma once

#include <cstdlib>

namespace Zenvora::Test {

/// How many of something a test takes: `all` in long runs (`make soak`, which sets LUMIDEX_TEST_SOAK), else
/// `some`.
template <class Number>
Number SoakOr(Number all, Number some) {
  return std::getenv("LUMIDEX_TEST_SOAK") != nullptr ? all : some;
}

}  // namespace Zenvora::Test
