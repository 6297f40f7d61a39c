// The real box, pressed by the test; and the contract that scripted alerts keep as well.

#include <support/Doubles.h>
#include <support/ModalBox.h>

#include <zenvora/tavolin/StyleAlertBox.h>

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <memory>
#include <string>

namespace Zenvora::Tavolin {
namespace {

using App::Alert;
using App::AlertButton;
using App::AlertButtons;
using Util::AlertBox;
using Zenvora::Test::PressWhenShown;
using Zenvora::Test::ScriptedAlerts;
using Zenvora::Test::WhenBoxIsShown;

constexpr Qt::WindowFlags kFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

class AlertsContract : public testing::TestWithParam<bool> {
 protected:
  /// What shows alerts, and a user who presses `button`.
  std::shared_ptr<App::IAlerts> Make(AlertButton button) const {
    if (!GetParam()) {
      return std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{button});
    }
    PressWhenShown(static_cast<QMessageBox::StandardButton>(button));
    return MakeMessageBoxes();
  }
};

TEST_P(AlertsContract, GivesTheButtonThatWasPressed) {
  for (const AlertButton button : {AlertButton::Yes, AlertButton::No, AlertButton::Cancel}) {
    Alert alert;
    alert.buttons = AlertButton::Yes | AlertButton::No | AlertButton::Cancel;
    EXPECT_EQ(Make(button)->Show(alert), button);
  }
}

TEST_P(AlertsContract, OffersOkWhereNoButtonIsAsked) {
  EXPECT_EQ(Make(AlertButton::Ok)->Show(Alert()), AlertButton::Ok);
}

INSTANTIATE_TEST_SUITE_P(Both, AlertsContract, testing::Bool());

/// What of a box can be seen while it is shown.
struct Seen {
  QString title;
  QString text;
  Qt::TextFormat format = Qt::AutoText;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton first = QMessageBox::NoButton;
  QWidget* parent = nullptr;
  Qt::WindowFlags flags;
  bool modal = false;
};

Seen See(QMessageBox& box) {
  Seen seen;
  seen.title = box.windowTitle();
  seen.text = box.text();
  seen.format = box.textFormat();
  seen.icon = box.icon();
  seen.buttons = box.standardButtons();
  seen.first = box.standardButton(box.defaultButton());
  seen.parent = box.parentWidget();
  seen.flags = box.windowFlags();
  seen.modal = box.isModal();
  return seen;
}

QMessageBox::StandardButton ShowBox(AlertBox box,
                                    const std::vector<QMessageBox::StandardButton>& emphasised = {},
                                    QMessageBox::StandardButton first = QMessageBox::NoButton) {
  return StyleAlertBox(box, emphasised, first)();
}

TEST(MessageBox, ShowsWhatItIsTold) {
  QWidget window;
  Seen seen;
  WhenBoxIsShown([&](QMessageBox& box) {
    seen = See(box);
    box.button(QMessageBox::Cancel)->click();
  });
  EXPECT_EQ(
      ShowBox(AlertBox(AlertBox::Warning, QStringLiteral("Attention"), QStringLiteral("A <b>text</b>\n写真"),
                       QMessageBox::Ok | QMessageBox::Cancel, &window, kFlags)),
      QMessageBox::Cancel);
  EXPECT_EQ(seen.title, QStringLiteral("Attention"));
  EXPECT_EQ(seen.text, QStringLiteral("A <b>text</b>\n写真"));
  EXPECT_EQ(seen.format, Qt::PlainText) << "names of files may look like mark-up";
  EXPECT_EQ(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
  EXPECT_EQ(seen.first, QMessageBox::Ok);
  EXPECT_EQ(seen.parent, &window);
  EXPECT_EQ(seen.flags & kFlags, kFlags);
  EXPECT_TRUE(seen.modal);
}

TEST(MessageBox, HasTheIconOfItsLevel) {
  const std::pair<AlertBox::Level, QMessageBox::Icon> rows[] = {
      {AlertBox::Information, QMessageBox::Information},
      {AlertBox::Critical, QMessageBox::Critical},
      {AlertBox::Warning, QMessageBox::Warning},
      {AlertBox::Question, QMessageBox::Question}};
  for (const auto& row : rows) {
    const AlertBox::Level level = row.first;
    Seen seen;
    WhenBoxIsShown([&](QMessageBox& box) {
      seen = See(box);
      EXPECT_FALSE(box.iconPixmap().isNull());
      // To be looked at by people.
      const QString folder = qEnvironmentVariable("LUMIDEX_TEST_PICTURES");
      if (!folder.isEmpty()) {
        box.grab().save(folder + QStringLiteral("/alert%1.png").arg(static_cast<int>(level)));
      }
      box.accept();
    });
    ShowBox(AlertBox(
        level, QStringLiteral("Attention"),
        QStringLiteral("Some of the selected photos are in read-only formats (for example, RAW). They "
                       "will be converted to JPG or PNG after applying the tool."),
        QMessageBox::Ok | QMessageBox::Cancel, nullptr, kFlags));
    EXPECT_EQ(seen.icon, row.second);
  }
}

TEST(MessageBox, IsCancelledByEscapeAndByClosing) {
  for (const bool byKey : {true, false}) {
    WhenBoxIsShown([byKey](QMessageBox& box) {
      if (byKey) {
        QTest::keyClick(&box, Qt::Key_Escape);
      } else {
        box.close();
      }
    });
    EXPECT_EQ(ShowBox(AlertBox(AlertBox::Warning, QString(), QString(),
                               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, nullptr, kFlags)),
              QMessageBox::Cancel);
  }
}

TEST(MessageBox, WithOneButtonIsClosedByIt) {
  WhenBoxIsShown([](QMessageBox& box) { box.close(); });
  EXPECT_EQ(ShowBox(AlertBox(AlertBox::Critical, QString(), QString(), QMessageBox::Ok, nullptr, kFlags)),
            QMessageBox::Ok);
}

TEST(MessageBox, ThatNothingStopsMustBeAnswered) {
  WhenBoxIsShown([](QMessageBox& box) {
    QTest::keyClick(&box, Qt::Key_Escape);
    box.close();
    EXPECT_TRUE(box.isVisible());
    box.button(QMessageBox::Ignore)->click();
  });
  EXPECT_EQ(ShowBox(AlertBox(AlertBox::Critical, QString(), QString(),
                             QMessageBox::Retry | QMessageBox::Ignore, nullptr, kFlags)),
            QMessageBox::Ignore);
}

TEST(MessageBox, IsAnsweredByEnterAsItsDefaultSays) {
  WhenBoxIsShown([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
  EXPECT_EQ(ShowBox(AlertBox(AlertBox::Warning, QString(), QString(), QMessageBox::Ok | QMessageBox::Cancel,
                             nullptr, kFlags)),
            QMessageBox::Ok);
  WhenBoxIsShown([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
  EXPECT_EQ(ShowBox(AlertBox(AlertBox::Warning, QString(), QString(), QMessageBox::Ok | QMessageBox::Cancel,
                             nullptr, kFlags),
                    {}, QMessageBox::Cancel),
            QMessageBox::Cancel);
}

TEST(MessageBox, MakesTheEmphasisedStandOut) {
  WhenBoxIsShown([](QMessageBox& box) {
    EXPECT_TRUE(box.button(QMessageBox::Yes)->font().bold());
    EXPECT_FALSE(box.button(QMessageBox::No)->font().bold());
    box.button(QMessageBox::No)->click();
  });
  EXPECT_EQ(ShowBox(AlertBox(AlertBox::Question, QString(), QString(), QMessageBox::Yes | QMessageBox::No),
                    {QMessageBox::Yes}),
            QMessageBox::No);
}

TEST(MessageBox, CanBeReadByPrograms) {
  WhenBoxIsShown([](QMessageBox& box) {
    EXPECT_EQ(box.accessibleName(), QStringLiteral("Attention"));
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("Text"));
    const auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    ASSERT_NE(label, nullptr);
    EXPECT_TRUE(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    EXPECT_TRUE(label->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    box.accept();
  });
  ShowBox(
      AlertBox(AlertBox::Information, QStringLiteral("Attention"), QStringLiteral("Text"), QMessageBox::Ok));
}

TEST(MessageBox, ShowsLongNamesWhole) {
  const QString folder = qEnvironmentVariable("LUMIDEX_TEST_PICTURES");
  for (const int length : {255, 4000}) {
    WhenBoxIsShown([&](QMessageBox& box) {
      const QSize screen = QGuiApplication::primaryScreen()->size();
      EXPECT_LE(box.width(), screen.width());
      EXPECT_LE(box.height(), screen.height());
      const auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      ASSERT_NE(label, nullptr);
      // Broken as the label breaks it, no line is wider than the label.
      const QRect needed =
          label->fontMetrics().boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text());
      EXPECT_LE(needed.width(), label->contentsRect().width());
      if (!folder.isEmpty()) {
        box.grab().save(folder + QStringLiteral("/alert-long%1.png").arg(length));
      }
      box.accept();
    });
    ShowBox(AlertBox(
        AlertBox::Critical, QStringLiteral("Attention"),
        QStringLiteral("You do not have permission to edit file: /") + QString(length, QLatin1Char('x')),
        QMessageBox::Ok, nullptr, kFlags));
  }
}

TEST(MessageBox, IsAnsweredWhenItsWindowGoes) {
  auto* const window = new QWidget;
  WhenBoxIsShown([window](QMessageBox&) { delete window; });
  EXPECT_EQ(ShowBox(AlertBox(AlertBox::Warning, QString(), QString(), QMessageBox::Ok | QMessageBox::Cancel,
                             window, kFlags)),
            QMessageBox::Cancel);
}

TEST(MessageBox, IsGoneAfterTheAnswer) {
  QPointer<QMessageBox> shown;
  WhenBoxIsShown([&shown](QMessageBox& box) {
    shown = &box;
    box.accept();
  });
  ShowBox(AlertBox(AlertBox::Information, QString(), QString(), QMessageBox::Ok));
  EXPECT_TRUE(shown.isNull());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace Zenvora::Tavolin
