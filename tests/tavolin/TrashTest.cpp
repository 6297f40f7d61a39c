#include <support/Doubles.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/tavolin/Trash.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#ifdef _WIN32
#include "RecycleBin.h"

#include <windows.h>
#else
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Tavolin {
namespace {

using ::testing::HasSubstr;
using Zenvora::Test::ReadFile;

/// The whole way into the trash.
TrashPlace Put(const ITrash& trash, const ioPath& file) {
  const TrashPlace place = trash.Choose(file);
  EXPECT_FALSE(trash.WriteNote(place, file));
  EXPECT_FALSE(MoveToFreeName(file, place.file));
  return place;
}

std::string WhyNot(const ioPath& file) {
  try {
    DesktopTrash().Choose(file);
  } catch (const TrashException& error) {
    EXPECT_EQ(*boost::get_error_info<TagFilename>(error), file.utf8string());
    return error.what();
  }
  return {};
}

bool IsThere(const ioPath& path) {
  return QueryFile(path).kind != FileState::Kind::Missing;
}

#ifndef _WIN32

/// The user's data folder for a test.
class DataFolder {
 public:
  explicit DataFolder(const ioPath& folder) : former_(qgetenv("XDG_DATA_HOME")) {
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.utf8string()));
  }
  ~DataFolder() { qputenv("XDG_DATA_HOME", former_); }
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;

 private:
  const QByteArray former_;
};

mode_t ModeOf(const ioPath& path) {
  struct stat facts = {};
  EXPECT_EQ(lstat(path.native().c_str(), &facts), 0) << path;
  return facts.st_mode & 07777U;
}

class TrashTest : public ::testing::Test {
 protected:
  const Zenvora::Test::TempTree tree_;
  const ioPath data_ = tree_.Path("home/data");
  const ioPath trash_ = data_ / "Trash";
  const DataFolder scope_{data_};
};

TEST_F(TrashTest, IsTheOneOfTheHomeOnItsVolume) {
  const auto clock = std::make_shared<Zenvora::Test::FakeClock>(QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6)));
  const App::ServiceScope<App::IClock> scope(clock);
  const ioPath file = tree_.Write("photos/a b.jpg", "A");
  const TrashPlace place = Put(DesktopTrash(), file);
  EXPECT_EQ(place.file, trash_ / "files" / "a b.jpg");
  EXPECT_EQ(place.note, trash_ / "info" / "a b.jpg.trashinfo");
  EXPECT_EQ(ReadFile(place.file), "A");
  std::string path = file.utf8string();
  path.replace(path.rfind(' '), 1, "%20");
  EXPECT_EQ(ReadFile(place.note), "[Trash Info]\nPath=" + path + "\nDeletionDate=2026-02-03T04:05:06\n");
  for (const ioPath& folder : {trash_, trash_ / "files", trash_ / "info"}) {
    EXPECT_EQ(ModeOf(folder), 0700U) << folder;
  }
}

TEST_F(TrashTest, HasANameOfItsOwnForEachFile) {
  const TrashPlace first = Put(DesktopTrash(), tree_.Write("photos/a.jpg", "A"));
  const TrashPlace second = Put(DesktopTrash(), tree_.Write("photos/a.jpg", "B"));
  EXPECT_EQ(second.file, trash_ / "files" / "a.2.jpg");
  EXPECT_EQ(second.note, trash_ / "info" / "a.2.jpg.trashinfo");
  EXPECT_EQ(ReadFile(first.file), "A");
  EXPECT_EQ(ReadFile(second.file), "B");
}

TEST_F(TrashTest, PassesOverNamesOfWhichHalfIsTaken) {
  tree_.Write("home/data/Trash/files/a.jpg", "without a note");
  tree_.Write("home/data/Trash/info/a.2.jpg.trashinfo", "without a file");
  ASSERT_TRUE(Zenvora::Test::MakeLink(tree_.Path("nowhere"), trash_ / "files" / "a.3.jpg"));
  EXPECT_EQ(DesktopTrash().Choose(tree_.Write("photos/a.jpg", "A")).file, trash_ / "files" / "a.4.jpg");
}

TEST_F(TrashTest, GivesAPlaceToOneOnly) {
  const ioPath file = tree_.Write("photos/a.jpg", "A");
  const TrashPlace place = DesktopTrash().Choose(file);
  ASSERT_FALSE(DesktopTrash().WriteNote(place, file));
  const std::string note = ReadFile(place.note);
  EXPECT_EQ(DesktopTrash().WriteNote(place, tree_.Write("other/a.jpg", "B")), std::errc::file_exists);
  EXPECT_EQ(ReadFile(place.note), note);
}

TEST_F(TrashTest, TakesEveryNameThatAFileCanHave) {
  std::string cyrillic;
  for (int i = 0; i < 125; ++i) {
    cyrillic += "я";
  }
  for (const std::string& name :
       {std::string("new\nline.jpg"), std::string("50%25.jpg"), std::string("\xff\xfe.jpg"),
        std::string(251, 'x') + ".jpg", cyrillic + ".jpg", std::string("-rf"), std::string(" "),
        std::string("Пейзаж.jpg")}) {
    const ioPath file = tree_.Write("photos/" + name, name);
    const TrashPlace place = Put(DesktopTrash(), file);
    EXPECT_LE(place.note.filename().utf8string().size(), 255U);
    EXPECT_EQ(ReadFile(place.file), name);
    EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::ThisFile);
  }
}

TEST_F(TrashTest, KnowsWhoseANoteIs) {
  const ioPath file = tree_.Write("photos/a.jpg", "A");
  const TrashPlace place = DesktopTrash().Choose(file);
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::Nobody);
  ASSERT_FALSE(DesktopTrash().WriteNote(place, file));
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::ThisFile);
  EXPECT_EQ(DesktopTrash().ReadNote(place, tree_.Path("photos/b.jpg")), TrashNoteOf::Another);
  // Also when the folder is gone by then.
  std::filesystem::remove_all(tree_.Path("photos").native());
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::ThisFile);
  tree_.Write("home/data/Trash/info/a.jpg.trashinfo", "");
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::Nobody);
  DesktopTrash().RemoveNote(place);
  EXPECT_FALSE(IsThere(place.note));
  DesktopTrash().RemoveNote(place);
  ASSERT_EQ(mkfifo(place.note.native().c_str(), 0600), 0);
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::Nobody);
}

TEST_F(TrashTest, IsToldByTheFoldersAboveAFile) {
  const TrashPlace place = Put(DesktopTrash(), tree_.Write("photos/a.jpg", "A"));
  EXPECT_TRUE(LiesInTrash(place.file));
  ASSERT_TRUE(Zenvora::Test::MakeLink(trash_ / "files", tree_.Path("link")));
  EXPECT_TRUE(LiesInTrash(tree_.Path("link/a.jpg")));
  for (const char* const name : {"x/.Trash/1000/files/a.jpg", "x/.Trash-1000/files/a/b.jpg"}) {
    EXPECT_TRUE(LiesInTrash(tree_.Write(name, "A"))) << name;
  }
  for (const char* const name : {"photos/a.jpg", "Trash/files/a.jpg", "x/.Trashes.jpg", "home/data/a.jpg"}) {
    EXPECT_FALSE(LiesInTrash(tree_.Write(name, "A"))) << name;
  }
}

TEST_F(TrashTest, IsInReachAfterItWasEmptied) {
  const TrashPlace place = Put(DesktopTrash(), tree_.Write("photos/a.jpg", "A"));
  EXPECT_TRUE(DesktopTrash().IsInReach(place));
  std::filesystem::remove_all(trash_.native());
  EXPECT_TRUE(DesktopTrash().IsInReach(place));
  std::filesystem::remove_all(data_.native());
  EXPECT_FALSE(DesktopTrash().IsInReach(place));
}

TEST_F(TrashTest, IsOutOfReachWithTheVolumeToWhichALinkOfTheHomeLeads) {
  const ioPath elsewhere = tree_.MakeFolder("elsewhere/Trash");
  tree_.MakeFolder("home/data");
  LUMIDEX_LINK_OR_SKIP(elsewhere, trash_);
  const TrashPlace place = Put(DesktopTrash(), tree_.Write("photos/a.jpg", "A"));
  EXPECT_TRUE(DesktopTrash().IsInReach(place));
  std::filesystem::rename(tree_.Path("elsewhere").native(), tree_.Path("away").native());
  EXPECT_FALSE(DesktopTrash().IsInReach(place));
  std::filesystem::rename(tree_.Path("away").native(), tree_.Path("elsewhere").native());
  std::filesystem::remove_all((elsewhere / "files").native());
  EXPECT_TRUE(DesktopTrash().IsInReach(place));
}

TEST_F(TrashTest, SaysWhyTheOneOfTheHomeCannotBeUsed) {
  const ioPath file = tree_.Write("photos/a.jpg", "A");
  tree_.Write("home/data/Trash", "no folder");
  EXPECT_EQ(WhyNot(file), "Cannot move " + file.utf8string() + " to the trash: " + trash_.utf8string() +
                              " cannot be used: File exists");
  EXPECT_EQ(ReadFile(file), "A");
}

TEST_F(TrashTest, IsNotThereForAFileWithoutAFolder) {
  EXPECT_THAT(WhyNot(tree_.Path("nowhere/a.jpg")), HasSubstr("No such file or directory"));
}

TEST_F(TrashTest, FollowsALinkOfTheHome) {
  tree_.MakeFolder("home/data");
  const ioPath elsewhere = tree_.MakeFolder("elsewhere");
  ASSERT_TRUE(Zenvora::Test::MakeLink(elsewhere, trash_));
  Put(DesktopTrash(), tree_.Write("photos/a.jpg", "A"));
  EXPECT_EQ(ReadFile(elsewhere / "files/a.jpg"), "A");
}

/// A volume of its own beside the home's.
class TrashOfAnotherVolume : public TrashTest {
 protected:
  static constexpr std::size_t kBytes = std::size_t{1} << 20U;

  void SetUp() override {
    if (!disk_.IsThere()) {
      GTEST_SKIP() << "no volume can be mounted here: only the superuser can";
    }
  }

  const ioPath top_ = tree_.MakeFolder("disk");
  const Zenvora::Test::SmallDisk disk_{top_, kBytes};
  const std::string user_ = std::to_string(geteuid());
  const ioPath own_ = top_ / ioPath(".Trash-" + user_);
};

TEST_F(TrashOfAnotherVolume, IsAFolderOfTheUserInItsTop) {
  const ioPath file = tree_.Write("disk/photos/trip/a%.jpg", "A");
  const TrashPlace place = Put(DesktopTrash(), file);
  EXPECT_EQ(place.file, own_ / "files" / "a%.jpg");
  EXPECT_EQ(ModeOf(own_), 0700U);
  EXPECT_THAT(ReadFile(place.note), HasSubstr("\nPath=photos/trip/a%25.jpg\n"));
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::ThisFile);
  std::filesystem::remove_all((top_ / "photos").native());
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::ThisFile);
  EXPECT_FALSE(IsThere(trash_));
}

TEST_F(TrashOfAnotherVolume, IsThatOfAVolumeBelowToWhichALinkLeads) {
  tree_.Write("disk/photos/a.jpg", "A");
  ASSERT_TRUE(Zenvora::Test::MakeLink(top_ / "photos", tree_.Path("link")));
  const ioPath file = tree_.Path("link/a.jpg");
  const TrashPlace place = Put(DesktopTrash(), file);
  EXPECT_EQ(place.file, own_ / "files" / "a.jpg");
  EXPECT_THAT(ReadFile(place.note), HasSubstr("\nPath=photos/a.jpg\n"));
  EXPECT_EQ(DesktopTrash().ReadNote(place, file), TrashNoteOf::ThisFile);
}

TEST_F(TrashOfAnotherVolume, IsTheSharedOneWhereThatIsSafe) {
  const ioPath shared = tree_.MakeFolder("disk/.Trash");
  ASSERT_EQ(chmod(shared.native().c_str(), 01777), 0);
  const TrashPlace place = Put(DesktopTrash(), tree_.Write("disk/a.jpg", "A"));
  EXPECT_EQ(place.file, shared / ioPath(user_) / "files" / "a.jpg");
  EXPECT_THAT(ReadFile(place.note), HasSubstr("\nPath=a.jpg\n"));
  EXPECT_EQ(ModeOf(shared / ioPath(user_)), 0700U);
  EXPECT_EQ(DesktopTrash().ReadNote(place, top_ / "a.jpg"), TrashNoteOf::ThisFile);
}

TEST_F(TrashOfAnotherVolume, IsNoSharedOneThatOthersCouldExchange) {
  const ioPath shared = tree_.MakeFolder("disk/.Trash");
  ASSERT_EQ(chmod(shared.native().c_str(), 0777), 0);
  EXPECT_EQ(DesktopTrash().Choose(tree_.Write("disk/a.jpg", "A")).file, own_ / "files" / "a.jpg");
}

TEST_F(TrashOfAnotherVolume, IsNoSharedOneBehindALink) {
  const ioPath real = tree_.MakeFolder("disk/real");
  ASSERT_EQ(chmod(real.native().c_str(), 01777), 0);
  ASSERT_TRUE(Zenvora::Test::MakeLink(real, top_ / ".Trash"));
  EXPECT_EQ(DesktopTrash().Choose(tree_.Write("disk/a.jpg", "A")).file, own_ / "files" / "a.jpg");
  EXPECT_TRUE(std::filesystem::is_empty(real.native()));
}

TEST_F(TrashOfAnotherVolume, IsNoneBehindALinkOrOfSomebodyElse) {
  const ioPath file = tree_.Write("disk/a.jpg", "A");
  const ioPath real = tree_.MakeFolder("disk/real");
  ASSERT_TRUE(Zenvora::Test::MakeLink(real, own_));
  EXPECT_THAT(WhyNot(file), HasSubstr(own_.utf8string() + " cannot be used for one: Not a directory"));
  ASSERT_TRUE(own_.remove());
  tree_.MakeFolder(own_);
  ASSERT_EQ(chown(own_.native().c_str(), 1234, 1234), 0);
  EXPECT_THAT(WhyNot(file), HasSubstr("Operation not permitted"));
  EXPECT_EQ(ReadFile(file), "A");
}

TEST_F(TrashOfAnotherVolume, IsNotForAHomeWhoseLinkLeadsThere) {
  // The folder of the home is a link into the volume, the photo is in neither.
  tree_.MakeFolder("home/data");
  ASSERT_TRUE(Zenvora::Test::MakeLink(tree_.MakeFolder("disk/trash"), trash_));
  EXPECT_EQ(DesktopTrash().Choose(tree_.Write("disk/a.jpg", "A")).file, trash_ / "files" / "a.jpg");
}

TEST_F(TrashOfAnotherVolume, LeavesAFileOfAReadOnlyVolume) {
  const ioPath file = tree_.Write("disk/a.jpg", "A");
  ASSERT_TRUE(disk_.MakeReadOnly());
  EXPECT_THAT(WhyNot(file), HasSubstr("Read-only file system"));
  EXPECT_EQ(ReadFile(file), "A");
}

TEST_F(TrashOfAnotherVolume, LeavesNoNoteOnAFullVolume) {
  const ioPath file = tree_.Write("disk/a.jpg", "A");
  const TrashPlace place = DesktopTrash().Choose(file);
  EXPECT_ANY_THROW(tree_.Write("disk/full", std::string(2 * kBytes, 'x')));
  const std::error_code error = DesktopTrash().WriteNote(place, file);
  EXPECT_EQ(error, std::errc::no_space_on_device);
  EXPECT_FALSE(IsThere(place.note));
  EXPECT_EQ(ReadFile(file), "A");
}

TEST_F(TrashOfAnotherVolume, IsOutOfReachWithItsVolume) {
  TrashPlace place;
  {
    const ioPath folder = tree_.MakeFolder("second");
    const Zenvora::Test::SmallDisk disk(folder, kBytes);
    ASSERT_TRUE(disk.IsThere());
    place = Put(DesktopTrash(), tree_.Write("second/a.jpg", "A"));
    EXPECT_TRUE(DesktopTrash().IsInReach(place));
  }
  EXPECT_FALSE(DesktopTrash().IsInReach(place));
}

TEST_F(TrashOfAnotherVolume, IsTheOneOfTheMountAlsoOnOneFileSystem) {
  // What is mounted twice is one file system, but nothing can be renamed from the one place to the other.
  const ioPath twin = tree_.MakeFolder("twin");
  tree_.MakeFolder("disk/home/data");
  const DataFolder scope(top_ / "home/data");
  ASSERT_EQ(mount(top_.native().c_str(), twin.native().c_str(), nullptr, MS_BIND, nullptr), 0);
  tree_.Write("disk/a.jpg", "A");
  const TrashPlace place = DesktopTrash().Choose(twin / "a.jpg");
  EXPECT_EQ(place.file, twin / ioPath(".Trash-" + user_) / "files" / "a.jpg");
  EXPECT_FALSE(MoveToFreeName(twin / "a.jpg", place.file));
  EXPECT_EQ(umount2(twin.native().c_str(), MNT_DETACH), 0);
}

#else

class RecycleBinTest : public ::testing::Test {
 protected:
  const Zenvora::Test::TempTree tree_;
};

TEST_F(RecycleBinTest, HasPairsOfNamesForNoteAndFile) {
  const ioPath bin = tree_.MakeFolder("bin");
  const ioPath file = tree_.Write("a b.jpg", "A");
  const TrashPlace place = ChooseInBin(bin, file);
  const std::string name = place.file.filename().utf8string();
  EXPECT_EQ(name.size(), 12U) << name;
  EXPECT_EQ(name.substr(0, 2), "$R");
  EXPECT_EQ(name.substr(8), ".jpg");
  EXPECT_EQ(place.note.filename().utf8string(), "$I" + name.substr(2));
  EXPECT_EQ(place.file.parent_path(), bin);
  EXPECT_NE(ChooseInBin(bin, file).file, place.file);
}

TEST_F(RecycleBinTest, NotesWhereAFileCameFrom) {
  const ioPath bin = tree_.MakeFolder("bin");
  const ioPath file = tree_.Write("Пейзаж.jpg", "A");
  const TrashPlace place = ChooseInBin(bin, file);
  const ITrash& trash = DesktopTrash();
  EXPECT_EQ(trash.ReadNote(place, file), TrashNoteOf::Nobody);
  ASSERT_FALSE(trash.WriteNote(place, file));
  EXPECT_EQ(trash.WriteNote(place, file), std::errc::file_exists);
  EXPECT_FALSE(MoveToFreeName(file, place.file));
  EXPECT_EQ(trash.ReadNote(place, file), TrashNoteOf::ThisFile);
  EXPECT_EQ(trash.ReadNote(place, tree_.Path("b.jpg")), TrashNoteOf::Another);
  EXPECT_TRUE(trash.IsInReach(place));
  trash.RemoveNote(place);
  EXPECT_FALSE(IsThere(place.note));
}

TEST_F(RecycleBinTest, IsNotThereOnAShare) {
  const QString share = qEnvironmentVariable("LUMIDEX_TEST_SHARE");
  if (share.isEmpty()) {
    GTEST_SKIP() << "LUMIDEX_TEST_SHARE names no share";
  }
  EXPECT_THAT(WhyNot(ioPath(share) / "a.jpg"), HasSubstr("to the recycle bin: "));
}

/// The real one is left alone: only what is thrown away with the rest of the system may be made in it.
TEST_F(RecycleBinTest, IsMadeHiddenWithItsMark) {
  if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
    GTEST_SKIP() << "the recycle bin of the system would be used";
  }
  const ioPath bin = BinOf(tree_.Write("a.jpg", "A"));
  EXPECT_EQ(bin.parent_path().filename().utf8string(), "$Recycle.Bin");
  EXPECT_EQ(bin.filename().utf8string().substr(0, 4), "S-1-");
  EXPECT_THAT(ReadFile(bin / "desktop.ini"), HasSubstr("CLSID={645FF040-5081-101B-9F08-00AA002F954E}"));
  const TrashPlace place = Put(DesktopTrash(), tree_.Path("a.jpg"));
  EXPECT_EQ(place.file.parent_path(), bin);
  EXPECT_EQ(ReadFile(place.file), "A");
}

#endif

}  // namespace
}  // namespace Zenvora::Tavolin
