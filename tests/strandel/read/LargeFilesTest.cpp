// Of large files only the parts that matter are read.

#include "ReadCount.h"
#include "TiffBytes.h"

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::BytesRead;
using Test::MakeJpeg;
using Test::PhotoTags;
using Test::TempTree;
using Test::TiffBytes;
using Status = PhotoFacts::Status;

constexpr std::uint64_t kMiB = std::uint64_t{1024} * 1024;
/// What reading the counter itself and the window of read-ahead add.
constexpr std::uint64_t kAllowance = kMiB / 4;

struct Reading {
  PhotoFacts facts;
  std::uint64_t bytes = 0;
};

/// The least of several: the count is of the whole process, which may read other things meanwhile.
Reading Read(const ioPath& file) {
  Reading reading;
  for (int i = 0; i < 3; ++i) {
    const std::uint64_t before = BytesRead().value_or(0);
    reading.facts = ReadPhotoFacts(file);
    const std::uint64_t bytes = BytesRead().value_or(0) - before;
    reading.bytes = i == 0 ? bytes : std::min(reading.bytes, bytes);
  }
  return reading;
}

class LargeFiles : public testing::Test {
 protected:
  void SetUp() override {
    if (!BytesRead()) {
      GTEST_SKIP() << "this system does not count what is read";
    }
  }
  /// A hole takes no room on the disk.
  ioPath Sparse(const std::string& bytes, std::uintmax_t size) const {
    ioPath file = tree_.Write("a", bytes);
    std::filesystem::resize_file(file.native(), size);
    return file;
  }
  const TempTree tree_;
};

/// What a raw file keeps where; picture data lies between.
struct RawLayout {
  const char* name;
  int mibBeforeTexts;
  int mibBeforeExif;
  int mibBeforeFirst;
  int mibBehind;
  /// How much may be read of it.
  int atMostMib;
};

class RawLayouts : public LargeFiles, public testing::WithParamInterface<RawLayout> {};

TEST_P(RawLayouts, AreReadWhereTheirDirectoriesStand) {
  const RawLayout& layout = GetParam();
  for (const TiffBytes::Order order : {TiffBytes::Order::LittleEndian, TiffBytes::Order::BigEndian}) {
    TiffBytes tiff(order);
    const auto picture = [&tiff](int mib) {
      tiff.Add(std::string(static_cast<std::size_t>(mib) * kMiB, 'p'));
    };
    picture(layout.mibBeforeTexts);
    const auto date = tiff.Text(0x9003, "2019:07:14 11:22:33");
    const auto model = tiff.Text(0x0110, "Model Y");
    picture(layout.mibBeforeExif);
    const unsigned exif = tiff.AddDirectory({date});
    picture(layout.mibBeforeFirst);
    const unsigned first = tiff.AddDirectory({model, {0x8769, 4, 1, exif}});
    picture(layout.mibBehind);

    const Reading reading = Read(tree_.Write("a", tiff.Finish(first)));
    EXPECT_EQ(reading.facts.original, QDateTime(QDate(2019, 7, 14), QTime(11, 22, 33)));
    EXPECT_EQ(reading.facts.cameraModel, QStringLiteral("Model Y"));
    EXPECT_LE(reading.bytes, static_cast<std::uint64_t>(layout.atMostMib) * kMiB + kAllowance);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, RawLayouts,
                         testing::Values(RawLayout{"AllInFront", 0, 0, 0, 20, 1},
                                         RawLayout{"AllAtTheEnd", 20, 0, 0, 0, 2},
                                         RawLayout{"AllInTheMiddle", 10, 0, 0, 10, 2},
                                         RawLayout{"ExifAtTheEndOfTheFirst", 10, 0, 5, 5, 3},
                                         RawLayout{"TextsInFront", 0, 10, 10, 0, 3},
                                         RawLayout{"TextsFarFromBoth", 10, 5, 5, 0, 22},
                                         RawLayout{"OverTheEdgeOfTheFront", 0, 0, 1, 20, 2}),
                         [](const auto& param) { return std::string(param.param.name); });

TEST_F(LargeFiles, OfGibibytesAreReadInFront) {
  // One more byte than 32 bits count, and as much as makes them wrap to nothing.
  for (const std::uintmax_t size : {std::uintmax_t{1} << 32, (std::uintmax_t{1} << 32) + 1}) {
    const Reading reading = Read(Sparse(SmallTiff(TiffBytes::Order::BigEndian), size));
    EXPECT_TRUE(reading.facts.original.isValid()) << reading.facts.cause;
    EXPECT_LE(reading.bytes, kMiB + kAllowance);
  }
}

TEST_F(LargeFiles, ThatSayNothingAreReadUpToABound) {
  TiffBytes tiff(TiffBytes::Order::LittleEndian);
  const std::string bytes = tiff.Finish(tiff.AddDirectory({{0x0100, 4, 1, 1}, {0x0101, 4, 1, 1}}));
  const Reading reading = Read(Sparse(bytes, std::uintmax_t{1} << 30));
  EXPECT_EQ(reading.facts.status, Status::Read);
  EXPECT_LE(reading.bytes, 64 * kMiB + kAllowance);
}

TEST_F(LargeFiles, ThatAreCutShortBeforeTheirDirectoryAreNoPhotos) {
  TiffBytes tiff(TiffBytes::Order::LittleEndian);
  const Reading reading = Read(Sparse(tiff.Finish(0xFFFFFF00), std::uintmax_t{1} << 30));
  EXPECT_EQ(reading.facts.status, Status::NotAnImage);
}

TEST_F(LargeFiles, OfJpegAreReadUpToThePicture) {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  const Reading reading = Read(Sparse(MakeJpeg(tags), std::uintmax_t{5} << 30));
  EXPECT_TRUE(reading.facts.original.isValid());
  EXPECT_LE(reading.bytes, kAllowance);
}

TEST_F(LargeFiles, OfStrayBytesAreGivenUp) {
  const std::string bytes = MakeJpeg(PhotoTags());
  const Reading reading = Read(Sparse(bytes.substr(0, 20), std::uintmax_t{5} << 30));
  EXPECT_EQ(reading.facts.status, Status::NotAnImage);
  EXPECT_LE(reading.bytes, 64 * kMiB + kAllowance);
}

TEST_F(LargeFiles, OfSegmentsWithoutEndAreGivenUp) {
  const std::string segment = std::string("\xFF\xEE\xFF\xFF", 4) + std::string(0xFFFD, 'x');
  std::string bytes("\xFF\xD8", 2);
  while (bytes.size() < 128 * kMiB) {
    bytes += segment;
  }
  const Reading reading = Read(tree_.Write("a", bytes));
  EXPECT_EQ(reading.facts.status, Status::NotAnImage);
  EXPECT_LE(reading.bytes, 96 * kMiB);
}

TEST_F(LargeFiles, OfBoxesAreNotReadForTheirPicture) {
  const std::string first(
      "\0\0\0\x18"
      "ftypheic\0\0\0\0mif1heic",
      24);
  // A box of 80 MiB.
  const std::string picture("\x05\0\0\0mdat", 8);
  const Reading reading = Read(Sparse(first + picture, first.size() + 0x05000000));
  EXPECT_EQ(reading.facts.status, Status::Read);
  EXPECT_LE(reading.bytes, 2 * kMiB + kAllowance);
}

}  // namespace
}  // namespace Zenvora::Strandel
