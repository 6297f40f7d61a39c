#include "SamplePlan.h"

#include <host/pixels/PhotoFiles.h>
#include <samples/Sample.h>
#include <support/ExivPath.h>
#include <support/LeftOut.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <zenvora/core/FileState.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <QImage>

#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;
using Test::ReadFile;
using Test::TempTree;
#ifndef _WIN32
using Test::WriteLimit;
#endif

constexpr std::uint32_t kSeed = 5;
constexpr int kPhotos = 50;

SampleOptions Small(const std::atomic<bool>* cancel = nullptr) {
  return {kSeed, kPhotos, cancel};
}

std::map<std::string, std::string> Contents(const ioPath& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder.native())) {
    if (entry.is_regular_file()) {
      files[entry.path().lexically_relative(folder.native()).generic_u8string()] =
          ReadFile(ioPath(entry.path()));
    }
  }
  return files;
}

std::string MessageOf(const ioPath& folder, const SampleOptions& options) {
  try {
    MakeSample(folder, options, {});
  } catch (const HostError& error) {
    return error.what();
  }
  return {};
}

/// 0 (equal) to 255.
double Difference(const QImage& a, const QImage& b) {
  const QImage left =
      a.scaled(48, 48, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
  const QImage right =
      b.scaled(48, 48, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
  double sum = 0;
  for (int y = 0; y < 48; ++y) {
    for (int x = 0; x < 48; ++x) {
      sum += std::abs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y)));
    }
  }
  return sum / (48 * 48);
}

/// One collection for the tests that only look at it.
class SampleCollection : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    tree_ = new TempTree;
    MakeSample(tree_->Path("a collection"), Small(), {});
    plan_ = new std::vector<SampleShot>(PlanSample(kSeed, kPhotos));
  }
  static void TearDownTestSuite() {
    delete plan_;
    delete tree_;
    plan_ = nullptr;
    tree_ = nullptr;
  }
  static ioPath File(const SampleShot& shot) { return tree_->Path("a collection") / ioPath(shot.path); }

  static TempTree* tree_;
  static std::vector<SampleShot>* plan_;
};
TempTree* SampleCollection::tree_ = nullptr;
std::vector<SampleShot>* SampleCollection::plan_ = nullptr;

TEST_F(SampleCollection, HoldsThePlannedFilesAndNoOthers) {
  const auto files = Contents(tree_->Path("a collection"));
  EXPECT_EQ(files.size(), plan_->size());
  for (const SampleShot& shot : *plan_) {
    EXPECT_EQ(files.count(shot.path), 1U) << shot.path;
  }
}

TEST_F(SampleCollection, IsMadeOfWholeJpegFilesOfReasonableSize) {
  for (const SampleShot& shot : *plan_) {
    const std::string bytes = ReadFile(File(shot));
    EXPECT_GT(bytes.size(), 8'000U) << shot.path;
    EXPECT_LT(bytes.size(), 160'000U) << shot.path;
    const QImage image = QImage::fromData(QByteArray::fromStdString(bytes), "JPEG");
    ASSERT_FALSE(image.isNull()) << shot.path;
    const QSize stored = shot.orientation > 4 ? shot.look.size.transposed() : shot.look.size;
    EXPECT_EQ(image.size(), stored) << shot.path;
  }
}

TEST_F(SampleCollection, SaysInExifWhatWasPlanned) {
  for (const SampleShot& shot : *plan_) {
    const auto image = Exiv2::ImageFactory::open(Zenvora::Test::ExivPath(File(shot)));
    image->readMetadata();
    const Exiv2::ExifData& exif = image->exifData();
    const auto text = [&exif](const char* key) {
      const auto found = exif.findKey(Exiv2::ExifKey(key));
      return found == exif.end() ? std::string() : found->toString();
    };
    const std::string date = shot.taken.toString(QStringLiteral("yyyy:MM:dd hh:mm:ss")).toStdString();
    switch (shot.dating) {
      case SampleDating::Original:
        EXPECT_EQ(text("Exif.Photo.DateTimeOriginal"), date) << shot.path;
        EXPECT_EQ(text("Exif.Photo.DateTimeDigitized"), date) << shot.path;
        EXPECT_EQ(text("Exif.Photo.SubSecTimeOriginal"),
                  SampleCameras()[shot.camera].subSeconds
                      ? shot.taken.toString(QStringLiteral("zzz")).left(2).toStdString()
                      : std::string())
            << shot.path;
        break;
      case SampleDating::DigitisedOnly:
        EXPECT_EQ(text("Exif.Photo.DateTimeOriginal"), "") << shot.path;
        EXPECT_EQ(text("Exif.Photo.DateTimeDigitized"), date) << shot.path;
        break;
      case SampleDating::None:
        EXPECT_EQ(text("Exif.Photo.DateTimeOriginal"), "") << shot.path;
        EXPECT_EQ(text("Exif.Photo.DateTimeDigitized"), "") << shot.path;
        break;
      case SampleDating::Zeros:
        EXPECT_EQ(text("Exif.Photo.DateTimeOriginal"), "0000:00:00 00:00:00") << shot.path;
        break;
    }
    EXPECT_EQ(text("Exif.Image.Make"), "Lumidex Sample");
    EXPECT_EQ(text("Exif.Image.Model"), SampleCameras()[shot.camera].model) << shot.path;
    EXPECT_EQ(text("Exif.Image.Orientation"), std::to_string(shot.orientation)) << shot.path;
    EXPECT_EQ(text("Exif.Photo.ExifVersion"), "48 50 51 48");
  }
}

TEST_F(SampleCollection, HasFileTimesLikeTheShots) {
  const auto of = [](const SampleShot& shot) { return QueryFile(File(shot)).modifiedNs / 1'000'000; };
  for (const SampleShot& shot : *plan_) {
    EXPECT_EQ(of(shot) - of(plan_->front()), plan_->front().taken.msecsTo(shot.taken)) << shot.path;
  }
}

TEST_F(SampleCollection, StandsUprightWhateverTheOrientation) {
  int turned = 0;
  for (const SampleShot& shot : *plan_) {
    if (shot.orientation != 1) {
      ++turned;
      const QImage shown = LoadThumbnail(File(shot), 240);
      EXPECT_EQ(shown.height() > shown.width(), shot.look.size.height() > shot.look.size.width())
          << shot.path;
      const QImage drawn = DrawScene(shot.look);
      EXPECT_LT(Difference(shown, drawn), 4) << shot.path;
      EXPECT_GT(Difference(shown.mirrored(true, true), drawn), 8) << shot.path;
    }
  }
  EXPECT_GE(turned, 3);
}

TEST_F(SampleCollection, HasBurstsThatAreAlikeButNotEqual) {
  std::map<int, std::vector<const SampleShot*>> bursts;
  for (const SampleShot& shot : *plan_) {
    if (shot.burst > 0) {
      bursts[shot.burst].push_back(&shot);
    }
  }
  ASSERT_FALSE(bursts.empty());
  for (const auto& [number, shots] : bursts) {
    const QImage first = LoadThumbnail(File(*shots[0]), 320);
    for (std::size_t i = 1; i < shots.size(); ++i) {
      EXPECT_NE(ReadFile(File(*shots[0])), ReadFile(File(*shots[i])));
      // Exposure and shake move the average by less than what tells scenes apart.
      EXPECT_LT(Difference(first, LoadThumbnail(File(*shots[i]), 320)), 25) << number;
    }
  }
}

TEST(Sample, WritesPositionsOfAllFourQuarters) {
  const TempTree tree;
  const int photos = 330;
  MakeSample(tree.Path("s"), {kSeed, photos, nullptr}, {});
  std::map<std::string, int> quarters;
  for (const SampleShot& shot : PlanSample(kSeed, photos)) {
    const auto image = Exiv2::ImageFactory::open(Zenvora::Test::ExivPath(tree.Path("s") / ioPath(shot.path)));
    image->readMetadata();
    Exiv2::ExifData& exif = image->exifData();
    if (!shot.hasPosition) {
      EXPECT_TRUE(exif.findKey(Exiv2::ExifKey("Exif.GPSInfo.GPSLatitude")) == exif.end());
      continue;
    }
    const auto angle = [&exif](const char* key) {
      const auto& datum = exif[key];
      return datum.toFloat(0) + datum.toFloat(1) / 60 + datum.toFloat(2) / 3600;
    };
    const std::string northSouth = exif["Exif.GPSInfo.GPSLatitudeRef"].toString();
    const std::string eastWest = exif["Exif.GPSInfo.GPSLongitudeRef"].toString();
    EXPECT_NEAR(angle("Exif.GPSInfo.GPSLatitude") * (northSouth == "S" ? -1 : 1), shot.latitude, 1e-4);
    EXPECT_NEAR(angle("Exif.GPSInfo.GPSLongitude") * (eastWest == "W" ? -1 : 1), shot.longitude, 1e-4);
    ++quarters[northSouth + eastWest];
  }
  EXPECT_EQ(quarters.size(), 4U);
}

TEST(Sample, GivesTheSameBytesForTheSameSeed) {
  const TempTree tree;
  MakeSample(tree.Path("first"), Small(), {});
  MakeSample(tree.Path("second"), Small(), {});
  const auto first = Contents(tree.Path("first"));
  EXPECT_EQ(first.size(), static_cast<std::size_t>(kPhotos));
  EXPECT_TRUE(first == Contents(tree.Path("second")));
  for (const auto& [name, bytes] : first) {
    EXPECT_EQ(fs::last_write_time((tree.Path("first") / ioPath(name)).native()),
              fs::last_write_time((tree.Path("second") / ioPath(name)).native()));
  }
}

TEST(Sample, GivesOtherPicturesForAnotherSeed) {
  const TempTree tree;
  MakeSample(tree.Path("first"), {1, kPhotos, nullptr}, {});
  MakeSample(tree.Path("second"), {2, kPhotos, nullptr}, {});
  std::map<std::string, int> seen;
  for (const char* folder : {"first", "second"}) {
    for (const auto& [name, bytes] : Contents(tree.Path(folder))) {
      ++seen[bytes];
    }
  }
  EXPECT_EQ(seen.size(), static_cast<std::size_t>(2 * kPhotos));
}

TEST(Sample, ReportsEveryStepOnTheCallingThread) {
  const TempTree tree;
  const auto caller = std::this_thread::get_id();
  int last = 0;
  const SampleResult result = MakeSample(tree.Path("s"), Small(), [&](int done, int total) {
    EXPECT_EQ(std::this_thread::get_id(), caller);
    EXPECT_GT(done, last);
    EXPECT_EQ(total, kPhotos);
    last = done;
  });
  EXPECT_EQ(last, kPhotos);
  EXPECT_EQ(result.photos, kPhotos);
  EXPECT_FALSE(result.cancelled);
}

TEST(Sample, AcceptsMissingAndEmptyFolders) {
  const TempTree tree;
  for (const ioPath& folder :
       {tree.Path("not/there yet"), tree.MakeFolder("empty"), tree.MakeFolder("Альбом \xFF")}) {
    EXPECT_EQ(MakeSample(folder, Small(), {}).photos, kPhotos) << folder;
  }
}

TEST(Sample, RefusesFoldersThatHoldSomething) {
  const TempTree tree;
  tree.Write("pictures/mine.jpg", "precious");
  tree.Write("hidden/.keep", "");
  tree.MakeFolder("nested/inner");
  for (const char* name : {"pictures", "hidden", "nested"}) {
    const std::string message = MessageOf(tree.Path(name), Small());
    EXPECT_NE(message.find(tree.Path(name).utf8string()), std::string::npos) << message;
    EXPECT_NE(message.find("not empty"), std::string::npos) << message;
  }
  EXPECT_EQ(Contents(tree.Path()).size(), 2U);
}

TEST(Sample, RefusesWhatIsNoFolder) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "text");
  for (const ioPath& folder : {file, file / ioPath("below")}) {
    const std::string message = MessageOf(folder, Small());
    EXPECT_NE(message.find(folder.utf8string()), std::string::npos) << message;
  }
  EXPECT_EQ(ReadFile(file), "text");
}

TEST(Sample, RefusesNumbersOutOfRangeBeforeTouchingTheDisk) {
  const TempTree tree;
  for (const int photos : {-1, 0, 49, 100'001}) {
    EXPECT_FALSE(MessageOf(tree.Path("s"), {1, photos, nullptr}).empty()) << photos;
    EXPECT_FALSE(tree.Path("s").exists()) << photos;
  }
}

TEST(Sample, LeavesOnlyWholeFilesWhenCancelled) {
  const TempTree tree;
  std::atomic<bool> cancel{false};
  const SampleResult result =
      MakeSample(tree.Path("s"), Small(&cancel), [&](int done, int) { cancel = cancel || done >= 5; });
  EXPECT_TRUE(result.cancelled);
  EXPECT_GE(result.photos, 5);
  EXPECT_LT(result.photos, kPhotos);
  const auto files = Contents(tree.Path("s"));
  EXPECT_EQ(files.size(), static_cast<std::size_t>(result.photos));
  for (const auto& [name, bytes] : files) {
    EXPECT_FALSE(QImage::fromData(QByteArray::fromStdString(bytes), "JPEG").isNull()) << name;
  }
}

TEST(Sample, WritesNothingWhenCancelledAtOnce) {
  const TempTree tree;
  const std::atomic<bool> cancel{true};
  const SampleResult result = MakeSample(tree.Path("s"), Small(&cancel), {});
  EXPECT_TRUE(result.cancelled);
  EXPECT_EQ(result.photos, 0);
  EXPECT_TRUE(Contents(tree.Path("s")).empty());
}

TEST(Sample, StopsCleanlyWhenTheProgressHandlerThrows) {
  const TempTree tree;
  EXPECT_THROW(MakeSample(tree.Path("s"), Small(), [](int, int) { throw std::runtime_error("enough"); }),
               std::runtime_error);
  for (const auto& [name, bytes] : Contents(tree.Path("s"))) {
    EXPECT_FALSE(QImage::fromData(QByteArray::fromStdString(bytes), "JPEG").isNull()) << name;
  }
}

#ifndef _WIN32
TEST(Sample, NamesTheFileAndLeavesNoPartOfItOnAFullDisk) {
  const TempTree tree;
  std::string message;
  {
    const WriteLimit full(4096);
    message = MessageOf(tree.Path("s"), Small());
  }
  EXPECT_NE(message.find("Cannot write " + tree.Path("s").utf8string()), std::string::npos) << message;
  EXPECT_TRUE(Contents(tree.Path("s")).empty());
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS(Sample, NamesTheFileAndLeavesNoPartOfItOnAFullDisk);
#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
