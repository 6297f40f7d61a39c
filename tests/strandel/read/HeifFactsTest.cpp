#include "TiffBytes.h"

#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::SmallTiff;
using Test::TempTree;
using Test::TiffBytes;
using Status = PhotoFacts::Status;

/// A new file each time: to write over one takes disks much longer.
ioPath WriteAnew(const TempTree& tree, const std::string& bytes) {
  tree.Path("a").remove();
  return tree.Write("a", bytes);
}

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

std::string LongBox(const char* type, const std::string& body) {
  return Big(1, 4) + type + Big(body.size() + 16, 8) + body;
}

std::string FullBox(const char* type, int version, const std::string& body) {
  return Box(type, Big(static_cast<std::uint64_t>(version), 1) + Big(0, 3) + body);
}

/// How a picture is laid out.
struct Layout {
  const char* name = "";
  std::string brand = "heic";
  bool inIdat = false;
  bool markBeforeTiff = true;
  int infeVersion = 2;
  int ilocVersion = 1;
  bool longMeta = false;
};

std::string ExifItem(const Layout& layout) {
  const std::string tiff = SmallTiff(TiffBytes::Order::BigEndian);
  return layout.markBeforeTiff ? Big(6, 4) + std::string("Exif\0\0", 6) + tiff : Big(0, 4) + tiff;
}

std::string ItemInfo(const Layout& layout) {
  const auto entry = [&](int number, const char* type) {
    return FullBox(
        "infe", layout.infeVersion,
        Big(static_cast<std::uint64_t>(number), layout.infeVersion >= 3 ? 4 : 2) + Big(0, 2) + type + '\0');
  };
  return FullBox("iinf", 0, Big(2, 2) + entry(1, "hvc1") + entry(2, "Exif"));
}

std::string Locations(const Layout& layout, std::uint64_t offset, std::uint64_t length) {
  const int idSize = layout.ilocVersion < 2 ? 2 : 4;
  const auto item = [&](std::uint64_t number, int method, std::uint64_t at, std::uint64_t size) {
    return Big(number, idSize) + (layout.ilocVersion == 0 ? "" : Big(static_cast<std::uint64_t>(method), 2)) +
           Big(0, 2) + Big(1, 2) + Big(at, 4) + Big(size, 4);
  };
  return FullBox(
      "iloc", layout.ilocVersion,
      Big(0x4400, 2) + Big(2, idSize) + item(1, 0, 0, 10) + item(2, layout.inIdat ? 1 : 0, offset, length));
}

std::string Heif(const Layout& layout) {
  const std::string item = ExifItem(layout);
  const std::string first = Box("ftyp", layout.brand + Big(0, 4) + "mif1");
  // A colour profile that is none must not cost the date.
  const std::string other = Box("iprp", Box("ipco", Box("colr", "profgarbage")));
  const auto meta = [&](std::uint64_t offset) {
    const std::string body = Big(0, 4) + other + ItemInfo(layout) + Locations(layout, offset, item.size()) +
                             (layout.inIdat ? Box("idat", item) : "");
    return layout.longMeta ? LongBox("meta", body) : Box("meta", body);
  };
  if (layout.inIdat) {
    return first + meta(0);
  }
  const std::uint64_t offset = first.size() + meta(0).size() + 8;
  return first + meta(offset) + Box("mdat", item + std::string(100, 'p'));
}

PhotoFacts Facts(const std::string& bytes) {
  const TempTree tree;
  return ReadPhotoFacts(tree.Write("a.heic", bytes));
}

class HeifLayouts : public testing::TestWithParam<Layout> {};

TEST_P(HeifLayouts, AreRead) {
  const PhotoFacts facts = Facts(Heif(GetParam()));
  ASSERT_EQ(facts.status, Status::Read) << facts.cause;
  EXPECT_EQ(facts.original.toString(Qt::ISODateWithMs).left(23), QStringLiteral("2019-07-14T11:22:33.250"));
  EXPECT_EQ(facts.cameraModel, QStringLiteral("Model Y"));
}

INSTANTIATE_TEST_SUITE_P(Table, HeifLayouts,
                         testing::Values(Layout{"Usual"}, Layout{"Avif", "avif"},
                                         Layout{"WithoutMark", "heic", false, false},
                                         Layout{"Plain", "mif1", false, true, 2, 0},
                                         Layout{"LongBox", "heic", false, true, 2, 1, true}),
                         [](const auto& param) { return std::string(param.param.name); });

class RareHeifLayouts : public testing::TestWithParam<Layout> {};

// Exiv2 does not find their EXIF item.
TEST_P(RareHeifLayouts, AreStillPhotos) {
  const PhotoFacts facts = Facts(Heif(GetParam()));
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_TRUE(facts.cause.empty());
  EXPECT_FALSE(facts.original.isValid());
}

INSTANTIATE_TEST_SUITE_P(Table, RareHeifLayouts,
                         testing::Values(Layout{"InIdat", "heic", true},
                                         Layout{"LongNumbers", "heic", false, true, 3, 2}),
                         [](const auto& param) { return std::string(param.param.name); });

struct Container {
  const char* name;
  std::string bytes;
  bool photo;
};

std::string Film(const std::string& brand, const std::string& other) {
  return Box("ftyp", brand + Big(0, 4) + other) + Box("mdat", std::string(100, 'p'));
}

class ContainersWithoutMetadata : public testing::TestWithParam<Container> {};

TEST_P(ContainersWithoutMetadata, ArePhotosByTheirBrand) {
  const PhotoFacts facts = Facts(GetParam().bytes);
  EXPECT_EQ(facts.status, GetParam().photo ? Status::Read : Status::NotAnImage);
  EXPECT_EQ(facts.cause.empty(), GetParam().photo);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ContainersWithoutMetadata,
    testing::Values(
        Container{"Heic", Film("heic", "mif1"), true}, Container{"Heif", Film("mif1", ""), true},
        Container{"Avif", Film("avif", "miaf"), true}, Container{"Cr3", Film("crx ", "isom"), true},
        Container{"BySecondBrand", Film("MiHE", "MiPrmif1"), true},
        Container{"Jxl", std::string("\0\0\0\x0CJXL \r\n\x87\n", 12) + Film("jxl ", "jxl "), true},
        Container{"Mp4", Film("mp42", "isom"), false}, Container{"QuickTime", Film("qt  ", "qt  "), false},
        Container{"BrandBehindTheBox", Box("ftyp", "mp42" + Big(0, 4)) + "heicheic", false},
        Container{"VersionIsNoBrand", Box("ftyp", "mp42heicisom") + Box("mdat", "p"), false},
        Container{"NothingBehind", Box("ftyp", "heic" + Big(0, 4) + "mif1"), false},
        Container{"LyingLength", Big(0x7FFFFFFF, 4) + "ftypheic" + Big(0, 4) + "mif1", false}),
    [](const auto& param) { return std::string(param.param.name); });

TEST(HeifFacts, SurviveAColourProfileThatIsPadded) {
  // Exiv2 wants a profile to say its exact length.
  std::string bytes = Heif(Layout());
  bytes.replace(bytes.find("garbage"), 4, Big(5, 4));
  EXPECT_TRUE(Facts(bytes).original.isValid());
}

TEST(HeifFacts, AreEmptyWithoutAnExifItem) {
  std::string bytes = Heif(Layout());
  bytes.replace(bytes.find("Exif"), 4, "mime");
  const PhotoFacts facts = Facts(bytes);
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_FALSE(facts.original.isValid());
}

TEST(HeifFacts, SurviveBeingCutShortAnywhere) {
  const TempTree tree;
  const std::string bytes = Heif(Layout());
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_NE(ReadPhotoFacts(WriteAnew(tree, bytes.substr(0, length))).status, Status::CannotOpen);
  }
}

TEST(HeifFacts, SurviveAnyBytesBeingWrong) {
  const TempTree tree;
  const std::string bytes = Heif(Layout());
  std::mt19937 random(11);  // The same files every time
  for (int round = 0; round < 3000; ++round) {
    std::string broken = bytes;
    for (int change = 0; change <= round % 6; ++change) {
      broken[random() % broken.size()] = random() % 2 == 0 ? '\xFF' : static_cast<char>(random());
    }
    EXPECT_NE(ReadPhotoFacts(WriteAnew(tree, broken)).status, Status::CannotOpen);
  }
}

TEST(HeifFacts, EndSoonForBoxesThatLeadNowhere) {
  // Two million empty boxes.
  const std::string first = Box("ftyp", "heic" + Big(0, 4) + "mif1");
  std::string boxes;
  for (int i = 0; i < 2'000'000; ++i) {
    boxes += Big(8, 4) + "free";
  }
  EXPECT_EQ(Facts(first + boxes).status, Status::Read);
}

}  // namespace
}  // namespace Zenvora::Strandel
