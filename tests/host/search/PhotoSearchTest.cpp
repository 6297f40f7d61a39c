#include "Records.h"

#include <host/search/PhotoSearch.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Days = std::pair<QDate, QDate>;

std::optional<PlaceBox> Box(const char* text) {
  std::string fault;
  const std::optional<PlaceBox> box = ReadPlaceBox(QString::fromUtf8(text), fault);
  EXPECT_EQ(box.has_value(), fault.empty()) << text;
  return box;
}

TEST(ReadingABox, TakesFourNumbersInDegrees) {
  const std::optional<PlaceBox> box = Box("48.8, -2.2,48.9,+2.5");
  ASSERT_TRUE(box);
  EXPECT_DOUBLE_EQ(box->south, 48.8);
  EXPECT_DOUBLE_EQ(box->west, -2.2);
  EXPECT_DOUBLE_EQ(box->north, 48.9);
  EXPECT_DOUBLE_EQ(box->east, 2.5);
  EXPECT_TRUE(Box("-90,-180,90,180"));
  EXPECT_TRUE(Box("0,170,1,-170"));
}

TEST(ReadingABox, RefusesTheRest) {
  for (const char* const text : {"", "48.8", "1,2,3", "1,2,3,4,5", "1,2,x,4", "1,2,,4", "-91,0,0,0",
                                 "0,181,1,0", "2,0,1,0", "nan,0,1,1", "1;2;3;4"}) {
    EXPECT_FALSE(Box(text)) << text;
  }
}

TEST(Boxes, HoldTheirBordersAndRunOverTheDateLine) {
  const PlaceBox box{10, 20, 30, 40};
  EXPECT_TRUE(box.Holds({10, 20}));
  EXPECT_TRUE(box.Holds({30, 40}));
  EXPECT_FALSE(box.Holds({9.999, 30}));
  EXPECT_FALSE(box.Holds({20, 40.001}));
  const PlaceBox over{-20, 170, 0, -170};
  EXPECT_TRUE(over.Holds({-17, 178}));
  EXPECT_TRUE(over.Holds({-14, -172}));
  EXPECT_FALSE(over.Holds({-14, 0}));
  // The same meridian by both of its names.
  EXPECT_TRUE((PlaceBox{-20, 170, 0, 180}.Holds({-17, -180})));
  EXPECT_TRUE((PlaceBox{-20, -180, 0, -170}.Holds({-17, 180})));
  EXPECT_FALSE((PlaceBox{-20, 170, 0, 179}.Holds({-17, -180})));
}

class SearchOfPhotos : public ::testing::Test {
 protected:
  SearchOfPhotos() {
    Add("/photos/Trip/a.jpg", QDate(2021, 5, 1), "EOS 80D", PhotoPosition{48.85, 2.29});
    Add("/photos/Trip/b.jpg", QDate(2021, 5, 2), "Pinhole 35", std::nullopt);
    Add("/photos/\u00C9t\u00E9/c.jpg", QDate(), "", PhotoPosition{-17, 178});
    tags_["0"] = {{TagType::Icon, QStringLiteral("plane")}, {TagType::Own, QStringLiteral("Beach")}};
    tags_["1"] = {{TagType::Automatic, QStringLiteral("Airplane")}};
    tags_["2"] = {{TagType::Own, QStringLiteral("beach")}, {TagType::System, QStringLiteral("Family")}};
  }

  void Add(const char* path, const QDate& day, const char* camera, std::optional<PhotoPosition> position) {
    PhotoRecord photo = Zenvora::Test::Photo(ioPath(path), day);
    photo.taken = day.isValid() ? photo.taken : QDateTime();
    photo.id = QString::number(photos_.size());
    photo.camera = QString::fromUtf8(camera);
    photo.position = position;
    photos_.push_back(photo);
  }

  std::vector<std::string> Found(const PhotoFilter& filter, const std::string& locale = "en_US") const {
    std::vector<std::string> names;
    for (const PhotoRecord* const photo : FindPhotos(photos_, tags_, filter, locale)) {
      names.push_back(photo->path.filename().utf8string());
    }
    return names;
  }
  std::vector<std::string> WithTags(const std::vector<const char*>& words) const {
    PhotoFilter filter;
    for (const char* const word : words) {
      filter.tags.push_back(TagDictionary::Shipped().MeaningOf(QString::fromUtf8(word)));
    }
    return Found(filter);
  }
  std::vector<std::string> WithText(const char* text, const std::string& locale = "en_US") const {
    PhotoFilter filter;
    filter.texts = {QString::fromUtf8(text)};
    return Found(filter, locale);
  }

  std::vector<PhotoRecord> photos_;
  TagsOfPhotos tags_;
};

TEST_F(SearchOfPhotos, FindsAllWithoutAFilter) {
  EXPECT_THAT(Found({}), ElementsAre("a.jpg", "b.jpg", "c.jpg"));
}

TEST_F(SearchOfPhotos, GoesByDaysWithBothEnds) {
  PhotoFilter filter;
  filter.dates = Days(QDate(2021, 5, 1), QDate(2021, 5, 1));
  EXPECT_THAT(Found(filter), ElementsAre("a.jpg"));
  filter.dates = Days(QDate(2021, 5, 2), QDate());
  EXPECT_THAT(Found(filter), ElementsAre("b.jpg"));
  filter.dates = Days(QDate(), QDate(2021, 5, 2));
  EXPECT_THAT(Found(filter), ElementsAre("a.jpg", "b.jpg"));
  filter.dates = Days(QDate(2022, 1, 1), QDate(2022, 12, 31));
  EXPECT_THAT(Found(filter), IsEmpty());
}

TEST_F(SearchOfPhotos, GoesByPartsOfTheCamerasName) {
  PhotoFilter filter;
  filter.camera = QStringLiteral("eos 80");
  EXPECT_THAT(Found(filter), ElementsAre("a.jpg"));
}

TEST_F(SearchOfPhotos, GoesByPlace) {
  PhotoFilter filter;
  filter.place = PlaceBox{48, 2, 49, 3};
  EXPECT_THAT(Found(filter), ElementsAre("a.jpg"));
  filter.place = PlaceBox{-20, 170, 0, -170};
  EXPECT_THAT(Found(filter), ElementsAre("c.jpg"));
  filter.place = PlaceBox{};
  EXPECT_THAT(Found(filter), ElementsAre("a.jpg", "c.jpg"));
}

TEST_F(SearchOfPhotos, GoesByTagsInAllLanguages) {
  EXPECT_THAT(WithTags({"Flugzeug"}), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_THAT(WithTags({"jets"}), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_THAT(WithTags({"BEACH"}), ElementsAre("a.jpg", "c.jpg"));
  EXPECT_THAT(WithTags({"beach", "Famille"}), ElementsAre("c.jpg"));
  EXPECT_THAT(WithTags({"Bea"}), IsEmpty());
}

TEST_F(SearchOfPhotos, GoesByTextInPathsCamerasAndTags) {
  EXPECT_THAT(WithText("trip"), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_THAT(WithText("ete"), ElementsAre("c.jpg"));
  EXPECT_THAT(WithText("pinhole"), ElementsAre("b.jpg"));
  EXPECT_THAT(WithText("bea"), ElementsAre("a.jpg", "c.jpg"));
  EXPECT_THAT(WithText("flugz"), IsEmpty());
  EXPECT_THAT(WithText("flugz", "de_DE"), ElementsAre("a.jpg"));
}

TEST_F(SearchOfPhotos, WantsAllOfIt) {
  PhotoFilter filter;
  filter.dates = Days(QDate(2021, 1, 1), QDate(2021, 12, 31));
  filter.texts = {QStringLiteral("trip"), QStringLiteral("eos")};
  EXPECT_THAT(Found(filter), ElementsAre("a.jpg"));
  filter.place = PlaceBox{-20, 170, 0, -170};
  EXPECT_THAT(Found(filter), IsEmpty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
