#include "ImportFixture.h"

namespace Zenvora::Lumidex::Host {
namespace {

using Outcome = ImportPlan::Outcome;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Zenvora::Test::FakeRemovableStorage;

class ImportFactsTest : public ImportTest {};

TEST_F(ImportFactsTest, LeavesWhatLiesInTheFolderOfCopies) {
  MakePhoto("copies/a.jpg", 1);
  MakePhoto("card/b.jpg", 2);
  const ImportPlan plan = PlanTo({Card(), Copies()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("b.jpg"));
  EXPECT_THAT(plan.stays, ElementsAre(tree.Path("copies/a.jpg")));
}

TEST_F(ImportFactsTest, KnowsTheContentOfTheCatalogueUnderAnyName) {
  MakePhoto("pictures/trip.jpg", 7);
  Scan(Stored(), {tree.Path("pictures")}, {}, nullptr);
  MakePhoto("card/IMG_0007.JPG", 7);
  MakePhoto("card/IMG_0008.JPG", 8);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG_0008.JPG"));
  ASSERT_THAT(plan.known, SizeIs(1));
  EXPECT_EQ(plan.known[0].kind, KnownFile::Kind::Catalogued);
  EXPECT_EQ(plan.known[0].other, tree.Path("pictures/trip.jpg"));
}

TEST_F(ImportFactsTest, DoesNotTrustACatalogueWhosePhotosAreGoneOrChanged) {
  MakePhoto("pictures/gone.jpg", 1);
  const ioPath damaged = MakePhoto("pictures/damaged.jpg", 2);
  Scan(Stored(), {tree.Path("pictures")}, {}, nullptr);
  ASSERT_TRUE(tree.Path("pictures/gone.jpg").remove());
  std::string content = Zenvora::Test::ReadFile(damaged);
  content.back() = static_cast<char>(content.back() + 1);
  tree.Write("pictures/damaged.jpg", content);
  MakePhoto("card/a.jpg", 1);
  MakePhoto("card/b.jpg", 2);
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(2));
}

TEST_F(ImportFactsTest, CopiesOneOfTwoSourcesOfOneContentAlsoWhenBothAreCatalogued) {
  MakePhoto("card/1/a.jpg", 1);
  MakePhoto("card/2/b.jpg", 1);
  Scan(Stored(), {Card()}, {}, nullptr);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a.jpg"));
  ASSERT_THAT(plan.known, SizeIs(1));
  EXPECT_EQ(plan.known[0].kind, KnownFile::Kind::Repeated);
}

TEST_F(ImportFactsTest, TakesALinkToAnotherCardForNoCopy) {
  MakePhoto("card/a.jpg", 1);
  const ioPath other = MakePhoto("other/a.jpg", 1);
  tree.MakeFolder("pictures");
  LUMIDEX_LINK_OR_SKIP(other, tree.Path("pictures/link.jpg"));
  Scan(Stored(), {tree.Path("pictures")}, {}, nullptr);
  ASSERT_THAT(Stored().Photos(), SizeIs(1));
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {tree.Path("other")};
  const App::ServiceScope<App::IRemovableStorage> scope(storage);
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(1));
}

TEST_F(ImportFactsTest, LeavesWhatLiesInTheFolderOfCopiesByWhicheverWay) {
  const ioPath photo = MakePhoto("copies/a.jpg", 1);
  tree.MakeFolder("card");
  LUMIDEX_LINK_OR_SKIP(Copies(), tree.Path("link"));
  LUMIDEX_LINK_OR_SKIP(Copies(), tree.Path("card/below"));
  const ImportPlan throughTarget = PlanTo({Copies()}, tree.Path("link"));
  EXPECT_THAT(throughTarget.copies, IsEmpty());
  EXPECT_THAT(throughTarget.stays, ElementsAre(photo));
  const ImportPlan throughSource = PlanTo({Card()});
  EXPECT_THAT(throughSource.copies, IsEmpty());
  EXPECT_THAT(throughSource.stays, SizeIs(1));
  const ImportPlan below = PlanTo({Copies()}, tree.Path("link/new/../new2"));
  EXPECT_EQ(below.folder, tree.Path("copies/new2"));
}

TEST_F(ImportFactsTest, TakesAPhotoOnAnotherCardForNoCopy) {
  MakePhoto("card/a.jpg", 1);
  MakePhoto("other/a.jpg", 1);
  Scan(Stored(), {tree.Path("other")}, {}, nullptr);
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {tree.Path("other")};
  const App::ServiceScope<App::IRemovableStorage> scope(storage);
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(1));
}

TEST_F(ImportFactsTest, CopiesOneOfTwoSourcesOfOneContent) {
  MakePhoto("card/a.jpg", 1);
  MakePhoto("card/b.jpg", 1);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a.jpg"));
  ASSERT_THAT(plan.known, SizeIs(1));
  EXPECT_EQ(plan.known[0].kind, KnownFile::Kind::Repeated);
}

TEST_F(ImportFactsTest, CopiesTheSettingsOfRepeatedPhotosOnceWhenTheyAreTheSame) {
  for (const char* const folder : {"card/1/", "card/2/", "card/3/"}) {
    MakePhoto(folder + std::string("a.jpg"), 1);
    tree.Write(folder + std::string("a.xmp"), folder == std::string("card/3/") ? "others" : "the same");
  }
  MakePhoto("card/4/a.jpg", 4);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a.jpg", "a.xmp", "a(1).xmp", "a(1)(3).jpg"));
  EXPECT_EQ(Carry(plan).copied, 4U);
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

TEST_F(ImportFactsTest, CopiesSidecarsOfOneContentAll) {
  for (const char* const name : {"card/a.xmp", "card/b.xmp"}) {
    tree.Write(name, "the same");
  }
  MakePhoto("card/a.jpg", 1);
  MakePhoto("card/b.jpg", 2);
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(4));
}

TEST_F(ImportFactsTest, KnowsSidecarsBesideTheKnownPhoto) {
  MakePhoto("pictures/Trip 1.jpg", 1);
  tree.Write("pictures/Trip 1.xmp", "stars");
  Scan(Stored(), {tree.Path("pictures")}, {}, nullptr);
  MakePhoto("card/IMG.jpg", 1);
  tree.Write("card/IMG.xmp", "stars");
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
  tree.Write("card/IMG.xmp", "STARS");
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG.xmp"));
}

TEST_F(ImportFactsTest, SaysThatAFileIsInTheWayOfTheFolder) {
  MakePhotos("card", 1);
  tree.Write("copies", "a file");
  EXPECT_THAT(PlanTo({Card()}).obstacle, HasSubstr("is not a folder"));
  EXPECT_THAT(PlanTo({Card()}, tree.Path("copies/below")).obstacle, testing::Not(IsEmpty()));
}

TEST_F(ImportFactsTest, SaysThatThereIsNoRoom) {
  MakePhotos("card", 2);
  const auto disk = std::make_shared<Zenvora::Test::FakeDiskSpace>();
  disk->otherwise = 100;
  const App::ServiceScope<App::IDiskSpace> scope(disk);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(plan.obstacle, HasSubstr("not enough space"));
  const ioPath place = tree.MakeFolder("copies");
  disk->free[place] = static_cast<std::int64_t>(plan.bytes);
  EXPECT_THAT(PlanTo({Card()}).obstacle, HasSubstr("no step is started without 2 MiB free"));
  disk->otherwise = 2'000'000;
  EXPECT_EQ(PlanTo({Card()}).obstacle, "") << "what just fits fits";
}

TEST_F(ImportFactsTest, SaysThatNothingMayBeMadeInTheFolderAlsoWhenAnotherDiskIsFull) {
  MakePhotos("card", 2);
  tree.MakeFolder("copies");
  const auto disk = std::make_shared<Zenvora::Test::FakeDiskSpace>();
  disk->free[Copies()] = 1'000'000'000;
  disk->otherwise = 100;
  const App::ServiceScope<App::IDiskSpace> diskScope(disk);
  const auto access = std::make_shared<Zenvora::Test::FakeFolderAccess>();
  access->closed = {Copies()};
  const App::ServiceScope<App::IFolderAccess> accessScope(access);
  EXPECT_THAT(PlanTo({Card()}).obstacle, HasSubstr("permission"));
}

TEST_F(ImportFactsTest, StopsWhenInterrupted) {
  MakePhotos("card", 2);
  const std::atomic<bool> cancel{true};
  EXPECT_EQ(PlanOf(GatherSources({Card()}), {}, false, &cancel).outcome, Outcome::Interrupted);
}

TEST_F(ImportFactsTest, HasNothingToDoWithoutPhotos) {
  tree.Write("card/notes.txt", "x");
  const ImportPlan plan = Plan({Card()});
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_THAT(plan.stays, IsEmpty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
