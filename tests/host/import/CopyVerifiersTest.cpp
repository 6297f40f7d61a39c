#include "CopyVerifiers.h"

#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

TEST(CopyVerifiers, CompareInSeveralThreads) {
  const Zenvora::Test::TempTree tree;
  constexpr std::size_t kFiles = 200;
  CopyVerifiers verifiers(4);
  std::set<std::size_t> whole;
  std::set<std::size_t> different;
  const auto collect = [&](bool wait) {
    for (const CopyVerifiers::Result& result : verifiers.Collect(wait)) {
      (result.verified.status == CopyOutcome::Status::Copied ? whole : different).insert(result.task.index);
    }
  };
  for (std::size_t i = 0; i < kFiles; ++i) {
    const ioPath source = tree.Write("source" + std::to_string(i), "content " + std::to_string(i));
    CopyVerifiers::Task task{i, tree.Path("copy" + std::to_string(i) + ".jpg"), i % 2 == 0, {}};
    task.copied = CopyToNew(source, QueryFile(source), task.copy, nullptr);
    if (i % 10 == 0) {
      tree.Write(task.copy, "damaged");
    }
    verifiers.Submit(std::move(task));
    while (verifiers.IsFull()) {
      collect(true);
    }
  }
  while (!verifiers.IsIdle()) {
    collect(true);
  }
  EXPECT_EQ(whole.size(), kFiles * 9 / 10);
  EXPECT_EQ(different.size(), kFiles / 10);
}

TEST(CopyVerifiers, LeaveWhatNobodyWaitsFor) {
  const Zenvora::Test::TempTree tree;
  const ioPath source = tree.Write("source", "content");
  constexpr int kFiles = 50;
  const auto copy = [&tree](int i) { return tree.Path("copy" + std::to_string(i)); };
  {
    CopyVerifiers verifiers(2);
    for (int i = 0; i < kFiles; ++i) {
      CopyVerifiers::Task task{0, copy(i), false, {}};
      task.copied = CopyToNew(source, QueryFile(source), task.copy, nullptr);
      verifiers.Submit(std::move(task));
    }
  }
  for (int i = 0; i < kFiles; ++i) {
    EXPECT_EQ(Zenvora::Test::ReadFile(copy(i)), "content") << i;
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
