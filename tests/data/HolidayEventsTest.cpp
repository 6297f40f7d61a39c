// The calendar as it lies in the resource folder.

#include <host/albums/CalendarCheck.h>

#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <set>

namespace Zenvora::Lumidex::Host {
namespace {

constexpr int kDaysInYear = 365;

ioPath Shipped() {
  return LUMIDEX_CALENDAR;
}

std::set<int> DaysOf(const CalendarEvent& event) {
  std::set<int> days;
  for (int day = event.start.dayOfYear();; day = day % kDaysInYear + 1) {
    days.insert(day);
    if (day == event.end.dayOfYear()) {
      return days;
    }
  }
}

bool Overlap(const std::set<int>& left, const std::set<int>& right) {
  for (const int day : left) {
    if (right.count(day) > 0) {
      return true;
    }
  }
  return false;
}

class ShippedCalendar : public ::testing::TestWithParam<std::string> {
 protected:
  std::vector<CalendarEvent> events = ReadCalendar(Shipped(), GetParam());
};

TEST(TheShippedCalendar, HasNoMistakes) {
  for (const CalendarFinding& finding : CheckCalendar(Shipped())) {
    ADD_FAILURE() << finding.locale << ", event " << finding.number << ": " << finding.text;
  }
}

TEST_P(ShippedCalendar, HasADozenEvents) {
  EXPECT_GE(events.size(), 12U);
}

TEST_P(ShippedCalendar, LetsTheNarrowerOfTwoOverlappingEventsWin) {
  for (std::size_t later = 0; later < events.size(); ++later) {
    for (std::size_t earlier = 0; earlier < later; ++earlier) {
      const std::set<int> first = DaysOf(events[earlier]);
      const std::set<int> second = DaysOf(events[later]);
      if (Overlap(first, second)) {
        EXPECT_LE(first.size(), second.size())
            << events[earlier].name.toStdString() << " stands before " << events[later].name.toStdString();
      }
    }
  }
}

TEST_P(ShippedCalendar, HidesNoEventWholly) {
  const auto hidden = FindHidden(events);
  for (std::size_t i = 0; i < events.size(); ++i) {
    EXPECT_TRUE(hidden[i].empty()) << events[i].name.toStdString();
  }
}

TEST_P(ShippedCalendar, NamesEventsInOneTidyLine) {
  for (const CalendarEvent& event : events) {
    EXPECT_EQ(event.name, event.name.simplified());
    EXPECT_EQ(event.name, event.name.normalized(QString::NormalizationForm_C));
    // Album names would read as two placeholders otherwise.
    EXPECT_FALSE(event.name.contains(QLatin1Char('%')));
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, ShippedCalendar, ::testing::ValuesIn(App::InterfaceLanguages()),
                         [](const auto& param) { return param.param; });

}  // namespace
}  // namespace Zenvora::Lumidex::Host
