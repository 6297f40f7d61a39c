#include <support/TempTree.h>

#include <zenvora/strandel/IImageMetadata.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Proc::IImageMetadata;
using Test::TempTree;
using Status = PhotoFacts::Status;

/// Puts TIFF structures together whose places take 64 bits.
class BigTiffBytes {
 public:
  explicit BigTiffBytes(bool bigEndian) : bigEndian_(bigEndian) {
    bytes_ = (bigEndian ? "MM" : "II") + Number(43, 2) + Number(8, 2) + Number(0, 2) + Number(0, 8);
  }

  std::string Number(std::uint64_t value, int size) const {
    std::string text;
    for (int i = 0; i < size; ++i) {
      text += static_cast<char>(value >> (8 * (bigEndian_ ? size - 1 - i : i)));
    }
    return text;
  }

  std::string Entry(int tag, int type, std::uint64_t count, const std::string& value) {
    constexpr std::size_t kInPlace = 8;
    const std::string head = Number(static_cast<std::uint64_t>(tag), 2) +
                             Number(static_cast<std::uint64_t>(type), 2) + Number(count, 8);
    return head + (value.size() <= kInPlace ? value + std::string(kInPlace - value.size(), '\0')
                                            : Number(Add(value), 8));
  }
  std::string Text(int tag, const std::string& text) { return Entry(tag, 2, text.size() + 1, text + '\0'); }

  std::uint64_t AddDirectory(const std::vector<std::string>& entries) {
    std::string bytes = Number(entries.size(), 8);
    for (const std::string& entry : entries) {
      bytes += entry;
    }
    return Add(bytes + Number(0, 8));
  }

  std::string Finish(std::uint64_t first) const {
    std::string bytes = bytes_;
    return bytes.replace(8, 8, Number(first, 8));
  }

 private:
  std::uint64_t Add(const std::string& bytes) {
    bytes_ += bytes;
    return bytes_.size() - bytes.size();
  }

  const bool bigEndian_;
  std::string bytes_;
};

std::string WholeBigTiff(bool bigEndian) {
  BigTiffBytes tiff(bigEndian);
  constexpr int kShort = 3;
  constexpr int kRational = 5;
  constexpr int kLong8 = 16;
  constexpr int kDirectory8 = 18;
  const auto exif = tiff.AddDirectory({tiff.Text(0x9003, "2019:07:14 11:22:33"), tiff.Text(0x9291, "25")});
  const std::string angle = tiff.Number(48, 4) + tiff.Number(1, 4) + tiff.Number(30, 4) + tiff.Number(1, 4) +
                            tiff.Number(0, 4) + tiff.Number(1, 4);
  const auto gps = tiff.AddDirectory({tiff.Text(1, "N"), tiff.Entry(2, kRational, 3, angle)});
  return tiff.Finish(
      tiff.AddDirectory({tiff.Entry(0x0100, kLong8, 1, tiff.Number(70'000, 8)),
                         tiff.Entry(0x0101, kShort, 1, tiff.Number(300, 2)), tiff.Text(0x0110, "Model Y"),
                         tiff.Entry(0x0112, kShort, 1, tiff.Number(6, 2)),
                         tiff.Entry(0x8769, kDirectory8, 1, tiff.Number(exif, 8)),
                         tiff.Entry(0x8825, kDirectory8, 1, tiff.Number(gps, 8))}));
}

PhotoFacts Facts(const std::string& bytes) {
  const TempTree tree;
  return ReadPhotoFacts(tree.Write("a.tif", bytes));
}

std::string Text(const PhotoFacts& facts, const std::string& family, const std::string& block,
                 const std::string& tag) {
  return facts.metadata->GetProperty(family, block, tag)[IImageMetadata::TEXT_VALUE].GetString();
}

TEST(BigTiff, SaysWhatOtherTiffFilesSay) {
  for (const bool bigEndian : {false, true}) {
    const PhotoFacts facts = Facts(WholeBigTiff(bigEndian));
    ASSERT_EQ(facts.status, Status::Read) << facts.cause;
    EXPECT_EQ(facts.original, QDateTime(QDate(2019, 7, 14), QTime(11, 22, 33, 250)));
    EXPECT_EQ(facts.cameraModel, QStringLiteral("Model Y"));
    EXPECT_EQ(
        Text(facts, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_FORMAT),
        "TIFF");
    EXPECT_EQ(
        Text(facts, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_WIDTH),
        "70000");
    EXPECT_EQ(
        Text(facts, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_HEIGHT),
        "300");
    EXPECT_EQ(Text(facts, IImageMetadata::EXIF, IImageMetadata::BLOCK_IMAGE, "Orientation"), "6");
    EXPECT_EQ(Text(facts, IImageMetadata::EXIF, IImageMetadata::BLOCK_GPS, "GPSLatitude"), "48/1 30/1 0/1");
  }
}

TEST(BigTiff, IsDamagedWithoutADirectory) {
  const BigTiffBytes tiff(false);
  for (const std::uint64_t first :
       {std::uint64_t{0}, std::uint64_t{16}, std::uint64_t{1000}, ~std::uint64_t{0}}) {
    const PhotoFacts facts = Facts(tiff.Finish(first));
    EXPECT_EQ(facts.status, Status::NotAnImage);
    EXPECT_EQ(facts.cause, "Its TIFF directory is damaged");
  }
}

TEST(BigTiff, SurvivesAnyBytesBeingWrong) {
  const TempTree tree;
  const std::string bytes = WholeBigTiff(false);
  std::mt19937 random(5);  // The same files every time
  for (int round = 0; round < 2000; ++round) {
    std::string broken = bytes.substr(0, round % 2 == 0 ? bytes.size() : random() % bytes.size());
    for (int change = 0; change <= round % 6 && broken.size() > 16; ++change) {
      broken[8 + random() % (broken.size() - 8)] = random() % 2 == 0 ? '\xFF' : static_cast<char>(random());
    }
    tree.Path("a").remove();
    EXPECT_NE(ReadPhotoFacts(tree.Write("a", broken)).status, Status::CannotOpen);
  }
}

}  // namespace
}  // namespace Zenvora::Strandel
