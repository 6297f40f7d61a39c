#include "TiffBytes.h"

#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/MetadataSettings.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

namespace Zenvora::Strandel {
namespace {

using Proc::IImageMetadata;
using Test::ExifField;
using Test::MakeJpeg;
using Test::MakePng;
using Test::MakeTiff;
using Test::MakeWebP;
using Test::PhotoTags;
using Test::ReadFile;
using Test::SmallTiff;
using Test::TempTree;
using Test::TiffBytes;
using Pointer = boost::intrusive_ptr<IImageMetadata>;

Pointer Read(const ioPath& file) {
  MetadataSettings settings;
  settings.CreateMetadata(file, nullptr);
  return settings.GetMetadata();
}

std::string Text(const Pointer& metadata, const std::string& family, const std::string& block,
                 const std::string& tag) {
  return metadata->GetProperty(family, block, tag)[IImageMetadata::TEXT_VALUE].GetString();
}

std::string Latitude(const Pointer& metadata) {
  return Text(metadata, IImageMetadata::EXIF, IImageMetadata::BLOCK_GPS, IImageMetadata::TAG_LATITUDE);
}

std::string Size(const Pointer& metadata) {
  return Text(metadata, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_WIDTH) +
         " x " +
         Text(metadata, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_HEIGHT);
}

std::string Format(const Pointer& metadata) {
  return Text(metadata, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_FORMAT);
}

PhotoTags FullTags() {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  tags.model = "Model X";
  tags.orientation = 6;
  tags.more = {{"Exif.GPSInfo.GPSLatitude", "48/1 51/1 2436/100", ""},
               {"Exif.GPSInfo.GPSLatitudeRef", "N", ""},
               {"Exif.GPSInfo.GPSLongitude", "2/1 17/1 4020/100", ""},
               {"Exif.GPSInfo.GPSLongitudeRef", "E", ""}};
  return tags;
}

/// A new file each time: to write over one takes disks much longer.
ioPath WriteAnew(const TempTree& tree, const std::string& bytes) {
  tree.Path("a").remove();
  return tree.Write("a", bytes);
}

/// Everything that the library asks for.
void AskEverything(const Pointer& metadata) {
  for (const char* tag : {"Model", "Orientation", "DateTimeOriginal"}) {
    Text(metadata, IImageMetadata::EXIF, IImageMetadata::BLOCK_IMAGE, tag);
    Text(metadata, IImageMetadata::EXIF, IImageMetadata::BLOCK_PHOTO, tag);
  }
  for (const char* tag : {"GPSLatitude", "GPSLongitude", "GPSLatitudeRef", "GPSLongitudeRef"}) {
    Text(metadata, IImageMetadata::EXIF, IImageMetadata::BLOCK_GPS, tag);
  }
  Size(metadata);
  Format(metadata);
}

bool IsRead(const ioPath& file) {
  try {
    AskEverything(Read(file));
    return true;
  } catch (const MetadataError& error) {
    EXPECT_FALSE(std::string(error.what()).empty());
    return false;
  }
}

TEST(MetadataSettings, HasNothingBeforeItIsAsked) {
  EXPECT_FALSE(MetadataSettings().GetMetadata());
}

TEST(MetadataSettings, KeepsWhatItBuiltLast) {
  const TempTree tree;
  MetadataSettings settings;
  settings.CreateMetadata(tree.Write("a.jpg", MakeJpeg(FullTags())), nullptr);
  const Pointer first = settings.GetMetadata();
  EXPECT_THROW(settings.CreateMetadata(tree.Path("none.jpg"), nullptr), MetadataError);
  EXPECT_EQ(settings.GetMetadata(), first);
  settings.CreateMetadata(tree.Write("b.png", MakePng(PhotoTags())), nullptr);
  EXPECT_NE(settings.GetMetadata(), first);
  EXPECT_EQ(Format(settings.GetMetadata()), "PNG");
  EXPECT_EQ(Format(first), "JPEG");
}

struct FormatRow {
  const char* extension;
  std::string (*make)(const PhotoTags&);
};

class MetadataOfFormats : public testing::TestWithParam<FormatRow> {
 protected:
  TempTree tree_;
};

INSTANTIATE_TEST_SUITE_P(Table, MetadataOfFormats,
                         testing::Values(FormatRow{"jpg", MakeJpeg}, FormatRow{"png", MakePng},
                                         FormatRow{"tif", MakeTiff}, FormatRow{"webp", MakeWebP}),
                         [](const auto& param) { return std::string(param.param.extension); });

TEST_P(MetadataOfFormats, SurvivesBeingCutShortAnywhere) {
  const std::string bytes = GetParam().make(FullTags());
  ASSERT_TRUE(IsRead(WriteAnew(tree_, bytes)));
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    IsRead(WriteAnew(tree_, bytes.substr(0, length)));
  }
}

TEST_P(MetadataOfFormats, SurvivesAnyBytesBeingWrong) {
  const std::string bytes = GetParam().make(FullTags());
  std::mt19937 random(11);  // The same files every time
  int read = 0;
  for (int round = 0; round < 1000; ++round) {
    std::string broken = bytes;
    for (int change = 0; change <= round % 8; ++change) {
      static constexpr std::array kBytes = {'\x00', '\xFF', '\x7F', '\x80', '\x01'};
      broken[random() % broken.size()] =
          random() % 2 == 0 ? kBytes[random() % kBytes.size()] : static_cast<char>(random());
    }
    read += IsRead(WriteAnew(tree_, broken)) ? 1 : 0;
  }
  EXPECT_GT(read, 0);
}

TEST_P(MetadataOfFormats, LeavesTheFileAsItWas) {
  const std::string bytes = GetParam().make(FullTags());
  const ioPath file = tree_.Write("a", bytes);
  const auto before = std::filesystem::last_write_time(file.native());
  Read(file);
  EXPECT_EQ(ReadFile(file), bytes);
  EXPECT_EQ(std::filesystem::last_write_time(file.native()), before);
}

// Of TIFF and raw files only parts are read.

constexpr unsigned kMiB = 1024 * 1024;
constexpr unsigned kModel = 0x0110;
constexpr unsigned kExif = 0x8769;
constexpr unsigned kGps = 0x8825;
constexpr unsigned kOriginal = 0x9003;
constexpr unsigned kLong = 4;
constexpr unsigned kRational = 5;

std::string Coordinate(const TiffBytes& tiff, unsigned degrees, unsigned minutes) {
  return tiff.Number(degrees, 4) + tiff.Number(1, 4) + tiff.Number(minutes, 4) + tiff.Number(1, 4) +
         tiff.Number(0, 4) + tiff.Number(1, 4);
}

/// A model and a date at the beginning. The numbers of the position stand behind a gap of picture data, and
/// its directory behind another one.
std::string TiffWithFarPosition(TiffBytes::Order order, unsigned gapBefore, unsigned gapWithin) {
  TiffBytes tiff(order);
  const unsigned exif = tiff.AddDirectory({tiff.Text(kOriginal, "2019:07:14 11:22:33")});
  const auto model = tiff.Text(kModel, "Model Y");
  tiff.Add(std::string(gapBefore, 'p'));
  const unsigned latitude = tiff.Add(Coordinate(tiff, 10, 30));
  const unsigned longitude = tiff.Add(Coordinate(tiff, 20, 15));
  tiff.Add(std::string(gapWithin, 'p'));
  const unsigned gps = tiff.AddDirectory(
      {tiff.Text(1, "N"), {2, kRational, 3, latitude}, tiff.Text(3, "E"), {4, kRational, 3, longitude}});
  tiff.Add(std::string(gapBefore, 'p'));
  const unsigned first = tiff.AddDirectory({model, {kExif, kLong, 1, exif}, {kGps, kLong, 1, gps}});
  return tiff.Finish(first);
}

TEST(MetadataSettings, FindsPositionsFarFromTheBeginning) {
  const TempTree tree;
  for (const auto order : {TiffBytes::Order::LittleEndian, TiffBytes::Order::BigEndian}) {
    const struct {
      unsigned before, within;
    } gaps[] = {{0, 0}, {3 * kMiB, 0}, {3 * kMiB, 10}, {2 * kMiB, 3 * kMiB}, {5 * kMiB, kMiB}};
    for (const auto& gap : gaps) {
      const Pointer metadata = Read(WriteAnew(tree, TiffWithFarPosition(order, gap.before, gap.within)));
      EXPECT_EQ(Latitude(metadata), "10/1 30/1 0/1") << gap.before << ' ' << gap.within;
      EXPECT_EQ(Text(metadata, "Exif", "Image", "Model"), "Model Y");
    }
  }
}

TEST(MetadataSettings, FindsFieldsOfFilesThatNameTheirFirstDirectoryOtherwise) {
  const TempTree tree;
  // The mark of a maker's raw files.
  constexpr unsigned kRw2 = 85;
  const Pointer metadata = Read(tree.Write("a.rw2", SmallTiff(TiffBytes::Order::LittleEndian, kRw2)));
  EXPECT_EQ(Text(metadata, "Exif", "Image", "Model"), "Model Y");
  EXPECT_EQ(Format(metadata), "RAW");
}

TEST(MetadataSettings, TellsRawFilesFromOtherTiffFiles) {
  const TempTree tree;
  const struct {
    const char* name;
    std::vector<ExifField> more;
    const char* format;
  } rows[] = {
      {"plain", {}, "TIFF"},
      {"DNG", {{"Exif.Image.DNGVersion", "1 4 0 0", ""}}, "RAW"},
      {"TIFF/EP", {{"Exif.Image.TIFFEPStandardID", "1 0 0 0", ""}}, "RAW"},
      {"sensor data", {{"Exif.SubImage1.PhotometricInterpretation", "32803", ""}}, "RAW"},
      {"linear", {{"Exif.SubImage1.PhotometricInterpretation", "34892", ""}}, "RAW"},
  };
  for (const auto& row : rows) {
    PhotoTags tags;
    tags.more = row.more;
    EXPECT_EQ(Format(Read(WriteAnew(tree, MakeTiff(tags)))), row.format) << row.name;
  }
}

// Pictures in boxes.

std::string Big(std::uint64_t value, int bytes) {
  std::string text;
  for (int i = bytes - 1; i >= 0; --i) {
    text += static_cast<char>(value >> (8 * i));
  }
  return text;
}

std::string Box(const char* type, const std::string& body) {
  return Big(body.size() + 8, 4) + type + body;
}

std::string SizeBox(unsigned width, unsigned height) {
  return Box("ispe", Big(0, 4) + Big(width, 4) + Big(height, 4));
}

/// How items and their properties are numbered.
struct Numbering {
  const char* name = "";
  bool wideItems = false;
  bool wideProperties = false;
  bool mustKnow = false;
  bool longMeta = false;
};

/// Item 1 is a tile, item 2 the picture.
std::string Heif(const Numbering& numbering) {
  const int itemBytes = numbering.wideItems ? 4 : 2;
  const int propertyBytes = numbering.wideProperties ? 2 : 1;
  const auto property = [&](unsigned number) {
    const unsigned mark = !numbering.mustKnow ? 0 : numbering.wideProperties ? 0x8000U : 0x80U;
    return Big(number | mark, propertyBytes);
  };
  const std::string ipma =
      Box("ipma", Big(numbering.wideItems ? 1 : 0, 1) + Big(numbering.wideProperties ? 1 : 0, 3) + Big(2, 4) +
                      Big(1, itemBytes) + Big(1, 1) + property(2) + Big(2, itemBytes) + Big(2, 1) +
                      property(1) + property(3));
  const std::string ipco =
      Box("ipco", Box("irot", Big(3, 1)) + SizeBox(512, 512) + SizeBox(4032, 3024) + SizeBox(320, 240));
  const std::string body = Big(0, 4) +
                           Box("pitm", Big(numbering.wideItems ? 1 : 0, 1) + Big(0, 3) + Big(2, itemBytes)) +
                           Box("iprp", ipco + ipma);
  const std::string meta =
      numbering.longMeta ? Big(1, 4) + "meta" + Big(body.size() + 16, 8) + body : Box("meta", body);
  return Box("ftyp", "heic" + Big(0, 4) + "mif1") + meta + Box("mdat", std::string(100, 'p'));
}

class HeifNumberings : public testing::TestWithParam<Numbering> {};

TEST_P(HeifNumberings, GiveTheSizeOfThePictureShown) {
  const TempTree tree;
  const Pointer metadata = Read(tree.Write("a.heic", Heif(GetParam())));
  EXPECT_EQ(Size(metadata), "4032 x 3024");
  EXPECT_EQ(Format(metadata), "HEIC");
}

INSTANTIATE_TEST_SUITE_P(Table, HeifNumberings,
                         testing::Values(Numbering{"Usual"}, Numbering{"WideItems", true},
                                         Numbering{"WideProperties", false, true},
                                         Numbering{"AllWide", true, true, true},
                                         Numbering{"MustKnow", false, false, true},
                                         Numbering{"LongMeta", false, false, false, true}),
                         [](const auto& param) { return std::string(param.param.name); });

TEST(HeifSizes, SurviveAnyBytesBeingWrongAndBeingCutShort) {
  const TempTree tree;
  const std::string bytes = Heif({"AllWide", true, true, true});
  std::mt19937 random(13);  // The same files every time
  constexpr int kRounds = 1500;
  int read = 0;
  for (int round = 0; round < kRounds; ++round) {
    std::string broken = bytes.substr(0, round % 3 == 0 ? random() % bytes.size() : bytes.size());
    for (int change = 0; change <= round % 4 && !broken.empty(); ++change) {
      broken[random() % broken.size()] = random() % 2 == 0 ? '\xFF' : static_cast<char>(random());
    }
    read += IsRead(WriteAnew(tree, broken)) ? 1 : 0;
  }
  EXPECT_GT(read, 0);
  EXPECT_LT(read, kRounds);
}

}  // namespace
}  // namespace Zenvora::Strandel
