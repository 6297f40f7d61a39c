#include "JournalFixture.h"

namespace Zenvora::Lumidex::Host {
namespace {

using Zenvora::Test::ReadFile;

using KeptOriginal = Zenvora::Test::JournalTest;

TEST_F(KeptOriginal, DoesNotPutBackWhatOthersMadeOfAnOriginal) {
  Open();
  const ioPath photo = Make("a.jpg", "old");
  Edit({photo}, "new");
  std::ofstream((keptFolder_ / "1-before.jpg").for_system()) << "damaged";
  const UndoResult result = Undo();
  EXPECT_EQ(result.files, 0U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_THAT(result.findings[0].cause, testing::HasSubstr("1-before.jpg, where its other version was kept"));
  EXPECT_TRUE(result.stands);
  EXPECT_EQ(ReadFile(photo), "new");
}

TEST_F(KeptOriginal, PromisesNoOriginalThatWasNotKept) {
  Open();
  const ioPath photo = Make("a.jpg", "old");
  journal_->KeepOriginals(false);
  journal_->BeginStep(QStringLiteral("edit"));
  const ioPath staging = journal_->Edits().PlanEdit(photo);
  std::ofstream(staging.for_system()) << "new";
  DataModel item;
  item.SetPath(photo);
  journal_->RegisterFileChange(item, photo);
  Close();
  // Others took it away right then.
  photo.remove();
  Open();
  ASSERT_FALSE(journal_->RecoveryNotes().empty());
  EXPECT_THAT(journal_->RecoveryNotes()[0], testing::Not(testing::HasSubstr("original is kept")));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
