#include <LumidexUtil/ElidedClickableLabel.h>
#include <LumidexUtil/KeyboardClicks.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace Zenvora::Lumidex {
namespace {

/// The window that holds a label, and gets what the label leaves.
class Window : public QWidget {
 public:
  int presses = 0;
  int releases = 0;

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
  void mouseReleaseEvent(QMouseEvent* /*event*/) override { ++releases; }
};

class ClickableLabel : public testing::Test {
 protected:
  ClickableLabel() { label_->resize(100, 20); }

  void Send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
            QPoint at = {5, 5}) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, label_->mapToGlobal(at), button, held, modifiers);
    QCoreApplication::sendEvent(label_, &event);
  }
  int Clicks(Qt::MouseButton button, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             QPoint releasedAt = {5, 5}) {
    const int before = clicks_.count();
    Send(QEvent::MouseButtonPress, button, modifiers);
    Send(QEvent::MouseButtonRelease, button, modifiers, releasedAt);
    return clicks_.count() - before;
  }

  Window window_;
  ElidedClickableLabel* const label_ = new ElidedClickableLabel(&window_);
  QSignalSpy clicks_{label_, &ElidedClickableLabel::clicked};
};

TEST_F(ClickableLabel, IsClickedWithTheLeftButton) {
  EXPECT_EQ(Clicks(Qt::LeftButton), 1);
  EXPECT_EQ(Clicks(Qt::LeftButton), 1);
}

TEST_F(ClickableLabel, IsNotClickedWithOtherButtons) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
    EXPECT_EQ(Clicks(button), 0);
  }
}

TEST_F(ClickableLabel, IsNotClickedWithModifiers) {
  for (const Qt::KeyboardModifier modifier :
       {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier, Qt::MetaModifier, Qt::KeypadModifier}) {
    EXPECT_EQ(Clicks(Qt::LeftButton, modifier), 0);
  }
}

TEST_F(ClickableLabel, LooksAtTheModifiersOfTheReleaseOnly) {
  Send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::ControlModifier);
  Send(QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(clicks_.count(), 1);
  Send(QEvent::MouseButtonPress, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ClickableLabel, IsClickedWhereverTheButtonIsReleased) {
  EXPECT_EQ(Clicks(Qt::LeftButton, Qt::NoModifier, {-500, 900}), 1);
}

TEST_F(ClickableLabel, NeedsAPressForEachRelease) {
  Send(QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(clicks_.count(), 0);
  Send(QEvent::MouseButtonPress, Qt::LeftButton);
  Send(QEvent::MouseButtonRelease, Qt::RightButton);
  Send(QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(clicks_.count(), 0) << "any release takes the press away";
}

TEST_F(ClickableLabel, TakesThePressOfAnyButton) {
  Send(QEvent::MouseButtonPress, Qt::RightButton);
  Send(QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ClickableLabel, LeavesEventsToItsParentAsWidgetsDo) {
  Clicks(Qt::LeftButton);
  Clicks(Qt::RightButton);
  EXPECT_EQ(window_.presses, 2);
  EXPECT_EQ(window_.releases, 2);
}

TEST_F(ClickableLabel, TellsOfTheClickBeforeItsParentHearsOfIt) {
  int heard = -1;
  QObject::connect(label_, &ElidedClickableLabel::clicked, [&] { heard = window_.releases; });
  Clicks(Qt::LeftButton);
  EXPECT_EQ(heard, 0);
}

TEST_F(ClickableLabel, MayBeDeletedByTheClick) {
  QObject::connect(label_, &ElidedClickableLabel::clicked, [this] { delete label_; });
  const QPointer<QObject> gone(label_);
  Send(QEvent::MouseButtonPress, Qt::LeftButton);
  // Through the label itself, as events of the system come to a widget that Qt watches.
  Send(QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_TRUE(gone.isNull());
}

TEST_F(ClickableLabel, IsNoStopOfTheKeyboardByItself) {
  EXPECT_EQ(label_->focusPolicy(), Qt::NoFocus);
  QTest::keyClick(label_, Qt::Key_Return);
  QTest::keyClick(label_, Qt::Key_Space);
  EXPECT_EQ(clicks_.count(), 0);
}

class KeyedLabel : public ClickableLabel {
 protected:
  KeyedLabel() { new KeyboardClicks(label_); }
  QWidget* Mark() const { return label_->findChild<QWidget*>(); }
};

TEST_F(KeyedLabel, IsReachedByTab) {
  auto* const other = new ElidedClickableLabel(&window_);
  new KeyboardClicks(other);
  other->move(0, 30);
  window_.show();
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  label_->setFocus();
  EXPECT_EQ(window_.focusWidget(), label_);
  QTest::keyClick(label_, Qt::Key_Tab);
  EXPECT_EQ(window_.focusWidget(), other);
}

TEST_F(KeyedLabel, IsClickedByEnterAndSpace) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    const int before = clicks_.count();
    QTest::keyPress(label_, key);
    EXPECT_EQ(clicks_.count() - before, key == Qt::Key_Space ? 0 : 1) << "Space clicks when it comes up";
    QTest::keyRelease(label_, key);
    EXPECT_EQ(clicks_.count() - before, 1);
  }
  QTest::keyClick(label_, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(clicks_.count(), 4) << "the number block's as well";
}

TEST_F(KeyedLabel, IsNotClickedByOtherKeysNorWithModifiers) {
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_Escape, Qt::Key_Left}) {
    QTest::keyClick(label_, key);
  }
  for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
    QTest::keyClick(label_, Qt::Key_Return, modifier);
    QTest::keyClick(label_, Qt::Key_Space, modifier);
  }
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(KeyedLabel, IsClickedOnceWhileAKeyIsHeld) {
  for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
    clicks_.clear();
    for (const bool repeated : {false, true, true}) {
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeated);
      QCoreApplication::sendEvent(label_, &press);
    }
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(label_, &release);
    EXPECT_EQ(clicks_.count(), 1);
  }
}

TEST_F(KeyedLabel, IsNotClickedWhenTheFocusGoesMeanwhile) {
  QTest::keyPress(label_, Qt::Key_Space);
  QFocusEvent out(QEvent::FocusOut);
  QCoreApplication::sendEvent(label_, &out);
  QTest::keyRelease(label_, Qt::Key_Space);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(KeyedLabel, ShowsWhereTheKeyboardIs) {
  window_.show();
  ASSERT_NE(Mark(), nullptr);
  EXPECT_FALSE(Mark()->isVisible());
  QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
  QCoreApplication::sendEvent(label_, &in);
  EXPECT_TRUE(Mark()->isVisible());
  EXPECT_EQ(Mark()->geometry(), label_->rect());
  label_->resize(70, 40);
  EXPECT_EQ(Mark()->geometry(), label_->rect());
  EXPECT_TRUE(Mark()->testAttribute(Qt::WA_TransparentForMouseEvents));
  QFocusEvent out(QEvent::FocusOut);
  QCoreApplication::sendEvent(label_, &out);
  EXPECT_FALSE(Mark()->isVisible());
}

TEST_F(KeyedLabel, IsStillClickedWithTheMouse) {
  EXPECT_EQ(Clicks(Qt::LeftButton), 1);
}

TEST_F(KeyedLabel, MayBeDeletedByAKey) {
  QObject::connect(label_, &ElidedClickableLabel::clicked, [this] { delete label_; });
  const QPointer<QObject> gone(label_);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(label_, &press);
  EXPECT_TRUE(gone.isNull());
}

}  // namespace
}  // namespace Zenvora::Lumidex
