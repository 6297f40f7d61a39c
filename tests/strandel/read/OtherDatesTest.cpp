// Dates that photos state outside of EXIF.

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Test::MakeJpeg;
using Test::PhotoTags;
using Test::TempTree;
using Texts = std::vector<std::pair<const char*, const char*>>;

PhotoFacts Facts(const Texts& texts) {
  const std::string plain = MakeJpeg(PhotoTags());
  const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(plain.data()),
                                               static_cast<long>(plain.size()));
  image->readMetadata();
  for (const auto& [key, text] : texts) {
    if (key[0] == 'X') {
      image->xmpData()[key] = std::string(text);
    } else {
      image->iptcData()[key] = std::string(text);
    }
  }
  image->writeMetadata();
  Exiv2::BasicIo& io = image->io();
  EXPECT_EQ(io.open(), 0);
  const Exiv2::DataBuf all = io.read(static_cast<long>(io.size()));
  const TempTree tree;
  return ReadPhotoFacts(tree.Write(
      "a.jpg", std::string(reinterpret_cast<const char*>(all.pData_), static_cast<std::size_t>(all.size_))));
}

std::string Shown(const QDateTime& date) {
  return date.isValid() ? date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString() : "none";
}

TEST(XmpDates, AreThoseOfTakingBeforeThoseOfMaking) {
  EXPECT_EQ(Shown(Facts({}).xmp), "none");
  Texts texts = {{"Xmp.xmp.CreateDate", "2021-05-01T10:20:31+02:00"}};
  EXPECT_EQ(Shown(Facts(texts).xmp), "2021-05-01 10:20:31.000");
  texts.emplace_back("Xmp.exif.DateTimeDigitized", "2020-05-01T10:20:31.25");
  EXPECT_EQ(Shown(Facts(texts).xmp), "2020-05-01 10:20:31.250");
  texts.emplace_back("Xmp.photoshop.DateCreated", "2019-05-01");
  EXPECT_EQ(Shown(Facts(texts).xmp), "2019-05-01 00:00:00.000");
  texts.emplace_back("Xmp.exif.DateTimeOriginal", "2018-05-01T10:20");
  EXPECT_EQ(Shown(Facts(texts).xmp), "2018-05-01 10:20:00.000");
}

TEST(XmpDates, AreDays) {
  for (const char* text : {"2021", "2021-05", "2021-02-30", "0000-00-00", "spring", ""}) {
    EXPECT_EQ(Shown(Facts({{"Xmp.xmp.CreateDate", text}}).xmp), "none") << text;
  }
  EXPECT_EQ(Shown(Facts({{"Xmp.xmp.ModifyDate", "2021-05-01"}, {"Xmp.xmp.MetadataDate", "2021-05-01"}}).xmp),
            "none");
}

TEST(XmpDates, PassOverWhatIsNone) {
  EXPECT_EQ(
      Shown(
          Facts({{"Xmp.photoshop.DateCreated", "2021"}, {"Xmp.xmp.CreateDate", "2021-05-01T10:20:31Z"}}).xmp),
      "2021-05-01 10:20:31.000");
}

TEST(IptcDates, AreThoseOfCreationBeforeThoseOfDigitisation) {
  EXPECT_EQ(Shown(Facts({}).iptc), "none");
  Texts texts = {{"Iptc.Application2.DigitizationDate", "2021-05-02"}};
  EXPECT_EQ(Shown(Facts(texts).iptc), "2021-05-02 00:00:00.000");
  texts.emplace_back("Iptc.Application2.TimeCreated", "10:20:30+02:00");
  EXPECT_EQ(Shown(Facts(texts).iptc), "2021-05-02 00:00:00.000");
  texts.emplace_back("Iptc.Application2.DateCreated", "2021-05-01");
  EXPECT_EQ(Shown(Facts(texts).iptc), "2021-05-01 10:20:30.000");
}

TEST(IptcDates, AreDays) {
  EXPECT_EQ(Shown(Facts({{"Iptc.Application2.DateCreated", "0000-00-00"}}).iptc), "none");
  EXPECT_EQ(Shown(Facts({{"Iptc.Application2.ReleaseDate", "2021-05-01"}}).iptc), "none");
}

}  // namespace
}  // namespace Zenvora::Strandel
