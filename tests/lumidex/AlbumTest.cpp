#include <zenvora/lumidex/Album.h>

#include <gtest/gtest.h>

#include <vector>

namespace Zenvora::Lumidex {
namespace {

DataModel Record() {
  DataModel record(QStringLiteral("Summer"), QStringLiteral("album-1"), ItemType::Album);
  record.SetDateTime(QDateTime(QDate(2015, 6, 1), QTime(0, 0)));
  return record;
}

TEST(Album, HoldsRecordMembersAndAttributesAsGiven) {
  const std::vector<QString> ids = {QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")};
  const Album::Attributes attributes = {{DataAttributeId::Description, QStringLiteral("sea")},
                                        {DataAttributeId::CoverPhoto, QString()},
                                        {DataAttributeId::Description, QStringLiteral("again")}};
  const Album album(Record(), ids, attributes);
  EXPECT_EQ(album.GetModel().GetName(), QStringLiteral("Summer"));
  EXPECT_EQ(album.GetModel().GetId(), QStringLiteral("album-1"));
  EXPECT_EQ(album.GetModel().GetType(), ItemType::Album);
  EXPECT_EQ(album.GetModel().GetDateTime().date(), QDate(2015, 6, 1));
  EXPECT_EQ(album.GetPhotoIds(), ids);
  EXPECT_EQ(album.GetAttributes(), attributes);
}

TEST(Album, MayBeEmpty) {
  const Album album(DataModel(), {}, {});
  EXPECT_TRUE(album.GetPhotoIds().empty());
  EXPECT_TRUE(album.GetAttributes().empty());
}

TEST(Album, DoesNotFollowWhatItWasMadeOf) {
  DataModel record = Record();
  std::vector<QString> ids = {QStringLiteral("a")};
  const Album album(record, ids, {});
  record.SetLost(true);
  ids.emplace_back(QStringLiteral("b"));
  EXPECT_FALSE(album.GetModel().IsLost());
  EXPECT_EQ(album.GetPhotoIds().size(), 1U);
}

TEST(Album, IsCopiedAndAssignedAsAValue) {
  const Album one(Record(), {QStringLiteral("a")}, {{DataAttributeId::CoverPhoto, QStringLiteral("a")}});
  Album other(DataModel(), {}, {});
  other = one;
  EXPECT_EQ(other.GetModel().GetId(), QStringLiteral("album-1"));
  EXPECT_EQ(other.GetPhotoIds(), one.GetPhotoIds());
  EXPECT_EQ(other.GetAttributes(), one.GetAttributes());
}

}  // namespace
}  // namespace Zenvora::Lumidex
