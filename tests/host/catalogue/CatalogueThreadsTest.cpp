#include "RawSql.h"
#include "Records.h"

#include <host/catalogue/Catalogue.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>

#include <atomic>
#include <functional>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::Photo;
using Test::Photos;
using Test::RunSql;
using Test::TempTree;
using Mode = Catalogue::Mode;

/// Runs the work in so many threads and returns what they threw, as text.
std::string RunInThreads(int count, const std::function<void(int)>& work) {
  std::vector<std::string> errors(static_cast<std::size_t>(count));
  std::vector<std::thread> threads;
  for (int i = 0; i < count; ++i) {
    threads.emplace_back([i, &work, &error = errors[static_cast<std::size_t>(i)]] {
      try {
        work(i);
      } catch (const std::exception& thrown) {
        error = thrown.what();
      }
    });
  }
  std::string all;
  for (std::size_t i = 0; i < threads.size(); ++i) {
    threads[i].join();
    all += errors[i];
  }
  return all;
}

TEST(CataloguesInThreads, MakeOneFileTogether) {
  for (int round = 0; round < 5; ++round) {
    const TempTree tree;
    const ioPath file = tree.Path("c.sqlite");
    EXPECT_EQ(
        RunInThreads(
            6, [&](int i) { Catalogue(file, Mode::ReadWrite).Store({Photo("/p/" + std::to_string(i))}); }),
        "");
    EXPECT_EQ(Catalogue(file, Mode::ReadOnly).CountPhotos(), 6U);
    EXPECT_EQ(RunSql(file, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
  }
}

TEST(CataloguesInThreads, WriteWithoutLosingAnything) {
  const TempTree tree;
  const ioPath file = tree.Path("c.sqlite");
  const std::string error = RunInThreads(4, [&](int i) {
    Catalogue catalogue(file, Mode::ReadWrite);
    for (int batch = 0; batch < 20; ++batch) {
      catalogue.Store(Photos("/own/" + std::to_string(i) + "/" + std::to_string(batch) + "/", 25));
      catalogue.Store(Photos("/shared/" + std::to_string(batch) + "/", 25));
    }
  });
  EXPECT_EQ(error, "");
  EXPECT_EQ(Catalogue(file, Mode::ReadOnly).CountPhotos(), 4U * 20 * 25 + 20 * 25);
  EXPECT_EQ(RunSql(file, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
}

TEST(CataloguesInThreads, MakeAnAlbumOnce) {
  const TempTree tree;
  const ioPath file = tree.Path("c.sqlite");
  Catalogue catalogue(file, Mode::ReadWrite);
  catalogue.Store(Photos("/p/", 40));
  std::vector<QString> ids;
  for (const PhotoRecord& photo : catalogue.Photos()) {
    ids.push_back(photo.id);
  }
  std::atomic<int> created{0};
  std::atomic<int> added{0};
  const std::string error = RunInThreads(4, [&](int) {
    Catalogue own(file, Mode::ReadWrite);
    const AcceptResult result =
        own.AcceptAlbum(Album(DataModel(QStringLiteral("Easter"), QString(), ItemType::Album), ids, {}));
    created += result.created ? 1 : 0;
    added += result.photosAdded;
  });
  EXPECT_EQ(error, "");
  EXPECT_EQ(created, 1);
  EXPECT_EQ(added, 40);
  ASSERT_EQ(catalogue.Albums().size(), 1U);
  EXPECT_EQ(catalogue.Albums()[0].photoIds, ids);
}

TEST(CataloguesInThreads, ReadWholeBatchesWhileOneWrites) {
  const TempTree tree;
  const ioPath file = tree.Path("c.sqlite");
  Catalogue writer(file, Mode::ReadWrite);
  std::atomic<bool> done{false};
  std::atomic<int> broken{0};
  std::thread reader([&] {
    const Catalogue catalogue(file, Mode::ReadOnly);
    while (!done) {
      broken += catalogue.CountPhotos() % 50 == 0 ? 0 : 1;
    }
  });
  for (int batch = 0; batch < 30; ++batch) {
    writer.Store(Photos("/" + std::to_string(batch) + "/", 50));
  }
  done = true;
  reader.join();
  EXPECT_EQ(broken, 0);
}

TEST(CataloguesInThreads, WaitForAnothersWrite) {
  const TempTree tree;
  const ioPath file = tree.Path("c.sqlite");
  Catalogue catalogue(file, Mode::ReadWrite);
  std::atomic<bool> locked{false};
  std::atomic<bool> waits{false};
  std::thread other([&] {
    {
      QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
      database.setDatabaseName(file.qstring());
      database.open();
      QSqlQuery query(database);
      query.exec(QStringLiteral("BEGIN IMMEDIATE"));
      locked = true;
      while (!waits) {
        std::this_thread::yield();
      }
      // Long enough for the other to find the catalogue locked.
      for (int i = 0; i < 5000; ++i) {
        query.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"));
      }
      query.exec(QStringLiteral("COMMIT"));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
  });
  while (!locked) {
    std::this_thread::yield();
  }
  waits = true;
  EXPECT_NO_THROW(catalogue.Store({Photo("/p/a")}));
  other.join();
  EXPECT_EQ(catalogue.CountPhotos(), 1U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
