#include "JournalFixture.h"

#include <zenvora/lumidex/DataModel.h>

namespace Zenvora::Test {
namespace {

using Lumidex::DataModel;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A photo with its sidecar, and an edit of both that stops somewhere.
class SidecarJournal : public JournalTest {
 protected:
  SidecarJournal() { Open(); }

  static void Write(const ioPath& file, const std::string& content) {
    std::ofstream(file.for_system(), std::ios::binary) << content;
  }

  /// Up to the moment before the first of them is replaced.
  void Begin() {
    journal_->BeginStep(QStringLiteral("edit"));
    photoSide_ = journal_->Edits().PlanEdit(photo_);
    Write(photoSide_, "photo after");
    sidecarSide_ = journal_->Edits().PlanSidecar(sidecar_);
    Write(sidecarSide_, "sidecar after");
    Register(photo_);
    Register(sidecar_);
  }
  void Register(const ioPath& file) {
    DataModel item;
    item.SetPath(file);
    journal_->RegisterFileChange(item, file);
  }
  void ReplacePhoto() const { ASSERT_TRUE(photoSide_.rename(photo_)); }
  void ReplaceSidecar() const { ASSERT_TRUE(sidecarSide_.rename(sidecar_)); }
  /// Both done, as a run does it.
  void Edit() {
    Begin();
    ReplacePhoto();
    ReplaceSidecar();
    journal_->Edits().FinishEdit();
    journal_->EndStep();
  }

  void ExpectBoth(const char* version) const {
    EXPECT_EQ(ReadFile(photo_), std::string("photo ") + version);
    EXPECT_EQ(ReadFile(sidecar_), std::string("sidecar ") + version);
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(tree_.Path("photos").for_system())) {
      files += entry.exists() ? 1 : 0;
    }
    EXPECT_EQ(files, 2U) << "a staging file is left";
  }

  const ioPath photo_ = Make("a.jpg", "photo before");
  const ioPath sidecar_ = Make("a.xmp", "sidecar before");
  ioPath photoSide_;
  ioPath sidecarSide_;
};

TEST_F(SidecarJournal, TakesBothBackAndDoesBothAgain) {
  Edit();
  ExpectBoth("after");
  ASSERT_THAT(journal_->Steps(), SizeIs(1));
  EXPECT_EQ(journal_->Steps()[0].files, 2U);
  EXPECT_THAT(Undo().findings, IsEmpty());
  ExpectBoth("before");
  EXPECT_THAT(Redo().findings, IsEmpty());
  ExpectBoth("after");
}

TEST_F(SidecarJournal, ForgetsAnEditThatReplacedNeither) {
  Begin();
  Open();
  ExpectBoth("before");
  EXPECT_THAT(journal_->Steps(), IsEmpty());
  EXPECT_THAT(Kept(), IsEmpty());
}

TEST_F(SidecarJournal, ReplacesTheOtherWhenItStoppedBetweenThem) {
  for (const bool photoFirst : {true, false}) {
    Begin();
    photoFirst ? ReplacePhoto() : ReplaceSidecar();
    Open();
    ExpectBoth("after");
    EXPECT_EQ(journal_->Steps()[0].files, 2U);
    EXPECT_EQ(journal_->RecoveryNotes().front(),
              "\"edit\" was interrupted. Photos edited: 1; the others are unchanged.");
    EXPECT_THAT(Undo().findings, IsEmpty());
    ExpectBoth("before");
  }
}

TEST_F(SidecarJournal, TakesTheFirstBackWhenTheOtherCannotBeReplaced) {
  for (const bool photoFirst : {true, false}) {
    Begin();
    photoFirst ? ReplacePhoto() : ReplaceSidecar();
    (photoFirst ? sidecarSide_ : photoSide_).remove();
    Open();
    ExpectBoth("before");
    EXPECT_THAT(journal_->Steps(), IsEmpty());
    EXPECT_THAT(Kept(), IsEmpty());
  }
}

TEST_F(SidecarJournal, TakesTheFirstBackWhenTheOtherFailsInTheSameRun) {
  Begin();
  ReplacePhoto();
  sidecarSide_.remove();
  journal_->Edits().DropEdit();
  journal_->EndStep();
  ExpectBoth("before");
  EXPECT_THAT(journal_->Steps(), IsEmpty());
}

TEST_F(SidecarJournal, SaysSoWhenTheyCannotBeBroughtTogether) {
  Begin();
  ReplacePhoto();
  sidecarSide_.remove();
  for (const std::string& name : Kept()) {
    (keptFolder_ / ioPath(name)).remove();
  }
  Open();
  EXPECT_EQ(ReadFile(photo_), "photo after");
  EXPECT_EQ(ReadFile(sidecar_), "sidecar before");
  std::string notes;
  for (const std::string& note : journal_->RecoveryNotes()) {
    notes += note + '\n';
  }
  EXPECT_THAT(notes, HasSubstr(photo_.utf8string() + " and its sidecar disagree"));
}

TEST_F(SidecarJournal, LeavesBothWhenOthersChangedOneSince) {
  Edit();
  Write(sidecar_, "sidecar of others");
  const UndoResult result = Undo();
  ASSERT_THAT(result.findings, SizeIs(2));
  EXPECT_EQ(result.findings[0].file, photo_);
  EXPECT_EQ(result.findings[0].cause,
            photo_.utf8string() + " is left as it is, because it belongs to " + sidecar_.utf8string());
  EXPECT_EQ(result.findings[1].file, sidecar_);
  EXPECT_THAT(result.findings[1].cause, HasSubstr("was changed later"));
  EXPECT_TRUE(result.stands);
  EXPECT_EQ(ReadFile(photo_), "photo after");
  EXPECT_EQ(ReadFile(sidecar_), "sidecar of others");
  Write(sidecar_, "sidecar after");
  EXPECT_THAT(Undo().findings, IsEmpty());
  ExpectBoth("before");
}

}  // namespace
}  // namespace Zenvora::Test
