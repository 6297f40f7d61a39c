#include "ReportPage.h"

#include <host/report/Report.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QSet>
#include <QXmlStreamReader>

#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;
using Test::IsSuperuser;
using Test::PhotoTags;
using Test::Pipe;
using Test::ReadFile;
using Test::TempTree;
using Test::WriteJpeg;
#ifndef _WIN32
using Test::WriteLimit;
#endif

/// The page as a reader sees it.
struct Page {
  bool wellFormed = false;
  std::string error;
  QString language;
  QString direction;
  QStringList references;  ///< All src and href.
  QStringList headings;    ///< h2 of the albums and the empty page.
  QStringList ids;
  QStringList alts;
  QStringList tips;
  QStringList elements;
  QString text;
  int pictures = 0;
};

Page Parse(const QByteArray& html) {
  Page page;
  QXmlStreamReader xml(html);
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement()) {
      const QString name = xml.name().toString();
      page.elements << name;
      page.pictures += name == QLatin1String("img") ? 1 : 0;
      for (const QXmlStreamAttribute& attribute : xml.attributes()) {
        const QString key = attribute.name().toString();
        const QString value = attribute.value().toString();
        if (key == QLatin1String("src") || key == QLatin1String("href")) {
          page.references << value;
        } else if (key == QLatin1String("id")) {
          page.ids << value;
        } else if (key == QLatin1String("alt")) {
          page.alts << value;
        } else if (key == QLatin1String("title")) {
          page.tips << value;
        } else if (key == QLatin1String("lang")) {
          page.language = value;
        } else if (key == QLatin1String("dir") && name == QLatin1String("html")) {
          page.direction = value;
        }
      }
      if (name == QLatin1String("h2")) {
        const QString heading = xml.readElementText();
        page.headings << heading;
        page.text += heading + QLatin1Char('\n');
      }
    } else if (xml.isCharacters()) {
      page.text += xml.text();
    }
  }
  page.wellFormed = !xml.hasError();
  page.error = xml.errorString().toStdString();
  return page;
}

class Report : public ::testing::Test {
 protected:
  PhotoRecord Photo(const ioPath& name, int width = 64, int height = 48) {
    PhotoRecord photo;
    photo.path = tree.Path("photos") / name;
    PhotoTags tags;
    tags.width = width;
    tags.height = height;
    WriteJpeg(photo.path, tags);
    photo.taken = QDateTime(QDate(2023, 12, 24), QTime(18, 5, 9), Qt::UTC);
    photo.camera = QStringLiteral("Pinhole 35");
    return photo;
  }
  ReportAlbum Album(const QString& name, int photos, const QDate& day = QDate(2023, 12, 24)) {
    ReportAlbum album;
    album.name = name;
    album.firstDay = day;
    for (int i = 0; i < photos; ++i) {
      album.photos.push_back(Photo(ioPath("IMG_" + std::to_string(i) + ".jpg")));
    }
    return album;
  }
  Page Write(const std::vector<ReportAlbum>& albums) {
    missing = WriteReport(file, albums, options, {});
    bytes = QByteArray::fromStdString(ReadFile(file));
    Page page = Parse(bytes);
    EXPECT_TRUE(page.wellFormed) << page.error;
    return page;
  }
  std::string MessageFor(const ioPath& target, const std::vector<ReportAlbum>& albums) {
    try {
      WriteReport(target, albums, options, {});
    } catch (const HostError& error) {
      return error.what();
    }
    return {};
  }
  /// Everything in the folder of the page, temporary files too.
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(file.parent_path().native())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  TempTree tree;
  ioPath file = tree.MakeFolder("out") / ioPath("albums.html");
  ReportOptions options{QStringLiteral("en_US"), QStringLiteral("Our albums"), {}, 240, 24, nullptr};
  QByteArray bytes;
  int missing = -1;
};

TEST_F(Report, ShowsTitleTotalsAndAlbumsInTheGivenOrder) {
  const Page page = Write({Album(QStringLiteral("Zoo\nMay 2024"), 2, QDate(2024, 5, 1)),
                           Album(QStringLiteral("Christmas\nDecember 2023"), 3)});
  EXPECT_EQ(page.headings, (QStringList{QStringLiteral("Zoo"), QStringLiteral("Christmas")}));
  for (const char* text :
       {"Our albums", "2 albums · 5 photos · 2023–2024", "May 2024", "December 2023", "2 photos"}) {
    EXPECT_TRUE(page.text.contains(QString::fromUtf8(text))) << text;
  }
  EXPECT_EQ(page.pictures, 5);
  EXPECT_EQ(missing, 0);
}

TEST_F(Report, LinksEveryAlbumFromContentsByYear) {
  const Page page =
      Write({Album(QStringLiteral("B"), 1, QDate(2024, 5, 1)),
             Album(QStringLiteral("A"), 1, QDate(2022, 5, 1)), Album(QStringLiteral("C"), 1, QDate())});
  QStringList links;
  for (const QString& reference : page.references) {
    if (reference.startsWith(QLatin1Char('#'))) {
      links << reference;
      EXPECT_TRUE(page.ids.contains(reference.mid(1))) << reference.toStdString();
    }
  }
  EXPECT_EQ(links, (QStringList{QStringLiteral("#album-2"), QStringLiteral("#album-1"),
                                QStringLiteral("#album-3")}));
  EXPECT_LT(page.text.indexOf(QStringLiteral("2022")), page.text.indexOf(QStringLiteral("2024\n")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("Undated")));
  EXPECT_EQ(QSet<QString>(page.ids.begin(), page.ids.end()).size(), page.ids.size()) << "an id occurs twice";
}

TEST_F(Report, TellsNamesakesOfOneYearApartInTheContents) {
  const Page page = Write({Album(QStringLiteral("Weekend\nMay 2024"), 1, QDate(2024, 5, 4)),
                           Album(QStringLiteral("Weekend\nJune 2024"), 1, QDate(2024, 6, 1))});
  EXPECT_TRUE(page.text.contains(QStringLiteral("Weekend, May 2024")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("Weekend, June 2024")));
}

TEST_F(Report, HoldsAllItNeedsAndRunsNothing) {
  auto album = Album(QStringLiteral("Christmas\nDecember 2023"), 3);
  album.photos.push_back(PhotoRecord());
  const Page page = Write({album, Album(QStringLiteral("Other"), 1)});
  ASSERT_FALSE(page.references.isEmpty());
  for (const QString& reference : page.references) {
    EXPECT_TRUE(reference.startsWith(QLatin1String("data:")) || reference.startsWith(QLatin1Char('#')))
        << reference.left(60).toStdString();
  }
  for (const char* element : {"script", "iframe", "object", "embed", "form", "base"}) {
    EXPECT_FALSE(page.elements.contains(QLatin1String(element))) << element;
  }
  EXPECT_FALSE(bytes.contains("url("));
  EXPECT_FALSE(bytes.contains("@import"));
  EXPECT_TRUE(bytes.contains("Content-Security-Policy"));
}

TEST_F(Report, EscapesTextsOfAnyKind) {
#ifdef _WIN32
  GTEST_SKIP() << Zenvora::Test::WhyLeftOut();
#endif
  auto album = Album(QStringLiteral("<script>alert(1)</script> & \"Tom's\" %1 %3\n<b>May</b> 2024"), 0);
  album.photos.push_back(Photo("a <b> & \"c\" 'd' %1 %2 %3 %4.jpg"));
  album.photos.push_back(Photo("line\nbreak\ttab.jpg"));
  album.photos.push_back(Photo("ctrl\x01\x7F.jpg"));
  album.photos[0].camera = QStringLiteral("<Camera> & \"Co\"");
  ReportAlbum broken = Album(QString(QChar(0xD800)) + QChar(0xFFFF) + QChar(0xDC00) + QStringLiteral("🎆"), 1);
  options.title = QStringLiteral("Title <i> & \"x\"");
  const Page page = Write({album, broken});
  EXPECT_EQ(page.headings[0], QStringLiteral("<script>alert(1)</script> & \"Tom's\" %1 %3"));
  EXPECT_EQ(page.headings[1], QStringLiteral("���🎆"));
  EXPECT_TRUE(page.alts[0].startsWith(QStringLiteral("a <b> & \"c\" 'd' %1 %2 %3 %4.jpg, ")));
  EXPECT_TRUE(page.alts[1].startsWith(QStringLiteral("line break tab.jpg")));
  EXPECT_TRUE(page.alts[2].startsWith(QStringLiteral("ctrl��.jpg")));
  EXPECT_TRUE(page.tips.contains(QStringLiteral("a <b> & \"c\" 'd' %1 %2 %3 %4.jpg – <Camera> & \"Co\"")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("<b>May</b> 2024")));
  EXPECT_FALSE(page.elements.contains(QLatin1String("script")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("Title <i> & \"x\"")));
}

TEST_F(Report, IsWrittenUnderNamesThatAreNoUtf8) {
  file = tree.Path("out") / ioPath(std::string(Zenvora::Test::kStrangeName) + ".html");
  EXPECT_EQ(Write({Album(QStringLiteral("Bytes"), 1)}).pictures, 1);
}

#ifndef _WIN32
TEST_F(Report, ShowsPhotosWhoseNamesAreNoUtf8) {
  auto album = Album(QStringLiteral("Bytes"), 0);
  album.photos.push_back(Photo("caf\xE9 \xC3\x28.jpg"));
  const Page page = Write({album});
  EXPECT_EQ(page.pictures, 1);
  EXPECT_TRUE(page.alts[0].startsWith(QStringLiteral("caf� �(.jpg"))) << page.alts[0].toStdString();
}

#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Report, ShowsPhotosWhoseNamesAreNoUtf8);
#endif

TEST_F(Report, CountsWhatItDoesNotShow) {
  options.photosPerAlbum = 4;
  const Page page = Write({Album(QStringLiteral("Many"), 11), Album(QStringLiteral("Just enough"), 4)});
  EXPECT_EQ(page.pictures, 8);
  EXPECT_TRUE(page.text.contains(QStringLiteral("and 7 more")));
  EXPECT_EQ(page.text.count(QStringLiteral(" more")), 1);
  EXPECT_TRUE(page.text.contains(QStringLiteral("11 photos")));
}

TEST_F(Report, ShowsAllPhotosWithoutALimit) {
  for (const int limit : {0, -3}) {
    options.photosPerAlbum = limit;
    const Page page = Write({Album(QStringLiteral("Many"), 30)});
    EXPECT_EQ(page.pictures, 30);
    EXPECT_FALSE(page.text.contains(QStringLiteral(" more")));
  }
}

TEST_F(Report, CountsPicturesThatCannotBeReadAndSaysSoInTheirPlace) {
  auto album = Album(QStringLiteral("Gaps"), 2);
  album.photos.push_back(Photo("gone.jpg"));
  album.photos.back().path.remove();
  album.photos.push_back(Photo("text.jpg"));
  tree.Write("photos/text.jpg", "no picture");
  const Page page = Write({album});
  EXPECT_EQ(missing, 2);
  EXPECT_EQ(page.pictures, 2);
  EXPECT_EQ(page.text.count(QStringLiteral("No picture")), 2);
  EXPECT_TRUE(page.text.contains(QStringLiteral("gone.jpg")));
}

TEST_F(Report, MarksAcceptedAlbumsOnly) {
  auto accepted = Album(QStringLiteral("Taken"), 1);
  accepted.accepted = true;
  EXPECT_EQ(Write({accepted, Album(QStringLiteral("Proposed"), 1)}).text.count(QStringLiteral("Accepted")),
            1);
}

TEST_F(Report, ShowsOtherSetsThanAlbums) {
  options.words = {"group", "groups", "Groups by year", "No groups", "Nothing is alike."};
  auto group = Album(QStringLiteral("2 photos\nKeep the second"), 2);
  group.captions = {QStringLiteral("a <1>"), QStringLiteral("b.jpg\n640 × 480")};
  group.chosen = 1;
  const Page page = Write({group, Album(QStringLiteral("Others"), 1)});
  EXPECT_TRUE(page.text.contains(QStringLiteral("2 groups")));
  EXPECT_TRUE(page.text.contains(QStringLiteral("Keep the second")));
  const QString html = QString::fromStdString(Zenvora::Test::ReadFile(file));
  EXPECT_TRUE(
      html.contains(QStringLiteral("<span class=\"line\" dir=\"auto\">a &lt;1&gt;</span></figcaption>")));
  EXPECT_TRUE(
      html.contains(QStringLiteral("b.jpg</span><span class=\"line\" dir=\"auto\">640 × 480</span>")));
  EXPECT_EQ(html.count(QStringLiteral("<li class=\"chosen\"")), 1);
  EXPECT_TRUE(html.contains(QStringLiteral("aria-label=\"Groups by year\"")));
  EXPECT_EQ(Write({}).headings, (QStringList{QStringLiteral("No groups")}));
}

TEST_F(Report, PutsAWordUnderEachPictureThatHasOne) {
  using Tone = ReportMark::Tone;
  auto group = Album(QStringLiteral("Group"), 3);
  group.marks = {{QStringLiteral("Keep <it>"), Tone::Chosen}, {QStringLiteral("Same"), Tone::Good}, {}};
  Write({group, Album(QStringLiteral("Others"), 1)});
  const QString html = QString::fromStdString(Zenvora::Test::ReadFile(file));
  EXPECT_TRUE(html.contains(QStringLiteral("<span class=\"mark keep\">Keep &lt;it&gt;</span><figcaption>")));
  EXPECT_TRUE(html.contains(QStringLiteral("<span class=\"mark good\">Same</span>")));
  EXPECT_EQ(html.count(QStringLiteral("<span class=\"mark ")), 2);
}

TEST_F(Report, SaysKindlyThatThereAreNoAlbums) {
  const Page page = Write({});
  EXPECT_EQ(page.headings, (QStringList{QStringLiteral("No albums yet")}));
  EXPECT_EQ(page.pictures, 0);
  EXPECT_EQ(missing, 0);
}

TEST_F(Report, ShowsAlbumsWithoutPhotosNamesOrDates) {
  options.title = QStringLiteral("  ");
  const Page page =
      Write({Album(QString(), 0, QDate()), Album(QStringLiteral("Only a name"), 1, QDate(2024, 2, 29))});
  EXPECT_EQ(page.headings, (QStringList{QStringLiteral("Unnamed album"), QStringLiteral("Only a name")}));
  EXPECT_TRUE(page.text.contains(QStringLiteral("Thursday, February 29, 2024")))
      << "the day, for want of an interval";
  EXPECT_TRUE(page.text.contains(QStringLiteral("0 photos")));
}

TEST_F(Report, WritesDatesAndNumbersAsTheLocaleDoes) {
  struct Case {
    const char* locale;
    const char* language;
    const char* direction;
    const char* date;
  };
  const Case cases[] = {
      {"en_US", "en", "ltr", "12/24/2023 6:05 PM"}, {"de_DE", "de", "ltr", "24.12.2023 18:05"},
      {"ru_RU", "ru", "ltr", "24.12.2023 18:05"},   {"ja_JP", "ja", "ltr", "2023/12/24 18:05"},
      {"he_IL", "he", "rtl", "24.12.2023 18:05"},   {"", "en", "ltr", "24 Dec 2023 18:05:09"},
  };
  for (const Case& c : cases) {
    options.locale = QString::fromLatin1(c.locale);
    const Page page = Write({Album(QStringLiteral("Dates"), 1)});
    EXPECT_EQ(page.language, QLocale(options.locale).bcp47Name()) << c.locale;
    EXPECT_TRUE(page.language.startsWith(QLatin1String(c.language))) << c.locale;
    EXPECT_EQ(page.direction, QLatin1String(c.direction)) << c.locale;
    EXPECT_TRUE(page.text.contains(QLatin1String(c.date))) << c.locale << ": " << page.alts[0].toStdString();
  }
}

TEST_F(Report, SaysThatAPhotoHasNoDate) {
  auto album = Album(QStringLiteral("One"), 1);
  album.photos[0].taken = QDateTime();
  const Page page = Write({album});
  EXPECT_TRUE(page.alts[0].endsWith(QStringLiteral(", Undated")));
  EXPECT_FALSE(page.elements.contains(QLatin1String("time")));
}

TEST_F(Report, EmbedsSmallPlainJpegs) {
  options.thumbnailSize = 100;
  auto album = Album(QStringLiteral("Sizes"), 0);
  album.photos.push_back(Photo("wide.jpg", 400, 300));
  album.photos.push_back(Photo("tall.jpg", 300, 400));
  album.photos.push_back(Photo("tiny.jpg", 20, 10));
  const Page page = Write({album});
  std::vector<QSize> sizes;
  for (const QString& reference : page.references) {
    const QLatin1String prefix("data:image/jpeg;base64,");
    if (reference.startsWith(prefix)) {
      const QByteArray jpeg = QByteArray::fromBase64(reference.mid(prefix.size()).toLatin1());
      EXPECT_LT(jpeg.size(), 30'000);
      EXPECT_FALSE(jpeg.contains("Exif"));
      sizes.push_back(QImage::fromData(jpeg, "JPEG").size());
    }
  }
  EXPECT_EQ(sizes, (std::vector<QSize>{{100, 75}, {75, 100}, {20, 10}}));
}

TEST_F(Report, PutsTransparentPicturesOnWhite) {
  QImage image(40, 40, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  auto album = Album(QStringLiteral("Glass"), 0);
  PhotoRecord photo;
  photo.path = tree.Write("photos/glass.png", png.toStdString());
  album.photos.push_back(photo);
  const Page page = Write({album});
  const QString last = page.references.last();
  const QImage shown =
      QImage::fromData(QByteArray::fromBase64(last.mid(last.indexOf(QLatin1Char(',')) + 1).toLatin1()));
  EXPECT_GT(qGray(shown.pixel(20, 20)), 250);
}

TEST_F(Report, BoundsTheThumbnailSize) {
  for (const int size : {-1, 0, 31, 1'000'000}) {
    options.thumbnailSize = size;
    EXPECT_EQ(Write({Album(QStringLiteral("Sizes"), 1)}).pictures, 1) << size;
  }
}

TEST_F(Report, StaysSmallForManyPhotos) {
  auto album = Album(QStringLiteral("Many"), 24);
  Write({album});
  EXPECT_LT(bytes.size(), 24 * 20'000 + 20'000);
}

TEST_F(Report, ReportsEveryPictureOnTheCallingThread) {
  options.photosPerAlbum = 5;
  const auto caller = std::this_thread::get_id();
  std::vector<int> steps;
  WriteReport(file, {Album(QStringLiteral("A"), 9), Album(QStringLiteral("B"), 2)}, options,
              [&](int done, int total) {
                EXPECT_EQ(std::this_thread::get_id(), caller);
                EXPECT_EQ(total, 7);
                steps.push_back(done);
              });
  EXPECT_EQ(steps, (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(Report, KeepsThePicturesInOrderWhateverTheThreadsDo) {
  auto album = Album(QStringLiteral("Order"), 0);
  options.photosPerAlbum = 0;
  for (int i = 0; i < 60; ++i) {
    album.photos.push_back(Photo(ioPath("p" + std::to_string(i) + ".jpg"), i % 7 == 0 ? 1200 : 40 + i, 40));
  }
  const Page page = Write({album});
  ASSERT_EQ(page.alts.size(), 60);
  std::vector<QImage> images;
  for (const QString& reference : page.references) {
    if (reference.startsWith(QLatin1String("data:image/jpeg"))) {
      images.push_back(QImage::fromData(
          QByteArray::fromBase64(reference.mid(reference.indexOf(QLatin1Char(',')) + 1).toLatin1())));
    }
  }
  ASSERT_EQ(images.size(), 60U);
  for (int i = 0; i < 60; ++i) {
    EXPECT_TRUE(page.alts[i].startsWith(QStringLiteral("p%1.jpg").arg(i)));
    EXPECT_EQ(images[static_cast<std::size_t>(i)].width(), i % 7 == 0 ? 240 : 40 + i);
  }
}

TEST_F(Report, ReplacesAnOldPageAndLeavesNothingBeside) {
  tree.Write("out/albums.html", "old");
  fs::permissions(file.native(), fs::perms::owner_read | fs::perms::owner_write);
  Write({Album(QStringLiteral("New"), 1)});
  EXPECT_TRUE(bytes.startsWith("<!DOCTYPE html>"));
  EXPECT_EQ(Names(), (std::vector<std::string>{"albums.html"}));
#ifndef _WIN32
  EXPECT_EQ(fs::status(file.native()).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write);
#endif
}

TEST_F(Report, KeepsTheOldPageWhenCancelled) {
  tree.Write("out/albums.html", "old");
  std::atomic<bool> cancel{false};
  options.cancel = &cancel;
  const auto albums = std::vector<ReportAlbum>{Album(QStringLiteral("Many"), 20)};
  std::string message;
  int steps = 0;
  try {
    WriteReport(file, albums, options, [&](int done, int) {
      steps = done;
      cancel = done == 3;
    });
  } catch (const HostError& error) {
    message = error.what();
  }
  EXPECT_EQ(message, "cancelled");
  EXPECT_EQ(steps, 3);
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Names(), (std::vector<std::string>{"albums.html"}));
}

TEST_F(Report, WritesNothingWhenCancelledAtTheLastMoment) {
  std::atomic<bool> cancel{false};
  options.cancel = &cancel;
  EXPECT_THROW(WriteReport(file, {Album(QStringLiteral("Few"), 2)}, options,
                           [&](int done, int total) { cancel = done == total; }),
               HostError);
  EXPECT_TRUE(Names().empty());
}

TEST_F(Report, NamesFileAndCauseWhenItCannotBeWritten) {
  const ioPath plain = tree.Write("plain", "text");
  const auto albums = std::vector<ReportAlbum>{Album(QStringLiteral("A"), 1)};
  for (const ioPath& target : {tree.Path("no/such/folder.html"), plain / ioPath("below.html"),
                               tree.MakeFolder("folder"), ioPath(), tree.Path("slash/")}) {
    const std::string message = MessageFor(target, albums);
    EXPECT_EQ(message.rfind("Cannot write " + target.utf8string() + ": ", 0), 0U) << message;
    EXPECT_GT(message.size(), target.utf8string().size() + 18) << "no cause: " << message;
  }
  EXPECT_EQ(ReadFile(plain), "text");
}

TEST_F(Report, RefusesDevicesAndPipesInsteadOfReplacingThem) {
  const Pipe pipe(tree.Path("out/pipe"));
#ifdef _WIN32
  const std::vector<ioPath> targets = {pipe.Path(), "\\\\?\\NUL"};
#else
  const std::vector<ioPath> targets = {pipe.Path(), "/dev/null", "/dev/full"};
#endif
  for (const ioPath& target : targets) {
    EXPECT_NE(MessageFor(target, {}).find("not a regular file"), std::string::npos) << target;
    EXPECT_FALSE(fs::is_regular_file(target.native()));
  }
}

#ifndef _WIN32
TEST_F(Report, KeepsTheOldPageOnAFullDisk) {
  tree.Write("out/albums.html", "old");
  const auto albums = std::vector<ReportAlbum>{Album(QStringLiteral("Many"), 20)};
  std::string message;
  {
    const WriteLimit full(8000);
    message = MessageFor(file, albums);
  }
  EXPECT_EQ(message.rfind("Cannot write " + file.utf8string() + ": ", 0), 0U) << message;
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Names(), (std::vector<std::string>{"albums.html"}));
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Report, KeepsTheOldPageOnAFullDisk);

TEST_F(Report, KeepsTheOldPageWhileSomebodyHoldsIt) {
  tree.Write("out/albums.html", "old");
  {
    const Zenvora::Test::Closed held(file);
    const std::string message = MessageFor(file, {Album(QStringLiteral("New"), 1)});
    EXPECT_EQ(message.rfind("Cannot write " + file.utf8string() + ": ", 0), 0U) << message;
  }
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Names(), (std::vector<std::string>{"albums.html"}));
}
#endif

TEST_F(Report, FollowsSymbolicLinks) {
  tree.Write("elsewhere/page.html", "old");
  LUMIDEX_LINK_OR_SKIP(tree.Path("elsewhere/page.html"), file);
  Write({Album(QStringLiteral("Linked"), 1)});
  EXPECT_TRUE(fs::is_symlink(file.native()));
  EXPECT_TRUE(ReadFile(tree.Path("elsewhere/page.html")).rfind("<!DOCTYPE", 0) == 0);
}

TEST_F(Report, AppearsWhereADanglingLinkPoints) {
  tree.MakeFolder("elsewhere");
  LUMIDEX_LINK_OR_SKIP("second", file);
  LUMIDEX_LINK_OR_SKIP("../elsewhere/page.html", tree.Path("out/second"));
  Write({Album(QStringLiteral("Linked"), 1)});
  EXPECT_TRUE(fs::is_symlink(file.native()));
  EXPECT_TRUE(fs::is_regular_file(tree.Path("elsewhere/page.html").native()));
}

TEST_F(Report, RefusesLinksInACircle) {
  LUMIDEX_LINK_OR_SKIP("second", file);
  LUMIDEX_LINK_OR_SKIP("albums.html", tree.Path("out/second"));
  EXPECT_NE(MessageFor(file, {}).find("circle"), std::string::npos);
}

TEST_F(Report, CannotBeWrittenIntoAReadOnlyFolder) {
#ifdef _WIN32
  GTEST_SKIP() << Zenvora::Test::WhyLeftOut();
#endif
  if (IsSuperuser()) {
    GTEST_SKIP() << "the superuser may write anywhere";
  }
  fs::permissions(file.parent_path().native(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(MessageFor(file, {}).empty());
}

TEST(EscapedForPage, LeavesNothingThatMarkupOrXmlMinds) {
  struct Case {
    QString text;
    QString expected;
  };
  const Case cases[] = {
      {QStringLiteral("plain Ä 日本 🎆"), QStringLiteral("plain Ä 日本 🎆")},
      {QStringLiteral("<a href=\"x\">'&'</a>"),
       QStringLiteral("&lt;a href=&quot;x&quot;&gt;&#39;&amp;&#39;&lt;/a&gt;")},
      {QStringLiteral("a\r\nb\tc"), QStringLiteral("a  b c")},
      {QString(QChar(0)) + QChar(0x1B) + QChar(0x85), QStringLiteral("���")},
      {QString(QChar(0xD83C)), QStringLiteral("�")},
      {QString(QChar(0xDF86)) + QChar(0xD83C), QStringLiteral("��")},
      {QString(QChar(0xFFFE)), QStringLiteral("�")},
      {QString(), QString()},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(EscapedForPage(c.text).toStdString(), c.expected.toStdString());
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
