// Qt's own folder dialog, answered by the test; and the contract that the scripted one keeps as well.

#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/qtutility/StandardDialogs.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace Zenvora::Util {
namespace {

using Zenvora::Test::ScriptedFolderDialog;
using Zenvora::Test::TempTree;

/// Does something to the dialog that comes up next.
void WhenShown(const std::function<void(QFileDialog&)>& act) {
  auto* const timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, [timer, act] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog != nullptr && dialog->isVisible()) {
      timer->deleteLater();
      timer->stop();
      act(*dialog);
    }
  });
  timer->start(1);
}

class FolderDialogTest : public testing::TestWithParam<bool> {
 protected:
  /// What the user will choose; empty: they cancel.
  void Choose(const ioPath& folder) {
    if (GetParam()) {
      WhenShown([this, folder](QFileDialog& dialog) {
        caption_ = dialog.windowTitle();
        start_ = ioPath(dialog.directory().absolutePath());
        parent_ = dialog.parentWidget();
        if (folder.empty()) {
          dialog.reject();
        } else {
          dialog.selectFile(folder.qstring());
          QMetaObject::invokeMethod(&dialog, "accept");
        }
      });
    } else {
      scripted_ = std::make_shared<ScriptedFolderDialog>(
          std::vector<QString>{QDir::fromNativeSeparators(folder.qstring())});
      scope_ = std::make_unique<App::ServiceScope<App::IFolderDialog>>(scripted_);
    }
  }

  QString Ask(QWidget* parent, const ioPath& start) {
    const QString answer =
        StandardDialogs::getExistingDirectory(parent, QStringLiteral("Wähle"), start.qstring(),
                                              QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (scripted_ != nullptr && !scripted_->asked.empty()) {
      const App::FolderQuestion& asked = scripted_->asked.back();
      caption_ = asked.caption;
      start_ = ioPath(asked.startFolder);
      parent_ = asked.parent;
      EXPECT_EQ(asked.options, int(QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog));
    }
    return answer;
  }

  const TempTree tree_;
  std::shared_ptr<ScriptedFolderDialog> scripted_;
  std::unique_ptr<App::ServiceScope<App::IFolderDialog>> scope_;
  QString caption_;
  ioPath start_;
  QWidget* parent_ = nullptr;
};

TEST_P(FolderDialogTest, GivesTheFolderThatTheUserChose) {
  QWidget window;
  const ioPath folder = tree_.MakeFolder("Пейзаж 写真");
  Choose(folder);
  EXPECT_EQ(ioPath(Ask(&window, tree_.Path())), ioPath(QDir::fromNativeSeparators(folder.qstring())));
  EXPECT_EQ(caption_, QStringLiteral("Wähle"));
  EXPECT_EQ(ioPath(QDir::fromNativeSeparators(start_.qstring())),
            ioPath(QDir::fromNativeSeparators(tree_.Path().qstring())));
  EXPECT_EQ(parent_, &window);
}

TEST_P(FolderDialogTest, GivesNothingWhenTheUserCancels) {
  Choose(ioPath());
  EXPECT_EQ(Ask(nullptr, tree_.Path()), QString());
  EXPECT_EQ(parent_, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Both, FolderDialogTest, testing::Bool());

TEST(FolderDialog, BeginsSomewhereWhenItsStartIsGone) {
  const TempTree tree;
  QString start;
  WhenShown([&start](QFileDialog& dialog) {
    start = dialog.directory().absolutePath();
    dialog.reject();
  });
  EXPECT_EQ(
      StandardDialogs::getExistingDirectory(nullptr, QString(), tree.Path("missing").qstring(),
                                            QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog),
      QString());
  EXPECT_TRUE(QDir(start).exists());
}

}  // namespace
}  // namespace Zenvora::Util
