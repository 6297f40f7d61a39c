#include "ImportFixture.h"
#include "ImportManifest.h"
#include "Records.h"

#include <host/base/ProcessLock.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/SmallDisk.h>
#include <support/Soak.h>
#include <support/Unprivileged.h>

#include <zenvora/core/FileState.h>

#include <atomic>
#include <fstream>
#include <map>
#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;

using Missing = MissingCopy::Kind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Zenvora::Test::ErrorOf;
using Zenvora::Test::ReadFile;

class ImportRunning : public ImportTest {
 protected:
  static std::map<std::string, std::pair<std::string, std::int64_t>> Snapshot(const ioPath& folder) {
    std::map<std::string, std::pair<std::string, std::int64_t>> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder.native())) {
      if (entry.is_regular_file()) {
        const ioPath path{entry.path()};
        files[path.utf8string()] = {ReadFile(path), QueryFile(path).modifiedNs};
      }
    }
    return files;
  }
  std::vector<ioPath> InCatalogue() {
    std::vector<ioPath> paths;
    for (const PhotoRecord& photo : Stored().Photos()) {
      paths.push_back(photo.path);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
  }
};

TEST_F(ImportRunning, CopiesComparesListsAndCatalogues) {
  const auto photos = MakePhotos("card/DCIM", 5);
  const auto before = Snapshot(Card());
  const ImportResult result = Carry(PlanTo({Card()}));
  EXPECT_EQ(result.copied, 5U);
  EXPECT_EQ(result.added, 5U);
  EXPECT_THAT(result.missing, IsEmpty());
  EXPECT_EQ(result.stopped, "");
  EXPECT_EQ(Snapshot(Card()), before) << "sources are never changed";
  for (const ioPath& photo : photos) {
    const ioPath copy = Copies() / photo.filename();
    EXPECT_EQ(ReadFile(copy), ReadFile(photo));
    EXPECT_EQ(QueryFile(copy).modifiedNs, QueryFile(photo).modifiedNs);
  }
  EXPECT_THAT(PartsIn(Copies()), IsEmpty());
  EXPECT_THAT(ImportManifest::Read(Copies()), SizeIs(5));
}

TEST_F(ImportRunning, CataloguesWhatAScanWould) {
  MakePhotos("card", 3);
  Carry(PlanTo({Card()}));
  const auto imported = Stored().Photos();
  const ScanResult scanned = Scan(Stored(), {Copies()}, {}, nullptr);
  EXPECT_EQ(scanned.unchanged, 3U);
  Catalogue other(tree.Path("other.sqlite"), Catalogue::Mode::ReadWrite);
  Scan(other, {Copies()}, {}, nullptr);
  const auto expected = other.Photos();
  ASSERT_EQ(imported.size(), expected.size());
  for (std::size_t i = 0; i < imported.size(); ++i) {
    EXPECT_EQ(imported[i].path, expected[i].path);
    EXPECT_EQ(imported[i].taken, expected[i].taken);
    EXPECT_EQ(imported[i].camera, expected[i].camera);
    EXPECT_EQ(imported[i].modifiedNs, expected[i].modifiedNs);
    EXPECT_EQ(imported[i].size, expected[i].size);
  }
}

TEST_F(ImportRunning, RemembersTheFolder) {
  MakePhotos("card", 1);
  Carry(PlanTo({Card()}));
  EXPECT_EQ(App::Services::Current().Get<App::ISettingsManager>()->GetString(
                App::SettingsKey::kLastUsedCopyDirectory, ""),
            Copies().utf8string());
}

TEST_F(ImportRunning, CataloguesPhotosByTheRealNameOfTheirFolder) {
  MakePhotos("card", 1);
  tree.MakeFolder("copies");
  LUMIDEX_LINK_OR_SKIP(Copies(), tree.Path("link"));
  Carry(PlanTo({Card()}, tree.Path("link")));
  EXPECT_THAT(InCatalogue(), ElementsAre(tree.Path("copies/IMG_1000.JPG")));
}

TEST_F(ImportRunning, HasNothingToDoTheSecondTime) {
  MakePhotos("card", 4);
  tree.Write("card/IMG_1000.xmp", "stars");
  Carry(PlanTo({Card()}));
  const auto before = Snapshot(Copies());
  const ImportPlan again = PlanTo({Card()});
  EXPECT_THAT(again.copies, IsEmpty());
  EXPECT_THAT(again.known, SizeIs(5));
  const ImportResult result = Carry(again);
  EXPECT_EQ(result.added, 0U);
  EXPECT_EQ(Snapshot(Copies()), before);
}

TEST_F(ImportRunning, KnowsCopiesOfSidecarsByAnotherPathToo) {
  MakePhoto("card/a.jpg", 1);
  tree.Write("card/a.xmp", "stars");
  Carry(PlanTo({Card()}));
  ASSERT_TRUE(Card().rename(tree.Path("card2")));
  EXPECT_THAT(PlanTo({tree.Path("card2")}).copies, IsEmpty());
}

TEST_F(ImportRunning, CopiesAgainWhatWasDamagedOrTakenAway) {
  MakePhotos("card", 3);
  Carry(PlanTo({Card()}));
  std::ofstream((Copies() / "IMG_1000.JPG").native(), std::ios::binary | std::ios::app) << "!";
  ASSERT_TRUE((Copies() / "IMG_1001.JPG").remove());
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG_1000(1).JPG", "IMG_1001.JPG"));
}

/// Writes other bytes of the same number into a file, and gives it its old time.
void ChangeUnseen(const ioPath& file) {
  const auto time = fs::last_write_time(file.native());
  std::string content = ReadFile(file);
  content[content.size() / 2] = static_cast<char>(content[content.size() / 2] ^ 1);
  std::ofstream(file.native(), std::ios::binary) << content;
  fs::last_write_time(file.native(), time);
}

TEST_F(ImportRunning, CopiesAnotherPhotoThatTookTheNameSizeAndTimeOfOneCopiedBefore) {
  const ioPath photo = MakePhoto("card/IMG.JPG", 1);
  Carry(PlanTo({Card()}));
  ChangeUnseen(photo);
  const ImportPlan again = PlanTo({Card()});
  EXPECT_THAT(TargetNames(again), ElementsAre("IMG(1).JPG"));
  Carry(again);
  EXPECT_EQ(ReadFile(Copies() / "IMG(1).JPG"), ReadFile(photo));
}

TEST_F(ImportRunning, CopiesAgainWhatRottedUnderItsTime) {
  MakePhoto("card/IMG.JPG", 1);
  Carry(PlanTo({Card()}));
  ChangeUnseen(Copies() / "IMG.JPG");
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG(1).JPG"));
}

TEST_F(ImportRunning, KnowsCopiesWhoseTimeADiskToldInAnotherWayLater) {
  MakePhoto("card/IMG.JPG", 1);
  tree.Write("card/IMG.xmp", "stars");
  Carry(PlanTo({Card()}));
  CloseCatalogue();
  fs::remove_all(tree.Path("data").native());
  // As FAT does when the clocks are changed.
  for (const char* const name : {"IMG.JPG", "IMG.xmp"}) {
    const fs::path copy = (Copies() / name).native();
    fs::last_write_time(copy, fs::last_write_time(copy) + std::chrono::hours(1));
  }
  const ImportPlan again = PlanTo({Card()});
  EXPECT_THAT(again.copies, IsEmpty());
  EXPECT_THAT(again.known, SizeIs(2));
}

TEST_F(ImportRunning, CopiesASidecarWithItsPhotoAlsoWhenOneOfAnotherShotIsLikeIt) {
  MakePhoto("card/IMG.JPG", 1);
  tree.Write("card/IMG.xmp", "five stars");
  Carry(PlanTo({Card()}));
  // The card was formatted, and the camera counts from the beginning.
  MakePhoto("card/IMG.JPG", 2);
  tree.Write("card/IMG.xmp", "five stars");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), testing::UnorderedElementsAre("IMG(1).JPG", "IMG(1).xmp"));
  Carry(plan);
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

TEST_F(ImportRunning, TakesASidecarWhosePhotoIsStillMissingForTheOneOfItsOwnShotOnly) {
  for (const char* const folder : {"card/1", "card/2"}) {
    tree.Write(std::string(folder) + "/IMG.xmp", "five stars");
  }
  const ioPath first = MakePhoto("card/1/IMG.JPG", 1);
  MakePhoto("card/2/IMG.JPG", 2);
  const ImportPlan plan = PlanTo({tree.Path("card/1")});
  const std::string content = ReadFile(first);
  ASSERT_TRUE(first.remove());
  EXPECT_EQ(Carry(plan).copied, 1U);
  tree.Write("card/1/IMG.JPG", content);
  const ImportPlan rest = PlanTo({Card()});
  EXPECT_THAT(TargetNames(rest), testing::UnorderedElementsAre("IMG.JPG", "IMG(1).JPG", "IMG(1).xmp"));
  Carry(rest);
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

TEST_F(ImportRunning, KnowsASidecarWhosePhotoIsStillMissing) {
  const ioPath photo = MakePhoto("card/IMG.JPG", 1);
  tree.Write("card/IMG.xmp", "five stars");
  const ImportPlan plan = PlanTo({Card()});
  const std::string content = ReadFile(photo);
  ASSERT_TRUE(photo.remove());
  EXPECT_EQ(Carry(plan).copied, 1U);
  tree.Write("card/IMG.JPG", content);
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG.JPG"));
}

TEST_F(ImportRunning, ListsWhatIsThereWhenTheCatalogueFailsOnTheWay) {
  MakePhotos("card", 3);
  const ImportPlan plan = PlanTo({Card()});
  CloseCatalogue();
  ImportResult result;
  {
    Catalogue closed(tree.Path("data/catalogue.sqlite"), Catalogue::Mode::ReadOnly);
    result = RunImport(plan, closed, {}, nullptr);
  }
  EXPECT_EQ(result.copied, 3U);
  EXPECT_EQ(result.added, 0U);
  EXPECT_THAT(result.stopped, HasSubstr("catalogue"));
  EXPECT_EQ(Carry(PlanTo({Card()})).added, 3U) << "the next run takes them in";
}

TEST_F(ImportRunning, AsksForRoomAgainBeforeEachCopy) {
  const auto photos = MakePhotos("card", 2);
  const ImportPlan plan = PlanTo({Card()});
  const auto disk = std::make_shared<Zenvora::Test::FakeDiskSpace>();
  disk->otherwise = static_cast<std::int64_t>(QueryFile(photos[0]).size) - 1;
  const App::ServiceScope<App::IDiskSpace> scope(disk);
  const ImportResult result = Carry(plan);
  EXPECT_EQ(result.copied, 0U);
  EXPECT_THAT(result.stopped, HasSubstr("The disk is full"));
  ASSERT_THAT(result.missing, SizeIs(2));
  EXPECT_EQ(result.missing[0].kind, Missing::NotReached);
}

TEST_F(ImportRunning, GivesNoNameThatIsTaken) {
  MakePhotos("card", 2);
  const ImportPlan plan = PlanTo({Card()});
  tree.Write("copies/IMG_1000.JPG", "came meanwhile");
  const ImportResult result = Carry(plan);
  EXPECT_EQ(result.copied, 1U);
  ASSERT_THAT(result.missing, SizeIs(1));
  EXPECT_EQ(result.missing[0].kind, Missing::NameTaken);
  EXPECT_EQ(ReadFile(tree.Path("copies/IMG_1000.JPG")), "came meanwhile");
  EXPECT_THAT(PartsIn(Copies()), IsEmpty());
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG_1000(1).JPG")) << "the next run finds a name";
}

TEST_F(ImportRunning, ReportsWhatVanishedAndCopiesTheRest) {
  const auto photos = MakePhotos("card", 3);
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_TRUE(photos[1].remove());
  const ImportResult result = Carry(plan);
  EXPECT_EQ(result.copied, 2U);
  ASSERT_THAT(result.missing, SizeIs(1));
  EXPECT_EQ(result.missing[0].kind, Missing::Unreadable);
  EXPECT_EQ(result.missing[0].source, photos[1]);
}

TEST_F(ImportRunning, ReportsAllWhenTheCardIsPulled) {
  MakePhotos("card", 3);
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_TRUE(Card().rename(tree.Path("pulled")));
  const ImportResult result = Carry(plan);
  EXPECT_EQ(result.copied, 0U);
  EXPECT_THAT(result.missing, SizeIs(3));
  EXPECT_THAT(NamesIn(Copies()), IsEmpty());
}

TEST_F(ImportRunning, TellsWhichRepetitionsAreMissingToo) {
  const ioPath first = MakePhoto("card/a.jpg", 1);
  MakePhoto("card/b.jpg", 1);
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_TRUE(first.remove());
  const ImportResult result = Carry(plan);
  ASSERT_THAT(result.missing, SizeIs(2));
  EXPECT_EQ(result.missing[1].kind, Missing::Repeated);
  EXPECT_EQ(Carry(PlanTo({Card()})).copied, 1U) << "the next run takes the other one";
}

TEST_F(ImportRunning, CopiesTheNewContentOfAFileThatChangedSincePlanned) {
  const auto photos = MakePhotos("card", 1);
  const ImportPlan plan = PlanTo({Card()});
  MakePhoto("card/IMG_1000.JPG", 77);
  EXPECT_EQ(Carry(plan).copied, 1U);
  EXPECT_EQ(ReadFile(Copies() / "IMG_1000.JPG"), ReadFile(photos[0]));
}

TEST_F(ImportRunning, ReportsAFileThatIsWrittenAllTheTime) {
  MakePhoto("card/quiet.jpg", 1);
  const ioPath busy = tree.Write("card/busy.jpg", std::string(64'000'000, 'x'));
  const ImportPlan plan = PlanTo({Card()});
  std::atomic<bool> done{false};
  std::thread writer([&] {
    std::fstream stream(busy.native(), std::ios::binary | std::ios::in | std::ios::out);
    for (int i = 0; !done; ++i) {
      stream.seekp(i % 1000);
      stream.put('y').flush();
    }
  });
  const ImportResult result = Carry(plan);
  done = true;
  writer.join();
  EXPECT_EQ(result.copied, 1U);
  ASSERT_THAT(result.missing, SizeIs(1));
  EXPECT_EQ(result.missing[0].kind, Missing::Changed);
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("quiet.jpg"));
}

TEST_F(ImportRunning, StopsBetweenFilesWhenInterruptedAndGoesOnLater) {
  MakePhotos("card", 20);
  const ImportPlan plan = PlanTo({Card()});
  std::atomic<bool> cancel{false};
  ImportOptions options;
  options.cancel = &cancel;
  const ImportResult result = RunImport(
      plan, Stored(), options, [&cancel](const ImportProgress& now) { cancel = cancel || now.bytes > 0; });
  EXPECT_TRUE(result.cancelled);
  EXPECT_LT(result.copied, 20U);
  EXPECT_EQ(result.copied + result.missing.size(), 20U);
  EXPECT_EQ(NamesIn(Copies()).size(), result.copied);
  EXPECT_EQ(InCatalogue().size(), result.copied);
  EXPECT_THAT(PartsIn(Copies()), IsEmpty());
  const ImportPlan rest = PlanTo({Card()});
  EXPECT_EQ(rest.copies.size(), result.missing.size());
  Carry(rest);
  EXPECT_THAT(InCatalogue(), SizeIs(20));
}

TEST_F(ImportRunning, ClearsAwayWhatAKilledRunLeft) {
  MakePhotos("card", 1);
  tree.Write("copies/.lumidex-import/part-7.JPG", "half");
  tree.Write("copies/.lumidex-import/notes.txt", "somebody's");
  Carry(PlanTo({Card()}));
  EXPECT_THAT(PartsIn(Copies()), ElementsAre("notes.txt"));
}

TEST_F(ImportRunning, TakesInCopiesThatAKilledRunNamedOnly) {
  MakePhotos("card", 2);
  Carry(PlanTo({Card()}));
  CloseCatalogue();
  fs::remove_all(tree.Path("data").native());
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_EQ(Carry(plan).added, 2U);
  EXPECT_THAT(InCatalogue(), ElementsAre(Copies() / "IMG_1000.JPG", Copies() / "IMG_1001.JPG"));
}

TEST_F(ImportRunning, LetsOneImportWorkInAFolderAtATime) {
  MakePhotos("card", 1);
  const ImportPlan plan = PlanTo({Card()});
  tree.MakeFolder("copies/.lumidex-import");
  ProcessLock lock;
  ASSERT_FALSE(lock.Take(Copies() / ".lumidex-import" / "lock"));
  EXPECT_THAT(ErrorOf([&] { Carry(plan); }), HasSubstr("Another import is running"));
  EXPECT_THAT(NamesIn(Copies()), IsEmpty());
}

TEST_F(ImportRunning, KeepsPhotosThatAreNoPicturesOutOfTheCatalogueOnly) {
  tree.Write("card/broken.jpg", "no picture");
  const ImportResult result = Carry(PlanTo({Card()}));
  EXPECT_EQ(result.copied, 1U);
  EXPECT_EQ(result.added, 0U);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_EQ(result.findings[0].path, Copies() / "broken.jpg");
}

TEST_F(ImportRunning, TakesPhotosInWhereTheyLie) {
  const auto photos = MakePhotos("pictures", 3);
  const App::ServiceScope<App::IRemovableStorage> fixed(
      std::make_shared<Zenvora::Test::FakeRemovableStorage>());
  const ImportResult result = Carry(Plan({tree.Path("pictures")}));
  EXPECT_EQ(result.added, 3U);
  EXPECT_EQ(result.copied, 0U);
  EXPECT_EQ(InCatalogue(), photos);
}

TEST_F(ImportRunning, CopiesManyFiles) {
  const std::size_t files = Zenvora::Test::SoakOr<std::size_t>(10'000, 1'000);
#ifndef _WIN32
  // In memory where that can be: it is the number that counts, and disks take their time for each.
  tree.MakeFolder("copies");
  const Zenvora::Test::SmallDisk disk(Copies(), std::size_t{200} << 20U);
#endif
  for (std::size_t i = 0; i < files; ++i) {
    tree.Write("card/" + std::to_string(i % 10) + "/" + std::to_string(i) + ".jpg",
               "photo " + std::to_string(10'000 + i));
  }
  const ImportResult result = Carry(PlanTo({Card()}));
  EXPECT_EQ(result.copied, files);
  const ImportPlan again = PlanTo({Card()});
  EXPECT_THAT(again.copies, IsEmpty());
  EXPECT_THAT(again.known, SizeIs(files));
}

/// Whoever may write in the folder of copies could let an import write anywhere else.
TEST_F(ImportRunning, NeverFollowsLinksOfItsOwnFolder) {
  MakePhotos("card", 2);
  const ioPath victim = tree.Write("victim/file", "untouched");
  const ioPath own = Copies() / ".lumidex-import";
  for (const std::string& name :
       {std::string(), std::string("manifest.jsonl"), std::string("lock"), std::string("part-1.JPG")}) {
    fs::remove_all(Copies().native());
    fs::create_directories((name.empty() ? Copies() : own).native());
    const ioPath link = name.empty() ? own : own / ioPath(name);
    std::error_code error;
    name.empty() ? fs::create_directory_symlink(tree.Path("victim").native(), link.native(), error)
                 : fs::create_symlink(victim.native(), link.native(), error);
    if (error) {
      GTEST_SKIP() << "this user may make no links: " << error.message();
    }
    const ImportPlan plan = PlanTo({Card()});
    EXPECT_THAT(plan.obstacle, HasSubstr(link.utf8string() + " is a link")) << name;
    EXPECT_THAT(ErrorOf([&] { Carry(plan); }), HasSubstr(link.utf8string() + " is a link")) << name;
    EXPECT_EQ(ReadFile(victim), "untouched") << name;
    EXPECT_THAT(NamesIn(tree.Path("victim")), ElementsAre("file")) << name;
    EXPECT_TRUE(fs::is_symlink(link.native())) << name;
    EXPECT_THAT(NamesIn(Copies()), IsEmpty()) << name;
  }
}

TEST_F(ImportRunning, StopsCleanlyOnAFullDisk) {
  const Zenvora::Test::SmallDisk disk(tree.MakeFolder("copies"), std::size_t{4} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  for (int i = 0; i < 10; ++i) {
    tree.Write("card/" + std::to_string(i) + ".jpg", std::to_string(i) + std::string(300'000, 'x'));
  }
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_EQ(plan.obstacle, "");
  // Somebody else fills the disk to the last byte but for two photos.
  {
    std::ofstream filler(tree.Path("copies/filler").native(), std::ios::binary);
    filler << std::string((std::size_t{4} << 20U) - 800'000, 'f');
  }
  const ImportResult result = Carry(plan);
  EXPECT_THAT(result.stopped, testing::Not(IsEmpty()));
  EXPECT_LE(result.copied, 2U);
  EXPECT_EQ(result.copied + result.missing.size(), 10U);
  EXPECT_EQ(NamesIn(Copies()).size(), result.copied + 1);
  EXPECT_THAT(PartsIn(Copies()), IsEmpty());
  for (const MissingCopy& missing : result.missing) {
    EXPECT_FALSE(missing.target.exists()) << missing.target;
  }
  ASSERT_TRUE(tree.Path("copies/filler").remove());
  EXPECT_EQ(Carry(PlanTo({Card()})).copied, 10U - result.copied);
}

TEST_F(ImportRunning, ChangesNothingOnAReadOnlyVolume) {
  const Zenvora::Test::SmallDisk disk(tree.MakeFolder("copies"), std::size_t{4} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  ASSERT_TRUE(disk.MakeReadOnly());
  MakePhotos("card", 1);
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(plan.obstacle, HasSubstr("permission"));
  EXPECT_THAT(ErrorOf([&] { Carry(plan); }), HasSubstr("Nothing can be copied"));
}

TEST_F(ImportRunning, KeepsNamesOfEveryKind) {
  const std::vector<std::string> names = {"\xD0\x9B\xD0\xB5\xD1\x82\xD0\xBE.jpg",
                                          "\xE5\x86\x99\xE7\x9C\x9F.jpg",
                                          "\xD8\xB5\xD9\x88\xD8\xB1\xD8\xA9.jpg",
                                          "\xF0\x9F\x93\xB7.jpg",
                                          "e\xCC\x81.jpg",
#ifndef _WIN32
                                          "two\nlines.jpg",
                                          "tab\tquote\".jpg",
                                          "bytes\xFF\x80.jpg",
#endif
                                          " blank .jpg"};
  for (const std::string& name : names) {
    tree.Write("card/" + name, "photo " + name);
  }
  const ImportResult result = Carry(PlanTo({Card()}));
  EXPECT_EQ(result.copied, names.size());
  for (const std::string& name : names) {
    EXPECT_EQ(ReadFile(Copies() / ioPath(name)), "photo " + name);
  }
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportRunning, ReportsReadErrors);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportRunning, SaysWhoMayNotWriteInTheFolder);

#else

TEST_F(ImportRunning, ReportsReadErrors) {
  MakePhotos("card", 2);
  ImportPlan plan = PlanTo({Card()});
  // Nothing is mapped at the beginning of a process's memory: reading it is an error of input.
  plan.copies[0].source = "/proc/self/mem";
  plan.copies[0].state = QueryFile("/proc/self/mem");
  const ImportResult result = Carry(plan);
  EXPECT_EQ(result.copied, 1U);
  ASSERT_THAT(result.missing, SizeIs(1));
  EXPECT_EQ(result.missing[0].kind, Missing::Unreadable);
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("IMG_1001.JPG"));
}

TEST_F(ImportRunning, SaysWhoMayNotWriteInTheFolder) {
  MakePhotos("card", 1);
  tree.MakeFolder("copies");
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const GatheredSources sources = GatherSources({Card()});
  const bool told = Zenvora::Test::AskAsNobody([&] {
    const App::ServiceScope<App::IFolderDialog> dialog(
        std::make_shared<Zenvora::Test::ScriptedFolderDialog>(std::vector<QString>{Copies().qstring()}));
    const App::ServiceScope<App::IAlerts> alerts(std::make_shared<SaysYes>());
    return PlanOf(sources, {}, true).obstacle.find("permission") != std::string::npos;
  });
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "the folder belongs to this user";
  }
  EXPECT_TRUE(told);
}

#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
