// The checks with real message boxes, pressed by the test.

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <LumidexUtil/CheckFormatsWritable.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <support/Doubles.h>
#include <support/ModalBox.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QWidget>

#include <memory>

namespace Zenvora::Util {
namespace {

using Zenvora::Test::FakeEnvironment;
using Zenvora::Test::FakeRemovableStorage;
using Zenvora::Test::ScriptedFolderDialog;
using Zenvora::Test::TempTree;
using Zenvora::Test::WhenBoxIsShown;

class RealDialogs : public testing::Test {
 protected:
  RealDialogs() { environment_->window = &window_; }

  /// Looks at the next box, then presses a button, or closes it.
  void ExpectBox(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons,
                 QMessageBox::StandardButton press) {
    shown_ = false;
    WhenBoxIsShown([=](QMessageBox& box) {
      shown_ = true;
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Attention"));
      EXPECT_EQ(box.icon(), icon);
      EXPECT_EQ(box.text().toStdString(), text.toStdString());
      EXPECT_EQ(box.standardButtons(), buttons);
      EXPECT_EQ(box.parentWidget(), &window_);
      EXPECT_TRUE(box.windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
      if (press == QMessageBox::NoButton) {
        box.close();
      } else {
        box.button(press)->click();
      }
    });
  }
  bool WasShown() const { return shown_; }

  static std::vector<Lumidex::DataModel> Items(const ioPath& path) {
    Lumidex::DataModel item;
    item.SetPath(path);
    return {item};
  }

  const TempTree tree_;
  QWidget window_;
  const std::shared_ptr<FakeEnvironment> environment_ = std::make_shared<FakeEnvironment>("/resources");
  const App::ServiceScope<App::IHostEnvironment> environmentScope_{environment_};

 private:
  bool shown_ = false;
};

constexpr auto kOkCancel = QMessageBox::Ok | QMessageBox::Cancel;

TEST_F(RealDialogs, AskAboutFilesThatCannotBeRead) {
  const QString good = tree_.Write("a.jpg", "x").qstring();
  const QString missing = tree_.Path("b.jpg").qstring();
  const QString some =
      QStringLiteral("Some of the selected files do not have read permissions, they will not be added.");
  ExpectBox(QMessageBox::Warning, some, kOkCancel, QMessageBox::Ok);
  EXPECT_EQ(CheckFilesReadableDialog({good, missing}), QList<QString>{good});
  ExpectBox(QMessageBox::Warning, some, kOkCancel, QMessageBox::Cancel);
  EXPECT_TRUE(CheckFilesReadableDialog({good, missing}).isEmpty());
  ExpectBox(QMessageBox::Warning, some, kOkCancel, QMessageBox::NoButton);
  EXPECT_TRUE(CheckFilesReadableDialog({good, missing}).isEmpty()) << "closing is no consent";
  EXPECT_TRUE(WasShown());
  ExpectBox(QMessageBox::Warning,
            QStringLiteral("All of the selected files do not have read permissions, they will not be added."),
            QMessageBox::Ok, QMessageBox::NoButton);
  EXPECT_TRUE(CheckFilesReadableDialog({missing}).isEmpty());
  EXPECT_TRUE(WasShown());
}

TEST_F(RealDialogs, AskAboutFormatsThatCannotBeWritten) {
  const QString text = QStringLiteral(
      "The selected photo is in read-only formats (RAW). It will be converted to JPG or PNG after applying "
      "the "
      "tool.");
  ExpectBox(QMessageBox::Warning, text, kOkCancel, QMessageBox::Ok);
  EXPECT_TRUE(CheckFormatsWritableDialog(Items("/a.nef")));
  for (const auto press : {QMessageBox::Cancel, QMessageBox::NoButton}) {
    ExpectBox(QMessageBox::Warning, text, kOkCancel, press);
    EXPECT_FALSE(CheckFormatsWritableDialog(Items("/a.nef")));
    EXPECT_TRUE(WasShown());
  }
}

TEST_F(RealDialogs, TellWhatKeepsFilesFromBeingSaved) {
  const ioPath missing = tree_.Path("<b>a</b>.jpg");
  const QString text = QStringLiteral("You do not have permission to edit file: ") + missing.qstring();
  for (const auto press : {QMessageBox::Ok, QMessageBox::NoButton}) {
    ExpectBox(QMessageBox::Critical, text, QMessageBox::Ok, press);
    EXPECT_FALSE(CheckSaveAvailableDialog(Items(missing), CheckSaveAvailableMode::FilePermission));
    EXPECT_TRUE(WasShown());
  }
}

TEST_F(RealDialogs, LetTheCallersButtonsBePressed) {
  const ioPath folder = tree_.Path("missing");
  const QString text =
      QStringLiteral("You do not have permission to edit files in this folder: ") + folder.qstring();
  const auto buttons = QMessageBox::Retry | QMessageBox::Cancel;
  ExpectBox(QMessageBox::Critical, text, buttons, QMessageBox::Retry);
  EXPECT_EQ(CheckSaveAvailableDialog(folder, 1, buttons), QMessageBox::Retry);
  ExpectBox(QMessageBox::Critical, text, buttons, QMessageBox::NoButton);
  EXPECT_EQ(CheckSaveAvailableDialog(folder, 1, buttons), QMessageBox::Cancel);
  EXPECT_TRUE(WasShown());
}

TEST_F(RealDialogs, AskWhetherToCopy) {
  const auto storage = std::make_shared<FakeRemovableStorage>();
  const App::ServiceScope<App::IRemovableStorage> storageScope(storage);
  storage->roots = {tree_.Path("stick")};
  const QString source = tree_.Write("stick/a.jpg", "x").qstring();
  const QString text = QStringLiteral(
      "Some of the selected photos are on removable storage. Would you like copy they to your hard drive?");
  const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  ExpectBox(QMessageBox::Warning, text, buttons, QMessageBox::No);
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({source}), (QList<QPair<QString, QString>>{{QString(), source}}));
  for (const auto press : {QMessageBox::Cancel, QMessageBox::NoButton}) {
    ExpectBox(QMessageBox::Warning, text, buttons, press);
    EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({source}).isEmpty());
    EXPECT_TRUE(WasShown());
  }
  const App::ServiceScope<App::IFolderDialog> folderScope(
      std::make_shared<ScriptedFolderDialog>(std::vector<QString>{QString()}));
  ExpectBox(QMessageBox::Warning, text, buttons, QMessageBox::Yes);
  EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({source}).isEmpty());
}

}  // namespace
}  // namespace Zenvora::Util
