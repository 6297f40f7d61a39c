#include "FolderTrash.h"
#include "RawSql.h"
#include "Records.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/catalogue/Catalogue.h>
#include <host/history/UndoJournal.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Zenvora::Test::ErrorOf;
using Zenvora::Test::RunSql;

class AlbumJournal : public ::testing::Test {
 protected:
  AlbumJournal() {
    catalogue_.Store(Zenvora::Test::Photos("/photos/", 5));
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      ids_.push_back(photo.id);
    }
  }

  Album Proposal(const char* name, const std::vector<int>& photos) const {
    std::vector<QString> ids;
    for (const int photo : photos) {
      ids.push_back(ids_[static_cast<std::size_t>(photo)]);
    }
    DataModel model(QString::fromUtf8(name), QStringLiteral("proposed"), ItemType::Album);
    model.SetDateTime(QDateTime(QDate(2021, 4, 4), QTime(0, 0)));
    return Album(
        model, ids,
        {{DataAttributeId::CoverPhoto, ids.front()}, {DataAttributeId::Description, QStringLiteral("text")}});
  }
  std::vector<AcceptResult> Accept(const std::vector<Album>& albums) {
    return journal_.Albums().Run(QStringLiteral("accept"), albums);
  }
  UndoResult Undo() { return journal_.UndoLast(never_, nullptr); }
  UndoResult Redo() { return journal_.RedoLast(never_, nullptr); }

  /// All that the tables say of albums.
  std::string Albums() const {
    std::string text;
    for (const StoredAlbum& album : catalogue_.Albums()) {
      text += album.id.toStdString() + ' ' + album.name.toStdString() + ' ' +
              album.firstDay.toString(Qt::ISODate).toStdString() + ':';
      for (const QString& id : album.photoIds) {
        text += ' ' + id.toStdString();
      }
      text += '\n';
    }
    return text +
           RunSql(file_,
                  {"SELECT group_concat(a.id || attribute || value) FROM album_attributes t JOIN albums "
                   "a ON a.number = t.album"})
               .toString()
               .toStdString();
  }

  const Zenvora::Test::TempTree tree_;
  const ioPath file_ = tree_.Path("catalogue.sqlite");
  Catalogue catalogue_{file_, Catalogue::Mode::ReadWrite};
  const ioPath bin_ = tree_.MakeFolder("trash");
  Zenvora::Test::FolderTrash trash_{bin_};
  const boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
  const std::atomic<bool> never_{false};
  UndoJournal journal_{file_, *locker_, trash_};
  std::vector<QString> ids_;
};

TEST_F(AlbumJournal, RemovesTheAlbumsAndPutsThemBackAsTheyWere) {
  const auto results = Accept({Proposal("Easter\n2021", {2, 0, 1}), Proposal("May", {3, 4})});
  ASSERT_THAT(results, SizeIs(2));
  EXPECT_TRUE(results[0].created);
  EXPECT_EQ(results[1].photosAdded, 2);
  const std::string before = Albums();
  const UndoStep step = journal_.Steps().at(0);
  EXPECT_EQ(step.type, StepType::Albums);
  EXPECT_EQ(step.files, 5U);

  const UndoResult undone = Undo();
  EXPECT_EQ(undone.type, StepType::Albums);
  EXPECT_EQ(undone.files, 5U);
  EXPECT_EQ(Albums(), "");
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM album_attributes"}).toInt(), 0);

  EXPECT_EQ(Redo().files, 5U);
  EXPECT_EQ(Albums(), before);
  EXPECT_EQ(Undo().files, 5U);
  EXPECT_EQ(Albums(), "");
}

TEST_F(AlbumJournal, TakesOutOnlyWhatItAddedToOneThatWasThere) {
  Accept({Proposal("Easter", {1, 3})});
  const std::string first = Albums();
  Accept({Proposal("Easter", {0, 1, 2})});
  const std::string second = Albums();
  EXPECT_EQ(Undo().files, 2U);
  EXPECT_EQ(Albums(), first);
  EXPECT_EQ(Redo().files, 2U);
  EXPECT_EQ(Albums(), second);
}

TEST_F(AlbumJournal, WithoutAChangeThereIsNoStep) {
  Accept({Proposal("Easter", {0, 1})});
  const auto again = Accept({Proposal("Easter", {0, 1})});
  EXPECT_FALSE(again[0].created);
  EXPECT_EQ(again[0].photosAdded, 0);
  EXPECT_THAT(journal_.Steps(), SizeIs(1));
}

TEST_F(AlbumJournal, AcceptsAllOrNone) {
  Album unknown(Proposal("May", {0}).GetModel(), {QStringLiteral("stranger")}, {});
  EXPECT_THAT(ErrorOf([&] { Accept({Proposal("Easter", {0, 1}), unknown}); }), HasSubstr("stranger"));
  EXPECT_EQ(Albums(), "");
  EXPECT_THAT(journal_.Steps(), IsEmpty());
}

TEST_F(AlbumJournal, AnAlbumThatOthersFilledSinceStays) {
  Accept({Proposal("Easter", {0, 1})});
  Accept({Proposal("Easter", {0, 1, 2})});
  ASSERT_TRUE(journal_.SkipLast());
  const UndoResult undone = Undo();
  EXPECT_EQ(undone.files, 2U);
  ASSERT_THAT(undone.findings, SizeIs(1));
  EXPECT_THAT(undone.findings[0].cause, HasSubstr("\"Easter\" is kept"));
  ASSERT_THAT(catalogue_.Albums(), SizeIs(1));
  EXPECT_THAT(catalogue_.Albums()[0].photoIds, ElementsAre(ids_[2]));
  EXPECT_EQ(Redo().files, 2U);
  EXPECT_THAT(catalogue_.Albums()[0].photoIds, ElementsAre(ids_[0], ids_[1], ids_[2]));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
