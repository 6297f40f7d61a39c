// What a photo without an EXIF block says once it has one.

#include "TiffBytes.h"

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoEdit.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

namespace Zenvora::Strandel {
namespace {

using Test::MakeJpeg;
using Test::MakePng;
using Test::MakeTiff;
using Test::MakeWebP;
using Test::PhotoTags;
using Test::ReadFile;
using Test::TempTree;
using Fields = std::map<std::string, std::string>;

Fields FieldsOf(const std::string& bytes) {
  const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(bytes.data()),
                                               static_cast<long>(bytes.size()));
  image->readMetadata();
  Fields fields;
  for (const Exiv2::Exifdatum& datum : image->exifData()) {
    fields[datum.key()] = datum.toString();
  }
  fields.erase("Exif.Image.ExifTag");
  return fields;
}

std::string Turned(const std::string& bytes) {
  const TempTree tree;
  PhotoEdit edit;
  edit.turn = Turn::Right;
  WriteEdited(tree.Write("photo", bytes), tree.Path("staging"), edit);
  return ReadFile(tree.Path("staging"));
}

/// A JPEG segment right behind the start of the picture.
std::string WithSegment(std::string jpeg, char marker, const std::string& body) {
  const std::size_t length = body.size() + 2;
  return jpeg.insert(
      2, std::string{'\xFF', marker, static_cast<char>(length >> 8U), static_cast<char>(length)} + body);
}

const Fields kOfAnyFormat = {{"Exif.Image.Orientation", "6"},
                             {"Exif.Image.XResolution", "72/1"},
                             {"Exif.Image.YResolution", "72/1"},
                             {"Exif.Image.ResolutionUnit", "2"},
                             {"Exif.Photo.ExifVersion", "48 50 51 48"},
                             {"Exif.Photo.FlashpixVersion", "48 49 48 48"},
                             {"Exif.Photo.ColorSpace", "1"}};

TEST(NewExif, HasWhatTheStandardRequires) {
  PhotoTags tags;
  tags.width = 300;
  tags.height = 200;
  Fields expected = kOfAnyFormat;
  expected["Exif.Image.YCbCrPositioning"] = "1";
  expected["Exif.Photo.ComponentsConfiguration"] = "1 0 0 0";
  expected["Exif.Photo.PixelXDimension"] = "300";
  expected["Exif.Photo.PixelYDimension"] = "200";
  EXPECT_EQ(FieldsOf(Turned(MakeJpeg(tags))), expected);
  EXPECT_EQ(FieldsOf(Turned(MakePng(PhotoTags()))), kOfAnyFormat);
  EXPECT_EQ(FieldsOf(Turned(MakeWebP(PhotoTags()))), kOfAnyFormat);
}

TEST(NewExif, TakesOverWhatTheFileSaysElsewhere) {
  std::string jpeg = MakeJpeg(PhotoTags());
  const std::size_t jfif = jpeg.find("JFIF");
  jpeg.replace(jfif + 7, 5, std::string("\1\1\x2C\1\x2C", 5));
  Fields fields = FieldsOf(Turned(jpeg));
  EXPECT_EQ(fields["Exif.Image.XResolution"], "300/1");
  EXPECT_EQ(fields["Exif.Image.ResolutionUnit"], "2");

  for (const auto& [name, space] : {std::pair("Wide RGB", "65535"), std::pair("sRGB 2.1", "1")}) {
    const std::string profile =
        std::string("ICC_PROFILE\0\1\1\0\0\0\xC8", 18) + name + std::string(188, '\0');
    EXPECT_EQ(FieldsOf(Turned(WithSegment(MakeJpeg(PhotoTags()), '\xE2', profile)))["Exif.Photo.ColorSpace"],
              space);
  }

  std::string png = MakePng(PhotoTags());
  const std::size_t metres = png.find("pHYs");
  ASSERT_NE(metres, std::string::npos);
  png.replace(metres + 4, 9, std::string("\0\0\x2E\x23\0\0\x2E\x23\1", 9));
  fields = FieldsOf(Turned(png));
  EXPECT_EQ(fields["Exif.Image.YResolution"], "300/1");
  EXPECT_EQ(fields["Exif.Image.ResolutionUnit"], "2");
}

TEST(NewExif, IsOfPhotosWithoutABlockOnly) {
  PhotoTags tags;
  tags.model = "Model Y";
  EXPECT_EQ(FieldsOf(Turned(MakeJpeg(tags))),
            (Fields{{"Exif.Image.Model", "Model Y"}, {"Exif.Image.Orientation", "6"}}));
  Fields tiff = FieldsOf(MakeTiff(PhotoTags()));
  tiff["Exif.Image.Orientation"] = "6";
  EXPECT_EQ(FieldsOf(Turned(MakeTiff(PhotoTags()))), tiff);
}

}  // namespace
}  // namespace Zenvora::Strandel
