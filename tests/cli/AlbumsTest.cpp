#include "CliFixture.h"

#include <QFile>
#include <QJsonArray>

#include <filesystem>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class AlbumsCommand : public CliTest {};

QJsonObject AlbumOf(const QJsonObject& document, int place) {
  return document["albums"].toArray()[place].toObject();
}

void SetTimeOf(const ioPath& file, const QDateTime& time) {
  QFile opened(file.qstring());
  ASSERT_TRUE(opened.open(QIODevice::ReadWrite));
  ASSERT_TRUE(opened.setFileTime(time, QFileDevice::FileModificationTime));
}

TEST_F(AlbumsCommand, PrintsProposalsInTheOrderOfTime) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.err, IsEmpty());
  EXPECT_EQ(ran.out,
            "ALBUM      WHEN           FIRST DAY   LAST DAY    PHOTOS  ACCEPTED\n"
            "Weekend    May 2023       2023-05-13  2023-05-13      22  -\n"
            "Christmas  December 2023  2023-12-24  2023-12-24      21  -\n"
            "\n"
            "2 albums from 43 photos; 0 accepted.\n");
}

TEST_F(AlbumsCommand, WritesOneDocumentWithAllItsMembers) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--json", "--list"});
  EXPECT_EQ(ran.exitCode, 0);
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.albums"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_EQ(document["catalogue"].toString(), Text(DefaultCatalogue()));
  EXPECT_EQ(document["kind"].toString(), QStringLiteral("proposed"));
  EXPECT_EQ(document["locale"].toString(), QStringLiteral("en_US"));
  EXPECT_EQ(document["photos"].toInt(), 43);
  EXPECT_EQ(document["undated"].toInt(-1), 0);
  EXPECT_TRUE(document["report"].isNull());
  EXPECT_TRUE(document["accepted"].toArray().isEmpty());
  ASSERT_EQ(document["albums"].toArray().size(), 2);
  const QJsonObject album = AlbumOf(document, 1);
  EXPECT_EQ(album["name"].toString(), QStringLiteral("Christmas\nDecember 2023"));
  EXPECT_EQ(album["title"].toString(), QStringLiteral("Christmas"));
  EXPECT_EQ(album["interval"].toString(), QStringLiteral("December 2023"));
  EXPECT_EQ(album["firstDay"].toString(), QStringLiteral("2023-12-24"));
  EXPECT_EQ(album["lastDay"].toString(), QStringLiteral("2023-12-24"));
  EXPECT_EQ(album["photos"].toInt(), 21);
  EXPECT_FALSE(album["accepted"].toBool(true));
  EXPECT_EQ(album["notAccepted"].toInt(-1), 0);
  ASSERT_EQ(album["members"].toArray().size(), 21);
  const QJsonObject member = album["members"].toArray()[0].toObject();
  EXPECT_FALSE(member["id"].toString().isEmpty());
  EXPECT_EQ(member["path"].toString(), Text(Photos() / "xmas" / "img0.jpg"));
  EXPECT_EQ(member["taken"].toString(), QStringLiteral("2023-12-24T10:00:00"));
  EXPECT_FALSE(AlbumOf(Run({"albums", "--json"}).Json(), 1).contains("members"));
}

TEST_F(AlbumsCommand, TellsTheFirstDayOfTheHolidayAndTheLastOfThePhotos) {
  MakePhotos("a", "2023:12:19", 15);
  MakePhotos("b", "2023:12:29", 15);
  Run({"scan", Text(Photos())});
  EXPECT_THAT(Run({"albums"}).out, HasSubstr("2023-12-18  2023-12-29      30"));
}

TEST_F(AlbumsCommand, LeavesOutPhotosThatOnlyTheTimesOfTheirFilesDate) {
  MakePhotos("dated", "2023:05:13", 20);
  for (int i = 0; i < 21; ++i) {
    const ioPath photo = WriteJpeg(Photos() / ("copied" + std::to_string(i) + ".jpg"));
    // On another weekend.
    SetTimeOf(photo, QDateTime(QDate(2022, 7, 9), QTime(12, 0), Qt::UTC));
  }
  Run({"scan", Text(Photos())});
  const Ran ran = Run({"albums"});
  EXPECT_THAT(ran.out, HasSubstr("May 2023"));
  EXPECT_THAT(ran.out, Not(HasSubstr("July 2022")));
  EXPECT_THAT(ran.out, HasSubstr("21 photos were left out"));
  EXPECT_THAT(ran.out, HasSubstr("lumidex albums --file-times"));
  EXPECT_EQ(Run({"albums", "--json"}).Json()["leftOut"].toInt(), 21);
  EXPECT_EQ(Run({"albums", "--accept", "Weekend, July 2022"}).exitCode, 4);

  const Ran all = Run({"albums", "--file-times"});
  EXPECT_THAT(all.out, HasSubstr("July 2022"));
  EXPECT_THAT(all.out, Not(HasSubstr("left out")));
  EXPECT_EQ(Run({"albums", "--json", "--file-times"}).Json()["leftOut"].toInt(-1), 0);
}

TEST_F(AlbumsCommand, ListsMembers) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--list"});
  EXPECT_THAT(ran.out, HasSubstr("\nChristmas, December 2023 (21 photos)\n  2023-12-24 10:00:00  " +
                                 (Photos() / "xmas" / "img0.jpg").utf8string() + '\n'));
}

TEST_F(AlbumsCommand, AcceptsAnAlbumOnce) {
  ScanTwoAlbums();
  const Ran first = Run({"albums", "--accept", "Christmas, December 2023"});
  EXPECT_EQ(first.exitCode, 0) << first.err;
  EXPECT_THAT(first.out, HasSubstr("Accepted Christmas, December 2023: 21 photos."));
  EXPECT_THAT(first.out, HasSubstr("21  yes"));
  EXPECT_THAT(first.out, HasSubstr("22  -"));

  const Ran second = Run({"albums", "--accept", "Christmas, December 2023"});
  EXPECT_EQ(second.exitCode, 0);
  EXPECT_THAT(second.out, HasSubstr("Christmas, December 2023 was accepted before"));
  EXPECT_EQ(Run({"albums", "--accepted", "--json"}).Json()["albums"].toArray().size(), 1);
}

TEST_F(AlbumsCommand, TellsScriptsWhatAcceptingDid) {
  ScanTwoAlbums();
  const QStringList accept = {"albums", "--json", "--accept", "Christmas\nDecember 2023"};
  const QJsonObject first = Run(accept).Json()["accepted"].toArray()[0].toObject();
  EXPECT_EQ(first["name"].toString(), QStringLiteral("Christmas\nDecember 2023"));
  EXPECT_TRUE(first["created"].toBool());
  EXPECT_EQ(first["photosAdded"].toInt(), 21);
  const QJsonObject second = Run(accept).Json()["accepted"].toArray()[0].toObject();
  EXPECT_EQ(second["id"].toString(), first["id"].toString());
  EXPECT_FALSE(second["created"].toBool(true));
  EXPECT_EQ(second["photosAdded"].toInt(-1), 0);
}

TEST_F(AlbumsCommand, OffersPhotosThatAreNewSinceAndAddsThem) {
  ScanTwoAlbums();
  Run({"albums", "--accept", "all"});
  MakePhotos("more", "2023:12:25", 2);
  Run({"scan", Text(Photos())});
  EXPECT_THAT(Run({"albums"}).out, HasSubstr("23  yes, 2 more now"));
  EXPECT_THAT(Run({"albums", "--accept", "Christmas - December 2023"}).out,
              HasSubstr("Added 2 photos to Christmas, December 2023"));
  EXPECT_THAT(Run({"albums"}).out, Not(HasSubstr("more now")));
}

TEST_F(AlbumsCommand, AcceptsNothingWhenOneNameIsUnknown) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--accept", "Weekend, May 2023", "--accept", "christmas"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_THAT(ran.err, HasSubstr("\"christmas\""));
  EXPECT_THAT(ran.err, HasSubstr("  Christmas, December 2023\n"));
  EXPECT_THAT(Run({"albums", "--accepted"}).out, HasSubstr("No album has been accepted yet"));

  const QJsonObject error = Run({"albums", "--json", "--accept", "Easter"}).Json();
  EXPECT_EQ(error["format"].toString(), QStringLiteral("lumidex.error"));
  EXPECT_EQ(error["kind"].toString(), QStringLiteral("unknown-album"));
  EXPECT_EQ(error["candidates"].toArray().size(), 2);
  EXPECT_EQ(error["exitCode"].toInt(), 4);
}

TEST_F(AlbumsCommand, ShowsAcceptedAlbumsAlsoOfOtherLanguages) {
  ScanTwoAlbums();
  Run({"albums", "--locale", "de_DE", "--accept", "all"});
  const QJsonObject document = Run({"albums", "--accepted", "--json"}).Json();
  EXPECT_EQ(document["kind"].toString(), QStringLiteral("accepted"));
  ASSERT_EQ(document["albums"].toArray().size(), 2);
  EXPECT_EQ(AlbumOf(document, 1)["name"].toString(), QStringLiteral("Weihnachten\nDezember 2023"));
  EXPECT_TRUE(AlbumOf(document, 1)["accepted"].toBool());
}

TEST_F(AlbumsCommand, SpeaksTheLanguageAskedFor) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--locale", "ja_JP"});
  EXPECT_THAT(ran.out, HasSubstr("\u30AF\u30EA\u30B9\u30DE\u30B9  2023\u5E74"
                                 "12\u6708  2023-12-24"));
  EXPECT_THAT(ran.err, IsEmpty());
  EXPECT_THAT(Run({"albums"}).out, HasSubstr("Christmas"));
}

TEST_F(AlbumsCommand, SpeaksTheNearestLanguageAndSaysSo) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--locale", "de_AT"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("Dezember 2023"));
  EXPECT_EQ(ran.err, "lumidex: de_AT is not supported; de_DE is used.\n");
}

TEST_F(AlbumsCommand, RefusesALanguageThatIsNotSpoken) {
  const Ran ran = Run({"albums", "--locale", "xx"});
  EXPECT_EQ(ran.exitCode, 2);
  for (const char* const locale :
       {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pt_BR", "ru_RU"}) {
    EXPECT_THAT(ran.err, HasSubstr(locale));
  }
}

TEST_F(AlbumsCommand, SpeaksTheLanguageOfTheSettings) {
  ScanTwoAlbums();
  tree.Write("config/lumidex/lumidex.ini", "[Interface]\nLanguage=fr_FR\n");
  EXPECT_EQ(Run({"albums", "--json"}).Json()["locale"].toString(), QStringLiteral("fr_FR"));
}

TEST_F(AlbumsCommand, WritesAReport) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--report", "page.html", "--json"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  const QJsonObject report = ran.Json()["report"].toObject();
  EXPECT_EQ(report["path"].toString(), Text(tree.Path("page.html")));
  EXPECT_EQ(report["missingPictures"].toInt(-1), 0);
  EXPECT_THAT(ReadFile(tree.Path("page.html")), HasSubstr("Christmas"));
  EXPECT_THAT(Run({"albums", "--report", "page.html"}).out,
              HasSubstr("Report: " + tree.Path("page.html").utf8string()));
}

TEST_F(AlbumsCommand, ExitsWith3WhenPicturesAreMissingInTheReport) {
  ScanTwoAlbums();
  (Photos() / "xmas" / "img0.jpg").remove();
  const Ran ran = Run({"albums", "--report", "page.html", "--json"});
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_EQ(ran.Json()["report"].toObject()["missingPictures"].toInt(), 1);
  EXPECT_THAT(Run({"albums", "--report", "page.html"}).out, HasSubstr("1 picture could not be read"));
}

TEST_F(AlbumsCommand, NeverWritesAReportOverAPictureOrTheCatalogue) {
  ScanTwoAlbums();
  for (const ioPath& victim : {Photos() / "xmas" / "img0.jpg", DefaultCatalogue()}) {
    const std::string before = ReadFile(victim);
    const Ran ran = Run({"albums", "--report", Text(victim)});
    EXPECT_EQ(ran.exitCode, 2);
    EXPECT_EQ(ReadFile(victim), before);
  }
}

TEST_F(AlbumsCommand, NeverWritesAReportThroughALinkToAPictureOrTheCatalogue) {
  ScanTwoAlbums();
  const ioPath picture = Photos() / "xmas" / "img0.jpg";
  struct Row {
    const char* link;
    ioPath target;
  };
  for (const Row& row :
       {Row{"picture.html", picture}, Row{"again.html", "picture.html"},
        Row{"missing.html", Photos() / "none.JPG"}, Row{"catalogue.html", DefaultCatalogue()},
        Row{"wal.html", DefaultCatalogue().utf8string() + "-wal"}}) {
    LUMIDEX_LINK_OR_SKIP(row.target, tree.Path(row.link));
  }
  const std::string before = ReadFile(picture);
  const std::string catalogue = ReadFile(DefaultCatalogue());
  for (const char* const link :
       {"picture.html", "again.html", "missing.html", "catalogue.html", "wal.html"}) {
    const Ran ran = Run({"albums", "--report", link});
    EXPECT_EQ(ran.exitCode, 2) << link;
    EXPECT_THAT(ran.err, HasSubstr(link));
    EXPECT_TRUE(std::filesystem::is_symlink(tree.Path(link).native())) << link;
  }
  EXPECT_EQ(ReadFile(picture), before);
  EXPECT_EQ(ReadFile(DefaultCatalogue()), catalogue);
  EXPECT_FALSE((Photos() / "none.JPG").exists());
}

TEST_F(AlbumsCommand, NeverWritesAReportOverSqlitesFiles) {
  ScanTwoAlbums();
  for (const char* const ending : {"-wal", "-shm", "-journal"}) {
    const ioPath file(DefaultCatalogue().utf8string() + ending);
    const Ran ran = Run({"albums", "--report", Text(file)});
    EXPECT_EQ(ran.exitCode, 2) << ending;
    EXPECT_THAT(ran.err, HasSubstr("a file of the catalogue")) << ending;
    EXPECT_FALSE(file.exists()) << ending;
  }
}

TEST_F(AlbumsCommand, NeverWritesAReportOverAPhotoOfAnyName) {
  MakePhotos("a", "2023:12:24", 1);
  std::filesystem::rename((Photos() / "a" / "img0.jpg").native(), tree.Path("scan of 1923").native());
  ASSERT_EQ(Run({"scan", "scan of 1923"}).exitCode, 0);
  const std::string before = ReadFile(tree.Path("scan of 1923"));
  const Ran ran = Run({"albums", "--report", "scan of 1923"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr("is a photo of the catalogue"));
  EXPECT_EQ(ReadFile(tree.Path("scan of 1923")), before);
}

TEST_F(AlbumsCommand, ReplacesPagesAndNothingElseByAReport) {
  ScanTwoAlbums();
  for (const char* const text : {"my notes", " ", "<html>", "<!DOCTYPE svg>", "\xFF\xD8\xFF"}) {
    tree.Write("notes.txt", text);
    const Ran ran = Run({"albums", "--json", "--accept", "all", "--report", "notes.txt"});
    EXPECT_EQ(ran.exitCode, 4) << text;
    EXPECT_EQ(ran.Json()["kind"].toString(), QStringLiteral("not-replaceable"));
    EXPECT_THAT(ran.err, HasSubstr("notes.txt"));
    EXPECT_EQ(ReadFile(tree.Path("notes.txt")), text);
  }
  for (const char* const text : {"", "<!DOCTYPE html>old", "<!doctype HTML>"}) {
    tree.Write("page", text);
    EXPECT_EQ(Run({"albums", "--report", "page"}).exitCode, 0) << text;
    EXPECT_THAT(ReadFile(tree.Path("page")), HasSubstr("Christmas"));
  }
  EXPECT_EQ(Run({"albums", "--report", "page"}).exitCode, 0);
  EXPECT_THAT(Run({"albums", "--accepted"}).out, HasSubstr("No album has been accepted yet"));
}

TEST_F(AlbumsCommand, AcceptsNothingWhenTheReportCannotBeWritten) {
  ScanTwoAlbums();
  tree.Write("file", "");
  for (const QStringList& form : {QStringList{}, QStringList{"--json"}}) {
    const Ran ran = Run(QStringList{"albums", "--accept", "all", "--report", "file/page.html"} + form);
    EXPECT_EQ(ran.exitCode, 4);
    EXPECT_THAT(Run({"albums", "--accepted"}).out, HasSubstr("No album has been accepted yet"));
  }
}

TEST_F(AlbumsCommand, ShowsInTheReportWhatItAccepts) {
  ScanTwoAlbums();
  EXPECT_EQ(Run({"albums", "--report", "before.html"}).exitCode, 0);
  const Ran ran = Run({"albums", "--accept", "all", "--report", "now.html"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("2 accepted."));
  EXPECT_EQ(Run({"albums", "--report", "after.html"}).exitCode, 0);
  EXPECT_NE(ReadFile(tree.Path("before.html")), ReadFile(tree.Path("now.html")));
  EXPECT_EQ(ReadFile(tree.Path("after.html")), ReadFile(tree.Path("now.html")));
}

TEST_F(AlbumsCommand, OrdersDaysThatHaveNoMidnight) {
  environment.insert(QStringLiteral("TZ"), QStringLiteral("America/Sao_Paulo"));
  tree.Write("cache/lumidex/holidayEvents/HolidayEvents.json", R"({"events": {"en_US": [
    {"event": "C before", "start": "14.10", "end": "14.10"},
    {"event": "B skipped", "start": "15.10", "end": "15.10"},
    {"event": "A after", "start": "16.10", "end": "16.10"}]}})");
  MakePhotos("a", "2017:10:14", 20);
  MakePhotos("b", "2017:10:15", 20);
  MakePhotos("c", "2017:10:16", 20);
  ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
  const QJsonObject document = Run({"albums", "--json"}).Json();
  ASSERT_EQ(document["albums"].toArray().size(), 3);
  EXPECT_EQ(AlbumOf(document, 0)["title"].toString(), QStringLiteral("C before"));
  EXPECT_EQ(AlbumOf(document, 1)["title"].toString(), QStringLiteral("B skipped"));
  EXPECT_EQ(AlbumOf(document, 2)["title"].toString(), QStringLiteral("A after"));
  EXPECT_EQ(AlbumOf(document, 1)["firstDay"].toString(), QStringLiteral("2017-10-15"));
}

TEST_F(AlbumsCommand, SaysWhenTheCalendarCannotBeRead) {
  ScanTwoAlbums();
  EXPECT_TRUE(Run({"albums", "--json"}).Json()["calendarFault"].isNull());
  const ioPath stored = tree.Path("cache/lumidex/holidayEvents/HolidayEvents.json");
  tree.Write("cache/lumidex/holidayEvents/HolidayEvents.json", R"({"events": {"en_US": [7]}})");
  const Ran ran = Run({"albums", "-q"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("Weekend"));
  EXPECT_THAT(ran.err, HasSubstr("The holiday calendar " + stored.utf8string() + " could not be read"));
  EXPECT_THAT(ran.err, HasSubstr("lumidex calendar update"));
  const Ran json = Run({"albums", "--json"});
  EXPECT_EQ(json.exitCode, 1);
  EXPECT_THAT(json.Json()["calendarFault"].toString().toStdString(), HasSubstr(stored.utf8string()));
  EXPECT_EQ(Run({"albums", "--accepted"}).exitCode, 0);
}

TEST_F(AlbumsCommand, TakesNamesThatBeginLikeOptions) {
  ScanTwoAlbums();
  EXPECT_THAT(Run({"albums", "--accept", "--", "-foo"}).err, HasSubstr("\"-foo\""));
  EXPECT_EQ(Run({"albums", "--report", "--", "-page.html"}).exitCode, 0);
  EXPECT_TRUE(tree.Path("-page.html").exists());
  EXPECT_THAT(Run({"albums", "--", "-foo"}).err, HasSubstr("Unexpected argument \"-foo\""));
}

TEST_F(AlbumsCommand, ExitsWith4WhenTheReportCannotBeWritten) {
  ScanTwoAlbums();
  tree.Write("file", "");
  const Ran ran = Run({"albums", "--report", "file/page.html"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_THAT(ran.err, HasSubstr("page.html"));
}

TEST_F(AlbumsCommand, AsksForAScanWithoutACatalogue) {
  const Ran ran = Run({"albums"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr("lumidex scan DIR"));
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_EQ(Run({"albums", "--json"}).Json()["kind"].toString(), QStringLiteral("no-catalogue"));
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(AlbumsCommand, AsksForAScanWithAnEmptyCatalogue) {
  Run({"scan", Text(Photos())});
  const Ran ran = Run({"albums"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_EQ(ran.out, "The catalogue holds no photos yet. Run: lumidex scan DIR\n");
  const Ran json = Run({"albums", "--json"});
  EXPECT_EQ(json.exitCode, 1);
  EXPECT_EQ(json.Json()["photos"].toInt(-1), 0);
}

TEST_F(AlbumsCommand, SaysWhenAllPhotosAreGone) {
  MakePhotos("a", "2023:12:24", 2);
  Run({"scan", Text(Photos())});
  (Photos() / "a" / "img0.jpg").remove();
  (Photos() / "a" / "img1.jpg").remove();
  Run({"scan", Text(Photos())});
  const Ran ran = Run({"albums"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("All 2 photos of the catalogue were missing"));
}

TEST_F(AlbumsCommand, SaysWhyThereAreNoProposals) {
  MakePhotos("a", "2023:12:24", 19);
  Run({"scan", Text(Photos())});
  const Ran ran = Run({"albums"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("19 photos"));
  EXPECT_THAT(ran.out, HasSubstr("needs 20 photos"));
}

TEST_F(AlbumsCommand, RefusesOptionsThatContradictEachOther) {
  EXPECT_EQ(Run({"albums", "--accepted", "--accept", "all"}).exitCode, 2);
}

}  // namespace
}  // namespace Zenvora::Test
