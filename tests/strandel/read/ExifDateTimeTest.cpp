#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <ctime>
#include <string>

namespace Zenvora::Strandel {
namespace {

struct Accepted {
  std::string text;
  std::string subSeconds;
  const char* expected;  // yyyy-MM-ddTHH:mm:ss.zzz
};

class AcceptedDates : public testing::TestWithParam<Accepted> {};

TEST_P(AcceptedDates, AreReadAsWritten) {
  const QDateTime date = ParseExifDateTime(GetParam().text, GetParam().subSeconds);
  ASSERT_TRUE(date.isValid()) << GetParam().text;
  EXPECT_EQ(date.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")).toStdString(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Table, AcceptedDates,
                         testing::Values(Accepted{"2021:05:01 10:20:30", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021-05-01 10:20:30", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021/05/01 10:20:30", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021.05.01 10:20:30", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021-05-01T10:20:30", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20", "", "2021-05-01T10:20:00.000"},
                                         Accepted{"2021:05:01 10:20", "5", "2021-05-01T10:20:00.500"},
                                         Accepted{"  2021:05:01 10:20:30  ", "", "2021-05-01T10:20:30.000"},
                                         Accepted{std::string("2021:05:01 10:20:30\0\0", 21), "",
                                                  "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20:30", "7", "2021-05-01T10:20:30.700"},
                                         Accepted{"2021:05:01 10:20:30", "07", "2021-05-01T10:20:30.070"},
                                         Accepted{"2021:05:01 10:20:30", "123", "2021-05-01T10:20:30.123"},
                                         Accepted{"2021:05:01 10:20:30", "123999", "2021-05-01T10:20:30.123"},
                                         Accepted{"2021:05:01 10:20:30", " 40 ", "2021-05-01T10:20:30.400"},
                                         Accepted{"2021:05:01 10:20:30", "abc", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20:30", "-5", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20:30", "   ", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20:30.25", "", "2021-05-01T10:20:30.250"},
                                         Accepted{"2021:05:01 10:20:30.25", "75", "2021-05-01T10:20:30.750"},
                                         Accepted{"2021:05:01 10:20:30Z", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20:30+02:00", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2021:05:01 10:20:30-0700", "", "2021-05-01T10:20:30.000"},
                                         Accepted{"2020:02:29 00:00:00", "", "2020-02-29T00:00:00.000"},
                                         Accepted{"1899:12:31 23:59:59", "", "1899-12-31T23:59:59.000"},
                                         Accepted{"9999:12:31 23:59:59", "999", "9999-12-31T23:59:59.999"}));

class RejectedDates : public testing::TestWithParam<std::string> {};

TEST_P(RejectedDates, AreInvalid) {
  EXPECT_FALSE(ParseExifDateTime(GetParam(), "12").isValid()) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, RejectedDates,
                         testing::Values("", " ", "    :  :     :  :  ", "0000:00:00 00:00:00",
                                         "0000:01:01 00:00:00", "2021:00:01 10:20:30", "2021:13:01 10:20:30",
                                         "2021:05:00 10:20:30", "2021:02:29 10:20:30", "2021:04:31 10:20:30",
                                         "2021:05:01 24:00:00", "2021:05:01 10:60:30", "2021:05:01 10:20:60",
                                         "2021:05:01", "2021", "10:20:30", "2021:05:01  10:20:30",
                                         "2021:5:1 10:20:30", "21:05:01 10:20:30", "-021:05:01 10:20:30",
                                         "+021:05:01 10:20:30", "2021:05:01 10:20:3",
                                         "2021:05:01 10:20:", "2021:05:01 10:20:30 PM",
                                         "2021:05:01 10:20:30x", "2021:05:01x10:20:30", "2021_05_01 10:20:30",
                                         "2021:05:01 10.20.30", "2021:05:01 10:20:30+2",
                                         std::string("2021\0", 5) + "05:01 10:20:30", "\xFF\xFF\xFF\xFF"));

TEST(CameraTime, KeepsAnHourThatTheClockHereSkips) {
  qputenv("TZ", "Europe/Berlin");
  tzset();
  const QDateTime skipped = ParseExifDateTime("2021:03:28 02:30:00", "");
  const QDateTime usual = ParseExifDateTime("2021:03:28 01:30:00", "");
  qputenv("TZ", "UTC");
  tzset();

  ASSERT_TRUE(skipped.isValid());
  EXPECT_EQ(skipped.date(), QDate(2021, 3, 28));
  EXPECT_EQ(skipped.time(), QTime(2, 30));
  EXPECT_EQ(usual.timeSpec(), Qt::LocalTime);
}

TEST(CameraTime, IsInvalidWithoutADateOrATime) {
  EXPECT_FALSE(CameraTime(QDate(), QTime(1, 2)).isValid());
  EXPECT_FALSE(CameraTime(QDate(2021, 1, 1), QTime()).isValid());
  EXPECT_FALSE(CameraTime(QDate(), QTime()).isValid());
}

}  // namespace
}  // namespace Zenvora::Strandel
