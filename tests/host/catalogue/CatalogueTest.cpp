#include "RawSql.h"
#include "Records.h"

#include <host/albums/Albums.h>
#include <host/catalogue/Catalogue.h>
#include <support/Soak.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QUuid>

#include <map>
#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::ErrorOf;
using Test::Photo;
using Test::Photos;
using Test::RunSql;
using Test::Slashes;
using Test::TempTree;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class CatalogueContent : public testing::Test {
 protected:
  TempTree tree_;
  const ioPath file_ = tree_.Path("catalogue.sqlite");
  Catalogue catalogue_{file_, Catalogue::Mode::ReadWrite};

  std::vector<std::string> Paths() const {
    std::vector<std::string> paths;
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      paths.push_back(Slashes(photo.path));
    }
    return paths;
  }
  std::set<std::string> StampPaths(const ioPath& folder) const {
    std::set<std::string> paths;
    for (const auto& entry : catalogue_.Stamps(folder)) {
      paths.insert(Slashes(entry.first));
    }
    return paths;
  }
  std::vector<QString> StoreThree() {
    catalogue_.Store({Photo("/p/a", QDate(2021, 1, 1)), Photo("/p/b", QDate(2021, 1, 2)),
                      Photo("/p/c", QDate(2021, 1, 3))});
    std::vector<QString> ids;
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      ids.push_back(photo.id);
    }
    return ids;
  }
};

Album Proposal(const QString& name, const QDate& day, const std::vector<QString>& ids) {
  DataModel model(name, QStringLiteral("proposed"), ItemType::Album);
  model.SetDateTime(QDateTime(day, QTime(0, 0)));
  return Album(model, ids,
               {{DataAttributeId::CoverPhoto, ids.empty() ? QString() : ids.front()},
                {DataAttributeId::Description, QString()}});
}

TEST_F(CatalogueContent, IsEmptyAtFirst) {
  EXPECT_EQ(catalogue_.CountPhotos(), 0U);
  EXPECT_THAT(catalogue_.Photos(), IsEmpty());
  EXPECT_THAT(MakeModels(catalogue_.Photos()), IsEmpty());
  EXPECT_THAT(catalogue_.Albums(), IsEmpty());
  EXPECT_TRUE(catalogue_.Stamps("/").empty());
  EXPECT_EQ(catalogue_.File(), file_);
}

TEST_F(CatalogueContent, GivesBackWhatWasStored) {
  PhotoRecord photo = Photo("/p/a b.jpg");
  photo.size = std::uint64_t{1} << 40;
  photo.modifiedNs = -1;
  photo.taken = QDateTime(QDate(1999, 12, 31), QTime(23, 59, 59, 7));
  photo.takenSource = DateSource::Digitised;
  photo.camera = QString::fromUtf8("Kam\xC3\xA9ra");
  catalogue_.Store({photo});

  const std::vector<PhotoRecord> photos = catalogue_.Photos();
  ASSERT_EQ(photos.size(), 1U);
  EXPECT_EQ(photos[0].path, photo.path);
  EXPECT_EQ(photos[0].size, photo.size);
  EXPECT_EQ(photos[0].modifiedNs, photo.modifiedNs);
  EXPECT_EQ(photos[0].taken, photo.taken);
  EXPECT_EQ(photos[0].takenSource, photo.takenSource);
  EXPECT_EQ(photos[0].camera, photo.camera);
  EXPECT_FALSE(photos[0].lost);
  EXPECT_EQ(QUuid::fromString(photos[0].id).version(), QUuid::Random);
}

TEST_F(CatalogueContent, StoresDatesAsTextThatPeopleCanRead) {
  PhotoRecord photo = Photo("/p/a");
  photo.taken = QDateTime(QDate(2021, 5, 1), QTime(1, 2, 3, 45));
  catalogue_.Store({photo});
  EXPECT_EQ(RunSql(file_, {"SELECT taken FROM photos"}).toString(),
            QStringLiteral("2021-05-01T01:02:03.045"));
}

TEST_F(CatalogueContent, KeepsAnHourThatTheClockHereSkips) {
  PhotoRecord photo = Photo("/p/a");
  photo.taken = QDateTime(QDate(2021, 3, 28), QTime(2, 30), Qt::UTC);
  catalogue_.Store({photo});
  qputenv("TZ", "Europe/Berlin");
  tzset();
  const QDateTime taken = catalogue_.Photos().at(0).taken;
  qputenv("TZ", "UTC");
  tzset();
  EXPECT_EQ(taken.date(), QDate(2021, 3, 28));
  EXPECT_EQ(taken.time(), QTime(2, 30));
}

TEST_F(CatalogueContent, KeepsIdsAndUpdatesTheRest) {
  catalogue_.Store({Photo("/p/a")});
  const QString id = catalogue_.Photos().at(0).id;
  PhotoRecord changed = Photo("/p/a", QDate(2022, 2, 2));
  changed.size = 7;
  catalogue_.Store({changed});

  ASSERT_EQ(catalogue_.CountPhotos(), 1U);
  EXPECT_EQ(catalogue_.Photos().at(0).id, id);
  EXPECT_EQ(catalogue_.Photos().at(0).size, 7U);
  EXPECT_EQ(catalogue_.Photos().at(0).taken.date(), QDate(2022, 2, 2));
}

TEST_F(CatalogueContent, GivesEveryPhotoAnIdOfItsOwn) {
  catalogue_.Store(Photos("/p/", 300));
  std::set<QString> ids;
  for (const PhotoRecord& photo : catalogue_.Photos()) {
    ids.insert(photo.id);
  }
  EXPECT_EQ(ids.size(), 300U);
}

TEST_F(CatalogueContent, TakesOnePathTwiceInABatch) {
  PhotoRecord second = Photo("/p/a");
  second.size = 5;
  catalogue_.Store({Photo("/p/a"), second});
  ASSERT_EQ(catalogue_.CountPhotos(), 1U);
  EXPECT_EQ(catalogue_.Photos().at(0).size, 5U);
}

TEST_F(CatalogueContent, OrdersPhotosByDateThenPath) {
  PhotoRecord undated = Photo("/p/0");
  undated.taken = QDateTime();
  undated.takenSource = DateSource::None;
  catalogue_.Store(
      {Photo("/p/z", QDate(2020, 1, 1)), undated, Photo("/p/b"), Photo("/p/a"), Photo("/p/\xFF")});
  EXPECT_THAT(Paths(), ElementsAre("/p/z", "/p/a", "/p/b", Slashes("/p/\xFF"), "/p/0"));
  EXPECT_FALSE(catalogue_.Photos().back().taken.isValid());
}

TEST_F(CatalogueContent, GivesPhotosAsLibraryItems) {
  catalogue_.Store({Photo("/p/b.jpg"), Photo("/p/a.jpg")});
  const std::vector<DataModel> models = MakeModels(catalogue_.Photos());
  ASSERT_EQ(models.size(), 2U);
  EXPECT_EQ(models[0].GetName(), QStringLiteral("a.jpg"));
  EXPECT_EQ(models[0].GetId(), catalogue_.Photos().at(0).id);
  EXPECT_EQ(models[0].GetType(), ItemType::Photo);
  EXPECT_EQ(models[0].GetPath(), ioPath("/p/a.jpg"));
  EXPECT_EQ(models[0].GetSize(), 100U);
  EXPECT_EQ(models[0].GetDateTime(), QDateTime(QDate(2021, 5, 1), QTime(12, 0)));
  EXPECT_FALSE(models[0].IsLost());
}

TEST_F(CatalogueContent, MarksPhotosLostOnce) {
  StoreThree();
  EXPECT_EQ(catalogue_.MarkLost({"/p/a", "/p/b", "/p/unknown"}), 2);
  EXPECT_EQ(catalogue_.MarkLost({"/p/a", "/p/c"}), 1);
  EXPECT_EQ(catalogue_.MarkLost({}), 0);
  EXPECT_THAT(Paths(), IsEmpty());
  EXPECT_EQ(catalogue_.CountPhotos(), 3U);
  EXPECT_TRUE(catalogue_.Stamps("/p").at("/p/a").lost);
}

TEST_F(CatalogueContent, FindsLostPhotosAgainUnderTheirIds) {
  const std::vector<QString> ids = StoreThree();
  catalogue_.MarkLost({"/p/a"});
  catalogue_.Store({Photo("/p/a", QDate(2021, 1, 1))});
  EXPECT_EQ(catalogue_.Photos().at(0).id, ids.at(0));
  EXPECT_FALSE(catalogue_.Stamps("/p").at("/p/a").lost);
}

TEST_F(CatalogueContent, GivesStampsOfAFolderOnly) {
  catalogue_.Store({Photo("/a/b"), Photo("/a/b/1"), Photo("/a/b/c/2"), Photo("/a/bc/3"), Photo("/a/b.d/4"),
                    Photo("/a/b!/5"), Photo("/a/b0/6"), Photo("/a/B/7"), Photo("/x/a/b/8"),
                    Photo("/a/b/\xFF\xFE"), Photo("/a/b\xFF/9"), Photo("/a/b%/10")});
  EXPECT_THAT(StampPaths("/a/b"), ElementsAre("/a/b", "/a/b/1", "/a/b/c/2", Slashes("/a/b/\xFF\xFE")));
  EXPECT_THAT(StampPaths("/a/b/"), ElementsAre("/a/b/1", "/a/b/c/2", Slashes("/a/b/\xFF\xFE")));
  EXPECT_THAT(StampPaths("/a/b%"), ElementsAre("/a/b%/10"));
  EXPECT_THAT(StampPaths("/a/b\xFF"), ElementsAre(Slashes("/a/b\xFF/9")));
  EXPECT_THAT(StampPaths("/none"), IsEmpty());
  EXPECT_EQ(StampPaths("/").size(), 12U);
}

TEST_F(CatalogueContent, KeepsSizeAndTimeInStampsExactly) {
  PhotoRecord photo = Photo("/p/a");
  photo.size = (std::uint64_t{1} << 62) + 1;
  catalogue_.Store({photo});
  const FileStamp stamp = catalogue_.Stamps("/p").at("/p/a");
  EXPECT_EQ(stamp.size, photo.size);
  EXPECT_EQ(stamp.modifiedNs, photo.modifiedNs);
}

TEST_F(CatalogueContent, KeepsNamesThatAreNoText) {
  const std::vector<std::string> names = {"/p/\xFF\xFE.jpg", "/p/new\nline.jpg", "/p/'quote\".jpg",
                                          "/p/" + std::string(255, 'n'), "/p/\xC3\x28.jpg"};
  std::vector<std::string> stored;
  for (const std::string& name : names) {
    catalogue_.Store({Photo(name)});
    stored.push_back(Slashes(name));
  }
  EXPECT_THAT(Paths(), testing::UnorderedElementsAreArray(stored));
}

TEST_F(CatalogueContent, StoresManyPhotosInBatches) {
  const int batches = Zenvora::Test::SoakOr(200, 10);
  for (int i = 0; i < batches; ++i) {
    catalogue_.Store(Photos("/p/" + std::to_string(i) + "/", 500));
  }
  const std::size_t photos = static_cast<std::size_t>(batches) * 500U;
  EXPECT_EQ(catalogue_.CountPhotos(), photos);
  EXPECT_EQ(catalogue_.Photos().size(), photos);
  EXPECT_EQ(catalogue_.Stamps("/p/7").size(), 500U);
}

TEST_F(CatalogueContent, StoresAnAcceptedAlbum) {
  const std::vector<QString> ids = StoreThree();
  const AcceptResult result = catalogue_.AcceptAlbum(
      Proposal(QStringLiteral("Easter\n2021"), QDate(2021, 4, 4), {ids[2], ids[0], ids[2]}));
  EXPECT_TRUE(result.created);
  EXPECT_EQ(result.photosAdded, 2);

  const std::vector<StoredAlbum> albums = catalogue_.Albums();
  ASSERT_EQ(albums.size(), 1U);
  EXPECT_EQ(albums[0].id, result.albumId);
  EXPECT_EQ(QUuid::fromString(albums[0].id).version(), QUuid::Random);
  EXPECT_EQ(albums[0].name, QStringLiteral("Easter\n2021"));
  EXPECT_EQ(albums[0].firstDay, QDate(2021, 4, 4));
  EXPECT_THAT(albums[0].photoIds, ElementsAre(ids[2], ids[0]));
  EXPECT_EQ(RunSql(file_, {"SELECT value FROM album_attributes WHERE attribute = 0"}).toString(), ids[2]);
}

TEST_F(CatalogueContent, ChangesNothingWhenAnAlbumIsAcceptedAgain) {
  const std::vector<QString> ids = StoreThree();
  const Album proposal = Proposal(QStringLiteral("Easter"), QDate(2021, 4, 4), {ids[0], ids[1]});
  const AcceptResult first = catalogue_.AcceptAlbum(proposal);
  const AcceptResult second = catalogue_.AcceptAlbum(proposal);
  EXPECT_FALSE(second.created);
  EXPECT_EQ(second.photosAdded, 0);
  EXPECT_EQ(second.albumId, first.albumId);
  EXPECT_THAT(catalogue_.Albums().at(0).photoIds, ElementsAre(ids[0], ids[1]));
}

TEST_F(CatalogueContent, AppendsNewMembersAndTakesNoneOut) {
  const std::vector<QString> ids = StoreThree();
  catalogue_.AcceptAlbum(Proposal(QStringLiteral("Easter"), QDate(2021, 4, 4), {ids[1]}));
  const AcceptResult result =
      catalogue_.AcceptAlbum(Proposal(QStringLiteral("Easter"), QDate(2000, 1, 1), {ids[0], ids[2]}));
  EXPECT_FALSE(result.created);
  EXPECT_EQ(result.photosAdded, 2);
  EXPECT_THAT(catalogue_.Albums().at(0).photoIds, ElementsAre(ids[1], ids[0], ids[2]));
  EXPECT_EQ(catalogue_.Albums().at(0).firstDay, QDate(2021, 4, 4));
}

TEST_F(CatalogueContent, RefusesAlbumsWithUnknownPhotosWhole) {
  const std::vector<QString> ids = StoreThree();
  const std::string error = ErrorOf([&] {
    catalogue_.AcceptAlbum(
        Proposal(QStringLiteral("Easter"), QDate(2021, 4, 4), {ids[0], QStringLiteral("stranger")}));
  });
  EXPECT_THAT(error, HasSubstr("stranger"));
  EXPECT_THAT(error, HasSubstr(file_.utf8string()));
  EXPECT_THAT(catalogue_.Albums(), IsEmpty());
  // The catalogue still works.
  EXPECT_EQ(
      catalogue_.AcceptAlbum(Proposal(QStringLiteral("Easter"), QDate(2021, 4, 4), {ids[0]})).photosAdded, 1);
}

TEST_F(CatalogueContent, OrdersAlbumsByFirstDayThenName) {
  const std::vector<QString> ids = StoreThree();
  catalogue_.AcceptAlbum(Proposal(QStringLiteral("B"), QDate(2021, 1, 1), {ids[0]}));
  catalogue_.AcceptAlbum(Proposal(QStringLiteral("C"), QDate(2020, 1, 1), {ids[0], ids[1]}));
  catalogue_.AcceptAlbum(Proposal(QStringLiteral("A"), QDate(2021, 1, 1), {}));
  catalogue_.AcceptAlbum(Proposal(QStringLiteral("0"), QDate(), {ids[2]}));
  std::vector<QString> names;
  for (const StoredAlbum& album : catalogue_.Albums()) {
    names.push_back(album.name);
  }
  EXPECT_THAT(
      names, ElementsAre(QStringLiteral("C"), QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("0")));
  EXPECT_THAT(catalogue_.Albums().at(1).photoIds, IsEmpty());
}

TEST_F(CatalogueContent, KeepsLostPhotosInTheirAlbums) {
  const std::vector<QString> ids = StoreThree();
  catalogue_.AcceptAlbum(Proposal(QStringLiteral("Easter"), QDate(2021, 4, 4), {ids[0], ids[1]}));
  catalogue_.MarkLost({"/p/a"});
  EXPECT_THAT(catalogue_.Albums().at(0).photoIds, ElementsAre(ids[0], ids[1]));
}

TEST(DateSourceName, NamesEverySource) {
  EXPECT_STREQ(DateSourceName(DateSource::Original), "original");
  EXPECT_STREQ(DateSourceName(DateSource::Digitised), "digitised");
  EXPECT_STREQ(DateSourceName(DateSource::FileTime), "fileTime");
  EXPECT_STREQ(DateSourceName(DateSource::Xmp), "xmp");
  EXPECT_STREQ(DateSourceName(DateSource::Iptc), "iptc");
  EXPECT_STREQ(DateSourceName(DateSource::None), "none");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
