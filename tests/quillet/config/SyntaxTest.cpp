#include "Reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace Zenvora::Quillet::Config {
namespace {

using Zenvora::Test::Failure;
using Zenvora::Test::FailureOfContent;
using Zenvora::Test::RootOf;

class GoodText : public testing::TestWithParam<std::string> {};

TEST_P(GoodText, IsAccepted) {
  EXPECT_EQ(RootOf(GetParam())->GetText("k", "none"), "v");
}

INSTANTIATE_TEST_SUITE_P(Table, GoodText,
                         testing::Values("{\"k\":\"v\"}", " \t\r\n{ \"k\" : \"v\" } \n",
                                         "\xEF\xBB\xBF{\"k\":\"v\"}", "{\"\\u006b\":\"\\u0076\"}",
                                         "{\"x\":1e3,\"k\":\"v\"}", "{\"k\":\"first\",\"k\":\"v\"}",
                                         "{\"x\":[null,true,false,-0,1.5,[],{}],\"k\":\"v\"}"));

struct Broken {
  std::string content;
  std::string place;
};

class BadText : public testing::TestWithParam<Broken> {};

TEST_P(BadText, IsRefusedWithFilePlaceAndCause) {
  const Failure failure = FailureOfContent(GetParam().content);
  ASSERT_TRUE(failure.thrown);
  EXPECT_EQ(failure.document, "f.json");
  const std::string start = "f.json, at " + GetParam().place + ": is not JSON: ";
  EXPECT_EQ(failure.text.substr(0, start.size()), start);
  EXPECT_GT(failure.text.size(), start.size());
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadText,
    testing::Values(Broken{"", "line 1, column 1"}, Broken{"\xEF\xBB\xBF", "line 1, column 2"},
                    Broken{"   \n", "line 2, column 1"}, Broken{"text", "line 1, column 2"},
                    Broken{"7", "line 1, column 2"}, Broken{"null", "line 1, column 2"},
                    Broken{"\"text\"", "line 1, column 2"}, Broken{"{\"k\":\"v\"", "line 1, column 9"},
                    Broken{"{\n\"k\":\n\"v", "line 3, column 3"},
                    Broken{"{\"k\":\"v\",}", "line 1, column 11"}, Broken{"{'k':'v'}", "line 1, column 3"},
                    Broken{"{\n \"k\": x}", "line 2, column 7"}, Broken{"{\"k\":01}", "line 1, column 8"},
                    Broken{"{\"k\":1e999}", "line 1, column 11"},
                    Broken{"{\"k\":\"\xFF\"}", "line 1, column 7"},
                    Broken{"{\"k\":\"v\"} {}", "line 1, column 11"},
                    Broken{"// note\n{\"k\":\"v\"}", "line 1, column 2"},
                    Broken{std::string("\0\0\0\0", 4), "line 1, column 2"}));

TEST(Text, MustHoldAnObjectAtTheTop) {
  EXPECT_EQ(FailureOfContent("[]").text, "f.json: an object is expected at the top");
  EXPECT_EQ(FailureOfContent("[{\"k\":\"v\"}]").text, "f.json: an object is expected at the top");
}

TEST(RootName, ChoosesAMemberObject) {
  const std::string content =
      R"({"k":"outer","one":{"k":"inner","one":{"k":"innermost"}},"":{"k":"unnamed"}})";
  EXPECT_EQ(RootOf(content)->GetText("k", ""), "outer");
  EXPECT_EQ(RootOf(content, "one")->GetText("k", ""), "inner");
}

TEST(RootName, OfNoObjectIsRefusedAtItsPlace) {
  const std::string content = R"({"text":"t","list":[],"a/b~c":null})";
  EXPECT_EQ(FailureOfContent(content, "missing").text,
            "f.json, at /missing: an object is expected, but nothing is found");
  EXPECT_EQ(FailureOfContent(content, "text").text,
            "f.json, at /text: an object is expected, but a text is found");
  EXPECT_EQ(FailureOfContent(content, "list").text,
            "f.json, at /list: an object is expected, but an array is found");
  EXPECT_EQ(FailureOfContent(content, "a/b~c").text,
            "f.json, at /a~1b~0c: an object is expected, but null is found");
}

enum class Brackets { Objects, Arrays, Mixed };

/// `levels` deep with the root object.
std::string Nested(Brackets brackets, std::size_t levels) {
  std::string open;
  std::string close;
  for (std::size_t level = 2; level <= levels; ++level) {
    const bool object = brackets == Brackets::Objects || (brackets == Brackets::Mixed && level % 2 == 0);
    open += object ? "{\"k\":" : "[";
    close += object ? '}' : ']';
  }
  std::reverse(close.begin(), close.end());
  return "{\"deep\":" + open + "1" + close + ",\"k\":\"v\"}";
}

class Depth : public testing::TestWithParam<Brackets> {};

TEST_P(Depth, IsAcceptedAtTheLimitAndRefusedBeyond) {
  EXPECT_EQ(BaseConfig::kDepthLimit, 64U);
  EXPECT_EQ(RootOf(Nested(GetParam(), 64))->GetText("k", ""), "v");

  const std::string tooDeep = Nested(GetParam(), 65);
  const Failure failure = FailureOfContent(tooDeep);
  ASSERT_TRUE(failure.thrown);
  const auto bracket = tooDeep.rfind(GetParam() == Brackets::Objects ? '{' : '[');
  EXPECT_EQ(failure.text,
            "f.json, at line 1, column " + std::to_string(bracket + 1) + ": is nested deeper than 64 levels");
}

INSTANTIATE_TEST_SUITE_P(Table, Depth, testing::Values(Brackets::Objects, Brackets::Arrays, Brackets::Mixed));

TEST(DepthOfText, DoesNotCountBracketsInsideOfTexts) {
  const std::string brackets(200, '[');
  EXPECT_EQ(RootOf("{\"" + brackets + "\":\"\\\"{{" + brackets + "\",\"k\":\"v\"}")->GetText("k", ""), "v");
}

TEST(DepthOfText, DoesNotCountNeighbours) {
  std::string list;
  for (int i = 0; i < 1000; ++i) {
    list += "[{}],";
  }
  EXPECT_EQ(RootOf("{\"list\":[" + list + "[]],\"k\":\"v\"}")->GetText("k", ""), "v");
}

TEST(DepthOfText, IsRefusedAlsoWhenItIsHuge) {
  EXPECT_TRUE(FailureOfContent(std::string(1000000, '[')).thrown);
  EXPECT_TRUE(FailureOfContent(Nested(Brackets::Objects, 100000)).thrown);
}

}  // namespace
}  // namespace Zenvora::Quillet::Config
