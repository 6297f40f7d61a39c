#include <zenvora/core/CallStack.h>

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

// Exported and never inlined, so that the loader knows them by name.
#ifdef _WIN32
#define LUMIDEX_TEST_VISIBLE __declspec(dllexport) __attribute__((noinline))
#else
#define LUMIDEX_TEST_VISIBLE __attribute__((visibility("default"), noinline))
#endif

namespace Zenvora::CallStackTest {

// The text is touched after each call: a call at the very end would hand its frame over.
LUMIDEX_TEST_VISIBLE std::string AskFromHere() {
  std::string text = GetCallStack();
  text += "";
  return text;
}

LUMIDEX_TEST_VISIBLE std::string AskThroughOneMore() {
  std::string text = AskFromHere();
  text += "";
  return text;
}

[[noreturn]] LUMIDEX_TEST_VISIBLE void ThrowCallStack() {
  throw std::runtime_error(GetCallStack());
}

// Nothing follows the call: the address to return to lies outside of this function.
[[noreturn]] LUMIDEX_TEST_VISIBLE void EndInACallThatNeverReturns() {
  ThrowCallStack();
}

LUMIDEX_TEST_VISIBLE void BehindIt() {}

// A deep stack is the matter
LUMIDEX_TEST_VISIBLE std::string AskFromDepth(int depth) {
  std::string text = depth == 0 ? GetCallStack() : AskFromDepth(depth - 1);
  text += "";
  return text;
}

namespace {

std::vector<std::string> Frames(const std::string& text) {
  std::vector<std::string> frames;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    frames.push_back(line);
  }
  return frames;
}

bool Names(const std::string& frame, const std::string& function) {
  return frame.find(function) != std::string::npos;
}

TEST(CallStack, NumbersItsFramesFromTheCallerOn) {
  const auto frames = Frames(AskThroughOneMore());
  ASSERT_GE(frames.size(), 3U);
  for (std::size_t i = 0; i < frames.size(); ++i) {
    EXPECT_EQ(frames[i].rfind(std::to_string(i) + "# ", 0), 0U) << frames[i];
  }
}

TEST(CallStack, NamesTheCallerFirst) {
  const auto frames = Frames(AskThroughOneMore());
  ASSERT_GE(frames.size(), 2U);
  EXPECT_TRUE(Names(frames[0], "Zenvora::CallStackTest::AskFromHere")) << frames[0];
  EXPECT_TRUE(Names(frames[1], "Zenvora::CallStackTest::AskThroughOneMore")) << frames[1];
}

TEST(CallStack, NamesTheBinaryOfEachFrame) {
  const auto frames = Frames(AskFromHere());
  ASSERT_FALSE(frames.empty());
  EXPECT_TRUE(Names(frames[0], " in ")) << frames[0];
  EXPECT_TRUE(Names(frames[0], "test_core")) << frames[0];
}

TEST(CallStack, NamesFunctionsThatEndInACallThatNeverReturns) {
  BehindIt();
  try {
    EndInACallThatNeverReturns();
  } catch (const std::runtime_error& thrown) {
    const auto frames = Frames(thrown.what());
    ASSERT_GE(frames.size(), 2U);
    EXPECT_TRUE(Names(frames[0], "ThrowCallStack")) << frames[0];
    EXPECT_TRUE(Names(frames[1], "EndInACallThatNeverReturns")) << frames[1];
  }
}

TEST(CallStack, HoldsAtMost64Frames) {
  const auto frames = Frames(AskFromDepth(500));
  EXPECT_EQ(frames.size(), 64U);
  EXPECT_TRUE(Names(frames.front(), "AskFromDepth")) << frames.front();
  EXPECT_TRUE(Names(frames.back(), "AskFromDepth")) << frames.back();
}

TEST(CallStack, IsReadOnManyThreadsAtOnce) {
  std::vector<std::string> texts(4);
  std::vector<std::thread> threads;
  threads.reserve(texts.size());
  for (auto& text : texts) {
    threads.emplace_back([&text] {
      for (int i = 0; i < 20; ++i) {
        text = AskFromHere();
      }
    });
  }
  for (auto& thread : threads) {
    thread.join();
  }
  for (const auto& text : texts) {
    EXPECT_NE(text.find("0# "), std::string::npos);
    EXPECT_NE(text.find("AskFromHere"), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace Zenvora::CallStackTest
