#include <zenvora/lumidex/DataModel.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>

namespace Zenvora::Lumidex {
namespace {

TEST(ItemType, KeepsItsStoredNumbers) {
  EXPECT_EQ(static_cast<int>(ItemType::Photo), 0);
  EXPECT_EQ(static_cast<int>(ItemType::Tag), 1);
  EXPECT_EQ(static_cast<int>(ItemType::Album), 2);
  EXPECT_EQ(static_cast<int>(ItemType::Place), 3);
  EXPECT_EQ(static_cast<int>(ItemType::Person), 7);
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ItemType>, int>));
}

TEST(DataAttributeId, KeepsItsStoredNumbers) {
  EXPECT_EQ(static_cast<int>(DataAttributeId::CoverPhoto), 0);
  EXPECT_EQ(static_cast<int>(DataAttributeId::Description), 1);
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<DataAttributeId>, int>));
}

TEST(DataModel, IsAnUnknownPhotoByDefault) {
  const DataModel model;
  EXPECT_TRUE(model.GetId().isEmpty());
  EXPECT_TRUE(model.GetName().isEmpty());
  EXPECT_EQ(model.GetType(), ItemType::Photo);
  EXPECT_TRUE(model.GetPath().empty());
  EXPECT_EQ(model.GetSize(), 0U);
  EXPECT_FALSE(model.GetDateTime().isValid());
  EXPECT_FALSE(model.IsLost());
}

TEST(DataModel, TakesNameBeforeId) {
  const DataModel model(QStringLiteral("Summer"), QStringLiteral("id-1"), ItemType::Album);
  EXPECT_EQ(model.GetName(), QStringLiteral("Summer"));
  EXPECT_EQ(model.GetId(), QStringLiteral("id-1"));
  EXPECT_EQ(model.GetType(), ItemType::Album);
  EXPECT_FALSE(model.IsLost());
}

TEST(DataModel, KeepsWhatItsOwnerSets) {
  DataModel model(QStringLiteral("a.jpg"), QStringLiteral("1"), ItemType::Photo);
  const std::string name = "/photos/caf\xC3\xA9.jpg";
  const ioPath path(name);
  const QDateTime taken(QDate(2015, 3, 29), QTime(2, 30, 0, 123));
  model.SetPath(path);
  model.SetSize(std::numeric_limits<std::uint64_t>::max());
  model.SetDateTime(taken);
  model.SetLost(true);
  EXPECT_EQ(model.GetPath(), path);
  EXPECT_EQ(model.GetPath().utf8string(), name);
  EXPECT_EQ(model.GetSize(), std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(model.GetDateTime(), taken);
  EXPECT_TRUE(model.IsLost());
  model.SetLost(false);
  EXPECT_FALSE(model.IsLost());
}

TEST(DataModel, CopiesAreIndependent) {
  DataModel original(QStringLiteral("a"), QStringLiteral("1"), ItemType::Person);
  original.SetPath("/a");
  DataModel copy(original);
  copy.SetPath("/b");
  copy.SetSize(1);
  copy.SetLost(true);
  EXPECT_EQ(original.GetPath(), ioPath("/a"));
  EXPECT_EQ(original.GetSize(), 0U);
  EXPECT_FALSE(original.IsLost());
  EXPECT_EQ(copy.GetId(), original.GetId());
  original = copy;
  EXPECT_EQ(original.GetPath(), ioPath("/b"));
}

TEST(DataModel, MovesWithoutCopying) {
  DataModel original(QStringLiteral("a"), QStringLiteral("1"), ItemType::Tag);
  const DataModel moved(std::move(original));
  EXPECT_EQ(moved.GetId(), QStringLiteral("1"));
  EXPECT_EQ(moved.GetType(), ItemType::Tag);
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<DataModel>);
}

}  // namespace
}  // namespace Zenvora::Lumidex
