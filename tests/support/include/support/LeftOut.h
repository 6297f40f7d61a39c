#pragma once

#include <gtest/gtest.h>

#include <string>

/// Stand on Windows for a test that cannot even be compiled there. tests/support/LeftOutOnWindows.txt says
/// why.
#define LUMIDEX_LEFT_OUT_ON_WINDOWS(suite, name) LUMIDEX_LEFT_OUT_AS(TEST, suite, name)
#define LUMIDEX_LEFT_OUT_ON_WINDOWS_F(fixture, name) LUMIDEX_LEFT_OUT_AS(TEST_F, fixture, name)
#define LUMIDEX_LEFT_OUT_ON_WINDOWS_P(fixture, name) LUMIDEX_LEFT_OUT_AS(TEST_P, fixture, name)
#define LUMIDEX_LEFT_OUT_AS(kind, suite, name)   \
  kind(suite, name) {                            \
    GTEST_SKIP() << Zenvora::Test::WhyLeftOut(); \
  }                                              \
  static_assert(true)

namespace Zenvora::Test {

/// The reason that the list gives for the test that runs.
std::string WhyLeftOut();

/// Keeps the list true for the tests of `program` (test_core): on Windows whoever is skipped must be in it,
/// but for reasons that are up to the machine, and whoever is in it must be skipped. False where it names
/// tests that this program does not have.
bool WatchWhatIsLeftOut(const std::string& program);

}  // namespace Zenvora::Test
