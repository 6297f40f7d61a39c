#include "Pictures.h"
#include "Records.h"

#include <host/similar/SimilarUpdate.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>

#include <atomic>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

/// Says how red pictures are, and fails as it is told.
class Redness : public PhotoAnalyser {
 public:
  std::string Name() const override { return "redness"; }
  int Version() const override { return 1; }
  int Size() const override { return 2; }
  int LongerSide() const override { return 16; }
  std::vector<float> Describe(const QImage& picture) const override {
    if (outOfMemory) {
      throw std::bad_alloc();
    }
    if (broken) {
      throw std::runtime_error("the table of colours is gone");
    }
    return qRed(picture.pixel(0, 0)) > 128 ? std::vector<float>{1, 0} : std::vector<float>{0, 1};
  }

  bool outOfMemory = false;
  bool broken = false;
};

class SimilarUpdate : public testing::Test {
 protected:
  ioPath AddPhoto(const std::string& name, Qt::GlobalColor colour) {
    const ioPath file = tree_.Path(name);
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(colour);
    EXPECT_TRUE(image.save(file.qstring(), "PNG"));
    TakeIn(file);
    return file;
  }
  void TakeIn(const ioPath& file) {
    const FileState state = QueryFile(file);
    PhotoRecord photo;
    photo.path = file;
    photo.size = state.size;
    photo.modifiedNs = state.modifiedNs;
    Catalogue(catalogue_, Catalogue::Mode::ReadWrite).Store({photo});
  }
  /// A photo whose thumbnail shows something else, large enough for the thumbnail to be looked at.
  ioPath AddWithThumbnail(const std::string& name, Qt::GlobalColor colour, Qt::GlobalColor thumbnail) {
    const ioPath file = TestPictures::WithThumbnail(tree_, name, TestPictures::Plain({1200, 900}, colour),
                                                    TestPictures::Plain({160, 120}, thumbnail));
    TakeIn(file);
    return file;
  }
  /// Names of the photos of each group.
  std::vector<std::string> Groups() const {
    std::vector<std::string> groups;
    for (const SimilarGroup& group : SimilarPhotos(catalogue_, NameOf(analyser_)).Groups(2)) {
      std::string names;
      for (const SimilarMember& member : group.members) {
        names += (names.empty() ? "" : " ") + member.photo.path.filename().utf8string();
      }
      groups.push_back(names);
    }
    return groups;
  }
  SimilarUpdateResult Update() {
    SimilarPhotos similar(catalogue_, NameOf(analyser_));
    AnalysisOptions options;
    options.cancel = &cancel_;
    return UpdateSimilar(similar, analyser_, options,
                         [this](const SimilarProgress& now) { seen_.push_back(now); });
  }
  std::vector<std::pair<std::string, std::string>> Unreadable(const SimilarUpdateResult& result) const {
    std::vector<std::pair<std::string, std::string>> causes;
    for (const auto& [file, cause] : result.unreadable) {
      causes.emplace_back(file.filename().utf8string(), cause);
    }
    return causes;
  }

  const Zenvora::Test::TempTree tree_;
  const ioPath catalogue_ = tree_.Path("catalogue.sqlite");
  Redness analyser_;
  std::atomic<bool> cancel_{false};
  std::vector<SimilarProgress> seen_;
};

TEST_F(SimilarUpdate, AnalysesWhatIsPendingAndGroupsIt) {
  AddPhoto("a.png", Qt::red);
  AddPhoto("b.png", Qt::blue);
  AddPhoto("c.png", Qt::red);
  const SimilarUpdateResult result = Update();
  EXPECT_EQ(result.analysed, 3U);
  EXPECT_EQ(result.clustered, 3U);
  EXPECT_FALSE(result.cancelled);
  EXPECT_THAT(result.unreadable, IsEmpty());
  EXPECT_THAT(SimilarPhotos(catalogue_, NameOf(analyser_)).Groups(2), SizeIs(1));
  ASSERT_THAT(seen_, SizeIs(4));
  EXPECT_EQ(seen_[2].done, 3U);
  EXPECT_EQ(seen_[2].step, SimilarProgress::Step::Analysing);
  EXPECT_EQ(seen_[3].step, SimilarProgress::Step::Grouping);
  EXPECT_EQ(Update().analysed, 0U);
}

TEST_F(SimilarUpdate, TriesAgainWhatFailedForAReasonThatMayPass) {
  AddPhoto("a.png", Qt::red);
  AddPhoto("b.png", Qt::red).remove();
  analyser_.outOfMemory = true;
  EXPECT_THAT(Unreadable(Update()),
              testing::UnorderedElementsAre(std::make_pair("a.png", "there is not enough memory"),
                                            std::make_pair("b.png", "it no longer exists")));
  analyser_.outOfMemory = false;
  analyser_.broken = true;
  EXPECT_THAT(Unreadable(Update()), SizeIs(2));
  analyser_.broken = false;
  AddPhoto("b.png", Qt::red);
  const SimilarUpdateResult result = Update();
  EXPECT_EQ(result.clustered, 2U);
  EXPECT_THAT(result.unreadable, IsEmpty());
}

TEST_F(SimilarUpdate, RemembersWhatIsNoPicture) {
  TakeIn(tree_.Write("a.jpg", "no picture"));
  const SimilarUpdateResult first = Update();
  EXPECT_THAT(first.unreadable, IsEmpty());
  EXPECT_THAT(first.notComparable, testing::ElementsAre(tree_.Path("a.jpg")));
  const SimilarUpdateResult second = Update();
  EXPECT_EQ(second.analysed, 0U);
  EXPECT_THAT(second.notComparable, IsEmpty());
  const auto problems = SimilarPhotos(catalogue_, NameOf(analyser_)).Problems();
  ASSERT_THAT(problems, SizeIs(1));
  EXPECT_NE(problems[0].second, "");
}

TEST_F(SimilarUpdate, PutsPhotosWithTheThumbnailOfAnotherWhereTheirPicturesBelong) {
  AddPhoto("red.png", Qt::red);
  AddPhoto("blue.png", Qt::blue);
  AddWithThumbnail("shows_blue.jpg", Qt::blue, Qt::red);
  AddWithThumbnail("shows_red.jpg", Qt::red, Qt::red);
  Update();
  EXPECT_THAT(Groups(), testing::ElementsAre("blue.png shows_blue.jpg", "red.png shows_red.jpg"));
  seen_.clear();
  Update();
  EXPECT_THAT(seen_, IsEmpty()) << "what was compared is not compared again";
  EXPECT_THAT(SimilarPhotos(catalogue_, NameOf(analyser_)).Check(), IsEmpty());
}

TEST_F(SimilarUpdate, ComparesThePreviewsOfPhotosThatBecameMembersOfGroupsLater) {
  AddWithThumbnail("shows_blue.jpg", Qt::blue, Qt::red);
  Update();
  EXPECT_THAT(seen_, testing::Each(testing::Field(&SimilarProgress::step,
                                                  testing::Ne(SimilarProgress::Step::Checking))));
  AddPhoto("red.png", Qt::red);
  Update();
  EXPECT_THAT(Groups(), IsEmpty());
  EXPECT_THAT(seen_,
              testing::Contains(testing::Field(&SimilarProgress::step, SimilarProgress::Step::Checking)));
}

TEST_F(SimilarUpdate, GoesOnWithThumbnailsThatACancelLeft) {
  AddPhoto("red.png", Qt::red);
  AddWithThumbnail("shows_blue.jpg", Qt::blue, Qt::red);
  {
    SimilarPhotos similar(catalogue_, NameOf(analyser_));
    AnalysisOptions options;
    options.cancel = &cancel_;
    const auto result = UpdateSimilar(similar, analyser_, options, [this](const SimilarProgress& now) {
      cancel_ = cancel_ || now.step == SimilarProgress::Step::Checking;
    });
    EXPECT_TRUE(result.cancelled);
  }
  cancel_ = false;
  Update();
  EXPECT_THAT(Groups(), IsEmpty());
}

TEST_F(SimilarUpdate, GroupsNothingWhenItIsCancelledBefore) {
  AddPhoto("a.png", Qt::red);
  cancel_ = true;
  const SimilarUpdateResult stopped = Update();
  EXPECT_TRUE(stopped.cancelled);
  EXPECT_EQ(stopped.clustered, 0U);
  cancel_ = false;
  EXPECT_EQ(Update().clustered, 1U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
