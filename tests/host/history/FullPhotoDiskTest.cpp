#include "JournalFixture.h"

#include <support/SmallDisk.h>

#include <zenvora/core/FileState.h>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using Zenvora::Test::ReadFile;
using Zenvora::Test::RunSql;

/// Photos on a full disk of their own; what undo keeps lies somewhere else.
class FullPhotoDisk : public Zenvora::Test::JournalTest {
 protected:
  FullPhotoDisk() { Open(); }
  ~FullPhotoDisk() override { Close(); }

  std::vector<ioPath> EditThree(std::size_t before, std::size_t after) {
    std::vector<ioPath> photos;
    for (const char name : {'a', 'b', 'c'}) {
      photos.push_back(Make(std::string(1, name) + ".jpg", std::string(before, name)));
    }
    EXPECT_EQ(Edit(photos, std::string(after, 'e')).files, 3U);
    return photos;
  }

  void Fill() {
    disk_.Fill();
    ASSERT_EQ(disk_.Free(), 0U);
  }

  /// No staging file: the photos and the filler alone.
  std::size_t FilesOnDisk() const {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(place_.native())) {
      count += entry.is_regular_file() ? 1 : 0;
    }
    return count;
  }

  const ioPath place_ = tree_.MakeFolder("photos");
  Zenvora::Test::SmallDisk disk_{place_, std::size_t{1} << 20U};
};

TEST_F(FullPhotoDisk, TakesBackAndDoesAgain) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = EditThree(100'000, 99'000);
  const std::int64_t edited = QueryFile(photos[0]).modifiedNs;
  Fill();
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 3U);
  EXPECT_THAT(undone.findings, IsEmpty()) << undone.findings[0].cause;
  EXPECT_EQ(ReadFile(photos[0]), std::string(100'000, 'a'));
  EXPECT_EQ(ReadFile(photos[2]), std::string(100'000, 'c'));
  EXPECT_EQ(Redo().files, 3U);
  EXPECT_EQ(ReadFile(photos[0]), std::string(99'000, 'e'));
  EXPECT_EQ(QueryFile(photos[0]).modifiedNs, edited);
  EXPECT_EQ(Undo().files, 3U);
  EXPECT_EQ(ReadFile(photos[1]), std::string(100'000, 'b'));
  EXPECT_EQ(FilesOnDisk(), 4U);
}

TEST_F(FullPhotoDisk, TakesBackWithoutRedo) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = EditThree(100'000, 100'000);
  Fill();
  journal_->KeepForRedo(false);
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 3U);
  EXPECT_THAT(undone.findings, IsEmpty()) << undone.findings[0].cause;
  EXPECT_EQ(ReadFile(photos[0]), std::string(100'000, 'a'));
  EXPECT_THAT(Kept(), IsEmpty());
}

TEST_F(FullPhotoDisk, LeavesWhatWouldGrowBeyondTheDisk) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = EditThree(300'000, 1000);
  Fill();
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 0U);
  ASSERT_EQ(undone.findings.size(), 3U);
  EXPECT_THAT(undone.findings[0].cause,
              HasSubstr("its disk has no room for its other version (300000 bytes)"));
  EXPECT_TRUE(undone.stands);
  EXPECT_EQ(ReadFile(photos[0]), std::string(1000, 'e'));
  EXPECT_EQ(FilesOnDisk(), 4U);
  disk_.Clear();
  EXPECT_EQ(Undo().files, 3U);
  EXPECT_EQ(ReadFile(photos[0]), std::string(300'000, 'a'));
}

TEST_F(FullPhotoDisk, DoesNotWriteIntoAPhotoWithOtherNames) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const std::vector<ioPath> photos = EditThree(100'000, 100'000);
  std::filesystem::create_hard_link(photos[1].native(), (place_ / "other").native());
  Fill();
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 2U);
  ASSERT_EQ(undone.findings.size(), 1U);
  EXPECT_EQ(undone.findings[0].file, photos[1]);
  EXPECT_EQ(ReadFile(place_ / "other"), std::string(100'000, 'e'));
  EXPECT_EQ(ReadFile(photos[1]), std::string(100'000, 'e'));
}

/// What a kill leaves while a photo's room is used for its other version.
class SetAsidePhoto : public Zenvora::Test::JournalTest {
 protected:
  SetAsidePhoto() {
    Open();
    EXPECT_EQ(Edit({photo_}, "edited photo").files, 1U);
    Close();
  }

  /// The photo has the name of its staging file, of which so much is written.
  void Kill(const std::string& content) {
    std::filesystem::copy_file((keptFolder_ / "1-before.jpg").for_system(),
                               (keptFolder_ / "1-spare").for_system());
    std::ofstream((keptFolder_ / "1-after.jpg").for_system()) << "edited photo";
    RunSql(catalogue_, {"UPDATE steps SET state = 3", "UPDATE changes SET state = 3, side = CAST('" +
                                                          staging_.utf8string() + "' AS BLOB)"});
    std::filesystem::rename(photo_.for_system(), staging_.for_system());
    std::ofstream(staging_.for_system(), std::ios::binary) << content;
  }

  const ioPath photo_ = Make("a.jpg", "the original of the photo");
  const ioPath staging_ = tree_.Path("photos/.lumidex-staging.jpg");
};

TEST_F(SetAsidePhoto, ComesBackWhereverTheWorkWasBrokenOff) {
  for (const char* content :
       {"edited photo", "the orig photo", "the original of the photo, longer", "the original of the photo"}) {
    SCOPED_TRACE(content);
    Kill(content);
    Open();
    EXPECT_EQ(ReadFile(photo_), "the original of the photo");
    EXPECT_FALSE(staging_.exists());
    ASSERT_EQ(journal_->RecoveryNotes().size(), 1U);
    EXPECT_THAT(journal_->RecoveryNotes()[0], HasSubstr("Interrupted undo of "));
    EXPECT_EQ(Redo().files, 1U);
    EXPECT_EQ(ReadFile(photo_), "edited photo");
    Close();
    (keptFolder_ / "1-spare").remove();
  }
}

TEST_F(SetAsidePhoto, ReplacesNothingThatHasItsNameNow) {
  Kill("the orig photo");
  std::ofstream(photo_.for_system()) << "another photo";
  Open();
  EXPECT_EQ(ReadFile(photo_), "another photo");
  EXPECT_TRUE((keptFolder_ / "1-before.jpg").exists());
  EXPECT_TRUE((keptFolder_ / "1-after.jpg").exists());
}

TEST_F(SetAsidePhoto, IsNotSkippedNorForgottenWhileItIsAway) {
  Kill("the orig photo");
  // Its original cannot be read for now.
  std::filesystem::rename((keptFolder_ / "1-before.jpg").for_system(),
                          (keptFolder_ / "elsewhere").for_system());
  Open();
  EXPECT_FALSE(photo_.exists());
  EXPECT_TRUE(staging_.exists());
  EXPECT_THROW(journal_->SkipLast(), HostError);
  UndoLimits none;
  none.bytes = 0;
  EXPECT_EQ(journal_->Prune(none), 0U);
  EXPECT_TRUE(staging_.exists());
  std::filesystem::rename((keptFolder_ / "elsewhere").for_system(),
                          (keptFolder_ / "1-before.jpg").for_system());
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(photo_), "the original of the photo");
  EXPECT_FALSE(staging_.exists());
}

TEST_F(SetAsidePhoto, ComesBackWithItsSidecar) {
  // Both rows are of one shot; only the photo is away.
  const ioPath sidecar = Make("a.xmp", "old sidecar");
  RunSql(catalogue_, {"DELETE FROM steps", "DELETE FROM changes"});
  Open();
  journal_->BeginStep(QStringLiteral("edit"));
  std::vector<std::pair<ioPath, ioPath>> both = {{photo_, journal_->Edits().PlanEdit(photo_)},
                                                 {sidecar, journal_->Edits().PlanSidecar(sidecar)}};
  for (const auto& [file, staging] : both) {
    std::ofstream(staging.for_system()) << "new";
    DataModel item;
    item.SetPath(file);
    journal_->RegisterFileChange(item, file);
  }
  for (const auto& [file, staging] : both) {
    std::filesystem::rename(staging.for_system(), file.for_system());
  }
  journal_->Edits().FinishEdit();
  journal_->EndStep();
  Close();
  RunSql(catalogue_,
         {"UPDATE steps SET state = 3", "UPDATE changes SET state = 3, side = CAST('" +
                                            staging_.utf8string() + "' AS BLOB) WHERE goes_with IS NULL"});
  std::filesystem::rename(photo_.for_system(), staging_.for_system());
  std::ofstream(staging_.for_system(), std::ios::binary) << "ed";
  Open();
  EXPECT_EQ(ReadFile(photo_), "edited photo");
  EXPECT_EQ(ReadFile(sidecar), "old sidecar");
  EXPECT_FALSE(staging_.exists());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
