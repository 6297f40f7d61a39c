#include "JournalFixture.h"

namespace Zenvora::Lumidex::Host {
namespace {

using testing::IsEmpty;
using Zenvora::Test::MakeLink;
using Zenvora::Test::ReadFile;

/// Links to photos that a step of the journal renamed.
class LinkJournal : public Zenvora::Test::JournalTest {
 protected:
  void SetUp() override {
    LUMIDEX_LINK_OR_SKIP("nowhere", tree_.Path("links can be made"));
    Open();
  }

  /// Each other's names, so that one of them waits under a third meanwhile.
  void SwapNames() {
    RenamePlan plan;
    plan.steps = {{a_, wait_}, {b_, a_}, {wait_, b_}};
    plan.renames = {{a_, b_}, {b_, a_}};
    ASSERT_EQ(journal_->Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 2U);
    ASSERT_EQ(ReadFile(a_), "photo b");
  }

  ioPath Link(const std::string& target, const std::string& name) {
    const ioPath link = tree_.Path("photos/" + name);
    std::filesystem::create_directories(link.parent_path().for_system());
    EXPECT_TRUE(MakeLink(target, link));
    return link;
  }

  const ioPath a_ = Make("a.jpg", "photo a");
  const ioPath b_ = Make("b.jpg", "photo b");
  const ioPath wait_ = tree_.Path("photos/.wait");
};

TEST_F(LinkJournal, LinksMadeSinceGoBackWithTheirPhotos) {
  SwapNames();
  const ioPath near = Link("b.jpg", "near.jpg");
  const ioPath far = Link("../../photos/a.jpg", "best/far.jpg");
  const UndoResult undone = Undo();
  EXPECT_THAT(undone.findings, IsEmpty());
  EXPECT_EQ(undone.files, 2U);
  EXPECT_EQ(ReadFile(a_), "photo a");
  EXPECT_EQ(ReadFile(near), "photo a");
  EXPECT_EQ(ReadFile(far), "photo b");
  EXPECT_EQ(Redo().findings.size(), 0U);
  EXPECT_EQ(ReadFile(a_), "photo b");
  EXPECT_EQ(ReadFile(near), "photo a");
  EXPECT_EQ(ReadFile(far), "photo b");
}

TEST_F(LinkJournal, LinksThatOthersPointedToAPhotoGoBackWithIt) {
  const ioPath link = Link("a.jpg", "link.jpg");
  RenamePlan plan;
  plan.steps = {{a_, tree_.Path("photos/new.jpg")}};
  plan.renames = plan.steps;
  plan.links = {{link, "a.jpg", "new.jpg"}};
  ASSERT_EQ(journal_->Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 1U);
  ASSERT_EQ(ReadFile(link), "photo a");
  // By its whole name now, which the step does not know.
  std::filesystem::remove(link.for_system());
  ASSERT_TRUE(MakeLink(tree_.Path("photos/new.jpg").utf8string(), link));
  EXPECT_THAT(Undo().findings, IsEmpty());
  EXPECT_EQ(ReadFile(link), "photo a");
  EXPECT_EQ(ReadFile(a_), "photo a");
}

TEST_F(LinkJournal, LinksThatLeadElsewhereByNowStay) {
  const ioPath link = Link("a.jpg", "link.jpg");
  const ioPath other = Make("other.jpg", "another photo");
  RenamePlan plan;
  plan.steps = {{a_, tree_.Path("photos/new.jpg")}};
  plan.renames = plan.steps;
  plan.links = {{link, "a.jpg", "new.jpg"}};
  ASSERT_EQ(journal_->Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 1U);
  std::filesystem::remove(link.for_system());
  ASSERT_TRUE(MakeLink("other.jpg", link));
  EXPECT_THAT(Undo().findings, IsEmpty());
  EXPECT_EQ(ReadFile(link), "another photo");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
