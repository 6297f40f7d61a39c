#include "TiffBytes.h"

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::MakeJpeg;
using Test::PhotoTags;
using Test::TempTree;
using Test::TiffBytes;
using Status = PhotoFacts::Status;
using Order = TiffBytes::Order;

const char* const kExpected = "2019-07-14 11:22:33.250";

std::string Text(const QDateTime& date) {
  return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString();
}

PhotoFacts Facts(const std::string& bytes) {
  const TempTree tree;
  return ReadPhotoFacts(tree.Write("a", bytes));
}

struct Variant {
  const char* name;
  Order order;
  unsigned mark;
};

class TiffVariants : public testing::TestWithParam<Variant> {};

TEST_P(TiffVariants, AreRead) {
  const PhotoFacts facts = Facts(SmallTiff(GetParam().order, GetParam().mark));
  ASSERT_EQ(facts.status, Status::Read) << facts.cause;
  EXPECT_EQ(Text(facts.original), kExpected);
  EXPECT_EQ(facts.cameraModel, QStringLiteral("Model Y"));
}

INSTANTIATE_TEST_SUITE_P(Table, TiffVariants,
                         testing::Values(Variant{"LittleEndian", Order::LittleEndian, 42},
                                         Variant{"BigEndian", Order::BigEndian, 42},
                                         Variant{"PanasonicRaw", Order::LittleEndian, 0x55},
                                         Variant{"OlympusRaw", Order::LittleEndian, 0x4F52},
                                         Variant{"OlympusRawLater", Order::LittleEndian, 0x5352},
                                         Variant{"OlympusRawBigEndian", Order::BigEndian, 0x4F52}),
                         [](const auto& param) { return std::string(param.param.name); });

TEST(TiffFacts, TakeDatesThatStandInTheFirstDirectory) {
  TiffBytes tiff(Order::LittleEndian);
  const PhotoFacts facts = Facts(tiff.Finish(tiff.AddDirectory({tiff.Text(0x9003, "2019:07:14 11:22:33")})));
  EXPECT_EQ(Text(facts.original), "2019-07-14 11:22:33.000");
}

TEST(TiffFacts, PreferTheExifDirectory) {
  TiffBytes tiff(Order::BigEndian);
  const unsigned exif = tiff.AddDirectory({tiff.Text(0x9003, "2019:07:14 11:22:33")});
  const auto first = tiff.Text(0x9003, "2001:01:01 01:01:01");
  const PhotoFacts facts = Facts(tiff.Finish(tiff.AddDirectory({first, {0x8769, 4, 1, exif}})));
  EXPECT_EQ(Text(facts.original), "2019-07-14 11:22:33.000");
}

TEST(TiffFacts, ReadTextsThatFitIntoTheirEntry) {
  for (const Order order : {Order::LittleEndian, Order::BigEndian}) {
    TiffBytes tiff(order);
    EXPECT_EQ(Facts(tiff.Finish(tiff.AddDirectory({tiff.Text(0x0110, "X1")}))).cameraModel,
              QStringLiteral("X1"));
  }
}

TEST(TiffFacts, SurviveADirectoryThatNamesItself) {
  TiffBytes tiff(Order::LittleEndian);
  constexpr unsigned kFirst = 8;
  const PhotoFacts facts = Facts(tiff.Finish(tiff.AddDirectory({{0x8769, 4, 1, kFirst}})));
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_FALSE(facts.original.isValid());
}

TEST(TiffFacts, PassOverTextsOutsideOfTheFile) {
  TiffBytes tiff(Order::LittleEndian);
  const PhotoFacts facts = Facts(tiff.Finish(tiff.AddDirectory(
      {{0x0110, 2, 10, 0xFFFFFFF0}, {0x9003, 2, 0xFFFFFFFF, 0xFFFFFFFF}, {0x9004, 2, 20, 0}})));
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_TRUE(facts.cameraModel.isEmpty());
  EXPECT_FALSE(facts.original.isValid());
  EXPECT_FALSE(facts.digitised.isValid());
}

TEST(TiffFacts, BoundTextsOfAbsurdLength) {
  TiffBytes tiff(Order::LittleEndian);
  const unsigned text = tiff.Add(std::string(100'000, 'm'));
  const PhotoFacts facts = Facts(tiff.Finish(tiff.AddDirectory({{0x0110, 2, 100'000, text}})));
  EXPECT_EQ(facts.cameraModel.size(), 256);
}

TEST(TiffFacts, PassOverNumbersWhereTextsBelong) {
  TiffBytes tiff(Order::LittleEndian);
  const PhotoFacts facts =
      Facts(tiff.Finish(tiff.AddDirectory({{0x0110, 3, 2, 0x00410042}, {0x8769, 2, 4, 8}})));
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_TRUE(facts.cameraModel.isEmpty());
}

TEST(TiffFacts, ReadTheStartOfADirectoryThatIsCutShort) {
  TiffBytes tiff(Order::LittleEndian);
  std::string bytes =
      tiff.Finish(tiff.AddDirectory({tiff.Text(0x0110, "X1"), {0x0100, 4, 1, 1}, {0x0101, 4, 1, 1}}));
  bytes.resize(bytes.size() - 20);
  EXPECT_EQ(Facts(bytes).cameraModel, QStringLiteral("X1"));
}

TEST(PanasonicRaw, TakesItsDateFromTheEmbeddedPreview) {
  PhotoTags tags;
  tags.dateTimeOriginal = "2019:07:14 11:22:33";
  tags.subSec = "25";
  const std::string preview = MakeJpeg(tags);
  TiffBytes tiff(Order::LittleEndian, 0x55);
  const unsigned at = tiff.Add(preview);
  const PhotoFacts facts = Facts(tiff.Finish(tiff.AddDirectory(
      {{0x002E, 7, static_cast<unsigned>(preview.size()), at}, tiff.Text(0x0110, "Model Y")})));
  EXPECT_EQ(Text(facts.original), kExpected);
  EXPECT_EQ(facts.cameraModel, QStringLiteral("Model Y"));
}

TEST(PanasonicRaw, SurvivesAPreviewThatIsNone) {
  TiffBytes tiff(Order::LittleEndian, 0x55);
  const PhotoFacts facts = Facts(
      tiff.Finish(tiff.AddDirectory({{0x002E, 7, 0xFFFFFFFF, 0xFFFFFFF0}, tiff.Text(0x0110, "Model Y")})));
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_FALSE(facts.original.isValid());
}

TEST(OpaquePictures, AreRecognisedByTheirFirstBytes) {
  for (const std::string& mark : {std::string("FOVb"), std::string("IIII"), std::string("\xFF\x0A", 2)}) {
    const PhotoFacts facts = Facts(mark + std::string(64, '\x01'));
    EXPECT_EQ(facts.status, Status::Read) << mark;
    EXPECT_FALSE(facts.original.isValid());
  }
}

}  // namespace
}  // namespace Zenvora::Strandel
