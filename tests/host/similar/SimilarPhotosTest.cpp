#include "RawSql.h"
#include "Records.h"
#include "SimilarStore.h"

#include <host/similar/SimilarPhotos.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::ErrorOf;
using Test::Photo;
using Test::RunSql;
using Test::Slashes;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const AnalyserName kAnalyser{QStringLiteral("test"), 1, 2};

class SimilarPhotosTest : public testing::Test {
 protected:
  /// A photo with each of the vectors, a day after the other, /p/0 first.
  void AddPhotos(const std::vector<std::vector<float>>& vectors) {
    std::vector<PhotoRecord> photos;
    for (std::size_t i = 0; i < vectors.size(); ++i) {
      photos.push_back(Photo(ioPath("/p/" + std::to_string(known_ + i)),
                             QDate(2021, 1, 1).addDays(static_cast<qint64>(known_ + i))));
    }
    catalogue_.Store(photos);
    known_ += vectors.size();
    std::size_t next = 0;
    std::vector<AnalysedPhoto> analysed;
    for (const PhotoRecord& photo : similar_->Pending()) {
      analysed.push_back(Analysed(photo, vectors.at(next++)));
    }
    similar_->Store(analysed);
  }

  static AnalysedPhoto Analysed(const PhotoRecord& photo, const std::vector<float>& vector) {
    AnalysedPhoto analysed;
    analysed.id = photo.id;
    analysed.stamp = {photo.size, photo.modifiedNs, false};
    analysed.features.vector = vector;
    analysed.features.problem = vector.empty() ? "no picture" : "";
    analysed.features.width = 40;
    analysed.features.height = 30;
    analysed.features.sharpness = 1.5;
    return analysed;
  }

  std::size_t Cluster() { return similar_->AddToClusters(never_, nullptr); }

  /// Paths of the members of each group.
  std::vector<std::vector<std::string>> Groups(std::size_t least = 1) const {
    std::vector<std::vector<std::string>> groups;
    for (const SimilarGroup& group : similar_->Groups(least)) {
      groups.emplace_back();
      for (const SimilarMember& member : group.members) {
        groups.back().push_back(Slashes(member.photo.path));
      }
    }
    return groups;
  }

  void Reopen(const AnalyserName& analyser = kAnalyser) {
    similar_.reset();
    similar_.emplace(file_, analyser);
  }

  const Zenvora::Test::TempTree tree_;
  const ioPath file_ = tree_.Path("catalogue.sqlite");
  Catalogue catalogue_{file_, Catalogue::Mode::ReadWrite};
  std::optional<SimilarPhotos> similar_{std::in_place, file_, kAnalyser};
  const std::atomic<bool> never_{false};
  std::size_t known_ = 0;
};

const std::vector<std::vector<float>> kTwoPairs{{1, 0}, {0, 1}, {1, 0.1F}, {0.1F, 1}};

TEST_F(SimilarPhotosTest, GroupsPhotosThatAreAlike) {
  AddPhotos(kTwoPairs);
  EXPECT_EQ(Cluster(), 4U);
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/0", "/p/2"), ElementsAre("/p/1", "/p/3")));
  const SimilarGroup group = similar_->Groups(2).at(0);
  EXPECT_EQ(group.centre, (std::vector<float>{1, 0.05F}));
  EXPECT_EQ(group.members[0].features.width, 40);
  EXPECT_EQ(group.members[0].features.height, 30);
  EXPECT_EQ(group.members[0].features.sharpness, 1.5);
  EXPECT_NEAR(group.members[0].score, 1 / std::sqrt(1.0025), 1e-6);
  EXPECT_EQ(Cluster(), 0U);
}

TEST_F(SimilarPhotosTest, ShowsLargeGroupsFirstAndSmallOnesOnRequest) {
  AddPhotos({{0, 1}, {1, 0}, {1, 0.1F}, {-1, 0}, {1, 0.05F}});
  Cluster();
  EXPECT_THAT(Groups(1), ElementsAre(SizeIs(3), ElementsAre("/p/0"), ElementsAre("/p/3")));
  EXPECT_THAT(Groups(2), ElementsAre(SizeIs(3)));
  EXPECT_THAT(Groups(4), IsEmpty());
}

TEST_F(SimilarPhotosTest, GoesOnWhereItWas) {
  AddPhotos(kTwoPairs);
  Cluster();
  Reopen();
  AddPhotos({{1, 0.2F}, {-1, 0}});
  EXPECT_EQ(Cluster(), 2U);
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/0", "/p/2", "/p/4"), ElementsAre("/p/1", "/p/3"),
                                    ElementsAre("/p/5")));
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, NamesThePhotosThatAreToBeAnalysed) {
  catalogue_.Store({Photo("/p/b", QDate(2021, 1, 1)), Photo("/p/a", QDate(2021, 1, 2)), Photo("/p/c")});
  catalogue_.MarkLost({"/p/c"});
  std::vector<PhotoRecord> pending = similar_->Pending();
  ASSERT_THAT(pending, SizeIs(2));
  EXPECT_EQ(Slashes(pending[0].path), "/p/b");
  similar_->Store({Analysed(pending[0], {1, 0}), Analysed(pending[1], {})});
  EXPECT_THAT(similar_->Pending(), IsEmpty());
  // Its file has changed.
  PhotoRecord changed = Photo("/p/b", QDate(2021, 1, 1));
  changed.size = 7;
  catalogue_.Store({changed});
  pending = similar_->Pending();
  ASSERT_THAT(pending, SizeIs(1));
  EXPECT_EQ(pending[0].size, 7U);
}

TEST_F(SimilarPhotosTest, TellsWhatCannotBeAnalysed) {
  AddPhotos({{}, {1, 0}});
  EXPECT_EQ(Cluster(), 1U);
  const auto problems = similar_->Problems();
  ASSERT_THAT(problems, SizeIs(1));
  EXPECT_EQ(Slashes(problems[0].first.path), "/p/0");
  EXPECT_EQ(problems[0].second, "no picture");
}

TEST_F(SimilarPhotosTest, LeavesLostPhotosOutOfTheGroups) {
  AddPhotos({{1, 0}, {1, 0.1F}, {1, 0.2F}});
  Cluster();
  EXPECT_EQ(similar_->CountClustered(), 3U);
  catalogue_.MarkLost({"/p/1"});
  EXPECT_EQ(similar_->CountClustered(), 2U);
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/0", "/p/2")));
  EXPECT_THAT(Groups(3), IsEmpty());
  // The centre still knows it.
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, LeavesPhotosOutOfTheGroupsThatWereNotLookedAtSinceTheyChanged) {
  AddPhotos({{1, 0}, {1, 0.1F}, {1, 0.2F}});
  Cluster();
  PhotoRecord changed = similar_->Groups(1).at(0).members.at(1).photo;
  changed.size = 7;
  catalogue_.Store({changed});
  EXPECT_THAT(Groups(2), ElementsAre(ElementsAre("/p/0", "/p/2")));
  EXPECT_THAT(Groups(3), IsEmpty());
}

TEST_F(SimilarPhotosTest, MakesAllClustersAnewWhenAPhotoInOneChanges) {
  AddPhotos(kTwoPairs);
  Cluster();
  PhotoRecord changed = Photo("/p/2", QDate(2021, 1, 3));
  changed.modifiedNs += 1;
  catalogue_.Store({changed});
  const std::vector<PhotoRecord> pending = similar_->Pending();
  ASSERT_THAT(pending, SizeIs(1));
  // The same picture: only its metadata were edited.
  similar_->Store({Analysed(pending[0], {1, 0.1F})});
  EXPECT_EQ(Cluster(), 0U);
  changed.modifiedNs += 1;
  catalogue_.Store({changed});
  similar_->Store({Analysed(similar_->Pending().at(0), {0, 1})});
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_EQ(Cluster(), 4U);
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/1", "/p/2", "/p/3"), ElementsAre("/p/0")));
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, CanBeginAnew) {
  AddPhotos(kTwoPairs);
  Cluster();
  similar_->ClearClusters();
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_EQ(Cluster(), 4U);
  EXPECT_THAT(Groups(2), SizeIs(2));
}

TEST_F(SimilarPhotosTest, ForgetsWhatAnotherVersionOfTheAnalyserFound) {
  AddPhotos(kTwoPairs);
  Cluster();
  Reopen({QStringLiteral("test"), 2, 2});
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_THAT(similar_->Pending(), SizeIs(4));
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM features"}).toInt(), 0);
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM cluster_photos"}).toInt(), 0);
}

TEST_F(SimilarPhotosTest, StoresNothingForAVersionOfTheAnalyserThatWentMeanwhile) {
  AddPhotos(kTwoPairs);
  Cluster();
  const SimilarPhotos newer(file_, {QStringLiteral("test"), 2, 2});
  const AnalysedPhoto photo = Analysed(similar_->Pending().at(0), {1, 0.2F});
  EXPECT_NE(ErrorOf([&] { similar_->Store({photo}); }), "(no error)");
  EXPECT_EQ(Cluster(), 0U);
  EXPECT_EQ(newer.CountClustered(), 0U);
  EXPECT_THAT(newer.Pending(), SizeIs(4));
}

TEST_F(SimilarPhotosTest, ChangesNothingWhenItIsOpenedForReading) {
  using Mode = Catalogue::Mode;
  AddPhotos(kTwoPairs);
  Cluster();
  similar_.reset();
  {
    const SimilarPhotos same(file_, kAnalyser, Mode::ReadOnly);
    EXPECT_THAT(same.Groups(2), SizeIs(2));
    EXPECT_THAT(same.Check(), IsEmpty());
    EXPECT_TRUE(same.Explain("/p/0", "/p/1"));
    const SimilarPhotos newer(file_, {QStringLiteral("test"), 2, 2}, Mode::ReadOnly);
    EXPECT_THAT(newer.Groups(1), IsEmpty());
    EXPECT_THAT(newer.Check(), IsEmpty());
    EXPECT_THAT(newer.Pending(), SizeIs(4));
  }
  EXPECT_EQ(RunSql(file_, {"SELECT group_concat(version) FROM analysers"}).toString(), QStringLiteral("1"));
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM cluster_photos"}).toInt(), 4);
  EXPECT_THAT(ErrorOf([&] { SimilarPhotos(tree_.Path("none.sqlite"), kAnalyser, Mode::ReadOnly); }),
              HasSubstr("does not exist"));
}

TEST_F(SimilarPhotosTest, KeepsWhatAnotherAnalyserFound) {
  AddPhotos(kTwoPairs);
  Cluster();
  Reopen({QStringLiteral("other"), 1, 3});
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_THAT(similar_->Pending(), SizeIs(4));
  Reopen();
  EXPECT_THAT(similar_->Pending(), IsEmpty());
  EXPECT_THAT(Groups(2), SizeIs(2));
}

TEST_F(SimilarPhotosTest, StopsBetweenBatchesWhenItIsCancelled) {
  std::atomic<bool> cancelled{true};
  AddPhotos(kTwoPairs);
  EXPECT_EQ(similar_->AddToClusters(cancelled, nullptr), 0U);
  EXPECT_THAT(Groups(), IsEmpty());
  std::vector<std::pair<std::size_t, std::size_t>> seen;
  similar_->AddToClusters(never_,
                          [&](std::size_t done, std::size_t total) { seen.emplace_back(done, total); });
  EXPECT_THAT(seen, ElementsAre(std::make_pair(4U, 4U)));
}

TEST_F(SimilarPhotosTest, RefusesVectorsOfAnotherLength) {
  catalogue_.Store({Photo("/p/a")});
  const AnalysedPhoto photo = Analysed(similar_->Pending().at(0), {1, 2, 3});
  EXPECT_THAT(ErrorOf([&] { similar_->Store({photo}); }), HasSubstr("3 numbers is none of 2"));
  EXPECT_THAT(similar_->Pending(), SizeIs(1));
}

TEST_F(SimilarPhotosTest, RefusesPhotosThatItDoesNotKnow) {
  AnalysedPhoto photo;
  photo.id = QStringLiteral("nobody");
  photo.features.vector = {1, 0};
  EXPECT_THAT(ErrorOf([&] { similar_->Store({photo}); }), HasSubstr("\"nobody\""));
}

TEST_F(SimilarPhotosTest, ExplainsWhyPhotosAreTogetherOrNot) {
  AddPhotos({{1, 0}, {1, 0.1F}, {0, 1}, {}});
  Cluster();
  const auto together = similar_->Explain("/p/0", "/p/1");
  ASSERT_TRUE(together);
  EXPECT_EQ(together->firstCluster, together->secondCluster);
  EXPECT_NEAR(together->score, 1 / std::sqrt(1.01), 1e-6);
  EXPECT_GT(together->secondToFirst, 0.99F);
  const auto apart = similar_->Explain("/p/0", "/p/2");
  ASSERT_TRUE(apart);
  EXPECT_NE(apart->firstCluster, apart->secondCluster);
  EXPECT_EQ(apart->score, 0);
  EXPECT_LT(apart->firstToFirst, 1);
  EXPECT_EQ(apart->firstToSecond, 0);
  EXPECT_GT(apart->secondToFirst, 0.04F);
  EXPECT_LT(apart->secondToFirst, 0.1F);
  EXPECT_EQ(apart->secondToSecond, 1);
  EXPECT_FALSE(similar_->Explain("/p/0", "/p/3"));
  EXPECT_FALSE(similar_->Explain("/nowhere", "/p/0"));
}

TEST_F(SimilarPhotosTest, CheckFindsWhatIsNotAsItWasMatched) {
  AddPhotos(kTwoPairs);
  AddPhotos({{-1, 0}});
  Cluster();
  ASSERT_THAT(similar_->Check(), IsEmpty());
  struct Row {
    const char* damage;
    const char* repair;
    const char* says;
  };
  const Row rows[] = {
      {"UPDATE clusters SET count = 3 WHERE id = 1", "UPDATE clusters SET count = 2 WHERE id = 1",
       "counts 3 photos instead of 2"},
      {"UPDATE clusters SET centre = x'0000803f0000803f' WHERE id = 2",
       "UPDATE clusters SET centre = (SELECT centre FROM saved WHERE id = 2) WHERE id = 2", "another centre"},
      // By the sign of a zero.
      {"UPDATE clusters SET centre = x'000080bf00000080' WHERE id = 3",
       "UPDATE clusters SET centre = (SELECT centre FROM saved WHERE id = 3) WHERE id = 3", "another centre"},
      {"INSERT INTO clusters SELECT 9, analyser, 1, centre FROM clusters WHERE id = 1",
       "DELETE FROM clusters WHERE id = 9", "no photo"},
      {"UPDATE cluster_photos SET cluster = 2 WHERE arrival = 3",
       "UPDATE cluster_photos SET cluster = 1 WHERE arrival = 3", "belongs to cluster 1"},
      {"UPDATE cluster_photos SET cluster = 1 WHERE arrival IN (2, 4)",
       "UPDATE cluster_photos SET cluster = 2 WHERE arrival IN (2, 4)", "should be split"},
  };
  RunSql(file_, {"CREATE TABLE saved AS SELECT * FROM clusters"});
  for (const Row& row : rows) {
    RunSql(file_, {row.damage});
    EXPECT_THAT(similar_->Check(), testing::Contains(HasSubstr(row.says))) << row.damage;
    RunSql(file_, {row.repair});
    EXPECT_THAT(similar_->Check(), IsEmpty()) << row.repair;
  }
}

TEST_F(SimilarPhotosTest, CanBeUsedOnAfterAFailure) {
  AddPhotos(kTwoPairs);
  // Nothing can be written into the table of members.
  RunSql(file_, {"CREATE TRIGGER stop BEFORE INSERT ON cluster_photos WHEN NEW.arrival = 4 BEGIN SELECT"
                 " RAISE(ABORT, 'stopped'); END"});
  EXPECT_THAT(ErrorOf([&] { Cluster(); }), HasSubstr("stopped"));
  EXPECT_THAT(Groups(), IsEmpty());
  RunSql(file_, {"DROP TRIGGER stop"});
  EXPECT_EQ(Cluster(), 4U);
  EXPECT_THAT(Groups(2), SizeIs(2));
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, ForgetsWhatItMatchedBeforeAFailure) {
  catalogue_.Store({Photo("/p/x", QDate(2022, 1, 1))});
  const PhotoRecord last = similar_->Pending().at(0);
  similar_->Store({Analysed(last, {})});
  AddPhotos(kTwoPairs);
  // Ends without a write by anybody else.
  RunSql(file_, {"CREATE TRIGGER stop BEFORE INSERT ON cluster_photos WHEN (SELECT count(*) FROM features"
                 " WHERE vector IS NULL) > 0 BEGIN SELECT RAISE(ABORT, 'stopped'); END"});
  EXPECT_THAT(ErrorOf([&] { Cluster(); }), HasSubstr("stopped"));
  similar_->Store({Analysed(last, {1, 0})});
  EXPECT_EQ(Cluster(), 5U);
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, ForgetsClustersThatItHasTakenApart) {
  AddPhotos(kTwoPairs);
  const PhotoRecord last = catalogue_.Photos().back();
  Cluster();
  similar_->Store({Analysed(last, {1, 0.2F})});
  EXPECT_EQ(Cluster(), 4U);
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/0", "/p/2", "/p/3"), ElementsAre("/p/1")));
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, ComparesWithOlderClustersFirstWhenItIsOpenedAgain) {
  // Each fits both of the clusters that come of it.
  AddPhotos({{1, 0.3F}, {1, 0.3F}, {1, -0.3F}});
  Cluster();
  Reopen();
  AddPhotos({{1, 0}});
  Cluster();
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/0", "/p/1", "/p/3"), ElementsAre("/p/2")));
}

TEST_F(SimilarPhotosTest, MatchesByDateNotByTheOrderOfTheCatalogue) {
  catalogue_.Store(
      {Photo("/p/c", QDate(2021, 1, 3)), Photo("/p/b", QDate(2021, 1, 2)), Photo("/p/a", QDate(2021, 1, 1))});
  const std::vector<PhotoRecord> photos = similar_->Pending();
  ASSERT_THAT(photos, SizeIs(3));
  // In the other order all would be together.
  similar_->Store(
      {Analysed(photos[0], {1, 0.7F}), Analysed(photos[1], {1, 0.44F}), Analysed(photos[2], {1, 0})});
  Cluster();
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/a", "/p/b"), ElementsAre("/p/c")));
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

// --- Several at one catalogue

TEST_F(SimilarPhotosTest, SeesWhatOthersPutIntoClustersMeanwhile) {
  AddPhotos(kTwoPairs);
  Cluster();
  SimilarPhotos other(file_, kAnalyser);
  AddPhotos({{1, 0.2F}});
  EXPECT_EQ(other.AddToClusters(never_, nullptr), 1U);
  AddPhotos({{1, -0.2F}, {0.2F, 1}});
  EXPECT_EQ(Cluster(), 2U);
  AddPhotos({{-1, 0}});
  EXPECT_EQ(other.AddToClusters(never_, nullptr), 1U);
  EXPECT_THAT(Groups(), ElementsAre(ElementsAre("/p/0", "/p/2", "/p/4", "/p/5"),
                                    ElementsAre("/p/1", "/p/3", "/p/6"), ElementsAre("/p/7")));
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, SeesThatOthersMadeTheClustersAnew) {
  AddPhotos(kTwoPairs);
  Cluster();
  SimilarPhotos other(file_, kAnalyser);
  other.ClearClusters();
  EXPECT_EQ(Cluster(), 4U);
  other.ClearClusters();
  AddPhotos({{1, 0.2F}});
  EXPECT_EQ(Cluster(), 5U);
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, LeavesAPhotoThatOthersPutIntoAClusterMeanwhile) {
  constexpr std::size_t kPhotos = 4500;
  AddPhotos(std::vector<std::vector<float>>(kPhotos, {1, 0}));
  SimilarPhotos other(file_, kAnalyser);
  std::size_t byOther = 0;
  const std::size_t own = similar_->AddToClusters(never_, [&](std::size_t, std::size_t) {
    if (byOther == 0) {
      byOther = other.AddToClusters(never_, nullptr);
    }
  });
  EXPECT_GT(own, 0U);
  EXPECT_GT(byOther, 0U);
  EXPECT_EQ(own + byOther, kPhotos);
  EXPECT_EQ(similar_->CountClustered(), kPhotos);
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

TEST_F(SimilarPhotosTest, GroupsTheSameWithSeveralAtOneTime) {
  constexpr int kPhotos = 9000;
  std::vector<std::vector<float>> vectors;
  for (int i = 0; i < kPhotos; ++i) {
    const auto angle = static_cast<float>(i * 37 % kPhotos);
    vectors.push_back({std::cos(angle), std::sin(angle)});
  }
  AddPhotos(vectors);
  Cluster();
  const auto alone = Groups();
  ASSERT_GT(alone.size(), 3U);
  similar_->ClearClusters();
  std::atomic<std::size_t> added{0};
  std::atomic<bool> ready{false};
  std::vector<std::thread> threads;
  for (int i = 0; i < 3; ++i) {
    threads.emplace_back([&] {
      const std::string error =
          ErrorOf([&] { added += SimilarPhotos(file_, kAnalyser).AddToClusters(never_, nullptr); });
      EXPECT_EQ(error, "(no error)");
    });
  }
  std::thread reader([&] {
    const SimilarPhotos reading(file_, kAnalyser, Catalogue::Mode::ReadOnly);
    do {
      EXPECT_THAT(reading.Check(), IsEmpty());
    } while (!ready);
  });
  for (std::thread& thread : threads) {
    thread.join();
  }
  ready = true;
  reader.join();
  EXPECT_EQ(added, static_cast<std::size_t>(kPhotos));
  EXPECT_EQ(Groups(), alone);
  EXPECT_THAT(similar_->Check(), IsEmpty());
}

// --- The store below

class SimilarStoreTest : public SimilarPhotosTest {
 protected:
  SimilarStoreTest() {
    catalogue_.Store({Photo("/p/a", QDate(2021, 1, 1)), Photo("/p/b", QDate(2021, 1, 2))});
  }

  QString Id(std::size_t index) const { return catalogue_.Photos().at(index).id; }

  const CatalogueDatabase database_{file_, CatalogueDatabase::Access::ReadWrite, 0};
  CatalogueTransactions transactions_{database_};
  SimilarStore store_{database_, transactions_, 1};
};

TEST_F(SimilarStoreTest, GivesBackWhatItWasGiven) {
  const float odd[] = {std::numeric_limits<float>::denorm_min(), -0.0F};
  const Lumidex::Cluster cluster({odd[0], odd[1]}, 5);
  const auto transaction = transactions_.BeginTransaction("test");
  const int id = store_.AddCluster(cluster, {Id(0)});
  transaction->Commit();
  ASSERT_THAT(store_.GetClusters(), SizeIs(1));
  EXPECT_EQ(store_.GetClusters()[0].id, id);
  EXPECT_EQ(store_.GetClusters()[0].count, 5);
  EXPECT_EQ(VectorBytes(store_.GetClusters()[0].centre), VectorBytes(cluster.centre));
}

TEST_F(SimilarStoreTest, TakesBackWhatWasNotCommitted) {
  {
    const auto transaction = transactions_.BeginTransaction("forgotten");
    store_.AddCluster({{1, 0}, 1}, {Id(0)});
  }
  EXPECT_THAT(store_.GetClusters(), IsEmpty());
  const auto transaction = transactions_.BeginTransaction("taken back");
  store_.AddCluster({{1, 0}, 1}, {Id(0)});
  transaction->Rollback();
  transaction->Rollback();
  EXPECT_THAT(store_.GetClusters(), IsEmpty());
  EXPECT_THAT(ErrorOf([&] { transaction->Commit(); }), HasSubstr("ended already"));
}

TEST_F(SimilarStoreTest, RefusesATransactionWithinAnother) {
  {
    const auto outer = transactions_.BeginTransaction("outer");
    EXPECT_THAT(ErrorOf([&] { transactions_.BeginTransaction("inner"); }),
                HasSubstr("\"inner\" cannot begin while \"outer\" is under way"));
    store_.AddCluster({{1, 0}, 1}, {Id(0)});
    outer->Commit();
  }
  EXPECT_THAT(store_.GetClusters(), SizeIs(1));
  EXPECT_NO_THROW(transactions_.BeginTransaction("next"));
}

TEST_F(SimilarStoreTest, BeginsNoTransactionAfterOthersHaveWritten) {
  transactions_.RequireState(database_.StateOfOthers());
  EXPECT_NO_THROW(transactions_.BeginTransaction("own")->Commit());
  EXPECT_NO_THROW(transactions_.BeginTransaction("own again")->Commit());
  catalogue_.MarkLost({"/p/a"});
  EXPECT_THROW(transactions_.BeginTransaction("too late"), WrittenByOthers);
  // Nothing is left open.
  EXPECT_NO_THROW(catalogue_.Store({Photo("/p/c")}));
  transactions_.RequireState(database_.StateOfOthers());
  EXPECT_NO_THROW(transactions_.BeginTransaction("next"));
}

TEST_F(SimilarStoreTest, KeepsOthersFromWritingUntilTheReservationEnds) {
  const CatalogueDatabase other(file_, CatalogueDatabase::Access::ReadWrite, 0);
  const auto otherWrites = [&] { return ErrorOf([&] { WriteTransaction(other).Commit(); }); };
  transactions_.Reserve();
  EXPECT_THAT(otherWrites(), HasSubstr("another program"));
  transactions_.Unreserve();
  EXPECT_EQ(otherWrites(), "(no error)");
  transactions_.Reserve();
  {
    const auto transaction = transactions_.BeginTransaction("taken over");
    transactions_.Unreserve();
    EXPECT_THAT(otherWrites(), HasSubstr("another program"));
    store_.AddCluster({{1, 0}, 1}, {Id(0)});
    transaction->Commit();
  }
  EXPECT_EQ(otherWrites(), "(no error)");
  EXPECT_THAT(store_.GetClusters(), SizeIs(1));
}

TEST_F(SimilarStoreTest, WritesOnlyWithinATransaction) {
  EXPECT_THAT(ErrorOf([&] { store_.AddCluster({{1, 0}, 1}, {}); }), HasSubstr("none is open"));
  EXPECT_THAT(ErrorOf([&] { store_.UpdateCluster({{1, 0}, 1}, {}); }), HasSubstr("none is open"));
}

TEST_F(SimilarStoreTest, RefusesClustersAndPhotosThatItDoesNotKnow) {
  const auto transaction = transactions_.BeginTransaction("test");
  Lumidex::Cluster cluster({1, 0}, 1);
  cluster.id = 77;
  EXPECT_THAT(ErrorOf([&] { store_.UpdateCluster(cluster, {}); }), HasSubstr("77"));
  cluster.id = store_.AddCluster(cluster, {Id(0)});
  EXPECT_NO_THROW(store_.UpdateCluster(cluster, {}));
  SimilarStore ofAnother(database_, transactions_, 2);
  EXPECT_THAT(ErrorOf([&] { ofAnother.UpdateCluster(cluster, {}); }), HasSubstr("has no cluster"));
  EXPECT_THAT(ErrorOf([&] { store_.AddCluster(cluster, {QStringLiteral("nobody")}); }),
              HasSubstr("\"nobody\""));
}

TEST_F(SimilarStoreTest, RefusesClustersWhoseNumbersAreTooLarge) {
  RunSql(file_, {"INSERT INTO clusters VALUES (2147483646, 1, 1, x'0000803f0000803f')"});
  const auto transaction = transactions_.BeginTransaction("test");
  EXPECT_EQ(store_.AddCluster({{1, 0}, 1}, {Id(0)}), std::numeric_limits<int>::max());
  EXPECT_THAT(ErrorOf([&] { store_.AddCluster({{1, 0}, 1}, {Id(1)}); }), HasSubstr("no number left"));
}

TEST_F(SimilarStoreTest, WaitsForNobodyWhenAnotherProgramWrites) {
  const CatalogueDatabase other(file_, CatalogueDatabase::Access::ReadWrite, 0);
  const WriteTransaction writing(other);
  EXPECT_THAT(ErrorOf([&] { transactions_.BeginTransaction("test"); }), HasSubstr("another program"));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
