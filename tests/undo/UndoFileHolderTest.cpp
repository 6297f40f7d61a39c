#include <LumidexUtil/FileAccessLocker.h>
#include <LumidexUtil/Rename.h>
#include <LumidexUtil/UndoFileHolder.h>
#include <support/Doubles.h>
#include <support/FileHolder.h>
#include <support/LogCapture.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace Zenvora::Lumidex {
namespace {

using Zenvora::Test::ReadFile;

class UndoFileHolderTest : public ::testing::Test {
 protected:
  UndoFileHolderTest() {
    item_.SetPath(photo_);
    item_.SetSize(3);
  }

  UndoFileHolder Hold(bool adopt = false) { return {&undo_, locker_, item_, staging_, adopt}; }

  const Zenvora::Test::TempTree tree_;
  const std::shared_ptr<Zenvora::Test::FakeClock> clock_ = std::make_shared<Zenvora::Test::FakeClock>();
  const App::ServiceScope<App::IClock> scope_{clock_};
  const ioPath photo_ = tree_.Write("photo.jpg", "old");
  const ioPath staging_ = tree_.Write(".staging.jpg", "edited");
  DataModel item_{QStringLiteral("photo"), QStringLiteral("id"), ItemType::Photo};
  Zenvora::Test::FakeLocker locker_;
  Zenvora::Test::FakeUndo undo_;
};

TEST_F(UndoFileHolderTest, DeletesAnAbandonedFile) {
  {
    const UndoFileHolder holder = Hold();
    EXPECT_FALSE(holder.IsEmpty());
  }
  EXPECT_FALSE(staging_.exists());
  EXPECT_EQ(ReadFile(photo_), "old");
  // Not a rename: nobody is kept out.
  EXPECT_TRUE(locker_.calls.empty());
}

TEST_F(UndoFileHolderTest, DeletesAnAbandonedFileThatWasToBeAdopted) {
  { const UndoFileHolder holder = Hold(true); }
  EXPECT_FALSE(staging_.exists());
}

TEST_F(UndoFileHolderTest, BearsThatAnAbandonedFileIsGone) {
  {
    const UndoFileHolder holder = Hold();
    staging_.remove();
  }
  EXPECT_EQ(ReadFile(photo_), "old");
}

TEST_F(UndoFileHolderTest, BearsThatAnAbandonedFileCannotBeDeleted) {
  const ioPath folder = tree_.MakeFolder("folder");
  tree_.Write("folder/inside", "x");
  { const UndoFileHolder holder(&undo_, locker_, item_, folder, false); }
  EXPECT_EQ(ReadFile(tree_.Path("folder/inside")), "x");
}

TEST_F(UndoFileHolderTest, LeavesTheFileToItsCallerWhenCleared) {
  {
    UndoFileHolder holder = Hold();
    holder.Clear();
    EXPECT_TRUE(holder.IsEmpty());
    EXPECT_TRUE(staging_.exists());
  }
  EXPECT_TRUE(staging_.exists());
}

TEST_F(UndoFileHolderTest, IsEmptyWithoutAPath) {
  const UndoFileHolder holder(&undo_, locker_, item_, ioPath(), false);
  EXPECT_TRUE(holder.IsEmpty());
}

TEST_F(UndoFileHolderTest, PutsTheFileInPlace) {
  {
    UndoFileHolder holder = Hold();
    holder.Process();
    EXPECT_TRUE(holder.IsEmpty());
  }
  EXPECT_EQ(ReadFile(photo_), "edited");
  EXPECT_FALSE(staging_.exists());
  EXPECT_EQ(locker_.calls,
            (std::vector<std::string>{"lock " + staging_.utf8string(), "unlock " + staging_.utf8string()}));
}

TEST_F(UndoFileHolderTest, TellsOfTheChangeBeforeItHappens) {
  undo_.onChange = [&](DataModel& item, const ioPath& newPath) {
    EXPECT_EQ(item.GetId(), QStringLiteral("id"));
    EXPECT_EQ(item.GetPath(), photo_);
    EXPECT_EQ(item.GetSize(), 3U);
    EXPECT_EQ(newPath, photo_);
    EXPECT_EQ(ReadFile(photo_), "old");
    EXPECT_EQ(ReadFile(staging_), "edited");
    EXPECT_TRUE(locker_.calls.empty());
  };
  UndoFileHolder holder = Hold();
  EXPECT_TRUE(undo_.changes.empty());
  holder.Process();
  EXPECT_EQ(undo_.changes.size(), 1U);
}

TEST_F(UndoFileHolderTest, AdoptsTheFileWhereItLies) {
  DataModel* shown = nullptr;
  undo_.onChange = [&](DataModel& item, const ioPath& newPath) {
    EXPECT_EQ(item.GetPath(), photo_);
    EXPECT_EQ(newPath, staging_);
    shown = &item;
  };
  UndoFileHolder holder = Hold(true);
  holder.Process();
  EXPECT_TRUE(holder.IsEmpty());
  EXPECT_EQ(ReadFile(photo_), "old");
  EXPECT_EQ(ReadFile(staging_), "edited");
  EXPECT_TRUE(locker_.calls.empty());
  // The item still belongs to the holder.
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->GetPath(), staging_);
  EXPECT_EQ(shown->GetSize(), 6U);
}

TEST_F(UndoFileHolderTest, LeavesAnAdoptedFileAtItsEnd) {
  { Hold(true).Process(); }
  EXPECT_EQ(ReadFile(staging_), "edited");
}

TEST_F(UndoFileHolderTest, GivesTheItemTheSizeOfItsNewFile) {
  DataModel* shown = nullptr;
  undo_.onChange = [&](DataModel& item, const ioPath&) { shown = &item; };
  UndoFileHolder holder = Hold();
  holder.Process();
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->GetPath(), photo_);
  EXPECT_EQ(shown->GetSize(), 6U);
}

TEST_F(UndoFileHolderTest, CountsNothingWhereTheAdoptedFileIsMissing) {
  DataModel* shown = nullptr;
  undo_.onChange = [&](DataModel& item, const ioPath&) { shown = &item; };
  UndoFileHolder holder = Hold(true);
  staging_.remove();
  holder.Process();
  EXPECT_EQ(shown->GetSize(), 0U);
}

TEST_F(UndoFileHolderTest, WorksOnACopyOfTheItem) {
  UndoFileHolder holder = Hold();
  item_.SetPath(tree_.Path("elsewhere.jpg"));
  holder.Process();
  EXPECT_EQ(ReadFile(photo_), "edited");
  EXPECT_EQ(item_.GetSize(), 3U);
}

TEST_F(UndoFileHolderTest, NeedsNoUndoReceiver) {
  for (const bool adopt : {true, false}) {
    UndoFileHolder holder(nullptr, locker_, item_, staging_, adopt);
    holder.Process();
    EXPECT_TRUE(holder.IsEmpty());
    EXPECT_EQ(staging_.exists(), adopt);
  }
  EXPECT_EQ(ReadFile(photo_), "edited");
}

TEST_F(UndoFileHolderTest, ChangesNothingWhenTheReceiverThrows) {
  undo_.onChange = [](DataModel&, const ioPath&) { throw std::runtime_error("no room for the original"); };
  {
    UndoFileHolder holder = Hold();
    EXPECT_THROW(holder.Process(), std::runtime_error);
    EXPECT_FALSE(holder.IsEmpty());
    EXPECT_EQ(ReadFile(photo_), "old");
    EXPECT_EQ(ReadFile(staging_), "edited");
    EXPECT_TRUE(locker_.calls.empty());
  }
  EXPECT_FALSE(staging_.exists());
}

TEST_F(UndoFileHolderTest, StillHoldsTheFileWhenItCannotBeMoved) {
  item_.SetPath(tree_.Path("missing/photo.jpg"));
  {
    UndoFileHolder holder = Hold();
    EXPECT_THROW(holder.Process(), Util::ExceptionRename);
    EXPECT_EQ(undo_.changes.size(), 1U);
    EXPECT_FALSE(holder.IsEmpty());
    EXPECT_EQ(ReadFile(staging_), "edited");
    EXPECT_TRUE(locker_.held.empty());
  }
  EXPECT_FALSE(staging_.exists());
  EXPECT_EQ(ReadFile(photo_), "old");
}

TEST_F(UndoFileHolderTest, CanBeProcessedAgainAfterAFailure) {
  item_.SetPath(tree_.Path("later/photo.jpg"));
  UndoFileHolder holder = Hold();
  EXPECT_THROW(holder.Process(), Util::ExceptionRename);
  tree_.MakeFolder("later");
  holder.Process();
  EXPECT_EQ(ReadFile(tree_.Path("later/photo.jpg")), "edited");
}

TEST_F(UndoFileHolderTest, HandsEverythingOverWhenMoved) {
  std::optional<UndoFileHolder> source(Hold());
  UndoFileHolder target(std::move(*source));
  EXPECT_TRUE(source->IsEmpty());
  source.reset();
  EXPECT_TRUE(staging_.exists());
  EXPECT_FALSE(target.IsEmpty());
  target.Process();
  EXPECT_EQ(undo_.changes.size(), 1U);
  EXPECT_EQ(ReadFile(photo_), "edited");
}

TEST_F(UndoFileHolderTest, KeepsItsWayOfWorkingWhenMoved) {
  UndoFileHolder source = Hold(true);
  UndoFileHolder target(std::move(source));
  target.Process();
  EXPECT_EQ(ReadFile(photo_), "old");
  EXPECT_TRUE(staging_.exists());
}

TEST_F(UndoFileHolderTest, TakesItemPathAndWayByAssignmentButKeepsItsPartners) {
  const ioPath other = tree_.Write(".other.jpg", "other");
  Zenvora::Test::FakeLocker locker;
  Zenvora::Test::FakeUndo undo;
  DataModel item(QStringLiteral("second"), QStringLiteral("second"), ItemType::Photo);
  item.SetPath(tree_.Write("second.jpg", "second"));
  {
    UndoFileHolder target(&undo, locker, item, other, true);
    {
      UndoFileHolder source = Hold(false);
      target = std::move(source);
      EXPECT_TRUE(source.IsEmpty());
    }
    // What it held before is nobody's business now.
    EXPECT_EQ(ReadFile(other), "other");
    EXPECT_EQ(ReadFile(staging_), "edited");
    target.Process();
  }
  EXPECT_EQ(ReadFile(photo_), "edited");
  EXPECT_EQ(ReadFile(other), "other");
  EXPECT_EQ(undo.changes.size(), 1U);
  EXPECT_TRUE(undo_.changes.empty());
  EXPECT_EQ(locker.calls.size(), 2U);
  EXPECT_TRUE(locker_.calls.empty());
}

TEST_F(UndoFileHolderTest, BearsAssignmentToItself) {
  UndoFileHolder holder = Hold();
  UndoFileHolder& same = holder;
  holder = std::move(same);
  EXPECT_FALSE(holder.IsEmpty());
  holder.Process();
  EXPECT_EQ(ReadFile(photo_), "edited");
}

TEST_F(UndoFileHolderTest, CanBeFilledAgain) {
  UndoFileHolder holder = Hold();
  holder.Process();
  const ioPath next = tree_.Write(".next.jpg", "next");
  holder = UndoFileHolder(nullptr, locker_, item_, next, false);
  EXPECT_FALSE(holder.IsEmpty());
  holder.Process();
  EXPECT_EQ(ReadFile(photo_), "next");
}

TEST_F(UndoFileHolderTest, SpellsThePathInTheOneWay) {
  const ioPath spelled(tree_.Path().utf8string() + "//./.staging.jpg");
  undo_.onChange = [&](DataModel&, const ioPath& newPath) {
    EXPECT_EQ(newPath.native().native(), staging_.native().native());
  };
  UndoFileHolder holder(&undo_, locker_, item_, spelled, true);
  holder.Process();
  EXPECT_EQ(undo_.changes.size(), 1U);
}

TEST_F(UndoFileHolderTest, WorksWithTheRealLocker) {
  const auto locker = FileAccessLocker::Create();
  UndoFileHolder holder(&undo_, *locker, item_, staging_, false);
  holder.Process();
  EXPECT_EQ(ReadFile(photo_), "edited");
}

TEST(UndoFileHolder, MovesAndDoesNotCopy) {
  EXPECT_FALSE(std::is_copy_constructible_v<UndoFileHolder>);
  EXPECT_FALSE(std::is_copy_assignable_v<UndoFileHolder>);
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<UndoFileHolder>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<UndoFileHolder>);
  EXPECT_TRUE(std::is_nothrow_destructible_v<UndoFileHolder>);
}

#ifdef _WIN32
TEST_F(UndoFileHolderTest, WaitsForWhoeverKeepsThePhotoOpen) {
  const auto viewer = Zenvora::Test::HoldInAProcess(photo_);
  clock_->onSleep = [&](std::size_t number) {
    if (number == 2) {
      viewer->LetGo();
    }
  };
  UndoFileHolder holder = Hold();
  holder.Process();
  EXPECT_EQ(clock_->sleeps.size(), 2U);
  EXPECT_EQ(ReadFile(photo_), "edited");
}

TEST_F(UndoFileHolderTest, DeletesNothingThatIsHeldOpenAndDoesNotThrow) {
  const auto viewer = Zenvora::Test::HoldInAThread(staging_);
  { const UndoFileHolder holder = Hold(); }
  viewer->LetGo();
  EXPECT_EQ(ReadFile(staging_), "edited");
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex
