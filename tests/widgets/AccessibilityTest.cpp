// The labels as screen readers see them.

#include <LumidexUtil/ElidedClickableLabel.h>
#include <LumidexUtil/ElidedLabelWithExtention.h>
#include <LumidexUtil/KeyboardClicks.h>
#include <support/TextCatalogue.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QWidget>

#include <iostream>
#include <vector>

namespace Zenvora::Lumidex {
namespace {

QString RoleName(QAccessible::Role role) {
  switch (role) {
    case QAccessible::StaticText:
      return QStringLiteral("text");
    case QAccessible::Button:
      return QStringLiteral("button");
    case QAccessible::Window:
      return QStringLiteral("window");
    case QAccessible::Client:
      return QStringLiteral("area");
    default:
      return QStringLiteral("role %1").arg(static_cast<int>(role));
  }
}

void WriteTree(const QAccessibleInterface& node, int depth, QString& out) {
  out += QStringLiteral("%1%2 \"%3\"")
             .arg(QString(2 * depth, QLatin1Char(' ')), RoleName(node.role()), node.text(QAccessible::Name));
  if (node.state().focusable) {
    out += QStringLiteral(", reached by keyboard");
  }
  if (auto* const actions = const_cast<QAccessibleInterface&>(node).actionInterface()) {
    const QStringList names = actions->actionNames();
    if (!names.isEmpty()) {
      out += QStringLiteral(", ") + names.join(QStringLiteral(", "));
    }
  }
  out += QLatin1Char('\n');
  for (int i = 0; i < node.childCount(); ++i) {
    WriteTree(*node.child(i), depth + 1, out);
  }
}

QAccessibleInterface& Ask(QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(&widget);
}

TEST(AccessibleLabels, MakeATree) {
  QWidget window;
  window.setWindowTitle(QStringLiteral("Gallery"));
  auto* const title = new ElidedLabel(&window);
  title->SetOriginText(QStringLiteral("Summer holidays in the mountains, second week"));
  auto* const file = new ElidedLabelWithExtention(&window);
  file->SetOriginText(QStringLiteral("holiday_in_the_mountains.jpg"));
  auto* const more = new ElidedClickableLabel(&window);
  more->SetOriginText(QStringLiteral("Show all 128 photos"));
  auto* const keyed = new ElidedClickableLabel(&window);
  keyed->SetOriginText(QStringLiteral("Hide"));
  new KeyboardClicks(keyed);
  for (QWidget* const label :
       {static_cast<QWidget*>(title), static_cast<QWidget*>(file), static_cast<QWidget*>(more)}) {
    // Far too small for the text.
    label->resize(30, 10);
  }
  QString tree;
  WriteTree(Ask(window), 0, tree);
  std::cout << tree.toStdString();
  EXPECT_EQ(tree.toStdString(),
            "area \"Gallery\"\n"
            "  text \"Summer holidays in the mountains, second week\"\n"
            "  text \"holiday_in_the_mountains.jpg\"\n"
            "  button \"Show all 128 photos\", Press\n"
            "  button \"Hide\", reached by keyboard, Press, SetFocus\n");
}

TEST(AccessibleLabels, AreNamedAsTheirOwnerSays) {
  ElidedLabel label(nullptr);
  label.SetOriginText(QStringLiteral("a"));
  label.setAccessibleName(QStringLiteral("Title of the album"));
  label.setAccessibleDescription(QStringLiteral("What it is called"));
  EXPECT_EQ(Ask(label).text(QAccessible::Name), QStringLiteral("Title of the album"));
  EXPECT_EQ(Ask(label).text(QAccessible::Description), QStringLiteral("What it is called"));
}

TEST(AccessibleLabels, DoNotSayTheirNameTwice) {
  ElidedLabel label(nullptr);
  label.SetOriginText(QStringLiteral("a"));
  EXPECT_EQ(Ask(label).text(QAccessible::Description), QString());
  label.setToolTip(QStringLiteral("Made on a Sunday"));
  EXPECT_EQ(Ask(label).text(QAccessible::Description), QStringLiteral("Made on a Sunday"));
  ElidedLabelWithExtention named(nullptr);
  named.SetOriginText(QStringLiteral("a.jpg"));
  EXPECT_EQ(Ask(named).text(QAccessible::Description), QString());
}

TEST(AccessibleLabels, AreReadInTheLanguageThatIsShown) {
  const Zenvora::Test::TextCatalogue german(QStringLiteral("QFrame"),
                                            {{QStringLiteral("Beach"), QStringLiteral("Strand")}});
  ElidedLabel label(nullptr);
  label.SetOriginText(QStringLiteral("Beach"));
  EXPECT_EQ(Ask(label).text(QAccessible::Name), QStringLiteral("Strand"));
  ElidedLabelWithExtention named(nullptr);
  named.SetOriginText(QStringLiteral("Beach.jpg"));
  EXPECT_EQ(Ask(named).text(QAccessible::Name), QStringLiteral("Strand.jpg"));
}

TEST(AccessibleLabels, HaveTheRolesOfTextAndButton) {
  ElidedLabel label(nullptr);
  ElidedLabelWithExtention named(nullptr);
  ElidedClickableLabel clickable(nullptr);
  EXPECT_EQ(Ask(label).role(), QAccessible::StaticText);
  EXPECT_TRUE(Ask(label).state().readOnly);
  EXPECT_EQ(Ask(named).role(), QAccessible::StaticText);
  EXPECT_EQ(Ask(clickable).role(), QAccessible::Button);
  EXPECT_FALSE(Ask(clickable).state().readOnly);
  QFrame other;
  EXPECT_NE(Ask(other).role(), QAccessible::StaticText) << "frames of others are none of them";
}

TEST(AccessibleLabels, ArePressed) {
  ElidedClickableLabel clickable(nullptr);
  const QSignalSpy clicks(&clickable, &ElidedClickableLabel::clicked);
  QAccessibleActionInterface* const actions = Ask(clickable).actionInterface();
  ASSERT_NE(actions, nullptr);
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks.count(), 1);
  actions->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(clicks.count(), 1) << "what a button does not do";
  clickable.setEnabled(false);
  EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks.count(), 1);
  ElidedLabel label(nullptr);
  Ask(label).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(
      Ask(label).actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

std::vector<QObject*>& Renamed() {
  static std::vector<QObject*> objects;
  return objects;
}

TEST(AccessibleLabels, TellOfNewNames) {
  if (!QAccessible::isActive()) {
    GTEST_SKIP() << "no screen reader listens, so Qt passes no news on";
  }
  const auto before = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    if (event->type() == QAccessible::NameChanged) {
      Renamed().push_back(event->object());
    }
  });
  ElidedLabel label(nullptr);
  label.SetOriginText(QStringLiteral("a"));
  EXPECT_EQ(Renamed(), std::vector<QObject*>{&label});
  QEvent language(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&label, &language);
  EXPECT_EQ(Renamed().size(), 2U);
  QAccessible::installUpdateHandler(before);
}

}  // namespace
}  // namespace Zenvora::Lumidex
