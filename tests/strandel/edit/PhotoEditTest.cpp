#include "TiffBytes.h"

#include <support/PhotoMaker.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoEdit.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <QByteArray>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Strandel {
namespace {

using std::chrono::hours;
using std::chrono::seconds;
using Test::MakeJpeg;
using Test::MakePng;
using Test::MakeTiff;
using Test::PhotoTags;
using Test::ReadFile;
using Test::SmallTiff;
using Test::TempTree;
using Test::TiffBytes;
#ifndef _WIN32
using Test::WriteLimit;
#endif

PhotoEdit Turned(Turn turn) {
  PhotoEdit edit;
  edit.turn = turn;
  return edit;
}

PhotoEdit ShiftedBy(seconds shift) {
  PhotoEdit edit;
  edit.shift = shift;
  return edit;
}

PhotoEdit SetTo(int ms = 0) {
  PhotoEdit edit;
  edit.date = QDateTime(QDate(2003, 2, 1), QTime(4, 5, 6, ms));
  return edit;
}

using Picture = std::unique_ptr<Exiv2::Image>;

Picture Read(const std::string& bytes) {
  Picture image(Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(bytes.data()),
                                          static_cast<long>(bytes.size()))
                    .release());
  image->readMetadata();
  return image;
}

/// A picture whose metadata somebody else changed.
std::string With(const std::string& bytes, const std::function<void(Exiv2::Image&)>& change) {
  const Picture image = Read(bytes);
  change(*image);
  image->writeMetadata();
  Exiv2::BasicIo& io = image->io();
  EXPECT_EQ(io.open(), 0);
  const Exiv2::DataBuf all = io.read(static_cast<long>(io.size()));
  return {reinterpret_cast<const char*>(all.pData_), static_cast<std::size_t>(all.size_)};
}

/// The file after the edit.
std::string Edited(const std::string& bytes, const PhotoEdit& edit) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", bytes);
  WriteEdited(photo, tree.Path("staging"), edit);
  EXPECT_EQ(ReadFile(photo), bytes) << "the photo itself";
  return ReadFile(tree.Path("staging"));
}

/// Why it is not edited; empty: it is.
std::string Refusal(const std::string& bytes, const PhotoEdit& edit) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", bytes);
  const ioPath staging = tree.Path("staging");
  try {
    WriteEdited(photo, staging, edit);
  } catch (const PhotoEditError& error) {
    EXPECT_FALSE(staging.exists());
    EXPECT_EQ(ReadFile(photo), bytes);
    const std::string* const name = boost::get_error_info<TagFilename>(error);
    EXPECT_TRUE(name != nullptr && *name == photo.utf8string());
    const std::string start = "Cannot edit " + photo.utf8string() + ": ";
    EXPECT_EQ(std::string(error.what()).substr(0, start.size()), start);
    return std::string(error.what()).substr(start.size());
  }
  return "";
}

template <typename Data, typename Key>
std::string TextIn(const Data& data, const Key& key) {
  const auto found = data.findKey(key);
  return found == data.end() ? "none" : found->toString();
}

/// What a picture says under a key of any family ("Exif.Image.Model", "Xmp.dc.source"); "none": nothing.
std::string Text(const std::string& bytes, const std::string& key) {
  const Picture image = Read(bytes);
  switch (key.front()) {
    case 'E':
      return TextIn(image->exifData(), Exiv2::ExifKey(key));
    case 'X':
      return TextIn(image->xmpData(), Exiv2::XmpKey(key));
    default:
      return TextIn(image->iptcData(), Exiv2::IptcKey(key));
  }
}

/// Keys of any family and what stands there.
using Texts = std::vector<std::pair<const char*, const char*>>;

void ExpectTexts(const std::string& bytes, const Texts& texts) {
  for (const auto& [key, text] : texts) {
    EXPECT_EQ(Text(bytes, key), text) << key;
  }
}

std::string With(const std::string& bytes, const Texts& texts) {
  return With(bytes, [&texts](Exiv2::Image& image) {
    for (const auto& [key, text] : texts) {
      switch (key[0]) {
        case 'E':
          image.exifData()[key] = std::string(text);
          break;
        case 'X':
          image.xmpData()[key] = std::string(text);
          break;
        default:
          image.iptcData()[key] = std::string(text);
      }
    }
  });
}

std::size_t DifferingBytes(const std::string& a, const std::string& b) {
  EXPECT_EQ(a.size(), b.size());
  std::size_t count = 0;
  for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
    count += a[i] == b[i] ? 0U : 1U;
  }
  return count;
}

PhotoTags Tags(int orientation = 0) {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  tags.dateTimeDigitized = "2021:05:01 10:20:31";
  tags.model = "Model Y";
  tags.subSec = "25";
  tags.orientation = orientation;
  return tags;
}

std::string WebP(const char* base64) {
  return QByteArray::fromBase64(base64).toStdString();
}

/// One pixel each.
std::string LossyWebP() {
  return WebP("UklGRiIAAABXRUJQVlA4IBYAAAAwAQCdASoBAAEADsD+JaQAA3AAAAAA");
}
std::string LosslessWebP() {
  return WebP("UklGRhoAAABXRUJQVlA4TA0AAAAvAAAAEAcQERGIiP4HAA==");
}

struct Bare {
  const char* name;
  std::string bytes;
};

std::vector<Bare> PhotosWithoutExif() {
  return {{"JPEG", MakeJpeg(PhotoTags())},
          {"PNG", MakePng(PhotoTags())},
          {"TIFF", MakeTiff(PhotoTags())},
          {"lossy WebP", LossyWebP()},
          {"lossless WebP", LosslessWebP()}};
}

// --- Trying ---

TEST(PhotoEdit, TellsWhatItWouldChangeAndWritesNothing) {
  const TempTree tree;
  for (const std::string& bytes : {MakeJpeg(Tags(8)), MakePng(Tags(8)), MakeTiff(Tags(8))}) {
    const ioPath photo = tree.Write("photo", bytes);
    const EditEffect turned = TryEdit(photo, Turned(Turn::Right));
    EXPECT_EQ(turned.orientationBefore, 8);
    EXPECT_EQ(turned.orientationAfter, 1);
    EXPECT_EQ(turned.takenBefore, turned.takenAfter);
    const EditEffect shifted = TryEdit(photo, ShiftedBy(hours(-2)));
    EXPECT_EQ(shifted.orientationBefore, 8);
    EXPECT_EQ(shifted.orientationAfter, 8);
    EXPECT_EQ(shifted.takenBefore, QDateTime(QDate(2021, 5, 1), QTime(10, 20, 30, 250)));
    EXPECT_EQ(shifted.takenAfter, QDateTime(QDate(2021, 5, 1), QTime(8, 20, 30, 250)));
    EXPECT_EQ(TryEdit(photo, SetTo()).takenAfter, QDateTime(QDate(2003, 2, 1), QTime(4, 5, 6)));
    EXPECT_EQ(ReadFile(photo), bytes);
    std::filesystem::directory_iterator files(tree.Path().native());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
  }
}

TEST(PhotoEdit, TellsDatesThatStandOutsideOfExif) {
  const TempTree tree;
  const ioPath photo =
      tree.Write("photo", With(MakeJpeg(PhotoTags()), Texts{{"Xmp.xmp.CreateDate", "2021-05-01T10:20:31"}}));
  const EditEffect effect = TryEdit(photo, ShiftedBy(hours(1)));
  EXPECT_EQ(effect.takenBefore, QDateTime(QDate(2021, 5, 1), QTime(10, 20, 31)));
  EXPECT_EQ(effect.takenAfter, QDateTime(QDate(2021, 5, 1), QTime(11, 20, 31)));
}

TEST(PhotoEdit, TriesPhotosThatSayNothing) {
  const TempTree tree;
  PhotoTags digitised;
  digitised.dateTimeDigitized = "2021:05:01 10:20:31";
  digitised.orientation = 9;
  const ioPath photo = tree.Write("photo", MakeJpeg(digitised));
  const EditEffect effect = TryEdit(photo, Turned(Turn::Half));
  EXPECT_EQ(effect.orientationBefore, 1);
  EXPECT_EQ(effect.orientationAfter, 3);
  EXPECT_EQ(effect.takenBefore, QDateTime(QDate(2021, 5, 1), QTime(10, 20, 31)));
  EXPECT_FALSE(TryEdit(tree.Write("bare", MakeJpeg(PhotoTags())), Turned(Turn::Left)).takenBefore.isValid());
}

TEST(PhotoEdit, TriesInVainWhatCannotBeEdited) {
  const TempTree tree;
  const struct {
    std::string bytes;
    PhotoEdit edit;
  } rows[] = {{"no picture", Turned(Turn::Half)},
              {"", Turned(Turn::Half)},
              {MakeJpeg(Tags()).substr(0, 30), Turned(Turn::Half)},
              {MakeJpeg(PhotoTags()), ShiftedBy(hours(1))},
              {MakeJpeg(Tags()), PhotoEdit()}};
  for (const auto& row : rows) {
    const std::string refusal = Refusal(row.bytes, row.edit);
    EXPECT_NE(refusal, "");
    const ioPath photo = tree.Write("photo", row.bytes);
    try {
      TryEdit(photo, row.edit);
      ADD_FAILURE() << "not refused: " << refusal;
    } catch (const PhotoEditError& error) {
      EXPECT_EQ(error.what(), "Cannot edit " + photo.utf8string() + ": " + refusal);
    }
  }
}

// --- Turning ---

TEST(PhotoEdit, TurnsPhotosOfAnyOrientation) {
  constexpr int kRight[] = {6, 6, 7, 8, 5, 2, 3, 4, 1, 6};
  for (int orientation = 1; orientation <= 9; ++orientation) {
    for (const std::string& bytes : {MakeJpeg(Tags(orientation)), MakePng(Tags(orientation))}) {
      const std::string edited = Edited(bytes, Turned(Turn::Right));
      EXPECT_EQ(Text(edited, "Exif.Image.Orientation"), std::to_string(kRight[orientation]));
    }
  }
}

TEST(PhotoEdit, ChangesOneByteToTurnAPhoto) {
  const std::string bytes = MakeJpeg(Tags(1));
  EXPECT_EQ(DifferingBytes(bytes, Edited(bytes, Turned(Turn::Left))), 1U);
  const std::string tiff = MakeTiff(Tags(3));
  EXPECT_EQ(DifferingBytes(tiff, Edited(tiff, Turned(Turn::Half))), 1U);
}

TEST(PhotoEdit, GivesPhotosWithoutExifAnOrientation) {
  for (const Bare& bare : PhotosWithoutExif()) {
    const std::string edited = Edited(bare.bytes, Turned(Turn::Half));
    EXPECT_EQ(Text(edited, "Exif.Image.Orientation"), "3") << bare.name;
    EXPECT_EQ(Text(Edited(edited, Turned(Turn::Right)), "Exif.Image.Orientation"), "8") << bare.name;
    EXPECT_EQ(Read(edited)->pixelWidth(), Read(bare.bytes)->pixelWidth()) << bare.name;
  }
}

TEST(PhotoEdit, PutsANewBlockBehindTheResolutionOfAJpeg) {
  const std::string bytes = MakeJpeg(PhotoTags());
  const std::string edited = Edited(bytes, Turned(Turn::Half));
  constexpr std::size_t kBehindResolution = 2 + 18;
  EXPECT_EQ(edited.substr(0, kBehindResolution), bytes.substr(0, kBehindResolution));
  EXPECT_EQ(edited.substr(kBehindResolution, 2), "\xFF\xE1");
  EXPECT_EQ(edited.substr(edited.size() - bytes.size() + kBehindResolution), bytes.substr(kBehindResolution));
}

TEST(PhotoEdit, ExtendsBareWebPFilesAndKeepsTheirTransparency) {
  for (const auto& [bytes, alpha] : {std::pair(LossyWebP(), '\0'), std::pair(LosslessWebP(), '\x10')}) {
    const std::string edited = Edited(bytes, Turned(Turn::Right));
    EXPECT_EQ(edited.substr(12, 4), "VP8X");
    EXPECT_EQ(edited[20], static_cast<char>(0x08 | alpha));
    EXPECT_EQ(edited.substr(24, 6), std::string(6, '\0')) << "one pixel";
    EXPECT_NE(edited.find(bytes.substr(12)), std::string::npos);
    const std::string again = Edited(edited, SetTo());
    EXPECT_EQ(Text(again, "Exif.Photo.DateTimeOriginal"), "2003:02:01 04:05:06");
    EXPECT_EQ(Text(again, "Exif.Image.Orientation"), "6");
  }
}

TEST(PhotoEdit, KeepsWhatFollowsThePicture) {
  for (const Bare& bare : PhotosWithoutExif()) {
    const std::string tail = "a film that a phone put here";
    const std::string edited = Edited(bare.bytes + tail, Turned(Turn::Half));
    if (std::string(bare.name) != "TIFF") {
      EXPECT_EQ(edited.substr(edited.size() - tail.size()), tail) << bare.name;
    }
    EXPECT_NE(edited.find(tail), std::string::npos) << bare.name;
  }
}

TEST(PhotoEdit, AddsAnOrientationAndMovesNothingElse) {
  const std::string bytes = MakeTiff(Tags());
  const std::string edited = Edited(bytes, Turned(Turn::Half));
  EXPECT_EQ(Text(edited, "Exif.Image.Orientation"), "3");
  ASSERT_GT(edited.size(), bytes.size());
  // But for the place of the first directory.
  EXPECT_EQ(edited.substr(8, bytes.size() - 8), bytes.substr(8));
}

std::string WithThumbnail(int own, int thumbnail) {
  return With(MakeJpeg(Tags(own)), [thumbnail](Exiv2::Image& image) {
    const std::string small = MakeJpeg(PhotoTags());
    Exiv2::ExifThumb(image.exifData())
        .setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(small.data()),
                          static_cast<long>(small.size()));
    if (thumbnail != 0) {
      image.exifData()["Exif.Thumbnail.Orientation"] = static_cast<std::uint16_t>(thumbnail);
    }
  });
}

TEST(PhotoEdit, TurnsTheThumbnailAlong) {
  const std::string same = Edited(WithThumbnail(6, 6), Turned(Turn::Right));
  EXPECT_EQ(Text(same, "Exif.Image.Orientation"), "3");
  EXPECT_EQ(Text(same, "Exif.Thumbnail.Orientation"), "3");
  EXPECT_EQ(Text(Edited(WithThumbnail(6, 1), Turned(Turn::Right)), "Exif.Thumbnail.Orientation"), "6");
  EXPECT_EQ(Text(Edited(WithThumbnail(6, 0), Turned(Turn::Right)), "Exif.Thumbnail.Orientation"), "none");
}

TEST(PhotoEdit, LeavesTheSecondPageOfATiff) {
  constexpr unsigned kShort = 3;
  TiffBytes tiff(TiffBytes::Order::BigEndian);
  const unsigned second = tiff.AddDirectory({{0x0112, kShort, 1, 8U << 16U}});
  const unsigned first = tiff.AddDirectory({{0x0112, kShort, 1, 6U << 16U}});
  std::string bytes = tiff.Finish(first);
  bytes.replace(first + 2 + 12, 4, tiff.Number(second, 4));
  const std::string edited = Edited(bytes, Turned(Turn::Half));
  EXPECT_EQ(Text(edited, "Exif.Image.Orientation"), "8");
  EXPECT_EQ(DifferingBytes(bytes, edited), 1U);
}

/// Two directories of a TIFF file, both turned; the second one says more of itself.
std::string TwoDirectories(std::vector<TiffBytes::Entry> ofSecond) {
  constexpr unsigned kShort = 3;
  constexpr unsigned kLong = 4;
  TiffBytes tiff(TiffBytes::Order::LittleEndian);
  ofSecond.push_back({0x0112, kShort, 1, 8});
  std::sort(ofSecond.begin(), ofSecond.end(), [](const auto& a, const auto& b) { return a.tag < b.tag; });
  const unsigned second = tiff.AddDirectory(ofSecond);
  const unsigned first =
      tiff.AddDirectory({{0x0100, kLong, 1, 640}, {0x0101, kLong, 1, 480}, {0x0112, kShort, 1, 6}});
  std::string bytes = tiff.Finish(first);
  return bytes.replace(first + 2 + 3 * 12, 4, tiff.Number(second, 4));
}

TEST(PhotoEdit, TellsAPageOfATiffFromAThumbnail) {
  constexpr unsigned kShort = 3;
  constexpr unsigned kLong = 4;
  const TiffBytes::Entry wide = {0x0100, kLong, 1, 640};
  const TiffBytes::Entry high = {0x0101, kLong, 1, 480};
  const TiffBytes::Entry reduced = {0x00FE, kLong, 1, 1};
  const TiffBytes::Entry coded = {0x0201, kLong, 1, 8};
  const struct {
    std::vector<TiffBytes::Entry> entries;
    const char* orientation;
  } rows[] = {// As large as the first page, coded as JPEG in the old way, or called reduced all the same.
              {{wide, high, coded}, "8"},
              {{reduced, wide, high}, "8"},
              {{{0x00FE, kLong, 1, 3}}, "8"},
              {{reduced, {0x0129, kShort, 2, 1}}, "8"},
              {{reduced, {0x0100, kLong, 1, 160}, {0x0101, kLong, 1, 120}}, "1"},
              {{coded}, "1"}};
  for (const auto& row : rows) {
    const std::string edited = Edited(TwoDirectories(row.entries), Turned(Turn::Right));
    EXPECT_EQ(Text(edited, "Exif.Image.Orientation"), "3");
    EXPECT_EQ(Text(edited, "Exif.Thumbnail.Orientation"), row.orientation) << &row - rows;
  }
}

TEST(PhotoEdit, KeepsTheOrientationInXmpEqual) {
  const std::string bytes = With(MakeJpeg(Tags(6)), Texts{{"Xmp.tiff.Orientation", "1"}});
  const std::string edited = Edited(bytes, Turned(Turn::Right));
  EXPECT_EQ(Text(edited, "Xmp.tiff.Orientation"), "3");
  EXPECT_EQ(DifferingBytes(bytes, edited), 2U);
}

TEST(PhotoEdit, TurnsAndShiftsAtOnce) {
  PhotoEdit edit = ShiftedBy(hours(1));
  edit.turn = Turn::Right;
  const std::string edited = Edited(MakeJpeg(Tags(1)), edit);
  EXPECT_EQ(Text(edited, "Exif.Image.Orientation"), "6");
  EXPECT_EQ(Text(edited, "Exif.Photo.DateTimeOriginal"), "2021:05:01 11:20:30");
}

/// An EXIF block with a maker's note of an unknown maker, at the very end of it.
std::string JpegWithMakersNote(const std::string& note) {
  TiffBytes tiff(TiffBytes::Order::LittleEndian);
  const unsigned noteAt = tiff.Add(note);
  constexpr unsigned kUndefined = 7;
  const unsigned exif = tiff.AddDirectory(
      {tiff.Text(0x9003, "2021:05:01 10:20:30"), {0x927C, kUndefined, unsigned(note.size()), noteAt}});
  const std::string block =
      std::string("Exif\0\0", 6) + tiff.Finish(tiff.AddDirectory({{0x8769, 4, 1, exif}}));
  const std::size_t length = block.size() + 2;
  const std::string plain = MakeJpeg(PhotoTags());
  return plain.substr(0, 2) + "\xFF\xE1" + static_cast<char>(length >> 8U) + static_cast<char>(length) +
         block + plain.substr(2);
}

TEST(PhotoEdit, MovesNoMakersNote) {
  const std::string note = "Nobody knows what this means, nor where it points to";
  const std::string bytes = JpegWithMakersNote(note);
  for (const PhotoEdit& edit : {Turned(Turn::Right), ShiftedBy(hours(1)), SetTo(), SetTo(123)}) {
    const std::string edited = Edited(bytes, edit);
    EXPECT_EQ(edited.find(note), bytes.find(note));
    EXPECT_EQ(edited.substr(edited.size() - 100), bytes.substr(bytes.size() - 100));
  }
}

TEST(PhotoEdit, TellsThatAnExifBlockIsFull) {
  const std::string bytes = JpegWithMakersNote(std::string(65'440, 'n'));
  EXPECT_EQ(Refusal(bytes, Turned(Turn::Right)), "there is no room left in its EXIF block");
  EXPECT_EQ(Text(Edited(bytes, ShiftedBy(seconds(1))), "Exif.Photo.DateTimeOriginal"), "2021:05:01 10:20:31");
}

// --- Dates ---

std::string WithAllDates() {
  return With(MakeJpeg(Tags()), Texts{{"Exif.Image.DateTime", "2021:12:31 23:30:00"},
                                      {"Exif.Photo.OffsetTimeOriginal", "+02:00"},
                                      {"Exif.GPSInfo.GPSDateStamp", "2021:05:01"},
                                      {"Exif.GPSInfo.GPSTimeStamp", "8/1 20/1 30/1"},
                                      {"Xmp.exif.DateTimeOriginal", "2021-05-01T10:20:30.25"},
                                      {"Xmp.photoshop.DateCreated", "2021-05-01"},
                                      {"Xmp.exif.DateTimeDigitized", "2021-05-01T08:20:31Z"},
                                      {"Xmp.xmp.CreateDate", "2021-05-01T10:20:31+02:00"},
                                      {"Xmp.xmp.ModifyDate", "2021-12-31T23:30:00"},
                                      {"Xmp.xmp.MetadataDate", "2022-01-01T00:00:00"},
                                      {"Xmp.dc.source", "2021-05-01T10:20:31"},
                                      {"Iptc.Application2.DateCreated", "2021-05-01"},
                                      {"Iptc.Application2.TimeCreated", "10:20:30+02:00"},
                                      {"Iptc.Application2.ReleaseDate", "2021-05-01"}});
}

TEST(PhotoEdit, ShiftsTheDatesAndAllTheirCopies) {
  const std::string bytes = WithAllDates();
  const std::string edited = Edited(bytes, ShiftedBy(hours(14)));
  ExpectTexts(edited, {{"Exif.Photo.DateTimeOriginal", "2021:05:02 00:20:30"},
                       {"Exif.Photo.DateTimeDigitized", "2021:05:02 00:20:31"},
                       {"Exif.Image.DateTime", "2022:01:01 13:30:00"},
                       {"Xmp.exif.DateTimeOriginal", "2021-05-02T00:20:30.25"},
                       {"Xmp.photoshop.DateCreated", "2021-05-02"},
                       {"Xmp.exif.DateTimeDigitized", "2021-05-01T22:20:31Z"},
                       {"Xmp.xmp.CreateDate", "2021-05-02T00:20:31+02:00"},
                       {"Xmp.xmp.ModifyDate", "2022-01-01T13:30:00"},
                       {"Iptc.Application2.DateCreated", "2021-05-02"},
                       {"Iptc.Application2.TimeCreated", "00:20:30+02:00"}});
  EXPECT_EQ(edited.size(), bytes.size());
}

TEST(PhotoEdit, LeavesWhatIsNoCopyOfTheDates) {
  ExpectTexts(Edited(WithAllDates(), ShiftedBy(hours(14))),
              {{"Exif.Photo.SubSecTimeOriginal", "25"},
               {"Exif.Photo.OffsetTimeOriginal", "+02:00"},
               {"Exif.GPSInfo.GPSDateStamp", "2021:05:01"},
               {"Exif.GPSInfo.GPSTimeStamp", "8/1 20/1 30/1"},
               {"Exif.Image.Model", "Model Y"},
               {"Xmp.xmp.MetadataDate", "2022-01-01T00:00:00"},
               {"Xmp.dc.source", "2021-05-01T10:20:31"},
               {"Iptc.Application2.ReleaseDate", "2021-05-01"}});
}

TEST(PhotoEdit, ShiftsThereAndBackToTheVeryBytes) {
  for (const std::string& bytes :
       {WithAllDates(), MakeTiff(Tags()), Edited(MakePng(PhotoTags()), SetTo(5))}) {
    const seconds shift(-123'456'789);
    EXPECT_EQ(Edited(Edited(bytes, ShiftedBy(shift)), ShiftedBy(-shift)), bytes);
  }
}

TEST(PhotoEdit, SetsTheDatesAndAllTheirCopies) {
  ExpectTexts(Edited(WithAllDates(), SetTo()), {{"Exif.Photo.DateTimeOriginal", "2003:02:01 04:05:06"},
                                                {"Exif.Photo.DateTimeDigitized", "2003:02:01 04:05:06"},
                                                {"Exif.Image.DateTime", "2003:02:01 04:05:06"},
                                                {"Xmp.exif.DateTimeOriginal", "2003-02-01T04:05:06.00"},
                                                {"Xmp.photoshop.DateCreated", "2003-02-01"},
                                                // In UTC as before.
                                                {"Xmp.exif.DateTimeDigitized", "2003-02-01T02:05:06Z"},
                                                {"Xmp.xmp.CreateDate", "2003-02-01T04:05:06+02:00"},
                                                {"Xmp.xmp.ModifyDate", "2003-02-01T04:05:06"},
                                                {"Iptc.Application2.DateCreated", "2003-02-01"},
                                                {"Iptc.Application2.TimeCreated", "04:05:06+02:00"},
                                                // Those of the old date.
                                                {"Exif.Photo.SubSecTimeOriginal", "none"},
                                                {"Exif.Photo.SubSecTimeDigitized", "none"},
                                                {"Exif.Photo.OffsetTimeOriginal", "+02:00"},
                                                {"Exif.GPSInfo.GPSDateStamp", "2021:05:01"}});
}

TEST(PhotoEdit, SetsMilliseconds) {
  ExpectTexts(Edited(WithAllDates(), SetTo(78)), {{"Exif.Photo.SubSecTimeOriginal", "078"},
                                                  {"Exif.Photo.SubSecTimeDigitized", "078"},
                                                  {"Exif.Photo.SubSecTime", "078"},
                                                  {"Xmp.exif.DateTimeOriginal", "2003-02-01T04:05:06.07"}});
}

TEST(PhotoEdit, SetsTheDateOfPhotosThatHadNone) {
  for (const Bare& bare : PhotosWithoutExif()) {
    const TempTree tree;
    const ioPath staging = tree.Path("staging");
    WriteEdited(tree.Write("photo", bare.bytes), staging, SetTo(123));
    const PhotoFacts facts = ReadPhotoFacts(staging);
    EXPECT_EQ(facts.original, SetTo(123).date) << bare.name;
    EXPECT_EQ(facts.digitised, SetTo(123).date) << bare.name;
    EXPECT_EQ(Text(ReadFile(staging), "Exif.Image.DateTime"), "2003:02:01 04:05:06") << bare.name;
  }
}

TEST(PhotoEdit, SetsWhatIsSeenOnTheClockWhateverTheZone) {
  PhotoEdit edit = SetTo();
  edit.date.setOffsetFromUtc(5 * 3600);
  EXPECT_EQ(Text(Edited(MakeJpeg(Tags()), edit), "Exif.Photo.DateTimeOriginal"), "2003:02:01 04:05:06");
}

TEST(PhotoEdit, SetsADateWhereThereWasNonsense) {
  for (const char* text : {"    :  :     :  :  ", "0000:00:00 00:00:00", "x", "2021:05:01 10:20"}) {
    PhotoTags tags = Tags();
    tags.dateTimeOriginal = text;
    EXPECT_EQ(Text(Edited(MakeJpeg(tags), SetTo()), "Exif.Photo.DateTimeOriginal"), "2003:02:01 04:05:06")
        << text;
  }
}

TEST(PhotoEdit, ShiftsOnlyRealDates) {
  PhotoTags tags = Tags();
  tags.dateTimeOriginal = "0000:00:00 00:00:00";
  const std::string edited = Edited(MakeJpeg(tags), ShiftedBy(hours(-1)));
  EXPECT_EQ(Text(edited, "Exif.Photo.DateTimeOriginal"), "0000:00:00 00:00:00");
  EXPECT_EQ(Text(edited, "Exif.Photo.DateTimeDigitized"), "2021:05:01 09:20:31");
}

TEST(PhotoEdit, ShiftsDatesInUnusualForms) {
  struct Row {
    const char *before, *after;
  };
  for (const Row& row :
       {Row{"2021-05-01T10:20:30", "2021-05-01T10:20:31"}, Row{"2021/05/01 10:20:30", "2021/05/01 10:20:31"},
        Row{"2021:05:01 10:20:30.12+02:00", "2021:05:01 10:20:31.12+02:00"},
        Row{"2021:05:01 10:20", "2021:05:01 10:20:01"}}) {
    PhotoTags tags = Tags();
    tags.dateTimeOriginal = row.before;
    EXPECT_EQ(Text(Edited(MakeJpeg(tags), ShiftedBy(seconds(1))), "Exif.Photo.DateTimeOriginal"), row.after);
  }
}

TEST(PhotoEdit, ShiftsWhatIsInXmpOrIptcAlone) {
  const std::string xmp = With(MakeJpeg(PhotoTags()), Texts{{"Xmp.xmp.CreateDate", "2021-05-01T10:20:31"}});
  EXPECT_EQ(Text(Edited(xmp, ShiftedBy(hours(1))), "Xmp.xmp.CreateDate"), "2021-05-01T11:20:31");
  const std::string iptc =
      With(MakeJpeg(PhotoTags()), Texts{{"Iptc.Application2.DateCreated", "2021-05-01"},
                                        {"Iptc.Application2.TimeCreated", "23:20:30+00:00"}});
  EXPECT_EQ(Text(Edited(iptc, ShiftedBy(hours(1))), "Iptc.Application2.DateCreated"), "2021-05-02");
}

TEST(PhotoEdit, ChangesIptcTimesWithoutAZone) {
  std::string bytes = WithAllDates();
  const std::string whole(
      "\x1C\x02\x3C\0\x0B"
      "102030+0200",
      16);
  const std::size_t at = bytes.find(whole);
  ASSERT_NE(at, std::string::npos);
  // The rest becomes a data set of its own, so that all lengths stay right.
  bytes.replace(at, whole.size(),
                std::string("\x1C\x02\x3C\0\x06"
                            "102030"
                            "\x1C\x02\x01\0\0",
                            16));
  const std::string edited = Edited(bytes, ShiftedBy(hours(1)));
  EXPECT_NE(edited.find(std::string("\x1C\x02\x3C\0\x06"
                                    "112030",
                                    11)),
            std::string::npos);
}

TEST(PhotoEdit, ChangesTheTextsInsideOfATiff) {
  const std::string bytes =
      With(MakeTiff(Tags(1)), Texts{{"Xmp.xmp.CreateDate", "2021-05-01T10:20:31"},
                                    {"Iptc.Application2.DateCreated", "2021-05-01"},
                                    {"Iptc.Application2.TimeCreated", "10:20:30+00:00"}});
  const std::string edited = Edited(bytes, ShiftedBy(hours(24)));
  ExpectTexts(edited, {{"Exif.Photo.DateTimeOriginal", "2021:05:02 10:20:30"},
                       {"Xmp.xmp.CreateDate", "2021-05-02T10:20:31"},
                       {"Iptc.Application2.DateCreated", "2021-05-02"}});
  EXPECT_EQ(DifferingBytes(bytes, edited), 4U);
}

TEST(PhotoEdit, KeepsTheChecksumsOfPngRight) {
  const std::string plain = With(MakePng(PhotoTags()), Texts{{"Xmp.xmp.CreateDate", "2021-05-01T10:20:31"}});
  const std::string bytes = Edited(plain, SetTo(5));
  const std::string edited = Edited(bytes, ShiftedBy(hours(1)));
  EXPECT_EQ(Text(edited, "Xmp.xmp.CreateDate"), "2003-02-01T05:05:06");
  // Two edits lead to the same bytes only when the checksums follow.
  EXPECT_EQ(Edited(edited, ShiftedBy(hours(-1))), bytes);
  EXPECT_GT(DifferingBytes(bytes, edited), 3U) << "checksums as well";
}

TEST(PhotoEdit, SaysThatThereIsNoDateToShift) {
  PhotoTags nonsense;
  nonsense.dateTimeOriginal = "0000:00:00 00:00:00";
  for (const std::string& bytes : {MakeJpeg(PhotoTags()), MakePng(PhotoTags()), MakeTiff(PhotoTags()),
                                   LossyWebP(), MakeJpeg(nonsense)}) {
    EXPECT_EQ(Refusal(bytes, ShiftedBy(hours(1))), "it has no date to shift");
  }
}

TEST(PhotoEdit, SaysThatAPhotoIsDamagedRatherThanUndated) {
  std::string noDirectory = MakeJpeg(Tags());
  noDirectory.replace(noDirectory.find("Exif") + 6 + 8, 2, "\xFF\xFF");
  EXPECT_EQ(Refusal(noDirectory, ShiftedBy(hours(1))), "its TIFF directory is damaged");
  std::string strayBytes = MakeJpeg(PhotoTags());
  strayBytes.insert(2 + 18, "stray");
  EXPECT_EQ(Refusal(strayBytes, ShiftedBy(hours(1))), "its JPEG data is damaged");
  EXPECT_EQ(Refusal(MakeJpeg(PhotoTags()), ShiftedBy(hours(1))), "it has no date to shift");
}

TEST(PhotoEdit, NeverLeavesTheYearsOfEXIF) {
  PhotoTags last;
  last.dateTimeOriginal = "9999:12:31 23:59:59";
  const char* const cause = "its year would not be 1 to 9999";
  EXPECT_EQ(Refusal(MakeJpeg(last), ShiftedBy(seconds(1))), cause);
  EXPECT_EQ(Refusal(MakeJpeg(Tags()), ShiftedBy(hours(24 * 366 * 3000))), "");
  EXPECT_EQ(Refusal(MakeJpeg(Tags()), ShiftedBy(-hours(24 * 366 * 3000))), cause);
  EXPECT_EQ(Refusal(MakeJpeg(Tags()), ShiftedBy(seconds::max())), cause);
  EXPECT_EQ(Refusal(MakeJpeg(Tags()), ShiftedBy(seconds::min())), cause);
  for (const int year : {-1, 10'000}) {
    PhotoEdit edit;
    edit.date = QDateTime(QDate(year, 1, 1), QTime(0, 0));
    EXPECT_EQ(Refusal(MakeJpeg(Tags()), edit), "the year must be 1 to 9999") << year;
  }
}

// --- What is refused ---

TEST(PhotoEdit, RefusesEditsThatMakeNoSense) {
  EXPECT_EQ(Refusal(MakeJpeg(Tags()), PhotoEdit()), "there is nothing to change");
  PhotoEdit both = SetTo();
  both.shift = seconds(1);
  EXPECT_EQ(Refusal(MakeJpeg(Tags()), both), "its date cannot be set and shifted at once");
}

struct Format {
  std::string start;
  const char* cause;  ///< Empty: it can be edited.
};

class Formats : public testing::TestWithParam<Format> {};

TEST_P(Formats, AreToldByTheirContent) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo.jpg", GetParam().start + std::string(20, '\0'));
  EXPECT_EQ(WhyNotEditable(photo), GetParam().cause);
}

constexpr const char* kUnknown = "its format cannot be edited";

INSTANTIATE_TEST_SUITE_P(
    Table, Formats,
    testing::Values(Format{"\xFF\xD8\xFF", ""}, Format{"\x89PNG\r\n\x1A\n", ""}, Format{"RIFF....WEBP", ""},
                    Format{std::string("II*\0", 4), ""}, Format{std::string("MM\0*", 4), ""},
                    Format{"IIRO", ""}, Format{"IIRS", ""}, Format{"MMOR", ""},
                    Format{"....ftypheic", "photos of the format HEIC cannot be edited"},
                    Format{"....ftypavif", "photos of the format AVIF cannot be edited"},
                    Format{"....ftypcrx ", "photos of the format CR3 cannot be edited"},
                    Format{std::string("\0\0\0\x0CJXL ", 8), "photos of the format JPEG XL cannot be edited"},
                    Format{"\xFF\x0A", "photos of the format JPEG XL cannot be edited"},
                    Format{"FUJIFILMCCD-RAW", "photos of the format RAF cannot be edited"},
                    Format{std::string("IIU\0", 4), "photos of the format RW2 cannot be edited"},
                    Format{"FOVb", "photos of the format X3F cannot be edited"},
                    Format{std::string("II+\0", 4), "photos of the format BigTIFF cannot be edited"},
                    Format{std::string("MM\0+", 4), "photos of the format BigTIFF cannot be edited"},
                    Format{"GIF89a", "photos of the format GIF cannot be edited"},
                    Format{"BM", "photos of the format BMP cannot be edited"},
                    Format{"8BPS", "photos of the format PSD cannot be edited"},
                    Format{"RIFF....WAVE", kUnknown}, Format{"Dear diary", kUnknown}, Format{"", kUnknown}));

TEST(PhotoEdit, RefusesWhatIsNoPicture) {
  EXPECT_EQ(Refusal("", Turned(Turn::Half)), "it is empty");
  EXPECT_EQ(Refusal("Dear diary", Turned(Turn::Half)), kUnknown);
  EXPECT_EQ(Refusal("....ftypheic........", Turned(Turn::Half)),
            "photos of the format HEIC cannot be edited");
}

TEST(PhotoEdit, RefusesWhatIsNoFile) {
  const TempTree tree;
  const ioPath staging = tree.Path("staging");
  std::vector<ioPath> photos = {tree.Path("missing"), tree.MakeFolder("folder"), ioPath()};
#ifndef _WIN32
  ASSERT_EQ(mkfifo(tree.Path("pipe").native().c_str(), 0600), 0);
  photos.push_back(tree.Path("pipe"));
#endif
  for (const ioPath& photo : photos) {
    EXPECT_THROW(WriteEdited(photo, staging, Turned(Turn::Half)), PhotoEditError) << photo;
    EXPECT_NE(WhyNotEditable(photo), "") << photo;
    EXPECT_FALSE(staging.exists());
  }
}

TEST(PhotoEdit, RefusesWhatIsLargerThanTwoGiB) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", MakeJpeg(Tags(1)));
  // A hole: it takes no room on the disk.
  std::filesystem::resize_file(photo.native(), std::uintmax_t{1} << 31U);
  try {
    WriteEdited(photo, tree.Path("staging"), Turned(Turn::Half));
    ADD_FAILURE() << "it was edited";
  } catch (const PhotoEditError& error) {
    EXPECT_NE(std::string(error.what()).find("it is larger than 2 GiB"), std::string::npos);
  }
}

/// A chunk of text before the header of the picture's data; its checksum is not looked at.
std::string PngWithText(const char* type, const std::string& text) {
  const std::string png = MakePng(PhotoTags());
  constexpr std::size_t kBehindHeader = 8 + 25;
  return png.substr(0, kBehindHeader) + std::string(3, '\0') + static_cast<char>(text.size()) + type + text +
         "1234" + png.substr(kBehindHeader);
}

std::string RawProfile(const std::string& block) {
  return std::string("Raw profile type exif\0\nexif\n", 28) + std::to_string(block.size()) + '\n' +
         QByteArray::fromStdString(block).toHex().toStdString() + '\n';
}

TEST(PhotoEdit, ChangesExifThatPngKeepsAsTextInItsForm) {
  const std::string block = std::string("Exif\0\0", 6) + SmallTiff(TiffBytes::Order::BigEndian);
  const std::string bytes = PngWithText("tEXt", RawProfile(block));
  const std::string edited = Edited(bytes, ShiftedBy(hours(1)));
  EXPECT_NE(edited.find("tEXtRaw profile type exif"), std::string::npos);
  EXPECT_EQ(edited.find("eXIf"), std::string::npos);
  EXPECT_EQ(Text(edited, "Exif.Photo.DateTimeOriginal"), "2019:07:14 12:22:33");
}

TEST(PhotoEdit, RefusesExifThatPngKeepsAsDamagedText) {
  const std::string keyword("Raw profile type exif\0", 22);
  for (const std::string& rest : {std::string(), std::string("x"), std::string("\nexif\n"),
                                  std::string("\nexif\n99\n4949\n"), std::string("\nexif\n2\n4949\n")}) {
    EXPECT_NE(Refusal(PngWithText("tEXt", keyword + rest), Turned(Turn::Half)), "") << rest;
    EXPECT_NE(Refusal(PngWithText("zTXt", keyword + rest), Turned(Turn::Half)), "") << rest;
  }
  // Without the mark in front nobody reads it.
  const std::string bare = RawProfile(SmallTiff(TiffBytes::Order::BigEndian));
  EXPECT_NE(Refusal(PngWithText("tEXt", bare), Turned(Turn::Half)), "");
}

TEST(PhotoEdit, RefusesXmpThatHasNoRoomForTheChange) {
  const std::string bytes = With(MakeJpeg(PhotoTags()), Texts{{"Xmp.xmp.CreateDate", "2021-05-01T10:20"}});
  EXPECT_EQ(Refusal(bytes, ShiftedBy(seconds(1))), "its xmp:CreateDate cannot be changed in its XMP data");
  EXPECT_EQ(Text(Edited(bytes, ShiftedBy(hours(1))), "Xmp.xmp.CreateDate"), "2021-05-01T11:20");
}

// --- Damage ---

std::vector<std::string> SmallPhotos() {
  const std::string webp = Edited(LossyWebP(), SetTo(5));
  return {WithAllDates(), WithThumbnail(6, 6), MakePng(Tags(6)), MakeTiff(Tags(6)), webp};
}

bool IsEditedOrRefused(const TempTree& tree, const std::string& bytes, const PhotoEdit& edit) {
  const ioPath photo = tree.Path("photo");
  const ioPath staging = tree.Path("staging");
  photo.remove();
  staging.remove();
  tree.Write("photo", bytes);
  try {
    WriteEdited(photo, staging, edit);
  } catch (const PhotoEditError&) {
    EXPECT_FALSE(staging.exists());
    return false;
  }
  const std::string edited = ReadFile(staging);
  const std::size_t scan = bytes.rfind("\xFF\xDA");
  if (bytes.compare(0, 2, "\xFF\xD8") == 0 && scan != std::string::npos) {
    EXPECT_EQ(edited.substr(edited.rfind("\xFF\xDA")), bytes.substr(scan));
  }
  EXPECT_EQ(ReadFile(photo), bytes);
  return true;
}

TEST(PhotoEdit, SurvivesFilesCutShortAnywhere) {
  const TempTree tree;
  for (const std::string& bytes : SmallPhotos()) {
    for (std::size_t length = 0; length < bytes.size(); length += length < 400 ? 1 : 13) {
      IsEditedOrRefused(tree, bytes.substr(0, length), Turned(Turn::Right));
    }
    EXPECT_TRUE(IsEditedOrRefused(tree, bytes, Turned(Turn::Right)));
  }
}

TEST(PhotoEdit, SurvivesAnyBytesBeingWrong) {
  const TempTree tree;
  std::mt19937 random(17);  // The same files every time
  int edited = 0;
  int refused = 0;
  for (const std::string& bytes : SmallPhotos()) {
    for (unsigned round = 0; round < 150; ++round) {
      std::string broken = bytes;
      for (unsigned change = 0; change <= round % 6U; ++change) {
        broken[random() % std::min<std::size_t>(broken.size(), 400)] =
            random() % 2 == 0 ? '\xFF' : static_cast<char>(random());
      }
      PhotoEdit edit = round % 2 == 0 ? SetTo(5) : ShiftedBy(hours(1));
      edit.turn = Turn::Right;
      ++(IsEditedOrRefused(tree, broken, edit) ? edited : refused);
    }
  }
  EXPECT_GT(edited, 0);
  EXPECT_GT(refused, 0);
}

TEST(PhotoEdit, RefusesDirectoriesThatMakeNoSense) {
  constexpr unsigned kLong = 4;
  TiffBytes outside(TiffBytes::Order::LittleEndian);
  TiffBytes loop(TiffBytes::Order::LittleEndian);
  const unsigned self = loop.AddDirectory({{0x8769, kLong, 1, 8}, {0x0112, 3, 1, 1}});
  TiffBytes many(TiffBytes::Order::LittleEndian);
  // Pictures upon pictures: each entry would have the whole file compared.
  std::string places;
  std::string sizes;
  for (int i = 0; i < 20'000; ++i) {
    places += many.Number(8, 4);
    sizes += many.Number(150'000, 4);
  }
  const unsigned placesAt = many.Add(places);
  const unsigned sizesAt = many.Add(sizes);
  const unsigned first = many.AddDirectory(
      {{0x0111, kLong, 20'000, placesAt}, {0x0112, 3, 1, 1}, {0x0117, kLong, 20'000, sizesAt}});
  for (const std::string& bytes : {outside.Finish(0), outside.Finish(4), outside.Finish(1000),
                                   outside.Finish(0xFFFFFFFF), many.Finish(first)}) {
    EXPECT_NE(Refusal(bytes, Turned(Turn::Right)), "");
  }
  // Its EXIF directory is itself: whatever becomes of it, nothing hangs.
  Refusal(loop.Finish(self), SetTo());
}

// --- The staging file ---

TEST(PhotoEdit, NeverOverwrites) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", MakeJpeg(Tags(1)));
  const ioPath staging = tree.Write("staging", "precious");
  for (const ioPath& taken : {staging, photo, tree.MakeFolder("folder")}) {
    EXPECT_THROW(WriteEdited(photo, taken, Turned(Turn::Half)), PhotoEditError);
  }
  EXPECT_EQ(ReadFile(staging), "precious");
  EXPECT_EQ(ReadFile(photo), MakeJpeg(Tags(1)));
  EXPECT_THROW(WriteEdited(photo, tree.Path("missing/staging"), Turned(Turn::Half)), PhotoEditError);
}

TEST(PhotoEdit, KeepsTheTimeOfChange) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", MakeJpeg(Tags(1)));
  std::filesystem::last_write_time(photo.native(),
                                   std::filesystem::last_write_time(photo.native()) -
                                       std::chrono::duration_cast<std::filesystem::file_time_type::duration>(
                                           std::chrono::nanoseconds(98'765'432'198'700)));
  WriteEdited(photo, tree.Path("staging"), Turned(Turn::Half));
  EXPECT_EQ(QueryFile(tree.Path("staging")).modifiedNs, QueryFile(photo).modifiedNs);
}

#ifndef _WIN32

TEST(PhotoEdit, KeepsThePermissions) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", MakeJpeg(Tags(1)));
  for (const mode_t mode : {mode_t{0400}, mode_t{0664}}) {
    ASSERT_EQ(chmod(photo.native().c_str(), mode), 0);
    const ioPath staging = tree.Path("staging");
    staging.remove();
    WriteEdited(photo, staging, Turned(Turn::Half));
    struct stat facts = {};
    ASSERT_EQ(stat(staging.native().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, mode);
  }
}

TEST(PhotoEdit, LeavesNothingOnAFullDisk) {
  const TempTree tree;
  const ioPath photo = tree.Write("photo", MakeJpeg(Tags(1)));
  const ioPath staging = tree.Path("staging");
  for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{photo.file_size() - 1}}) {
    const WriteLimit limit(room);
    EXPECT_THROW(WriteEdited(photo, staging, Turned(Turn::Half)), PhotoEditError) << room;
    EXPECT_FALSE(staging.exists());
  }
  WriteEdited(photo, staging, Turned(Turn::Half));
  EXPECT_TRUE(staging.exists());
}

TEST(PhotoEdit, TakesNamesThatAreNoText) {
  const TempTree tree;
  const ioPath photo = tree.Write("a\xFF\n.jpg", MakeJpeg(Tags(1)));
  WriteEdited(photo, tree.Path("b\xFE.jpg"), Turned(Turn::Half));
  EXPECT_EQ(Text(ReadFile(tree.Path("b\xFE.jpg")), "Exif.Image.Orientation"), "3");
}

#endif

}  // namespace
}  // namespace Zenvora::Strandel
