#include "RawSql.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/catalogue/Catalogue.h>
#include <host/edit/PhotoEditing.h>
#include <host/history/UndoJournal.h>
#include <host/scan/Scanner.h>
#include <support/Doubles.h>
#include <support/LeftOut.h>
#include <support/SharingDisk.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using Zenvora::Test::ReadFile;

class UndoJournalTest : public ::testing::Test {
 protected:
  UndoJournalTest() { Open(); }

  /// A new journal of the same catalogue: what is under way is recovered.
  void Open() {
    journal_.reset();
    journal_ = std::make_unique<UndoJournal>(catalogue_, *locker_);
  }

  /// Ends the journal as if all its steps had been in `state` when the program stopped.
  void StopIn(int state) {
    journal_.reset();
    Sql("UPDATE steps SET state = " + std::to_string(state));
  }

  ioPath Photo(const std::string& name) const { return tree_.Path("photos") / ioPath(name); }
  ioPath Make(const std::string& name, const std::string& content) const {
    return tree_.Write("photos/" + name, content);
  }

  RenamePlan Plan(const std::vector<std::pair<std::string, std::string>>& steps) const {
    RenamePlan plan;
    for (const auto& [from, to] : steps) {
      plan.steps.push_back({Photo(from), Photo(to)});
    }
    plan.renames = plan.steps;
    return plan;
  }

  UndoResult Rename(const std::vector<std::pair<std::string, std::string>>& steps) {
    return journal_->Renames().Run(QStringLiteral("rename"), Plan(steps), never_, nullptr);
  }

  /// Puts new content into the photos, as an edit does.
  UndoResult Edit(const std::vector<ioPath>& photos, const std::string& content) {
    return Edit(photos, [&](const ioPath& photo, const ioPath& staging) {
      EXPECT_EQ(staging.parent_path(), photo.parent_path());
      EXPECT_EQ(staging.filename().utf8string().front(), '.');
      WriteBytes(staging, content);
    });
  }
  UndoResult Edit(const std::vector<ioPath>& photos,
                  const std::function<void(const ioPath& photo, const ioPath& staging)>& write) {
    return EditPhotos(journal_->Edits(), *locker_, QStringLiteral("edit"), photos, write, never_, nullptr);
  }

  /// Two photos change names.
  UndoResult Swap() {
    return Rename({{"a.jpg", ".lumidex-t.jpg"}, {"b.jpg", "a.jpg"}, {".lumidex-t.jpg", "b.jpg"}});
  }

  void Register(const ioPath& from, const ioPath& to) {
    DataModel item;
    item.SetPath(from);
    journal_->RegisterFileChange(item, to);
  }

  /// An edit up to the moment before the staging file replaces the photo. Returns the staging file.
  ioPath BeginEdit(const ioPath& photo, const std::string& content) {
    journal_->BeginStep(QStringLiteral("edit"));
    ioPath staging = journal_->Edits().PlanEdit(photo);
    WriteBytes(staging, content);
    return staging;
  }

  static void WriteBytes(const ioPath& file, const std::string& content) {
    std::ofstream stream(file.for_system(), std::ios::binary);
    stream << content;
  }

  /// Names and contents of what lies beside the photos.
  std::map<std::string, std::string> Folder() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(tree_.Path("photos").native())) {
      files[ioPath(entry.path().filename()).utf8string()] = ReadFile(ioPath(entry.path()));
    }
    return files;
  }

  std::vector<ioPath> KeptPaths() const {
    std::vector<ioPath> paths;
    for (const auto& entry : std::filesystem::directory_iterator(keptFolder_.native())) {
      if (entry.path().filename() != "lock" && entry.path().filename() != "reserve") {
        paths.emplace_back(entry.path());
      }
    }
    return paths;
  }
  std::size_t KeptFiles() const { return KeptPaths().size(); }
  ioPath OnlyKeptFile() const {
    const std::vector<ioPath> paths = KeptPaths();
    EXPECT_EQ(paths.size(), 1U);
    return paths.empty() ? ioPath() : paths.front();
  }
  /// Where the version after the edit is kept whose version before is `before`.
  static ioPath AfterOf(const ioPath& before) {
    std::string after = before.utf8string();
    after.replace(after.rfind("-before"), 7, "-after");
    return ioPath(after);
  }

  void Sql(const std::string& statement) const { Zenvora::Test::RunSql(catalogue_, {statement}); }

  const Zenvora::Test::TempTree tree_;
  const ioPath catalogue_ = tree_.Path("catalogue.sqlite");
  const ioPath keptFolder_ = tree_.Path("catalogue.sqlite.undo");
  const ioPath folder_ = tree_.MakeFolder("photos");
  const boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
  const std::atomic<bool> never_{false};
  std::unique_ptr<UndoJournal> journal_;
};

using Files = std::map<std::string, std::string>;

TEST_F(UndoJournalTest, RenamesAndTakesItBack) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  EXPECT_EQ(Rename({{"a.jpg", "x.jpg"}, {"b.jpg", "Пейзаж 1.jpg"}}).files, 2U);
  EXPECT_EQ(Folder(), (Files{{"x.jpg", "A"}, {"Пейзаж 1.jpg", "B"}}));
  const UndoResult undone = journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files, 2U);
  EXPECT_EQ(undone.name, QStringLiteral("rename"));
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}}));
  EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 2U);
  EXPECT_EQ(Folder(), (Files{{"x.jpg", "A"}, {"Пейзаж 1.jpg", "B"}}));
}

TEST_F(UndoJournalTest, SwapsNamesThroughATemporaryOne) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Swap();
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "B"}, {"b.jpg", "A"}}));
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}}));
}

TEST_F(UndoJournalTest, RenamesAllOrNothing) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Make("taken.jpg", "T");
  const UndoResult result = Rename({{"a.jpg", "x.jpg"}, {"b.jpg", "taken.jpg"}});
  EXPECT_EQ(result.files, 0U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].file, Photo("b.jpg"));
  EXPECT_NE(result.findings[0].cause.find("another file has that name"), std::string::npos);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}, {"taken.jpg", "T"}}));
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(UndoJournalTest, RecognisesAHopelessRenameWithoutWaiting) {
  const auto clock = std::make_shared<Zenvora::Test::FakeClock>(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
  const App::ServiceScope<App::IClock> scope(clock);
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  EXPECT_THROW(Rename({{"a.jpg", "x.jpg"}, {"gone.jpg", "y.jpg"}}), HostError);
  EXPECT_EQ(Rename({{"a.jpg", "b.jpg"}}).files, 0U);
  EXPECT_EQ(Rename({{"a.jpg", "missing/x.jpg"}}).files, 0U);
  EXPECT_EQ(Rename({{"a.jpg", std::string(300, 'x')}}).files, 0U);
  EXPECT_TRUE(clock->sleeps.empty());
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}}));
}

TEST_F(UndoJournalTest, GivesOldNamesBackWhenInterrupted) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Make("c.jpg", "C");
  std::atomic<bool> cancelled{false};
  const UndoResult result = journal_->Renames().Run(
      QStringLiteral("rename"), Plan({{"a.jpg", "x"}, {"b.jpg", "y"}, {"c.jpg", "z"}}), cancelled,
      [&](std::size_t done, std::size_t) { cancelled = done == 2; });
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.files, 0U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}, {"c.jpg", "C"}}));
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(UndoJournalTest, TellsOfItsProgress) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  std::vector<std::pair<std::size_t, std::size_t>> told;
  journal_->Renames().Run(QStringLiteral("rename"), Plan({{"a.jpg", "x"}, {"b.jpg", "y"}}), never_,
                          [&](std::size_t done, std::size_t all) { told.emplace_back(done, all); });
  EXPECT_EQ(told, (std::vector<std::pair<std::size_t, std::size_t>>{{1, 2}, {2, 2}}));
}

TEST_F(UndoJournalTest, LeavesNothingOfAPlanWithoutSteps) {
  EXPECT_EQ(Rename({}).files, 0U);
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(UndoJournalTest, KeepsTheRecordsOfRenamedPhotos) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  std::map<std::string, QString> ids;
  {
    Catalogue catalogue(catalogue_, Catalogue::Mode::ReadWrite);
    PhotoRecord a;
    a.path = Photo("a.jpg");
    PhotoRecord b;
    b.path = Photo("b.jpg");
    PhotoRecord gone;
    gone.path = Photo("x.jpg");
    catalogue.Store({a, b, gone});
    catalogue.MarkLost({gone.path});
    for (const PhotoRecord& photo : catalogue.Photos()) {
      ids[photo.path.filename().utf8string()] = photo.id;
    }
  }
  Rename({{"a.jpg", "x.jpg"}, {"b.jpg", "a.jpg"}});
  const auto now = [&] {
    std::map<std::string, QString> result;
    for (const PhotoRecord& photo : Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos()) {
      result[photo.path.filename().utf8string()] = photo.id;
    }
    return result;
  };
  EXPECT_EQ(now(), (std::map<std::string, QString>{{"x.jpg", ids["a.jpg"]}, {"a.jpg", ids["b.jpg"]}}));
  EXPECT_EQ(Catalogue(catalogue_, Catalogue::Mode::ReadOnly).CountPhotos(), 3U);
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(now(), ids);
}

TEST_F(UndoJournalTest, KeepsTheRecordsOfPhotosAmongFoldersWithoutAny) {
  for (const char* name : {"none/a.jpg", "none/b.jpg", "some/a.jpg", "other/a.jpg"}) {
    Make(name, name);
  }
  {
    Catalogue catalogue(catalogue_, Catalogue::Mode::ReadWrite);
    PhotoRecord photo;
    photo.path = Photo("some/a.jpg");
    PhotoRecord gone;
    gone.path = Photo("some/y.jpg");
    catalogue.Store({photo, gone});
  }
  const auto paths = [&] {
    std::vector<ioPath> result;
    for (const PhotoRecord& photo : Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos()) {
      result.push_back(photo.path);
    }
    return result;
  };
  // Into a folder that had no record and from there on, and to the name of a photo that is gone: its record
  // comes to a folder that had none.
  Rename({{"none/a.jpg", "none/x.jpg"},
          {"some/a.jpg", "other/x.jpg"},
          {"other/x.jpg", "other/z.jpg"},
          {"none/x.jpg", "some/y.jpg"},
          {"none/b.jpg", "none/x.jpg"}});
  EXPECT_THAT(paths(), ::testing::UnorderedElementsAre(Photo("other/z.jpg"), Photo("none/b.jpg")));
  journal_->UndoLast(never_, nullptr);
  EXPECT_THAT(paths(), ::testing::UnorderedElementsAre(Photo("some/a.jpg"), Photo("some/y.jpg")));
}

TEST_F(UndoJournalTest, EditsAndBringsBackTheExactFile) {
  const ioPath photo = Make("a.jpg", "old");
  std::filesystem::last_write_time(photo.native(),
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(999));
  const FileState before = QueryFile(photo);
  EXPECT_EQ(Edit({photo}, "edited").files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "edited"}}));
  EXPECT_EQ(KeptFiles(), 1U);
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "old"}}));
  EXPECT_EQ(QueryFile(photo).modifiedNs, before.modifiedNs);
  EXPECT_EQ(KeptFiles(), 1U);
  EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "edited"}}));
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "old"}}));
}

TEST_F(UndoJournalTest, TakesBackSeveralStepsInTheirOrder) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, "2");
  Rename({{"a.jpg", "b.jpg"}});
  Edit({Photo("b.jpg")}, "3");
  ASSERT_EQ(journal_->Steps().size(), 3U);
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Folder(), (Files{{"b.jpg", "2"}}));
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}}));
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
  EXPECT_TRUE(journal_->UndoLast(never_, nullptr).name.isEmpty());
  for (int i = 0; i < 3; ++i) {
    journal_->RedoLast(never_, nullptr);
  }
  EXPECT_EQ(Folder(), (Files{{"b.jpg", "3"}}));
  EXPECT_TRUE(journal_->RedoLast(never_, nullptr).name.isEmpty());
}

TEST_F(UndoJournalTest, TakesBackAPhotoThatOneStepChangedTwice) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo, photo}, "2");
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 2U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
}

TEST_F(UndoJournalTest, ForgetsWhatWasUndoneWhenSomethingNewIsDone) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, "2");
  journal_->UndoLast(never_, nullptr);
  Edit({photo}, "3");
  EXPECT_TRUE(journal_->RedoLast(never_, nullptr).name.isEmpty());
  EXPECT_EQ(journal_->Steps().size(), 1U);
  EXPECT_EQ(KeptFiles(), 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "3"}}));
}

TEST_F(UndoJournalTest, LeavesAPhotoThatOthersChangedSince) {
  const ioPath photo = Make("a.jpg", "1");
  const ioPath second = Make("b.jpg", "1");
  Edit({photo, second}, "2");
  WriteBytes(photo, "by others");
  const UndoResult result = journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(result.files, 1U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].file, photo);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "by others"}, {"b.jpg", "1"}}));
  // The original is still at hand.
  WriteBytes(photo, "2");
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}, {"b.jpg", "1"}}));
}

TEST_F(UndoJournalTest, GoesOnToOlderStepsWhenOneIsSkipped) {
  const ioPath photo = Make("a.jpg", "1");
  const ioPath second = Make("b.jpg", "1");
  Edit({second}, "2");
  Edit({photo, second}, "3");
  WriteBytes(photo, "by others");
  const UndoResult blocked = journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(blocked.files, 1U);
  EXPECT_TRUE(blocked.stands);
  const std::vector<ioPath> kept = KeptPaths();

  const auto skipped = journal_->SkipLast();
  ASSERT_TRUE(skipped);
  EXPECT_TRUE(skipped->givenUp);
  EXPECT_EQ(skipped->number, journal_->Steps().at(0).number);
  EXPECT_EQ(skipped->keptBytes, 2U);
  EXPECT_TRUE(journal_->Steps().at(0).givenUp);
  EXPECT_FALSE(journal_->Steps().at(1).givenUp);
  // Nothing was touched, and both versions of the step stay over a new start.
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "by others"}, {"b.jpg", "2"}}));
  Open();
  EXPECT_THAT(KeptPaths(), ::testing::UnorderedElementsAreArray(kept));

  const UndoResult older = journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(older.files, 1U);
  EXPECT_FALSE(older.stands);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "by others"}, {"b.jpg", "1"}}));
  EXPECT_TRUE(journal_->UndoLast(never_, nullptr).name.isEmpty());
  EXPECT_FALSE(journal_->SkipLast());

  // Only what was taken back is done again, also where the photo is again what the skipped step took.
  WriteBytes(photo, "3");
  EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 1U);
  EXPECT_TRUE(journal_->RedoLast(never_, nullptr).name.isEmpty());
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "3"}, {"b.jpg", "2"}}));
}

TEST_F(UndoJournalTest, SkipsARenameThatCannotBeTakenBack) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Rename({{"b.jpg", "y.jpg"}});
  Rename({{"a.jpg", "x.jpg"}});
  Make("a.jpg", "of others");
  EXPECT_TRUE(journal_->UndoLast(never_, nullptr).stands);
  EXPECT_TRUE(journal_->SkipLast());
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "of others"}, {"b.jpg", "B"}, {"x.jpg", "A"}}));
}

TEST_F(UndoJournalTest, KeepsWhatIsKeptOfASkippedStepUntilItIsPruned) {
  const ioPath photo = Make("a.jpg", std::string(1000, 'x'));
  Edit({photo}, "2");
  ASSERT_TRUE(journal_->SkipLast());
  Edit({photo}, "3");
  EXPECT_EQ(KeptFiles(), 2U);
  UndoLimits limits;
  EXPECT_EQ(journal_->Prune(limits), 0U);
  limits.bytes = 500;
  EXPECT_EQ(journal_->Prune(limits), 0U);
  EXPECT_EQ(KeptFiles(), 1U);
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}}));
}

TEST_F(UndoJournalTest, LeavesNoStagingFileOfASkippedStep) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, "2");
  // An exchange that was broken off, while another program put something else there.
  const ioPath staging = Make(".lumidex-staging.jpg", "1");
  WriteBytes(AfterOf(OnlyKeptFile()), "2");
  WriteBytes(photo, "by others");
  StopIn(3);
  Sql("UPDATE changes SET state = 3, side = CAST('" + staging.utf8string() + "' AS BLOB)");
  Open();
  EXPECT_EQ(journal_->RecoveryNotes().size(), 2U);
  ASSERT_TRUE(journal_->SkipLast());
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "by others"}}));
  Open();
  EXPECT_EQ(KeptFiles(), 2U);
}

TEST_F(UndoJournalTest, EditsTheOthersWhenOneFails) {
  const ioPath photo = Make("a.jpg", "1");
  const ioPath second = Make("b.jpg", "1");
  const UndoResult result = Edit({photo, second}, [&](const ioPath& file, const ioPath& staging) {
    WriteBytes(staging, "2");
    if (file == photo) {
      staging.remove();
      throw std::runtime_error("a.jpg is damaged");
    }
  });
  EXPECT_EQ(result.files, 1U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].cause, "a.jpg is damaged");
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}, {"b.jpg", "2"}}));
  EXPECT_EQ(KeptFiles(), 1U);
}

TEST_F(UndoJournalTest, ForgetsAStepInWhichNothingWasDone) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, [](const ioPath&, const ioPath&) { throw std::runtime_error("no"); });
  EXPECT_TRUE(journal_->Steps().empty());
  EXPECT_EQ(KeptFiles(), 0U);
}

TEST_F(UndoJournalTest, KeepsAnOriginalThatHasTwoNamesApart) {
  const ioPath photo = Make("a.jpg", "old");
  std::error_code error;
  std::filesystem::create_hard_link(photo.native(), Photo("same.jpg").native(), error);
  if (error) {
    GTEST_SKIP() << "no hard links can be made here";
  }
  Edit({photo}, "edited");
  // Somebody changes the file where it lies, under its other name.
  WriteBytes(Photo("same.jpg"), "changed");
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "old"}, {"same.jpg", "changed"}}));
}

TEST_F(UndoJournalTest, PointsAnAdoptedPhotoBack) {
  Make("a.jpg", "1");
  Make("b.jpg", "2");
  {
    Catalogue catalogue(catalogue_, Catalogue::Mode::ReadWrite);
    PhotoRecord photo;
    photo.path = Photo("b.jpg");
    catalogue.Store({photo});
  }
  journal_->BeginStep(QStringLiteral("adopt"));
  Register(Photo("a.jpg"), Photo("b.jpg"));
  journal_->Edits().FinishEdit();
  journal_->EndStep();
  EXPECT_TRUE(journal_->Undo());
  EXPECT_EQ(Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos().at(0).path, Photo("a.jpg"));
  EXPECT_TRUE(journal_->Redo());
  EXPECT_EQ(Catalogue(catalogue_, Catalogue::Mode::ReadOnly).Photos().at(0).path, Photo("b.jpg"));
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}, {"b.jpg", "2"}}));
}

TEST_F(UndoJournalTest, SeesToAChangeThatNobodyAnnounced) {
  const ioPath photo = Make("a.jpg", "1");
  Register(photo, photo);
  WriteBytes(Photo("staging"), "2");
  ASSERT_TRUE(Photo("staging").rename(photo));
  EXPECT_TRUE(journal_->Undo());
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
}

TEST_F(UndoJournalTest, IsForOneAtATime) {
  const auto clock = std::make_shared<Zenvora::Test::FakeClock>(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
  const App::ServiceScope<App::IClock> scope(clock);
  try {
    const UndoJournal second(catalogue_, *locker_);
    ADD_FAILURE() << "two journals at once";
  } catch (const HostError& failure) {
    EXPECT_NE(std::string(failure.what()).find("try again"), std::string::npos) << failure.what();
  }
  EXPECT_FALSE(clock->sleeps.empty());
}

TEST_F(UndoJournalTest, ListsItsStepsTheLatestFirst) {
  const ioPath photo = Make("a.jpg", "12345");
  Edit({photo}, "2");
  Rename({{"a.jpg", "b.jpg"}});
  journal_->UndoLast(never_, nullptr);
  const auto steps = journal_->Steps();
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0].name, QStringLiteral("rename"));
  EXPECT_TRUE(steps[0].undone);
  EXPECT_EQ(steps[0].files, 1U);
  EXPECT_EQ(steps[0].keptBytes, 0U);
  EXPECT_EQ(steps[1].name, QStringLiteral("edit"));
  EXPECT_FALSE(steps[1].undone);
  EXPECT_EQ(steps[1].keptBytes, 5U);
  EXPECT_LT(steps[1].number, steps[0].number);
  EXPECT_EQ(steps[1].begun.timeSpec(), Qt::UTC);
}

TEST_F(UndoJournalTest, ForgetsWhatIsTooMuch) {
  const ioPath photo = Make("a.jpg", std::string(1000, 'x'));
  Edit({photo}, std::string(1000, 'y'));
  Edit({photo}, std::string(1000, 'z'));
  UndoLimits limits;
  EXPECT_EQ(journal_->Prune(limits), 0U);
  limits.bytes = 1500;
  EXPECT_EQ(journal_->Prune(limits), 1U);
  EXPECT_EQ(journal_->Steps().size(), 1U);
  EXPECT_EQ(KeptFiles(), 1U);
  EXPECT_EQ(ReadFile(photo), std::string(1000, 'z'));
}

// --- What was under way when the program stopped

TEST_F(UndoJournalTest, FinishesARenameThatWasBrokenOff) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Swap();
  // As it was after each of the moves.
  const std::vector<std::pair<std::string, std::string>> back = {
      {"b.jpg", ".lumidex-t.jpg"}, {"a.jpg", "b.jpg"}, {".lumidex-t.jpg", "a.jpg"}};
  for (std::size_t taken = 0; taken <= back.size(); ++taken) {
    for (std::size_t i = 0; i < taken; ++i) {
      ASSERT_TRUE(Photo(back[i].first).rename(Photo(back[i].second)));
    }
    StopIn(1);
    EXPECT_TRUE(NeedsRecovery(catalogue_));
    Open();
    EXPECT_EQ(journal_->RecoveryNotes().size(), 1U);
    EXPECT_EQ(Folder(), (Files{{"a.jpg", "B"}, {"b.jpg", "A"}})) << taken;
    EXPECT_FALSE(NeedsRecovery(catalogue_));
  }
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}}));
}

TEST_F(UndoJournalTest, FinishesWhatItBrokeOffWithPhotosThatOthersReplacedBefore) {
  for (const bool redo : {false, true}) {
    for (int kill = 1; kill <= 6; ++kill) {
      SCOPED_TRACE(std::to_string(kill) + (redo ? " of redo" : " of undo"));
      for (const char* const name : {"a", "b", "c", "d"}) {
        Photo(std::string(name) + ".jpg").remove();
        Make(std::string(name) + ".jpg", name);
      }
      // Two pairs change names, over one name in between.
      Rename({{"a.jpg", ".lumidex-t.jpg"},
              {"b.jpg", "a.jpg"},
              {".lumidex-t.jpg", "b.jpg"},
              {"c.jpg", ".lumidex-t.jpg"},
              {"d.jpg", "c.jpg"},
              {".lumidex-t.jpg", "d.jpg"}});
      if (redo) {
        journal_->UndoLast(never_, nullptr);
      }
      const Files before = Folder();
      Files replaced;
      for (const auto& [name, content] : before) {
        // As programs do that keep the photo until the new one is whole.
        const ioPath staging = Make("staging", content + " of another program");
        Photo(name).remove();
        ASSERT_TRUE(staging.rename(Photo(name)));
        replaced[name] = content + " of another program";
      }
      ASSERT_NE(replaced, before);
      Files after = replaced;
      std::swap(after["a.jpg"], after["b.jpg"]);
      std::swap(after["c.jpg"], after["d.jpg"]);
      const auto stop = [kill](std::size_t done, std::size_t) {
        if (static_cast<int>(done) == kill) {
          throw std::runtime_error("killed");
        }
      };
      EXPECT_THROW(redo ? journal_->RedoLast(never_, stop) : journal_->UndoLast(never_, stop),
                   std::runtime_error);
      Open();
      EXPECT_EQ(Folder(), after);
    }
  }
}

TEST_F(UndoJournalTest, FinishesWhatAFormerProgramLeftInItsCatalogue) {
  Make("a.jpg", "A");
  Rename({{"a.jpg", "x.jpg"}});
  ASSERT_TRUE(Photo("x.jpg").rename(Photo("a.jpg")));
  StopIn(1);
  for (const char* const table :
       {"verdicts", "origins", "imported", "album_change_photos", "album_change_attributes", "album_changes",
        "days_of_use", "volumes", "link_changes", "tag_changes", "photo_tags", "tags", "trashed",
        "cluster_photos", "clusters", "features", "analysers"}) {
    Sql(std::string("DROP TABLE ") + table);
  }
  Sql("DROP INDEX photos_by_edges");
  Sql("DROP INDEX photos_by_camera_id");
  for (const char* const column :
       {"photos DROP COLUMN tail", "photos DROP COLUMN latitude", "photos DROP COLUMN longitude",
        "photos DROP COLUMN reading", "photos DROP COLUMN edges", "photos DROP COLUMN content",
        "photos DROP COLUMN camera_id", "steps DROP COLUMN kind", "steps DROP COLUMN day",
        "changes DROP COLUMN kept_ending", "changes DROP COLUMN goes_with"}) {
    Sql(std::string("ALTER TABLE ") + column);
  }
  Sql("PRAGMA user_version = 2");
  EXPECT_TRUE(NeedsRecovery(catalogue_));
  Open();
  EXPECT_EQ(Folder(), (Files{{"x.jpg", "A"}}));
  EXPECT_FALSE(NeedsRecovery(catalogue_));
  // Nobody knows what a newer one means by its numbers.
  StopIn(1);
  Sql("PRAGMA user_version = 99");
  EXPECT_FALSE(NeedsRecovery(catalogue_));
}

TEST_F(UndoJournalTest, FinishesATakingBackThatWasBrokenOff) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Rename({{"a.jpg", "x.jpg"}, {"b.jpg", "y.jpg"}});
  ASSERT_TRUE(Photo("y.jpg").rename(Photo("b.jpg")));
  StopIn(3);
  Open();
  EXPECT_EQ(journal_->RecoveryNotes().size(), 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}}));
  EXPECT_TRUE(journal_->Steps().at(0).undone);
}

TEST_F(UndoJournalTest, FinishesOverPhotosThatWerePutBackFromACopy) {
  for (const int state : {1, 3}) {
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) {
      Make(name, name);
    }
    Rename({{"a.jpg", "x.jpg"}, {"b.jpg", "y.jpg"}, {"c.jpg", "z.jpg"}});
    ASSERT_TRUE(Photo("z.jpg").rename(Photo("c.jpg")));
    // The copies have other numbers; one photo, by chance, has that of before.
    for (const char* name : {"y.jpg", "c.jpg"}) {
      const auto time = std::filesystem::last_write_time(Photo(name).native());
      std::filesystem::copy_file(Photo(name).native(), Photo("copy").native());
      ASSERT_TRUE(Photo(name).remove());
      ASSERT_TRUE(Photo("copy").rename(Photo(name)));
      std::filesystem::last_write_time(Photo(name).native(), time);
    }
    StopIn(state);
    Open();
    const Files former{{"a.jpg", "a.jpg"}, {"b.jpg", "b.jpg"}, {"c.jpg", "c.jpg"}};
    EXPECT_EQ(Folder(),
              state == 3 ? former : (Files{{"x.jpg", "a.jpg"}, {"y.jpg", "b.jpg"}, {"z.jpg", "c.jpg"}}));
    if (state == 1) {
      journal_->UndoLast(never_, nullptr);
    }
    EXPECT_EQ(Folder(), former);
  }
}

TEST_F(UndoJournalTest, TakesBackARenameThatCannotBeFinished) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Rename({{"a.jpg", "x.jpg"}, {"b.jpg", "y.jpg"}});
  ASSERT_TRUE(Photo("y.jpg").rename(Photo("b.jpg")));
  Make("y.jpg", "of others");
  StopIn(1);
  Open();
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "A"}, {"b.jpg", "B"}, {"y.jpg", "of others"}}));
  ASSERT_EQ(journal_->RecoveryNotes().size(), 1U);
  EXPECT_NE(journal_->RecoveryNotes()[0].find("have their former names"), std::string::npos);
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(UndoJournalTest, ForgetsAnEditThatHadNotBegunToReplace) {
  const ioPath photo = Make("a.jpg", "1");
  BeginEdit(photo, "half");
  Open();
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
  EXPECT_EQ(journal_->RecoveryNotes().size(), 1U);
  EXPECT_TRUE(journal_->Steps().empty());
}

TEST_F(UndoJournalTest, ForgetsAnEditThatHadNotReplacedYet) {
  const ioPath photo = Make("a.jpg", "1");
  BeginEdit(photo, "2");
  Register(photo, photo);
  Open();
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
  EXPECT_EQ(KeptFiles(), 0U);
}

TEST_F(UndoJournalTest, KnowsAnEditThatHadReplaced) {
  const ioPath photo = Make("a.jpg", "1");
  const ioPath staging = BeginEdit(photo, "2");
  Register(photo, photo);
  ASSERT_TRUE(staging.rename(photo));
  Open();
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}}));
  EXPECT_EQ(journal_->Steps().size(), 1U);
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
}

TEST_F(UndoJournalTest, FinishesAnExchangeThatWasBrokenOffOnEitherSide) {
  for (const bool exchanged : {false, true}) {
    const ioPath photo = Make("a.jpg", "1");
    Edit({photo}, "2");
    const std::int64_t number = journal_->Steps().at(0).number;
    // Both versions are kept, and the photo is one of them.
    WriteBytes(AfterOf(OnlyKeptFile()), "2");
    if (exchanged) {
      WriteBytes(photo, "1");
    }
    journal_.reset();
    Sql("UPDATE steps SET state = 3 WHERE number = " + std::to_string(number));
    Sql("UPDATE changes SET state = 3 WHERE step = " + std::to_string(number));
    Open();
    EXPECT_EQ(ReadFile(photo), "1");
    EXPECT_EQ(KeptFiles(), 1U);
    journal_->RedoLast(never_, nullptr);
    EXPECT_EQ(ReadFile(photo), "2");
    journal_->UndoLast(never_, nullptr);
  }
}

TEST_F(UndoJournalTest, SweepsAwayWhatNothingSpeaksOf) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, "2");
  const ioPath kept = OnlyKeptFile();
  WriteBytes(AfterOf(kept), "left over");
  Open();
  EXPECT_EQ(OnlyKeptFile(), kept);
}

// --- What must not be lost on the way

TEST_F(UndoJournalTest, KeepsBothVersionsOfAPhotoOutOfReach) {
  for (const bool redo : {false, true}) {
    const ioPath photo = Make("a.jpg", "1");
    Edit({photo}, "2");
    const ioPath before = OnlyKeptFile();
    if (redo) {
      journal_->UndoLast(never_, nullptr);
      WriteBytes(before, "1");
    } else {
      WriteBytes(AfterOf(before), "2");
    }
    // The photo was exchanged, then the machine stopped, and comes back without the volume.
    WriteBytes(photo, redo ? "2" : "1");
    StopIn(redo ? 5 : 3);
    Sql(redo ? "UPDATE changes SET state = 5" : "UPDATE changes SET state = 3");
    ASSERT_TRUE(folder_.rename(tree_.Path("away")));
    Open();
    EXPECT_EQ(KeptFiles(), 2U) << redo;
    Open();
    EXPECT_EQ(KeptFiles(), 2U) << redo;
    ASSERT_TRUE(tree_.Path("away").rename(folder_));
    EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U) << redo;
    EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}})) << redo;
    EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 1U) << redo;
    EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}})) << redo;
    EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U) << redo;
  }
}

TEST_F(UndoJournalTest, KeepsTheOriginalsOfWhatWasDoneAgainInPart) {
  const ioPath photo = Make("a.jpg", "1");
  const ioPath second = Make("b.jpg", "1");
  const ioPath third = Make("c.jpg", "1");
  Edit({photo, second}, "2");
  journal_->UndoLast(never_, nullptr);
  WriteBytes(second, "by others");
  EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(ReadFile(photo), "2");
  Edit({third}, "3");
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}, {"b.jpg", "by others"}, {"c.jpg", "1"}}));
}

TEST_F(UndoJournalTest, LeavesWhatAnotherCatalogueKept) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, "2");
  const ioPath kept = OnlyKeptFile().filename();
  journal_.reset();
  ASSERT_TRUE(catalogue_.remove());
  const ioPath foreign = tree_.Write("catalogue.sqlite.undo/holiday.jpg", "not ours");
  Open();
  EXPECT_EQ(journal_->RecoveryNotes().size(), 1U);
  Edit({photo}, "3");
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}}));
  Open();
  EXPECT_TRUE(journal_->RecoveryNotes().empty());
  EXPECT_EQ(ReadFile(foreign), "not ours");
  std::vector<std::string> same;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(keptFolder_.native())) {
    if (ioPath(entry.path().filename()) == kept) {
      same.push_back(ReadFile(ioPath(entry.path())));
    }
  }
  EXPECT_EQ(same, (std::vector<std::string>{"1"}));
}

/// Moves the file itself as soon as it is to be locked: what a server does whose answer is lost.
class MovingLocker : public Zenvora::Test::FakeLocker {
 public:
  explicit MovingLocker(const ioPath& target) : target_(target) {}
  void Lock(const ioPath& path) override {
    FakeLocker::Lock(path);
    EXPECT_TRUE(path.rename(target_));
  }

 private:
  const ioPath target_;
};

TEST_F(UndoJournalTest, KeepsTheOriginalWhenAReplacementOnlySeemsToFail) {
  const auto clock = std::make_shared<Zenvora::Test::FakeClock>(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
  const App::ServiceScope<App::IClock> scope(clock);
  const ioPath photo = Make("a.jpg", "1");
  MovingLocker locker(photo);
  const UndoResult result = EditPhotos(
      journal_->Edits(), locker, QStringLiteral("edit"), {photo},
      [](const ioPath&, const ioPath& staging) { WriteBytes(staging, "2"); }, never_, nullptr);
  EXPECT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}}));
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
}

TEST_F(UndoJournalTest, RemovesTheStagingFileOfAFailedEdit) {
  const ioPath photo = Make("a.jpg", "1");
  Edit({photo}, [](const ioPath&, const ioPath& staging) {
    WriteBytes(staging, "half");
    throw std::runtime_error("no");
  });
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "1"}}));
}

TEST_F(UndoJournalTest, TellsPhotosOfOneSizeAndTimeApart) {
  const ioPath first = Make("a.jpg", "A");
  const ioPath second = Make("b.jpg", "B");
  std::filesystem::last_write_time(second.native(), std::filesystem::last_write_time(first.native()));
  Swap();
  journal_->UndoLast(never_, nullptr);
  // It stopped before the first move.
  StopIn(1);
  Open();
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "B"}, {"b.jpg", "A"}}));
}

TEST_F(UndoJournalTest, WaitsForTheFolderOfARenameThatWasBrokenOff) {
  Make("a.jpg", "A");
  Make("b.jpg", "B");
  Swap();
  for (const int state : {1, 3}) {
    // One photo is between its names.
    ASSERT_TRUE(Photo("b.jpg").rename(Photo(".lumidex-t.jpg")));
    StopIn(state);
    ASSERT_TRUE(folder_.rename(tree_.Path("away")));
    Open();
    EXPECT_EQ(journal_->RecoveryNotes().size(), 1U);
    EXPECT_TRUE(NeedsRecovery(catalogue_));
    // As a volume's folder is while nothing is mounted there.
    tree_.MakeFolder("photos");
    Open();
    EXPECT_TRUE(NeedsRecovery(catalogue_));
    ASSERT_TRUE(folder_.remove());
    ASSERT_TRUE(tree_.Path("away").rename(folder_));
    Open();
    EXPECT_FALSE(NeedsRecovery(catalogue_));
    const Files swapped{{"a.jpg", "B"}, {"b.jpg", "A"}};
    const Files former{{"a.jpg", "A"}, {"b.jpg", "B"}};
    EXPECT_EQ(Folder(), state == 1 ? swapped : former) << state;
  }
}

TEST_F(UndoJournalTest, EditsThePhotoThatALinkLeadsTo) {
  const ioPath photo = Make("a.jpg", "1");
  std::error_code error;
  std::filesystem::create_symlink("a.jpg", Photo("link.jpg").native(), error);
  if (error) {
    GTEST_SKIP() << "no symbolic links can be made here";
  }
  EXPECT_EQ(Edit({Photo("link.jpg")}, "2").files, 1U);
  EXPECT_TRUE(std::filesystem::is_symlink(Photo("link.jpg").native()));
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}, {"link.jpg", "2"}}));
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_TRUE(std::filesystem::is_symlink(Photo("link.jpg").native()));
  EXPECT_EQ(ReadFile(photo), "1");
}

TEST_F(UndoJournalTest, GoesOnToOlderStepsWhenAnOriginalIsGone) {
  const ioPath photo = Make("a.jpg", "1");
  Rename({{"a.jpg", "b.jpg"}});
  Edit({Photo("b.jpg")}, "2");
  journal_.reset();
  std::filesystem::remove_all(keptFolder_.native());
  Open();
  const UndoResult result = journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(result.files, 0U);
  EXPECT_EQ(result.findings.size(), 1U);
  EXPECT_FALSE(result.stands);
  EXPECT_TRUE(journal_->Steps().at(0).givenUp);
  EXPECT_EQ(Folder(), (Files{{"b.jpg", "2"}}));
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}}));
}

TEST_F(UndoJournalTest, KeepsWhatCanBeDoneAgainWhenNothingNewIsDone) {
  const ioPath photo = Make("a.jpg", "1");
  const ioPath second = Make("b.jpg", "1");
  Edit({photo}, "2");
  journal_->UndoLast(never_, nullptr);
  EXPECT_EQ(Rename({{"a.jpg", "b.jpg"}}).files, 0U);
  Edit({second}, [](const ioPath&, const ioPath&) { throw std::runtime_error("no"); });
  EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "2"}, {"b.jpg", "1"}}));
}

// --- Volumes

constexpr std::size_t kSmall = std::size_t{1} << 20U;

/// Writes the staging file as an edit does, and fails as one.
void WriteStaging(const ioPath& staging, const std::string& content) {
  NewFile file;
  std::error_code error = file.Create(staging);
  error = error ? error : file.Write(content.data(), content.size());
  error = error ? error : file.Close(true);
  if (error) {
    throw std::runtime_error(error.message());
  }
  file.Release();
}

TEST_F(UndoJournalTest, LosesNothingWhenThePhotosDiskIsFull) {
  const Zenvora::Test::SmallDisk disk(folder_, kSmall);
  LUMIDEX_DISK_OR_SKIP(disk);
  const std::string old(kSmall / 2, 'x');
  const ioPath photo = Make("a.jpg", old);
  const ioPath small = Make("b.jpg", "small");
  const UndoResult result = Edit({photo, small}, [&](const ioPath& file, const ioPath& staging) {
    WriteStaging(staging, file == photo ? std::string(kSmall, 'y') : "other");
  });
  EXPECT_EQ(result.files, 1U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].file, photo);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", old}, {"b.jpg", "other"}}));
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", old}, {"b.jpg", "small"}}));
}

TEST_F(UndoJournalTest, LosesNothingWhenTheJournalsDiskIsFull) {
  const ioPath place = tree_.MakeFolder("small");
  const Zenvora::Test::SmallDisk disk(place, 4 * kSmall);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath photo = Make("a.jpg", std::string(4 * kSmall, 'x'));
  UndoJournal journal(place / "catalogue.sqlite", *locker_);
  const UndoResult result = EditPhotos(
      journal.Edits(), *locker_, QStringLiteral("edit"), {photo},
      [](const ioPath&, const ioPath& staging) { WriteStaging(staging, "edited"); }, never_, nullptr);
  EXPECT_EQ(result.files, 0U);
  EXPECT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", std::string(4 * kSmall, 'x')}}));
  EXPECT_TRUE(journal.Steps().empty());
}

TEST_F(UndoJournalTest, KeepsPhotosOfAnotherVolume) {
  const Zenvora::Test::SmallDisk disk(folder_, kSmall);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath photo = Make("a.jpg", "old");
  const FileState before = QueryFile(photo);
  Edit({photo}, "edited");
  EXPECT_EQ(journal_->UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "old"}}));
  EXPECT_EQ(QueryFile(photo).modifiedNs, before.modifiedNs);
  EXPECT_EQ(journal_->RedoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(Folder(), (Files{{"a.jpg", "edited"}}));
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(UndoJournalTest, DoesNotWaitForThePartnerOfAPipe);
#else
TEST_F(UndoJournalTest, DoesNotWaitForThePartnerOfAPipe) {
  const ioPath pipe = Photo("a.jpg");
  ASSERT_EQ(mkfifo(pipe.native().c_str(), 0600), 0);
  const UndoResult result = Edit({pipe}, "edited");
  EXPECT_EQ(result.files, 0U);
  EXPECT_EQ(result.findings.size(), 1U);
  EXPECT_TRUE(std::filesystem::is_fifo(pipe.native()));
  EXPECT_EQ(KeptFiles(), 0U);
}

#endif

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(UndoJournalTest, GivesRightsBackWithAPhoto);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(UndoJournalTest, GivesRightsBackWithACopy);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(UndoJournalTest, GivesRightsBackWithSharedBlocks);
#else
/// What a photo has besides its content.
struct Rights {
  mode_t mode = 0640;
  uid_t owner = geteuid();
  gid_t group = getegid();
  std::string note;

  bool operator==(const Rights& other) const {
    return std::tie(mode, owner, group, note) == std::tie(other.mode, other.owner, other.group, other.note);
  }
};

std::ostream& operator<<(std::ostream& stream, const Rights& rights) {
  return stream << std::oct << rights.mode << std::dec << ' ' << rights.owner << ' ' << rights.group << ' '
                << rights.note;
}

Rights RightsOf(const ioPath& file) {
  struct stat facts = {};
  EXPECT_EQ(stat(file.native().c_str(), &facts), 0);
  std::string note(20, '\0');
  const ssize_t length = getxattr(file.native().c_str(), "user.note", note.data(), note.size());
  note.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
  return {facts.st_mode & 07777U, facts.st_uid, facts.st_gid, note};
}

/// As far as this user and the file system can. Returns what the file has then.
Rights Give(const ioPath& file, const Rights& wanted) {
  EXPECT_EQ(chown(file.native().c_str(), wanted.owner, wanted.group), 0);
  EXPECT_EQ(chmod(file.native().c_str(), wanted.mode), 0);
  static_cast<void>(setxattr(file.native().c_str(), "user.note", wanted.note.data(), wanted.note.size(), 0));
  return RightsOf(file);
}

/// Another one may read and write the edited photo, and there is no note of it.
void ExpectRightsGoAlong(UndoJournal& journal, IFileAccessLocker& locker, const ioPath& photo) {
  const std::atomic<bool> never{false};
  Rights wanted;
  wanted.note = "of my aunt";
  if (Zenvora::Test::IsSuperuser()) {
    wanted.owner = 1234;
    wanted.group = 2345;
  }
  const Rights before = Give(photo, wanted);
  EXPECT_EQ(before.mode, wanted.mode);
  EXPECT_EQ(before.owner, wanted.owner);
  Rights after;
  EditPhotos(
      journal.Edits(), locker, QStringLiteral("edit"), {photo},
      [&after](const ioPath&, const ioPath& staging) {
        std::ofstream(staging.native()) << "edited";
        Rights others;
        others.mode = 0604;
        after = Give(staging, others);
      },
      never, nullptr);
  ASSERT_EQ(RightsOf(photo), after);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(journal.UndoLast(never, nullptr).files, 1U);
    EXPECT_EQ(RightsOf(photo), before);
    EXPECT_EQ(journal.RedoLast(never, nullptr).files, 1U);
    EXPECT_EQ(RightsOf(photo), after);
  }
  if (before.note.empty()) {
    GTEST_SKIP() << "all but the notes was tested: this file system keeps none";
  }
}

TEST_F(UndoJournalTest, GivesRightsBackWithAPhoto) {
  ExpectRightsGoAlong(*journal_, *locker_, Make("a.jpg", "1"));
}

TEST_F(UndoJournalTest, GivesRightsBackWithACopy) {
  const ioPath photo = Make("a.jpg", "1");
  // With a second name a photo is copied, as on a file system without them.
  std::error_code error;
  std::filesystem::create_hard_link(photo.native(), Photo("same.jpg").native(), error);
  if (error) {
    GTEST_SKIP() << "no hard links can be made here";
  }
  ExpectRightsGoAlong(*journal_, *locker_, photo);
}

TEST_F(UndoJournalTest, GivesRightsBackWithSharedBlocks) {
  const ioPath place = tree_.MakeFolder("sharing");
  const Zenvora::Test::SharingDisk disk(place);
  if (!disk.Missing().empty()) {
    GTEST_SKIP() << disk.Missing();
  }
  const ioPath photo = place / "a.jpg";
  WriteBytes(photo, "1");
  const FileState before = QueryFile(photo);
  UndoJournal journal(place / "catalogue.sqlite", *locker_);
  ExpectRightsGoAlong(journal, *locker_, photo);
  EXPECT_EQ(journal.UndoLast(never_, nullptr).files, 1U);
  EXPECT_EQ(ReadFile(photo), "1");
  // It is not that very file, as it were by a second name.
  EXPECT_NE(QueryFile(photo).identity, before.identity);
  EXPECT_EQ(QueryFile(photo).modifiedNs, before.modifiedNs);
}
#endif

TEST(NeedsRecoveryOf, ACatalogueThatIsNotThereIsFalse) {
  const Zenvora::Test::TempTree tree;
  EXPECT_FALSE(NeedsRecovery(tree.Path("catalogue.sqlite")));
  EXPECT_FALSE(tree.Path("catalogue.sqlite").exists());
  EXPECT_FALSE(NeedsRecovery(tree.Write("no.sqlite", "no catalogue")));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
