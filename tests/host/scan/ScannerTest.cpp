#include "RawSql.h"
#include "Records.h"

#include <host/scan/Scanner.h>
#include <host/shots/PhotoDate.h>
#include <host/shots/ShotNames.h>
#include <support/GpsPhoto.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;

using Test::Closed;
using Test::ErrorOf;
using Test::IsSuperuser;
using Test::MakeJpeg;
using Test::Photo;
using Test::PhotoTags;
using Test::Pipe;
using Test::Slashes;
using Test::TempTree;
using Test::WriteJpeg;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Kind = ScanFinding::Kind;

PhotoTags Taken(const std::string& original, const std::string& digitised = std::string()) {
  PhotoTags tags;
  tags.dateTimeOriginal = original;
  tags.dateTimeDigitized = digitised;
  tags.model = "Model X";
  return tags;
}

void SetTime(const ioPath& file, int year) {
  const QDateTime moment(QDate(year, 6, 7), QTime(8, 9, 10), Qt::UTC);
  const auto offset =
      std::chrono::system_clock::from_time_t(moment.toSecsSinceEpoch()) - std::chrono::system_clock::now();
  // The two clocks begin whole seconds apart.
  fs::last_write_time(file.native(),
                      std::chrono::round<std::chrono::seconds>(fs::file_time_type::clock::now() + offset));
}

class Scanner : public testing::Test {
 protected:
  TempTree tree_;
  TempTree place_;
  const ioPath root_ = tree_.MakeFolder("photos");
  Catalogue catalogue_{place_.Path("c.sqlite"), Catalogue::Mode::ReadWrite};

  ScanResult Run(const ScanOptions& options = ScanOptions()) {
    return Scan(catalogue_, {root_}, options, nullptr);
  }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      names.insert(Slashes(photo.path).substr(root_.utf8string().size() + 1));
    }
    return names;
  }
  PhotoRecord Only() const {
    const auto photos = catalogue_.Photos();
    return photos.size() == 1 ? photos[0] : PhotoRecord();
  }
};

TEST_F(Scanner, TakesInThePhotosOfAllFolders) {
  WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  WriteJpeg(root_ / "sub/deep/b.JPG", Taken("2021:05:02 10:20:30"));
  tree_.Write("photos/notes.txt", "no photo");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 2U);
  EXPECT_EQ(result.added, 2U);
  EXPECT_EQ(result.updated, 0U);
  EXPECT_EQ(result.unchanged, 0U);
  EXPECT_EQ(result.lost, 0U);
  EXPECT_EQ(result.dated[static_cast<int>(DateSource::Original)], 2U);
  EXPECT_FALSE(result.cancelled);
  EXPECT_THAT(result.findings, IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "sub/deep/b.JPG"));
}

TEST_F(Scanner, RecordsWhatTheFileSays) {
  const ioPath file = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  Run();
  const PhotoRecord photo = Only();
  EXPECT_EQ(photo.path, file);
  EXPECT_EQ(photo.size, file.file_size());
  EXPECT_EQ(photo.taken, QDateTime(QDate(2021, 5, 1), QTime(10, 20, 30)));
  EXPECT_EQ(photo.takenSource, DateSource::Original);
  EXPECT_EQ(photo.camera, QStringLiteral("Model X"));
}

TEST_F(Scanner, DatesPhotosByTheBestSource) {
  WriteJpeg(root_ / "1.jpg", Taken("2021:05:01 10:20:30", "2020:01:01 00:00:00"));
  WriteJpeg(root_ / "2.jpg", Taken("0000:00:00 00:00:00", "2020:01:01 00:00:00"));
  SetTime(WriteJpeg(root_ / "3.jpg", Taken("", "not a date")), 2015);
  const ScanResult result = Run();
  EXPECT_EQ(result.dated[static_cast<int>(DateSource::Original)], 1U);
  EXPECT_EQ(result.dated[static_cast<int>(DateSource::Digitised)], 1U);
  EXPECT_EQ(result.dated[static_cast<int>(DateSource::FileTime)], 1U);
  const auto photos = catalogue_.Photos();
  ASSERT_EQ(photos.size(), 3U);
  EXPECT_EQ(photos[0].takenSource, DateSource::FileTime);
  EXPECT_EQ(photos[0].taken.date(), QDate(2015, 6, 7));
  EXPECT_EQ(photos[1].takenSource, DateSource::Digitised);
  EXPECT_EQ(photos[2].takenSource, DateSource::Original);
}

TEST(PhotoDates, AreTheFirstThatThereIs) {
  Strandel::PhotoFacts facts;
  constexpr std::int64_t kMoment = 1'000'000'000'123'456'789;
  EXPECT_EQ(DateOf(facts, kMoment).taken, QDateTime::fromMSecsSinceEpoch(1'000'000'000'123));
  struct Row {
    QDateTime Strandel::PhotoFacts::*place;
    DateSource source;
  };
  DateSource former = DateSource::FileTime;
  EXPECT_EQ(DateOf(facts, kMoment).source, former);
  EXPECT_TRUE(IsBetterSource(former, DateSource::None));
  for (const Row& row :
       {Row{&Strandel::PhotoFacts::iptc, DateSource::Iptc}, Row{&Strandel::PhotoFacts::xmp, DateSource::Xmp},
        Row{&Strandel::PhotoFacts::digitised, DateSource::Digitised},
        Row{&Strandel::PhotoFacts::original, DateSource::Original}}) {
    facts.*row.place = QDateTime(QDate(2021, 1, 1 + static_cast<int>(row.source)), QTime(1, 2));
    EXPECT_EQ(DateOf(facts, kMoment).source, row.source);
    EXPECT_EQ(DateOf(facts, kMoment).taken, facts.*row.place);
    EXPECT_TRUE(IsBetterSource(row.source, former));
    EXPECT_FALSE(IsBetterSource(former, row.source));
    EXPECT_FALSE(IsBetterSource(former, former));
    former = row.source;
  }
}

/// A catalogue may lie among the photos. Its originals were taken for photos, and would have gone to the
/// trash as copies of what was edited.
TEST_F(Scanner, LeavesAloneWhatUndoKeeps) {
  WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  WriteJpeg(root_ / "c.sqlite.undo/1-before.jpg", Taken("2021:05:01 10:20:31"));
  WriteJpeg(root_ / "trip.undo/b.jpg", Taken("2021:05:01 10:20:32"));
  tree_.Write("photos/c.sqlite", "catalogue");
  EXPECT_EQ(Run().added, 3U) << "no lock makes it an undo folder";
  tree_.Write("photos/c.sqlite.undo/lock", "");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 2U);
  EXPECT_EQ(result.lost, 1U) << "what a former scan took in";
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "trip.undo/b.jpg"));
}

TEST_F(Scanner, ReadsUnchangedFilesOnlyOnce) {
  const ioPath file = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  SetTime(file, 2015);
  Run();
  const ScanResult again = Run();
  EXPECT_EQ(again.unchanged, 1U);
  EXPECT_EQ(again.added + again.updated, 0U);
  EXPECT_EQ(again.dated[static_cast<int>(DateSource::Original)], 0U);

  // Other content of the same size and time would be seen by whoever opened the file.
  tree_.Write("photos/a.jpg", std::string(file.file_size(), 'x'));
  SetTime(file, 2015);
  const ScanResult blind = Run();
  EXPECT_EQ(blind.unchanged, 1U);
  EXPECT_THAT(blind.findings, IsEmpty());
}

TEST_F(Scanner, ReadsChangedFilesAgain) {
  const ioPath file = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  SetTime(file, 2015);
  Run();
  const QString id = Only().id;
  WriteJpeg(file, Taken("2022:05:01 10:20:30"));
  SetTime(file, 2016);
  const ScanResult result = Run();
  EXPECT_EQ(result.updated, 1U);
  EXPECT_EQ(result.added, 0U);
  EXPECT_EQ(Only().id, id);
  EXPECT_EQ(Only().taken.date(), QDate(2022, 5, 1));
}

TEST_F(Scanner, ReadsEverythingAgainWhenAsked) {
  WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  Run();
  ScanOptions options;
  options.full = true;
  const ScanResult result = Run(options);
  EXPECT_EQ(result.updated, 1U);
  EXPECT_EQ(result.unchanged, 0U);
}

TEST_F(Scanner, MarksVanishedPhotosLost) {
  const ioPath file = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  WriteJpeg(root_ / "b.jpg", Taken("2021:05:01 10:20:30"));
  Run();
  file.remove();
  EXPECT_EQ(Run().lost, 1U);
  EXPECT_THAT(Names(), ElementsAre("b.jpg"));
  EXPECT_EQ(catalogue_.CountPhotos(), 2U);
  EXPECT_EQ(Run().lost, 0U) << "it is lost already";
}

TEST_F(Scanner, FindsLostPhotosAgain) {
  const ioPath file = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  Run();
  const QString id = Only().id;
  ASSERT_TRUE(file.rename(tree_.Path("away.jpg")));
  ASSERT_EQ(Run().lost, 1U);
  ASSERT_TRUE(tree_.Path("away.jpg").rename(file));
  const ScanResult result = Run();
  EXPECT_EQ(result.updated, 1U);
  EXPECT_EQ(result.unchanged, 0U);
  EXPECT_EQ(Only().id, id);
}

TEST_F(Scanner, LeavesPhotosElsewhereAlone) {
  catalogue_.Store({Photo("/elsewhere/a.jpg"), Photo(root_.utf8string() + "2/a.jpg")});
  EXPECT_EQ(Run().lost, 0U);
  EXPECT_EQ(catalogue_.Photos().size(), 2U);
}

TEST_F(Scanner, MarksPhotosLostWhoseNamesAreFoldersNow) {
  const ioPath file = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  Run();
  file.remove();
  WriteJpeg(file / "b.jpg", Taken("2022:05:01 10:20:30"));
  const ScanResult result = Run();
  EXPECT_EQ(result.lost, 1U);
  EXPECT_THAT(Names(), ElementsAre("a.jpg/b.jpg"));
}

TEST_F(Scanner, DoesNotMarkLostWhatItMerelyPassesOver) {
  WriteJpeg(root_ / "sub/a.jpg", Taken("2021:05:01 10:20:30"));
  Run();
  catalogue_.Store({Photo(WriteJpeg(root_ / ".hidden/b.jpg"))});
  EXPECT_EQ(Run().lost, 0U);
}

TEST_F(Scanner, ReportsFilesThatAreNoPhotos) {
  tree_.Write("photos/b.jpg", "text");
  tree_.Write("photos/a.png", "");
  WriteJpeg(root_ / "c.jpg");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 3U);
  EXPECT_EQ(result.added, 1U);
  ASSERT_EQ(result.findings.size(), 2U);
  EXPECT_EQ(result.findings[0].path, root_ / "a.png");
  EXPECT_EQ(result.findings[0].kind, Kind::NotAnImage);
  EXPECT_FALSE(result.findings[0].cause.empty());
  EXPECT_EQ(result.findings[1].path, root_ / "b.jpg");
}

TEST_F(Scanner, PassesOverHiddenFilesAndFolders) {
  WriteJpeg(root_ / ".a.jpg");
  WriteJpeg(root_ / ".thumbnails/b.jpg");
  EXPECT_EQ(Run().found, 0U);
}

TEST_F(Scanner, TakesAHiddenFolderThatIsNamed) {
  WriteJpeg(root_ / ".album/b.jpg");
  EXPECT_EQ(Scan(catalogue_, {root_ / ".album"}, ScanOptions(), nullptr).added, 1U);
}

TEST_F(Scanner, TakesASingleFile) {
  const ioPath file = WriteJpeg(root_ / "a.jpg");
  WriteJpeg(root_ / "b.jpg");
  const ioPath odd = WriteJpeg(root_ / "without-extension");
  const ScanResult result = Scan(catalogue_, {file, odd, file}, ScanOptions(), nullptr);
  EXPECT_EQ(result.found, 2U);
  EXPECT_EQ(result.added, 2U);
  EXPECT_EQ(Scan(catalogue_, {file}, ScanOptions(), nullptr).unchanged, 1U);
}

TEST_F(Scanner, CountsFilesOfNestedFoldersOnce) {
  const ioPath file = WriteJpeg(root_ / "sub/a.jpg");
  WriteJpeg(root_ / "b.jpg");
  for (const std::vector<ioPath>& roots : {std::vector<ioPath>{root_, root_ / "sub"},
                                           {root_ / "sub", root_, root_},
                                           {file, root_},
                                           {root_, file, root_ / "sub"}}) {
    ScanOptions options;
    options.dryRun = true;
    const ScanResult result = Scan(catalogue_, roots, options, nullptr);
    EXPECT_EQ(result.found, 2U);
    EXPECT_EQ(result.added, 2U);
    EXPECT_THAT(result.findings, IsEmpty());
  }
}

TEST_F(Scanner, KnowsAFolderByAnyOfItsNames) {
  WriteJpeg(root_ / "a.jpg");
  Run();
  EXPECT_EQ(Scan(catalogue_, {root_ / "../photos/./"}, ScanOptions(), nullptr).unchanged, 1U);
}

TEST_F(Scanner, RefusesRootsThatDoNotExist) {
  WriteJpeg(root_ / "a.jpg");
  const ioPath missing = tree_.Path("missing");
  EXPECT_THAT(ErrorOf([&] {
                Scan(catalogue_, {root_, missing}, ScanOptions(), nullptr);
              }),
              HasSubstr(missing.utf8string()));
  EXPECT_EQ(catalogue_.CountPhotos(), 0U) << "nothing is done when something is wrong";
  EXPECT_EQ(Scan(catalogue_, {}, ScanOptions(), nullptr).found, 0U);
}

TEST_F(Scanner, OnlyTellsInADryRun) {
  const ioPath gone = WriteJpeg(root_ / "gone.jpg");
  const ioPath changed = WriteJpeg(root_ / "changed.jpg", Taken("2021:05:01 10:20:30"));
  SetTime(changed, 2015);
  Run();
  gone.remove();
  WriteJpeg(changed, Taken("2022:05:01 10:20:30"));
  SetTime(changed, 2016);
  WriteJpeg(root_ / "new.jpg", Taken("2023:05:01 10:20:30"));

  ScanOptions options;
  options.dryRun = true;
  const ScanResult result = Run(options);
  EXPECT_EQ(result.added, 1U);
  EXPECT_EQ(result.updated, 1U);
  EXPECT_EQ(result.lost, 1U);
  EXPECT_THAT(Names(), ElementsAre("changed.jpg", "gone.jpg"));
  EXPECT_EQ(Run().lost, 1U) << "the dry run left it to do";
}

TEST_F(Scanner, TakesOddNames) {
  std::set<std::string> names = {" .jpg", "'quotes.jpg", "a b.jpg", "gr\xC3\xBC\xC3\x9F \xF0\x9F\x93\xB7.jpg",
                                 std::string(251, 'n') + ".jpg"};
#ifndef _WIN32
  names.insert("new\nline.jpg");
  names.insert("\"quotes\".jpg");
  names.insert("\xFF\xFE.jpg");
  names.insert("\xC3\x28/\x80.jpg");
#endif
  for (const std::string& name : names) {
    WriteJpeg(root_ / name);
  }
  const ScanResult result = Run();
  EXPECT_EQ(result.added, names.size());
  EXPECT_EQ(Names(), names);
  EXPECT_EQ(Run().unchanged, names.size());
}

TEST_F(Scanner, TakesEmptyFoldersAndDeepOnes) {
  ioPath deep = "photos";
  for (int i = 0; i < 300; ++i) {
    deep /= "d";
  }
  tree_.MakeFolder("photos/empty");
  WriteJpeg(tree_.Path(deep) / "a.jpg");
  EXPECT_EQ(Run().added, 1U);
}

TEST_F(Scanner, CountsWhatItHasDone) {
  for (int i = 0; i < 50; ++i) {
    WriteJpeg(root_ / (std::to_string(i) + ".jpg"));
  }
  tree_.Write("photos/none.jpg", "text");
  std::vector<ScanProgress> seen;
  Scan(catalogue_, {root_}, ScanOptions(), [&](const ScanProgress& progress) { seen.push_back(progress); });
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back().found, 51U);
  EXPECT_TRUE(seen.back().foundAll);
  EXPECT_EQ(seen.back().done, 51U);
  for (std::size_t i = 1; i < seen.size(); ++i) {
    EXPECT_GE(seen[i].done, seen[i - 1].done);
  }
}

TEST_F(Scanner, GivesTheSameResultsWithAnyNumberOfThreads) {
  for (int i = 0; i < 40; ++i) {
    WriteJpeg(root_ / (std::to_string(i) + ".jpg"));
    tree_.Write(ioPath("photos") / (std::to_string(i) + ".png"), "text");
  }
  std::vector<std::vector<std::string>> findings;
  for (const int threads : {1, 3, 1000}) {
    ScanOptions options;
    options.threads = threads;
    options.dryRun = true;
    const ScanResult result = Run(options);
    EXPECT_EQ(result.added, 40U);
    findings.emplace_back();
    for (const ScanFinding& finding : result.findings) {
      findings.back().push_back(finding.path.utf8string() + finding.cause);
    }
  }
  EXPECT_EQ(findings[0].size(), 40U);
  EXPECT_EQ(findings[0], findings[1]);
  EXPECT_EQ(findings[0], findings[2]);
}

TEST_F(Scanner, DoesNothingWhenItIsCancelledBeforehand) {
  const ioPath file = WriteJpeg(root_ / "a.jpg");
  Run();
  file.remove();
  WriteJpeg(root_ / "b.jpg");
  const std::atomic<bool> cancel{true};
  ScanOptions options;
  options.cancel = &cancel;
  const ScanResult result = Run(options);
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.added, 0U);
  EXPECT_EQ(result.lost, 0U);
  EXPECT_THAT(Names(), ElementsAre("a.jpg")) << "nothing is lost after a cancelled scan";
}

TEST_F(Scanner, KeepsWhatWasCommittedWhenItIsCancelled) {
  constexpr int kPhotos = 3000;
  const std::string bytes = MakeJpeg(PhotoTags());
  for (int i = 0; i < kPhotos; ++i) {
    tree_.Write(ioPath("photos") / (std::to_string(i) + ".jpg"), bytes);
  }
  std::atomic<bool> cancel{false};
  ScanOptions options;
  options.cancel = &cancel;
  const ScanResult result = Scan(catalogue_, {root_}, options, [&](const ScanProgress& progress) {
    if (progress.done > 0) {
      cancel = true;
    }
  });
  EXPECT_EQ(catalogue_.CountPhotos(), result.added);
  const ScanResult rest = Run();
  EXPECT_EQ(rest.unchanged, result.added);
  EXPECT_EQ(rest.added, kPhotos - result.added);
}

TEST_F(Scanner, StopsWhenTheCatalogueFails) {
  for (int i = 0; i < 20; ++i) {
    WriteJpeg(root_ / (std::to_string(i) + ".jpg"));
  }
  Catalogue readOnly(place_.Path("c.sqlite"), Catalogue::Mode::ReadOnly);
  EXPECT_THAT(ErrorOf([&] { Scan(readOnly, {root_}, ScanOptions(), nullptr); }),
              HasSubstr(place_.Path("c.sqlite").utf8string()));
  EXPECT_EQ(catalogue_.CountPhotos(), 0U);
}

TEST_F(Scanner, DryRunsOnACatalogueThatIsOpenForReading) {
  WriteJpeg(root_ / "a.jpg");
  Catalogue readOnly(place_.Path("c.sqlite"), Catalogue::Mode::ReadOnly);
  ScanOptions options;
  options.dryRun = true;
  EXPECT_EQ(Scan(readOnly, {root_}, options, nullptr).added, 1U);
}

TEST_F(Scanner, PassesOnWhatTheProgressHandlerThrows) {
  WriteJpeg(root_ / "a.jpg");
  EXPECT_THROW(
      Scan(catalogue_, {root_}, ScanOptions(), [](const ScanProgress&) { throw std::runtime_error("no"); }),
      std::runtime_error);
}

#ifndef _WIN32
TEST_F(Scanner, PassesOverPipesAndDevices) {
  const Pipe pipe(root_ / "pipe.jpg");
  fs::create_symlink("/dev/zero", (root_ / "zero.jpg").native());
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 0U);
  EXPECT_THAT(result.findings, IsEmpty());
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Scanner, PassesOverPipesAndDevices);
#endif

TEST_F(Scanner, RefusesAPipeInPlaceOfAFolder) {
  const Pipe pipe(tree_.Path("pipe.jpg"));
  EXPECT_THAT(ErrorOf([&] { Scan(catalogue_, {pipe.Path()}, ScanOptions(), nullptr); }),
              HasSubstr("neither"));
}

TEST_F(Scanner, KeepsPhotosThatCannotBeReadForTheMoment) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  const ioPath file = WriteJpeg(root_ / "a.jpg");
  Run();
  ScanOptions options;
  options.full = true;
  {
    const Closed closed(file);
    const ScanResult result = Run(options);
    EXPECT_EQ(result.lost, 0U);
    ASSERT_EQ(result.findings.size(), 1U);
    EXPECT_EQ(result.findings[0].kind, Kind::Unreadable);
    EXPECT_EQ(result.findings[0].path, file);
    EXPECT_FALSE(result.findings[0].cause.empty());
  }
  EXPECT_EQ(Run(options).updated, 1U);
}

TEST_F(Scanner, CountsHardLinksAsPhotosOfTheirOwn) {
  const ioPath file = WriteJpeg(root_ / "a.jpg");
  fs::create_hard_link(file.native(), (root_ / "b.jpg").native());
  EXPECT_EQ(Run().added, 2U);
}

TEST_F(Scanner, ProtectsPhotosBelowFoldersThatCannotBeRead) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every folder";
  }
  WriteJpeg(root_ / "closed/a.jpg");
  WriteJpeg(root_ / "open/b.jpg");
  Run();
  (root_ / "open/b.jpg").remove();
  const Closed closed(root_ / "closed");
  const ScanResult result = Run();
  EXPECT_EQ(result.lost, 1U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].kind, Kind::Unreadable);
  EXPECT_EQ(result.findings[0].path, root_ / "closed");
}

#ifndef _WIN32
TEST_F(Scanner, ProtectsPhotosBelowFoldersThatCannotBeOpened) {
  WriteJpeg(root_ / "sub/a.jpg");
  WriteJpeg(root_ / "b.jpg");
  Run();
  (root_ / "sub/a.jpg").remove();
  (root_ / "b.jpg").remove();

  // Without a free descriptor no folder can be opened, whatever the user's rights.
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &old), 0);
  ScanResult result;
  {
    const rlimit none{1, old.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    result = Run();
    setrlimit(RLIMIT_NOFILE, &old);
  }
  EXPECT_EQ(result.lost, 0U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].kind, Kind::Unreadable);
  EXPECT_EQ(result.findings[0].path, root_);
  EXPECT_EQ(Run().lost, 2U);
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Scanner, ProtectsPhotosBelowFoldersThatCannotBeOpened);
#endif

struct NameRow {
  const char* name;
  bool isPhoto;
};

TEST_F(Scanner, TakesCameraAndPlaceIn) {
  const ioPath photo = WriteJpeg(root_ / "a.jpg", Taken("2021:05:01 10:20:30"));
  Zenvora::Test::AddGps(photo, {"48/1 30/1", "N", "2/1 15/1", "W"});
  WriteJpeg(root_ / "b.jpg");
  Run();
  const std::vector<PhotoRecord> photos = catalogue_.Photos();
  ASSERT_EQ(photos.size(), 2U);
  EXPECT_EQ(photos[0].camera, QStringLiteral("Model X"));
  ASSERT_TRUE(photos[0].position);
  EXPECT_DOUBLE_EQ(photos[0].position->latitude, 48.5);
  EXPECT_DOUBLE_EQ(photos[0].position->longitude, -2.25);
  EXPECT_TRUE(photos[1].camera.isEmpty());
  EXPECT_FALSE(photos[1].position);
}

TEST_F(Scanner, ReadsAgainWhatAFormerVersionReadLessOf) {
  Zenvora::Test::AddGps(WriteJpeg(root_ / "a.jpg"), {"48/1", "N", "2/1", "E"});
  Run();
  EXPECT_EQ(Run().unchanged, 1U);
  ASSERT_TRUE(
      Zenvora::Test::RunSql(catalogue_.File(), {"UPDATE photos SET reading = 0, latitude = NULL"}).isValid());
  const ScanResult again = Run();
  EXPECT_EQ(again.updated, 1U);
  EXPECT_TRUE(Only().position);
  EXPECT_EQ(Run().unchanged, 1U);
}

class PhotoNames : public testing::TestWithParam<NameRow> {};

TEST_P(PhotoNames, AreToldByExtension) {
  EXPECT_EQ(IsPhotoName(GetParam().name), GetParam().isPhoto) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Table, PhotoNames,
    testing::Values(
        NameRow{"a.jpg", true}, NameRow{"a.JPG", true}, NameRow{"a.Jpeg", true}, NameRow{"a.jpe", true},
        NameRow{"a.jfif", true}, NameRow{"a.png", true}, NameRow{"a.tif", true}, NameRow{"a.TIFF", true},
        NameRow{"a.webp", true}, NameRow{"a.heic", true}, NameRow{"a.HEIF", true}, NameRow{"a.hif", true},
        NameRow{"a.avif", true}, NameRow{"a.jxl", true}, NameRow{"a.bmp", true}, NameRow{"a.gif", true},
        NameRow{"a.dng", true}, NameRow{"a.cr2", true}, NameRow{"a.CR3", true}, NameRow{"a.crw", true},
        NameRow{"a.nef", true}, NameRow{"a.nrw", true}, NameRow{"a.arw", true}, NameRow{"a.raf", true},
        NameRow{"a.orf", true}, NameRow{"a.rw2", true}, NameRow{"a.pef", true}, NameRow{"a.srw", true},
        NameRow{"a.gpr", true}, NameRow{"a.K25", true}, NameRow{"a.dib", true}, NameRow{"a.x3f", true},
        NameRow{"a.3fr", true}, NameRow{"a.iiq", true}, NameRow{"a.rwl", true}, NameRow{"a.b.jpg", true},
        NameRow{"\xFF.jpg", true}, NameRow{"a.jpg.xmp", false}, NameRow{"a.xmp", false},
        NameRow{"a.mp4", false}, NameRow{"a.mov", false}, NameRow{"a.txt", false}, NameRow{"jpg", false},
        NameRow{".jpg", false}, NameRow{"a.", false}, NameRow{"a", false}, NameRow{"", false},
        NameRow{"a.jpgx", false}, NameRow{"a.jp", false}, NameRow{"a.jpg ", false}, NameRow{"a.psd", false},
        NameRow{"a.jp2", false}, NameRow{"a.svg", false}));

TEST(ReadPhoto, SaysWhyAFileIsNone) {
  const TempTree tree;
  PhotoRecord record;
  ScanFinding finding;
  EXPECT_FALSE(ReadPhoto(tree.Write("a.jpg", "text"), record, finding));
  EXPECT_EQ(finding.kind, Kind::NotAnImage);
  EXPECT_EQ(finding.path, tree.Path("a.jpg"));
  EXPECT_FALSE(ReadPhoto(tree.Path("missing.jpg"), record, finding));
  EXPECT_EQ(finding.kind, Kind::Unreadable);
  EXPECT_FALSE(finding.cause.empty());
}

TEST(ReadPhoto, MakesARecordWithoutAnId) {
  const TempTree tree;
  PhotoRecord record;
  record.id = QStringLiteral("old");
  ScanFinding finding;
  ASSERT_TRUE(ReadPhoto(WriteJpeg(tree.Path("a.jpg"), Taken("2021:05:01 10:20:30")), record, finding));
  EXPECT_TRUE(record.id.isEmpty());
  EXPECT_EQ(record.size, tree.Path("a.jpg").file_size());
  EXPECT_GT(record.modifiedNs, 0);
  EXPECT_EQ(record.takenSource, DateSource::Original);
}

TEST(ReadPhoto, ReadsTimesBefore1970) {
  const TempTree tree;
  const ioPath file = WriteJpeg(tree.Path("a.jpg"));
  SetTime(file, 1955);
  PhotoRecord record;
  ScanFinding finding;
  ASSERT_TRUE(ReadPhoto(file, record, finding));
  EXPECT_EQ(record.taken, QDateTime(QDate(1955, 6, 7), QTime(8, 9, 10)));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
