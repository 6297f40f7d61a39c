#include "GpsDegrees.h"

#include <support/GpsPhoto.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Parts = std::vector<std::pair<std::uint32_t, std::uint32_t>>;

struct AngleRow {
  Parts parts;
  std::string side;
  double most;
  std::optional<double> degrees;
};

class GpsAngles : public ::testing::TestWithParam<AngleRow> {};

TEST_P(GpsAngles, AreReadOrRefused) {
  const std::optional<double> degrees = GpsDegrees(GetParam().parts, GetParam().side, GetParam().most);
  ASSERT_EQ(degrees.has_value(), GetParam().degrees.has_value());
  if (degrees) {
    EXPECT_DOUBLE_EQ(*degrees, *GetParam().degrees);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, GpsAngles,
    ::testing::Values(AngleRow{{{48, 1}, {51, 1}, {2960, 100}}, "N", 90, 48 + 51 / 60.0 + 29.6 / 3600},
                      AngleRow{{{48, 1}, {30, 1}}, "S", 90, -48.5}, AngleRow{{{485, 10}}, "N", 90, 48.5},
                      AngleRow{{{48, 1}, {30, 1}, {0, 0}}, "N", 90, 48.5},
                      AngleRow{{{2, 1}, {60, 1}, {0, 1}}, "E", 180, 3.0},
                      AngleRow{{{180, 1}}, "W", 180, -180.0}, AngleRow{{{90, 1}}, "N", 90, 90.0},
                      AngleRow{{{0, 1}}, "E", 180, 0.0}, AngleRow{{{1, 1}}, "North", 90, 1.0}));

INSTANTIATE_TEST_SUITE_P(
    Rejected, GpsAngles,
    ::testing::Values(AngleRow{{}, "N", 90, {}}, AngleRow{{{48, 1}}, "", 90, {}},
                      AngleRow{{{48, 1}}, "E", 90, {}}, AngleRow{{{48, 1}}, "N", 180, {}},
                      AngleRow{{{48, 1}}, "n", 90, {}}, AngleRow{{{0, 0}}, "N", 90, {}},
                      AngleRow{{{48, 0}, {0, 1}}, "N", 90, {}}, AngleRow{{{48, 1}, {5, 0}}, "N", 90, {}},
                      AngleRow{{{91, 1}}, "N", 90, {}}, AngleRow{{{90, 1}, {1, 1}}, "N", 90, {}},
                      AngleRow{{{181, 1}}, "E", 180, {}}, AngleRow{{{48, 1}, {61, 1}}, "N", 90, {}},
                      AngleRow{{{48, 1}, {1, 1}, {1, 1}, {1, 1}}, "N", 90, {}}));

const Zenvora::Test::GpsTags kParis = {"48/1 51/1 2960/100", "N", "2/1 17/1 4020/100", "E"};

class PositionOfPhotos : public ::testing::Test {
 protected:
  std::optional<PhotoPosition> Read(const char* name, const Zenvora::Test::GpsTags& tags) const {
    const ioPath photo = tree_.Path(name);
    const std::string extension = photo.extension().utf8string();
    extension == ".png"   ? Zenvora::Test::WritePng(photo)
    : extension == ".tif" ? Zenvora::Test::WriteTiff(photo)
                          : Zenvora::Test::WriteJpeg(photo);
    AddGps(photo, tags);
    const PhotoFacts facts = ReadPhotoFacts(photo);
    EXPECT_EQ(facts.status, PhotoFacts::Status::Read) << facts.cause;
    return facts.position;
  }

  Zenvora::Test::TempTree tree_;
};

TEST_F(PositionOfPhotos, IsReadFromEveryFormat) {
  for (const char* const name : {"a.jpg", "a.png", "a.tif"}) {
    const std::optional<PhotoPosition> position = Read(name, kParis);
    ASSERT_TRUE(position) << name;
    EXPECT_NEAR(position->latitude, 48.858222, 1e-6) << name;
    EXPECT_NEAR(position->longitude, 2.294500, 1e-6) << name;
  }
}

TEST_F(PositionOfPhotos, HasItsSides) {
  Zenvora::Test::GpsTags tags = kParis;
  tags.latitudeSide = "S";
  tags.longitudeSide = "W";
  const std::optional<PhotoPosition> position = Read("a.jpg", tags);
  ASSERT_TRUE(position);
  EXPECT_LT(position->latitude, 0);
  EXPECT_LT(position->longitude, 0);
}

TEST_F(PositionOfPhotos, IsUnknownWhenHalfOfItIsMissing) {
  Zenvora::Test::GpsTags tags = kParis;
  tags.longitude.clear();
  EXPECT_FALSE(Read("a.jpg", tags));
  tags = kParis;
  tags.latitudeSide.clear();
  EXPECT_FALSE(Read("b.jpg", tags));
  EXPECT_FALSE(Read("c.jpg", {}));
}

}  // namespace
}  // namespace Zenvora::Strandel
