#include "CliFixture.h"

#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/StrangeName.h>

#include <zenvora/core/FileState.h>

#include <QJsonArray>

#include <string>

namespace Zenvora::Test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

PhotoTags FullTags() {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  tags.dateTimeDigitized = "2022:06:02 11:21:31";
  tags.model = "Model X  ";
  tags.orientation = 6;
  tags.width = 40;
  tags.height = 24;
  tags.more = {{"Exif.GPSInfo.GPSLatitude", "48/1 51/1 2436/100", ""},
               {"Exif.GPSInfo.GPSLatitudeRef", "S", ""},
               {"Exif.GPSInfo.GPSLongitude", "2/1 17/1 4020/100", ""},
               {"Exif.GPSInfo.GPSLongitudeRef", "E", ""}};
  return tags;
}

class InfoCommand : public CliTest {
 protected:
  Ran Info(const QStringList& arguments) const { return Run(QStringList{"info"} + arguments); }
  QJsonObject Only(const QJsonObject& document) const {
    const QJsonArray photos = document["photos"].toArray();
    EXPECT_EQ(photos.size(), 1);
    return photos.first().toObject();
  }
};

TEST_F(InfoCommand, ShowsWhatAPhotoSays) {
  const ioPath photo = WriteJpeg(Photos() / "a.jpg", FullTags());
  const Ran ran = Info({Text(photo)});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.err, IsEmpty());
  EXPECT_THAT(ran.out, StartsWith("DATE                 FROM              CAMERA   POSITION  "));
  EXPECT_THAT(ran.out, HasSubstr("\n2021-05-01 10:20:30  DateTimeOriginal  Model X  "
                                 "48.856767 S, 2.294500 E  JPEG 40 x 24  turned right  "));
  EXPECT_THAT(ran.out, HasSubstr("  " + photo.utf8string() + '\n'));
  EXPECT_THAT(ran.out, Not(HasSubstr("oubt")));
}

TEST_F(InfoCommand, GivesTheSameAsOneDocument) {
  const ioPath photo = WriteJpeg(Photos() / "a.jpg", FullTags());
  const Ran ran = Info({"--json", Text(photo)});
  EXPECT_EQ(ran.exitCode, 0);
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.info"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_FALSE(document["interrupted"].toBool(true));
  EXPECT_TRUE(document["findings"].toArray().isEmpty());
  const QJsonObject info = Only(document);
  EXPECT_EQ(info["path"].toString(), Text(photo));
  EXPECT_EQ(info["size"].toDouble(), static_cast<double>(QueryFile(photo).size));
  EXPECT_EQ(info["camera"].toString(), QStringLiteral("Model X"));
  EXPECT_EQ(info["date"].toString(), QStringLiteral("2021-05-01T10:20:30"));
  EXPECT_EQ(info["dateSource"].toString(), QStringLiteral("original"));
  const QJsonObject position = info["position"].toObject();
  EXPECT_EQ(position["latitude"].toDouble(), -((51 / 60.0 + 48) + 24.36 / 3600.0)) << "to the last digit";
  EXPECT_EQ(position["longitude"].toDouble(), (17 / 60.0 + 2) + 40.2 / 3600.0);
  EXPECT_EQ(position["latitudeReference"].toString(), QStringLiteral("S"));
  EXPECT_EQ(position["longitudeReference"].toString(), QStringLiteral("E"));
  EXPECT_TRUE(position["doubts"].toArray().isEmpty());
  const QJsonObject frame = info["frame"].toObject();
  EXPECT_EQ(frame["format"].toString(), QStringLiteral("JPEG"));
  EXPECT_EQ(frame["width"].toInt(), 40);
  EXPECT_EQ(frame["height"].toInt(), 24);
  EXPECT_EQ(frame["orientation"].toInt(), 6);
  EXPECT_EQ(frame["frames"].toInt(), 1);
}

TEST_F(InfoCommand, SaysWhichTagTheDateIsFrom) {
  PhotoTags tags = FullTags();
  tags.dateTimeOriginal.clear();
  WriteJpeg(Photos() / "a.jpg", tags);
  EXPECT_THAT(Info({"photos"}).out, HasSubstr("2022-06-02 11:21:31  DateTimeDigitized  "));
  EXPECT_EQ(Only(Info({"--json", "photos"}).Json())["dateSource"].toString(), QStringLiteral("digitised"));
  tags.dateTimeDigitized.clear();
  WriteJpeg(Photos() / "a.jpg", tags);
  EXPECT_THAT(Info({"photos"}).out, HasSubstr("  file time  "));
  EXPECT_EQ(Only(Info({"--json", "photos"}).Json())["dateSource"].toString(), QStringLiteral("fileTime"));
}

TEST_F(InfoCommand, LeavesOutWhatIsNotKnown) {
  WriteJpeg(Photos() / "a.jpg");
  EXPECT_EQ(Info({"photos"}).exitCode, 0);
  const QJsonObject info = Only(Info({"--json", "photos"}).Json());
  EXPECT_TRUE(info["position"].isNull());
  EXPECT_EQ(info["camera"].toString(), QString());
}

TEST_F(InfoCommand, FlagsDoubtfulPositions) {
  const struct {
    const char *latitude, *latitudeReference, *longitudeReference;
    const char* shown;
    const char* doubt;
  } rows[] = {
      {"48/1 51/1 0/1", nullptr, "E", "48.850000 N?, 2.294500 E",
       "does not say the reference of its latitude; north is assumed"},
      {"48/1 51/1 0/1", "S", nullptr, "48.850000 S, 2.294500 E?",
       "does not say the reference of its longitude; east is assumed"},
      {"48/1 51/1 0/1", "s", "W", "48.850000 N?, 2.294500 W",
       "gives \"s\" as the reference of its latitude; north is assumed"},
      {"48/1 51/1 0/1", "W", "W", "48.850000 S?, 2.294500 W",
       "gives \"W\" as the reference of its latitude; south is assumed"},
      {"98/1 51/1 0/1", "N", "E", "98.850000 N, 2.294500 E", "its position is not on the globe"},
      {"48/1 51/0 0/1", "N", "E", "  ?  ", "its position has numbers over zero and is none"},
      {"0/0 0/0 0/0", "N", "E", "  ?  ", "it has a longitude and no latitude"},
  };
  for (const auto& row : rows) {
    PhotoTags tags = FullTags();
    tags.more = {{"Exif.GPSInfo.GPSLatitude", row.latitude, ""},
                 {"Exif.GPSInfo.GPSLongitude", "2/1 17/1 4020/100", ""}};
    if (row.latitudeReference != nullptr) {
      tags.more.push_back({"Exif.GPSInfo.GPSLatitudeRef", row.latitudeReference, ""});
    }
    if (row.longitudeReference != nullptr) {
      tags.more.push_back({"Exif.GPSInfo.GPSLongitudeRef", row.longitudeReference, ""});
    }
    const ioPath photo = WriteJpeg(Photos() / "a.jpg", tags);
    const Ran ran = Info({"photos"});
    EXPECT_EQ(ran.exitCode, 1) << row.doubt;
    EXPECT_THAT(ran.out, HasSubstr(row.shown));
    EXPECT_THAT(ran.out, HasSubstr("\nDoubtful positions:\n  " + photo.utf8string() + ": i"));
    EXPECT_THAT(ran.out, HasSubstr(std::string(row.doubt) + ".\n"));
    EXPECT_THAT(ran.err, IsEmpty()) << "what is said of a file names it";
    const Ran json = Info({"--json", "photos"});
    EXPECT_EQ(json.exitCode, 1);
    const QJsonObject position = Only(json.Json())["position"].toObject();
    EXPECT_THAT(position["doubts"].toArray().first().toString().toStdString(), HasSubstr(row.doubt));
    EXPECT_EQ(position["latitude"].isNull(), std::string(row.shown) == "  ?  ");
    EXPECT_EQ(position["latitudeReference"].isNull(), row.latitudeReference == nullptr);
  }
}

TEST_F(InfoCommand, KeepsTheHemisphereOfTheEquatorAndTheFirstMeridian) {
  PhotoTags tags = FullTags();
  tags.more = {{"Exif.GPSInfo.GPSLatitude", "0/1 0/1 0/1", ""},
               {"Exif.GPSInfo.GPSLatitudeRef", "S", ""},
               {"Exif.GPSInfo.GPSLongitude", "0/1 0/1 0/1", ""},
               {"Exif.GPSInfo.GPSLongitudeRef", "W", ""}};
  WriteJpeg(Photos() / "a.jpg", tags);
  const Ran ran = Info({"photos"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("0.000000 S, 0.000000 W  "));
}

TEST_F(InfoCommand, NamesFilesThatCannotBeReadAndTheCause) {
  WriteJpeg(Photos() / "a.jpg", FullTags());
  const ioPath broken = tree.Write("photos/b.jpg", std::string(1000, 'x'));
  const ioPath missing = Photos() / "none.jpg";
  const ioPath text = tree.Write("photos/c.txt", "no photo");
  const Ran ran = Info({"photos", Text(missing), Text(text)});
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_THAT(ran.out, HasSubstr("Not read:\n"));
  EXPECT_THAT(ran.out, HasSubstr("Cannot read the metadata of " + broken.utf8string() +
                                 ": Its picture format is not known.\n"));
  EXPECT_THAT(ran.out, HasSubstr("  " + missing.utf8string() + " "));
  EXPECT_THAT(ran.out, HasSubstr(text.utf8string() + " is not named like a photo.\n"));
  EXPECT_THAT(ran.out, HasSubstr("Model X")) << "the others are shown";
  const QJsonObject document = Info({"--json", "photos", Text(missing), Text(text)}).Json();
  EXPECT_EQ(document["findings"].toArray().size(), 3);
  EXPECT_EQ(document["photos"].toArray().size(), 1);
}

TEST_F(InfoCommand, FailsWhenNothingCanBeRead) {
  EXPECT_EQ(Info({"none.jpg"}).exitCode, 4);
  tree.Write("photos/b.jpg", "no photo");
  EXPECT_EQ(Info({"photos"}).exitCode, 4);
  EXPECT_EQ(Info({"--json", "photos"}).exitCode, 4);
}

TEST_F(InfoCommand, SaysThatThereAreNoPhotos) {
  tree.MakeFolder("photos");
  const Ran ran = Info({"photos"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_THAT(ran.err, HasSubstr("There are no photos"));
}

TEST_F(InfoCommand, NeedsAFile) {
  const Ran ran = Info({});
  EXPECT_EQ(ran.exitCode, 2);
  EXPECT_THAT(ran.err, HasSubstr("FILE"));
}

TEST_F(InfoCommand, LooksAtEachFileOnceAndMakesNoCatalogue) {
  WriteJpeg(Photos() / "a.jpg", FullTags());
  WriteJpeg(Photos() / "below/b.jpg", FullTags());
  const Ran ran = Info({"--json", "photos", "photos/a.jpg"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.Json()["photos"].toArray().size(), 1);
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(InfoCommand, PrintsNoControlCharactersOfFiles) {
  PhotoTags tags = FullTags();
  tags.model = "evil\x1b[31m\xE2\x80\xAE";
  tags.more[1].text = "\x1b";
  WriteJpeg(Photos() / "a.jpg", tags);
  for (const Ran& ran : {Info({"photos"}), Info({"--json", "photos"})}) {
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_THAT(ran.out, Not(HasSubstr("\x1b")));
  }
}

TEST_F(InfoCommand, ShowsNamesThatAreNoText) {
  const ioPath name = std::string(kStrangeName) + ".jpg";
  WriteJpeg(Photos() / name, FullTags());
  EXPECT_EQ(Info({"photos"}).exitCode, 0);
  const QJsonObject info = Only(Info({"--json", "photos"}).Json());
  EXPECT_TRUE(info["path"].toString().endsWith(name.qstring()));
#ifndef _WIN32
  const QByteArray bytes = QByteArray::fromBase64(info["pathBytes"].toString().toLatin1());
  EXPECT_TRUE(bytes.endsWith(name.utf8string().c_str()));
#endif
}

TEST_F(InfoCommand, DoesNotWaitForPipes) {
#ifdef _WIN32
  GTEST_SKIP() << Zenvora::Test::WhyLeftOut();
#else
  tree.MakeFolder("photos");
  const Pipe pipe(Photos() / "a.jpg");
  EXPECT_EQ(Info({"photos/a.jpg"}).exitCode, 4);
#endif
}

}  // namespace
}  // namespace Zenvora::Test
