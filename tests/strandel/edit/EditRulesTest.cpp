#include <zenvora/strandel/DateText.h>
#include <zenvora/strandel/EditRules.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace Zenvora::Strandel {
namespace {

/// What an orientation does to the corners of a picture, told from how it is shown: which stored corner is
/// seen top left, top right, bottom right and bottom left.
using Corners = std::array<int, 4>;

Corners ShownBy(int orientation) {
  // By the definition of EXIF: where the stored first row and first column are seen.
  switch (orientation) {
    case 1:
      return {0, 1, 2, 3};  // row on top, column at the left
    case 2:
      return {1, 0, 3, 2};  // row on top, column at the right
    case 3:
      return {2, 3, 0, 1};  // row at the bottom, column at the right
    case 4:
      return {3, 2, 1, 0};  // row at the bottom, column at the left
    case 5:
      return {0, 3, 2, 1};  // row at the left, column on top
    case 6:
      return {3, 0, 1, 2};  // row at the right, column on top
    case 7:
      return {2, 1, 0, 3};  // row at the right, column at the bottom
    default:
      return {1, 2, 3, 0};  // row at the left, column at the bottom
  }
}

Corners TurnedRight(const Corners& shown) {
  return {shown[3], shown[0], shown[1], shown[2]};
}

TEST(EditRules, TurnWhatIsSeenWhateverTheOrientation) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    Corners seen = ShownBy(orientation);
    for (const Turn turn : {Turn::None, Turn::Right, Turn::Half, Turn::Left}) {
      EXPECT_EQ(ShownBy(TurnedOrientation(orientation, turn)), seen) << orientation << ' ' << int(turn);
      seen = TurnedRight(seen);
    }
  }
}

TEST(EditRules, TurnByTable) {
  struct Row {
    int orientation, right, half, left;
  };
  for (const Row& row : {Row{1, 6, 3, 8}, Row{2, 7, 4, 5}, Row{3, 8, 1, 6}, Row{4, 5, 2, 7}, Row{5, 2, 7, 4},
                         Row{6, 3, 8, 1}, Row{7, 4, 5, 2}, Row{8, 1, 6, 3}}) {
    EXPECT_EQ(TurnedOrientation(row.orientation, Turn::Right), row.right) << row.orientation;
    EXPECT_EQ(TurnedOrientation(row.orientation, Turn::Half), row.half) << row.orientation;
    EXPECT_EQ(TurnedOrientation(row.orientation, Turn::Left), row.left) << row.orientation;
  }
}

TEST(EditRules, TakeAnOrientationThatIsNoneForUpright) {
  for (const int orientation : {0, 9, -1, 65535}) {
    EXPECT_EQ(TurnedOrientation(orientation, Turn::None), 1);
    EXPECT_EQ(TurnedOrientation(orientation, Turn::Left), 8);
  }
}

QDateTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int ms = 0) {
  return {QDate(year, month, day), QTime(hour, minute, second, ms), Qt::UTC};
}

TEST(EditRules, ShiftOverMidnightAndLeapDays) {
  using std::chrono::hours;
  using std::chrono::seconds;
  EXPECT_EQ(ShiftedTime(At(2020, 2, 28, 23, 30), hours(1)), At(2020, 2, 29, 0, 30));
  EXPECT_EQ(ShiftedTime(At(2021, 1, 1), seconds(-1)), At(2020, 12, 31, 23, 59, 59));
  EXPECT_EQ(ShiftedTime(At(2021, 3, 28, 1, 59), hours(1)), At(2021, 3, 28, 2, 59)) << "no summer time";
}

TEST(EditRules, ShiftsEndWithTheYear9999) {
  using std::chrono::seconds;
  EXPECT_EQ(ShiftedTime(At(9999, 12, 31, 23, 59, 58), seconds(1)), At(9999, 12, 31, 23, 59, 59));
  EXPECT_FALSE(ShiftedTime(At(9999, 12, 31, 23, 59, 59), seconds(1)).isValid());
  EXPECT_EQ(ShiftedTime(At(1, 1, 1, 0, 0, 1), seconds(-1)), At(1, 1, 1));
  EXPECT_FALSE(ShiftedTime(At(1, 1, 1), seconds(-1)).isValid());
  EXPECT_FALSE(ShiftedTime(At(2000, 1, 1), seconds(std::numeric_limits<std::int64_t>::max())).isValid());
  EXPECT_FALSE(ShiftedTime(At(2000, 1, 1), seconds(std::numeric_limits<std::int64_t>::min())).isValid());
  EXPECT_FALSE(ShiftedTime(QDateTime(), seconds(1)).isValid());
}

struct Written {
  std::string text;
  std::string changed;  ///< To the second half of 2003-02-01 04:05:06; empty: it is no date.
};

class DateTexts : public testing::TestWithParam<Written> {};

TEST_P(DateTexts, KeepTheirForm) {
  const auto text = DateText::Parse(GetParam().text);
  ASSERT_EQ(text.has_value(), !GetParam().changed.empty());
  if (text) {
    EXPECT_EQ(text->WithFraction(At(2003, 2, 1, 4, 5, 6, 789)), GetParam().changed);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, DateTexts,
    testing::Values(
        Written{"2021:05:01 10:20:30", "2003:02:01 04:05:06"},
        Written{std::string("2021:05:01 10:20:30\0", 20), std::string("2003:02:01 04:05:06\0", 20)},
        Written{std::string("2021:05:01 10:20:30\0junk", 24), std::string("2003:02:01 04:05:06\0junk", 24)},
        Written{"2021/05/01 10:20:30  ", "2003/02/01 04:05:06  "},
        Written{" 2021.05.01 10:20:30", " 2003.02.01 04:05:06"},
        Written{"2021:05:01 10:20", "2003:02:01 04:05:06"},
        Written{"2021-05-01T10:20:30Z", "2003-02-01T04:05:06Z"},
        Written{"2021-05-01T10:20:30+02:00", "2003-02-01T04:05:06+02:00"},
        Written{"2021-05-01T10:20:30-0230", "2003-02-01T04:05:06-0230"},
        Written{"2021-05-01T10:20-02:30", "2003-02-01T04:05:06-02:30"},
        Written{"2021-05-01T10:20:30.5", "2003-02-01T04:05:06.7"},
        Written{"2021-05-01T10:20:30.12+02:00", "2003-02-01T04:05:06.78+02:00"},
        Written{"2021-05-01T10:20:30.123456", "2003-02-01T04:05:06.789000"}, Written{"2021", "2003"},
        Written{"2021-05", "2003-02"}, Written{"2021-05-01", "2003-02-01"}, Written{"", ""}, Written{"x", ""},
        Written{"0000:00:00 00:00:00", ""}, Written{"    :  :     :  :  ", ""},
        Written{"2021:13:01 10:20:30", ""}, Written{"2021:02:29 10:20:30", ""},
        Written{"2021:05:01 24:20:30", ""}, Written{"2021:05:01 10:60:30", ""},
        Written{"2021:05:01 10:20:60", ""}, Written{"2021:05:01 10", ""}, Written{"2021:05:01 10:20:3", ""},
        Written{"2021:05:01 10:20:30 x", ""}, Written{"2021:05:01T", ""},
        Written{"2021:05:01 10:20:30+2", ""}, Written{"20210501", ""}, Written{"21:05:01 10:20:30", ""}));

TEST(DateText, KnowsWhatItSays) {
  const auto whole = DateText::Parse("2021-05-01T10:20:30.25+02:00");
  ASSERT_TRUE(whole);
  EXPECT_TRUE(whole->HasTime());
  EXPECT_TRUE(whole->HasZone());
  EXPECT_EQ(whole->Fraction(), "25");
  EXPECT_EQ(whole->Value(), At(2021, 5, 1, 10, 20, 30));
  const auto month = DateText::Parse("2021-05");
  ASSERT_TRUE(month);
  EXPECT_FALSE(month->HasTime());
  EXPECT_FALSE(month->HasZone());
  EXPECT_TRUE(month->Agrees(QDate(2021, 5, 17)));
  EXPECT_FALSE(month->Agrees(QDate(2021, 6, 1)));
  EXPECT_FALSE(month->Agrees(QDate()));
}

}  // namespace
}  // namespace Zenvora::Strandel
