#include "ReadCount.h"
#include "TiffBytes.h"

#include <support/LogCapture.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>

#include <zenvora/strandel/EmbeddedPreview.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::BytesRead;
using Test::Closed;
using Test::IsSuperuser;
using Test::LogCapture;
using Test::MakeJpeg;
using Test::MakePng;
using Test::PhotoTags;
using Test::Pipe;
using Test::ReadFile;
using Test::TempTree;
using Test::TiffBytes;

std::string Jpeg(const QSize& size) {
  PhotoTags tags;
  tags.width = size.width();
  tags.height = size.height();
  return MakeJpeg(tags);
}

ioPath WithThumbnail(const TempTree& tree, const QSize& picture, const std::string& thumbnail,
                     int orientation = 0) {
  ioPath file = tree.Write("a.jpg", Jpeg(picture));
  const auto image = Exiv2::ImageFactory::open(file.utf8string());
  Exiv2::ExifData exif;
  if (orientation != 0) {
    exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
  }
  Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(thumbnail.data()),
                                          static_cast<long>(thumbnail.size()));
  image->setExifData(exif);
  image->writeMetadata();
  return file;
}

/// A raw file with a small preview in its first directory and a large one in a directory below it, far apart.
struct Raw {
  std::string small = Jpeg({150, 100});
  std::string large = Jpeg({900, 600});
  std::size_t gap = std::size_t{3} * 1024 * 1024;
  /// Added to where the large one is said to be.
  unsigned shift = 0;

  std::string Bytes(TiffBytes::Order order = TiffBytes::Order::LittleEndian) const {
    TiffBytes tiff(order);
    tiff.Add(std::string(gap, 'p'));
    const unsigned smallAt = tiff.Add(small);
    tiff.Add(std::string(gap, 'q'));
    const unsigned largeAt = tiff.Add(large) + shift;
    tiff.Add(std::string(gap, 'r'));
    constexpr unsigned kLong = 4;
    const auto preview = [](unsigned at, const std::string& jpeg) {
      return std::vector<TiffBytes::Entry>{{0x0201, kLong, 1, at},
                                           {0x0202, kLong, 1, static_cast<unsigned>(jpeg.size())}};
    };
    const unsigned below = tiff.AddDirectory(preview(largeAt, large));
    std::vector<TiffBytes::Entry> entries = {
        {0x00FE, kLong, 1, 0}, {0x0100, kLong, 1, 3000}, {0x0101, kLong, 1, 2000}};
    for (const TiffBytes::Entry& entry : preview(smallAt, small)) {
      entries.push_back(entry);
    }
    entries.push_back({0x014A, kLong, 1, below});
    return tiff.Finish(tiff.AddDirectory(entries));
  }
};

std::string Text(const QByteArray& bytes) {
  return bytes.toStdString();
}

TEST(EmbeddedPreview, IsTheThumbnailOfAJpeg) {
  const TempTree tree;
  const std::string thumbnail = Jpeg({160, 107});
  const EmbeddedPreview preview = ReadEmbeddedPreview(WithThumbnail(tree, {3000, 2000}, thumbnail, 6), 240);
  EXPECT_EQ(Text(preview.bytes), thumbnail);
  EXPECT_EQ(preview.size, QSize(160, 107));
  EXPECT_EQ(preview.orientation, 6);
  EXPECT_TRUE(preview.sameShape);
}

TEST(EmbeddedPreview, TellsShapesApart) {
  const TempTree tree;
  struct Case {
    QSize picture;
    QSize thumbnail;
    bool same;
  };
  for (const Case& c : {Case{{3000, 2000}, {160, 107}, true}, Case{{4000, 3000}, {160, 120}, true},
                        Case{{3000, 2000}, {160, 120}, false}, Case{{2000, 3000}, {160, 107}, false}}) {
    const EmbeddedPreview preview =
        ReadEmbeddedPreview(WithThumbnail(tree, c.picture, Jpeg(c.thumbnail)), 160);
    EXPECT_FALSE(preview.bytes.isEmpty());
    EXPECT_EQ(preview.sameShape, c.same) << c.picture.width() << ' ' << c.thumbnail.height();
  }
}

TEST(EmbeddedPreview, IsTheSmallestOfARawFileThatIsLargeEnough) {
  const TempTree tree;
  for (const TiffBytes::Order order : {TiffBytes::Order::LittleEndian, TiffBytes::Order::BigEndian}) {
    const Raw raw;
    const ioPath file = tree.Write("a", raw.Bytes(order));
    for (const int wished : {1, 100, 150}) {
      EXPECT_EQ(Text(ReadEmbeddedPreview(file, wished).bytes), raw.small) << wished;
    }
    for (const int wished : {151, 900, 5000}) {
      const EmbeddedPreview preview = ReadEmbeddedPreview(file, wished);
      EXPECT_EQ(Text(preview.bytes), raw.large) << wished;
      EXPECT_EQ(preview.size, QSize(900, 600));
      EXPECT_TRUE(preview.sameShape);
    }
  }
}

TEST(EmbeddedPreview, OfTheRightShapeComesBeforeALargerOne) {
  const TempTree tree;
  Raw raw;
  raw.large = Jpeg({800, 600});
  EXPECT_EQ(Text(ReadEmbeddedPreview(tree.Write("a", raw.Bytes()), 500).bytes), raw.small);
  raw.small = Jpeg({160, 120});
  const EmbeddedPreview preview = ReadEmbeddedPreview(tree.Write("a", raw.Bytes()), 500);
  EXPECT_EQ(Text(preview.bytes), raw.large) << "better than none";
  EXPECT_FALSE(preview.sameShape);
}

TEST(EmbeddedPreview, IsEmptyWhereThereIsNone) {
  const TempTree tree;
  for (const std::string& bytes :
       {std::string(), std::string("x"), std::string("Dear diary"), Jpeg({300, 200}), MakePng(PhotoTags()),
        SmallTiff(TiffBytes::Order::LittleEndian), std::string("\xFF\xD8\xFF", 3), std::string("II*\0", 4)}) {
    const EmbeddedPreview preview = ReadEmbeddedPreview(tree.Write("a", bytes), 100);
    EXPECT_TRUE(preview.bytes.isEmpty()) << bytes.size();
    EXPECT_TRUE(preview.size.isEmpty());
  }
  EXPECT_TRUE(ReadEmbeddedPreview(tree.Path("missing"), 100).bytes.isEmpty());
  EXPECT_TRUE(ReadEmbeddedPreview(tree.Path(), 100).bytes.isEmpty());
  EXPECT_TRUE(ReadEmbeddedPreview(ioPath(), 100).bytes.isEmpty());
}

TEST(EmbeddedPreview, OutsideOfTheFileIsPassedOver) {
  const TempTree tree;
  for (const unsigned shift : {4U * 1024 * 1024, 0x7F000000U, 0xFFFFFFFFU - 7U * 1024 * 1024}) {
    Raw raw;
    raw.shift = shift;
    EXPECT_EQ(Text(ReadEmbeddedPreview(tree.Write("a", raw.Bytes()), 900).bytes), raw.small) << shift;
  }
}

TEST(EmbeddedPreview, OfAFileThatIsTooLargeToReadWholeIsNone) {
  const TempTree tree;
  const ioPath file = tree.Write("a", Raw().Bytes());
  // A hole: it takes no room on the disk.
  std::filesystem::resize_file(file.native(), std::uintmax_t{3} << 30);
  EXPECT_TRUE(ReadEmbeddedPreview(file, 100).bytes.isEmpty());
}

TEST(EmbeddedPreview, CostsTheDirectoriesOnlyWhereThereIsNone) {
  if (!BytesRead()) {
    GTEST_SKIP() << "this system does not count what is read";
  }
  const TempTree tree;
  const ioPath file = tree.Write("a", SmallTiff(TiffBytes::Order::LittleEndian));
  std::filesystem::resize_file(file.native(), std::uintmax_t{100} << 20);
  const std::uint64_t before = *BytesRead();
  ReadEmbeddedPreview(file, 100);
  EXPECT_LE(*BytesRead() - before, std::uint64_t{2} << 20);
}

TEST(EmbeddedPreview, LeavesTheFileAsItWas) {
  const TempTree tree;
  const std::string bytes = Raw().Bytes();
  const ioPath file = tree.Write("a", bytes);
  const auto before = std::filesystem::last_write_time(file.native());
  ReadEmbeddedPreview(file, 900);
  EXPECT_EQ(ReadFile(file), bytes);
  EXPECT_EQ(std::filesystem::last_write_time(file.native()), before);
}

Raw SmallRaw() {
  Raw raw;
  raw.small = Jpeg({16, 16});
  raw.large = Jpeg({48, 32});
  raw.gap = 0;
  return raw;
}

TEST(EmbeddedPreview, SurvivesFilesCutShortAnywhere) {
  const TempTree tree;
  for (const std::string& bytes :
       {SmallRaw().Bytes(), ReadFile(WithThumbnail(tree, {48, 32}, Jpeg({24, 16})))}) {
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      tree.Path("a").remove();
      const EmbeddedPreview preview = ReadEmbeddedPreview(tree.Write("a", bytes.substr(0, length)), 10);
      EXPECT_LE(preview.bytes.size(), static_cast<int>(length));
    }
  }
}

TEST(EmbeddedPreview, SurvivesAnyBytesBeingWrong) {
  const TempTree tree;
  std::mt19937 random(13);  // The same files every time
  int found = 0;
  for (const std::string& bytes : {SmallRaw().Bytes(), SmallRaw().Bytes(TiffBytes::Order::BigEndian),
                                   ReadFile(WithThumbnail(tree, {48, 32}, Jpeg({24, 16})))}) {
    for (int round = 0; round < 1000; ++round) {
      std::string broken = bytes;
      for (unsigned change = 0; change <= static_cast<unsigned>(round) % 6U; ++change) {
        broken[random() % broken.size()] = random() % 2 == 0 ? '\xFF' : static_cast<char>(random());
      }
      tree.Path("a").remove();
      found += ReadEmbeddedPreview(tree.Write("a", broken), 10).bytes.isEmpty() ? 0 : 1;
    }
  }
  EXPECT_GT(found, 0) << "all were refused at once";
}

TEST(EmbeddedPreview, IsSilentAboutBrokenFiles) {
  const TempTree tree;
  Raw raw = SmallRaw();
  raw.small.resize(raw.small.size() / 2);
  raw.large.assign(200, '\xFF');
  const LogCapture log;
  testing::internal::CaptureStderr();
  ReadEmbeddedPreview(tree.Write("a", raw.Bytes()), 100);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(log.Lines().empty());
}

TEST(EmbeddedPreview, NeverWaitsForPipes) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe.jpg"));
  EXPECT_TRUE(ReadEmbeddedPreview(pipe.Path(), 100).bytes.isEmpty());
}

TEST(EmbeddedPreview, IsEmptyForFilesThatCannotBeOpened) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  const TempTree tree;
  const ioPath file = WithThumbnail(tree, {300, 200}, Jpeg({150, 100}));
  const Closed closed(file);
  EXPECT_TRUE(ReadEmbeddedPreview(file, 100).bytes.isEmpty());
}

TEST(EmbeddedPreview, IsReadFromFilesWhoseNamesAreNoText) {
  const TempTree tree;
  const std::string bytes = ReadFile(WithThumbnail(tree, {300, 200}, Jpeg({150, 100})));
  EXPECT_FALSE(ReadEmbeddedPreview(tree.Write(std::string(Zenvora::Test::kStrangeName) + ".jpg", bytes), 100)
                   .bytes.isEmpty());
}

}  // namespace
}  // namespace Zenvora::Strandel
