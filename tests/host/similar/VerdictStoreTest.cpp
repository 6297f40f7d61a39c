#include "RawSql.h"
#include "Records.h"

#include <host/similar/VerdictStore.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::ErrorOf;
using Test::Photos;
using Test::RunSql;

class VerdictStoreTest : public testing::Test {
 protected:
  VerdictStoreTest() {
    Catalogue catalogue(file_, Catalogue::Mode::ReadWrite);
    catalogue.Store(Photos("/p/", 3));
    photos_ = catalogue.Photos();
  }

  static PictureVerdict Alike() { return {Verdict::Alike, "cropped", 3.5}; }

  const Zenvora::Test::TempTree tree_;
  const ioPath file_ = tree_.Path("catalogue.sqlite");
  std::vector<PhotoRecord> photos_;
};

TEST_F(VerdictStoreTest, GivesBackVerdictsOfPairs) {
  VerdictStore store(file_);
  EXPECT_FALSE(store.Verdict(photos_[0], photos_[1]));
  store.StoreVerdicts({{photos_[0], photos_[1], Alike()}, {photos_[2], photos_[1], {}}});
  const auto verdict = VerdictStore(file_, Catalogue::Mode::ReadOnly).Verdict(photos_[0], photos_[1]);
  ASSERT_TRUE(verdict);
  EXPECT_EQ(verdict->verdict, Verdict::Alike);
  EXPECT_EQ(verdict->why, "cropped");
  EXPECT_EQ(verdict->worst, 3.5);
  EXPECT_EQ(store.Verdict(photos_[2], photos_[1])->verdict, Verdict::Unknown);
  EXPECT_FALSE(store.Verdict(photos_[1], photos_[0])) << "the other way round is another question";
  EXPECT_FALSE(store.Verdict(photos_[0], photos_[2]));
  store.StoreVerdicts({{photos_[0], photos_[1], {Verdict::Same, "identical files", 0}}});
  EXPECT_EQ(store.Verdict(photos_[0], photos_[1])->verdict, Verdict::Same);
}

TEST_F(VerdictStoreTest, KnowsNoVerdictOnFilesThatHaveChanged) {
  VerdictStore store(file_);
  store.StoreVerdicts({{photos_[0], photos_[1], Alike()}});
  for (const int which : {0, 1}) {
    std::vector<PhotoRecord> changed = photos_;
    ++changed[which].size;
    EXPECT_FALSE(store.Verdict(changed[0], changed[1]));
    changed = photos_;
    ++changed[which].modifiedNs;
    EXPECT_FALSE(store.Verdict(changed[0], changed[1]));
  }
  EXPECT_TRUE(store.Verdict(photos_[0], photos_[1]));
}

TEST_F(VerdictStoreTest, KnowsNothingOfOtherVersions) {
  VerdictStore store(file_);
  store.StoreVerdicts({{photos_[0], photos_[1], Alike()}});
  store.StoreOrigins({{photos_[0], PhotoOrigin()}});
  ASSERT_TRUE(
      RunSql(file_, {"UPDATE verdicts SET version = version + 1", "UPDATE origins SET version = version + 1"})
          .isValid());
  EXPECT_FALSE(store.Verdict(photos_[0], photos_[1]));
  EXPECT_FALSE(store.Origin(photos_[0]));
  // What was known before goes.
  store.StoreVerdicts({{photos_[0], photos_[2], Alike()}});
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM verdicts"}), QVariant(1));
}

TEST_F(VerdictStoreTest, GivesBackAllOfAnOrigin) {
  PhotoOrigin origin;
  origin.degradation = "the lower half";
  origin.cameraTags = true;
  origin.sizeAsTold = false;
  origin.cameraName = true;
  origin.standardTables = true;
  origin.enlarged = true;
  origin.quantisation = 2.5;
  origin.bytesPerPixel = 0.75;
  PhotoOrigin other;
  other.raw = true;
  other.makerNote = true;
  other.edited = true;
  other.hasJfif = true;
  VerdictStore store(file_);
  store.StoreOrigins({{photos_[0], origin}, {photos_[1], other}});
  const auto found = store.Origin(photos_[0]);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->degradation, "the lower half");
  EXPECT_EQ(found->quantisation, 2.5);
  EXPECT_EQ(found->bytesPerPixel, 0.75);
  const auto flags = [](const PhotoOrigin& of) {
    return std::vector<bool>{of.raw,        of.cameraTags, of.makerNote,      of.sizeAsTold, of.edited,
                             of.cameraName, of.hasJfif,    of.standardTables, of.enlarged};
  };
  EXPECT_EQ(flags(*found), flags(origin));
  EXPECT_EQ(flags(*store.Origin(photos_[1])), flags(other));
  PhotoRecord changed = photos_[0];
  ++changed.modifiedNs;
  EXPECT_FALSE(store.Origin(changed));
  EXPECT_FALSE(store.Origin(photos_[2]));
}

TEST_F(VerdictStoreTest, PassesOverPhotosThatItDoesNotKnow) {
  PhotoRecord unknown = photos_[0];
  unknown.id = QStringLiteral("nobody");
  VerdictStore store(file_);
  store.StoreVerdicts({{unknown, photos_[1], Alike()}, {photos_[1], unknown, Alike()}});
  store.StoreOrigins({{unknown, PhotoOrigin()}});
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM verdicts"}), QVariant(0));
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM origins"}), QVariant(0));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
