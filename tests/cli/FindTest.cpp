#include "ChangeFixture.h"

#include <support/GpsPhoto.h>

#include <QJsonArray>

#include <string>
#include <vector>

namespace Zenvora::Test {
namespace {

class FindCommand : public ChangeTest {
 protected:
  FindCommand() {
    Photo("a.jpg", "2023:06:01 10:00:00");
    AddGps(Photo("b.jpg", "2023:06:02 11:30:00"), {"48/1 30/1", "N", "2/1 15/1", "E"});
    Photo("c.jpg", "2015:03:01 23:59:59");
    EXPECT_EQ(Run({"scan", "photos"}).exitCode, 0);
    EXPECT_EQ(Run({"tag", "photos/a.jpg", "+Beach", "+Plane"}).exitCode, 0);
  }

  std::vector<std::string> Found(const QStringList& filter) const {
    std::vector<std::string> names;
    for (const QJsonValue& photo : Run(QStringList{"find", "--json"} + filter).Json()["photos"].toArray()) {
      names.push_back(ioPath(photo.toObject()["path"].toString()).filename().utf8string());
    }
    return names;
  }
};

TEST_F(FindCommand, ShowsATableOfWhatFits) {
  const Ran ran = Run({"find", "--tag", "beach"});
  EXPECT_EQ(ran.exitCode, 0);
  const std::string path = (Photos() / "a.jpg").utf8string();
  EXPECT_THAT(ran.out, HasSubstr("TAKEN             CAMERA"));
  EXPECT_THAT(ran.out, HasSubstr("2023-06-01 10:00  "));
  EXPECT_THAT(ran.out, HasSubstr("  Beach, Plane  " + path + '\n'));
  EXPECT_THAT(ran.out, HasSubstr("\n\n1 of 3 photos.\n"));
}

TEST_F(FindCommand, FindsAllWithoutAFilter) {
  EXPECT_THAT(Found({}), ElementsAre("c.jpg", "a.jpg", "b.jpg"));
}

TEST_F(FindCommand, GoesByDatesInBothForms) {
  EXPECT_THAT(Found({"--date", "2015-03-01"}), ElementsAre("c.jpg"));
  EXPECT_THAT(Found({"--date", "2023-06-01 - 2023-06-30"}), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_THAT(Found({"--date", "2023-06-02 - "}), ElementsAre("b.jpg"));
  EXPECT_THAT(Found({"--date", "3/1/15"}), ElementsAre("c.jpg"));
  EXPECT_THAT(Found({"--lang", "de_DE", "--date", "01.06.23 - 01.06.2023"}), ElementsAre("a.jpg"));
  EXPECT_THAT(Found({"--date", "2023"}), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_THAT(Found({"--date", "2015-03"}), ElementsAre("c.jpg"));
  EXPECT_THAT(Found({"--date", "2023-06-02 -"}), ElementsAre("b.jpg"));
  EXPECT_THAT(Found({"--date", "- 2023-06-01"}), ElementsAre("c.jpg", "a.jpg"));
  EXPECT_THAT(Found({"--date=- 2022"}), ElementsAre("c.jpg"));
  // How it was understood.
  EXPECT_THAT(Run({"find", "--date", "2023"}).out, HasSubstr(", taken from 2023-01-01 to 2023-12-31.\n"));
  EXPECT_THAT(Run({"find", "--date", "2023-06 -"}).out, HasSubstr(", taken on 2023-06-01 or later.\n"));
  EXPECT_THAT(Run({"find", "--date", "- 2023-06"}).out, HasSubstr(", taken on 2023-06-30 or earlier.\n"));
  EXPECT_THAT(Run({"find", "--date", "3/1/15"}).out, HasSubstr(", taken on 2015-03-01.\n"));
}

TEST_F(FindCommand, GoesByPlaceAlsoSouthOfTheEquator) {
  EXPECT_THAT(Found({"--place", "48,2,49,3"}), ElementsAre("b.jpg"));
  EXPECT_THAT(Found({"--place", "-10,2,49,3"}), ElementsAre("b.jpg"));
  EXPECT_THAT(Found({"--place=-10,2,0,3"}), IsEmpty());
}

TEST_F(FindCommand, GoesByCameraTagAndText) {
  EXPECT_THAT(Found({"--camera", "no such"}), IsEmpty());
  EXPECT_THAT(Found({"--tag", "Flugzeug"}), ElementsAre("a.jpg"));
  EXPECT_THAT(Found({"--tag", "Strand"}), ElementsAre("a.jpg"));
  EXPECT_THAT(Found({"--tag", "\u0421amera"}), IsEmpty());
  EXPECT_THAT(Found({"--tag", "jet", "--tag", "BEACH"}), ElementsAre("a.jpg"));
  EXPECT_THAT(Found({"--tag", "jet", "--tag", "Family"}), IsEmpty());
  EXPECT_THAT(Found({"--text", "B.JPG"}), ElementsAre("b.jpg"));
  EXPECT_THAT(Found({"--text", "beach"}), ElementsAre("a.jpg"));
}

TEST_F(FindCommand, SaysWhenNothingFits) {
  const Ran ran = Run({"find", "--tag", "Trip"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_EQ(ran.out, "0 of 3 photos.\n");
  EXPECT_EQ(Run({"find", "--tag", "Trip", "--paths"}).out, "");
}

TEST_F(FindCommand, PrintsPathsForScripts) {
  const Ran ran = Run({"find", "--date", "2023-06-01 - 2023-06-30", "--paths"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.out, (Photos() / "a.jpg").utf8string() + '\n' + (Photos() / "b.jpg").utf8string() + '\n');
}

TEST_F(FindCommand, PassesOverLostPhotos) {
  (Photos() / "a.jpg").remove();
  Run({"scan", "photos"});
  EXPECT_THAT(Found({"--tag", "Beach"}), IsEmpty());
}

TEST_F(FindCommand, RefusesFiltersThatMakeNoSense) {
  for (const QStringList& filter : std::vector<QStringList>{{"--date", "soon"},
                                                            {"--date", ""},
                                                            {"--date", "2023-06-02 - 2023-06-01"},
                                                            {"--place", "1,2,3"},
                                                            {"--place", "91,0,92,0"},
                                                            {"--camera", ""},
                                                            {"--tag"},
                                                            {"word"}}) {
    const Ran ran = Run(QStringList{"find"} + filter);
    EXPECT_EQ(ran.exitCode, 2) << filter.join(QLatin1Char(' ')).toStdString();
    EXPECT_THAT(ran.err, HasSubstr("lumidex help find"));
  }
}

TEST_F(FindCommand, NeedsACatalogueAndMakesNone) {
  const Ran ran = Run({"-c", "none.sqlite", "find"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr("There is no catalogue"));
  EXPECT_FALSE(tree.Path("none.sqlite").exists());
}

TEST_F(FindCommand, NamesWhereADateIsFromAsInfoDoes) {
  WriteJpeg(Photos() / "undated.jpg", PhotoTags());
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  const QString photo = Text(Photos() / "undated.jpg");
  const QJsonObject found =
      Run({"find", "--json", "--text", "undated"}).Json()["photos"].toArray()[0].toObject();
  const QJsonObject told = Run({"info", "--json", photo}).Json()["photos"].toArray()[0].toObject();
  EXPECT_EQ(found["takenSource"].toString(), QStringLiteral("fileTime"));
  EXPECT_EQ(found["takenSource"], told["dateSource"]);
}

TEST_F(FindCommand, WritesOneDocumentWithAllItsMembers) {
  const QJsonObject document = Run({"find", "--json", "--date", "2023-06-02 - "}).Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.find"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_EQ(document["catalogue"].toString(), Text(DefaultCatalogue()));
  EXPECT_EQ(document["searched"].toInt(), 3);
  EXPECT_EQ(document["dates"].toObject()["first"].toString(), QStringLiteral("2023-06-02"));
  EXPECT_TRUE(document["dates"].toObject()["last"].isNull());
  ASSERT_EQ(document["photos"].toArray().size(), 1);
  const QJsonObject photo = document["photos"].toArray()[0].toObject();
  EXPECT_FALSE(photo["id"].toString().isEmpty());
  EXPECT_EQ(photo["path"].toString(), Text(Photos() / "b.jpg"));
  EXPECT_EQ(photo["taken"].toString().left(16), QStringLiteral("2023-06-02T11:30"));
  EXPECT_EQ(photo["takenSource"].toString(), QStringLiteral("original"));
  EXPECT_TRUE(photo["camera"].isString());
  EXPECT_DOUBLE_EQ(photo["position"].toObject()["latitude"].toDouble(), 48.5);
  EXPECT_DOUBLE_EQ(photo["position"].toObject()["longitude"].toDouble(), 2.25);
  EXPECT_TRUE(photo["tags"].toArray().isEmpty());
  EXPECT_TRUE(Run({"find", "--json"}).Json()["dates"].isNull());
}

}  // namespace
}  // namespace Zenvora::Test
