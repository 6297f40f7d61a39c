#pragma once

#include <gtest/gtest.h>

/// Stand on Windows for a test that cannot even be compiled there: it is skipped there, and says why.
#define LUMIDEX_LEFT_OUT_ON_WINDOWS(suite, name, reason) \
  TEST(suite, name) {                                    \
    GTEST_SKIP() << (reason);                            \
  }                                                      \
  static_assert(true)

#define LUMIDEX_LEFT_OUT_ON_WINDOWS_F(fixture, name, reason) \
  TEST_F(fixture, name) {                                    \
    GTEST_SKIP() << (reason);                                \
  }                                                          \
  static_assert(true)

#define LUMIDEX_LEFT_OUT_ON_WINDOWS_P(fixture, name, reason) \
  TEST_P(fixture, name) {                                    \
    GTEST_SKIP() << (reason);                                \
  }                                                          \
  static_assert(true)

namespace Zenvora::Test {

constexpr char kNamesAreText[] =
    "names of files are UTF-16 there: bytes that are not UTF-8 have no place in them";
constexpr char kNoPipesInFolders[] = "pipes have a place of their own there, they cannot lie in a folder";
constexpr char kNoSmallDisk[] = "nobody can make a small disk here";
constexpr char kNotImmutable[] = "no file has the attribute \"immutable\" there";
constexpr char kNoSizeLimit[] = "the limit of file sizes that stands for a full disk is a means of Linux";
constexpr char kAccessLists[] =
    "folders are closed by access lists there, which the standard library does not set";

}  // namespace Zenvora::Test
