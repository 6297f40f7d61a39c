#include "FolderTrash.h"
#include "RawSql.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/catalogue/Catalogue.h>
#include <host/edit/PhotoEditing.h>
#include <host/history/UndoJournal.h>
#include <support/LeftOut.h>
#include <support/TempTree.h>

#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/core/RefCountImpl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Zenvora::Test::FolderTrash;
using Zenvora::Test::ReadFile;

using Files = std::map<std::string, std::string>;

class TrashJournal : public ::testing::Test {
 protected:
  TrashJournal() { Open(); }

  /// A new journal of the same catalogue: what is under way is recovered.
  void Open() {
    journal_.reset();
    journal_ = std::make_unique<UndoJournal>(catalogue_, *locker_, trash_);
  }

  ioPath Photo(const std::string& name) const { return tree_.Path("photos") / ioPath(name); }
  ioPath Make(const std::string& name, const std::string& content) const {
    return tree_.Write("photos/" + name, content);
  }

  static SeenFile Known(const ioPath& file) {
    const FileState state = QueryFile(file);
    return {file, state.size, state.modifiedNs};
  }

  static AttachedFile Attached(const ioPath& file) { return {Known(file), {}}; }

  TrashPhoto Going(const std::string& name, const std::string& kept = "keep.jpg") const {
    return {Known(Photo(name)), Known(Photo(kept)), {}};
  }

  TrashResult Move(const std::vector<TrashPhoto>& photos) {
    return journal_->Trash().Run(QStringLiteral("trash"), photos, never_, nullptr);
  }
  TrashResult MoveNames(const std::vector<std::string>& names) {
    std::vector<TrashPhoto> photos;
    for (const std::string& name : names) {
      photos.push_back(Going(name));
    }
    return Move(photos);
  }
  RenamePlan RenamePlanOf(const std::string& from, const std::string& to) const {
    RenamePlan plan;
    plan.steps = {{Photo(from), Photo(to)}};
    plan.renames = plan.steps;
    return plan;
  }
  UndoResult Undo() { return journal_->UndoLast(never_, nullptr); }
  UndoResult Redo() { return journal_->RedoLast(never_, nullptr); }

  /// Names and contents of a folder.
  Files In(const std::string& folder) const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(tree_.Path(folder).native())) {
      if (entry.is_regular_file() && !entry.is_symlink()) {
        files[ioPath(entry.path().filename()).utf8string()] = ReadFile(ioPath(entry.path()));
      }
    }
    return files;
  }
  Files Photos() const { return In("photos"); }
  Files Trash() const { return In("trash"); }

  void Store(const std::vector<std::string>& names) const {
    Catalogue catalogue(catalogue_, Catalogue::Mode::ReadWrite);
    std::vector<PhotoRecord> records;
    for (const std::string& name : names) {
      PhotoRecord record;
      const SeenFile file = Known(Photo(name));
      record.path = file.path;
      record.size = file.size;
      record.modifiedNs = file.modifiedNs;
      record.camera = QString::fromStdString("camera of " + name);
      records.push_back(record);
    }
    catalogue.Store(records);
  }
  /// Of the photos that are not lost.
  std::vector<std::string> Catalogued() const {
    std::vector<std::string> names;
    for (const PhotoRecord& photo : Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos()) {
      names.push_back(photo.path.filename().utf8string() + " " + photo.camera.toStdString());
    }
    return names;
  }

  static void WriteBytes(const ioPath& file, const std::string& content) {
    std::ofstream stream(file.for_system(), std::ios::binary);
    stream << content;
  }

  const Zenvora::Test::TempTree tree_;
  const ioPath catalogue_ = tree_.Path("catalogue.sqlite");
  const ioPath photos_ = tree_.MakeFolder("photos");
  const ioPath bin_ = tree_.MakeFolder("trash");
  FolderTrash trash_{bin_};
  const boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
  const std::atomic<bool> never_{false};
  std::unique_ptr<UndoJournal> journal_;
};

TEST_F(TrashJournal, MovesPhotosAndTakesThemBack) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  const FileState before = QueryFile(Make("Пейзаж 1.jpg", "B"));
  const TrashResult result = MoveNames({"a.jpg", "Пейзаж 1.jpg"});
  EXPECT_EQ(result.photos, 2U);
  EXPECT_EQ(result.files, 2U);
  EXPECT_THAT(result.findings, IsEmpty());
  ASSERT_THAT(result.moved, SizeIs(2));
  EXPECT_EQ(result.moved[0].from, Photo("a.jpg"));
  EXPECT_EQ(ReadFile(result.moved[0].to), "A");
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "K"}}));
  EXPECT_EQ(Trash(), (Files{{"0-a.jpg", "A"},
                            {"0-a.jpg.note", Photo("a.jpg").utf8string()},
                            {"0-Пейзаж 1.jpg", "B"},
                            {"0-Пейзаж 1.jpg.note", Photo("Пейзаж 1.jpg").utf8string()}}));
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 2U);
  EXPECT_EQ(undone.name, QStringLiteral("trash"));
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "K"}, {"a.jpg", "A"}, {"Пейзаж 1.jpg", "B"}}));
  EXPECT_THAT(Trash(), IsEmpty());
  EXPECT_EQ(QueryFile(Photo("Пейзаж 1.jpg")).modifiedNs, before.modifiedNs);
  EXPECT_EQ(Redo().files, 2U);
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "K"}}));
  EXPECT_EQ(Undo().files, 2U);
  EXPECT_THAT(Photos(), SizeIs(3));
}

TEST_F(TrashJournal, TakesAlongWhatBelongsToAPhoto) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  TrashPhoto photo = Going("a.jpg");
  photo.attached = {Attached(Make("a.xmp", "settings"))};
  const TrashResult result = Move({photo});
  EXPECT_EQ(result.photos, 1U);
  EXPECT_EQ(result.files, 2U);
  EXPECT_EQ(journal_->Steps().front().files, 2U);
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "K"}}));
  EXPECT_EQ(Undo().files, 2U);
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "K"}, {"a.jpg", "A"}, {"a.xmp", "settings"}}));
}

TEST_F(TrashJournal, LeavesWhatBelongsToAPhotoThatStays) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  TrashPhoto photo = Going("a.jpg");
  photo.attached = {Attached(Make("a.xmp", "settings"))};
  Make("a.jpg", "other content");
  EXPECT_EQ(Move({photo}).files, 0U);
  EXPECT_THAT(Photos(), SizeIs(3));
}

TEST_F(TrashJournal, LeavesWhatBelongsToSeveralPhotosWhileOneStays) {
  for (const char* const name : {"keep.jpg", "a.jpg", "a.png"}) {
    Make(name, name);
  }
  const TrashPhoto first = Going("a.jpg");
  TrashPhoto last = Going("a.png");
  last.attached = {{Known(Make("a.xmp", "settings")), {first.photo.path, last.photo.path}}};
  Make("a.jpg", "edited meanwhile");
  const TrashResult result = Move({first, last});
  EXPECT_EQ(result.files, 1U);
  ASSERT_THAT(result.findings, SizeIs(2));
  EXPECT_EQ(result.findings[1].cause,
            Photo("a.xmp").utf8string() + " is kept: a.jpg, to which it belongs, is kept.");
  EXPECT_EQ(ReadFile(Photo("a.xmp")), "settings");
}

TEST_F(TrashJournal, HasPhotosForLostWhileTheyAreThere) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  Store({"keep.jpg", "a.jpg", "b.jpg"});
  const std::vector<std::string> all = Catalogued();
  ASSERT_THAT(all, SizeIs(3));
  const QString id = Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos().front().id;
  MoveNames({"a.jpg"});
  EXPECT_THAT(Catalogued(), ::testing::ElementsAre("b.jpg camera of b.jpg", "keep.jpg camera of keep.jpg"));
  Undo();
  EXPECT_EQ(Catalogued(), all);
  EXPECT_EQ(Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos().front().id, id);
  Redo();
  EXPECT_THAT(Catalogued(), SizeIs(2));
}

TEST_F(TrashJournal, LeavesWhatIsNotAsItWas) {
  Make("keep.jpg", "K");
  const ioPath photo = Make("a.jpg", "A");
  const TrashPhoto going = Going("a.jpg");
  std::filesystem::last_write_time(photo.native(),
                                   std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
  const TrashResult touched = Move({going});
  EXPECT_EQ(touched.files, 0U);
  ASSERT_THAT(touched.findings, SizeIs(1));
  EXPECT_EQ(touched.findings[0].cause,
            photo.utf8string() + " is kept: it was changed after it was analysed.");
  photo.remove();
  EXPECT_THAT(Move({going}).findings[0].cause, HasSubstr("it no longer exists"));
  std::filesystem::create_directory(photo.native());
  EXPECT_THAT(Move({going}).findings[0].cause, HasSubstr("it is no longer a file"));
  EXPECT_TRUE(journal_->Steps().empty());
  EXPECT_THAT(Trash(), IsEmpty());
}

TEST_F(TrashJournal, LeavesThePhotosOfOneThatIsNotKeptAfterAll) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  const TrashPhoto going = Going("a.jpg");
  Make("keep.jpg", "something else");
  EXPECT_THAT(Move({going}).findings[0].cause,
              AllOf(HasSubstr("a.jpg is kept: the photo to keep"), HasSubstr("was changed")));
  Photo("keep.jpg").remove();
  EXPECT_THAT(Move({going}).findings[0].cause, HasSubstr("no longer exists"));
  EXPECT_EQ(Photos(), (Files{{"a.jpg", "A"}}));
}

TEST_F(TrashJournal, LeavesAnotherNameOfThePhotoThatIsKept) {
  Make("keep.jpg", "K");
  ASSERT_FALSE(AddName(Photo("keep.jpg"), Photo("a.jpg")));
  EXPECT_THAT(MoveNames({"a.jpg"}).findings[0].cause, HasSubstr("it is another name of a file that is kept"));
  EXPECT_THAT(Photos(), SizeIs(2));
}

TEST_F(TrashJournal, LeavesALink) {
  Make("keep.jpg", "K");
  Make("real.jpg", "R");
  LUMIDEX_LINK_OR_SKIP(Photo("real.jpg"), Photo("a.jpg"));
  EXPECT_THAT(MoveNames({"a.jpg"}).findings, SizeIs(1));
  EXPECT_TRUE(std::filesystem::is_symlink(Photo("a.jpg").native()));
}

/// Doing it again moved what a link led to by then, and what was the last name of a file to keep.
TEST_F(TrashJournal, LooksForLinksWhenItIsDoneAgain) {
  for (const char* const name : {"keep.jpg", "other.jpg", "a.jpg", "a.xmp", "b.jpg", "c.jpg"}) {
    Make(name, name);
  }
  TrashPhoto first = Going("a.jpg");
  first.attached = {Attached(Photo("a.xmp"))};
  ASSERT_EQ(Move({first, Going("b.jpg", "other.jpg"), Going("c.jpg")}).files, 4U);
  ASSERT_EQ(Undo().files, 4U);
  tree_.MakeFolder("photos/best");
  LUMIDEX_LINK_OR_SKIP(Photo("a.jpg"), Photo("best/favourite.jpg"));
  ASSERT_TRUE(Photo("other.jpg").remove());
  ASSERT_FALSE(AddName(Photo("c.jpg"), Photo("other.jpg")));

  const UndoResult redone = Redo();
  EXPECT_EQ(redone.files, 1U);
  EXPECT_EQ(Photos().count("b.jpg"), 0U);
  ASSERT_THAT(redone.findings, SizeIs(3));
  EXPECT_EQ(redone.findings[0].cause, Photo("a.jpg").utf8string() + " is kept: the link " +
                                          Photo("best/favourite.jpg").utf8string() + " leads to it.");
  EXPECT_THAT(redone.findings[1].cause, HasSubstr("a.xmp was kept, because its photo was kept"));
  EXPECT_THAT(redone.findings[2].cause,
              HasSubstr("c.jpg is kept: it is another name of a file that is kept."));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_THAT(Photos(), SizeIs(6));
}

TEST_F(TrashJournal, KeepsWhatWasMovedBeforeAnInterruption) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg", "c.jpg"}) {
    Make(name, name);
  }
  std::atomic<bool> cancelled{false};
  const TrashResult result =
      journal_->Trash().Run(QStringLiteral("trash"), {Going("a.jpg"), Going("b.jpg"), Going("c.jpg")},
                            cancelled, [&cancelled](std::size_t done, std::size_t total) {
                              EXPECT_EQ(total, 3U);
                              cancelled = done == 2;
                            });
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.files, 2U);
  EXPECT_EQ(journal_->Steps().front().files, 2U);
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "keep.jpg"}, {"c.jpg", "c.jpg"}}));
  EXPECT_EQ(Undo().files, 2U);
  EXPECT_THAT(Photos(), SizeIs(4));
}

TEST_F(TrashJournal, ForgetsAStepInWhichNothingWasMoved) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  trash_.noteError = std::make_error_code(std::errc::no_space_on_device);
  const TrashResult result = MoveNames({"a.jpg"});
  EXPECT_EQ(result.files, 0U);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_THAT(result.findings[0].cause,
              HasSubstr("Cannot move " + Photo("a.jpg").utf8string() + " to the trash: "));
  EXPECT_TRUE(journal_->Steps().empty());
  EXPECT_THAT(Trash(), IsEmpty());
  EXPECT_EQ(Move(std::vector<TrashPhoto>()).files, 0U);
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(TrashJournal, LeavesAPhotoThatCannotBeMovedWithoutANote) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  // Somebody removes the folder of the trash right after the note is written there.
  trash_.onChosen = [](Tavolin::TrashPlace& place) {
    place.file = place.file.parent_path() / "gone" / place.file.filename();
  };
  EXPECT_THAT(MoveNames({"a.jpg"}).findings, SizeIs(1));
  EXPECT_THAT(Trash(), IsEmpty());
  EXPECT_THAT(Photos(), SizeIs(2));
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(TrashJournal, TakesAnotherPlaceWhenSomebodyIsFaster) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  int chosen = 0;
  trash_.onChosen = [&chosen](const Tavolin::TrashPlace& place) {
    ++chosen;
    if (chosen == 1) {
      WriteBytes(place.note, "somebody's");
    } else if (chosen == 2) {
      WriteBytes(place.file, "without a note");
    }
  };
  EXPECT_EQ(MoveNames({"a.jpg"}).files, 1U);
  EXPECT_EQ(Trash(), (Files{{"0-a.jpg.note", "somebody's"},
                            {"1-a.jpg", "without a note"},
                            {"2-a.jpg", "A"},
                            {"2-a.jpg.note", Photo("a.jpg").utf8string()}}));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(Trash(), (Files{{"0-a.jpg.note", "somebody's"}, {"1-a.jpg", "without a note"}}));
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "A");
}

TEST_F(TrashJournal, BringsNothingBackOverWhatIsThereNow) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  MoveNames({"a.jpg", "b.jpg"});
  Make("a.jpg", "new");
  const UndoResult result = Undo();
  EXPECT_EQ(result.files, 1U);
  EXPECT_TRUE(result.stands);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_EQ(result.findings[0].cause, Photo("a.jpg").utf8string() + " remains in the trash as " +
                                          (bin_ / "0-a.jpg").utf8string() +
                                          ": another file has its former name");
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "keep.jpg"}, {"a.jpg", "new"}, {"b.jpg", "b.jpg"}}));
  EXPECT_THAT(Trash(), SizeIs(2));
  Photo("a.jpg").remove();
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "a.jpg");
  EXPECT_THAT(Trash(), IsEmpty());
  EXPECT_EQ(Redo().files, 2U);
}

TEST_F(TrashJournal, BringsBackWhatIsStillThereWhenTheTrashWasEmptied) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg", "z.jpg"}) {
    Make(name, name);
  }
  journal_->Renames().Run(QStringLiteral("rename"), RenamePlanOf("z.jpg", "y.jpg"), never_, nullptr);
  MoveNames({"a.jpg", "b.jpg"});
  (bin_ / "0-a.jpg").remove();
  (bin_ / "0-a.jpg.note").remove();
  const UndoResult result = Undo();
  EXPECT_EQ(result.files, 1U);
  EXPECT_FALSE(result.stands);
  ASSERT_THAT(result.findings, SizeIs(1));
  EXPECT_EQ(result.findings[0].cause,
            Photo("a.jpg").utf8string() + " is no longer in the trash and cannot be brought back");
  EXPECT_EQ(ReadFile(Photo("b.jpg")), "b.jpg");
  EXPECT_TRUE(journal_->Steps().front().givenUp);
  // It keeps no older step from being taken back.
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("z.jpg")), "z.jpg");
}

TEST_F(TrashJournal, LeavesACopyThatSomebodyElseThrewAway) {
  Make("keep.jpg", "K");
  const ioPath photo = Make("a.jpg", "A");
  const auto time = std::filesystem::last_write_time(photo.native());
  MoveNames({"a.jpg"});
  // The trash was emptied, and a copy of the same name, size and time came in.
  const ioPath place = bin_ / "0-a.jpg";
  place.remove();
  WriteBytes(place, "A");
  std::filesystem::last_write_time(place.native(), time);
  WriteBytes(bin_ / "0-a.jpg.note", "/elsewhere/a.jpg");
  EXPECT_THAT(Undo().findings, SizeIs(1));
  EXPECT_EQ(Trash(), (Files{{"0-a.jpg", "A"}, {"0-a.jpg.note", "/elsewhere/a.jpg"}}));
}

TEST_F(TrashJournal, KnowsAPhotoThatWasTouchedInTheTrash) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  MoveNames({"a.jpg"});
  std::filesystem::last_write_time((bin_ / "0-a.jpg").native(),
                                   std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "A");
}

TEST_F(TrashJournal, KnowsAPhotoOnAVolumeThatTellsOtherTimesAndNumbers) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  Move(std::vector<TrashPhoto>{Going("a.jpg")});
  const ioPath place = bin_ / "0-a.jpg";
  place.remove();
  WriteBytes(bin_ / "another", "to take the number");
  WriteBytes(place, "A");
  std::filesystem::last_write_time(place.native(),
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "A");
}

TEST_F(TrashJournal, SaysWhenSomethingElseHasTheNameOfWhatIsGone) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  Move(std::vector<TrashPhoto>{Going("a.jpg")});
  (bin_ / "0-a.jpg").remove();
  Make("a.jpg", "something else");
  EXPECT_THAT(Undo().findings[0].cause,
              HasSubstr("a.jpg is no longer in the trash; another file has its name"));
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "something else");
}

TEST_F(TrashJournal, LeavesWhatBelongsToAPhotoAndIsNotAsItWas) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  TrashPhoto photo = Going("a.jpg");
  photo.attached = {Attached(Make("a.xmp", "settings")), Attached(Make("a.thm", "thumbnail"))};
  Make("a.xmp", "changed while somebody was asked");
  Photo("a.thm").remove();
  std::filesystem::create_directory(Photo("a.thm").native());
  const TrashResult result = Move({photo});
  EXPECT_EQ(result.files, 1U);
  ASSERT_THAT(result.findings, SizeIs(2));
  EXPECT_THAT(result.findings[0].cause, HasSubstr("a.xmp is kept: it was changed"));
  EXPECT_TRUE(std::filesystem::is_directory(Photo("a.thm").native()));
}

TEST_F(TrashJournal, KnowsThatAPhotoNeverLeft) {
  Make("keep.jpg", "K");
  const ioPath photo = Make("a.jpg", "A");
  // A file of the same size and time without a note was in the place, and the program stopped when it knew.
  Move(std::vector<TrashPhoto>{Going("a.jpg")});
  const ioPath place = bin_ / "0-a.jpg";
  ASSERT_TRUE(place.rename(photo));
  WriteBytes(place, "B");
  std::filesystem::last_write_time(place.native(), std::filesystem::last_write_time(photo.native()));
  journal_.reset();
  for (const char* const table : {"steps", "trashed"}) {
    Zenvora::Test::RunSql(catalogue_, {std::string("UPDATE ") + table + " SET state = 1"});
  }
  Open();
  EXPECT_TRUE(journal_->Steps().empty());
  EXPECT_EQ(ReadFile(photo), "A");
  EXPECT_EQ(ReadFile(place), "B");
}

TEST_F(TrashJournal, KnowsAPhotoThatOthersBroughtBack) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  Store({"a.jpg"});
  MoveNames({"a.jpg"});
  ASSERT_TRUE((bin_ / "0-a.jpg").rename(Photo("a.jpg")));
  const UndoResult result = Undo();
  EXPECT_EQ(result.files, 1U);
  EXPECT_THAT(result.findings, IsEmpty());
  EXPECT_THAT(Trash(), IsEmpty());
  EXPECT_THAT(Catalogued(), SizeIs(1));
}

TEST_F(TrashJournal, MakesAFolderAgainThatWasRemoved) {
  Make("keep.jpg", "K");
  Make("trip/one/a.jpg", "A");
  Move({Going("trip/one/a.jpg")});
  std::filesystem::remove_all(Photo("trip").native());
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("trip/one/a.jpg")), "A");
}

TEST_F(TrashJournal, LeavesAPhotoInTheTrashWhoseFolderCannotBeMade) {
  Make("keep.jpg", "K");
  Make("trip/a.jpg", "A");
  Move({Going("trip/a.jpg")});
  std::filesystem::remove_all(Photo("trip").native());
  Make("trip", "a file");
  const UndoResult result = Undo();
  EXPECT_EQ(result.files, 0U);
  EXPECT_TRUE(result.stands);
  EXPECT_THAT(result.findings[0].cause, HasSubstr("remains in the trash as"));
  Photo("trip").remove();
  EXPECT_EQ(Undo().files, 1U);
}

TEST_F(TrashJournal, WaitsForWhatCannotBeLookedAt) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  const TrashResult moved = MoveNames({"a.jpg"});
  const ioPath place = moved.moved.at(0).to;
  const ioPath aside = tree_.Path("aside");
  ASSERT_FALSE(MoveToFreeName(place, aside));
  // What leads nowhere but to itself fails as a disk does that cannot be read.
  LUMIDEX_LINK_OR_SKIP(place, place);
  const UndoResult undone = Undo();
  EXPECT_TRUE(undone.stands);
  ASSERT_THAT(undone.findings, SizeIs(1));
  EXPECT_THAT(undone.findings[0].cause, HasSubstr(", which cannot be read: "));
  place.remove();
  ASSERT_FALSE(MoveToFreeName(aside, place));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "A");
}

TEST_F(TrashJournal, KeepsTheRowOfAMoveThatWasBrokenOffWhileNobodyCanTell) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  const ioPath place = MoveNames({"a.jpg"}).moved.at(0).to;
  journal_.reset();
  ASSERT_TRUE(Zenvora::Test::RunSql(
                  catalogue_, {"UPDATE steps SET state = 1", "UPDATE trashed SET state = 1", "SELECT 1"})
                  .isValid());
  const ioPath aside = tree_.Path("aside");
  ASSERT_FALSE(MoveToFreeName(place, aside));
  LUMIDEX_LINK_OR_SKIP(place, place);
  Make("a.jpg", "another");
  Open();
  place.remove();
  Photo("a.jpg").remove();
  ASSERT_FALSE(MoveToFreeName(aside, place));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(Photo("a.jpg")), "A");
}

TEST_F(TrashJournal, WaitsForAVolumeThatIsAway) {
  Make("keep.jpg", "K");
  Make("a.jpg", "A");
  MoveNames({"a.jpg"});
  const ioPath away = tree_.Path("away");
  ASSERT_TRUE(bin_.rename(away));
  trash_.inReach = false;
  const UndoResult result = Undo();
  EXPECT_TRUE(result.stands);
  EXPECT_THAT(result.findings[0].cause, HasSubstr("cannot be reached: its disk may not be connected"));
  ASSERT_TRUE(away.rename(bin_));
  trash_.inReach = true;
  EXPECT_EQ(Undo().files, 1U);
}

TEST_F(TrashJournal, DoesNotDoAgainWhatWouldLoseAPhoto) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg", "c.jpg"}) {
    Make(name, name);
  }
  Make("other.jpg", "O");
  Move({Going("a.jpg"), Going("b.jpg"), Going("c.jpg", "other.jpg")});
  Undo();
  Make("a.jpg", "changed later");
  Photo("b.jpg").remove();
  Photo("other.jpg").remove();
  const UndoResult result = Redo();
  EXPECT_EQ(result.files, 0U);
  ASSERT_THAT(result.findings, SizeIs(3));
  EXPECT_THAT(result.findings[0].cause, HasSubstr("a.jpg was changed later and is left as it is"));
  EXPECT_THAT(result.findings[1].cause, HasSubstr("b.jpg no longer exists"));
  EXPECT_THAT(result.findings[2].cause, HasSubstr("c.jpg was kept, because the photo kept in its place"));
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "keep.jpg"}, {"a.jpg", "changed later"}, {"c.jpg", "c.jpg"}}));
  EXPECT_TRUE(journal_->Steps().front().undone);
}

TEST_F(TrashJournal, LeavesWhatBelongsToAPhotoThatIsNotMovedAgain) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  TrashPhoto first = Going("a.jpg");
  first.attached = {Attached(Make("a.xmp", "settings"))};
  ASSERT_EQ(Move({first, Going("b.jpg")}).files, 3U);
  ASSERT_EQ(Undo().files, 3U);
  Make("a.jpg", "edited meanwhile");
  const UndoResult redone = Redo();
  EXPECT_EQ(redone.files, 1U);
  ASSERT_THAT(redone.findings, SizeIs(2));
  EXPECT_EQ(redone.findings[1].cause, Photo("a.xmp").utf8string() + " was kept, because its photo was kept");
  EXPECT_EQ(ReadFile(Photo("a.xmp")), "settings");
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_THAT(Trash(), IsEmpty());
}

TEST_F(TrashJournal, LetsEditsBeforeBeTakenBack) {
  Make("keep.jpg", "K");
  const ioPath photo = Make("a.jpg", "old");
  EditPhotos(
      journal_->Edits(), *locker_, QStringLiteral("edit"), {photo},
      [](const ioPath&, const ioPath& staging) { WriteBytes(staging, "edited"); }, never_, nullptr);
  MoveNames({"a.jpg"});
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(photo), "edited");
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(photo), "old");
  EXPECT_EQ(Redo().files, 1U);
  EXPECT_EQ(Redo().files, 1U);
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(photo), "edited");
}

TEST_F(TrashJournal, LetsRenamesAroundItBeTakenBack) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  Store({"keep.jpg", "a.jpg", "b.jpg"});
  const std::vector<std::string> all = Catalogued();
  MoveNames({"a.jpg"});
  journal_->Renames().Run(QStringLiteral("rename"), RenamePlanOf("b.jpg", "a.jpg"), never_, nullptr);
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "keep.jpg"}, {"a.jpg", "a.jpg"}, {"b.jpg", "b.jpg"}}));
  EXPECT_EQ(Catalogued(), all);
}

TEST_F(TrashJournal, KnowsAPhotoWhoseNameAnotherHadMeanwhile) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  Store({"keep.jpg", "a.jpg", "b.jpg"});
  MoveNames({"a.jpg"});
  journal_->Renames().Run(QStringLiteral("rename"), RenamePlanOf("b.jpg", "a.jpg"), never_, nullptr);
  journal_->SkipLast();
  EXPECT_TRUE(Undo().stands);
  ASSERT_TRUE(Photo("a.jpg").rename(Photo("elsewhere.jpg")));
  Catalogue(catalogue_, Catalogue::Mode::ReadWrite).MarkLost({Photo("a.jpg")});
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_THAT(Catalogued(), ::testing::ElementsAre("a.jpg camera of a.jpg", "keep.jpg camera of keep.jpg"));
}

TEST_F(TrashJournal, ForgetsWhatWasUndoneWhenSomethingIsMoved) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  MoveNames({"a.jpg"});
  Undo();
  MoveNames({"b.jpg"});
  EXPECT_THAT(journal_->Steps(), SizeIs(1));
  EXPECT_TRUE(Redo().name.isEmpty());
  EXPECT_EQ(Undo().files, 1U);
}

TEST_F(TrashJournal, GoesOnInterruptedAndWithAnUndoInPart) {
  for (const char* const name : {"keep.jpg", "a.jpg", "b.jpg"}) {
    Make(name, name);
  }
  MoveNames({"a.jpg", "b.jpg"});
  std::atomic<bool> cancelled{false};
  const UndoResult part =
      journal_->UndoLast(cancelled, [&cancelled](std::size_t, std::size_t) { cancelled = true; });
  EXPECT_TRUE(part.cancelled);
  EXPECT_EQ(part.files, 1U);
  EXPECT_TRUE(part.stands);
  EXPECT_EQ(Photos(), (Files{{"keep.jpg", "keep.jpg"}, {"b.jpg", "b.jpg"}}));
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_THAT(Photos(), SizeIs(3));
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS(KilledTrashJournal, LosesNothingWhileItMoves);
LUMIDEX_LEFT_OUT_ON_WINDOWS(KilledTrashJournal, LosesNothingWhileItTakesBack);
LUMIDEX_LEFT_OUT_ON_WINDOWS(KilledTrashJournal, LosesNothingWhileItMovesAgain);
LUMIDEX_LEFT_OUT_ON_WINDOWS(KilledTrashJournal, WaitsForTheVolumeOfWhatWasBrokenOff);

#else

/// Tells of each lock: a move is between two of them.
class TellingLocker : public IFileAccessLocker {
 public:
  explicit TellingLocker(std::function<void()> tell) : tell_(std::move(tell)) {}
  unsigned int AddRef() const override { return count_.AddRefImpl(); }
  unsigned int GetRefCount() const override { return count_.GetRefCountImpl(); }
  unsigned int Release() const override { return count_.ReleaseImpl(); }
  void Lock(const ioPath&) override { tell_(); }
  void Unlock(const ioPath&) override { tell_(); }

 private:
  const std::function<void()> tell_;
  RefCountImpl count_;
};

class KilledTrashJournal : public TrashJournal {
 protected:
  using Work = std::function<void(UndoJournal&)>;

  /// Does the work in a process that ends before its `event`-th event. False when it came to its end.
  bool IsKilled(int event, const Work& work) {
    journal_.reset();
    const pid_t child = fork();
    if (child == 0) {
      int left = event;
      const auto tell = [&left] {
        if (--left == 0) {
          _exit(9);
        }
      };
      FolderTrash trash(bin_);
      trash.onEvent = tell;
      TellingLocker locker(tell);
      {
        UndoJournal journal(catalogue_, locker, trash);
        work(journal);
      }
      _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_TRUE(WEXITSTATUS(status) == 9 || WEXITSTATUS(status) == 0) << status;
    return WEXITSTATUS(status) == 9;
  }

  /// Each photo is there once, and in the trash only with a note of its own; no note is without a file.
  void ExpectNothingLost(const std::string& when) const {
    const Files photos = Photos();
    const Files trash = Trash();
    for (const std::string& name : names_) {
      const bool home = photos.count(name) > 0;
      int inTrash = 0;
      for (const auto& [place, content] : trash) {
        inTrash += content == name && trash.count(place + ".note") > 0 &&
                           trash.at(place + ".note") == Photo(name).utf8string()
                       ? 1
                       : 0;
      }
      EXPECT_EQ((home ? 1 : 0) + inTrash, 1) << name << ' ' << when;
    }
    for (const auto& [place, content] : trash) {
      const bool isNote = place.size() > 5 && place.substr(place.size() - 5) == ".note";
      EXPECT_TRUE(!isNote || trash.count(place.substr(0, place.size() - 5)) > 0) << place << ' ' << when;
    }
    EXPECT_EQ(photos.at("keep.jpg"), "keep.jpg") << when;
  }

  /// Ends the work at each of its events in turn, each time on new photos.
  void KillEverywhere(const Work& prepare, const Work& work) {
    int event = 0;
    std::size_t recovered = 0;
    bool killed = true;
    while (killed) {
      ++event;
      const std::string when = "after " + std::to_string(event) + " events";
      Prepare(prepare);
      killed = IsKilled(event, work);
      Open();
      ExpectNothingLost(when);
      recovered += journal_->RecoveryNotes().size();
      const Files photos = Photos();
      const Files trash = Trash();
      Open();
      EXPECT_TRUE(journal_->RecoveryNotes().empty()) << when;
      EXPECT_EQ(Photos(), photos) << when;
      ExpectCatalogueAgrees(when);
      TakeAllBack(trash.empty(), when);
      ASSERT_FALSE(HasFailure()) << when;
    }
    EXPECT_GT(event, 8);
    EXPECT_GT(recovered, 7U);
  }

  void Prepare(const Work& prepare) {
    journal_.reset();
    for (const char* const end : {"", "-wal", "-shm"}) {
      ioPath(catalogue_.utf8string() + end).remove();
    }
    for (const std::string& name : names_) {
      Make(name, name);
    }
    Make("keep.jpg", "keep.jpg");
    Store(names_);
    UndoJournal journal(catalogue_, *locker_, trash_);
    prepare(journal);
  }

  void ExpectCatalogueAgrees(const std::string& when) const {
    const Files photos = Photos();
    EXPECT_THAT(Catalogued(), SizeIs(photos.size() - 1)) << when;
  }

  void TakeAllBack(bool isAll, const std::string& when) {
    if (!isAll) {
      const UndoResult result = Undo();
      EXPECT_THAT(result.findings, IsEmpty()) << when;
    }
    EXPECT_THAT(Photos(), SizeIs(names_.size() + 1)) << when;
    EXPECT_THAT(Trash(), IsEmpty()) << when;
    ExpectCatalogueAgrees(when);
  }

  std::vector<TrashPhoto> Plan() const {
    std::vector<TrashPhoto> photos;
    for (const std::string& name : names_) {
      photos.push_back(Going(name));
    }
    return photos;
  }
  Work Moving() const {
    return [this](UndoJournal& journal) {
      journal.Trash().Run(QStringLiteral("trash"), Plan(), never_, nullptr);
    };
  }

  const std::vector<std::string> names_ = {"a.jpg", "b.jpg"};
};

TEST_F(KilledTrashJournal, LosesNothingWhileItMoves) {
  KillEverywhere([](UndoJournal&) {}, Moving());
}

TEST_F(KilledTrashJournal, LosesNothingWhileItTakesBack) {
  KillEverywhere(Moving(), [this](UndoJournal& journal) { journal.UndoLast(never_, nullptr); });
}

TEST_F(KilledTrashJournal, LosesNothingWhileItMovesAgain) {
  const Work move = Moving();
  KillEverywhere(
      [this, move](UndoJournal& journal) {
        move(journal);
        journal.UndoLast(never_, nullptr);
      },
      [this](UndoJournal& journal) { journal.RedoLast(never_, nullptr); });
}

TEST_F(KilledTrashJournal, WaitsForTheVolumeOfWhatWasBrokenOff) {
  Prepare([](UndoJournal&) {});
  // Before the lock of the first move.
  ASSERT_TRUE(IsKilled(6, Moving()));
  const ioPath awayTrash = tree_.Path("away");
  const ioPath awayPhotos = tree_.Path("away photos");
  ASSERT_TRUE(bin_.rename(awayTrash));
  ASSERT_TRUE(photos_.rename(awayPhotos));
  trash_.inReach = false;
  Open();
  ASSERT_THAT(journal_->RecoveryNotes(), SizeIs(1));
  EXPECT_THAT(journal_->RecoveryNotes()[0], HasSubstr("will be finished once"));
  EXPECT_TRUE(NeedsRecovery(catalogue_));
  ASSERT_TRUE(awayTrash.rename(bin_));
  ASSERT_TRUE(awayPhotos.rename(photos_));
  trash_.inReach = true;
  Open();
  EXPECT_THAT(journal_->RecoveryNotes(), SizeIs(1));
  ExpectNothingLost("after waiting");
  EXPECT_FALSE(NeedsRecovery(catalogue_));
}

#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
