// Many threads on few paths.

#include <LumidexUtil/FileAccessLocker.h>
#include <LumidexUtil/Rename.h>
#include <support/OnThreads.h>
#include <support/TempTree.h>

#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex {
namespace {

constexpr int kThreads = 16;
constexpr int kPaths = 64;

TEST(FileAccessOnManyThreads, LetsOneThreadAtATimeHoldAPath) {
  constexpr int kRounds = 20'000;
  const Zenvora::Test::TempTree tree;
  const auto locker = FileAccessLocker::Create();
  std::vector<ioPath> paths;
  paths.reserve(kPaths);
  for (int i = 0; i < kPaths; ++i) {
    paths.push_back(tree.Write(std::to_string(i), ""));
  }
  // Plain numbers: only the locks keep them whole.
  std::vector<std::uint64_t> counts(kPaths);
  Zenvora::Test::OnThreads(kThreads, [&](int thread) {
    auto state = static_cast<std::uint32_t>(thread + 1);
    for (int round = 0; round < kRounds; ++round) {
      state = state * 1664525U + 1013904223U;
      const std::size_t which = (state >> 16) % kPaths;
      const FileAccessLockerGuard guard(*locker, paths[which]);
      ++counts[which];
    }
  });
  std::uint64_t total = 0;
  for (const std::uint64_t count : counts) {
    total += count;
  }
  EXPECT_EQ(total, std::uint64_t{kThreads} * kRounds);
}

TEST(FileAccessOnManyThreads, LosesNoFileThatManyMove) {
  constexpr int kRounds = 200;
  const Zenvora::Test::TempTree tree;
  const auto locker = FileAccessLocker::Create();
  for (int i = 0; i < kThreads; ++i) {
    tree.Write(std::to_string(i) + "-0", std::to_string(i));
  }
  // Every thread walks a file of its own along.
  Zenvora::Test::OnThreads(kThreads, [&](int thread) {
    const std::string own = std::to_string(thread) + "-";
    for (int round = 0; round < kRounds; ++round) {
      Util::Rename(*locker, tree.Path(own + std::to_string(round)),
                   tree.Path(own + std::to_string(round + 1)));
    }
  });
  for (int i = 0; i < kThreads; ++i) {
    EXPECT_EQ(Zenvora::Test::ReadFile(tree.Path(std::to_string(i) + "-" + std::to_string(kRounds))),
              std::to_string(i));
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex
