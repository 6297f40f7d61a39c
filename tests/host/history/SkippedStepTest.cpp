#include "JournalFixture.h"

#include <host/rename/RenamePlan.h>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SkippedStepTest : public Zenvora::Test::JournalTest {
 protected:
  SkippedStepTest() { Open(); }

  void Rename(const ioPath& from, const ioPath& to) {
    RenamePlan plan;
    plan.steps = {{from, to}};
    plan.renames = plan.steps;
    journal_->Renames().Run(QStringLiteral("rename"), plan, never_, nullptr);
  }
  std::vector<BlockedStep> Skip() {
    const auto skipped = journal_->SkipLast();
    return skipped ? skipped->blocked : std::vector<BlockedStep>();
  }
};

TEST_F(SkippedStepTest, TellsWhatItChangedSince) {
  const ioPath a = Make("a.jpg", "1");
  const ioPath b = Make("b.jpg", "1");
  Edit({a, b}, "2", QStringLiteral("older"));
  Edit({a}, "3", QStringLiteral("last"));
  const std::vector<BlockedStep> blocked = Skip();
  ASSERT_EQ(blocked.size(), 1U);
  EXPECT_EQ(blocked[0].step.name, QStringLiteral("older"));
  EXPECT_THAT(blocked[0].files, ElementsAre(a));
  // And it is true.
  const UndoResult result = Undo();
  EXPECT_EQ(result.files, 1U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].file, a);
}

TEST_F(SkippedStepTest, SaysNothingOfOtherPhotos) {
  Edit({Make("a.jpg", "1")}, "2");
  Edit({Make("b.jpg", "1")}, "2");
  EXPECT_THAT(Skip(), IsEmpty());
  EXPECT_TRUE(Undo().findings.empty());
}

TEST_F(SkippedStepTest, TellsWhatItRenamedSince) {
  const ioPath a = Make("a.jpg", "1");
  const ioPath x = tree_.Path("photos/x.jpg");
  Edit({a}, "2", QStringLiteral("older"));
  Rename(a, x);
  const std::vector<BlockedStep> blocked = Skip();
  ASSERT_EQ(blocked.size(), 1U);
  EXPECT_THAT(blocked[0].files, ElementsAre(a));
  EXPECT_EQ(Undo().files, 0U);
}

TEST_F(SkippedStepTest, LeavesOlderRenamesOfWhatItEdited) {
  const ioPath a = Make("a.jpg", "1");
  const ioPath x = tree_.Path("photos/x.jpg");
  Rename(a, x);
  Edit({x}, "2");
  EXPECT_THAT(Skip(), IsEmpty());
  EXPECT_EQ(Undo().files, 1U);
  EXPECT_EQ(Zenvora::Test::ReadFile(a), "2");
}

TEST_F(SkippedStepTest, TellsOfRenamesBothOfOnePhoto) {
  const ioPath a = Make("a.jpg", "1");
  const ioPath x = tree_.Path("photos/x.jpg");
  const ioPath y = tree_.Path("photos/y.jpg");
  Rename(a, x);
  Rename(x, y);
  EXPECT_EQ(Skip().size(), 1U);
  EXPECT_EQ(Undo().files, 0U);
}

TEST_F(SkippedStepTest, IsAskedForWhatIsToBeChangedForGood) {
  const ioPath a = Make("a.jpg", "1");
  Edit({a}, "2", QStringLiteral("older"));
  const std::vector<BlockedStep> blocked = journal_->BlockedBy({a, Make("b.jpg", "1")});
  ASSERT_EQ(blocked.size(), 1U);
  EXPECT_THAT(blocked[0].files, ElementsAre(a));
  EXPECT_THAT(journal_->BlockedBy({Make("c.jpg", "1")}), IsEmpty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
