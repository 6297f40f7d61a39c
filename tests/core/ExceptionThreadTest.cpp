#include <zenvora/core/CallStack.h>
#include <zenvora/core/Exception.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace Zenvora {
namespace {

boost::exception_ptr Caught(const std::string& text, const std::string& callStack) {
  try {
    Core::JsonException failure;
    failure << TagParseError(text) << TagFilename("f.json") << TagCallStack(callStack);
    BOOST_THROW_EXCEPTION(failure);
  } catch (...) {
    return boost::current_exception();
  }
}

TEST(ExceptionOnAnotherThread, KeepsTypeTagsThrowSiteAndCallStack) {
  boost::exception_ptr carried;
  const std::string callStack = GetCallStack();
  ASSERT_FALSE(callStack.empty());
  std::thread([&] { carried = Caught("broken", callStack); }).join();
  ASSERT_TRUE(carried);
  try {
    boost::rethrow_exception(carried);
  } catch (const Core::JsonException& failure) {
    EXPECT_STREQ(failure.what(), "broken");
    EXPECT_EQ(*boost::get_error_info<TagFilename>(failure), "f.json");
    EXPECT_EQ(*boost::get_error_info<TagCallStack>(failure), callStack);
    EXPECT_NE(boost::get_error_info<boost::throw_line>(failure), nullptr);
    return;
  }
  FAIL() << "nothing was thrown";
}

TEST(ExceptionOnAnotherThread, IsRethrownOnOneThreadAfterTheOther) {
  const boost::exception_ptr carried = Caught("broken", "stack");
  for (int i = 0; i < 3; ++i) {
    std::string text;
    std::thread([&] {
      try {
        boost::rethrow_exception(carried);
      } catch (const Exception& failure) {
        text = failure.what();
      }
    }).join();
    EXPECT_EQ(text, "broken");
  }
}

TEST(ExceptionOnManyThreads, CarriesEachItsOwnTags) {
  std::vector<boost::exception_ptr> carried(4);
  std::vector<std::thread> threads;
  threads.reserve(carried.size());
  for (std::size_t i = 0; i < carried.size(); ++i) {
    threads.emplace_back([&carried, i] { carried[i] = Caught(std::to_string(i), "stack"); });
  }
  for (auto& thread : threads) {
    thread.join();
  }
  for (std::size_t i = 0; i < carried.size(); ++i) {
    try {
      boost::rethrow_exception(carried[i]);
    } catch (const Core::JsonException& failure) {
      EXPECT_EQ(failure.what(), std::to_string(i));
      continue;
    }
    FAIL() << "nothing was thrown";
  }
}

}  // namespace
}  // namespace Zenvora
