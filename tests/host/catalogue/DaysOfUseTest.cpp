#include "JournalFixture.h"

#include <host/journal/JournalRoom.h>
#include <support/Doubles.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/Services.h>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DaysOfUse : public Zenvora::Test::JournalTest {
 protected:
  void OpenOn(const QDate& day, const QTime& time = QTime(12, 0)) {
    clock_->now = QDateTime(day, time);
    Open();
  }
  void OpenOn(const char* day) { OpenOn(QDate::fromString(QLatin1String(day), Qt::ISODate)); }

  void EditOnce(const char* step = "edit") {
    const ioPath photo = Make("a.jpg", "before");
    Edit({photo}, "after", QLatin1String(step));
  }
  std::int64_t AgeOfOldest() const { return journal_->Steps().back().daysOfUse; }

  const std::shared_ptr<Zenvora::Test::FakeClock> clock_ = std::make_shared<Zenvora::Test::FakeClock>();
  const App::ServiceScope<App::IClock> scope_{clock_};
};

TEST_F(DaysOfUse, CountOnceADay) {
  OpenOn("2024-05-17");
  EditOnce();
  for (const QTime& time : {QTime(12, 1), QTime(18, 0), QTime(23, 59)}) {
    OpenOn(QDate(2024, 5, 17), time);
    EXPECT_EQ(AgeOfOldest(), 0);
  }
  OpenOn(QDate(2024, 5, 18), QTime(0, 0));
  EXPECT_EQ(AgeOfOldest(), 1);
  OpenOn(QDate(2024, 5, 18), QTime(23, 0));
  EXPECT_EQ(AgeOfOldest(), 1);
  // Days on which nothing is done make nothing older.
  OpenOn("2024-09-01");
  EXPECT_EQ(AgeOfOldest(), 2);
}

TEST_F(DaysOfUse, ForgetNothingForAWrongClock) {
  OpenOn("2024-05-17");
  EditOnce();
  const UndoLimits usual;
  std::int64_t age = 0;
  for (const char* day : {"1970-01-01", "2024-05-17", "2038-01-19", "2024-05-17", "2100-01-01", "2024-05-17",
                          "9999-12-31", "2024-05-17", "1969-12-31", "2024-05-18", "2024-05-17"}) {
    OpenOn(day);
    EXPECT_EQ(AgeOfOldest(), ++age) << day;
    EXPECT_EQ(journal_->Prune(usual), 0U) << day;
  }
  EXPECT_EQ(Undo().files, 1U);
}

TEST_F(DaysOfUse, WorkBeyondTheYearsThatHaveAName) {
  for (const QDate& day : {QDate(10000, 1, 1), QDate(123456, 7, 8), QDate(-5, 1, 1), QDate(9999, 12, 31)}) {
    OpenOn(day);
    EditOnce("odd");
    const UndoStep step = journal_->Steps().front();
    EXPECT_EQ(step.begun.isValid(), day == QDate(9999, 12, 31)) << step.begun.toString().toStdString();
    EXPECT_EQ(journal_->Prune(UndoLimits()), 0U);
    EXPECT_EQ(Undo().files, 1U);
  }
  OpenOn("2024-05-17");
  EXPECT_EQ(AgeOfOldest(), 1);
}

TEST_F(DaysOfUse, MakeAStepTooOldAfterSoManyOfThem) {
  OpenOn(QDate(2024, 1, 1));
  EditOnce("old");
  UndoLimits limits;
  limits.days = 3;
  for (int day = 1; day <= 3; ++day) {
    OpenOn(QDate(2024, 1, 1).addDays(day));
    EXPECT_EQ(journal_->Prune(limits), 0U) << day;
  }
  EditOnce("new");
  OpenOn(QDate(2024, 1, 5));
  // Nobody is asked for it, so it is not announced.
  EXPECT_THAT(PlanRoom(catalogue_, {}, ReadUndoSteps(catalogue_), limits).forgotten, IsEmpty());
  EXPECT_EQ(journal_->Prune(limits, {}), 1U);
  EXPECT_THAT(StepNames(), ElementsAre("new"));
  EXPECT_EQ(Kept().size(), 1U);
}

TEST_F(DaysOfUse, CountFromTheFirstInACatalogueThatDidNotCountThem) {
  OpenOn("2001-01-01");
  EditOnce();
  Close();
  Zenvora::Test::RunSql(catalogue_, {"DELETE FROM days_of_use", "UPDATE steps SET day = 0"});
  OpenOn("2024-05-17");
  EXPECT_EQ(AgeOfOldest(), 0);
  OpenOn("2024-05-18");
  EXPECT_EQ(AgeOfOldest(), 1);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
