#include "Pictures.h"

#include <host/shots/PhotoOrigin.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace Zenvora::Lumidex::Host {
namespace {

using TestPictures::Encoded;
using TestPictures::Scene;
using Zenvora::Test::ExifField;
using Zenvora::Test::PhotoTags;

class PhotoOriginTest : public testing::Test {
 protected:
  PhotoOrigin Read(const PhotoTags& tags, const std::string& name = "photo.jpg") {
    return ReadPhotoOrigin(Zenvora::Test::WriteJpeg(tree_.Path(name), tags));
  }
  PhotoOrigin ReadBytes(const std::string& bytes, const std::string& name = "photo.jpg") {
    return ReadPhotoOrigin(tree_.Write(name, bytes));
  }
  static PhotoTags FromCamera() {
    PhotoTags tags;
    tags.model = "Model X";
    tags.dateTimeOriginal = "2021:05:01 10:20:30";
    return tags;
  }
  static PhotoTags With(ExifField field) {
    PhotoTags tags = FromCamera();
    tags.more.push_back(std::move(field));
    return tags;
  }

  Zenvora::Test::TempTree tree_;
};

TEST_F(PhotoOriginTest, TellsTheCamerasData) {
  EXPECT_TRUE(Read(FromCamera()).cameraTags);
  EXPECT_FALSE(Read(PhotoTags()).cameraTags);
  PhotoTags dateOnly = FromCamera();
  dateOnly.model.clear();
  EXPECT_FALSE(Read(dateOnly).cameraTags);
  PhotoTags modelOnly = FromCamera();
  modelOnly.dateTimeOriginal.clear();
  EXPECT_FALSE(Read(modelOnly).cameraTags);
}

TEST_F(PhotoOriginTest, TellsTheMakersNote) {
  EXPECT_FALSE(Read(FromCamera()).makerNote);
  EXPECT_TRUE(Read(With({"Exif.Photo.MakerNote", "1 2 3 4 5 6 7 8", "Undefined"})).makerNote);
}

TEST_F(PhotoOriginTest, KnowsEditorsByTheirNames) {
  EXPECT_FALSE(Read(FromCamera()).edited);
  EXPECT_FALSE(Read(With({"Exif.Image.Software", "Ver.1.00", ""})).edited);
  EXPECT_TRUE(Read(With({"Exif.Image.Software", "GIMP 2.8.10", ""})).edited);
  EXPECT_TRUE(Read(With({"Exif.Image.ProcessingSoftware", "anything", ""})).edited);
}

TEST_F(PhotoOriginTest, ComparesTheSizeThatTheCameraTells) {
  const auto told = [this](const std::string& width, const std::string& height) {
    PhotoTags tags = With({"Exif.Photo.PixelXDimension", width, "Long"});
    tags.more.push_back({"Exif.Photo.PixelYDimension", height, "Long"});
    tags.width = 640;
    tags.height = 480;
    return Read(tags).sizeAsTold;
  };
  EXPECT_TRUE(told("640", "480"));
  EXPECT_TRUE(told("480", "640"));
  EXPECT_TRUE(told("648", "486"));
  EXPECT_FALSE(told("1280", "960"));
  EXPECT_FALSE(told("320", "240"));
  EXPECT_TRUE(Read(FromCamera()).sizeAsTold);
}

TEST_F(PhotoOriginTest, KnowsTheNamesThatCamerasGive) {
  for (const char* const name :
       {"IMG_1234.JPG", "DSC00042.jpg", "DSC_0042.NEF", "P1010001.JPG", "IMG_20210501_102030.jpg",
        "20210501_102030.jpg", "PXL_20210501_102030123.jpg", "_DSC1234.jpg"}) {
    EXPECT_TRUE(ReadBytes("x", name).cameraName) << name;
  }
  for (const char* const name : {"holiday.jpg", "IMG_1234 (1).jpg", "IMG_1234-edit.jpg", "IMG_1234_small.jpg",
                                 "copy of IMG_1234.jpg", "photo1.jpg"}) {
    EXPECT_FALSE(ReadBytes("x", name).cameraName) << name;
  }
}

TEST_F(PhotoOriginTest, MeasuresTheQuantisation) {
  const QImage scene = Scene(SceneKind::Houses);
  const auto at = [&](int quality) { return ReadBytes(Encoded(scene, "JPEG", quality).toStdString()); };
  EXPECT_GT(at(20).quantisation, at(70).quantisation);
  EXPECT_GT(at(70).quantisation, at(95).quantisation);
  EXPECT_GT(at(95).quantisation, 0);
  EXPECT_GT(at(95).bytesPerPixel, at(70).bytesPerPixel);
  EXPECT_EQ(ReadBytes(Encoded(scene, "PNG", -1).toStdString()).quantisation, 0);
}

TEST_F(PhotoOriginTest, KnowsWhatGeneralProgramsWrite) {
  std::string bytes = Encoded(Scene(SceneKind::Houses), "JPEG", 90).toStdString();
  EXPECT_TRUE(ReadBytes(bytes).hasJfif);
  EXPECT_TRUE(ReadBytes(bytes).standardTables);
  const std::size_t table = bytes.find("\xFF\xDB");
  ASSERT_NE(table, std::string::npos);
  bytes[table + 10] = static_cast<char>(bytes[table + 10] + 7);
  EXPECT_FALSE(ReadBytes(bytes).standardTables);
}

TEST_F(PhotoOriginTest, TellsWhatBreaksOff) {
  const std::string whole = Encoded(Scene(SceneKind::Houses)).toStdString();
  EXPECT_EQ(ReadBytes(whole).degradation, "");
  EXPECT_EQ(ReadBytes(whole.substr(0, whole.size() / 2)).degradation,
            "it breaks off before the end of its picture");
}

TEST_F(PhotoOriginTest, TellsDamage) {
  EXPECT_EQ(ReadBytes(TestPictures::Damaged(Encoded(Scene(SceneKind::Houses))).toStdString()).degradation,
            "a part of the picture is damaged");
  EXPECT_EQ(ReadBytes(TestPictures::Overwritten(Encoded(Scene(SceneKind::Houses))).toStdString()).degradation,
            "a part of the picture is damaged");
  // What cameras put behind the picture is no damage.
  EXPECT_EQ(ReadBytes(Encoded(Scene(SceneKind::Houses)).toStdString() + "camera's trailer").degradation, "");
}

TEST_F(PhotoOriginTest, SaysNothingForWhatIsNoPhoto) {
  const PhotoOrigin text = ReadBytes("no picture");
  EXPECT_FALSE(text.cameraTags);
  EXPECT_EQ(text.bytesPerPixel, 0);
  EXPECT_FALSE(ReadPhotoOrigin(tree_.Path("missing.jpg")).cameraTags);
  EXPECT_FALSE(ReadPhotoOrigin(tree_.Path()).cameraTags);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
