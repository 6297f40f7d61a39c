#include <zenvora/core/Property.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace Zenvora::Core {
namespace {

TEST(Property, IsEmptyWithoutTextAndChildren) {
  const Property none;
  EXPECT_TRUE(none.IsEmpty());
  EXPECT_EQ(none.GetString(), "");
  EXPECT_FALSE(Property("a").IsEmpty());
  EXPECT_FALSE(Property(std::string()).IsEmpty()) << "an empty text is one";
  Property parent;
  parent.Set("a", Property());
  EXPECT_FALSE(parent.IsEmpty());
}

TEST(Property, FindsItsChildrenByTheirNames) {
  Property parent("own");
  parent.Set("a", Property("1"));
  parent.Set("b", Property("2"));
  EXPECT_EQ(parent["a"].GetString(), "1");
  EXPECT_EQ(parent["b"].GetString(), "2");
  EXPECT_EQ(parent.GetString(), "own");
  for (const char* other : {"", "A", "ab", "c"}) {
    EXPECT_TRUE(parent[other].IsEmpty()) << other;
  }
  EXPECT_TRUE(parent["c"]["d"]["e"].IsEmpty());
}

TEST(Property, LookingUpMakesNoChild) {
  Property none;
  EXPECT_TRUE(none["a"].IsEmpty());
  EXPECT_TRUE(none.IsEmpty());
}

TEST(Property, TheLastChildOfANameCounts) {
  Property parent;
  parent.Set("a", Property("1"));
  parent.Set("a", Property("2"));
  EXPECT_EQ(parent["a"].GetString(), "2");
}

TEST(Property, CopiesShareNothing) {
  Property first;
  first.Set("a", Property("1"));
  Property second = first;
  second.Set("a", Property("2"));
  EXPECT_EQ(first["a"].GetString(), "1");
  first = second;
  EXPECT_EQ(first["a"].GetString(), "2");
}

TEST(Property, LeavesNothingBehindWhenMoved) {
  Property first("text");
  first.Set("a", Property("1"));
  const Property second = std::move(first);
  EXPECT_TRUE(first.IsEmpty());  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(first.GetString(), "");
  EXPECT_EQ(second.GetString(), "text");
  EXPECT_EQ(second["a"].GetString(), "1");
}

TEST(Property, CanBecomeItsOwnChild) {
  Property grandchild;
  grandchild.Set("b", Property("deep"));
  Property parent("top");
  parent.Set("a", grandchild);
  parent = Property(parent["a"]);
  EXPECT_EQ(parent["b"].GetString(), "deep");
  EXPECT_EQ(parent.GetString(), "");
}

TEST(Property, StaysWhereItIsWhenOthersChange) {
  const std::string text(100, 'x');
  const Property property(text);
  const std::string& seen = property.GetString();
  EXPECT_EQ(seen, text);
  EXPECT_EQ(&seen, &property.GetString());
  const Property& missing = property["a"];
  EXPECT_EQ(&missing, &Property()["b"]) << "one for all that is missing";
}

}  // namespace
}  // namespace Zenvora::Core
