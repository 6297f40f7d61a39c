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
using testing::IsEmpty;
using testing::SizeIs;
using Zenvora::Test::FakeRemovableStorage;
using Zenvora::Test::ScriptedAlerts;
using Zenvora::Test::ScriptedFolderDialog;

class ImportQuestions : public ImportTest {
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

TEST_F(ImportQuestions, LeavesWhatLiesOnAFixedDiskAndAsksNobody) {
  const auto photos = MakePhotos("card", 3);
  const App::ServiceScope<App::IAlerts> nobody(std::make_shared<ScriptedAlerts>());
  const App::ServiceScope<App::IRemovableStorage> fixed(std::make_shared<FakeRemovableStorage>());
  const ImportPlan plan = Plan({Card()});
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_EQ(plan.stays, photos);
}

TEST_F(ImportQuestions, CopiesFromRemovableStorageWhenTheUserWantsIt) {
  MakePhotos("card", 3);
  const ImportPlan plan = PlanWith({AlertButton::Yes}, {CopiesText()});
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_EQ(plan.folder, Copies());
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG_1000.JPG", "IMG_1001.JPG", "IMG_1002.JPG"));
  EXPECT_THAT(plan.stays, IsEmpty());
}

TEST_F(ImportQuestions, TakesPhotosInWhereTheyLieWhenTheUserWantsNoCopies) {
  const auto photos = MakePhotos("card", 3);
  const ImportPlan plan = PlanWith({AlertButton::No}, {});
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_EQ(plan.stays, photos);
}

TEST_F(ImportQuestions, DoesNothingWhenTheUserCancels) {
  MakePhotos("card", 3);
  EXPECT_EQ(PlanWith({AlertButton::Cancel}, {}).outcome, Outcome::Declined);
  EXPECT_EQ(PlanWith({AlertButton::Yes}, {QString()}).outcome, Outcome::Declined);
}

TEST_F(ImportQuestions, DoesNothingWhereNobodyCanBeAsked) {
  MakePhotos("card", 1);
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {Card()};
  const App::ServiceScope<App::IRemovableStorage> scope(storage);
  EXPECT_EQ(Plan({Card()}).outcome, Outcome::Declined);
}

TEST_F(ImportQuestions, RefusesAFolderThatCanBePulledOut) {
  MakePhotos("card", 1);
  tree.MakeFolder("card/more");
  const ImportPlan plan =
      PlanWith({AlertButton::Yes, AlertButton::Ok}, {tree.Path("card/more").qstring(), CopiesText()});
  EXPECT_EQ(plan.folder, Copies());
}

TEST_F(ImportQuestions, MakesAndRemembersNothing) {
  MakePhotos("card", 1);
  PlanWith({AlertButton::Yes}, {CopiesText()});
  EXPECT_FALSE(Copies().exists());
  EXPECT_EQ(App::Services::Current().Get<App::ISettingsManager>()->GetString(
                App::SettingsKey::kLastUsedCopyDirectory, "nothing"),
            "nothing");
}

TEST_F(ImportQuestions, TakesACataloguedPhotoOnTheCardForNoCopy) {
  MakePhotos("card", 1);
  Scan(Stored(), {Card()}, {}, nullptr);
  EXPECT_THAT(PlanWith({AlertButton::Yes}, {CopiesText()}).copies, SizeIs(1));
}

TEST_F(ImportQuestions, KeepNamesThatAreNoText) {
#ifdef _WIN32
  const std::vector<std::string> names = {"\xD0\xB1.jpg", "\xF0\x9F\x93\xB7.jpg"};
#else
  const std::vector<std::string> names = {"a\xFF.jpg", "a\x80.jpg", "\xD0\xB1.jpg", "two\nlines.jpg"};
#endif
  for (const std::string& name : names) {
    tree.Write("card/" + name, name);
  }
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {Card()};
  for (const bool all : {false, true}) {
    const App::ServiceScope<App::IRemovableStorage> scope(storage);
    const App::ServiceScope<App::IAlerts> alerts(
        std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{AlertButton::Yes}));
    const App::ServiceScope<App::IFolderDialog> dialog(
        std::make_shared<ScriptedFolderDialog>(std::vector<QString>{CopiesText()}));
    const ImportPlan plan = PlanOf(GatherSources({Card()}), {}, all);
    EXPECT_THAT(TargetNames(plan), testing::UnorderedElementsAreArray(names));
  }
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportQuestions, AsksAboutFilesThatCannotBeRead);

#else

TEST_F(ImportQuestions, AsksAboutFilesThatCannotBeRead) {
  const auto photos = MakePhotos("card", 3);
  chmod(photos[1].native().c_str(), 0);
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const GatheredSources sources = GatherSources({Card()});
  const auto planAs = [&](AlertButton answer) {
    return [&, answer] {
      const auto alerts = std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{answer});
      const App::ServiceScope<App::IAlerts> scope(alerts);
      const ImportPlan plan = PlanOf(sources, {}, false);
      const bool asked = alerts->shown.size() == 1;
      return asked && (answer == AlertButton::Ok
                           ? plan.stays.size() == 2 && plan.left.size() == 1 && plan.left[0].path == photos[1]
                           : plan.outcome == Outcome::Declined);
    };
  };
  EXPECT_TRUE(Zenvora::Test::AskAsNobody(planAs(AlertButton::Ok)));
  EXPECT_TRUE(Zenvora::Test::AskAsNobody(planAs(AlertButton::Cancel)));
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

TEST_F(ImportQuestions, SeeADeviceByWhatTheKernelTells) {
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
