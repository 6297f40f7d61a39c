#include <support/Doubles.h>

#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <gtest/gtest.h>

#include <optional>
#include <type_traits>

namespace Zenvora::Lumidex {
namespace {

TEST(FileAccessLockerGuard, HoldsThePathForItsScope) {
  Zenvora::Test::FakeLocker locker;
  {
    const FileAccessLockerGuard guard(locker, "a.jpg");
    EXPECT_EQ(locker.held.count("a.jpg"), 1U);
  }
  EXPECT_EQ(locker.calls, (std::vector<std::string>{"lock a.jpg", "unlock a.jpg"}));
}

TEST(FileAccessLockerGuard, KeepsAPathOfItsOwn) {
  Zenvora::Test::FakeLocker locker;
  {
    std::optional<ioPath> path("a.jpg");
    const FileAccessLockerGuard guard(locker, *path);
    path->clear();
  }
  EXPECT_TRUE(locker.held.empty());
}

TEST(FileAccessLockerGuard, ReleasesWhenAnExceptionPasses) {
  Zenvora::Test::FakeLocker locker;
  try {
    const FileAccessLockerGuard guard(locker, "a.jpg");
    throw 1;
  } catch (int) {
  }
  EXPECT_TRUE(locker.held.empty());
}

TEST(FileAccessLockerGuard, HoldsNothingWhenLockingFails) {
  Zenvora::Test::FakeLocker locker;
  locker.failing = true;
  EXPECT_THROW(FileAccessLockerGuard(locker, "a.jpg"), std::system_error);
  EXPECT_EQ(locker.calls, std::vector<std::string>{"lock a.jpg"});
}

TEST(FileAccessLockerGuard, CannotBeCopiedOrMoved) {
  EXPECT_FALSE(std::is_copy_constructible_v<FileAccessLockerGuard>);
  EXPECT_FALSE(std::is_move_constructible_v<FileAccessLockerGuard>);
  EXPECT_FALSE(std::is_copy_assignable_v<FileAccessLockerGuard>);
}

}  // namespace
}  // namespace Zenvora::Lumidex
