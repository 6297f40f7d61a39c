#include "Pictures.h"
#include "Records.h"

#include <host/pixels/PhotoAnalysis.h>
#include <host/similar/SimilarJudging.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>

#include <atomic>
#include <map>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using TestPictures::Encoded;
using TestPictures::Scene;

class SimilarJudging : public testing::Test {
 protected:
  ioPath AddPhoto(const std::string& name, const QByteArray& bytes) {
    ioPath file = tree_.Write(name, bytes.toStdString());
    const FileState state = QueryFile(file);
    PhotoRecord photo;
    photo.path = file;
    photo.size = state.size;
    photo.modifiedNs = state.modifiedNs;
    Catalogue(catalogue_, Catalogue::Mode::ReadWrite).Store({photo});
    return file;
  }
  /// Three of one scene and one of another.
  void AddGroup() {
    const QImage scene = Scene(SceneKind::City, 4, {800, 600});
    AddPhoto("a.jpg", Encoded(scene));
    AddPhoto("b.jpg", Encoded(scene));
    AddPhoto("c.jpg", Encoded(scene.scaledToWidth(500, Qt::SmoothTransformation)));
    AddPhoto("d.jpg", Encoded(Scene(SceneKind::Flowers, 2, {800, 600})));
  }
  JudgingResult Update() {
    SimilarPhotos similar(catalogue_, NameOf(analyser_));
    VerdictStore store(catalogue_);
    AnalysisOptions options;
    UpdateSimilar(similar, analyser_, options, {});
    options.cancel = &cancel_;
    return JudgeSimilar(similar, store, options, [this](const SimilarProgress& now) {
      seen_.push_back(now);
      cancel_ = cancel_ || (cancelAt_ == now.step && now.done > 0);
    });
  }
  std::vector<SuggestedGroup> Groups() const {
    return SuggestGroups(SimilarPhotos(catalogue_, NameOf(analyser_)), VerdictStore(catalogue_), 2);
  }
  /// By file names, of those besides the ones to keep.
  std::map<std::string, Verdict> Verdicts() const {
    std::map<std::string, Verdict> verdicts;
    for (const SuggestedGroup& group : Groups()) {
      for (std::size_t i = 0; i < group.verdicts.size(); ++i) {
        if (i != group.keeper.index) {
          verdicts[group.group.members[i].photo.path.filename().utf8string()] = group.verdicts[i].verdict;
        }
      }
    }
    return verdicts;
  }

  const Zenvora::Test::TempTree tree_;
  const ioPath catalogue_ = tree_.Path("catalogue.sqlite");
  const LayoutAnalyser analyser_;
  std::atomic<bool> cancel_{false};
  std::optional<SimilarProgress::Step> cancelAt_;
  std::vector<SimilarProgress> seen_;
};

using Known = std::map<std::string, Verdict>;

TEST_F(SimilarJudging, JudgesMembersOfGroupsAgainstTheOneToKeepOnce) {
  AddGroup();
  EXPECT_EQ(Update().judged, 2U);
  EXPECT_EQ(Verdicts(), (Known{{"b.jpg", Verdict::Same}, {"c.jpg", Verdict::Same}}));
  const std::vector<SuggestedGroup> groups = Groups();
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].group.number, 1U);
  for (const SimilarMember& member : groups[0].group.members) {
    EXPECT_TRUE(member.origin);
  }
  ASSERT_FALSE(seen_.empty());
  EXPECT_EQ(seen_.back().step, SimilarProgress::Step::Comparing);
  EXPECT_EQ(seen_.back().done, 2U);
  EXPECT_EQ(seen_.back().total, 2U);
  seen_.clear();
  EXPECT_EQ(Update().judged, 0U);
  EXPECT_THAT(seen_, IsEmpty());
}

TEST_F(SimilarJudging, MeasuresThoseBetweenWhichSharpnessDecidesOnce) {
  // A larger copy that no camera wrote; those of the camera are smaller, and one of them is shaken.
  const QImage scene = Scene(SceneKind::City, 4, {800, 600});
  const auto taken = [&](const std::string& name, const QImage& picture) {
    const ioPath file = TestPictures::WithThumbnail(tree_, name, picture, QImage());
    const auto image = Exiv2::ImageFactory::open(Zenvora::Test::ExivPath(file));
    image->readMetadata();
    image->exifData()["Exif.Image.Model"] = "Model X";
    image->exifData()["Exif.Photo.DateTimeOriginal"] = "2021:05:01 10:20:30";
    image->writeMetadata();
    AddPhoto(name, QByteArray::fromStdString(Zenvora::Test::ReadFile(file)));
  };
  taken("a.jpg",
        scene.scaledToWidth(500, Qt::SmoothTransformation).scaledToWidth(800, Qt::SmoothTransformation));
  taken("b.jpg", scene);
  AddPhoto("large.jpg", Encoded(scene.scaledToWidth(1000, Qt::SmoothTransformation)));
  Update();
  const std::vector<SuggestedGroup> groups = Groups();
  ASSERT_EQ(groups.size(), 1U);
  ASSERT_EQ(groups[0].group.members.size(), 3U);
  EXPECT_EQ(groups[0].group.members[groups[0].keeper.index].photo.path.filename().utf8string(), "b.jpg");
  EXPECT_THAT(groups[0].keeper.reasons, testing::Contains(KeeperReason::Sharpest));
  for (const SimilarMember& member : groups[0].group.members) {
    EXPECT_EQ(member.features.sharpness > 0, member.photo.path.filename().utf8string() != "large.jpg");
  }
  seen_.clear();
  Update();
  EXPECT_THAT(seen_, IsEmpty());
}

TEST_F(SimilarJudging, KeepsAnOriginalAndNotWhatWasEnlargedFromIt) {
  const QImage scene = Scene(SceneKind::City, 4, {800, 600});
  AddPhoto("enlarged.jpg", Encoded(scene.scaledToWidth(1200, Qt::SmoothTransformation)));
  AddPhoto("original.jpg", Encoded(scene));
  AddPhoto("small.jpg", Encoded(scene.scaledToWidth(500, Qt::SmoothTransformation)));
  Update();
  const std::vector<SuggestedGroup> groups = Groups();
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].group.members[groups[0].keeper.index].photo.path.filename().utf8string(),
            "original.jpg");
  EXPECT_THAT(groups[0].keeper.reasons, ElementsAre(KeeperReason::NotEnlarged, KeeperReason::Largest));
  EXPECT_EQ(Verdicts(), (Known{{"enlarged.jpg", Verdict::Same}, {"small.jpg", Verdict::Same}}));
  EXPECT_EQ(Update().judged, 0U);
}

TEST_F(SimilarJudging, NeverKeepsWhatZerosWereWrittenInto) {
  const QImage scene = Scene(SceneKind::City, 1, {800, 600});
  AddPhoto("damaged.jpg", TestPictures::Overwritten(Encoded(scene, "JPEG", 95)));
  AddPhoto("whole.jpg", Encoded(scene.scaledToWidth(500, Qt::SmoothTransformation)));
  Update();
  for (const SuggestedGroup& group : Groups()) {
    EXPECT_EQ(group.group.members[group.keeper.index].photo.path.filename().utf8string(), "whole.jpg");
    EXPECT_THAT(group.keeper.reasons, ElementsAre(KeeperReason::Whole));
  }
  EXPECT_EQ(Verdicts(), (Known{{"damaged.jpg", Verdict::Unknown}}));
}

TEST_F(SimilarJudging, JudgesAnewWhatHasChanged) {
  AddGroup();
  Update();
  AddPhoto("c.jpg", Encoded(Scene(SceneKind::City, 4, {800, 600}).scaledToWidth(400)));
  EXPECT_EQ(Update().judged, 1U);
  // The one to keep: all others are judged.
  AddPhoto("a.jpg", Encoded(Scene(SceneKind::City, 4, {800, 600}), "JPEG", 100));
  EXPECT_EQ(Update().judged, 2U);
}

TEST_F(SimilarJudging, JudgesNothingThatIsNotAsTheCatalogueKnowsIt) {
  AddGroup();
  SimilarPhotos similar(catalogue_, NameOf(analyser_));
  UpdateSimilar(similar, analyser_, {}, {});
  tree_.Write("b.jpg", Encoded(Scene(SceneKind::Beach, 3)).toStdString());
  tree_.Path("c.jpg").remove();
  VerdictStore store(catalogue_);
  EXPECT_EQ(JudgeSimilar(similar, store, {}, {}).judged, 0U);
  EXPECT_THAT(Verdicts(), testing::Each(testing::Pair(testing::_, Verdict::Unknown)));
}

TEST_F(SimilarJudging, GoesOnWhereItWasStopped) {
  AddGroup();
  cancelAt_ = SimilarProgress::Step::Reading;
  const JudgingResult stopped = Update();
  EXPECT_TRUE(stopped.cancelled);
  EXPECT_EQ(stopped.judged, 0U);
  cancelAt_.reset();
  cancel_ = false;
  seen_.clear();
  const JudgingResult rest = Update();
  EXPECT_FALSE(rest.cancelled);
  EXPECT_EQ(rest.judged, 2U);
  ASSERT_FALSE(seen_.empty());
  EXPECT_LT(seen_.front().total, 3U) << "what was read before is not read again";
}

TEST_F(SimilarJudging, KeepsTheVerdictsThatWereMadeBeforeACancel) {
  AddGroup();
  cancelAt_ = SimilarProgress::Step::Comparing;
  const JudgingResult stopped = Update();
  EXPECT_TRUE(stopped.cancelled);
  EXPECT_EQ(stopped.judged, 2U);
  EXPECT_EQ(Verdicts().at("b.jpg"), Verdict::Same);
}

TEST_F(SimilarJudging, JudgesPairsThatTheListDoesNotCompare) {
  AddGroup();
  Update();
  std::map<std::string, PhotoRecord> photos;
  for (const PhotoRecord& photo : Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos()) {
    photos[photo.path.filename().utf8string()] = photo;
  }
  VerdictStore store(catalogue_);
  EXPECT_EQ(JudgePair(store, photos["c.jpg"], photos["b.jpg"]).verdict, Verdict::Same);
  EXPECT_TRUE(store.Verdict(photos["c.jpg"], photos["b.jpg"]));
  EXPECT_EQ(JudgePair(store, photos["d.jpg"], photos["a.jpg"]).verdict, Verdict::Different);
  tree_.Write("d.jpg", "changed");
  photos["d.jpg"].size += 1;
  EXPECT_EQ(JudgePair(store, photos["d.jpg"], photos["a.jpg"]).verdict, Verdict::Unknown);
  EXPECT_FALSE(store.Verdict(photos["d.jpg"], photos["a.jpg"]));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
