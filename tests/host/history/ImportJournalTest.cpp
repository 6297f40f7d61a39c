#include "FolderTrash.h"
#include "ImportFixture.h"
#include "ImportManifest.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/base/ProcessLock.h>
#include <host/history/UndoJournal.h>
#include <host/import/ImportSteps.h>
#include <support/LeftOut.h>
#include <support/SmallDisk.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/RefCountImpl.h>
#include <zenvora/tavolin/Trash.h>

#include <atomic>
#include <chrono>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Zenvora::Test::FolderTrash;
using Zenvora::Test::ReadFile;

class ImportJournal : public ImportTest {
 protected:
  /// A new journal of the catalogue: what is under way is recovered.
  UndoJournal& Open() {
    journal_.reset();
    CloseCatalogue();
    journal_ = std::make_unique<UndoJournal>(File(), *locker_, trash_);
    return *journal_;
  }
  UndoResult Undo() { return Open().UndoLast(never_, nullptr); }
  UndoResult Redo() { return Open().RedoLast(never_, nullptr); }

  ioPath File() const { return tree.Path("data/catalogue.sqlite"); }
  ImportResult Import() { return Carry(PlanTo({Card()})); }

  /// Files in the trash, without their notes.
  std::size_t InTrash() const {
    const std::vector<std::string> names = NamesIn(bin_);
    return static_cast<std::size_t>(std::count_if(names.begin(), names.end(), [](const std::string& name) {
      return name.find(".note") == std::string::npos;
    }));
  }
  std::vector<std::string> InCatalogue() {
    std::vector<std::string> names;
    for (const PhotoRecord& photo : Stored().Photos()) {
      names.push_back(photo.path.filename().utf8string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string IdOf(const std::string& name) {
    for (const PhotoRecord& photo : Stored().Photos()) {
      if (photo.path.filename() == ioPath(name)) {
        return photo.id.toStdString();
      }
    }
    return {};
  }
  static std::vector<std::string> CausesOf(const UndoResult& result) {
    std::vector<std::string> causes;
    for (const FileFinding& finding : result.findings) {
      causes.push_back(finding.cause);
    }
    return causes;
  }

  const ioPath bin_ = tree.MakeFolder("trash");
  FolderTrash trash_{bin_};
  const boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
  const std::atomic<bool> never_{false};
  std::unique_ptr<UndoJournal> journal_;
};

TEST_F(ImportJournal, TakesTheCopiesBackAndBringsThemAgain) {
  MakePhotos("card", 3);
  tree.Write("card/IMG_1000.xmp", "settings");
  ASSERT_EQ(Import().copied, 4U);
  const auto names = NamesIn(Copies());
  const std::string bytes = ReadFile(Copies() / "IMG_1001.JPG");
  const std::string id = IdOf("IMG_1001.JPG");

  const std::vector<UndoStep> steps = Open().Steps();
  ASSERT_THAT(steps, SizeIs(1));
  EXPECT_EQ(steps[0].type, StepType::Import);
  EXPECT_EQ(steps[0].files, 4U);
  EXPECT_EQ(steps[0].name.toStdString(), "import 4 files to " + Copies().utf8string());

  const UndoResult undone = Undo();
  EXPECT_EQ(undone.type, StepType::Import);
  EXPECT_EQ(undone.files, 4U);
  EXPECT_EQ(undone.lastCopies, 0U);
  EXPECT_THAT(CausesOf(undone), IsEmpty());
  EXPECT_THAT(NamesIn(Copies()), IsEmpty());
  EXPECT_EQ(InTrash(), 4U);
  EXPECT_THAT(InCatalogue(), IsEmpty());
  EXPECT_THAT(NamesIn(Card()), SizeIs(4)) << "sources are only read";

  const UndoResult redone = Redo();
  EXPECT_EQ(redone.files, 4U);
  EXPECT_EQ(NamesIn(Copies()), names);
  EXPECT_EQ(ReadFile(Copies() / "IMG_1001.JPG"), bytes);
  EXPECT_EQ(IdOf("IMG_1001.JPG"), id);
  EXPECT_THAT(NamesIn(bin_), IsEmpty());

  EXPECT_EQ(Undo().files, 4U);
  EXPECT_EQ(InTrash(), 4U);
}

TEST_F(ImportJournal, CopiesAllAgainAfterUndo) {
  MakePhotos("card", 3);
  Import();
  Undo();
  const ImportResult again = Import();
  EXPECT_EQ(again.copied, 3U) << "the list of copies has them, but they are not there";
  EXPECT_THAT(NamesIn(Copies()), SizeIs(3));
  EXPECT_THAT(InCatalogue(), SizeIs(3));
  EXPECT_EQ(Redo().files, 0U) << "something new was done";
  EXPECT_EQ(Undo().files, 3U);
}

TEST_F(ImportJournal, LeavesWhatWasChangedSince) {
  MakePhotos("card", 3);
  tree.Write("card/IMG_1000.xmp", "settings of a changed photo");
  // Not every system's library sets times finer than that.
  const auto card = tree.Path("card/IMG_1001.JPG").for_system();
  std::filesystem::last_write_time(
      card, std::chrono::floor<std::chrono::seconds>(std::filesystem::last_write_time(card)));
  Import();
  std::ofstream(tree.Path("copies/IMG_1000.JPG").for_system(), std::ios::binary | std::ios::app) << "more";
  const std::int64_t time = QueryFile(tree.Path("copies/IMG_1001.JPG")).modifiedNs;
  std::string other = ReadFile(tree.Path("copies/IMG_1001.JPG"));
  other[other.size() / 2] ^= 1;
  tree.Write("copies/IMG_1001.JPG", other);
  std::filesystem::last_write_time(tree.Path("copies/IMG_1001.JPG").for_system(),
                                   std::filesystem::last_write_time(card));
  EXPECT_EQ(QueryFile(tree.Path("copies/IMG_1001.JPG")).modifiedNs, time) << "by its bytes alone";

  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 1U);
  EXPECT_THAT(CausesOf(undone), testing::UnorderedElementsAre(HasSubstr("IMG_1000.JPG was changed later"),
                                                              HasSubstr("IMG_1001.JPG was changed later"),
                                                              HasSubstr("IMG_1000.xmp was kept")));
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("IMG_1000.JPG", "IMG_1000.xmp", "IMG_1001.JPG"));
  EXPECT_THAT(InCatalogue(), ElementsAre("IMG_1000.JPG", "IMG_1001.JPG"));
  EXPECT_FALSE(undone.stands) << "what others changed is theirs, and older steps need not wait";
  EXPECT_EQ(Redo().files, 1U);
  EXPECT_THAT(NamesIn(Copies()), SizeIs(4));
}

TEST_F(ImportJournal, AnotherTimeAloneIsNoChange) {
  MakePhotos("card", 1);
  Import();
  std::filesystem::last_write_time(tree.Path("copies/IMG_1000.JPG").for_system(),
                                   std::filesystem::file_time_type{});
  EXPECT_EQ(Undo().files, 1U);
}

TEST_F(ImportJournal, TellsOfCopiesWhoseSourcesAreGone) {
  const auto photos = MakePhotos("card", 3);
  Import();
  photos[0].remove();
  photos[2].remove();
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 3U);
  EXPECT_EQ(undone.lastCopies, 2U);
}

TEST_F(ImportJournal, TellsOfCopiesWhoseSourcesAreOtherFilesByNow) {
  const auto photos = MakePhotos("card", 2);
  Import();
  std::string other = ReadFile(photos[0]);
  other.back() = static_cast<char>(other.back() ^ 1);
  tree.Write("card/IMG_1000.JPG", other);
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 2U);
  EXPECT_EQ(undone.lastCopies, 1U) << "a size alone says nothing";
}

TEST_F(ImportJournal, WhereThereIsNoTrashCopiesStay) {
  MakePhotos("card", 2);
  Import();
  trash_.noteError = std::make_error_code(std::errc::read_only_file_system);
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 0U);
  EXPECT_THAT(CausesOf(undone), SizeIs(2));
  EXPECT_TRUE(undone.stands);
  EXPECT_THAT(NamesIn(Copies()), SizeIs(2));
  EXPECT_THAT(InCatalogue(), SizeIs(2));
  trash_.noteError = {};
  EXPECT_EQ(Undo().files, 2U);
}

TEST_F(ImportJournal, EachRunIsAStepOfItsOwn) {
  MakePhotos("card", 2);
  Import();
  MakePhotos("card", 5);
  ASSERT_EQ(Import().copied, 3U);
  EXPECT_EQ(Undo().files, 3U);
  EXPECT_THAT(NamesIn(Copies()), ElementsAre("IMG_1000.JPG", "IMG_1001.JPG"));
  EXPECT_EQ(Undo().files, 2U);
  EXPECT_THAT(NamesIn(Copies()), IsEmpty());
  EXPECT_EQ(Redo().files, 2U);
  EXPECT_EQ(Redo().files, 3U);
  EXPECT_THAT(NamesIn(Copies()), SizeIs(5));
}

TEST_F(ImportJournal, WithoutACopyThereIsNoStep) {
  MakePhotos("card", 2);
  Import();
  EXPECT_EQ(Import().step, 0);
  const ImportResult taken = Carry(Plan({tree.Path("card")}));
  EXPECT_EQ(taken.step, 0) << "what is taken in where it lies is no step";
  EXPECT_THAT(Open().Steps(), SizeIs(1));
}

TEST_F(ImportJournal, WhatGotNoNameIsInNoStep) {
  MakePhotos("card", 3);
  const ImportPlan plan = PlanTo({Card()});
  tree.Write("copies/IMG_1001.JPG", "somebody was faster");
  ASSERT_EQ(Carry(plan).copied, 2U);
  EXPECT_EQ(Open().Steps().at(0).files, 2U);
  EXPECT_THAT(CausesOf(Undo()), IsEmpty());
  EXPECT_EQ(ReadFile(Copies() / "IMG_1001.JPG"), "somebody was faster");
}

/// Rows of an import that ended before its copies got their names.
TEST_F(ImportJournal, RecoversAnImportThatWasBrokenOff) {
  MakePhotos("card", 3);
  Import();
  Undo();
  Redo();
  journal_.reset();
  {
    const CatalogueDatabase database(File(), CatalogueDatabase::Access::ReadWrite, 1000);
    const ImportRows rows(database);
    const ioPath real = tree.Write("copies/new.jpg", "new");
    const FileState state = QueryFile(real);
    const std::string digest(64, 'a');
    rows.Note(0, Copies(),
              {{real, tree.Path("card/new.jpg"), state.size, state.modifiedNs, digest},
               {Copies() / "never.jpg", tree.Path("card/never.jpg"), 9, 9, digest}});
  }
  EXPECT_TRUE(NeedsRecovery(File()));
  {
    ProcessLock lock;
    ASSERT_FALSE(lock.Take(ImportFolder(Copies()) / "lock"));
    EXPECT_THAT(Open().RecoveryNotes(), IsEmpty()) << "that import is still at work";
    EXPECT_TRUE(journal_->Steps().at(0).underWay);
    UndoLimits none;
    none.days = 0;
    none.bytes = 0;
    journal_->Prune(none);
    EXPECT_THAT(journal_->Steps(), SizeIs(testing::Ge(1U))) << "nor is it forgotten";
  }
  EXPECT_THAT(Open().RecoveryNotes(), ElementsAre(HasSubstr("Copies made: 1")));
  const UndoStep step = journal_->Steps().at(0);
  EXPECT_EQ(step.files, 1U);
  EXPECT_FALSE(step.underWay);
  EXPECT_FALSE(NeedsRecovery(File()));
}

TEST_F(ImportJournal, WaitsForAnImportAtWorkInTheFolder) {
  MakePhotos("card", 2);
  Import();
  ProcessLock lock;
  ASSERT_FALSE(lock.Take(ImportFolder(Copies()) / "lock"));
  EXPECT_THROW(Undo(), HostError);
  EXPECT_THAT(NamesIn(Copies()), SizeIs(2));
}

TEST_F(ImportJournal, NothingIsCopiedThatCannotBeNoted) {
  Zenvora::Test::SmallDisk disk(tree.MakeFolder("data"), std::size_t{4} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  MakePhotos("card", 3);
  const ImportPlan plan = PlanTo({Card()});
  // Others take the room once it has begun.
  const ImportResult result = RunImport(plan, Stored(), {}, [&disk](const ImportProgress&) { disk.Fill(); });
  EXPECT_THAT(result.stopped, HasSubstr("catalogue"));
  EXPECT_EQ(result.copied, 0U);
  EXPECT_THAT(result.missing, SizeIs(3));
  EXPECT_THAT(NamesIn(Copies()), IsEmpty());
  EXPECT_THAT(PartsIn(Copies()), IsEmpty());
  disk.Clear();
  EXPECT_EQ(Import().copied, 3U);
  EXPECT_EQ(Undo().files, 3U);
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportJournal, UndoSurvivesKills);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportJournal, UndoNeedsNoRoomWhereTheCopiesLie);

#else

TEST_F(ImportJournal, UndoSurvivesKills) {
  MakePhotos("card", 3);
  tree.Write("card/IMG_1000.xmp", "settings");
  Import();
  const auto all = NamesIn(Copies());
  bool redo = false;
  int kills = 0;
  for (int event = 1;; ++event) {
    journal_.reset();
    CloseCatalogue();
    const pid_t child = fork();
    if (child == 0) {
      int left = event;
      trash_.onEvent = [&left] {
        if (--left == 0) {
          _exit(9);
        }
      };
      {
        UndoJournal journal(File(), *locker_, trash_);
        redo ? journal.RedoLast(never_, nullptr) : journal.UndoLast(never_, nullptr);
      }
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    const bool killed = WIFEXITED(status) && WEXITSTATUS(status) == 9;
    kills += killed ? 1 : 0;
    ASSERT_EQ(NamesIn(Copies()).size() + InTrash(), 4U) << "event " << event;
    // Recovery goes on to the end.
    Open();
    EXPECT_EQ(NamesIn(Copies()).size(), redo ? 4U : 0U) << "event " << event;
    EXPECT_EQ(InTrash(), redo ? 0U : 4U) << "event " << event;
    EXPECT_THAT(InCatalogue(), SizeIs(redo ? 3 : 0)) << "event " << event;
    if (!killed && redo) {
      break;
    }
    if (!killed) {
      redo = true;
      event = 0;
    } else {
      redo ? Undo() : Redo();
      ASSERT_EQ(NamesIn(Copies()).size(), redo ? 0U : 4U) << "event " << event;
    }
  }
  EXPECT_GT(kills, 10);
}

TEST_F(ImportJournal, UndoNeedsNoRoomWhereTheCopiesLie) {
  const Zenvora::Test::SmallDisk disk(tree.MakeFolder("disk"), std::size_t{4} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  MakePhotos("card", 3);
  Carry(PlanTo({Card()}, tree.Path("disk/copies")));
  {
    std::ofstream filler(tree.Path("disk/filler").native(), std::ios::binary);
    filler << std::string(std::size_t{8} << 20U, 'f');
  }
  // The trash of that volume; its notes need room, so some may be refused: then copies stay.
  journal_.reset();
  CloseCatalogue();
  UndoJournal journal(File(), *locker_);
  const UndoResult undone = journal.UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files + undone.findings.size(), 3U);
  EXPECT_EQ(NamesIn(tree.Path("disk/copies")).size(), undone.findings.size());
  tree.Path("disk/filler").remove();
  const UndoResult rest = journal.UndoLast(never_, nullptr);
  EXPECT_EQ(undone.files + rest.files, 3U);
  EXPECT_THAT(NamesIn(tree.Path("disk/copies")), IsEmpty());
}

#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
