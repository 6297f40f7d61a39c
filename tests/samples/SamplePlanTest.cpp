#include "SamplePlan.h"

#include <gtest/gtest.h>

#include <QDate>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

bool Dated(const SampleShot& shot) {
  return shot.dating == SampleDating::Original || shot.dating == SampleDating::DigitisedOnly;
}

int PhotosFrom(const std::vector<SampleShot>& plan, const QDate& first, const QDate& last) {
  return static_cast<int>(std::count_if(plan.begin(), plan.end(), [&](const SampleShot& shot) {
    return Dated(shot) && shot.taken.date() >= first && shot.taken.date() <= last;
  }));
}

int WeekendPhotos(const std::vector<SampleShot>& plan, int year, int month) {
  return static_cast<int>(std::count_if(plan.begin(), plan.end(), [&](const SampleShot& shot) {
    const QDate day = shot.taken.date();
    return Dated(shot) && day.year() == year && day.month() == month && day.dayOfWeek() >= 6;
  }));
}

std::string Folded(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::tolower(c) : c); });
  return text;
}

class SamplePlanOfSize : public ::testing::TestWithParam<int> {};

TEST_P(SamplePlanOfSize, HasExactlyThatManyPhotosInOrderOfTime) {
  const auto plan = PlanSample(3, GetParam());
  EXPECT_EQ(static_cast<int>(plan.size()), GetParam());
  EXPECT_TRUE(std::is_sorted(plan.begin(), plan.end(),
                             [](const SampleShot& a, const SampleShot& b) { return a.taken < b.taken; }));
}

TEST_P(SamplePlanOfSize, NamesNoFileTwiceAndNoneThatASystemRefuses) {
  std::set<std::string> names;
  for (const SampleShot& shot : PlanSample(3, GetParam())) {
    EXPECT_TRUE(names.insert(Folded(shot.path)).second) << shot.path;
    EXPECT_EQ(shot.path.find_first_of("\\:*?\"<>|"), std::string::npos) << shot.path;
    EXPECT_NE(shot.path.front(), '/');
    const std::string last = shot.path.substr(shot.path.rfind('/') + 1);
    EXPECT_LE(last.size(), 255U);
    EXPECT_NE(last.front(), '.') << "hidden: " << shot.path;
  }
}

TEST_P(SamplePlanOfSize, HasTwentyPhotosOfAChristmasAndOfAMonthsWeekends) {
  const auto plan = PlanSample(3, GetParam());
  EXPECT_GE(PhotosFrom(plan, {2023, 12, 24}, {2023, 12, 25}), 20);
  EXPECT_GE(WeekendPhotos(plan, 2022, 9), 20);
  // Two weekends, neither of them enough alone.
  if (GetParam() <= 360) {
    EXPECT_LT(PhotosFrom(plan, {2022, 9, 17}, {2022, 9, 18}), 20);
    EXPECT_LT(PhotosFrom(plan, {2022, 9, 24}, {2022, 9, 25}), 20);
  }
}

TEST_P(SamplePlanOfSize, HasPhotosWithoutAndWithBrokenDates) {
  std::map<SampleDating, int> counts;
  for (const SampleShot& shot : PlanSample(3, GetParam())) {
    ++counts[shot.dating];
  }
  EXPECT_GE(counts[SampleDating::None], 2);
  EXPECT_GE(counts[SampleDating::DigitisedOnly], 1);
  EXPECT_EQ(counts[SampleDating::Zeros], 1);
  EXPECT_GE(counts[SampleDating::Original], GetParam() * 9 / 10 - 1);
}

TEST_P(SamplePlanOfSize, HasOddNamesAndTurnedPictures) {
  std::set<int> orientations;
  std::set<std::string> names;
  for (const SampleShot& shot : PlanSample(3, GetParam())) {
    orientations.insert(shot.orientation);
    names.insert(shot.path.substr(shot.path.rfind('/') + 1));
    EXPECT_EQ(shot.look.size.height() > shot.look.size.width(), shot.orientation > 4) << shot.path;
  }
  EXPECT_EQ(orientations, (std::set<int>{1, 3, 6, 8}));
  EXPECT_EQ(names.count("Пейзаж.jpg"), 1U);
  EXPECT_EQ(names.count("日本の庭.jpg"), 1U);
  EXPECT_EQ(names.count("Grandma's garden.jpg"), 1U);
  EXPECT_TRUE(
      std::any_of(names.begin(), names.end(), [](const std::string& name) { return name.size() > 200; }));
}

INSTANTIATE_TEST_SUITE_P(Sizes, SamplePlanOfSize, ::testing::Values(50, 51, 73, 360, 5000, 100'000));

TEST(SamplePlan, ReachesFromTheFirstYearToTheLast) {
  const auto plan = PlanSample(1, 360);
  std::map<int, int> years;
  for (const SampleShot& shot : plan) {
    ++years[shot.taken.date().year()];
  }
  EXPECT_EQ(years.begin()->first, 2019);
  EXPECT_EQ(years.rbegin()->first, 2025);
  EXPECT_EQ(years.size(), 7U);
}

TEST(SamplePlan, HasHolidaysOfManyAndOfFewPhotos) {
  const auto plan = PlanSample(1, 360);
  struct Holiday {
    const char* name;
    QDate first;
    QDate last;
    int least;
    int most;
  };
  const Holiday holidays[] = {
      {"New Year", {2021, 12, 31}, {2022, 1, 1}, 20, 99},
      {"Halloween", {2022, 10, 31}, {2022, 10, 31}, 20, 99},
      {"Independence Day", {2023, 7, 4}, {2023, 7, 4}, 20, 99},
      {"Valentine's Day", {2022, 2, 14}, {2022, 2, 14}, 20, 99},
      {"Women's Day", {2021, 3, 8}, {2021, 3, 8}, 20, 99},
      {"Golden Week", {2019, 4, 29}, {2019, 5, 5}, 20, 99},
      {"Christmas", {2020, 12, 24}, {2020, 12, 25}, 1, 19},
      {"Halloween", {2019, 10, 31}, {2019, 10, 31}, 1, 19},
      {"Independence Day", {2025, 7, 4}, {2025, 7, 4}, 1, 19},
      {"Valentine's Day", {2020, 2, 14}, {2020, 2, 14}, 1, 19},
  };
  for (const Holiday& holiday : holidays) {
    const int photos = PhotosFrom(plan, holiday.first, holiday.last);
    EXPECT_GE(photos, holiday.least) << holiday.name << ' ' << holiday.first.year();
    EXPECT_LE(photos, holiday.most) << holiday.name << ' ' << holiday.first.year();
  }
}

TEST(SamplePlan, CrossesTheYearsEndWithPhotosOnBothSides) {
  const auto plan = PlanSample(1, 360);
  EXPECT_GT(PhotosFrom(plan, {2021, 12, 31}, {2021, 12, 31}), 0);
  EXPECT_GT(PhotosFrom(plan, {2022, 1, 1}, {2022, 1, 1}), 0);
}

TEST(SamplePlan, HasWeekendsThatMakeOneMonthTogetherAndOneAcrossTwoMonths) {
  const auto plan = PlanSample(1, 360);
  EXPECT_GE(WeekendPhotos(plan, 2021, 8), 20);
  EXPECT_GT(PhotosFrom(plan, {2021, 8, 7}, {2021, 8, 8}), 0);
  EXPECT_GT(PhotosFrom(plan, {2021, 8, 21}, {2021, 8, 22}), 0);
  EXPECT_GT(PhotosFrom(plan, {2021, 8, 28}, {2021, 8, 29}), 0);
  EXPECT_EQ(QDate(2023, 9, 30).dayOfWeek(), 6);
  EXPECT_GT(PhotosFrom(plan, {2023, 9, 30}, {2023, 9, 30}), 0);
  EXPECT_GT(PhotosFrom(plan, {2023, 10, 1}, {2023, 10, 1}), 0);
}

TEST(SamplePlan, TravelsToAllFourQuartersOfTheEarth) {
  std::set<std::pair<bool, bool>> quarters;
  for (const SampleShot& shot : PlanSample(1, 360)) {
    if (shot.hasPosition) {
      quarters.insert({shot.latitude > 0, shot.longitude > 0});
      EXPECT_LE(std::abs(shot.latitude), 90);
      EXPECT_LE(std::abs(shot.longitude), 180);
    }
  }
  EXPECT_EQ(quarters.size(), 4U);
}

TEST(SamplePlan, TakesEveryKindOfSceneWithEveryCamera) {
  std::set<std::size_t> cameras;
  std::set<SceneKind> kinds;
  for (const SampleShot& shot : PlanSample(1, 2000)) {
    cameras.insert(shot.camera);
    kinds.insert(shot.look.kind);
  }
  EXPECT_EQ(cameras.size(), SampleCameras().size());
  EXPECT_EQ(kinds.size(), static_cast<std::size_t>(kSceneKinds));
}

TEST(SamplePlan, TakesBurstsOfOneSceneWithinSeconds) {
  std::map<int, std::vector<SampleShot>> bursts;
  for (const SampleShot& shot : PlanSample(1, 360)) {
    if (shot.burst > 0) {
      bursts[shot.burst].push_back(shot);
    }
  }
  EXPECT_GE(bursts.size(), 10U);
  for (const auto& [number, shots] : bursts) {
    ASSERT_GE(shots.size(), 3U) << number;
    EXPECT_LE(shots.front().taken.msecsTo(shots.back().taken), 10'000) << number;
    for (const SampleShot& shot : shots) {
      EXPECT_EQ(shot.look.seed, shots.front().look.seed);
      EXPECT_EQ(shot.look.kind, shots.front().look.kind);
      EXPECT_TRUE(&shot == &shots.front() || shot.look.grainSeed != shots.front().look.grainSeed);
    }
  }
}

TEST(SamplePlan, ReachesFurtherBackForLargerCollections) {
  EXPECT_EQ(PlanSample(1, 2000).front().taken.date().year(), 2019);
  EXPECT_LT(PlanSample(1, 20'000).front().taken.date().year(), 2019);
  EXPECT_GE(PlanSample(1, 100'000).front().taken.date().year(), 2000);
}

TEST(SamplePlan, DependsOnTheSeedAlone) {
  const auto sameAs = [](const SampleShot& a, const SampleShot& b) {
    return a.path == b.path && a.taken == b.taken && a.look.seed == b.look.seed && a.latitude == b.latitude &&
           a.look.grainSeed == b.look.grainSeed && a.orientation == b.orientation;
  };
  const auto plan = PlanSample(9, 500);
  const auto again = PlanSample(9, 500);
  const auto other = PlanSample(10, 500);
  EXPECT_TRUE(std::equal(plan.begin(), plan.end(), again.begin(), again.end(), sameAs));
  EXPECT_FALSE(std::equal(plan.begin(), plan.end(), other.begin(), other.end(), sameAs));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
