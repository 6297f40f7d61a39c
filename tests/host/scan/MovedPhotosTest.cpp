#include "RawSql.h"
#include "Records.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/edit/PhotoEditing.h>
#include <host/history/UndoJournal.h>
#include <host/scan/Scanner.h>
#include <support/Doubles.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;

using Test::IsSuperuser;
using Test::PhotoTags;
using Test::RunSql;
using Test::TempTree;
using Test::WriteJpeg;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

/// A photo that is like no other: taken in another minute.
PhotoTags Tags(int which, const std::string& cameraId = std::string()) {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:" + std::to_string(10 + which) + ":30";
  tags.model = "Model X";
  if (!cameraId.empty()) {
    tags.more.push_back({"Exif.Photo.ImageUniqueID", cameraId, "Ascii"});
  }
  return tags;
}

std::string Noise(unsigned seed, std::size_t bytes) {
  std::mt19937 random(seed);
  std::string noise(bytes, '\0');
  for (char& byte : noise) {
    byte = static_cast<char>(random());
  }
  return noise;
}

void Append(const ioPath& file, const std::string& bytes) {
  std::ofstream(file.native(), std::ios::binary | std::ios::app) << bytes;
}

class MovedPhotos : public testing::Test {
 protected:
  ioPath Make(const std::string& name, int which) {
    return WriteJpeg(tree_.Path("photos/" + name), Tags(which));
  }
  ioPath At(const std::string& name) const { return tree_.Path("photos/" + name); }
  void Move(const std::string& from, const std::string& to) const {
    fs::create_directories(At(to).parent_path().native());
    fs::rename(At(from).native(), At(to).native());
  }
  void Copy(const std::string& from, const std::string& to) const {
    fs::create_directories(At(to).parent_path().native());
    fs::copy_file(At(from).native(), At(to).native());
  }
  ScanResult Run(const std::vector<ioPath>& roots, const ScanOptions& options = ScanOptions()) {
    return Scan(catalogue_, roots, options, nullptr);
  }
  ScanResult Run() { return Run({tree_.Path("photos")}); }

  /// By names below the folder; of photos that are not lost.
  std::map<std::string, QString> Ids() const {
    std::map<std::string, QString> ids;
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      ids[Zenvora::Test::Slashes(photo.path)
              .substr(Zenvora::Test::Slashes(tree_.Path("photos")).size() + 1)] = photo.id;
    }
    return ids;
  }
  QString Id(const std::string& name) const {
    const auto ids = Ids();
    const auto id = ids.find(name);
    return id == ids.end() ? QString() : id->second;
  }
  int Count(const char* sql) const { return RunSql(catalogue_.File(), {sql}).toInt(); }
  int CountLost() const { return Count("SELECT count(*) FROM photos WHERE lost = 1"); }

  TempTree tree_;
  TempTree place_;
  const ioPath root_ = tree_.MakeFolder("photos");
  Catalogue catalogue_{place_.Path("c.sqlite"), Catalogue::Mode::ReadWrite};
  const std::atomic<bool> never_{false};
  const boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
};

TEST_F(MovedPhotos, KeepTheirRecords) {
  Make("a.jpg", 1);
  Make("b.jpg", 2);
  Run();
  const QString id = Id("a.jpg");
  Move("a.jpg", "sub/deep/new.jpg");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 1U);
  EXPECT_EQ(result.added, 0U);
  EXPECT_EQ(result.lost, 0U);
  EXPECT_EQ(result.unchanged, 1U);
  EXPECT_THAT(result.findings, IsEmpty());
  EXPECT_EQ(Id("sub/deep/new.jpg"), id);
  EXPECT_EQ(catalogue_.CountPhotos(), 2U);
  const ScanResult again = Run();
  EXPECT_EQ(again.moved, 0U);
  EXPECT_EQ(again.unchanged, 2U);
}

TEST_F(MovedPhotos, KeepTheirTagsAndAlbums) {
  Make("a.jpg", 1);
  Run();
  ASSERT_TRUE(RunSql(catalogue_.File(),
                     {"INSERT INTO tags (number, type, name) VALUES (1, 0, 'Tim')",
                      "INSERT INTO photo_tags (photo, tag) SELECT number, 1 FROM photos",
                      "INSERT INTO albums (number, id, name) VALUES (1, 'x', 'Trip')",
                      "INSERT INTO album_photos (album, position, photo) SELECT 1, 0, number FROM photos"})
                  .isValid());
  Move("a.jpg", "b.jpg");
  Run();
  EXPECT_EQ(catalogue_.PhotoTags().count(Id("b.jpg").toStdString()), 1U);
  EXPECT_THAT(catalogue_.Albums().at(0).photoIds, ElementsAre(Id("b.jpg")));
}

TEST_F(MovedPhotos, AreKnownInAFolderThatWasRenamed) {
  for (int i = 0; i < 5; ++i) {
    Make("trip/" + std::to_string(i) + ".jpg", i);
  }
  // A copy inside: the names tell which is which.
  Copy("trip/0.jpg", "trip/copy.jpg");
  Run();
  const auto before = Ids();
  Move("trip", "2021 trip");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 6U);
  EXPECT_THAT(result.findings, IsEmpty());
  for (const auto& [name, id] : before) {
    EXPECT_EQ(Id("2021 " + name), id) << name;
  }
}

TEST_F(MovedPhotos, AreKnownBelowAnotherRootWhicheverIsScannedFirst) {
  Make("old/a.jpg", 1);
  Make("old/b.jpg", 2);
  tree_.MakeFolder("photos/new");
  Run({At("old"), At("new")});
  const QString a = Id("old/a.jpg");
  const QString b = Id("old/b.jpg");
  Move("old/a.jpg", "new/a.jpg");
  // Where it is now, before anybody knows that it is gone.
  EXPECT_EQ(Run({At("new")}).moved, 1U);
  EXPECT_EQ(Id("new/a.jpg"), a);
  EXPECT_EQ(Run({At("old")}).lost, 0U);

  Move("old/b.jpg", "new/b.jpg");
  EXPECT_EQ(Run({At("old")}).lost, 1U);
  EXPECT_EQ(CountLost(), 1);
  EXPECT_EQ(Run({At("new")}).moved, 1U);
  EXPECT_EQ(Id("new/b.jpg"), b);
  EXPECT_EQ(CountLost(), 0);
}

TEST_F(MovedPhotos, AreKnownWhenTheFolderOfAllIsRenamed) {
  Make("old/a.jpg", 1);
  Run({At("old")});
  const QString id = Id("old/a.jpg");
  Move("old", "new");
  EXPECT_EQ(Run({At("new")}).moved, 1U);
  EXPECT_EQ(Id("new/a.jpg"), id);
}

TEST_F(MovedPhotos, AreNewWhenTheyWereCopied) {
  Make("a.jpg", 1);
  Run();
  const QString id = Id("a.jpg");
  Copy("a.jpg", "b.jpg");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(Id("a.jpg"), id);
  EXPECT_NE(Id("b.jpg"), id);
}

TEST_F(MovedPhotos, AreNewWhenOnlyATouchedOriginalIsThere) {
  const ioPath file = Make("a.jpg", 1);
  Run();
  const QString id = Id("a.jpg");
  Copy("a.jpg", "elsewhere/b.jpg");
  fs::last_write_time(file.native(), fs::last_write_time(file.native()) + std::chrono::hours(1));
  // Whether the scan looks into the folder of the original or not.
  EXPECT_EQ(Run({At("elsewhere")}).moved, 0U);
  EXPECT_EQ(Run().moved, 0U);
  EXPECT_EQ(Id("a.jpg"), id);
}

TEST_F(MovedPhotos, AreNewWhenTheyWereEditedToo) {
  Make("a.jpg", 1);
  Run();
  Move("a.jpg", "b.jpg");
  Append(At("b.jpg"), "and more");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(result.lost, 1U);
}

TEST_F(MovedPhotos, ExchangeTheirNames) {
  Make("a.jpg", 1);
  Make("b.jpg", 2);
  Run();
  const auto before = Ids();
  Move("a.jpg", "c.jpg");
  Move("b.jpg", "a.jpg");
  Move("c.jpg", "b.jpg");
  Append(At("a.jpg"), "");
  fs::last_write_time(At("a.jpg").native(),
                      fs::last_write_time(At("a.jpg").native()) + std::chrono::hours(1));
  fs::last_write_time(At("b.jpg").native(),
                      fs::last_write_time(At("b.jpg").native()) + std::chrono::hours(2));
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 2U);
  EXPECT_EQ(result.updated, 0U);
  EXPECT_EQ(Id("a.jpg"), before.at("b.jpg"));
  EXPECT_EQ(Id("b.jpg"), before.at("a.jpg"));
}

TEST_F(MovedPhotos, FollowAChainOfNames) {
  for (int i = 1; i <= 4; ++i) {
    WriteJpeg(At(std::to_string(i) + ".jpg"), Tags(i, std::string(static_cast<std::size_t>(i), 'x')));
  }
  Run();
  const auto before = Ids();
  for (int i = 4; i >= 1; --i) {
    Move(std::to_string(i) + ".jpg", std::to_string(i + 1) + ".jpg");
  }
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 4U);
  EXPECT_EQ(result.lost, 0U);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(Id(std::to_string(i + 1) + ".jpg"), before.at(std::to_string(i) + ".jpg"));
  }
  EXPECT_EQ(Count("SELECT count(*) FROM photos"), 4);
}

TEST_F(MovedPhotos, LeaveTheirNamesToOthers) {
  WriteJpeg(At("a.jpg"), Tags(1, "one"));
  Run();
  const QString id = Id("a.jpg");
  Move("a.jpg", "z.jpg");
  WriteJpeg(At("a.jpg"), Tags(2, "another"));
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 1U);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(result.updated, 0U);
  EXPECT_EQ(Id("z.jpg"), id);
  EXPECT_NE(Id("a.jpg"), id);
}

TEST_F(MovedPhotos, LoseThePhotoWhoseNameTheyTake) {
  WriteJpeg(At("a.jpg"), Tags(1, "one"));
  WriteJpeg(At("b.jpg"), Tags(2, "another"));
  Run();
  const auto before = Ids();
  Move("b.jpg", "a.jpg");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 1U);
  EXPECT_EQ(result.lost, 1U);
  EXPECT_EQ(Id("a.jpg"), before.at("b.jpg"));
  EXPECT_EQ(CountLost(), 1);
  // Another photo under the name that became free is not taken for the one that is lost.
  WriteJpeg(At("b.jpg"), Tags(3, "third"));
  EXPECT_EQ(Run().added, 1U);
  // When it comes back under any name, it is the one.
  WriteJpeg(At("c.jpg"), Tags(1, "one"));
  EXPECT_EQ(Run().moved, 1U);
  EXPECT_EQ(Id("c.jpg"), before.at("a.jpg"));
}

TEST_F(MovedPhotos, TakeTheNameOfALostPhoto) {
  Make("a.jpg", 1);
  WriteJpeg(At("b.jpg"), Tags(2, "b"));
  Run();
  const QString id = Id("a.jpg");
  At("b.jpg").remove();
  Run();
  Move("a.jpg", "b.jpg");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 1U);
  EXPECT_EQ(result.lost, 0U);
  EXPECT_EQ(Id("b.jpg"), id);
  EXPECT_EQ(CountLost(), 1);
}

TEST_F(MovedPhotos, StayWhereAnEditedOneIsBesideItsOriginal) {
  WriteJpeg(At("a.jpg"), Tags(1));
  Run();
  const QString id = Id("a.jpg");
  Copy("a.jpg", "a original.jpg");
  Append(At("a.jpg"), "edited");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(result.updated, 1U);
  EXPECT_EQ(Id("a.jpg"), id);
}

TEST_F(MovedPhotos, AreNamedWhenNothingTellsAnEditFromAnotherPhoto) {
  WriteJpeg(At("a.jpg"));
  Run();
  const QString id = Id("a.jpg");
  Move("a.jpg", "b.jpg");
  WriteJpeg(At("a.jpg"), Tags(1));
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(Id("a.jpg"), id);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_EQ(result.findings[0].path, At("a.jpg"));
  EXPECT_THAT(result.findings[0].candidates, ElementsAre(At("b.jpg")));
}

TEST_F(MovedPhotos, AreNamedWhenTwoFilesMayBeTheOne) {
  Make("a.jpg", 1);
  Run();
  const QString id = Id("a.jpg");
  Copy("a.jpg", "b.jpg");
  Move("a.jpg", "c.jpg");
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.added, 2U);
  EXPECT_EQ(result.lost, 1U);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_EQ(result.findings[0].kind, ScanFinding::Kind::Ambiguous);
  EXPECT_EQ(result.findings[0].path, At("a.jpg"));
  EXPECT_THAT(result.findings[0].candidates, UnorderedElementsAre(At("b.jpg"), At("c.jpg")));
  EXPECT_NE(Id("b.jpg"), id);
  EXPECT_NE(Id("c.jpg"), id);
}

TEST_F(MovedPhotos, AreNamedWhenAFileMayBeEitherOfTwo) {
  Make("a.jpg", 1);
  Copy("a.jpg", "b.jpg");
  Run();
  Move("a.jpg", "c.jpg");
  At("b.jpg").remove();
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(result.lost, 2U);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_EQ(result.findings[0].path, At("c.jpg"));
  EXPECT_THAT(result.findings[0].candidates, UnorderedElementsAre(At("a.jpg"), At("b.jpg")));
}

TEST_F(MovedPhotos, AreKnownBesideACopyThatStays) {
  Make("a.jpg", 1);
  Copy("a.jpg", "b.jpg");
  Run();
  const auto before = Ids();
  Move("a.jpg", "c.jpg");
  EXPECT_EQ(Run().moved, 1U);
  EXPECT_EQ(Id("c.jpg"), before.at("a.jpg"));
  EXPECT_EQ(Id("b.jpg"), before.at("b.jpg"));
}

TEST_F(MovedPhotos, AreKnownByEachOfTheNamesOfOneFile) {
  Make("a.jpg", 1);
  fs::create_hard_link(At("a.jpg").native(), At("b.jpg").native());
  Run();
  const auto before = Ids();
  ASSERT_THAT(before, SizeIs(2));
  Move("a.jpg", "c.jpg");
  fs::create_hard_link(At("c.jpg").native(), At("d.jpg").native());
  At("d.jpg").remove();
  EXPECT_EQ(Run().moved, 1U);
  EXPECT_EQ(Id("c.jpg"), before.at("a.jpg"));
  fs::create_hard_link(At("c.jpg").native(), At("e.jpg").native());
  EXPECT_EQ(Run().added, 1U);
  EXPECT_EQ(Id("c.jpg"), before.at("a.jpg"));
}

TEST_F(MovedPhotos, AreNotTakenForOthersThatBeginAndEndAlike) {
  // Pages with wide margins that no program compressed: 300 KiB of white around a little text.
  const std::string margin(std::size_t{150} * 1024, '\xFF');
  const std::string head = Zenvora::Test::MakeJpeg(Tags(1));
  tree_.Write("photos/a.jpg", head + margin + "one" + margin);
  Run();
  const QString id = Id("a.jpg");
  At("a.jpg").remove();
  tree_.Write("photos/b.jpg", head + margin + "two" + margin);
  EXPECT_EQ(Run().moved, 0U);
  At("b.jpg").remove();
  tree_.Write("photos/c.jpg", head + margin + "one" + margin);
  EXPECT_EQ(Run().moved, 1U);
  EXPECT_EQ(Id("c.jpg"), id);
}

TEST_F(MovedPhotos, AreKnownByTheCamerasIdWhereThePictureIsTheSame) {
  const std::string picture = Noise(1, 300'000);
  Append(WriteJpeg(At("a.jpg"), Tags(1, "0123456789ABCDEF")), picture);
  Run();
  const QString id = Id("a.jpg");
  At("a.jpg").remove();
  PhotoTags described = Tags(1, "0123456789ABCDEF");
  described.more.push_back({"Exif.Image.ImageDescription", "On the beach", "Ascii"});
  Append(WriteJpeg(At("b.jpg"), described), picture);
  EXPECT_EQ(Run().moved, 1U);
  EXPECT_EQ(Id("b.jpg"), id);
  // An export bears the id as well: it is another picture.
  At("b.jpg").remove();
  Append(WriteJpeg(At("c.jpg"), Tags(1, "0123456789ABCDEF")), Noise(2, 200'000));
  const ScanResult result = Run();
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.lost, 1U);
}

TEST_F(MovedPhotos, AreOnlyToldOfInADryRun) {
  Make("a.jpg", 1);
  Make("b.jpg", 2);
  Run();
  const auto before = Ids();
  Move("a.jpg", "c.jpg");
  ScanOptions options;
  options.dryRun = true;
  const ScanResult told = Run({root_}, options);
  EXPECT_EQ(told.moved, 1U);
  EXPECT_EQ(told.lost, 0U);
  EXPECT_EQ(told.added, 0U);
  EXPECT_EQ(Ids(), before);
  EXPECT_EQ(Run().moved, 1U);
}

TEST_F(MovedPhotos, StayWhenTheScanIsCancelled) {
  for (int i = 0; i < 40; ++i) {
    Make("old/" + std::to_string(i) + ".jpg", i);
  }
  Run();
  const auto before = Ids();
  Move("old", "new");
  std::atomic<bool> cancel{false};
  ScanOptions options;
  options.cancel = &cancel;
  options.threads = 1;
  const ScanResult result =
      Scan(catalogue_, {root_}, options, [&cancel](const ScanProgress&) { cancel = true; });
  ASSERT_TRUE(result.cancelled);
  EXPECT_EQ(Ids(), before);
  EXPECT_EQ(Run().moved, 40U);
}

TEST_F(MovedPhotos, GetTheirDigestsWithTheNextScan) {
  Make("a.jpg", 1);
  Run();
  const QString id = Id("a.jpg");
  ASSERT_TRUE(RunSql(catalogue_.File(), {"UPDATE photos SET edges = NULL, reading = 1"}).isValid());
  EXPECT_EQ(Run().updated, 1U);
  Move("a.jpg", "b.jpg");
  EXPECT_EQ(Run().moved, 1U);
  EXPECT_EQ(Id("b.jpg"), id);
}

TEST_F(MovedPhotos, AreCopiesWhileTheirVolumeIsAway) {
  tree_.MakeFolder("photos/disk");
  tree_.MakeFolder("photos/here");
  QString id;
  {
    const Zenvora::Test::SmallDisk disk(At("disk"), 1'000'000);
    LUMIDEX_DISK_OR_SKIP(disk);
    Make("disk/a.jpg", 1);
    Make("here/b.jpg", 2);
    Run({At("disk"), At("here")});
    id = Id("disk/a.jpg");
    Copy("disk/a.jpg", "here/a.jpg");
  }
  const ScanResult result = Run({At("here")});
  EXPECT_EQ(result.moved, 0U);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(Id("disk/a.jpg"), id);
}

TEST_F(MovedPhotos, AreNotWhatLiesInTheTrash) {
  Make("a.jpg", 1);
  Run();
  ASSERT_TRUE(RunSql(catalogue_.File(),
                     {"INSERT INTO steps (name, begun, state, kind) VALUES ('trash', '', 2, 3)",
                      "INSERT INTO trashed (step, state, path, place, note, photo, kept, device, file, size, "
                      "modified_ns) SELECT 1, 2, path, '" +
                          place_.Write("trashed.jpg", "x").utf8string() +
                          "', '', number, '', 0, 0, 0, 0 FROM photos"})
                  .isValid());
  Move("a.jpg", "b.jpg");
  EXPECT_EQ(Run().moved, 0U);
}

TEST_F(MovedPhotos, AreFoundByUndoAfterTheyMoved) {
  Make("trip/a.jpg", 1);
  Make("trip/b.jpg", 2);
  Run();
  const auto before = Ids();
  {
    UndoJournal journal(catalogue_.File(), *locker_);
    RenamePlan plan;
    for (const char* const name : {"a", "b"}) {
      plan.steps.push_back(
          {At(std::string("trip/") + name + ".jpg"), At(std::string("trip/R_") + name + ".jpg")});
    }
    plan.renames = plan.steps;
    ASSERT_EQ(journal.Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 2U);
  }
  // One of them gets yet another name, then the folder moves.
  Move("trip/R_a.jpg", "trip/beach.jpg");
  Move("trip", "2021/trip");
  ASSERT_EQ(Run().moved, 2U);
  EXPECT_EQ(Id("2021/trip/beach.jpg"), before.at("trip/a.jpg"));
  const UndoResult undone = UndoJournal(catalogue_.File(), *locker_).UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files, 2U);
  EXPECT_THAT(undone.findings, IsEmpty());
  EXPECT_EQ(Id("2021/trip/a.jpg"), before.at("trip/a.jpg"));
  EXPECT_EQ(Id("2021/trip/b.jpg"), before.at("trip/b.jpg"));
  EXPECT_TRUE(At("2021/trip/a.jpg").exists());
  // And what was taken back follows them, too.
  Move("2021/trip", "x");
  ASSERT_EQ(Run().moved, 2U);
  EXPECT_EQ(UndoJournal(catalogue_.File(), *locker_).RedoLast(never_, nullptr).files, 2U);
  EXPECT_TRUE(At("x/beach.jpg").exists());
}

TEST_F(MovedPhotos, BringTheirSidecarsToUndo) {
  const std::string sidecar =
      "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
      "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description rdf:about=\"\" "
      "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
      "xmp:CreateDate=\"2021-05-01T10:11:30\"/></rdf:RDF></x:xmpmeta>";
  for (const char* const name : {"trip/a", "trip/b", "trip/c"}) {
    Make(std::string(name) + ".jpg", name[5] - 'a');
    tree_.Write(std::string("photos/") + name + ".xmp", sidecar);
  }
  tree_.Write("photos/trip/a.jpg.xmp", sidecar);
  Run();
  std::map<std::string, std::string> before;
  for (const char* const name : {"a.jpg", "a.xmp", "a.jpg.xmp", "b.jpg", "b.xmp", "c.jpg", "c.xmp"}) {
    before[name] = Zenvora::Test::ReadFile(At(std::string("trip/") + name));
  }
  {
    UndoJournal journal(catalogue_.File(), *locker_);
    EditOrder order;
    order.name = QStringLiteral("shift");
    order.edit.shift = std::chrono::seconds(3600);
    const EditResult edited =
        EditPhotos(journal.Edits(), *locker_, order,
                   FindSidecars({At("trip/a.jpg"), At("trip/b.jpg"), At("trip/c.jpg")}), never_, nullptr);
    ASSERT_EQ(edited.photos, 3U);
    ASSERT_EQ(edited.sidecars, 4U);
  }
  Run();
  // One gets another name with its sidecars, one goes elsewhere, one leaves its sidecar behind.
  Move("trip/a.jpg", "trip/beach.jpg");
  Move("trip/a.xmp", "trip/beach.xmp");
  Move("trip/a.jpg.xmp", "trip/beach.jpg.xmp");
  Move("trip/b.jpg", "2021/b.jpg");
  Move("trip/b.xmp", "2021/b.xmp");
  Move("trip/c.jpg", "2021/c.jpg");
  ASSERT_EQ(Run().moved, 3U);
  const UndoResult undone = UndoJournal(catalogue_.File(), *locker_).UndoLast(never_, nullptr);
  EXPECT_THAT(undone.findings, IsEmpty());
  const std::map<std::string, std::string> names = {
      {"a.jpg", "trip/beach.jpg"}, {"a.xmp", "trip/beach.xmp"}, {"a.jpg.xmp", "trip/beach.jpg.xmp"},
      {"b.jpg", "2021/b.jpg"},     {"b.xmp", "2021/b.xmp"},     {"c.jpg", "2021/c.jpg"},
      {"c.xmp", "trip/c.xmp"}};
  for (const auto& [name, now] : names) {
    EXPECT_TRUE(Zenvora::Test::ReadFile(At(now)) == before.at(name)) << now;
  }
}

TEST_F(MovedPhotos, BringTheirSidecarsToUndoWhenTheyExchangedTheirNames) {
  for (const char* const name : {"a", "b", "c"}) {
    Make(std::string(name) + ".jpg", name[0] - 'a');
    tree_.Write(std::string("photos/") + name + ".xmp", std::string("settings of ") + name);
  }
  Run();
  {
    UndoJournal journal(catalogue_.File(), *locker_);
    RenamePlan plan;
    for (const std::string name : {"a", "b", "c"}) {
      for (const char* const end : {".jpg", ".xmp"}) {
        plan.steps.push_back({At(name + end), At("R_" + name + end)});
      }
    }
    plan.renames = plan.steps;
    ASSERT_EQ(journal.Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 6U);
  }
  for (const char* const end : {".jpg", ".xmp"}) {
    const auto name = [end](const char* base) { return std::string(base) + end; };
    Move(name("R_a"), name("free"));
    Move(name("R_b"), name("R_a"));
    Move(name("free"), name("R_b"));
    Move(name("R_c"), name("C"));
  }
  ASSERT_EQ(Run().moved, 3U);
  const UndoResult undone = UndoJournal(catalogue_.File(), *locker_).UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files, 6U);
  EXPECT_THAT(undone.findings, IsEmpty());
  for (const char* const name : {"a", "b", "c"}) {
    EXPECT_EQ(Zenvora::Test::ReadFile(At(std::string(name) + ".xmp")), std::string("settings of ") + name);
  }
}

TEST_F(MovedPhotos, BringTheirSidecarsToTheUndoOfARename) {
  Make("trip/a.jpg", 1);
  tree_.Write("photos/trip/a.xmp", "settings");
  Run();
  {
    UndoJournal journal(catalogue_.File(), *locker_);
    RenamePlan plan;
    for (const char* const end : {".jpg", ".xmp"}) {
      plan.steps.push_back({At(std::string("trip/a") + end), At(std::string("trip/R") + end)});
    }
    plan.renames = plan.steps;
    ASSERT_EQ(journal.Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 2U);
  }
  Move("trip", "2021/trip");
  ASSERT_EQ(Run().moved, 1U);
  const UndoResult undone = UndoJournal(catalogue_.File(), *locker_).UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files, 2U);
  EXPECT_THAT(undone.findings, IsEmpty());
  EXPECT_TRUE(At("2021/trip/a.jpg").exists());
  EXPECT_TRUE(At("2021/trip/a.xmp").exists());
}

TEST_F(MovedPhotos, KeepTheirOriginalsWhenOthersGiveThemAnotherExtension) {
  const ioPath photo = Make("a.jpg", 1);
  Run();
  const std::string before = Zenvora::Test::ReadFile(photo);
  {
    UndoJournal journal(catalogue_.File(), *locker_);
    const auto write = [](const ioPath& file, const ioPath& side) {
      fs::copy_file(file.native(), side.native());
      Append(side, "edited");
    };
    ASSERT_EQ(
        EditPhotos(journal.Edits(), *locker_, QStringLiteral("edit"), {photo}, write, never_, nullptr).files,
        1U);
  }
  Move("a.jpg", "b.jpeg");
  Run();
  Move("b.jpeg", "c.JPG");
  Run();
  const UndoResult undone = UndoJournal(catalogue_.File(), *locker_).UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files, 1U);
  EXPECT_THAT(undone.findings, IsEmpty()) << undone.findings[0].cause;
  EXPECT_EQ(Zenvora::Test::ReadFile(At("c.JPG")), before);
  EXPECT_EQ(UndoJournal(catalogue_.File(), *locker_).RedoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Zenvora::Test::ReadFile(At("c.JPG")), before + "edited");
}

TEST_F(MovedPhotos, WaitForWhoeverWorksWithTheJournal) {
  Make("a.jpg", 1);
  Run();
  const auto before = Ids();
  const UndoJournal journal(catalogue_.File(), *locker_);
  const auto clock = std::make_shared<Zenvora::Test::FakeClock>();
  const App::ServiceScope<App::IClock> scope(clock);
  Move("a.jpg", "b.jpg");
  EXPECT_THAT(Zenvora::Test::ErrorOf([this] { Run(); }), HasSubstr("scan again when that has finished"));
  EXPECT_FALSE(clock->sleeps.empty());
  EXPECT_EQ(Ids(), before);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
