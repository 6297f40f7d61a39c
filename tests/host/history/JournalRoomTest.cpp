#include "JournalFixture.h"

#include <host/journal/JournalRoom.h>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Zenvora::Test::ReadFile;

class JournalRoomTest : public Zenvora::Test::JournalTest {
 protected:
  JournalRoomTest() {
    Open();
    limits_.bytes = 1000;
  }

  /// A step that keeps so many bytes of a photo of its own.
  ioPath EditOf(const char* step, std::size_t bytes) {
    const ioPath photo = Make(std::string(step) + ".jpg", std::string(bytes, 'x'));
    Edit({photo}, "edited", QLatin1String(step));
    return photo;
  }

  JournalRoom RoomFor(std::size_t bytes) const {
    return PlanRoom(catalogue_, {Make("next.jpg", std::string(bytes, 'x'))}, ReadUndoSteps(catalogue_),
                    limits_);
  }

  UndoLimits limits_;
};

TEST_F(JournalRoomTest, IsThereWhereNothingWasDoneYet) {
  Close();
  const JournalRoom room = PlanRoom(tree_.Path("none.sqlite"), {Make("a", "12345"), Make("b", "67")},
                                    ReadUndoSteps(tree_.Path("none.sqlite")), limits_);
  EXPECT_EQ(room.needed, 7U);
  EXPECT_EQ(room.total, 7U);
  EXPECT_EQ(room.limit, 1000U);
  EXPECT_TRUE(room.Fits());
  EXPECT_THAT(room.forgotten, IsEmpty());
  EXPECT_FALSE(tree_.Path("none.sqlite").exists());
}

TEST_F(JournalRoomTest, NamesTheOldestThatHaveToGo) {
  EditOf("first", 300);
  EditOf("second", 300);
  EditOf("third", 300);
  EXPECT_THAT(NamesOf(RoomFor(100).forgotten), IsEmpty());
  EXPECT_THAT(NamesOf(RoomFor(101).forgotten), ElementsAre("first"));
  EXPECT_THAT(NamesOf(RoomFor(401).forgotten), ElementsAre("second", "first"));
  const JournalRoom all = RoomFor(1000);
  EXPECT_THAT(NamesOf(all.forgotten), ElementsAre("third", "second", "first"));
  EXPECT_TRUE(all.Fits());
  EXPECT_EQ(all.total, 1900U);
  EXPECT_FALSE(RoomFor(1001).Fits());
}

TEST_F(JournalRoomTest, TakesWhatWasDoneSinceALargeStepAlong) {
  EditOf("large", 900);
  EditOf("small", 50);
  // The large one stays only with all that is newer.
  EXPECT_THAT(NamesOf(RoomFor(500).forgotten), ElementsAre("large"));
  // One that keeps nothing goes when what is newer goes.
  Edit({Make("empty.jpg", "")}, "edited", QStringLiteral("empty"));
  EditOf("last", 600);
  EXPECT_THAT(NamesOf(RoomFor(500).forgotten), ElementsAre("last", "empty", "small", "large"));
}

TEST_F(JournalRoomTest, DoesNotCountWhatGoesAnyway) {
  EditOf("first", 600);
  EditOf("second", 300);
  Undo();
  EXPECT_THAT(NamesOf(RoomFor(400).forgotten), IsEmpty());
  EXPECT_THAT(NamesOf(RoomFor(401).forgotten), ElementsAre("first"));
}

TEST_F(JournalRoomTest, LetsGoOfWhatWasSkippedBeforeWhatCanBeTakenBack) {
  EditOf("first", 500);
  EditOf("skipped", 400);
  ASSERT_TRUE(journal_->SkipLast());
  EXPECT_THAT(RoomFor(500).forgotten, IsEmpty());
  EditOf("new", 500);
  EXPECT_EQ(journal_->Prune(limits_, {}), 0U);
  EXPECT_THAT(StepNames(), ElementsAre("new", "first"));
}

TEST_F(JournalRoomTest, ForgetsOnlyWhatWasAnnounced) {
  EditOf("first", 400);
  EditOf("second", 400);
  const std::vector<UndoStep> announced = RoomFor(300).forgotten;
  EXPECT_THAT(NamesOf(announced), ElementsAre("first"));
  // The photo grew meanwhile.
  EditOf("new", 900);
  EXPECT_EQ(journal_->Prune(limits_, announced), 1U);
  EXPECT_THAT(StepNames(), ElementsAre("new", "second"));
  EXPECT_EQ(journal_->Prune(limits_, {}), 0U);
  EXPECT_THAT(StepNames(), ElementsAre("new", "second"));
}

TEST_F(JournalRoomTest, ForgetsNothingForAStepThatCameToNothing) {
  EditOf("first", 900);
  const std::vector<UndoStep> announced = RoomFor(300).forgotten;
  ASSERT_THAT(NamesOf(announced), ElementsAre("first"));
  EXPECT_EQ(journal_->Prune(limits_, announced), 0U);
  EXPECT_THAT(StepNames(), ElementsAre("first"));
}

TEST_F(JournalRoomTest, NeverForgetsTheStepJustMade) {
  limits_.bytes = 10;
  const ioPath photo = EditOf("new", 900);
  EXPECT_EQ(journal_->Prune(limits_, {}), 0U);
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(ReadFile(photo), std::string(900, 'x'));
}

TEST_F(JournalRoomTest, StaysWithinTheLimitWhenVersionsAreExchanged) {
  // Of a change one version is kept: of what was taken back, the other one, which may be larger.
  const ioPath photo = Make("a.jpg", std::string(900, 'x'));
  Edit({photo}, std::string(1100, 'y'));
  ASSERT_EQ(Undo().files, 1U);
  ASSERT_EQ(journal_->Steps()[0].keptBytes, 1100U);
  EXPECT_EQ(journal_->Prune(limits_, {}), 0U);
  EXPECT_EQ(Redo().files, 1U);
  EXPECT_EQ(ReadFile(photo), std::string(1100, 'y'));
  EXPECT_EQ(Undo().files, 1U);
}

TEST_F(JournalRoomTest, KeepsNothingOfAStepThatIsNotToBeTakenBack) {
  const ioPath photo = EditOf("first", 900);
  journal_->KeepOriginals(false);
  EXPECT_EQ(Edit({photo}, "for good", QStringLiteral("last")).files, 1U);
  journal_->KeepOriginals(true);
  EXPECT_EQ(ReadFile(photo), "for good");
  EXPECT_EQ(Kept().size(), 1U);
  const std::vector<UndoStep> steps = journal_->Steps();
  ASSERT_THAT(NamesOf(steps), ElementsAre("last", "first"));
  EXPECT_TRUE(steps[0].givenUp);
  EXPECT_EQ(steps[0].files, 1U);
  EXPECT_EQ(steps[0].keptBytes, 0U);
  // What was done before finds a photo that others changed.
  EXPECT_EQ(Undo().findings.size(), 1U);
  EXPECT_EQ(ReadFile(photo), "for good");
}

TEST_F(JournalRoomTest, SettlesAStepWithoutOriginalsThatWasBrokenOff) {
  const ioPath photo = Make("a.jpg", "old");
  journal_->KeepOriginals(false);
  journal_->BeginStep(QStringLiteral("edit"));
  const ioPath staging = journal_->Edits().PlanEdit(photo);
  std::ofstream(staging.for_system()) << "new";
  DataModel item;
  item.SetPath(photo);
  journal_->RegisterFileChange(item, photo);
  Close();
  // As if the process had been killed before the photo was replaced, and once more after it.
  for (const std::string content : {"old", "new"}) {
    tree_.Write("photos/a.jpg", content);
    Open();
    EXPECT_EQ(ReadFile(photo), content);
    EXPECT_FALSE(staging.exists());
  }
}

TEST_F(JournalRoomTest, IsReadFromACatalogueOfAFormerVersion) {
  EditOf("first", 900);
  Close();
  Zenvora::Test::RunSql(catalogue_,
                        {"ALTER TABLE steps DROP COLUMN kind", "ALTER TABLE steps DROP COLUMN day",
                         "DROP TABLE days_of_use", "PRAGMA user_version = 5"});
  EXPECT_THAT(NamesOf(RoomFor(300).forgotten), ElementsAre("first"));
  EXPECT_THAT(NamesOf(ReadUndoSteps(catalogue_)), ElementsAre("first"));
  EXPECT_EQ(Zenvora::Test::RunSql(catalogue_, {"PRAGMA user_version"}).toInt(), 5);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
