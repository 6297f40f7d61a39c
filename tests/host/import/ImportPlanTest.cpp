#include "ImportFixture.h"

#include <support/LeftOut.h>
#include <support/Unprivileged.h>

#ifndef _WIN32
#include "BlockDevices.h"

#include <sys/stat.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using App::AlertButton;
using Outcome = ImportPlan::Outcome;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Zenvora::Test::FakeRemovableStorage;
using Zenvora::Test::ScriptedAlerts;
using Zenvora::Test::ScriptedFolderDialog;

class ImportPlanning : public ImportTest {
 protected:
  /// Plans with the card being removable and a user who gives the answers.
  ImportPlan PlanWith(const std::vector<AlertButton>& answers, const std::vector<QString>& folders) {
    const auto storage = std::make_shared<FakeRemovableStorage>();
    storage->roots = {Card()};
    const App::ServiceScope<App::IRemovableStorage> storageScope(storage);
    const App::ServiceScope<App::IAlerts> alerts(std::make_shared<ScriptedAlerts>(answers));
    const App::ServiceScope<App::IFolderDialog> dialog(std::make_shared<ScriptedFolderDialog>(folders));
    return Plan({Card()});
  }
  QString CopiesText() const { return Copies().qstring(); }
};

TEST_F(ImportPlanning, LeavesWhatLiesOnAFixedDiskAndAsksNobody) {
  const auto photos = MakePhotos("card", 3);
  const App::ServiceScope<App::IAlerts> nobody(std::make_shared<ScriptedAlerts>());
  const App::ServiceScope<App::IRemovableStorage> fixed(std::make_shared<FakeRemovableStorage>());
  const ImportPlan plan = Plan({Card()});
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_EQ(plan.stays, photos);
}

TEST_F(ImportPlanning, CopiesFromRemovableStorageWhenTheUserWantsIt) {
  MakePhotos("card", 3);
  const ImportPlan plan = PlanWith({AlertButton::Yes}, {CopiesText()});
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_EQ(plan.folder, Copies());
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG_1000.JPG", "IMG_1001.JPG", "IMG_1002.JPG"));
  EXPECT_THAT(plan.stays, IsEmpty());
}

TEST_F(ImportPlanning, TakesPhotosInWhereTheyLieWhenTheUserWantsNoCopies) {
  const auto photos = MakePhotos("card", 3);
  const ImportPlan plan = PlanWith({AlertButton::No}, {});
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_EQ(plan.stays, photos);
}

TEST_F(ImportPlanning, DoesNothingWhenTheUserCancels) {
  MakePhotos("card", 3);
  EXPECT_EQ(PlanWith({AlertButton::Cancel}, {}).outcome, Outcome::Declined);
  EXPECT_EQ(PlanWith({AlertButton::Yes}, {QString()}).outcome, Outcome::Declined);
}

TEST_F(ImportPlanning, DoesNothingWhereNobodyCanBeAsked) {
  MakePhotos("card", 1);
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {Card()};
  const App::ServiceScope<App::IRemovableStorage> scope(storage);
  EXPECT_EQ(Plan({Card()}).outcome, Outcome::Declined);
}

TEST_F(ImportPlanning, RefusesAFolderThatCanBePulledOut) {
  MakePhotos("card", 1);
  tree.MakeFolder("card/more");
  const ImportPlan plan =
      PlanWith({AlertButton::Yes, AlertButton::Ok}, {tree.Path("card/more").qstring(), CopiesText()});
  EXPECT_EQ(plan.folder, Copies());
}

TEST_F(ImportPlanning, MakesAndRemembersNothing) {
  MakePhotos("card", 1);
  PlanWith({AlertButton::Yes}, {CopiesText()});
  EXPECT_FALSE(Copies().exists());
  EXPECT_EQ(App::Services::Current().Get<App::ISettingsManager>()->GetString(
                App::SettingsKey::kLastUsedCopyDirectory, "nothing"),
            "nothing");
}

TEST_F(ImportPlanning, CopiesEverythingWhenToldWithoutAsking) {
  MakePhotos("card", 2);
  const App::ServiceScope<App::IAlerts> nobody(std::make_shared<ScriptedAlerts>());
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(2));
}

TEST_F(ImportPlanning, LeavesWhatLiesInTheFolderOfCopies) {
  MakePhoto("copies/a.jpg", 1);
  MakePhoto("card/b.jpg", 2);
  const ImportPlan plan = PlanTo({Card(), Copies()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("b.jpg"));
  EXPECT_THAT(plan.stays, ElementsAre(tree.Path("copies/a.jpg")));
}

TEST_F(ImportPlanning, NamesAsTheLibraryDoes) {
  MakePhoto("card/a/IMG.jpg", 3);
  MakePhoto("card/b/img.JPG", 4);
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG.jpg", "img(1).JPG"));
  MakePhoto("copies/IMG.jpg", 1);
  MakePhoto("copies/IMG(1).jpg", 2);
  EXPECT_THAT(TargetNames(PlanTo({tree.Path("card/a")})), ElementsAre("IMG(1)(3).jpg"));
}

TEST_F(ImportPlanning, TellsOfShotsThatWouldFallApart) {
  for (const char* const name : {"card/IMG.CR2", "card/IMG.JPG", "card/IMG.xmp"}) {
    tree.Write(name, name);
  }
  tree.Write("copies/IMG.JPG", "of another shot");
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_THAT(plan.splits, SizeIs(1));
  EXPECT_THAT(plan.splits[0].sources, SizeIs(3));
  EXPECT_THAT(TargetNames(plan), testing::UnorderedElementsAre("IMG.CR2", "IMG(1).JPG", "IMG.xmp"));
}

TEST_F(ImportPlanning, TellsNothingOfShotsThatStayTogether) {
  for (const char* const name : {"card/IMG.CR2", "card/IMG.JPG"}) {
    tree.Write(name, name);
    tree.Write(std::string("copies") + (name + 4), "of another shot");
  }
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), testing::UnorderedElementsAre("IMG(1).CR2", "IMG(1).JPG"));
  EXPECT_THAT(plan.splits, IsEmpty());
}

TEST_F(ImportPlanning, KnowsTheContentOfTheCatalogueUnderAnyName) {
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

TEST_F(ImportPlanning, DoesNotTrustACatalogueWhosePhotosAreGoneOrChanged) {
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

TEST_F(ImportPlanning, TakesACataloguedPhotoOnTheCardForNoCopy) {
  MakePhotos("card", 1);
  Scan(Stored(), {Card()}, {}, nullptr);
  EXPECT_THAT(PlanWith({AlertButton::Yes}, {CopiesText()}).copies, SizeIs(1));
}

TEST_F(ImportPlanning, CopiesOneOfTwoSourcesOfOneContentAlsoWhenBothAreCatalogued) {
  MakePhoto("card/1/a.jpg", 1);
  MakePhoto("card/2/b.jpg", 1);
  Scan(Stored(), {Card()}, {}, nullptr);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a.jpg"));
  ASSERT_THAT(plan.known, SizeIs(1));
  EXPECT_EQ(plan.known[0].kind, KnownFile::Kind::Repeated);
}

TEST_F(ImportPlanning, TakesALinkToAnotherCardForNoCopy) {
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

TEST_F(ImportPlanning, LeavesWhatLiesInTheFolderOfCopiesByWhicheverWay) {
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

TEST_F(ImportPlanning, ShortensNamesThatTheCountMakesTooLong) {
  const auto nameOf = [](int letters, const char* end) {
    return std::string(static_cast<std::size_t>(letters), 'x') + end;
  };
  for (int i = 1; i <= 3; ++i) {
    MakePhoto("card/" + std::to_string(i) + "/" + nameOf(251, ".jpg"), i);
  }
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan),
              ElementsAre(nameOf(251, ".jpg"), nameOf(248, "(1).jpg"), nameOf(245, "(1)(3).jpg")));
  EXPECT_EQ(Carry(plan).copied, 3U);
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

TEST_F(ImportPlanning, TellsOfFilesThatWouldJoinAnotherShot) {
  tree.Write("copies/IMG.CR2", "of another shot");
  tree.Write("card/IMG.jpg", "one");
  tree.Write("card/IMG.xmp", "its settings");
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_THAT(plan.joins, SizeIs(1));
  EXPECT_THAT(plan.joins[0].sources, ElementsAre(tree.Path("card/IMG.jpg"), tree.Path("card/IMG.xmp")));
  EXPECT_THAT(plan.joins[0].targets, ElementsAre(Copies() / "IMG.jpg", Copies() / "IMG.xmp"));
  EXPECT_THAT(plan.joins[0].others, ElementsAre(Copies() / "IMG.CR2"));
}

TEST_F(ImportPlanning, TellsOfShotsOfTwoFoldersThatWouldBecomeOne) {
  tree.Write("card/1/IMG.CR2", "one");
  tree.Write("card/2/img.jpg", "two");
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_THAT(plan.joins, SizeIs(1));
  EXPECT_THAT(plan.joins[0].sources, ElementsAre(tree.Path("card/2/img.jpg")));
  EXPECT_THAT(plan.joins[0].others, ElementsAre(Copies() / "IMG.CR2"));
}

TEST_F(ImportPlanning, TellsNothingOfFilesThatJoinTheirOwnShot) {
  MakePhoto("card/IMG.jpg", 1);
  tree.Write("card/IMG.xmp", "settings");
  Carry(PlanTo({Card()}));
  tree.Write("card/IMG.CR2", "raw");
  tree.Write("copies/other.jpg", "unlike");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG.CR2"));
  EXPECT_THAT(plan.joins, IsEmpty());
}

TEST_F(ImportPlanning, TakesAPhotoOnAnotherCardForNoCopy) {
  MakePhoto("card/a.jpg", 1);
  MakePhoto("other/a.jpg", 1);
  Scan(Stored(), {tree.Path("other")}, {}, nullptr);
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {tree.Path("other")};
  const App::ServiceScope<App::IRemovableStorage> scope(storage);
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(1));
}

TEST_F(ImportPlanning, CopiesOneOfTwoSourcesOfOneContent) {
  MakePhoto("card/a.jpg", 1);
  MakePhoto("card/b.jpg", 1);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a.jpg"));
  ASSERT_THAT(plan.known, SizeIs(1));
  EXPECT_EQ(plan.known[0].kind, KnownFile::Kind::Repeated);
}

TEST_F(ImportPlanning, CopiesSidecarsOfOneContentAll) {
  for (const char* const name : {"card/a.xmp", "card/b.xmp"}) {
    tree.Write(name, "the same");
  }
  MakePhoto("card/a.jpg", 1);
  MakePhoto("card/b.jpg", 2);
  EXPECT_THAT(PlanTo({Card()}).copies, SizeIs(4));
}

TEST_F(ImportPlanning, KnowsSidecarsBesideTheKnownPhoto) {
  MakePhoto("pictures/Trip 1.jpg", 1);
  tree.Write("pictures/Trip 1.xmp", "stars");
  Scan(Stored(), {tree.Path("pictures")}, {}, nullptr);
  MakePhoto("card/IMG.jpg", 1);
  tree.Write("card/IMG.xmp", "stars");
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
  tree.Write("card/IMG.xmp", "STARS");
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG.xmp"));
}

TEST_F(ImportPlanning, SaysThatAFileIsInTheWayOfTheFolder) {
  MakePhotos("card", 1);
  tree.Write("copies", "a file");
  EXPECT_THAT(PlanTo({Card()}).obstacle, HasSubstr("is not a folder"));
  EXPECT_THAT(PlanTo({Card()}, tree.Path("copies/below")).obstacle, testing::Not(IsEmpty()));
}

TEST_F(ImportPlanning, SaysThatThereIsNoRoom) {
  MakePhotos("card", 2);
  const auto disk = std::make_shared<Zenvora::Test::FakeDiskSpace>();
  disk->otherwise = 100;
  const App::ServiceScope<App::IDiskSpace> scope(disk);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(plan.obstacle, HasSubstr("not enough space"));
  disk->otherwise = static_cast<std::int64_t>(plan.bytes);
  EXPECT_EQ(PlanTo({Card()}).obstacle, "") << "what just fits fits";
}

TEST_F(ImportPlanning, SaysThatNothingMayBeMadeInTheFolderAlsoWhenAnotherDiskIsFull) {
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

TEST_F(ImportPlanning, StopsWhenInterrupted) {
  MakePhotos("card", 2);
  const std::atomic<bool> cancel{true};
  ImportPlanOptions options;
  options.cancel = &cancel;
  EXPECT_EQ(PlanImport(GatherSources({Card()}), {}, options, nullptr).outcome, Outcome::Interrupted);
}

TEST_F(ImportPlanning, HasNothingToDoWithoutPhotos) {
  tree.Write("card/notes.txt", "x");
  const ImportPlan plan = Plan({Card()});
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_THAT(plan.stays, IsEmpty());
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportPlanning, AsksAboutFilesThatCannotBeRead, Zenvora::Test::kAccessLists);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportPlanning, KeepsNamesThatAreNoText, Zenvora::Test::kNamesAreText);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportPlanning, CutsNamesBetweenCharacters,
                              "lengths count in characters there, but for rare ones");
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportPlanning, FindsFreeNamesThatAreNoTextToo, Zenvora::Test::kNamesAreText);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportPlanning, SeesADeviceByWhatTheKernelTells,
                              "devices are told there by themselves");

#else

TEST_F(ImportPlanning, AsksAboutFilesThatCannotBeRead) {
  const auto photos = MakePhotos("card", 3);
  chmod(photos[1].native().c_str(), 0);
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const GatheredSources sources = GatherSources({Card()});
  const auto planAs = [&](AlertButton answer) {
    return [&, answer] {
      const auto alerts = std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{answer});
      const App::ServiceScope<App::IAlerts> scope(alerts);
      const ImportPlan plan = PlanImport(sources, {}, {}, nullptr);
      const bool asked = alerts->shown.size() == 1;
      return asked && (answer == AlertButton::Ok
                           ? plan.stays.size() == 2 && plan.left.size() == 1 && plan.left[0].path == photos[1]
                           : plan.outcome == Outcome::Declined);
    };
  };
  EXPECT_TRUE(Zenvora::Test::AskAsNobody(planAs(AlertButton::Ok)));
  EXPECT_TRUE(Zenvora::Test::AskAsNobody(planAs(AlertButton::Cancel)));
}

TEST_F(ImportPlanning, KeepsNamesThatAreNoText) {
  for (const char* const name :
       {"card/a\xFF.jpg", "card/a\x80.jpg", "card/\xD0\xB1.jpg", "card/two\nlines.jpg"}) {
    tree.Write(name, name);
  }
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {Card()};
  for (const bool all : {false, true}) {
    const App::ServiceScope<App::IRemovableStorage> scope(storage);
    const App::ServiceScope<App::IAlerts> alerts(std::make_shared<ScriptedAlerts>(
        all ? std::vector<AlertButton>{} : std::vector<AlertButton>{AlertButton::Yes}));
    const App::ServiceScope<App::IFolderDialog> dialog(
        std::make_shared<ScriptedFolderDialog>(std::vector<QString>{CopiesText()}));
    ImportPlanOptions options;
    options.copyAll = all;
    const ImportPlan plan = PlanImport(GatherSources({Card()}), {}, options, nullptr);
    EXPECT_THAT(TargetNames(plan),
                testing::UnorderedElementsAre("a\xFF.jpg", "a\x80.jpg", "\xD0\xB1.jpg", "two\nlines.jpg"));
  }
}

TEST_F(ImportPlanning, CutsNamesBetweenCharacters) {
  std::string base;
  for (int i = 0; i < 125; ++i) {
    base += "\xD0\xB1";
  }
  for (int i = 1; i <= 3; ++i) {
    MakePhoto("card/" + std::to_string(i) + "/" + base + ".jpg", i);
  }
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre(base + ".jpg", base.substr(0, 248) + "(1).jpg",
                                             base.substr(0, 244) + "(1)(3).jpg"));
  EXPECT_EQ(Carry(plan).copied, 3U);
}

TEST_F(ImportPlanning, FindsFreeNamesThatAreNoTextToo) {
  tree.Write("copies/a\xFF.jpg", "of another photo");
  tree.Write("copies/a\xFF(1).jpg", "of a third");
  tree.Write("card/a\xFF.jpg", "one");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a\xFF(1)(3).jpg"));
  EXPECT_EQ(Carry(plan).copied, 1U);
}

/// What the kernel tells of a stick on USB that is mounted where the card is.
class DescribedStorage : public App::IRemovableStorage {
 public:
  explicit DescribedStorage(const Zenvora::Test::TempTree& tree) : tree_(tree) {
    Device("pci0/ata1/host0/block/sda", "8:0", "scsi");
    Device("pci0/usb1/1-1/host2/block/sdb", "8:16", "scsi");
    Link("sys/devices/pci0/usb1/1-1/subsystem", "sys/bus/usb");
    tree_.Write("sys/devices/pci0/usb1/1-1/removable", "removable\n");
    mounts_ = Tavolin::ReadMounts("21 1 8:0 / / rw - ext4 /dev/sda rw\n22 21 8:16 / " +
                                  tree_.Path("card").utf8string() + " rw - vfat /dev/sdb rw\n");
  }
  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    Tavolin::BlockDevices devices(tree_.Path("sys"), tree_.Path("udev"));
    std::vector<ioPath> removable;
    for (const ioPath& folder : folders) {
      const std::string place = folder.utf8string();
      const Tavolin::Mount* const mount = Tavolin::FindMount(mounts_, place);
      if (mount != nullptr && devices.IsRemovable(*mount, place, Tavolin::FindMount(mounts_, "/"))) {
        removable.push_back(folder);
      }
    }
    return removable;
  }

 private:
  void Device(const std::string& place, const std::string& numbers, const std::string& bus) {
    const ioPath folder = ioPath("sys/devices") / ioPath(place);
    tree_.Write(folder / "dev", numbers + "\n");
    tree_.Write(folder / "removable", "0\n");
    Link("sys/dev/block/" + numbers, folder);
    Link(ioPath("sys/class/block") / folder.filename(), folder);
    Link(folder.parent_path().parent_path() / "subsystem", ioPath("sys/bus") / ioPath(bus));
  }
  void Link(const ioPath& link, const ioPath& target) {
    tree_.MakeFolder(link.parent_path());
    tree_.MakeFolder(target);
    EXPECT_TRUE(Zenvora::Test::MakeLink(tree_.Path(target), tree_.Path(link)));
  }

  const Zenvora::Test::TempTree& tree_;
  std::vector<Tavolin::Mount> mounts_;
};

TEST_F(ImportPlanning, SeesADeviceByWhatTheKernelTells) {
  MakePhoto("card/DCIM/a.jpg", 1);
  MakePhoto("pictures/b.jpg", 2);
  const App::ServiceScope<App::IRemovableStorage> storage(std::make_shared<DescribedStorage>(tree));
  const App::ServiceScope<App::IAlerts> alerts(
      std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{AlertButton::Yes, AlertButton::Ok}));
  const App::ServiceScope<App::IFolderDialog> dialog(std::make_shared<ScriptedFolderDialog>(
      std::vector<QString>{tree.Path("card/copies").qstring(), CopiesText()}));
  const ImportPlan plan = Plan({Card(), tree.Path("pictures")});
  EXPECT_THAT(TargetNames(plan), ElementsAre("a.jpg"));
  EXPECT_THAT(plan.stays, ElementsAre(tree.Path("pictures/b.jpg")));
}

#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
