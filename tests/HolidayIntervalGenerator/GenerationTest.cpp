#include "HolidayFixture.h"

#include <support/Zone.h>

#include <gmock/gmock.h>

#include <QRegularExpression>
#include <QSet>

namespace Zenvora::Test {
namespace {

using Lumidex::Album;
using Lumidex::DataAttributeId;
using Lumidex::DataModel;
using Lumidex::ItemType;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// 2015-03-07 is a Saturday.
const QDate kSaturday(2015, 3, 7);
const QDate kSunday(2015, 3, 8);

std::vector<QString> Ids(const std::vector<DataModel>& photos) {
  std::vector<QString> ids;
  ids.reserve(photos.size());
  for (const DataModel& photo : photos) {
    ids.push_back(photo.GetId());
  }
  return ids;
}

class Generation : public HolidayTest {};

TEST_F(Generation, DeliversAnEmptyVectorForNoPhotos) {
  ShipEvents({});
  EXPECT_THAT(Generate({}), IsEmpty());
}

TEST_F(Generation, MakesAnAlbumOfTwentyPhotosOfOneWeekend) {
  ShipEvents({});
  const auto photos = Join({PhotosOf(kSaturday, 12), PhotosOf(kSunday, 8)});
  const std::vector<Album> albums = Generate(photos);
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetName(), QStringLiteral("Weekend\nMarch 2015"));
  EXPECT_EQ(albums[0].GetPhotoIds(), Ids(photos));
}

TEST_F(Generation, DropsAGroupOfNineteen) {
  ShipEvents({{"Spring", "01.03", "05.03"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(kSaturday, 10), PhotosOf(kSunday, 9)})), IsEmpty());
  EXPECT_THAT(GenerateNames(PhotosOf(QDate(2015, 3, 2), 19)), IsEmpty());
  EXPECT_THAT(GenerateNames(PhotosOf(QDate(2015, 3, 2), 20)), ElementsAre("Spring\nMarch 2015"));
}

TEST_F(Generation, DropsWorkingDaysThatLieInNoEvent) {
  ShipEvents({{"Spring", "20.03", "20.03"}});
  for (int day = 9; day <= 13; ++day) {
    EXPECT_THAT(GenerateNames(PhotosOf(QDate(2015, 3, day), 30)), IsEmpty()) << day;
  }
}

TEST_F(Generation, FillsTheAlbumRecordAsAgreed) {
  ShipEvents({{"Spring", "02.03", "06.03"}});
  const std::vector<Album> albums = Generate(PhotosOf(QDate(2015, 3, 4), 20));
  ASSERT_THAT(albums, SizeIs(1));
  const DataModel& model = albums[0].GetModel();
  EXPECT_EQ(model.GetType(), ItemType::Album);
  EXPECT_EQ(static_cast<int>(model.GetType()), 2);
  EXPECT_EQ(model.GetDateTime(), QDateTime(QDate(2015, 3, 2), QTime(0, 0)));
  EXPECT_TRUE(
      QRegularExpression("^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$").match(model.GetId()).hasMatch())
      << model.GetId().toStdString();
  const Album::Attributes expected = {{static_cast<DataAttributeId>(0), QString()},
                                      {static_cast<DataAttributeId>(1), QString()}};
  EXPECT_EQ(albums[0].GetAttributes(), expected);
  EXPECT_TRUE(model.GetPath().empty());
}

TEST_F(Generation, GivesEveryAlbumANewId) {
  ShipEvents({{"A", "02.03", "02.03"}, {"B", "03.03", "03.03"}});
  QSet<QString> ids;
  for (int run = 0; run < 2; ++run) {
    for (const Album& album :
         Generate(Join({PhotosOf(QDate(2015, 3, 2), 20), PhotosOf(QDate(2015, 3, 3), 20)}))) {
      ids.insert(album.GetModel().GetId());
    }
  }
  EXPECT_EQ(ids.size(), 4);
}

TEST_F(Generation, KeepsMembersInInputOrder) {
  ShipEvents({});
  const auto photos = Join({PhotosOf(kSunday, 7), PhotosOf(QDate(2015, 3, 14), 6), PhotosOf(kSaturday, 7)});
  const std::vector<Album> albums = Generate(photos);
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetPhotoIds(), Ids(photos));
}

TEST_F(Generation, MergesWeekendsOfOneMonth) {
  ShipEvents({});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(kSaturday, 10), PhotosOf(QDate(2015, 3, 22), 10)})),
              ElementsAre("Weekend\nMarch 2015"));
}

TEST_F(Generation, SplitsWeekendsOfDifferentMonths) {
  ShipEvents({});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2015, 3, 28), 10), PhotosOf(QDate(2015, 4, 4), 10)})),
              IsEmpty());
}

TEST_F(Generation, NamesAWeekendAcrossAMonthByBothMonths) {
  ShipEvents({});
  // 31 January 2015 is a Saturday.
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2015, 1, 31), 10), PhotosOf(QDate(2015, 2, 1), 10)})),
              ElementsAre("Weekend\nJanuary - February 2015"));
  // Ten more of the month's other weekends do not join it.
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2015, 1, 31), 10), PhotosOf(QDate(2015, 1, 24), 10),
                                  PhotosOf(QDate(2015, 2, 7), 10)})),
              IsEmpty());
}

TEST_F(Generation, NamesAWeekendAcrossAYearByBothYears) {
  ShipEvents({});
  // 31 December 2016 is a Saturday.
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2016, 12, 31), 10), PhotosOf(QDate(2017, 1, 1), 10)})),
              ElementsAre("Weekend\nDecember 2016 - January 2017"));
}

TEST_F(Generation, DatesAGroupByThePhotoThatCameFirst) {
  ShipEvents({});
  // The later weekend comes first in the input, with its Sunday.
  const std::vector<Album> albums =
      Generate(Join({PhotosOf(QDate(2015, 3, 22), 10), PhotosOf(kSaturday, 10)}));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetDateTime(), QDateTime(QDate(2015, 3, 21), QTime(0, 0)));
}

TEST_F(Generation, LetsAHolidayBeatAWeekend) {
  ShipEvents({{"Women's Day", "07.03", "07.03"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(kSaturday, 20), PhotosOf(kSunday, 20)})),
              ElementsAre("Weekend\nMarch 2015", "Women's Day\n07 March 2015"));
}

TEST_F(Generation, TakesTheFirstEventInFileOrder) {
  ShipEvents({{"Narrow", "24.12", "26.12"}, {"Wide", "01.12", "31.12"}, {"Never", "25.12", "25.12"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2014, 12, 25), 20), PhotosOf(QDate(2014, 12, 23), 20)})),
              ElementsAre("Narrow\nDecember 2014", "Wide\nDecember 2014"));
}

TEST_F(Generation, IncludesBothBoundsOfAnEvent) {
  ShipEvents({{"Carnival", "10.02", "12.02"}});
  // 9 and 13 February 2015 are working days.
  for (const auto& [day, matches] : {std::pair{9, false}, {10, true}, {11, true}, {12, true}, {13, false}}) {
    EXPECT_EQ(GenerateNames(PhotosOf(QDate(2015, 2, day), 20)).size(), matches ? 1U : 0U) << day;
  }
}

TEST_F(Generation, LetsAnEventWithoutNameFallBackToTheWeekendAndHideLaterEvents) {
  ShipEvents({{"", "06.03", "07.03"}, {"Hidden", "06.03", "07.03"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2015, 3, 6), 25), PhotosOf(kSaturday, 20)})),
              ElementsAre("Weekend\nMarch 2015"));
}

TEST_F(Generation, MakesAnAlbumForEachYearOfAHoliday) {
  ShipEvents({{"Labour Day", "01.05", "03.05"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2014, 5, 1), 20), PhotosOf(QDate(2015, 5, 1), 20)})),
              ElementsAre("Labour Day\nMay 2014", "Labour Day\nMay 2015"));
}

TEST_F(Generation, PutsBothSidesOfNewYearIntoOneAlbum) {
  ShipEvents({{"New Year", "25.12", "10.01"}});
  const std::vector<Album> albums =
      Generate(Join({PhotosOf(QDate(2014, 12, 31), 10), PhotosOf(QDate(2015, 1, 2), 10)}));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetName(), QStringLiteral("New Year\nDecember 2014 - January 2015"));
  EXPECT_EQ(albums[0].GetModel().GetDateTime(), QDateTime(QDate(2014, 12, 25), QTime(0, 0)));
}

TEST_F(Generation, BoundsAnEventOverNewYearOnBothSides) {
  ShipEvents({{"New Year", "30.12", "02.01"}});
  struct Row {
    QDate day;
    const char* name;
  };
  const std::vector<Row> rows = {
      {QDate(2014, 12, 29), nullptr},
      {QDate(2014, 12, 30), "New Year\nDecember 2014 - January 2015"},
      {QDate(2014, 12, 31), "New Year\nDecember 2014 - January 2015"},
      {QDate(2015, 1, 1), "New Year\nDecember 2014 - January 2015"},
      {QDate(2015, 1, 2), "New Year\nDecember 2014 - January 2015"},
      {QDate(2015, 1, 5), nullptr},
      {QDate(2015, 12, 30), "New Year\nDecember 2015 - January 2016"},
  };
  for (const Row& row : rows) {
    const auto names = GenerateNames(PhotosOf(row.day, 20));
    if (row.name) {
      EXPECT_THAT(names, ElementsAre(row.name)) << row.day.toString(Qt::ISODate).toStdString();
    } else {
      EXPECT_THAT(names, IsEmpty()) << row.day.toString(Qt::ISODate).toStdString();
    }
  }
}

TEST_F(Generation, MergesOccurrencesOfOneNameInOneMonth) {
  ShipEvents({{"Fair", "02.03", "03.03"}, {"Fair", "10.03", "11.03"}});
  const std::vector<Album> albums =
      Generate(Join({PhotosOf(QDate(2015, 3, 10), 10), PhotosOf(QDate(2015, 3, 2), 10)}));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetName(), QStringLiteral("Fair\nMarch 2015"));
  EXPECT_EQ(albums[0].GetModel().GetDateTime().date(), QDate(2015, 3, 10));
}

TEST_F(Generation, LetsAnEventCalledWeekendShareTheWeekendGroup) {
  ShipEvents({{"Weekend", "02.03", "03.03"}});
  const std::vector<Album> albums =
      Generate(Join({PhotosOf(kSaturday, 10), PhotosOf(QDate(2015, 3, 2), 10)}));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetDateTime().date(), kSaturday);
}

TEST_F(Generation, NamesAOneDayEventWithItsDay) {
  ShipEvents({{"Women's Day", "08.03", "08.03"}});
  EXPECT_THAT(GenerateNames(PhotosOf(kSunday, 20)), ElementsAre("Women's Day\n08 March 2015"));
}

TEST_F(Generation, KeepsPercentSignsOfNames) {
  ShipEvents({{"100%1 %2 fun", "02.03", "03.03"}, {"%L1%99", "10.03", "11.03"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2015, 3, 2), 20), PhotosOf(QDate(2015, 3, 10), 20)})),
              ElementsAre("%L1%99\nMarch 2015", "100%1 %2 fun\nMarch 2015"));
}

TEST_F(Generation, OrdersAlbumsByUtf16Units) {
  // U+1F384 begins with a unit below U+FB01 though its code point is above it; upper case stands before lower
  // case.
  ShipEvents({{"\xEF\xAC\x81n", "02.03", "02.03"},
              {"\xF0\x9F\x8E\x84", "03.03", "03.03"},
              {"a", "04.03", "04.03"},
              {"Z", "05.03", "05.03"},
              {"\xC3\x84", "06.03", "06.03"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(QDate(2015, 3, 2), 20), PhotosOf(QDate(2015, 3, 3), 20),
                                  PhotosOf(QDate(2015, 3, 4), 20), PhotosOf(QDate(2015, 3, 5), 20),
                                  PhotosOf(QDate(2015, 3, 6), 20)})),
              ElementsAre("Z\n05 March 2015", "a\n04 March 2015", "\xC3\x84\n06 March 2015",
                          "\xF0\x9F\x8E\x84\n03 March 2015", "\xEF\xAC\x81n\n02 March 2015"));
}

TEST_F(Generation, NeverMatches29FebruaryWithAnEventWithinAYear) {
  ShipEvents({{"Winter", "01.02", "10.03"}});
  // 29 February 2012 is a Wednesday, that of 2020 a Saturday.
  EXPECT_THAT(GenerateNames(PhotosOf(QDate(2012, 2, 29), 20)), IsEmpty());
  EXPECT_THAT(GenerateNames(PhotosOf(QDate(2020, 2, 29), 20)), ElementsAre("Weekend\nFebruary - March 2020"));
  EXPECT_THAT(GenerateNames(PhotosOf(QDate(2012, 2, 28), 20)), ElementsAre("Winter\nFebruary - March 2012"));
}

TEST_F(Generation, MatchesA29FebruaryWithTheFirstEventOverNewYear) {
  ShipEvents({{"Winter", "01.02", "10.03"}, {"New Year", "30.12", "02.01"}, {"Season", "01.11", "01.04"}});
  const std::vector<Album> albums = Generate(PhotosOf(QDate(2012, 2, 29), 20));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetName(), QStringLiteral("New Year\nDecember 2011 - January 2012"));
  EXPECT_EQ(albums[0].GetModel().GetDateTime().date(), QDate(2011, 12, 30));
}

std::vector<DataModel> UndatedPhotos(int count) {
  std::vector<DataModel> photos = PhotosOf(kSaturday, count);
  for (DataModel& photo : photos) {
    photo.SetDateTime(QDateTime());
  }
  return photos;
}

TEST_F(Generation, DropsUndatedPhotosWhenNoEventRunsOverNewYear) {
  ShipEvents({{"Winter", "01.01", "31.12"}});
  EXPECT_THAT(GenerateNames(UndatedPhotos(40)), IsEmpty());
}

TEST_F(Generation, MatchesUndatedPhotosWithTheFirstEventOverNewYear) {
  ShipEvents({{"New Year", "30.12", "02.01"}});
  const std::vector<Album> albums = Generate(UndatedPhotos(20));
  ASSERT_THAT(albums, SizeIs(1));
  // An invalid date has the year 0, which Qt's calendar lacks: the second half of the interval has no name.
  EXPECT_EQ(albums[0].GetModel().GetName().section('\n', 0, 0), QStringLiteral("New Year"));
  EXPECT_EQ(albums[0].GetModel().GetDateTime().date(), QDate(-1, 12, 30));
}

TEST_F(Generation, IgnoresTheKindOfItem) {
  ShipEvents({});
  std::vector<DataModel> items;
  for (const DataModel& photo : PhotosOf(kSaturday, 20)) {
    DataModel item(QStringLiteral("x"), photo.GetId(), ItemType::Person);
    item.SetDateTime(photo.GetDateTime());
    items.push_back(item);
  }
  EXPECT_THAT(GenerateNames(items), ElementsAre("Weekend\nMarch 2015"));
}

TEST_F(Generation, KeepsTheWordWeekendUntranslatedAndWordsIntervalsInTheInterfaceLanguage) {
  language->locale = "de_DE";
  ShipEvents({{"Frauentag", "10.03", "12.03"}});
  EXPECT_THAT(GenerateNames(Join({PhotosOf(kSaturday, 20), PhotosOf(QDate(2015, 3, 10), 20)})),
              ElementsAre("Frauentag\nM\xC3\xA4rz 2015", "Weekend\nM\xC3\xA4rz 2015"));
}

TEST_F(Generation, AsksForTheLanguageOncePerGroupNotPerPhoto) {
  ShipEvents({});
  language->asked = 0;
  Generate(Join({PhotosOf(kSaturday, 500), PhotosOf(kSunday, 500), PhotosOf(QDate(2015, 3, 14), 500)}));
  const int forManyPhotos = language->asked;
  language->asked = 0;
  Generate(PhotosOf(kSaturday, 1));
  EXPECT_EQ(forManyPhotos, language->asked);
}

TEST_F(Generation, TakesEveryPhotoOfALargeCollection) {
  ShipEvents({{"Summer", "01.06", "31.08"}});
  std::vector<DataModel> photos;
  for (QDate day(2001, 1, 1); day < QDate(2011, 1, 1); day = day.addDays(1)) {
    photos = Join({photos, PhotosOf(day, 2)});
  }
  std::size_t members = 0;
  std::size_t expected = 0;
  for (const DataModel& photo : photos) {
    const QDate day = photo.GetDateTime().date();
    const bool summer = day.month() >= 6 && day.month() <= 8;
    // Weekends across months hold four photos and make no album; so does one whose other day is a summer's.
    const QDate saturday = day.dayOfWeek() == Qt::Sunday ? day.addDays(-1) : day;
    const bool weekend = day.dayOfWeek() >= Qt::Saturday && saturday.month() == saturday.addDays(1).month();
    int monthPhotos = 0;
    if (weekend && !summer) {
      for (QDate other(day.year(), day.month(), 1); other.month() == day.month(); other = other.addDays(1)) {
        const QDate first = other.dayOfWeek() == Qt::Sunday ? other.addDays(-1) : other;
        monthPhotos += other.dayOfWeek() >= Qt::Saturday && first.month() == first.addDays(1).month() ? 2 : 0;
      }
    }
    expected += summer || monthPhotos >= 20 ? 1 : 0;
  }
  for (const Album& album : Generate(photos)) {
    EXPECT_GE(album.GetPhotoIds().size(), 20U);
    members += album.GetPhotoIds().size();
  }
  EXPECT_EQ(members, expected);
}

#ifndef _WIN32
TEST_F(Generation, BeginsAnAlbumLaterWhereMidnightIsSkipped) {
  // The clocks go forward at midnight to the first Sunday of November.
  const Zone zone("<-03>3<-02>,M11.1.0/0,M2.3.0/0");
  const QDate day(2018, 11, 4);
  ShipEvents({{"Spring", "04.11", "10.11"}});
  const std::vector<Album> albums = Generate(PhotosOf(QDate(2018, 11, 6), 20));
  ASSERT_THAT(albums, SizeIs(1));
  const QDateTime date = albums[0].GetModel().GetDateTime();
  EXPECT_TRUE(date.isValid());
  EXPECT_EQ(date.date(), day);
  EXPECT_EQ(date.time(), QTime(1, 0));
}
#endif

}  // namespace
}  // namespace Zenvora::Test
