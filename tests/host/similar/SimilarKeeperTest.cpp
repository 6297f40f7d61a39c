#include <host/similar/SimilarKeeper.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// 40 by 30 pixels, without a date or a camera.
SimilarMember Member(const std::string& name) {
  SimilarMember member;
  member.photo.path = ioPath("/p/" + name);
  member.features.width = 40;
  member.features.height = 30;
  member.features.sharpness = 10;
  return member;
}

SimilarMember Sized(const std::string& name, int width, int height) {
  SimilarMember member = Member(name);
  member.features.width = width;
  member.features.height = height;
  return member;
}

SimilarMember Sharp(const std::string& name, double sharpness) {
  SimilarMember member = Member(name);
  member.features.sharpness = sharpness;
  return member;
}

SimilarMember Taken(const std::string& name, const QDate& day, DateSource source) {
  SimilarMember member = Member(name);
  member.photo.taken = QDateTime(day, QTime(12, 0));
  member.photo.takenSource = source;
  return member;
}

TEST(SimilarKeeper, IsTheLargest) {
  const KeeperChoice choice = SuggestKeeper({Sized("a", 40, 30), Sized("b", 30, 60), Sized("c", 0, 0)});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::Largest));
}

TEST(SimilarKeeper, CountsMorePixelsThanAnIntHolds) {
  EXPECT_EQ(SuggestKeeper({Sized("a", 40, 30), Sized("b", 60'000, 60'000)}).index, 1U);
}

TEST(SimilarKeeper, IsTheSharpestOfTheLargest) {
  std::vector<SimilarMember> members{Sharp("a", 10), Sharp("b", 12), Sized("c", 1, 1)};
  members[2].features.sharpness = 99;
  const KeeperChoice choice = SuggestKeeper(members);
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::Largest, KeeperReason::Sharpest));
}

TEST(SimilarKeeper, MakesNothingOfASmallDifferenceInSharpness) {
  const KeeperChoice choice = SuggestKeeper({Sharp("a", 9.1), Sharp("b", 10)});
  EXPECT_EQ(choice.index, 0U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::FirstName));
}

TEST(SimilarKeeper, HasWhatTheCameraWrote) {
  SimilarMember camera = Member("z");
  camera.photo.camera = QStringLiteral("Model X");
  EXPECT_EQ(SuggestKeeper({Member("a"), camera}).index, 1U);
  const QDate day(2021, 1, 1);
  for (const DateSource source : {DateSource::Original, DateSource::Digitised}) {
    const KeeperChoice choice =
        SuggestKeeper({Taken("a", day.addDays(-1), DateSource::FileTime), Taken("z", day, source)});
    EXPECT_EQ(choice.index, 1U);
    EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::CameraData));
  }
}

TEST(SimilarKeeper, IsTheEarliest) {
  const QDate day(2021, 1, 2);
  const KeeperChoice choice =
      SuggestKeeper({Taken("a", day, DateSource::Original), Taken("b", day.addDays(-1), DateSource::Original),
                     Taken("c", day.addDays(1), DateSource::Original)});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::Earliest));
}

TEST(SimilarKeeper, PrefersAnyDateOfTheCameraToNone) {
  SimilarMember undated = Member("a");
  undated.photo.camera = QStringLiteral("Model X");
  EXPECT_EQ(SuggestKeeper({undated, Taken("b", QDate(1800, 1, 1), DateSource::Original)}).index, 1U);
}

TEST(SimilarKeeper, MakesNothingOfTheTimesOfFiles) {
  const QDate day(2021, 1, 1);
  const KeeperChoice choice = SuggestKeeper(
      {Taken("b", day, DateSource::FileTime), Taken("a", day.addDays(1), DateSource::FileTime)});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::FirstName));
}

TEST(SimilarKeeper, IsTheFirstByNameOfEquals) {
  const KeeperChoice choice = SuggestKeeper({Member("c"), Member("a"), Member("b")});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::FirstName));
}

TEST(SimilarKeeper, NeedsNoReasonWhenItIsAlone) {
  const KeeperChoice choice = SuggestKeeper({Member("a")});
  EXPECT_EQ(choice.index, 0U);
  EXPECT_THAT(choice.reasons, IsEmpty());
}

/// As a camera wrote it.
SimilarMember Original(const std::string& name) {
  SimilarMember member = Taken(name, QDate(2021, 1, 1), DateSource::Original);
  member.photo.camera = QStringLiteral("Model X");
  PhotoOrigin origin;
  origin.cameraTags = true;
  origin.makerNote = true;
  origin.quantisation = 4;
  origin.bytesPerPixel = 0.5;
  member.origin = origin;
  return member;
}

KeeperChoice AgainstOriginal(const SimilarMember& copy) {
  return SuggestKeeper({copy, Original("z")});
}

TEST(SimilarKeeper, IsTheCamerasFileAndNotASharperOrLargerCopy) {
  SimilarMember stripped = Sized("a", 400, 300);
  stripped.features.sharpness = 99;
  stripped.origin = PhotoOrigin();
  const KeeperChoice choice = AgainstOriginal(stripped);
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::CameraFile));
}

TEST(SimilarKeeper, IsNoCopyThatKeptTheCamerasData) {
  SimilarMember enlarged = Original("a");
  enlarged.features.width = 400;
  enlarged.features.height = 300;
  enlarged.origin->sizeAsTold = false;
  EXPECT_EQ(AgainstOriginal(enlarged).index, 1U);
  SimilarMember edited = Original("a");
  edited.origin->edited = true;
  EXPECT_THAT(AgainstOriginal(edited).reasons, ElementsAre(KeeperReason::CameraFile));
  SimilarMember noteless = Original("a");
  noteless.features.width = 400;
  noteless.origin->makerNote = false;
  EXPECT_THAT(AgainstOriginal(noteless).reasons, ElementsAre(KeeperReason::MakerNote));
  SimilarMember written = Original("a");
  written.features.sharpness = 99;
  written.origin->quantisation = 1;
  written.origin->hasJfif = true;
  EXPECT_THAT(AgainstOriginal(written).reasons, ElementsAre(KeeperReason::LeastTouched));
  SimilarMember coarse = Original("a");
  coarse.features.sharpness = 99;
  coarse.origin->quantisation = 20;
  EXPECT_THAT(AgainstOriginal(coarse).reasons, ElementsAre(KeeperReason::Finer));
}

TEST(SimilarKeeper, ComparesBytesAndNamesWhereNothingElseDiffers) {
  SimilarMember thin = Original("a");
  thin.origin->bytesPerPixel = 0.3;
  EXPECT_THAT(AgainstOriginal(thin).reasons, ElementsAre(KeeperReason::MoreBytes));
  SimilarMember named = Original("zz");
  named.origin->cameraName = true;
  const KeeperChoice choice = SuggestKeeper({Original("a"), named});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::CameraName));
}

TEST(SimilarKeeper, IsTheSharpestOfABurst) {
  SimilarMember sharp = Original("b");
  sharp.features.sharpness = 12;
  // Cameras adapt a little to each shot.
  sharp.origin->quantisation = 4.2;
  const KeeperChoice choice = SuggestKeeper({Original("a"), sharp});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::Sharpest));
}

TEST(SimilarKeeper, IsNotEnlarged) {
  SimilarMember enlarged = Sized("a", 400, 300);
  enlarged.origin = PhotoOrigin();
  enlarged.origin->enlarged = true;
  const KeeperChoice choice = SuggestKeeper({enlarged, Member("b"), Sized("c", 4, 3)});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::NotEnlarged, KeeperReason::Largest));
}

TEST(SimilarKeeper, TellsWhatMayBeEnlarged) {
  SimilarMember large = Sized("a", 60, 45);
  SimilarMember small = Member("b");
  large.origin = PhotoOrigin();
  small.origin = PhotoOrigin();
  EXPECT_TRUE(MayBeEnlarged(large, small));
  EXPECT_FALSE(MayBeEnlarged(small, large));
  small.origin->hasJfif = true;
  EXPECT_FALSE(MayBeEnlarged(large, small)) << "a program wrote the smaller one";
  large.origin->hasJfif = true;
  EXPECT_TRUE(MayBeEnlarged(large, small));
  large.origin->cameraName = true;
  EXPECT_FALSE(MayBeEnlarged(large, small));
  EXPECT_FALSE(MayBeEnlarged(Original("c"), Sized("d", 4, 3)));
}

TEST(SimilarKeeper, TellsBetweenWhichSharpnessDecides) {
  // A larger copy of a burst, without the camera's data, decides nothing.
  EXPECT_THAT(SharpnessContenders({Sized("copy", 400, 300), Original("a"), Original("b")}),
              ElementsAre(1U, 2U));
  EXPECT_THAT(SharpnessContenders({Member("a"), Member("b"), Sized("c", 4, 3)}), ElementsAre(0U, 1U));
  EXPECT_THAT(SharpnessContenders({Sized("a", 400, 300), Member("b")}), IsEmpty());
}

TEST(SimilarKeeper, IsNeverDegraded) {
  SimilarMember copy = Sized("a", 4, 3);
  SimilarMember broken = Original("z");
  broken.origin->degradation = "it breaks off";
  const KeeperChoice choice = SuggestKeeper({broken, copy});
  EXPECT_EQ(choice.index, 1U);
  EXPECT_THAT(choice.reasons, ElementsAre(KeeperReason::Whole));
}

TEST(SimilarKeeper, IsAnyOfDegradedOnesWhenThereIsNoOther) {
  SimilarMember broken = Original("z");
  broken.origin->degradation = "it breaks off";
  SimilarMember copy = broken;
  copy.origin->makerNote = false;
  EXPECT_EQ(SuggestKeeper({copy, broken}).index, 1U);
}

TEST(SimilarKeeper, NamesItsReasons) {
  EXPECT_STREQ(KeeperReasonName(KeeperReason::Whole), "whole");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::CameraFile), "the camera's own file");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::CameraData), "has camera data");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::MakerNote), "has the maker's note");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::NotEnlarged), "not enlarged");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::Largest), "largest");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::LeastTouched), "not written by another program");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::Finer), "compressed less");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::Sharpest), "sharpest");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::MoreBytes), "more bytes a pixel");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::CameraName), "named by the camera");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::Earliest), "earliest");
  EXPECT_STREQ(KeeperReasonName(KeeperReason::FirstName), "first by name");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
