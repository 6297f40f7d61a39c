#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/MetadataSettings.h>
#include <zenvora/strandel/PhotoFacts.h>
#include <zenvora/tavolin/FileDateTime.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Tavolin {
namespace {

using Source = FileDate::Source;
using Test::PhotoTags;
using Test::TempTree;
using Test::WriteJpeg;
using Test::WritePng;
using Test::WriteTiff;

boost::intrusive_ptr<Proc::IImageMetadata> Read(const ioPath& file) {
  Strandel::MetadataSettings settings;
  settings.CreateMetadata(file, nullptr);
  return settings.GetMetadata();
}

FileDate DateOf(const PhotoTags& tags) {
  const TempTree tree;
  return GetFileDate(Read(WriteJpeg(tree.Path("a.jpg"), tags)));
}

std::string Text(const QDateTime& date) {
  return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString();
}

PhotoTags Tags(const std::string& original, const std::string& digitised) {
  PhotoTags tags;
  tags.dateTimeOriginal = original;
  tags.dateTimeDigitized = digitised;
  return tags;
}

TEST(FileDateTime, SaysWhichTagItCameFrom) {
  const char* const kDay = "2021:05:01 10:20:30";
  const char* const kOther = "2022:06:02 11:21:31";
  EXPECT_EQ(DateOf(Tags(kDay, kOther)).source, Source::Original);
  EXPECT_EQ(DateOf(Tags("", kOther)).source, Source::Digitised);
  EXPECT_EQ(DateOf(Tags("0000:00:00 00:00:00", kOther)).source, Source::Digitised);
  EXPECT_EQ(DateOf(Tags("    :  :     :  :  ", kOther)).source, Source::Digitised);
  EXPECT_EQ(DateOf(Tags("2021:02:30 10:20:30", "")).source, Source::FileTime);
  EXPECT_EQ(DateOf(Tags("", "")).source, Source::FileTime);
}

TEST(FileDateTime, TakesTheCamerasTimeAsItStands) {
  PhotoTags tags = Tags("2021:05:01 10:20:30", "");
  tags.subSec = "25";
  EXPECT_EQ(Text(DateOf(tags).date), "2021-05-01 10:20:30.250");
  EXPECT_EQ(Text(DateOf(Tags("2021-05-01T10:20:30+09:00", "")).date), "2021-05-01 10:20:30.000");
}

TEST(FileDateTime, DoesNotTakeTheDateOfTheLastChange) {
  PhotoTags tags;
  tags.more = {{"Exif.Image.DateTime", "2021:05:01 10:20:30", ""}};
  EXPECT_EQ(DateOf(tags).source, Source::FileTime);
}

TEST(FileDateTime, AgreesWithWhatAScanReads) {
  const char* const kTexts[] = {"2021:05:01 10:20:30", "2021:05:01 10:20",    "2021/05/01 10:20:30.5",
                                "2021:05:01",          "2021:13:01 10:20:30", "",
                                "    :  :     :  :  "};
  const TempTree tree;
  for (const char* original : kTexts) {
    for (const char* digitised : kTexts) {
      for (const auto write : {WriteJpeg, WriteTiff, WritePng}) {
        const ioPath file = write(tree.Path("a"), Tags(original, digitised));
        const Strandel::PhotoFacts facts = Strandel::ReadPhotoFacts(file);
        const FileDate date = GetFileDate(Read(file));
        const QDateTime scanned = facts.original.isValid() ? facts.original : facts.digitised;
        EXPECT_EQ(date.source == Source::FileTime, !scanned.isValid()) << original << '|' << digitised;
        if (scanned.isValid()) {
          EXPECT_EQ(date.date, scanned) << original << '|' << digitised;
        }
      }
    }
  }
}

TEST(FileDateTime, IsInvalidWithoutAnyDate) {
  class Empty : public Proc::IImageMetadata {
   public:
    unsigned int AddRef() const override { return 1; }
    unsigned int GetRefCount() const override { return 1; }
    unsigned int Release() const override { return 1; }
    Core::Property GetProperty(const std::string&, const std::string&, const std::string&) const override {
      return {};
    }
  };
  Empty empty;
  const boost::intrusive_ptr<Proc::IImageMetadata> metadata(&empty);
  EXPECT_EQ(GetFileDate(metadata).source, Source::None);
  EXPECT_FALSE(GetFileDateTime(metadata).isValid());
}

}  // namespace
}  // namespace Zenvora::Tavolin
