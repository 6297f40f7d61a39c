#include <host/shots/ShotDates.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::PhotoTags;
using Test::ReadFile;
using Test::TempTree;
using Test::WriteJpeg;

constexpr std::size_t kFew = 1;
constexpr std::size_t kMany = 1'000;

ShotSet Shot(const std::vector<ioPath>& files) {
  ShotSet shot;
  for (const ioPath& file : files) {
    shot.files.push_back({file, file.extension().utf8string()});
  }
  return shot;
}

ioPath Original(const ioPath& file, const char* date = "2021:05:01 10:20:30") {
  PhotoTags tags;
  tags.dateTimeOriginal = date;
  return WriteJpeg(file, tags);
}

ioPath Digitised(const ioPath& file) {
  PhotoTags tags;
  tags.dateTimeDigitized = "2022:05:01 10:20:30";
  return WriteJpeg(file, tags);
}

std::string Day(const ShotDate& date) {
  return date.taken.toString(QStringLiteral("yyyy-MM-dd")).toStdString();
}

TEST(ShotDates, AreTheBestOfAllFilesOfTheShot) {
  const TempTree tree;
  const ioPath original = Original(tree.Path("a.jpg"));
  const ioPath later = Original(tree.Path("b.jpg"), "2023:01:01 00:00:00");
  const ioPath digitised = Digitised(tree.Path("c.jpg"));
  const ioPath silent = WriteJpeg(tree.Path("d.jpg"));
  const ioPath fake = tree.Write("e.jpg", "this is no image");
  const ioPath settings = tree.Write("f.xmp", "");
  const ShotDates dates(tree.Path("none.sqlite"), kMany);
  const struct {
    std::vector<ioPath> files;
    DateSource source;
    const char* day;
  } rows[] = {
      {{original, later}, DateSource::Original, "2021-05-01"},
      {{later, original}, DateSource::Original, "2023-01-01"},
      {{silent, digitised, original}, DateSource::Original, "2021-05-01"},
      {{fake, silent, digitised, settings}, DateSource::Digitised, "2022-05-01"},
  };
  for (const auto& row : rows) {
    const ShotDate date = dates.Of(Shot(row.files));
    EXPECT_EQ(date.source, row.source);
    EXPECT_EQ(Day(date), row.day);
  }
  EXPECT_EQ(dates.Of(Shot({fake, silent})).source, DateSource::FileTime);
  EXPECT_EQ(dates.Of(Shot({fake, silent})).fault, "");
  EXPECT_TRUE(dates.Of(Shot({silent})).taken.isValid());
  for (const std::vector<ioPath>& files :
       {std::vector<ioPath>{fake}, {settings}, {tree.Path("gone.jpg")}, {}}) {
    EXPECT_FALSE(dates.Of(Shot(files)).taken.isValid());
    EXPECT_EQ(dates.Of(Shot(files)).source, DateSource::None);
    const bool hasPhoto = !files.empty() && files != std::vector<ioPath>{settings};
    EXPECT_EQ(dates.Of(Shot(files)).fault.empty(), !hasPhoto);
  }
  EXPECT_FALSE(tree.Path("none.sqlite").exists());
}

TEST(ShotDates, AreTheCataloguesForUnchangedFilesOnly) {
  const TempTree tree;
  const ioPath catalogue = tree.Path("catalogue.sqlite");
  const ioPath same = Original(tree.Path("same.jpg"));
  const ioPath changed = Original(tree.Path("changed.jpg"));
  std::vector<PhotoRecord> records;
  for (const ioPath& file : {same, changed}) {
    const FileState state = QueryFile(file);
    PhotoRecord record;
    record.path = file;
    record.size = state.size;
    record.modifiedNs = file == same ? state.modifiedNs : state.modifiedNs - 1;
    record.taken = QDateTime(QDate(1999, 1, 1), QTime(1, 2, 3));
    record.takenSource = DateSource::Digitised;
    records.push_back(record);
  }
  Catalogue(catalogue, Catalogue::Mode::ReadWrite).Store(records);
  const ShotDates many(catalogue, kMany);
  EXPECT_EQ(Day(many.Of(Shot({same}))), "1999-01-01");
  EXPECT_EQ(many.Of(Shot({same})).source, DateSource::Digitised);
  EXPECT_EQ(Day(many.Of(Shot({changed}))), "2021-05-01");
  // A few files are read faster than many records.
  EXPECT_EQ(Day(ShotDates(catalogue, kFew).Of(Shot({same}))), "2021-05-01");
}

TEST(ShotDates, DoWithoutACatalogueThatCannotBeRead) {
  const TempTree tree;
  const std::string nonsense = "this is no database, but long enough to be asked";
  const ioPath catalogue = tree.Write("catalogue.sqlite", nonsense);
  const ShotDates dates(catalogue, kMany);
  EXPECT_EQ(Day(dates.Of(Shot({Original(tree.Path("a.jpg"))}))), "2021-05-01");
  EXPECT_EQ(ReadFile(catalogue), nonsense);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
