#include "ImportFixture.h"

#include <host/rename/RenameSteps.h>
#include <host/scan/PhotoChoice.h>
#include <host/scan/SaveChecks.h>
#include <support/LeftOut.h>
#include <support/Unprivileged.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using Kind = FileVerdict::Kind;
using Acts = std::set<FileAct>;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const Acts kEdits = {FileAct::Rotate, FileAct::ShiftDate, FileAct::SetDate};

class SaveChecking : public ImportTest {
 protected:
  static CheckReport Check(const std::vector<ioPath>& sources, const CheckOptions& options = {}) {
    return CheckFiles(sources, options);
  }
  CheckReport Check() const { return Check({Card()}); }
  /// The kind of each file's one finding; `Done`: none.
  static Kind KindOf(const CheckReport& report, const ioPath& file, const Acts& acts) {
    for (const CheckFinding& finding : report.findings) {
      if (finding.path == file && finding.acts == acts) {
        return finding.kind;
      }
    }
    return Kind::Done;
  }
};

TEST_F(SaveChecking, FindsNothingWhereNothingIsInTheWay) {
  const auto photos = MakePhotos("card", 3);
  const CheckReport report = Check();
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_EQ(report.files, 3U);
  EXPECT_EQ(report.edited, photos);
  ASSERT_THAT(report.volumes, SizeIs(1));
  EXPECT_EQ(report.volumes[0].files, 3U);
  EXPECT_GT(report.volumes[0].bytesFree, 0);
}

TEST_F(SaveChecking, TellsForEachCommandWhatItRefuses) {
  const ioPath whole = MakePhoto("card/whole.jpg", 1);
  const ioPath undated = Zenvora::Test::WriteJpeg(tree.Path("card/undated.jpg"));
  const ioPath text = tree.Write("card/text.jpg", "no picture");
  const ioPath empty = tree.Write("card/empty.jpg", "");
  const ioPath cut = tree.Write("card/cut.jpg", Zenvora::Test::ReadFile(whole).substr(0, 60));
  const CheckReport report = Check();
  EXPECT_EQ(KindOf(report, undated, {FileAct::ShiftDate}), Kind::Content);
  EXPECT_EQ(KindOf(report, text, kEdits), Kind::Format);
  EXPECT_EQ(KindOf(report, empty, kEdits), Kind::Content);
  EXPECT_EQ(KindOf(report, cut, kEdits), Kind::Content);
  EXPECT_THAT(report.findings, SizeIs(4));
  EXPECT_THAT(report.edited, testing::UnorderedElementsAre(whole, undated));
}

TEST_F(SaveChecking, AnswersForOneCommandAlone) {
  Zenvora::Test::WriteJpeg(tree.Path("card/undated.jpg"));
  CheckOptions options;
  options.acts = {FileAct::Rotate, FileAct::Import, FileAct::Trash, FileAct::Rename};
  EXPECT_THAT(Check({Card()}, options).findings, IsEmpty());
  options.acts = {FileAct::ShiftDate};
  EXPECT_THAT(Check({Card()}, options).findings, SizeIs(1));
}

TEST_F(SaveChecking, SaysOfADateAtTheEndOfTheCalendarThatItCanBeShiftedBack) {
  Zenvora::Test::PhotoTags tags;
  tags.dateTimeOriginal = "9999:12:31 23:59:59";
  Zenvora::Test::WriteJpeg(tree.Path("card/late.jpg"), tags);
  EXPECT_THAT(Check().findings, IsEmpty());
}

TEST_F(SaveChecking, TellsOfNamesThatEditsDoNotTake) {
  const ioPath notes = tree.Write("card/notes.txt", "");
  const ioPath hidden = MakePhoto("card/.hidden.jpg", 1);
  const CheckReport report = Check({notes, hidden});
  EXPECT_EQ(KindOf(report, notes, kEdits), Kind::Name);
  EXPECT_EQ(KindOf(report, hidden, kEdits), Kind::Name);
  EXPECT_THAT(report.findings, SizeIs(2));
}

TEST_F(SaveChecking, TellsOfFoldersThatCannotBeWritten) {
  const ioPath photo = MakePhoto("card/a/1.jpg", 1);
  MakePhoto("card/b/1.jpg", 2);
  const auto access = std::make_shared<Zenvora::Test::FakeFolderAccess>();
  access->closed = {tree.Path("card/a")};
  const App::ServiceScope<App::IFolderAccess> scope(access);
  const CheckReport report = Check();
  EXPECT_EQ(KindOf(report, photo, kEdits), Kind::Folder);
  EXPECT_EQ(KindOf(report, photo, {FileAct::Rename}), Kind::Folder);
  EXPECT_EQ(KindOf(report, photo, {FileAct::Trash}), Kind::Folder);
  EXPECT_THAT(report.findings, SizeIs(3));
  RenamePlan plan;
  plan.renames = {{photo, tree.Path("card/a/2.jpg")}, {tree.Path("card/b/1.jpg"), tree.Path("card/b/2.jpg")}};
  const std::vector<FileFinding> faults = FindRenameFaults(plan);
  ASSERT_THAT(faults, SizeIs(1));
  EXPECT_EQ(faults[0].cause, "Cannot rename " + photo.utf8string() +
                                 ": its folder cannot be written to; change the permissions of " +
                                 tree.Path("card/a").utf8string());
}

TEST_F(SaveChecking, TellsOfSidecarsThatCannotBeEditedAlong) {
  const ioPath photo = MakePhoto("card/a.jpg", 1);
  tree.Write("card/a.xmp", "<x:xmpmeta xmp:Rating=");
  const CheckReport report = Check();
  EXPECT_EQ(KindOf(report, photo, kEdits), Kind::Sidecar) << "nobody knows what is missing of it";
  ASSERT_THAT(report.findings, SizeIs(1));
  EXPECT_THAT(report.findings[0].text, HasSubstr("a.xmp"));
}

TEST_F(SaveChecking, LooksForAnImportAtAllThatAnImportLooksAt) {
  MakePhoto("card/a.jpg", 1);
  for (const char* const name : {"card/a.xmp", "card/film.mp4", "card/lonely.wav", "card/.DS_Store"}) {
    tree.Write(name, "x");
  }
  tree.Write("card/notes.txt", "x");
  tree.Write("card/.hidden.jpg", "x");
  CheckOptions options;
  options.acts = {FileAct::Import};
  CheckReport report = Check({Card()}, options);
  EXPECT_EQ(report.files, PlanTo({Card()}).copies.size());
  EXPECT_EQ(report.files, 4U);
  EXPECT_THAT(report.findings, IsEmpty());
  ASSERT_THAT(report.left, SizeIs(2)) << "nobody says that they are to be copied off";
  EXPECT_EQ(report.left[0].cause, "It is hidden");
  options.acts = {FileAct::Rename, FileAct::Rotate};
  EXPECT_EQ(Check({Card()}, options).files, 2U);
  EXPECT_THAT(Check({Card()}, options).left, IsEmpty());
  // On a card an import copies everything off, and says so of what it leaves.
  const auto storage = std::make_shared<Zenvora::Test::FakeRemovableStorage>();
  storage->roots = {Card()};
  const App::ServiceScope<App::IRemovableStorage> scope(storage);
  options.acts = {FileAct::Import};
  report = Check({Card()}, options);
  EXPECT_THAT(report.findings, SizeIs(2));
  EXPECT_EQ(KindOf(report, tree.Path("card/notes.txt"), {FileAct::Import}), Kind::Name);
  EXPECT_THAT(report.left, IsEmpty());
}

TEST_F(SaveChecking, TellsOfLinksThatLeadNowhereOnlyWhatIsTrueOfEachCommand) {
  const ioPath photo = MakePhoto("card/a.jpg", 1);
  LUMIDEX_LINK_OR_SKIP(tree.Path("gone.jpg"), tree.Path("card/dangling.jpg"));
  LUMIDEX_LINK_OR_SKIP(tree.Path("card/round.jpg"), tree.Path("card/round.jpg"));
  LUMIDEX_LINK_OR_SKIP(tree.Path("gone"), tree.Path("card/notes"));
  const CheckReport report = Check();
  for (const char* const name : {"card/dangling.jpg", "card/round.jpg"}) {
    EXPECT_EQ(KindOf(report, tree.Path(name), kEdits), Kind::Unreadable) << name;
    EXPECT_EQ(KindOf(report, tree.Path(name), {FileAct::Import}), Kind::Unreadable) << name;
  }
  EXPECT_EQ(KindOf(report, tree.Path("card/notes"), {FileAct::Import}), Kind::Unreadable);
  EXPECT_THAT(report.findings, SizeIs(5)) << "neither rename nor the trash goes by links";
  const EditChoice choice = ChooseForEdit({Card()});
  EXPECT_THAT(choice.photos, testing::ElementsAre(photo));
  ASSERT_THAT(choice.refused, SizeIs(2));
  EXPECT_EQ(choice.refused[0].cause,
            tree.Path("card/dangling.jpg").utf8string() + " is a link to a file that is missing.");
}

TEST_F(SaveChecking, StopsSoon) {
  MakePhotos("card", 3);
  const std::atomic<bool> cancel{true};
  CheckOptions options;
  options.cancel = &cancel;
  EXPECT_TRUE(Check({Card()}, options).cancelled);
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(SaveChecking, LeavesWhatIsWriteProtectedAlone);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(SaveChecking, TellsOfWhatAUserMayNotRead);
#else
TEST_F(SaveChecking, LeavesWhatIsWriteProtectedAlone) {
  // Also of the superuser, who could write to it.
  const ioPath photo = MakePhoto("card/a.jpg", 1);
  chmod(photo.native().c_str(), 0444);
  const CheckReport report = Check();
  EXPECT_EQ(KindOf(report, photo, kEdits), Kind::Protected);
  ASSERT_THAT(report.findings, SizeIs(1)) << "renaming does not change the file";
  EXPECT_EQ(report.findings[0].text, "Cannot edit " + photo.utf8string() +
                                         ": it is write-protected; allow writing to it, or use --force");
  EXPECT_FALSE(JudgeEdit(
                   {photo, {}},
                   [] {
                     Strandel::PhotoEdit edit;
                     edit.turn = Strandel::Turn::Left;
                     return edit;
                   }(),
                   true)
                   .IsRefused());
}

TEST_F(SaveChecking, TellsOfWhatAUserMayNotRead) {
  const auto photos = MakePhotos("card", 3);
  chmod(photos[0].native().c_str(), 0);
  chmod(photos[1].native().c_str(), 0644);
  chmod(photos[2].native().c_str(), 0666);
  chmod(Card().native().c_str(), 0777);
  Zenvora::Test::LetEverybodyIn(tree.Path());
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] {
    const CheckReport report = Check();
    Acts unreadable = kEdits;
    return KindOf(report, photos[0], unreadable) == Kind::Unreadable &&
           KindOf(report, photos[0], {FileAct::Import}) == Kind::Unreadable &&
           KindOf(report, photos[1], kEdits) == Kind::Protected && report.edited.size() == 1;
  }));
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
