#include "FolderTrash.h"
#include "JournalFixture.h"

#include <host/base/DiskReserve.h>
#include <host/import/Import.h>
#include <host/journal/JournalRoom.h>
#include <support/SmallDisk.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/FileState.h>

#include <functional>

namespace Zenvora::Lumidex::Host {
namespace {

using Zenvora::Test::ReadFile;

TEST(DiskReserveTest, HoldsRoomAndGivesItBack) {
  const Zenvora::Test::TempTree tree;
  const DiskReserve reserve(tree.Path("reserve"));
  EXPECT_EQ(reserve.Wanted(), 0U);
  EXPECT_FALSE(reserve.Release());
  EXPECT_FALSE(reserve.Hold(100'000));
  EXPECT_EQ(reserve.Wanted(), 100'000U);
  EXPECT_TRUE(reserve.Release());
  EXPECT_FALSE(reserve.Release());
  EXPECT_FALSE(reserve.Hold(200'000));
  EXPECT_EQ(reserve.Held(), 200'000U);
  EXPECT_FALSE(reserve.Hold(50'000));
  EXPECT_EQ(reserve.Wanted(), 50'000U);
  reserve.Remove();
  EXPECT_FALSE(tree.Path("reserve").exists());
}

/// The catalogue on a disk of its own, with little room; photos somewhere else, so that originals are copied.
class FullDisk : public Zenvora::Test::JournalTest {
 protected:
  FullDisk() {
    if (disk_.IsThere()) {
      OpenHere();
    }
  }
  ~FullDisk() override { Close(); }

  void OpenHere() {
    Close();
    journal_ = std::make_unique<UndoJournal>(catalogueHere_, *locker_);
  }

  std::vector<ioPath> MakeMany(int count, std::size_t bytes) const {
    std::vector<ioPath> photos;
    for (int i = 0; i < count; ++i) {
      photos.push_back(
          Make("p" + std::to_string(i) + ".jpg", std::string(bytes, static_cast<char>('a' + i))));
    }
    return photos;
  }

  /// Edits, with something happening before each photo is written.
  UndoResult EditWith(const std::vector<ioPath>& photos, const std::function<void(const ioPath&)>& before) {
    return EditPhotos(
        journal_->Edits(), *locker_, QStringLiteral("edit"), photos,
        [&before](const ioPath& photo, const ioPath& staging) {
          before(photo);
          std::ofstream(staging.native(), std::ios::binary) << "edited";
        },
        never_, nullptr);
  }

  /// Copies that go to a folder of their own.
  ImportResult Import(const ioPath& catalogue, const std::vector<ioPath>& sources,
                      const ImportProgressHandler& progress = nullptr) const {
    const App::ServiceScope<App::ISettingsManager> settings(App::MakeIniSettings(tree_.Path("settings.ini")));
    ImportPlan plan;
    plan.folder = tree_.Path("copies");
    for (const ioPath& source : sources) {
      plan.copies.push_back({source, QueryFile(source), plan.folder / source.filename(), false});
    }
    Catalogue stored(catalogue, Catalogue::Mode::ReadWrite);
    return RunImport(plan, stored, {}, progress);
  }

  static constexpr std::size_t kBytes = std::size_t{8} << 20U;

  const ioPath place_ = tree_.MakeFolder("small");
  Zenvora::Test::SmallDisk disk_{place_, kBytes};
  const ioPath catalogueHere_ = place_ / "catalogue.sqlite";
};

TEST_F(FullDisk, EditsWhatItCanAndTakesItBack) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = MakeMany(12, 100'000);
  // Five are done when the last byte is taken.
  const UndoResult result = EditWith(photos, [&](const ioPath& photo) {
    if (photo == photos[5]) {
      disk_.Fill();
    }
  });
  EXPECT_EQ(result.files, 5U);
  EXPECT_EQ(result.findings.size(), 7U);
  for (std::size_t i = 0; i < photos.size(); ++i) {
    EXPECT_EQ(ReadFile(photos[i]) == "edited", i < 5) << i;
  }
  OpenHere();
  EXPECT_TRUE(journal_->RecoveryNotes().empty()) << journal_->RecoveryNotes()[0];
  ASSERT_EQ(journal_->Steps().size(), 1U);
  EXPECT_EQ(journal_->Steps()[0].files, 5U);
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 5U);
  EXPECT_TRUE(undone.findings.empty()) << undone.findings[0].cause;
  for (std::size_t i = 0; i < photos.size(); ++i) {
    EXPECT_EQ(ReadFile(photos[i]), std::string(100'000, static_cast<char>('a' + i)));
  }
}

TEST_F(FullDisk, TakesBackPhotosOfAnotherVolume) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = MakeMany(3, 300'000);
  // As large as the originals: for redo it takes as much.
  ASSERT_EQ(Edit(photos, std::string(300'000, 'e')).files, 3U);
  Close();
  disk_.Fill();
  OpenHere();
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 3U);
  EXPECT_TRUE(undone.findings.empty()) << undone.findings[0].cause;
  EXPECT_EQ(ReadFile(photos[0]), std::string(300'000, 'a'));
  // And done again, and taken back once more.
  Close();
  disk_.Fill();
  OpenHere();
  EXPECT_EQ(Redo().files, 3U);
  EXPECT_EQ(ReadFile(photos[0]), std::string(300'000, 'e'));
  Close();
  disk_.Fill();
  OpenHere();
  EXPECT_EQ(Undo().files, 3U);
}

TEST_F(FullDisk, GoesOnWithoutRedoWhereOthersTookTheRoom) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = MakeMany(2, 300'000);
  ASSERT_EQ(Edit(photos, std::string(300'000, 'e')).files, 2U);
  const ioPath earlier = Make("earlier.jpg", std::string(50'000, 'o'));
  ASSERT_EQ(Edit({earlier}, "edited").files, 1U);
  ASSERT_EQ(Undo().files, 1U);
  // The room that was held is free now, and taken, but for what SQLite needs.
  disk_.Fill(200'000);
  const UndoResult refused = Undo();
  EXPECT_EQ(refused.files, 0U);
  EXPECT_EQ(refused.findings.size(), 2U);
  EXPECT_TRUE(refused.lacksRoomForRedo);
  EXPECT_TRUE(refused.stands);
  EXPECT_EQ(ReadFile(photos[0]), std::string(300'000, 'e'));

  journal_->KeepForRedo(false);
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 2U);
  EXPECT_TRUE(undone.findings.empty()) << undone.findings[0].cause;
  EXPECT_EQ(ReadFile(photos[0]), std::string(300'000, 'a'));
  EXPECT_TRUE(journal_->Steps().empty());
  EXPECT_EQ(Redo().files, 0U);
}

TEST_F(FullDisk, BeginsNothingWithoutRoomToFinishIt) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = MakeMany(1, 1000);
  disk_.Fill(500'000);
  EXPECT_THROW(Edit(photos, "edited"), HostError);
  EXPECT_EQ(ReadFile(photos[0]), std::string(1000, 'a'));
  EXPECT_TRUE(journal_->Steps().empty());
}

/// Albums were accepted, and to undo that there was no room.
TEST_F(FullDisk, AcceptsNoAlbumWithoutRoomToUndoIt) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  disk_.Fill(500'000);
  EXPECT_THROW(journal_->Albums().Run(QStringLiteral("accept"), {}), HostError);
  EXPECT_TRUE(journal_->Steps().empty());
}

/// Files were imported, and to undo that there was no room.
TEST_F(FullDisk, ImportsNothingWithoutRoomToUndoIt) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  Close();
  disk_.Fill(500'000);
  const ioPath source = Make("a.mp4", "video");
  EXPECT_THROW(Import(catalogueHere_, {source}), HostError);
  EXPECT_FALSE(tree_.Path("copies").exists());
  OpenHere();
  EXPECT_TRUE(journal_->Steps().empty());
}

/// Others have the journal: then it is enough that the room is there.
TEST_F(FullDisk, ImportsBesideAnOpenJournalWhereThereIsRoom) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const ioPath source = Make("a.mp4", "video");
  disk_.Fill(500'000);
  EXPECT_THROW(Import(catalogueHere_, {source}), HostError);
  disk_.Clear();
  EXPECT_EQ(Import(catalogueHere_, {source}).copied, 1U);
  Close();
  disk_.Fill();
  const Zenvora::Test::FolderTrash trash(tree_.MakeFolder("trash"));
  UndoJournal journal(catalogueHere_, *locker_, trash);
  EXPECT_EQ(journal.UndoLast(never_, nullptr).files, 1U);
}

/// They close it before the import has a step: then nobody but the import holds the room.
TEST_F(FullDisk, HoldsRoomForAnImportWhenTheJournalIsFreeAgain) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const ioPath reserve = place_ / "catalogue.sqlite.undo" / "reserve";
  const auto close = [this](const ImportProgress& now) {
    if (now.files == 0) {
      Close();
    }
  };
  EXPECT_EQ(Import(catalogueHere_, {Make("a.mp4", "video")}, close).copied, 1U);
  EXPECT_GT(DiskReserve(reserve).Held(), std::uint64_t{1} << 20U);
}

/// A row in the catalogue for each copy that goes to the trash: more than what is held for any step.
TEST_F(FullDisk, ImportsManyFilesAndTakesThemBack) {
  Zenvora::Test::SmallDisk disk(tree_.MakeFolder("larger"), 4 * kBytes);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath catalogue = tree_.Path("larger/catalogue.sqlite");
  const std::string deep = std::string(200, 'd') + '/' + std::string(200, 'e') + '/';
  std::vector<ioPath> sources;
  for (int i = 0; i < 900; ++i) {
    sources.push_back(Make(deep + std::string(200, 'n') + std::to_string(i) + ".mp4", std::to_string(i)));
  }
  ASSERT_EQ(Import(catalogue, sources).copied, sources.size());
  disk.Fill();
  const Zenvora::Test::FolderTrash trash(tree_.MakeFolder("trash/" + deep));
  UndoJournal journal(catalogue, *locker_, trash);
  const UndoResult undone = journal.UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files, sources.size());
  EXPECT_TRUE(undone.findings.empty()) << undone.findings[0].cause;
}

TEST_F(FullDisk, RenamesAndTakesItBack) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = MakeMany(3, 10);
  RenamePlan plan;
  for (const ioPath& photo : photos) {
    plan.steps.push_back({photo, ioPath(photo.utf8string() + ".new")});
  }
  plan.renames = plan.steps;
  const UndoResult result =
      journal_->Renames().Run(QStringLiteral("rename"), plan, never_, [this](std::size_t done, std::size_t) {
        if (done == 2) {
          disk_.Fill();
        }
      });
  EXPECT_EQ(result.files, 3U);
  EXPECT_TRUE(result.findings.empty()) << result.findings[0].cause;
  OpenHere();
  EXPECT_TRUE(journal_->RecoveryNotes().empty());
  EXPECT_EQ(Undo().files, 3U);
  EXPECT_EQ(ReadFile(photos[0]), std::string(10, 'a'));
}

TEST_F(FullDisk, HoldsItsRoomBetweenRuns) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const ioPath reserve = place_ / "catalogue.sqlite.undo" / "reserve";
  Close();
  // Nothing can be taken back.
  EXPECT_FALSE(reserve.exists());
  OpenHere();
  Edit(MakeMany(1, 10), "edited");
  Close();
  const std::uintmax_t before = disk_.Free();
  EXPECT_GE(reserve.file_size(), std::uint64_t{1} << 20U);
  OpenHere();
  EXPECT_GT(disk_.Free(), before);
  Close();
  EXPECT_LE(disk_.Free(), before + 65536);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
