#include <LumidexUtil/MetadataReaders.h>
#include <support/LeftOut.h>
#include <support/LogCapture.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>

#include <zenvora/core/Exception.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/RatioFromString.h>
#include <zenvora/core/RefCountImpl.h>
#include <zenvora/strandel/MetadataSettings.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImageReader>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace Zenvora::Test {
namespace {

using Core::Property;
using Proc::IImageMetadata;
using Quillet::Geo::GPSData;
using Strandel::MetadataError;
using testing::ElementsAre;
using testing::HasSubstr;
using Util::GetCameraModel;
using Util::GetFileDateTime;
using Util::GetFrameInfo;
using Util::GetGPSData;
using Util::GetMetadata;
using Pointer = boost::intrusive_ptr<IImageMetadata>;

/// Metadata that say what a test wants, and write down what they are asked.
class SaidMetadata : public IImageMetadata {
 public:
  unsigned int AddRef() const override { return references_.AddRefImpl(); }
  unsigned int GetRefCount() const override { return references_.GetRefCountImpl(); }
  unsigned int Release() const override {
    const unsigned int left = references_.ReleaseImpl();
    if (left == 0) {
      delete this;
    }
    return left;
  }
  Property GetProperty(const std::string& family, const std::string& block,
                       const std::string& tag) const override {
    asked.push_back(family + '/' + block + '/' + tag);
    if (fail) {
      fail(tag);
    }
    const auto found = properties.find(tag);
    return found == properties.end() ? Property() : found->second;
  }

  void Say(const std::string& tag, const std::string& text) {
    properties[tag] = Property();
    properties[tag].Set(TEXT_VALUE, Property(text));
  }

  std::map<std::string, Property> properties;
  std::function<void(const std::string&)> fail;
  mutable std::vector<std::string> asked;

 private:
  RefCountImpl references_;
};

boost::intrusive_ptr<SaidMetadata> Said() {
  return boost::intrusive_ptr<SaidMetadata>(new SaidMetadata);
}

boost::intrusive_ptr<SaidMetadata> SaidPosition(const std::string& latitude, const std::string& longitude) {
  auto metadata = Said();
  metadata->Say(IImageMetadata::TAG_LATITUDE, latitude);
  metadata->Say(IImageMetadata::TAG_LONGITUDE, longitude);
  return metadata;
}

double Latitude(const std::string& value, const std::string& reference) {
  const auto metadata = SaidPosition(value, "0/1 0/1 0/1");
  metadata->Say("GPSLatitudeRef", reference);
  return GetGPSData(metadata).GetLatitude();
}

PhotoTags WithPosition(const std::string& latitudeReference, const std::string& longitudeReference) {
  PhotoTags tags;
  tags.more = {{"Exif.GPSInfo.GPSLatitude", "48/1 51/1 2436/100", ""},
               {"Exif.GPSInfo.GPSLongitude", "2/1 17/1 4020/100", ""}};
  if (!latitudeReference.empty()) {
    tags.more.push_back({"Exif.GPSInfo.GPSLatitudeRef", latitudeReference, ""});
  }
  if (!longitudeReference.empty()) {
    tags.more.push_back({"Exif.GPSInfo.GPSLongitudeRef", longitudeReference, ""});
  }
  return tags;
}

class MetadataReaders : public testing::Test {
 protected:
  TempTree tree_;
};

// The interface of metadata.

TEST(IImageMetadata, FindsPropertiesByItsFifthOperation) {
  // The common C++ binary interface writes pointers to virtual operations as 1 + the place in the table.
  constexpr std::size_t kSlotsOfDestructor = 2;
  constexpr std::size_t kOthersBefore = 3;
  const auto operation = &IImageMetadata::GetProperty;
  std::uintptr_t place = 0;
  std::memcpy(&place, &operation, sizeof place);
  EXPECT_EQ(place, 1 + (kSlotsOfDestructor + kOthersBefore) * sizeof(void*));
}

TEST(IImageMetadata, IsCountedAndNotDeletedByItsUsers) {
  EXPECT_TRUE((std::is_base_of_v<IRefCountable, IImageMetadata>));
  EXPECT_FALSE(std::is_destructible_v<IImageMetadata>);
  EXPECT_TRUE(std::has_virtual_destructor_v<IImageMetadata>);
}

// The camera.

TEST(GetCameraModel, LooksUpTheModelOfTheFirstDirectory) {
  const auto metadata = Said();
  metadata->Say("Model", "Model X");
  EXPECT_EQ(GetCameraModel(metadata), QStringLiteral("Model X"));
  EXPECT_THAT(metadata->asked,
              ElementsAre(IImageMetadata::EXIF + '/' + IImageMetadata::BLOCK_IMAGE + "/Model"));
}

TEST(GetCameraModel, IsEmptyWhenUnknown) {
  EXPECT_TRUE(GetCameraModel(Said()).isEmpty());
  const auto withoutText = Said();
  withoutText->properties["Model"] = Property("the property's own text is not the tag's");
  EXPECT_TRUE(GetCameraModel(withoutText).isEmpty());
}

TEST(GetCameraModel, IsUtf8AndNotTrimmed) {
  const auto metadata = Said();
  metadata->Say("Model", "  K\xC3\xB6nig \xE5\x86\x99 \t");
  EXPECT_EQ(GetCameraModel(metadata), QString::fromUtf8("  K\xC3\xB6nig \xE5\x86\x99 \t"));
  metadata->Say("Model", "a\xFF");
  EXPECT_EQ(GetCameraModel(metadata), QString::fromUtf8("a\xEF\xBF\xBD"));
}

TEST(GetCameraModel, PassesOnWhatTheLookUpThrows) {
  const auto metadata = Said();
  metadata->fail = [](const std::string&) { throw std::runtime_error("broken"); };
  EXPECT_THROW(GetCameraModel(metadata), std::runtime_error);
}

// The position: its rule.

TEST(GetGPSData, ReadsDegreesMinutesAndSeconds) {
  EXPECT_EQ(Latitude("10/1 30/1 0/1", "N"), 10.5);
  EXPECT_EQ(Latitude("48/1 51/1 2436/100", "N"), (51 / 60.0 + 48) + 24.36 / 3600.0);
  EXPECT_EQ(Latitude("37/1 4832/100 0/1", "N"), (48.32 / 60.0 + 37) + 0 / 3600.0);
  EXPECT_EQ(Latitude("375/10 0/1 0/1", "N"), 37.5);
}

TEST(GetGPSData, SumsMinutesAndDegreesBeforeSeconds) {
  // Triples whose other orders of summing give other last bits.
  int differing = 0;
  for (int degrees = 0; degrees < 90; ++degrees) {
    for (int minutes = 1; minutes < 60; minutes += 7) {
      const double seconds = (degrees * 37 + minutes * 11) % 6000 / 100.0;
      const std::string text = std::to_string(degrees) + "/1 " + std::to_string(minutes) + "/1 " +
                               std::to_string((degrees * 37 + minutes * 11) % 6000) + "/100";
      const double expected = (minutes / 60.0 + degrees) + seconds / 3600.0;
      EXPECT_EQ(Latitude(text, "N"), expected) << text;
      EXPECT_EQ(Latitude(text, "S"), -expected) << text;
      differing += degrees + (minutes / 60.0 + seconds / 3600.0) != expected ? 1 : 0;
      differing += (degrees * 3600.0 + minutes * 60.0 + seconds) / 3600.0 != expected ? 1 : 0;
    }
  }
  EXPECT_GT(differing, 10) << "the table must tell the orders apart";
}

TEST(GetGPSData, IsNegativeForExactlySAndW) {
  const struct {
    const char* reference;
    double latitude;
  } rows[] = {{"S", -10.5}, {"W", -10.5},       {"N", 10.5},   {"E", 10.5},     {"", 10.5},     {"s", 10.5},
              {"w", 10.5},  {"S ", 10.5},       {" S", 10.5},  {"South", 10.5}, {"West", 10.5}, {"SS", 10.5},
              {"-", 10.5},  {"\xD0\xA1", 10.5}, {"S\n", 10.5}, {"0", 10.5},     {"NS", 10.5}};
  for (const auto& row : rows) {
    EXPECT_EQ(Latitude("10/1 30/1 0/1", row.reference), row.latitude) << row.reference;
  }
}

TEST(GetGPSData, TakesEachCoordinateWithItsOwnReference) {
  for (const char* latitude : {"N", "S"}) {
    for (const char* longitude : {"E", "W"}) {
      const auto metadata = SaidPosition("10/1 30/1 0/1", "20/1 15/1 0/1");
      metadata->Say("GPSLatitudeRef", latitude);
      metadata->Say("GPSLongitudeRef", longitude);
      const GPSData position = GetGPSData(metadata);
      EXPECT_EQ(position.GetLatitude(), *latitude == 'S' ? -10.5 : 10.5);
      EXPECT_EQ(position.GetLongitude(), *longitude == 'W' ? -20.25 : 20.25);
      EXPECT_TRUE(position.IsValid());
    }
  }
}

TEST(GetGPSData, DoesWithoutReferences) {
  EXPECT_EQ(GetGPSData(SaidPosition("10/1 30/1 0/1", "20/1 15/1 0/1")), GPSData(10.5, 20.25));
}

TEST(GetGPSData, KeepsEmptyParts) {
  const struct {
    const char* text;
    double latitude;
  } rows[] = {
      {"10/1  30/1", 10 + 30 / 3600.0},  // Two blanks: the minutes are empty, 30 are seconds
      {"10/1  30/1 6/1", 10 + 30 / 3600.0},
      {" 10/1 30/1", 10 / 60.0 + 30 / 3600.0},
      {"  10/1", 10 / 3600.0},
      {"   10/1", 0},
      {"10/1 30/1 ", 10.5},
  };
  for (const auto& row : rows) {
    EXPECT_DOUBLE_EQ(Latitude(row.text, "N"), row.latitude) << row.text;
  }
  EXPECT_EQ(Latitude("10/1  30/1", "S"), -((0 / 60.0 + 10) + 30 / 3600.0));
}

TEST(GetGPSData, ReadsMissingPartsAsZero) {
  EXPECT_EQ(Latitude("10/1", "N"), 10);
  EXPECT_EQ(Latitude("10/1 30/1", "S"), -10.5);
  EXPECT_EQ(Latitude("10", "N"), 10);
  EXPECT_EQ(Latitude("", "N"), 0);
  EXPECT_EQ(Latitude(" ", "N"), 0);
}

TEST(GetGPSData, PassesOverFurtherParts) {
  EXPECT_EQ(Latitude("10/1 30/1 0/1 5/1", "N"), 10.5);
  EXPECT_EQ(Latitude("10/1 30/1 0/1 5/0", "N"), 10.5);
}

TEST(GetGPSData, SplitsAtBlanksOnly) {
  EXPECT_EQ(Latitude("10/1\t30/1\t0/1", "N"), 0);
  EXPECT_EQ(Latitude("10/1,30/1,0/1", "N"), 0);
  EXPECT_EQ(Latitude("10/1\xC2\xA0"
                     "30/1",
                     "N"),
            0);
}

TEST(GetGPSData, CountsPartsThatAreNoFractionsAsZero) {
  const struct {
    const char* text;
    double latitude;
  } rows[] = {{"a 30/1 0/1", 0.5},        {"10/1 a 0/1", 10},
              {"10/1 30/1 a", 10.5},      {"10/1 30/1 0/0", 10.5},
              {"0/0 30/1 0/1", 0.5},      {"0/0 0/0 0/0", 0},
              {"10.5/1 30/1 0/1", 0.5},   {"10/1 99999999999999999999/1 0/1", 10},
              {"48\xC2\xB0 51' 24\"", 0}, {"-10/1 30/1 0/1", -9.5},
              {"10/-1 30/1 0/1", -9.5},   {"-10/-1 30/1 0/1", 10.5}};
  for (const auto& row : rows) {
    const LogCapture log;
    EXPECT_EQ(Latitude(row.text, "N"), row.latitude) << row.text;
    EXPECT_TRUE(log.Lines(google::GLOG_ERROR).empty()) << row.text;
  }
}

TEST(GetGPSData, MakesNoPositionOfNumbersOverZeroAndLogsThat) {
  for (const char* text : {"10/0 30/1 0/1", "10/1 30/0 0/1", "10/1 30/1 1/0", "10/1 30/1 -1/0"}) {
    for (const bool isLatitude : {true, false}) {
      const LogCapture log;
      const auto metadata =
          isLatitude ? SaidPosition(text, "20/1 15/1 0/1") : SaidPosition("10/1 30/1 0/1", text);
      EXPECT_EQ(GetGPSData(metadata), GPSData::Invalid()) << text;
      const auto lines = log.Lines();
      ASSERT_EQ(lines.size(), 1U) << text;
      EXPECT_EQ(lines[0].severity, google::GLOG_ERROR);
      EXPECT_EQ(lines[0].source, "Util/Utils.cpp");
      EXPECT_EQ(lines[0].line, 304);
      EXPECT_EQ(lines[0].text, boost::bad_rational().what());
    }
  }
}

TEST(GetGPSData, NeedsBothCoordinates) {
  const std::string value = "10/1 30/1 0/1";
  for (const auto& missing : {IImageMetadata::TAG_LATITUDE, IImageMetadata::TAG_LONGITUDE}) {
    const LogCapture log;
    const auto metadata = SaidPosition(value, value);
    metadata->Say("GPSLatitudeRef", "S");
    metadata->Say("GPSLongitudeRef", "W");
    metadata->properties.erase(missing);
    EXPECT_EQ(GetGPSData(metadata), GPSData::Invalid()) << missing;
    EXPECT_TRUE(log.Lines().empty());
  }
  EXPECT_EQ(GetGPSData(Said()), GPSData::Invalid());
}

TEST(GetGPSData, NeitherConvertsNorComplainsWhenOneIsMissing) {
  const LogCapture log;
  const auto metadata = Said();
  metadata->Say(IImageMetadata::TAG_LATITUDE, "1/0 1/0 1/0");
  EXPECT_EQ(GetGPSData(metadata), GPSData::Invalid());
  EXPECT_TRUE(log.Lines().empty());
}

TEST(GetGPSData, AsksForAllFourInAnyCase) {
  const std::string block = IImageMetadata::EXIF + '/' + IImageMetadata::BLOCK_GPS + '/';
  for (const auto& metadata : {Said(), SaidPosition("10/1 30/1 0/1", "20/1 15/1 0/1")}) {
    GetGPSData(metadata);
    EXPECT_THAT(metadata->asked,
                ElementsAre(block + IImageMetadata::TAG_LATITUDE, block + IImageMetadata::TAG_LONGITUDE,
                            block + "GPSLatitudeRef", block + "GPSLongitudeRef"));
  }
}

TEST(GetGPSData, PassesOnWhatTheLookUpsThrow) {
  const std::string tags[] = {IImageMetadata::TAG_LATITUDE, IImageMetadata::TAG_LONGITUDE, "GPSLatitudeRef",
                              "GPSLongitudeRef"};
  for (const std::string& broken : tags) {
    const LogCapture log;
    const auto metadata = SaidPosition("10/1 30/1 0/1", "20/1 15/1 0/1");
    metadata->fail = [&broken](const std::string& tag) {
      if (tag == broken) {
        throw std::runtime_error("broken");
      }
    };
    EXPECT_THROW(GetGPSData(metadata), std::runtime_error) << broken;
    EXPECT_TRUE(log.Lines().empty());
    metadata->fail = [](const std::string&) { throw 7; };
    EXPECT_THROW(GetGPSData(metadata), int);
  }
}

TEST(GetGPSData, KeepsPositionsBeyondTheGlobe) {
  const GPSData position = GetGPSData(SaidPosition("100/1 0/1 0/1", "200/1 90/1 0/1"));
  EXPECT_EQ(position, GPSData(100, 201.5));
  EXPECT_FALSE(position.IsValid());
  EXPECT_NE(position, GPSData::Invalid());
}

TEST(GPSDataValue, IsValidOnTheGlobeOnly) {
  EXPECT_TRUE(GPSData(90, 180).IsValid());
  EXPECT_TRUE(GPSData(-90, -180).IsValid());
  EXPECT_TRUE(GPSData(0, 0).IsValid());
  EXPECT_FALSE(GPSData(90.000001, 0).IsValid());
  EXPECT_FALSE(GPSData(0, -180.000001).IsValid());
  EXPECT_FALSE(GPSData(std::nan(""), 0).IsValid());
  EXPECT_FALSE(GPSData::Invalid().IsValid());
  EXPECT_EQ(GPSData::Invalid(), GPSData::Invalid());
  EXPECT_NE(GPSData(1, 2), GPSData(2, 1));
}

// Files.

TEST_F(MetadataReaders, FindThePositionInEveryFormat) {
  const struct {
    const char* name;
    std::string (*make)(const PhotoTags&);
  } formats[] = {{"a.jpg", MakeJpeg}, {"a.png", MakePng}, {"a.tif", MakeTiff}, {"a.webp", MakeWebP}};
  for (const auto& format : formats) {
    PhotoTags tags = WithPosition("S", "W");
    tags.model = " Model X ";
    tags.orientation = 6;
    const ioPath file = tree_.Write(format.name, format.make(tags));
    const Pointer metadata = GetMetadata(file);
    const GPSData position = GetGPSData(metadata);
    EXPECT_EQ(position.GetLatitude(), -((51 / 60.0 + 48) + 24.36 / 3600.0)) << format.name;
    EXPECT_EQ(position.GetLongitude(), -((17 / 60.0 + 2) + 40.2 / 3600.0)) << format.name;
    EXPECT_EQ(GetCameraModel(metadata), QStringLiteral(" Model X ")) << format.name;
    EXPECT_EQ(GetFrameInfo(file).orientation, 6) << format.name;
  }
}

TEST_F(MetadataReaders, FindNothingInFilesThatSayNothing) {
  const ioPath file = WriteJpeg(tree_.Path("a.jpg"));
  const Pointer metadata = GetMetadata(file);
  ASSERT_TRUE(metadata);
  EXPECT_TRUE(GetCameraModel(metadata).isEmpty());
  EXPECT_EQ(GetGPSData(metadata), GPSData::Invalid());
  EXPECT_TRUE(metadata->GetProperty(IImageMetadata::EXIF, IImageMetadata::BLOCK_IMAGE, "Make").IsEmpty());
}

TEST_F(MetadataReaders, GiveEmptyPropertiesForNamesOfNone) {
  const Pointer metadata = GetMetadata(WriteJpeg(tree_.Path("a.jpg"), WithPosition("N", "E")));
  const struct {
    const char *family, *block, *tag;
  } rows[] = {{"Exif", "Image", "NoSuchTag"},
              {"Exif", "NoSuchBlock", "Model"},
              {"Xmp", "Image", "Model"},
              {"", "", ""},
              {"Exif", "", "Model"},
              {"Exif", "Image", ""},
              {"exif", "Image", "Model"},
              {"File", "Picture", "Model"},
              {"File", "", ""},
              {"Exif", "Image.Model", "x"},
              {"Exif", "GPSInfo", "GPSInfo.GPSLatitude"}};
  for (const auto& row : rows) {
    EXPECT_TRUE(metadata->GetProperty(row.family, row.block, row.tag).IsEmpty())
        << row.family << '/' << row.block << '/' << row.tag;
  }
}

TEST_F(MetadataReaders, GiveTextsOfFieldsAsTheyStand) {
  PhotoTags tags;
  tags.more = {{"Exif.Image.Make", "Maker ", ""},
               {"Exif.Photo.FNumber", "28/10", ""},
               {"Exif.Photo.ISOSpeedRatings", "200", ""},
               {"Exif.GPSInfo.GPSLatitudeRef", "83", "Byte"}};
  const Pointer metadata = GetMetadata(WriteJpeg(tree_.Path("a.jpg"), tags));
  const auto text = [&metadata](const std::string& block, const std::string& tag) {
    return metadata->GetProperty(IImageMetadata::EXIF, block, tag)[IImageMetadata::TEXT_VALUE].GetString();
  };
  EXPECT_EQ(text("Image", "Make"), "Maker ");
  EXPECT_EQ(text("Image", "0x010f"), "Maker ");
  EXPECT_EQ(text("Photo", "FNumber"), "28/10");
  EXPECT_EQ(text("Photo", "ISOSpeedRatings"), "200");
  EXPECT_EQ(text("GPSInfo", "GPSLatitudeRef"), "S") << "text by the standard, whatever type the file names";
}

TEST_F(MetadataReaders, TakeCoordinatesThatAreNotKnownForMissing) {
  PhotoTags tags = WithPosition("N", "E");
  tags.more[0].text = "0/0 0/0 0/0";
  EXPECT_EQ(GetGPSData(GetMetadata(WriteJpeg(tree_.Path("a.jpg"), tags))), GPSData::Invalid());
  tags.more[0].text = "10/1 30/1 0/0";
  EXPECT_EQ(GetGPSData(GetMetadata(WriteJpeg(tree_.Path("b.jpg"), tags))).GetLatitude(), 10.5);
}

TEST_F(MetadataReaders, CutEndlessTextsAndLeaveEndlessNumbersOut) {
  PhotoTags tags;
  tags.more = {{"Exif.Image.Model", std::string(100'000, 'x'), ""}};
  const Pointer metadata = GetMetadata(tree_.Write("a.tif", MakeTiff(tags)));
  EXPECT_EQ(GetCameraModel(metadata), QString(64 * 1024, QLatin1Char('x')));
  std::string numbers;
  for (int i = 0; i < 40'000; ++i) {
    numbers += numbers.empty() ? "1" : " 1";
  }
  tags.more = {{"Exif.Image.TransferFunction", numbers, ""}};
  const Pointer other = GetMetadata(tree_.Write("b.tif", MakeTiff(tags)));
  EXPECT_TRUE(other->GetProperty("Exif", "Image", "TransferFunction").IsEmpty());
}

TEST_F(MetadataReaders, ReadTheFileAnewEachTime) {
  PhotoTags tags;
  tags.model = "First";
  const ioPath file = WriteJpeg(tree_.Path("a.jpg"), tags);
  const Pointer first = GetMetadata(file);
  tags.model = "Second";
  WriteJpeg(file, tags);
  const Pointer second = GetMetadata(file);
  EXPECT_NE(first, second);
  EXPECT_EQ(GetCameraModel(first), QStringLiteral("First"));
  EXPECT_EQ(GetCameraModel(second), QStringLiteral("Second"));
  file.remove();
  EXPECT_EQ(GetCameraModel(second), QStringLiteral("Second"));
}

TEST_F(MetadataReaders, HandOutCountedMetadata) {
  Pointer metadata = GetMetadata(WriteJpeg(tree_.Path("a.jpg")));
  EXPECT_EQ(metadata->GetRefCount(), 1U);
  {
    const Pointer second = metadata;
    EXPECT_EQ(metadata->GetRefCount(), 2U);
  }
  EXPECT_EQ(metadata->GetRefCount(), 1U);
}

TEST_F(MetadataReaders, TakeTheOriginalDateBeforeTheOthers) {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  tags.dateTimeDigitized = "2021:05:02 11:21:31";
  tags.subSec = "125";
  const ioPath file = tree_.Path("a.jpg");
  const auto text = [&file] {
    return GetFileDateTime(file).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString();
  };
  WriteJpeg(file, tags);
  EXPECT_EQ(text(), "2021-05-01 10:20:30.125");
  tags.dateTimeOriginal = "0000:00:00 00:00:00";
  WriteJpeg(file, tags);
  EXPECT_EQ(text(), "2021-05-02 11:21:31.125");
  tags.dateTimeDigitized.clear();
  WriteJpeg(file, tags);
  namespace fs = std::filesystem;
  fs::last_write_time(file.native(), fs::file_time_type::clock::now() - std::chrono::hours(1000));
  const std::int64_t modified = QueryFile(file).modifiedNs;
  const QDateTime date = GetFileDateTime(file);
  EXPECT_EQ(date.toMSecsSinceEpoch(), modified / 1'000'000);
  EXPECT_EQ(date.timeSpec(), Qt::LocalTime);
}

TEST_F(MetadataReaders, DescribeTheFrame) {
  PhotoTags tags;
  tags.width = 40;
  tags.height = 24;
  tags.orientation = 8;
  const Conf::FrameInfo info = GetFrameInfo(WriteJpeg(tree_.Path("a.jpg"), tags));
  EXPECT_EQ(info.format, "JPEG");
  EXPECT_EQ(info.width, 40);
  EXPECT_EQ(info.height, 24);
  EXPECT_EQ(info.ShownWidth(), 24);
  EXPECT_EQ(info.ShownHeight(), 40);
  EXPECT_EQ(info.orientation, 8);
  EXPECT_EQ(info.frames, 1);
}

TEST_F(MetadataReaders, TellFormatsByTheContent) {
  const struct {
    const char* name;
    std::string bytes;
    const char* format;
  } rows[] = {{"a.png", MakeJpeg({}), "JPEG"},
              {"b", MakePng({}), "PNG"},
              {"c.jpg", MakeTiff({}), "TIFF"},
              {"d.jpg", MakeWebP({}), "WebP"}};
  for (const auto& row : rows) {
    EXPECT_EQ(GetFrameInfo(tree_.Write(row.name, row.bytes)).format, row.format) << row.name;
  }
}

TEST_F(MetadataReaders, TakeSenselessOrientationsForUpright) {
  for (const char* orientation : {"0", "9", "65535"}) {
    PhotoTags tags;
    tags.more = {{"Exif.Image.Orientation", orientation, ""}};
    EXPECT_EQ(GetFrameInfo(WriteJpeg(tree_.Path("a.jpg"), tags)).orientation, 1) << orientation;
  }
}

/// Two frames of one pixel, and a comment, since Exiv2 does not take the tiniest files for any format.
std::string AnimatedGif() {
  const std::string head("GIF89a\1\0\1\0\x80\0\0\0\0\0\xFF\xFF\xFF", 19);
  const std::string frame("\x2C\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 15);
  const std::string comment = "\x21\xFE\xC8" + std::string(200, 'x') + '\0';
  return head + comment + frame + frame + ';';
}

TEST_F(MetadataReaders, CountFramesWhereQtHasAReader) {
  if (!QImageReader::supportedImageFormats().contains("gif")) {
    GTEST_SKIP() << "Qt has no reader for GIF here";
  }
  const Conf::FrameInfo info = GetFrameInfo(tree_.Write("a.gif", AnimatedGif()));
  EXPECT_EQ(info.format, "GIF");
  EXPECT_EQ(info.frames, 2);
  EXPECT_EQ(info.width, 1);
}

TEST_F(MetadataReaders, SayWhatFilesCannotBeReadAndWhy) {
#ifdef _WIN32
  // The system does not even open folders there, and says so in its own words.
  const char* const folderCause = "";
#else
  const char* const folderCause = "It is not a regular file";
#endif
  const struct {
    ioPath file;
    const char* cause;
  } rows[] = {{tree_.Path("none.jpg"), ""},
              {tree_.MakeFolder("folder.jpg"), folderCause},
              {tree_.Write("text.jpg", std::string(1000, 'x')), "Its picture format is not known"},
              {tree_.Write("empty.jpg", ""), "It is empty"}};
  for (const auto& row : rows) {
    const std::string name = row.file.utf8string();
    for (const auto& read : {std::function<void()>([&] { GetMetadata(row.file); }),
                             std::function<void()>([&] { GetFileDateTime(row.file); }),
                             std::function<void()>([&] { GetFrameInfo(row.file); })}) {
      try {
        read();
        ADD_FAILURE() << name << " was read";
      } catch (const MetadataError& error) {
        EXPECT_THAT(error.what(), HasSubstr(name));
        EXPECT_THAT(error.what(), HasSubstr(row.cause));
        const std::string* const tag = boost::get_error_info<TagFilename>(error);
        ASSERT_NE(tag, nullptr);
        EXPECT_EQ(*tag, name);
      }
    }
  }
}

TEST_F(MetadataReaders, ReadNamesThatAreNoText) {
  PhotoTags tags;
  tags.model = "Model X";
  const ioPath file = WriteJpeg(tree_.Path(std::string(Zenvora::Test::kStrangeName) + ".jpg"), tags);
  EXPECT_EQ(GetCameraModel(GetMetadata(file)), QStringLiteral("Model X"));
  EXPECT_EQ(GetFrameInfo(file).format, "JPEG");
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(MetadataReaders, DoNotWaitForPipes);
#else
TEST_F(MetadataReaders, DoNotWaitForPipes) {
  const Pipe pipe(tree_.Path("a.jpg"));
  EXPECT_THROW(GetMetadata(tree_.Path("a.jpg")), MetadataError);
}
#endif

}  // namespace
}  // namespace Zenvora::Test
