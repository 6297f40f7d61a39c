#include "SamplePlan.h"

#include "SampleNames.h"

#include <host/base/Dice.h>

#include <QDate>
#include <QTime>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kFirstYear = 2019;
constexpr int kLastYear = 2025;

enum Camera : std::size_t { kReflex, kPocket, kPhone, kWide, kOldPhone };

/// Something one photographs at certain hours.
struct Motif {
  SceneKind kind;
  double fromHour;
  double toHour;
  int day = -1;  ///< Only on this day of the occasion, counted from 0; -1: on any.
};
using Motifs = std::vector<Motif>;

struct Place {
  const char* name;
  double latitude;
  double longitude;
  int altitude;
  Motifs motifs;
};

/// A span of days with something to photograph.
struct Occasion {
  QDate first;
  int days;
  int photos;
  Motifs motifs;
  std::size_t camera;
  std::string album;
  const Place* place = nullptr;
};

using K = SceneKind;

const Motifs kChristmas = {
    {K::ChristmasTree, 16.5, 22}, {K::ChristmasTree, 8, 11}, {K::Houses, 15.5, 18.5}, {K::Lake, 10, 14}};
const Motifs kNewYear = {{K::Fireworks, 22.5, 23.95, 0}, {K::City, 19.5, 22.3, 0},
                         {K::ChristmasTree, 17, 21, 0},  {K::Fireworks, 0.02, 0.7, 1},
                         {K::Lake, 11, 15, 1},           {K::Houses, 9.5, 11, 1}};
const Motifs kHalloween = {{K::Houses, 17, 22}, {K::Houses, 12, 15.5}, {K::City, 18, 21}};
const Motifs kSummerParty = {
    {K::Fireworks, 21.4, 22.9}, {K::Flowers, 15, 17}, {K::Beach, 11, 16}, {K::Fireworks, 21.6, 22.8}};
const Motifs kValentine = {{K::Roses, 9, 20}, {K::City, 18.3, 21}, {K::Roses, 11, 18}};
const Motifs kBirthday = {{K::Roses, 15, 20}, {K::Flowers, 10, 18}};
const Motifs kFlowerDay = {{K::Flowers, 9, 17}, {K::Roses, 9, 18}};
const Motifs kSpring = {{K::Flowers, 10, 17}, {K::Houses, 11, 17}, {K::Lake, 9, 18}};
const Motifs kSummer = {{K::Beach, 10, 19.5}, {K::Flowers, 9, 17}, {K::Lake, 8, 20}};
const Motifs kAutumn = {{K::Lake, 9, 18.4}, {K::Houses, 13, 18.5}, {K::City, 10, 18}};
const Motifs kWinter = {{K::Lake, 10, 16}, {K::Houses, 9, 17.5}, {K::City, 15, 18}};

const std::vector<Place>& Places() {
  static const std::vector<Place> places = {
      {"Lisbon", 38.7139, -9.1334, 60, {{K::Houses, 9, 19}, {K::City, 18, 21.5}, {K::Beach, 10, 17}}},
      {"Cape Town", -33.9249, 18.4241, 25, {{K::Beach, 9, 19}, {K::Lake, 9, 19}, {K::City, 18.6, 20}}},
      {"Tokyo", 35.6762, 139.6503, 40, {{K::City, 17.5, 22.8}, {K::Flowers, 10, 16}, {K::City, 10, 15}}},
      {"Rio de Janeiro", -22.9068, -43.1729, 15, {{K::Beach, 8, 20}, {K::Lake, 9, 18}, {K::City, 19, 22}}},
      {"Tromsø", 69.6492, 18.9553, 10, {{K::Lake, 10, 15}, {K::Houses, 12, 17}}},
      {"San Francisco", 37.8083, -122.4156, 12, {{K::City, 9, 22}, {K::Beach, 16, 20}, {K::Houses, 10, 18}}},
      {"Interlaken", 46.6863, 7.8632, 570, {{K::Lake, 8, 20}, {K::Flowers, 9, 17}, {K::Houses, 9, 15}}},
      {"Sydney", -33.8568, 151.2153, 8, {{K::City, 9, 22}, {K::Beach, 8, 18}}},
  };
  return places;
}

const Motifs& OfSeason(int month) {
  return month <= 2 || month == 12 ? kWinter : month <= 5 ? kSpring : month <= 8 ? kSummer : kAutumn;
}

int LastDayOf(int year, int month) {
  return QDate(year, month, 1).daysInMonth();
}

/// What every collection has, the most telling first, so that small collections have it too.
std::vector<Occasion> Backbone() {
  const auto& places = Places();
  const auto day = [](int y, int m, int d) { return QDate(y, m, d); };
  return {
      {day(2023, 12, 24), 2, 21, kChristmas, kReflex, "Christmas 2023", nullptr},
      {day(2022, 9, 17), 2, 10, kAutumn, kPhone, "", nullptr},
      {day(2022, 9, 24), 2, 11, kAutumn, kPhone, "", nullptr},
      // Eight photos with names given by hand come here, see PlanSample.
      {day(2021, 12, 31), 2, 24, kNewYear, kReflex, "", nullptr},
      {day(2024, 4, 15), 4, 12, places[0].motifs, kPhone, "Trips/Lisbon 2024", &places[0]},
      {day(2022, 10, 31), 1, 22, kHalloween, kPhone, "", nullptr},
      {day(2023, 9, 30), 2, 22, kAutumn, kReflex, "", nullptr},
      {day(2023, 7, 4), 1, 21, kSummerParty, kPocket, "", nullptr},
      {day(2024, 1, 22), 4, 9, places[1].motifs, kPhone, "Trips/Cape Town 2024", &places[1]},
      {day(2022, 2, 14), 1, 20, kValentine, kPhone, "", nullptr},
      {day(2019, 4, 29), 5, 21, places[2].motifs, kWide, "Trips/Tokyo 2019", &places[2]},
      {day(2020, 12, 24), 2, 9, kChristmas, kPocket, "", nullptr},
      {day(2021, 8, 7), 2, 8, kSummer, kReflex, "", nullptr},
      {day(2021, 8, 21), 2, 8, kSummer, kReflex, "", nullptr},
      {day(2021, 8, 28), 2, 9, kSummer, kReflex, "", nullptr},
      {day(2020, 2, 24), 5, 8, places[3].motifs, kPhone, "Trips/Rio de Janeiro 2020", &places[3]},
      {day(2021, 3, 8), 1, 20, kFlowerDay, kPocket, "", nullptr},
      {day(2025, 7, 4), 1, 7, kSummerParty, kPhone, "", nullptr},
      {day(2019, 10, 31), 1, 5, kHalloween, kOldPhone, "", nullptr},
      {day(2025, 5, 20), 4, 10, places[5].motifs, kPhone, "Trips/San Francisco 2025", &places[5]},
      {day(2020, 2, 14), 1, 4, kValentine, kOldPhone, "", nullptr},
      {day(2022, 3, 1), 3, 8, places[4].motifs, kReflex, "Trips/Tromsø 2022", nullptr},
      {day(2021, 6, 3), 1, 6, kBirthday, kReflex, "Birthday", nullptr},
      {day(2024, 6, 3), 1, 7, kBirthday, kPhone, "", nullptr},
      {day(2019, 6, 15), 2, 7, kSummer, kPocket, "", nullptr},
      {day(2024, 11, 5), 3, 6, kAutumn, kPhone, "", nullptr},
      {day(2025, 3, 12), 2, 5, kSpring, kPhone, "", nullptr},
      {day(2020, 7, 14), 3, 6, kSummer, kPocket, "", nullptr},
      {day(2019, 2, 5), 2, 5, kWinter, kPocket, "", nullptr},
  };
}

struct Holiday {
  int month;
  int day;
  int days;
  const Motifs& motifs;
};

const std::vector<Holiday>& Holidays() {
  static const std::vector<Holiday> holidays = {
      {12, 24, 2, kChristmas}, {12, 31, 2, kNewYear}, {10, 31, 1, kHalloween}, {7, 4, 1, kSummerParty},
      {2, 14, 1, kValentine},  {3, 8, 1, kFlowerDay}, {5, 1, 1, kSpring},      {12, 5, 2, kChristmas},
      {6, 23, 2, kSummer},     {11, 1, 2, kAutumn},
  };
  return holidays;
}

/// One more occasion in `year`, of any kind.
Occasion AnyOccasion(Dice& dice, int year) {
  const std::size_t camera =
      static_cast<std::size_t>(dice.Whole(0, static_cast<int>(SampleCameras().size()) - 1));
  const int kind = dice.Whole(0, 9);
  if (kind < 2) {
    const Holiday& holiday = dice.Pick(Holidays());
    return {{year, holiday.month, holiday.day},
            holiday.days,
            dice.Whole(4, 34),
            holiday.motifs,
            camera,
            {},
            nullptr};
  }
  const int month = dice.Whole(1, 12);
  QDate day(year, month, dice.Whole(1, LastDayOf(year, month)));
  if (kind < 5) {
    day = day.addDays((6 - day.dayOfWeek() + 7) % 7);
    return {day, 2, dice.Whole(5, 26), OfSeason(day.month()), camera, {}, nullptr};
  }
  if (kind < 7) {
    const Place& place = dice.Pick(Places());
    return {day,
            dice.Whole(3, 9),
            dice.Whole(18, 70),
            place.motifs,
            dice.Chance(0.7) ? kPhone : kWide,
            "Trips/" + std::string(place.name) + " " + std::to_string(year),
            &place};
  }
  if (kind < 8) {
    return {day, 1, dice.Whole(4, 15), kBirthday, camera, {}, nullptr};
  }
  return {day, dice.Whole(1, 3), dice.Whole(2, 9), OfSeason(month), camera, {}, nullptr};
}

/// Years that a collection of that size spans: more photos reach further back.
std::pair<int, int> YearsFor(int photos) {
  return {kFirstYear - std::min(14, photos / 3000), kLastYear};
}

QDateTime MomentOf(const QDate& day, double hour) {
  const int ms = std::clamp(static_cast<int>(hour * 3'600'000), 0, 86'399'000);
  return {day, QTime::fromMSecsSinceStartOfDay(ms / 1000 * 1000), Qt::UTC};
}

class Planner {
 public:
  explicit Planner(std::uint32_t seed) : dice_(MixSeed(seed, 1)) {}

  /// Takes the occasion's photos, at most `most`.
  void Take(const Occasion& occasion, int most) {
    const int wanted = std::min(occasion.photos, most);
    Dice walk(dice_.Number());
    double north = walk.Between(-0.01, 0.01);
    double east = walk.Between(-0.01, 0.01);
    int taken = 0;
    for (int turn = 0; taken < wanted; ++turn) {
      const int dayIndex = turn % occasion.days;
      Motifs fitting;
      std::copy_if(occasion.motifs.begin(), occasion.motifs.end(), std::back_inserter(fitting),
                   [dayIndex](const Motif& motif) { return motif.day < 0 || motif.day == dayIndex; });
      const Motif motif = dice_.Pick(fitting);
      const QDateTime start =
          MomentOf(occasion.first.addDays(dayIndex), dice_.Between(motif.fromHour, motif.toHour - 0.05));
      const SampleShot model = Prepare(occasion, motif, start);
      const bool burst = (shots_.empty() || dice_.Chance(0.2)) && wanted - taken >= 3;
      const int count =
          burst ? dice_.Whole(3, std::min(5, wanted - taken)) : std::min(dice_.Whole(1, 3), wanted - taken);
      if (occasion.place != nullptr) {
        north += walk.Between(-0.006, 0.006);
        east += walk.Between(-0.008, 0.008);
      }
      const std::size_t before = shots_.size();
      burst ? TakeBurst(model, count) : TakeApart(model, count);
      for (std::size_t i = before; i < shots_.size(); ++i) {
        shelves_.push_back({occasion.album, {}});
        Locate(shots_[i], occasion, north + 0.0001 * static_cast<double>(i - before), east);
      }
      taken += count;
    }
  }

  /// Photos with names given by hand, `first` and on, and with all that can be missing or wrong in a file.
  void TakeOdd(std::size_t first, int count) {
    for (std::size_t i = first; i < first + static_cast<std::size_t>(count); ++i) {
      // Mondays to Wednesdays: no weekend and no holiday depends on them.
      const int year = kFirstYear + static_cast<int>(i % 7);
      QDate day(year, 1 + static_cast<int>(i * 3 % 10), 14);
      day = day.addDays((8 - day.dayOfWeek()) % 7 + static_cast<int>(i % 3));
      const Motif motif = dice_.Pick(OfSeason(day.month()));
      Occasion odd{day, 1, 1, {}, i % 2 == 0 ? kPocket : kReflex, {}, nullptr};
      SampleShot shot =
          Prepare(odd, motif, MomentOf(day, dice_.Between(motif.fromHour, motif.toHour - 0.05)));
      shot.orientation = i == 4 ? 3 : i == 5 ? 6 : i == 6 ? 8 : 1;
      if (shot.orientation > 4) {
        shot.look.size.transpose();
      }
      switch (i % 8) {
        case 1:
          shot.dating = SampleDating::DigitisedOnly;
          break;
        case 2:
          shot.dating = SampleDating::None;
          break;
        case 3:
          shot.dating = i == 3 ? SampleDating::Zeros : SampleDating::DigitisedOnly;
          break;
        case 7:
          shot.dating = SampleDating::None;
          break;
        default:
          break;
      }
      shots_.push_back(shot);
      shelves_.push_back({{}, OddSampleNames()[i]});
    }
  }

  std::vector<SampleShot> Finish() {
    std::vector<std::size_t> order(shots_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return shots_[a].taken < shots_[b].taken; });
    std::vector<SampleShot> shots;
    std::vector<SampleShelf> shelves;
    for (const std::size_t i : order) {
      shots.push_back(std::move(shots_[i]));
      shelves.push_back(std::move(shelves_[i]));
    }
    NameSampleShots(shots, shelves);
    return shots;
  }

  int Count() const { return static_cast<int>(shots_.size()); }
  Dice& Random() { return dice_; }

 private:
  SampleShot Prepare(const Occasion& occasion, const Motif& motif, const QDateTime& start) {
    SampleShot shot;
    shot.camera = occasion.camera;
    shot.taken = start;
    shot.look.kind = motif.kind;
    shot.look.seed = dice_.Number();
    shot.look.hour = start.time().msecsSinceStartOfDay() / 3'600'000.0;
    shot.look.month = start.date().month();
    // South of the equator the seasons are turned round.
    if (occasion.place != nullptr && occasion.place->latitude < 0) {
      shot.look.month = (shot.look.month + 5) % 12 + 1;
    }
    const SampleCamera& camera = SampleCameras()[shot.camera];
    shot.look.size = {camera.width, camera.height};
    if (camera.turns && dice_.Chance(0.22)) {
      shot.look.size.transpose();
      shot.orientation = dice_.Chance(0.85) ? 6 : 8;
    } else if (camera.turns && dice_.Chance(0.04)) {
      shot.orientation = 3;
    }
    return shot;
  }

  void TakeBurst(const SampleShot& model, int count) {
    ++bursts_;
    std::int64_t ms = 0;
    for (int i = 0; i < count; ++i) {
      SampleShot shot = model;
      shot.burst = bursts_;
      shot.look.shiftX = dice_.Between(-0.008, 0.008);
      shot.look.shiftY = dice_.Between(-0.008, 0.008);
      shot.look.turn = dice_.Between(-0.6, 0.6);
      shot.look.exposure = i == 0 ? 0 : dice_.Between(-0.3, 0.3);
      Add(shot, ms);
      ms += dice_.Whole(220, 1400);
    }
  }

  void TakeApart(const SampleShot& model, int count) {
    std::int64_t ms = 0;
    for (int i = 0; i < count; ++i) {
      SampleShot shot = model;
      shot.look.seed = i == 0 ? model.look.seed : dice_.Number();
      shot.look.exposure = dice_.Between(-0.12, 0.12);
      Add(shot, ms);
      ms += dice_.Whole(9'000, 70'000);
    }
  }

  void Add(SampleShot& shot, std::int64_t ms) {
    const QDate day = shot.taken.date();
    const QDateTime at =
        shot.taken.addMSecs(ms + (SampleCameras()[shot.camera].subSeconds ? dice_.Whole(0, 99) * 10 : 0));
    // Never into the next day: it may be the first one after a holiday.
    shot.taken = at.date() == day ? at : QDateTime(day, QTime(23, 59, 59, at.time().msec()), Qt::UTC);
    shot.look.grainSeed = dice_.Number();
    shots_.push_back(shot);
  }

  void Locate(SampleShot& shot, const Occasion& occasion, double north, double east) {
    if (occasion.place == nullptr || !SampleCameras()[shot.camera].positions) {
      return;
    }
    shot.hasPosition = true;
    shot.latitude = occasion.place->latitude + north;
    shot.longitude = occasion.place->longitude + east;
    shot.altitude = occasion.place->altitude + dice_.Whole(0, 12);
  }

  Dice dice_;
  int bursts_ = 0;
  std::vector<SampleShot> shots_;
  std::vector<SampleShelf> shelves_;
};

}  // namespace

const std::vector<SampleCamera>& SampleCameras() {
  static const std::vector<SampleCamera> cameras = {
      {"Pinhole 35", 720, 480, true, false, false, "Card 1"},
      {"Pocket Obscura", 640, 480, false, false, false, "Card 2"},
      {"Daylight Phone 3", 640, 480, true, true, true, "Phone/Camera"},
      {"Wide Eye Cube", 704, 396, true, true, false, nullptr},
      {"Daylight Phone 1", 640, 480, false, true, true, nullptr},
  };
  return cameras;
}

std::vector<SampleShot> PlanSample(std::uint32_t seed, int photos) {
  constexpr int kFirstOdd = 8;
  Planner planner(seed);
  const std::vector<Occasion> backbone = Backbone();
  for (std::size_t i = 0; i < backbone.size() && planner.Count() < photos; ++i) {
    if (i == 3) {
      planner.TakeOdd(0, std::min(kFirstOdd, photos - planner.Count()));
    }
    planner.Take(backbone[i], photos - planner.Count());
  }
  const int moreOdd = static_cast<int>(OddSampleNames().size()) - kFirstOdd;
  planner.TakeOdd(kFirstOdd, std::min(moreOdd, photos - planner.Count()));
  const auto years = YearsFor(photos);
  for (int year = years.first; planner.Count() < photos;
       year = year == years.second ? years.first : year + 1) {
    planner.Take(AnyOccasion(planner.Random(), year), photos - planner.Count());
  }
  return planner.Finish();
}

}  // namespace Zenvora::Lumidex::Host
