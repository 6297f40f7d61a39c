#include "DialogFixture.h"

#include <LumidexUtil/CheckSaveAvailable.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

namespace Zenvora::Util {
namespace {

using App::AlertButton;
using App::AlertLevel;
using Mode = CheckSaveAvailableMode;
using Zenvora::Test::FakeDiskSpace;
using Zenvora::Test::FakeFolderAccess;

class SaveDialog : public Zenvora::Test::DialogFixture {
 protected:
  static std::vector<Lumidex::DataModel> Items(const ioPath& path, std::uint64_t size = 0) {
    Lumidex::DataModel item;
    item.SetPath(path);
    item.SetSize(size);
    return {item};
  }

  std::string NoSpace() const {
    return "There is not enough space on the disk " + tree_.Path().root_name().utf8string();
  }
  static std::string NoFolder(const ioPath& folder) {
    return "You do not have permission to edit files in this folder: " + folder.utf8string();
  }

  const ioPath missing_ = tree_.Path("missing.jpg");
  const std::shared_ptr<FakeDiskSpace> space_ = std::make_shared<FakeDiskSpace>();
  const App::ServiceScope<App::IDiskSpace> spaceScope_{space_};
};

TEST_F(SaveDialog, IsNotShownWhenNothingIsInTheWay) {
  EXPECT_TRUE(CheckSaveAvailableDialog({}, Mode::DiskSpace | Mode::FolderPermission | Mode::FilePermission));
  EXPECT_TRUE(CheckSaveAvailableDialog(Items(tree_.Write("a.jpg", "")), Mode::FilePermission));
  EXPECT_TRUE(CheckSaveAvailableDialog(Items(missing_), Mode::None));
}

TEST_F(SaveDialog, TellsWhatIsInTheWay) {
  Answer({AlertButton::Ok});
  EXPECT_FALSE(CheckSaveAvailableDialog(Items(missing_), Mode::FilePermission));
  ExpectAlert(0, AlertLevel::Critical, "You do not have permission to edit file: " + missing_.utf8string(),
              AlertButton::Ok);
}

TEST_F(SaveDialog, TellsOneThingOnly) {
  space_->otherwise = 1;
  Answer({AlertButton::Ok});
  EXPECT_FALSE(CheckSaveAvailableDialog(Items(missing_, 2), Mode::DiskSpace | Mode::FilePermission));
  ExpectAlert(0, AlertLevel::Critical, NoSpace(), AlertButton::Ok);
  EXPECT_EQ(alerts_->shown.size(), 1U);
}

TEST_F(SaveDialog, LetsNewFilesIntoAFolderWithRoom) {
  space_->otherwise = 100;
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 100, QMessageBox::Ok), QMessageBox::NoButton);
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 0, QMessageBox::Retry | QMessageBox::Cancel),
            QMessageBox::NoButton);
  EXPECT_TRUE(std::filesystem::is_empty(tree_.Path().native())) << "no file is made";
}

TEST_F(SaveDialog, GivesTheAnswerOfTheCallersButtons) {
  space_->otherwise = 100;
  Answer({AlertButton::Retry, AlertButton::Cancel, AlertButton::Ignore, AlertButton::Ok});
  const QMessageBox::StandardButtons two = QMessageBox::Retry | QMessageBox::Cancel;
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 101, two), QMessageBox::Retry);
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 101, two), QMessageBox::Cancel);
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 101, QMessageBox::Ignore | QMessageBox::Abort),
            QMessageBox::Ignore);
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 101, QMessageBox::NoButton), QMessageBox::Ok);
  ExpectAlert(0, AlertLevel::Critical, NoSpace(), AlertButton::Retry | AlertButton::Cancel);
  ExpectAlert(3, AlertLevel::Critical, NoSpace(), {});
}

TEST_F(SaveDialog, KeepsNewFilesOutOfAClosedFolder) {
  const auto access = std::make_shared<FakeFolderAccess>();
  const App::ServiceScope<App::IFolderAccess> scope(access);
  access->closed = {tree_.Path()};
  Answer({AlertButton::Ok});
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path(), 1, QMessageBox::Ok), QMessageBox::Ok);
  ExpectAlert(0, AlertLevel::Critical, NoFolder(tree_.Path()), AlertButton::Ok);
  EXPECT_EQ(access->askedToCreate, std::vector<ioPath>{tree_.Path()});
}

TEST_F(SaveDialog, NeedsTheFolderOfNewFilesToBeThere) {
  Answer({AlertButton::Ok});
  EXPECT_EQ(CheckSaveAvailableDialog(tree_.Path("missing"), 1, QMessageBox::Ok), QMessageBox::Ok);
  ExpectAlert(0, AlertLevel::Critical, NoFolder(tree_.Path("missing")), AlertButton::Ok);
}

TEST_F(SaveDialog, DoesNotMindThatNewFilesAreNotThereYet) {
  EXPECT_EQ(
      CheckSaveAvailableDialog(tree_.Path(), std::numeric_limits<unsigned long long>::max(), QMessageBox::Ok),
      QMessageBox::NoButton)
      << "the disk does not tell";
}

TEST_F(SaveDialog, TakesTheCurrentFolderForNone) {
  EXPECT_EQ(CheckSaveAvailableDialog(ioPath(), 1, QMessageBox::Ok), QMessageBox::NoButton);
  EXPECT_EQ(space_->asked, std::vector<ioPath>{ioPath()});
}

}  // namespace
}  // namespace Zenvora::Util
