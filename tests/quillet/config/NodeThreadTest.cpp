#include "Reader.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Quillet {
namespace {

using Zenvora::Test::Keeper;
using Zenvora::Test::Node;
using Zenvora::Test::TempTree;

constexpr int kThreads = 4;
constexpr int kElements = 200;

std::string Document() {
  std::string list;
  for (int i = 0; i < kElements; ++i) {
    list += (i == 0 ? "" : ",") + std::string("{\"n\":\"") + std::to_string(i) + "\",\"o\":{\"t\":1}}";
  }
  return "{\"list\":[" + list + "]}";
}

void ReadAll(const Node& root) {
  const Node list = root->GetArray("list");
  for (std::size_t i = 0; i < list->GetLength(); ++i) {
    const Node element = list->GetElement(i);
    EXPECT_EQ(element->GetText("n", ""), std::to_string(i));
    EXPECT_THROW(element->GetChild("o")->GetText("t", ""), Core::JsonException);
  }
}

template <class Action>
void OnThreads(const Action& action) {
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back(action);
  }
  for (auto& thread : threads) {
    thread.join();
  }
}

TEST(NodeOnManyThreads, IsReadAlike) {
  const Node root = Zenvora::Test::RootOf(Document());
  OnThreads([&root] { ReadAll(root); });
  EXPECT_EQ(root->GetRefCount(), 1U);
}

TEST(ReaderOnManyThreads, ServesAll) {
  const TempTree tree;
  const std::string file = tree.Write("f.json", Document()).utf8string();
  const Config::BaseConfig reader;
  OnThreads([&] {
    Keeper keeper;
    reader.Parse(keeper, "", file, false);
    ReadAll(keeper.kept);
  });
}

}  // namespace
}  // namespace Zenvora::Quillet
