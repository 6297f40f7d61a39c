#include <LumidexUtil/ShowHideSignalSender.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QMetaMethod>
#include <QPointer>
#include <QWidget>

#include <string>
#include <vector>

namespace Zenvora::Util {
namespace {

using Events = std::vector<std::string>;

/// Notes what comes to it.
class Watched : public QWidget {
 public:
  explicit Watched(Events& events) : events_(events) {}

 protected:
  void showEvent(QShowEvent* /*event*/) override { events_.push_back("show"); }
  void hideEvent(QHideEvent* /*event*/) override { events_.push_back("hide"); }

 private:
  Events& events_;
};

void Note(const ShowHideSignalSender& sender, Events& events) {
  QObject::connect(&sender, &ShowHideSignalSender::wasShown, [&events] { events.push_back("wasShown"); });
  QObject::connect(&sender, &ShowHideSignalSender::wasHidden, [&events] { events.push_back("wasHidden"); });
}

TEST(ShowHideSignalSender, TellsEachTimeAndKeepsNothingFromTheWidget) {
  Events events;
  Watched widget(events);
  const auto* const sender = new ShowHideSignalSender(&widget);
  Note(*sender, events);
  for (int i = 0; i < 2; ++i) {
    widget.show();
    widget.hide();
  }
  EXPECT_EQ(events,
            (Events{"wasShown", "show", "wasHidden", "hide", "wasShown", "show", "wasHidden", "hide"}));
  widget.hide();
  EXPECT_EQ(events.size(), 8U) << "it is hidden already";
}

TEST(ShowHideSignalSender, BelongsToItsWidget) {
  auto* const widget = new QWidget;
  const QPointer<ShowHideSignalSender> sender(new ShowHideSignalSender(widget));
  EXPECT_EQ(sender->parent(), widget);
  delete widget;
  EXPECT_TRUE(sender.isNull());
}

TEST(ShowHideSignalSender, TellsNothingOfOtherEvents) {
  Events events;
  QWidget widget;
  ShowHideSignalSender sender(&widget);
  Note(sender, events);
  for (int type = QEvent::None; type < QEvent::MaxUser; type += type < QEvent::User ? 1 : 1000) {
    QEvent event(static_cast<QEvent::Type>(type));
    EXPECT_FALSE(sender.eventFilter(&widget, &event)) << type;
  }
  EXPECT_EQ(events, (Events{"wasShown", "wasHidden"}));
  EXPECT_EQ(static_cast<int>(QEvent::Show), 17);
  EXPECT_EQ(static_cast<int>(QEvent::Hide), 18);
}

TEST(ShowHideSignalSender, DoesNotLookAtTheWidget) {
  Events events;
  QWidget widget;
  QObject other;
  ShowHideSignalSender sender(&widget);
  Note(sender, events);
  QEvent show(QEvent::Show);
  EXPECT_FALSE(sender.eventFilter(&other, &show));
  EXPECT_EQ(events, Events{"wasShown"});
}

TEST(ShowHideSignalSender, WatchesItsWidgetOnly) {
  Events events;
  QWidget window;
  QWidget child(&window);
  ShowHideSignalSender sender(&child);
  Note(sender, events);
  child.hide();
  window.show();
  EXPECT_TRUE(events.empty());
  child.show();
  window.hide();
  EXPECT_EQ(events, (Events{"wasShown", "wasHidden"})) << "a child goes with its window";
}

TEST(ShowHideSignalSender, HasItsSignalsInOrder) {
  const QMetaObject& meta = ShowHideSignalSender::staticMetaObject;
  EXPECT_STREQ(meta.className(), "Zenvora::Util::ShowHideSignalSender");
  EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
  ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 2);
  EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "wasShown()");
  EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodSignature(), "wasHidden()");
  EXPECT_EQ(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
  EXPECT_EQ(sizeof(ShowHideSignalSender), sizeof(QObject)) << "no fields of its own";
}

}  // namespace
}  // namespace Zenvora::Util
