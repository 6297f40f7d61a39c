#include "ImportFixture.h"
#include "Records.h"

#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/Unprivileged.h>

#include <map>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Zenvora::Test::ErrorOf;
using Zenvora::Test::Slashes;

class ImportSources : public ImportTest {
 protected:
  std::vector<std::string> Taken(const std::vector<ioPath>& sources) {
    found_ = GatherSources(sources, Gathered::Everything);
    std::vector<std::string> paths;
    for (const ImportSource& file : found_.files) {
      paths.push_back(Relative(file.path));
    }
    return paths;
  }
  std::vector<std::string> Left(LeftFile::Kind kind) const {
    std::vector<std::string> paths;
    for (const LeftFile& file : found_.left) {
      if (file.kind == kind) {
        paths.push_back(Relative(file.path));
      }
    }
    return paths;
  }
  std::string Relative(const ioPath& path) const {
    return Slashes(path).substr(Slashes(tree.Path()).size() + 1);
  }

  GatheredSources found_;
};

TEST_F(ImportSources, ArePhotosAndFilmsWithWhatLiesBesideThem) {
  for (const char* const name :
       {"card/IMG_1.CR2", "card/IMG_1.JPG", "card/IMG_1.xmp", "card/IMG_1.CR2.xmp", "card/IMG_2.JPG"}) {
    tree.Write(name, name);
  }
  tree.Write("card/alone.xmp", "x");
  tree.Write("card/notes.txt", "x");
  tree.Write("card/.hidden.jpg", "x");
  tree.Write("card/.closet/b.jpg", "x");
  EXPECT_THAT(Taken({Card()}),
              UnorderedElementsAre("card/IMG_1.CR2", "card/IMG_1.JPG", "card/IMG_1.xmp", "card/IMG_1.CR2.xmp",
                                   "card/IMG_2.JPG", "card/alone.xmp"));
  std::map<std::string, std::size_t> shots;
  for (const ImportSource& file : found_.files) {
    shots[Relative(file.path)] = file.shot;
  }
  EXPECT_EQ(shots["card/IMG_1.CR2"], shots["card/IMG_1.CR2.xmp"]);
  EXPECT_NE(shots["card/IMG_1.CR2"], shots["card/IMG_2.JPG"]);
  EXPECT_THAT(Left(LeftFile::Kind::NotAPhoto), ElementsAre("card/notes.txt"));
  EXPECT_THAT(Left(LeftFile::Kind::Hidden), ElementsAre("card/.closet/b.jpg", "card/.hidden.jpg"));
}

TEST_F(ImportSources, FilmsLeadWhatBelongsToThem) {
  for (const char* const name : {"card/GOPR1.MP4", "card/GOPR1.LRV", "card/GOPR1.THM", "card/GOPR1.xmp",
                                 "card/IMG_2.HEIC", "card/IMG_2.MOV", "card/00001.MTS", "card/NOTE.WAV"}) {
    tree.Write(name, name);
  }
  EXPECT_THAT(Taken({Card()}), testing::SizeIs(8));
  EXPECT_THAT(found_.left, IsEmpty());
  std::map<std::string, ImportSource> files;
  for (const ImportSource& file : found_.files) {
    files[Relative(file.path)] = file;
  }
  for (const char* const name : {"card/GOPR1.LRV", "card/GOPR1.THM", "card/GOPR1.xmp"}) {
    EXPECT_EQ(files[name].shot, files["card/GOPR1.MP4"].shot) << name;
    EXPECT_FALSE(files[name].leads) << name;
  }
  EXPECT_TRUE(files["card/GOPR1.MP4"].leads);
  EXPECT_TRUE(files["card/00001.MTS"].leads);
  EXPECT_TRUE(files["card/IMG_2.HEIC"].leads);
  EXPECT_FALSE(files["card/IMG_2.MOV"].leads) << "it is part of the photo";
  EXPECT_EQ(files["card/IMG_2.HEIC"].shot, files["card/IMG_2.MOV"].shot);
  EXPECT_TRUE(files["card/NOTE.WAV"].isAlone);
}

TEST_F(ImportSources, HousekeepingIsLeftWithoutAWord) {
  tree.Write("card/DCIM/100/a.jpg", "x");
  for (const char* const name :
       {"card/.DS_Store", "card/DCIM/100/._a.jpg", "card/DCIM/100/Thumbs.db", "card/.Trashes/501/b.jpg",
        "card/System Volume Information/IndexerVolumeGuid", "card/.android_secure/1",
        "card/MISC/AUTPRINT.MRK", "card/DCIM/CANONMSC/M0100.CTG", "card/PRIVATE/AVCHD/BDMV/INDEX.BDM",
        "card/PRIVATE/AVCHD/BDMV/PLAYLIST/00000.MPL", "card/PRIVATE/M4ROOT/MEDIAPRO.XML",
        "card/.lumidex-import/manifest.jsonl"}) {
    tree.Write(name, "x");
  }
  EXPECT_THAT(Taken({Card()}), ElementsAre("card/DCIM/100/a.jpg"));
  EXPECT_THAT(found_.left, IsEmpty());
  EXPECT_EQ(found_.housekeeping, 12U);
}

TEST_F(ImportSources, WhatOnlyLooksLikeHousekeepingIsTold) {
  for (const char* const name : {"card/MISC/letter.doc", "card/INDEX.BDM", "card/version.txt",
                                 "card/Trashes.txt", "card/.hidden/x", "card/LOST.DIR/1"}) {
    tree.Write(name, "x");
  }
  EXPECT_THAT(Taken({Card()}), IsEmpty());
  EXPECT_THAT(found_.left, testing::SizeIs(6));
  EXPECT_EQ(found_.housekeeping, 0U);
}

TEST_F(ImportSources, PicturesAndFilmsUnderNamesOfHousekeepingAreTold) {
  const std::string picture = Zenvora::Test::MakeJpeg({});
  const std::string film(
      "\0\0\0\x18"
      "ftypmp42\0\0\0\0mp42isom",
      24);
  const std::string packet = 'G' + std::string(187, 'x');
  tree.Write("card/._x.jpg", picture);
  tree.Write("card/MISC/x.mrk", picture);
  tree.Write("card/Thumbs.db", film);
  tree.Write("card/nikon001.dsc", packet + packet);
  tree.Write("card/desktop.ini", "1234" + packet + "1234" + packet);
  tree.Write("card/._y.jpg", std::string("\0\5\x16\7\0\2\0\0Mac OS X", 16));
  tree.Write("card/DCIM/Thumbs.db", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
  EXPECT_THAT(Taken({Card()}), IsEmpty());
  EXPECT_THAT(Left(LeftFile::Kind::Hidden), ElementsAre("card/._x.jpg"));
  EXPECT_THAT(Left(LeftFile::Kind::NotAPhoto), UnorderedElementsAre("card/MISC/x.mrk", "card/Thumbs.db",
                                                                    "card/desktop.ini", "card/nikon001.dsc"));
  EXPECT_THAT(found_.left[0].cause, HasSubstr("named like a housekeeping file"));
  EXPECT_EQ(found_.housekeeping, 2U);
}

TEST_F(ImportSources, BringTheirSidecarsButNoOtherPhotosWhenNamedThemselves) {
  for (const char* const name : {"card/IMG_1.CR2", "card/IMG_1.JPG", "card/IMG_1.xmp", "card/IMG_2.xmp"}) {
    tree.Write(name, name);
  }
  EXPECT_THAT(Taken({tree.Path("card/IMG_1.JPG")}), UnorderedElementsAre("card/IMG_1.JPG", "card/IMG_1.xmp"));
  EXPECT_THAT(found_.left, IsEmpty()) << "nobody asked for the rest";
}

TEST_F(ImportSources, CountOnceHoweverOftenTheyAreNamed) {
  const ioPath photo = MakePhoto("card/a.jpg", 1);
  EXPECT_THAT(Taken({photo, Card(), photo, tree.Path("card/../card")}), ElementsAre("card/a.jpg"));
}

TEST_F(ImportSources, MustExist) {
  EXPECT_THAT(ErrorOf([&] { GatherSources({tree.Path("missing")}); }), HasSubstr("cannot be imported"));
}

TEST_F(ImportSources, LoopsAndDanglingLinksAreLeft) {
  MakePhoto("card/a.jpg", 1);
  LUMIDEX_LINK_OR_SKIP(Card(), tree.Path("card/round"));
  LUMIDEX_LINK_OR_SKIP(tree.Path("gone.jpg"), tree.Path("card/dangling.jpg"));
  EXPECT_THAT(Taken({Card()}), ElementsAre("card/a.jpg"));
  EXPECT_THAT(Left(LeftFile::Kind::Loop), ElementsAre("card/round"));
  EXPECT_THAT(Left(LeftFile::Kind::Unreadable), ElementsAre("card/dangling.jpg"));
}

TEST_F(ImportSources, FollowLinksToPhotos) {
  MakePhoto("elsewhere/a.jpg", 1);
  tree.MakeFolder("card");
  LUMIDEX_LINK_OR_SKIP(tree.Path("elsewhere/a.jpg"), tree.Path("card/link.jpg"));
  EXPECT_THAT(Taken({Card()}), ElementsAre("card/link.jpg"));
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportSources, LeavePipesAndDevicesAlone);
#else
TEST_F(ImportSources, LeavePipesAndDevicesAlone) {
  MakePhoto("card/a.jpg", 1);
  const Zenvora::Test::Pipe pipe(tree.Path("card/pipe.jpg"));
  LUMIDEX_LINK_OR_SKIP("/dev/zero", tree.Path("card/zero.jpg"));
  EXPECT_THAT(Taken({Card(), "/dev/null"}), ElementsAre("card/a.jpg"));
  ASSERT_EQ(found_.left.size(), 3U);
  for (const LeftFile& left : found_.left) {
    EXPECT_EQ(left.kind, LeftFile::Kind::NoFile) << left.path;
  }
}
#endif

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportSources, UnreadableFoldersAreTold);
#else
TEST_F(ImportSources, UnreadableFoldersAreTold) {
  MakePhoto("card/closed/a.jpg", 1);
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const Zenvora::Test::Closed closed(tree.Path("card/closed"));
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] {
    return Taken({Card()}).empty() &&
           Left(LeftFile::Kind::Unreadable) == std::vector<std::string>{"card/closed"};
  }));
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
