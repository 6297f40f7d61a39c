#include <host/shots/ShotSets.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Paths = std::vector<ioPath>;

/// One line for each set: its name, and each file's name with the suffix set off by '|'.
std::vector<std::string> Grouped(const Paths& named, const Paths& entries = {}) {
  std::vector<std::string> lines;
  for (const ShotSet& set : GroupShots(named, entries)) {
    std::string line = set.name + ":";
    for (const ShotFile& file : set.files) {
      const std::string name = file.path.utf8string();
      EXPECT_GE(name.size(), file.suffix.size());
      const std::size_t cut = name.size() - file.suffix.size();
      EXPECT_EQ(name.substr(cut), file.suffix);
      line += " " + name.substr(0, cut) + "|" + file.suffix;
    }
    lines.push_back(line);
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(ShotSets, ArePhotosInAllTheirFormats) {
  EXPECT_EQ(Grouped({"d/IMG_1.JPG", "d/IMG_2.JPG", "d/IMG_1.CR2"}),
            (Lines{"IMG_1: d/IMG_1|.CR2 d/IMG_1|.JPG", "IMG_2: d/IMG_2|.JPG"}));
}

TEST(ShotSets, TakeWhatLiesBesideTheNamedPhotos) {
  const Paths entries = {"d/IMG_1.xmp",   "d/IMG_1.CR2.xmp",  "d/IMG_1.THM", "d/IMG_1.wav",  "d/IMG_1.AAE",
                         "d/IMG_1.MOV",   "d/IMG_1.JPG.json", "d/IMG_1.CR2", "d/IMG_1.JPG",  "d/IMG_2.JPG",
                         "d/IMG_2.xmp",   "d/IMG_1.txt",      "d/IMG_1",     "d/IMG_12.JPG", "e/IMG_1.xmp",
                         "d/._IMG_1.JPG", "d/IMG_1.xmp.bak",  "d/XIMG_1.JPG"};
  EXPECT_EQ(Grouped({"d/IMG_1.JPG"}, entries),
            Lines{"IMG_1: d/IMG_1|.CR2 d/IMG_1|.JPG d/IMG_1|.AAE d/IMG_1|.CR2.xmp d/IMG_1|.JPG.json "
                  "d/IMG_1|.MOV d/IMG_1|.THM d/IMG_1|.wav d/IMG_1|.xmp"});
}

TEST(ShotSets, AreTheSameWhicheverOfTheirFilesIsNamed) {
  const Paths entries = {"IMG_1.CR2", "IMG_1.JPG", "IMG_1.CR2.xmp", "IMG_1.wav"};
  const Lines whole = Grouped(entries);
  EXPECT_EQ(whole, Lines{"IMG_1: IMG_1|.CR2 IMG_1|.JPG IMG_1|.CR2.xmp IMG_1|.wav"});
  for (const ioPath& file : entries) {
    EXPECT_EQ(Grouped({file}, entries), whole) << file;
  }
}

TEST(ShotSets, TakeNamedFilesOfAnyKind) {
  EXPECT_EQ(Grouped({"IMG_1.txt", "IMG_1.JPG", "README", ".hidden.jpg", ".profile"}),
            (Lines{"IMG_1: IMG_1|.JPG IMG_1|.txt", "README: README|", ".hidden: .hidden|.jpg",
                   ".profile: .profile|"}));
}

TEST(ShotSets, KeepTheOrderInWhichTheyAreNamed) {
  EXPECT_EQ(Grouped({"c.jpg", "a.jpg", "b.jpg", "c.jpg", "a.cr2"}, {"a.jpg", "b.jpg", "b.xmp", "c.jpg"}),
            (Lines{"c: c|.jpg", "a: a|.cr2 a|.jpg", "b: b|.jpg b|.xmp"}));
}

TEST(ShotSets, EndAtTheFolder) {
  EXPECT_EQ(Grouped({"d/a.jpg", "e/a.cr2", "a.xmp"}), (Lines{"a: d/a|.jpg", "a: e/a|.cr2", "a: a|.xmp"}));
}

TEST(ShotSets, IgnoreCaseAndUnicodeForm) {
  EXPECT_EQ(Grouped({"IMG_1.JPG"}, {"img_1.xmp", "Img_1.cr2.XMP"}),
            Lines{"IMG_1: IMG_1|.JPG Img_1|.cr2.XMP img_1|.xmp"});
  EXPECT_EQ(Grouped({"\xC3\x84.jpg"}, {"a\xCC\x88.xmp"}), Lines{"\xC3\x84: \xC3\x84|.jpg a\xCC\x88|.xmp"});
}

TEST(ShotSets, TellSpellingsApartWhereOneNameWouldHaveTwoPhotos) {
  const Paths entries = {"IMG_1.JPG", "img_1.jpg", "IMG_1.xmp", "img_1.wav", "Img_1.CR2.xmp"};
  EXPECT_EQ(Grouped({"IMG_1.JPG"}, entries), Lines{"IMG_1: IMG_1|.JPG IMG_1|.xmp"});
  EXPECT_EQ(Grouped({"img_1.jpg", "IMG_1.JPG"}, entries),
            (Lines{"img_1: img_1|.jpg img_1|.wav", "IMG_1: IMG_1|.JPG IMG_1|.xmp"}));
}

TEST(ShotSets, KnowSettingsByBothExtensionsOnlyBehindPhotosAndFilms) {
  EXPECT_EQ(Grouped({"a.nef.xmp"}), Lines{"a: a|.nef.xmp"});
  EXPECT_EQ(Grouped({"a.MOV.xmp"}), Lines{"a: a|.MOV.xmp"});
  EXPECT_EQ(Grouped({"Mr. Smith.xmp"}), Lines{"Mr. Smith: Mr. Smith|.xmp"});
  EXPECT_EQ(Grouped({"a.jpg.cr2"}), Lines{"a.jpg: a.jpg|.cr2"});
  EXPECT_EQ(Grouped({".nef.xmp"}), Lines{".nef: .nef|.xmp"});
}

TEST(ShotSets, TakeTheSettingsOfFurtherVersions) {
  const Paths entries = {"IMG_1.CR2",        "IMG_1.CR2.xmp",    "IMG_1_01.CR2.xmp",
                         "IMG_1_02.CR2.xmp", "IMG_1_03.NEF.xmp", "IMG_1_4.CR2.xmp"};
  EXPECT_EQ(Grouped({"IMG_1.CR2"}, entries),
            Lines{"IMG_1: IMG_1|.CR2 IMG_1|.CR2.xmp IMG_1|_01.CR2.xmp IMG_1|_02.CR2.xmp"});
}

TEST(ShotSets, LeaveTheSettingsOfAPhotoThatOnlyLooksLikeAVersion) {
  const Paths entries = {"DSC_12.NEF", "DSC_12.NEF.xmp", "DSC.NEF"};
  EXPECT_EQ(Grouped({"DSC.NEF", "DSC_12.NEF"}, entries),
            (Lines{"DSC: DSC|.NEF", "DSC_12: DSC_12|.NEF DSC_12|.NEF.xmp"}));
  EXPECT_EQ(Grouped({"_01.NEF.xmp", "a_01.xmp"}), (Lines{"_01: _01|.NEF.xmp", "a_01: a_01|.xmp"}));
}

#ifndef _WIN32
TEST(ShotSets, KeepNamesThatAreNoUtf8) {
  EXPECT_EQ(Grouped({"caf\xE9.JPG", "caf\xC9.JPG"}, {"CAF\xE9.xmp"}),
            (Lines{"caf\xE9: caf\xE9|.JPG CAF\xE9|.xmp", "caf\xC9: caf\xC9|.JPG"}));
}
#endif

TEST(ShotSets, AreNoneWithoutNamedFiles) {
  EXPECT_TRUE(GroupShots({}, {"a.jpg", "a.xmp"}).empty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
