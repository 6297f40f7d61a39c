#include "TiffBytes.h"

#include <support/LogCapture.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::Closed;
using Test::IsSuperuser;
using Test::LogCapture;
using Test::MakeJpeg;
using Test::MakePng;
using Test::MakeTiff;
using Test::PhotoTags;
using Test::Pipe;
using Test::ReadFile;
using Test::TempTree;
using Test::WriteJpeg;
using Test::WritePng;
using Status = PhotoFacts::Status;

PhotoTags FullTags() {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  tags.dateTimeDigitized = "2021:05:02 11:21:31";
  tags.subSec = "125";
  tags.model = "Model X";
  tags.orientation = 6;
  return tags;
}

std::string Text(const QDateTime& date) {
  return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toStdString();
}

/// A new file each time: to write over one takes disks much longer.
ioPath WriteAnew(const TempTree& tree, const std::string& bytes) {
  tree.Path("a").remove();
  return tree.Write("a", bytes);
}

struct Format {
  const char* extension;
  std::string (*make)(const PhotoTags&);
};

class EveryFormat : public testing::TestWithParam<Format> {
 protected:
  TempTree tree_;
};

INSTANTIATE_TEST_SUITE_P(Table, EveryFormat,
                         testing::Values(Format{"jpg", MakeJpeg}, Format{"png", MakePng},
                                         Format{"tif", MakeTiff}),
                         [](const auto& param) { return std::string(param.param.extension); });

TEST_P(EveryFormat, GivesItsDatesAndCamera) {
  const PhotoFacts facts = ReadPhotoFacts(tree_.Write("a", GetParam().make(FullTags())));
  ASSERT_EQ(facts.status, Status::Read) << facts.cause;
  EXPECT_EQ(Text(facts.original), "2021-05-01 10:20:30.125");
  EXPECT_EQ(Text(facts.digitised), "2021-05-02 11:21:31.125");
  EXPECT_EQ(facts.cameraModel, QStringLiteral("Model X"));
}

TEST_P(EveryFormat, WithoutMetadataIsStillAPhoto) {
  const PhotoFacts facts = ReadPhotoFacts(tree_.Write("a", GetParam().make(PhotoTags())));
  ASSERT_EQ(facts.status, Status::Read) << facts.cause;
  EXPECT_FALSE(facts.original.isValid());
  EXPECT_FALSE(facts.digitised.isValid());
  EXPECT_TRUE(facts.cameraModel.isEmpty());
}

TEST_P(EveryFormat, PassesOverDatesThatDoNotExist) {
  PhotoTags tags = FullTags();
  tags.dateTimeOriginal = "0000:00:00 00:00:00";
  const PhotoFacts facts = ReadPhotoFacts(tree_.Write("a", GetParam().make(tags)));
  ASSERT_EQ(facts.status, Status::Read) << facts.cause;
  EXPECT_FALSE(facts.original.isValid());
  EXPECT_TRUE(facts.digitised.isValid());
}

TEST_P(EveryFormat, IsLeftAsItWas) {
  const std::string bytes = GetParam().make(FullTags());
  const ioPath file = tree_.Write("a", bytes);
  const auto before = std::filesystem::last_write_time(file.native());
  ReadPhotoFacts(file);
  EXPECT_EQ(ReadFile(file), bytes);
  EXPECT_EQ(std::filesystem::last_write_time(file.native()), before);
}

TEST_P(EveryFormat, SurvivesBeingCutShortAnywhere) {
  const std::string bytes = GetParam().make(FullTags());
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    const PhotoFacts facts = ReadPhotoFacts(WriteAnew(tree_, bytes.substr(0, length)));
    EXPECT_NE(facts.status, Status::CannotOpen) << length << " " << facts.cause;
    EXPECT_EQ(facts.status == Status::Read, facts.cause.empty()) << length;
  }
}

TEST_P(EveryFormat, SurvivesAnyBytesBeingWrong) {
  const std::string bytes = GetParam().make(FullTags());
  std::mt19937 random(7);  // The same files every time
  for (int round = 0; round < 1500; ++round) {
    std::string broken = bytes;
    for (int change = 0; change <= round % 8; ++change) {
      // Limits of number types are what breaks readers.
      static constexpr std::array kBytes = {'\x00', '\xFF', '\x7F', '\x80', '\x01'};
      broken[random() % broken.size()] =
          random() % 2 == 0 ? kBytes[random() % kBytes.size()] : static_cast<char>(random());
    }
    EXPECT_NE(ReadPhotoFacts(WriteAnew(tree_, broken)).status, Status::CannotOpen) << round;
  }
}

TEST(PhotoFacts, TrimsTheCamera) {
  const TempTree tree;
  PhotoTags tags;
  tags.model = "  Model X   ";
  EXPECT_EQ(ReadPhotoFacts(WriteJpeg(tree.Path("a.jpg"), tags)).cameraModel, QStringLiteral("Model X"));
}

TEST(PhotoFacts, KeepsACameraNameThatIsNotAscii) {
  const TempTree tree;
  PhotoTags tags;
  tags.model = "Kam\xC3\xA9ra";
  EXPECT_EQ(ReadPhotoFacts(WriteJpeg(tree.Path("a.jpg"), tags)).cameraModel,
            QString::fromUtf8("Kam\xC3\xA9ra"));
}

TEST(PhotoFacts, GoByContentNotByName) {
  const TempTree tree;
  EXPECT_EQ(ReadPhotoFacts(WritePng(tree.Path("a.jpg"), FullTags())).status, Status::Read);
  EXPECT_EQ(ReadPhotoFacts(tree.Write("b.jpg", "Dear diary")).status, Status::NotAnImage);
}

TEST(PhotoFacts, ReadFilesWhoseNamesAreNoText) {
  const TempTree tree;
  EXPECT_EQ(
      ReadPhotoFacts(WriteJpeg(tree.Path(std::string(Zenvora::Test::kStrangeName) + ".jpg"), FullTags()))
          .status,
      Status::Read);
}

class NoImages : public testing::TestWithParam<std::string> {};

TEST_P(NoImages, AreToldFromPhotos) {
  const TempTree tree;
  const PhotoFacts facts = ReadPhotoFacts(tree.Write("a.jpg", GetParam()));
  EXPECT_EQ(facts.status, Status::NotAnImage);
  EXPECT_FALSE(facts.cause.empty());
  EXPECT_EQ(facts.cause.find(tree.Path().utf8string()), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NoImages,
    testing::Values(std::string(), std::string("x"), std::string("plain text, and not short at all"),
                    std::string(4096, '\0'), std::string(4096, '\xFF'), std::string("\xFF\xD8", 2),
                    std::string("\xFF\xD8\xFF", 3), std::string("\xFF\xD8\xFF\xD9", 4),
                    std::string("\xFF\xD8\xFF\xE0\0\0", 6), std::string("\xFF\xD8\xFF\xE1\0\x10 Exif", 11),
                    std::string("II*\0", 4), std::string("II*\0\x08\0\0\0", 8),
                    std::string("MM\0*\0\0\0\0", 8), std::string("II*\0\xFF\xFF\xFF\xFF\0\0", 10),
                    std::string("II*\0\x08\0\0\0\0\0", 10), std::string("BM"), std::string("GIF8"),
                    std::string("\x89PNG\r\n\x1A\n", 8), std::string("RIFF\x10\0\0\0WEBP", 12),
                    std::string("\0\0\0\x10"
                                "ftypheic\0\0\0\0",
                                16),
                    std::string("%PDF-1.4 and so on"),
                    std::string("RIFF\xFF\xFF\xFF\x7F"
                                "AVI LIST\xFF\xFF\xFF\xFF",
                                20),
                    std::string("\x1A\x45\xDF\xA3 matroska"),
                    std::string("\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C", 16),
                    // A broken film with a length that leads nowhere.
                    std::string("\x9A\0\0\x14"
                                "ftypqt  \0\0\0\0qt  \0\0\0$moov\0\0\0\x1C",
                                32),
                    std::string("\x7F"
                                "ELF\x02\x01\x01"),
                    std::string("<?xpacket begin=\"\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\"></x:xmpmeta>")));

TEST(PhotoFacts, PassOverAnExifBlockThatIsNone) {
  const TempTree tree;
  std::string bytes = MakeJpeg(FullTags());
  const auto mark = bytes.find("Exif");
  bytes[mark + 6] = 'X';
  const PhotoFacts facts = ReadPhotoFacts(tree.Write("a.jpg", bytes));
  EXPECT_EQ(facts.status, Status::Read);
  EXPECT_FALSE(facts.original.isValid());
}

TEST(PhotoFacts, FindTheExifBlockBehindOtherSegments) {
  const TempTree tree;
  const std::string bytes = MakeJpeg(FullTags());
  std::string segments;
  for (int i = 0; i < 20; ++i) {
    segments += std::string("\xFF\xEE\xFF\xFF", 4) + std::string(0xFFFD, static_cast<char>(i));
  }
  // Stray bytes and fill bytes stand between segments in some files.
  segments += std::string("\0\0\xFF\xFF", 4);
  const PhotoFacts facts =
      ReadPhotoFacts(tree.Write("a.jpg", bytes.substr(0, 2) + segments + bytes.substr(2)));
  EXPECT_EQ(Text(facts.original), "2021-05-01 10:20:30.125");
}

TEST(PhotoFacts, ReadLargeFilesNoFurtherThanNeeded) {
  const TempTree tree;
  const ioPath file = WriteJpeg(tree.Path("a.jpg"), FullTags());
  // A hole: it takes no room on the disk.
  std::filesystem::resize_file(file.native(), std::uintmax_t{5} << 30);
  EXPECT_EQ(Text(ReadPhotoFacts(file).original), "2021-05-01 10:20:30.125");
}

TEST(PhotoFacts, AreSilentAboutBrokenFiles) {
  const TempTree tree;
  std::string bytes = MakePng(FullTags());
  bytes.resize(bytes.size() - 20);
  const LogCapture log;
  testing::internal::CaptureStderr();
  ReadPhotoFacts(tree.Write("a.png", bytes));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(log.Lines().empty());
}

TEST(PhotoFacts, CannotBeReadFromWhatIsNoFile) {
  const TempTree tree;
  for (const ioPath& path : {tree.Path("missing"), tree.Path(), ioPath()}) {
    const PhotoFacts facts = ReadPhotoFacts(path);
    EXPECT_EQ(facts.status, Status::CannotOpen) << path;
    EXPECT_FALSE(facts.cause.empty());
  }
}

TEST(PhotoFacts, NeverWaitForPipesOrDevices) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe.jpg"));
  for (const ioPath& path : {pipe.Path(), ioPath("/dev/zero"), ioPath("/dev/null"), ioPath("\\\\?\\NUL")}) {
    EXPECT_EQ(ReadPhotoFacts(path).status, Status::CannotOpen) << path;
  }
}

TEST(PhotoFacts, FollowLinks) {
  const TempTree tree;
  const ioPath file = WriteJpeg(tree.Path("a.jpg"), FullTags());
  LUMIDEX_LINK_OR_SKIP(file, tree.Path("link"));
  LUMIDEX_LINK_OR_SKIP("nowhere", tree.Path("dangling"));
  LUMIDEX_LINK_OR_SKIP("self", tree.Path("self"));
  EXPECT_EQ(ReadPhotoFacts(tree.Path("link")).status, Status::Read);
  EXPECT_EQ(ReadPhotoFacts(tree.Path("dangling")).status, Status::CannotOpen);
  EXPECT_EQ(ReadPhotoFacts(tree.Path("self")).status, Status::CannotOpen);
}

TEST(PhotoFacts, CannotBeReadWithoutPermission) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  const TempTree tree;
  const ioPath file = WriteJpeg(tree.Path("a.jpg"), FullTags());
  const Closed closed(file);
  const PhotoFacts facts = ReadPhotoFacts(file);
  EXPECT_EQ(facts.status, Status::CannotOpen);
  EXPECT_FALSE(facts.cause.empty());
}

}  // namespace
}  // namespace Zenvora::Strandel
