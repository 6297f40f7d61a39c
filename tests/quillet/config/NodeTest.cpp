#include "Reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Quillet {
namespace {

using namespace std::string_literals;  // NOLINT(google-build-using-namespace): texts with NUL need their
                                       // length
using Zenvora::Test::Failure;
using Zenvora::Test::FailureOf;
using Zenvora::Test::Node;
using Zenvora::Test::RootOf;

constexpr char kDocument[] = R"({
  "text": "gr\u00fc\u00df", "empty": "", "number": 7, "truth": true, "nothing": null,
  "object": {"text": "inner", "a/b": {"c~d": {"~1": 1}}},
  "list": [{"text": "first"}, [{"text": "deep"}], "text", 7, null, true, {}],
  "": "unnamed"
})";

/// The message behind the file's name.
std::string CauseOf(const std::function<void()>& action) {
  const Failure failure = FailureOf(action);
  if (!failure.thrown) {
    return "nothing is thrown";
  }
  return failure.text.rfind(failure.document, 0) == 0 ? failure.text.substr(failure.document.size())
                                                      : "the file is not named: " + failure.text;
}

TEST(Node, KnowsItsMembersOfEveryKind) {
  const Node root = RootOf(kDocument);
  for (const char* name : {"text", "empty", "number", "truth", "nothing", "object", "list", ""}) {
    EXPECT_TRUE(root->HasChild(name)) << name;
  }
  for (const std::string& name : {"Text"s, "missing"s, "text "s, "text\0"s, "object/text"s}) {
    EXPECT_FALSE(root->HasChild(name)) << name;
  }
  EXPECT_FALSE(root->GetArray("list")->HasChild("0"));
}

TEST(Node, ListsItsMembersSorted) {
  const Node root = RootOf(R"({"b": 1, "gr\u00fcn": null, "": {}, "a": [], "B": "", "a\u0000": 2})");
  EXPECT_EQ(root->GetNames(), (std::vector<std::string>{"", "B", "a", "a\0"s, "b", "gr\xC3\xBCn"}));
  EXPECT_EQ(RootOf("{}")->GetNames(), std::vector<std::string>());
  EXPECT_EQ(RootOf(R"({"list": [{"a": 1}]})")->GetArray("list")->GetNames(), std::vector<std::string>());
}

TEST(Node, GivesTextsAndTheDefaultForMissingOnes) {
  const Node root = RootOf(kDocument);
  EXPECT_EQ(root->GetText("text", "default"), "gr\xC3\xBC\xC3\x9F");
  EXPECT_EQ(root->GetText("empty", "default"), "");
  EXPECT_EQ(root->GetText("", "default"), "unnamed");
  EXPECT_EQ(root->GetText("missing", "default"), "default");
  EXPECT_EQ(root->GetText("missing", ""), "");
  EXPECT_EQ(root->GetArray("list")->GetText("text", "default"), "default");
}

TEST(Node, GivesTextsWithEscapesUnchanged) {
  const Node root = RootOf(R"({"a":"\"\\\/\b\f\n\r\t\u0000x","b":"\ud83d\udcf7","c":"é"})");
  EXPECT_EQ(root->GetText("a", ""), "\"\\/\b\f\n\r\t\0x"s);
  EXPECT_EQ(root->GetText("b", ""), "\xF0\x9F\x93\xB7");
  EXPECT_EQ(root->GetText("c", ""), "\xC3\xA9");
}

TEST(Node, RefusesTextsOfAnotherKind) {
  const Node root = RootOf(kDocument);
  const auto cause = [&](const char* key) { return CauseOf([&] { root->GetText(key, "default"); }); };
  EXPECT_EQ(cause("number"), ", at /number: a text is expected, but a number is found");
  EXPECT_EQ(cause("truth"), ", at /truth: a text is expected, but a truth value is found");
  EXPECT_EQ(cause("nothing"), ", at /nothing: a text is expected, but null is found");
  EXPECT_EQ(cause("object"), ", at /object: a text is expected, but an object is found");
  EXPECT_EQ(cause("list"), ", at /list: a text is expected, but an array is found");
}

TEST(Node, GivesMemberObjectsOnly) {
  const Node root = RootOf(kDocument);
  EXPECT_EQ(root->GetChild("object")->GetText("text", ""), "inner");
  const auto cause = [&](const char* key) { return CauseOf([&] { root->GetChild(key); }); };
  EXPECT_EQ(cause("missing"), ", at /missing: an object is expected, but nothing is found");
  EXPECT_EQ(cause("list"), ", at /list: an object is expected, but an array is found");
  EXPECT_EQ(cause("text"), ", at /text: an object is expected, but a text is found");
  EXPECT_EQ(cause("nothing"), ", at /nothing: an object is expected, but null is found");
}

TEST(Node, GivesMemberArraysOnly) {
  const Node root = RootOf(kDocument);
  EXPECT_EQ(root->GetArray("list")->GetLength(), 7U);
  const auto cause = [&](const char* key) { return CauseOf([&] { root->GetArray(key); }); };
  EXPECT_EQ(cause("missing"), ", at /missing: an array is expected, but nothing is found");
  EXPECT_EQ(cause("object"), ", at /object: an array is expected, but an object is found");
  EXPECT_EQ(cause("number"), ", at /number: an array is expected, but a number is found");
}

TEST(Node, GivesElementsThatAreObjectsOrArrays) {
  const Node list = RootOf(kDocument)->GetArray("list");
  EXPECT_EQ(list->GetElement(0)->GetText("text", ""), "first");
  EXPECT_EQ(list->GetElement(1)->GetElement(0)->GetText("text", ""), "deep");
  EXPECT_EQ(list->GetElement(6)->GetText("text", "none"), "none");
}

TEST(Node, RefusesElementsOfAnotherKindAndBeyondTheEnd) {
  const Node list = RootOf(kDocument)->GetArray("list");
  const auto cause = [&](std::size_t index) { return CauseOf([&] { list->GetElement(index); }); };
  EXPECT_EQ(cause(2), ", at /list/2: an object is expected, but a text is found");
  EXPECT_EQ(cause(3), ", at /list/3: an object is expected, but a number is found");
  EXPECT_EQ(cause(4), ", at /list/4: an object is expected, but null is found");
  EXPECT_EQ(cause(5), ", at /list/5: an object is expected, but a truth value is found");
  EXPECT_EQ(cause(7), ", at /list/7: the array's length is 7");
  // Would be element 0 if it were cut to 32 bits.
  EXPECT_EQ(cause(std::size_t{1} << 32U), ", at /list/4294967296: the array's length is 7");
}

TEST(Node, ThatIsAnObjectHasNoElements) {
  const Node root = RootOf(kDocument);
  EXPECT_EQ(root->GetLength(), 0U);
  EXPECT_EQ(root->GetChild("object")->GetLength(), 0U);
  EXPECT_EQ(CauseOf([&] { root->GetElement(0); }), ": an array is expected, but an object is found");
  EXPECT_EQ(CauseOf([&] { root->GetChild("object")->GetElement(0); }),
            ", at /object: an array is expected, but an object is found");
}

TEST(Node, NamesPlacesAsJsonPointers) {
  const Node root = RootOf(kDocument);
  EXPECT_EQ(CauseOf([&] { root->GetChild("object")->GetChild("a/b")->GetChild("c~d")->GetText("~1", ""); }),
            ", at /object/a~1b/c~0d/~01: a text is expected, but a number is found");
  EXPECT_EQ(CauseOf([&] { root->GetArray("list")->GetElement(1)->GetElement(1); }),
            ", at /list/1/1: the array's length is 1");
  EXPECT_EQ(CauseOf([&] { root->GetChild(""); }), ", at /: an object is expected, but a text is found");
}

TEST(Node, KeepsTheLastOfMembersOfOneName) {
  const Node root = RootOf(R"({"k":"first","z":1,"k":7,"k":"last"})");
  EXPECT_EQ(root->GetText("k", ""), "last");
}

TEST(Node, OutlivesReaderFileAndParents) {
  const Node deep = [] { return RootOf(kDocument)->GetArray("list")->GetElement(1)->GetElement(0); }();
  EXPECT_EQ(deep->GetRefCount(), 1U);
  EXPECT_EQ(deep->GetText("text", ""), "deep");
}

TEST(Node, LivesInNumbers) {
  constexpr int kCount = 20000;
  std::string list = "[";
  for (int i = 0; i < kCount; ++i) {
    list += (i == 0 ? "{\"n\":\"" : ",{\"n\":\"") + std::to_string(i) + "\"}";
  }
  const Node array = RootOf("{\"list\":" + list + "]}")->GetArray("list");
  ASSERT_EQ(array->GetLength(), static_cast<std::size_t>(kCount));
  for (std::size_t i = 0; i < array->GetLength(); ++i) {
    ASSERT_EQ(array->GetElement(i)->GetText("n", ""), std::to_string(i));
  }
}

}  // namespace
}  // namespace Zenvora::Quillet
