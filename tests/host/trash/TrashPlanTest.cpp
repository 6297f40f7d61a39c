#include <host/shots/ShotNames.h>
#include <host/trash/TrashPlan.h>
#include <support/TempTree.h>

#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class TrashPlanTest : public ::testing::Test {
 protected:
  ioPath Make(const std::string& name) const { return tree_.Write("photos/" + name, name); }

  SimilarMember Member(const std::string& name) const {
    SimilarMember member;
    member.photo.path = tree_.Path("photos") / ioPath(name);
    const FileState state = QueryFile(member.photo.path);
    member.photo.size = state.size;
    member.photo.modifiedNs = state.modifiedNs;
    member.features.vector = {1, 0};
    return member;
  }

  /// The first is kept. What is not there is made.
  SuggestedGroup Group(const std::vector<std::string>& names) const {
    SuggestedGroup group;
    for (const std::string& name : names) {
      if (QueryFile(tree_.Path("photos") / ioPath(name)).kind == FileState::Kind::Missing) {
        Make(name);
      }
      group.group.members.push_back(Member(name));
      group.verdicts.push_back({Verdict::Same, "the same bytes", 0});
    }
    return group;
  }

  /// Names of what goes, each with what goes along.
  std::vector<std::string> Going(const TrashPlan& plan) const {
    std::vector<std::string> names;
    for (const TrashPhoto& photo : plan.photos) {
      std::string name = Name(photo.photo.path);
      for (const SeenFile& file : photo.attached) {
        name += " +" + Name(file.path);
      }
      names.push_back(name);
    }
    return names;
  }
  std::vector<std::string> Staying(const TrashPlan& plan) const {
    std::vector<std::string> names;
    for (const TrashStay& stay : plan.stays) {
      EXPECT_THAT(stay.cause, HasSubstr(stay.photo.utf8string() + " is kept: "));
      names.push_back(Name(stay.photo) + (stay.isRule ? "" : "!"));
    }
    return names;
  }
  std::string Name(const ioPath& path) const {
    const std::string name = Zenvora::Test::Slashes(path);
    return name.substr(Zenvora::Test::Slashes(tree_.Path("photos")).size() + 1);
  }

  const Zenvora::Test::TempTree tree_;
};

TEST_F(TrashPlanTest, TakesAllButTheOneToKeep) {
  SuggestedGroup group = Group({"a.jpg", "b.jpg", "x/c.jpg"});
  group.keeper.index = 1;
  const TrashPlan plan = PlanTrash({group});
  EXPECT_THAT(Going(plan), ElementsAre("a.jpg", "x/c.jpg"));
  EXPECT_THAT(plan.stays, IsEmpty());
  EXPECT_EQ(Name(plan.photos[0].kept.path), "b.jpg");
  EXPECT_EQ(plan.CountFiles(), 2U);
  EXPECT_EQ(plan.CountBytes(), 5U + 7U);
  EXPECT_THAT(PlanTrash({}).photos, IsEmpty());
  EXPECT_THAT(PlanTrash({Group({"lonely.jpg"})}).photos, IsEmpty());
}

TEST_F(TrashPlanTest, LeavesWhatHasTagsOrAlbumsThatTheKeptOneHasNot) {
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "tagged.jpg", "b.jpg"})}, TrashChoice::Same,
                                   [](const PhotoRecord& photo, const PhotoRecord& kept) {
                                     return photo.path.filename() == ioPath("tagged.jpg") &&
                                            kept.path.filename() == ioPath("keep.jpg");
                                   });
  EXPECT_THAT(Going(plan), ElementsAre("b.jpg"));
  EXPECT_THAT(Staying(plan), ElementsAre("tagged.jpg"));
}

TEST_F(TrashPlanTest, LeavesAllWhereTheOneToKeepIsALink) {
  Make("elsewhere/real.jpg");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("photos/elsewhere/real.jpg"), tree_.Path("photos/keep.jpg"));
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "a.jpg"})});
  EXPECT_THAT(Going(plan), IsEmpty());
  EXPECT_THAT(plan.stays.at(0).cause, HasSubstr("keep.jpg, is a link to another file."));
}

TEST_F(TrashPlanTest, LeavesWhatIsNotAsTheCatalogueKnowsIt) {
  const SuggestedGroup group = Group({"keep.jpg", "changed.jpg", "gone.jpg", "folder.jpg", "b.jpg"});
  tree_.Write("photos/changed.jpg", "something else");
  for (const char* const name : {"gone.jpg", "folder.jpg"}) {
    (tree_.Path("photos") / ioPath(name)).remove();
  }
  tree_.MakeFolder("photos/folder.jpg");
  const TrashPlan plan = PlanTrash({group});
  EXPECT_THAT(Going(plan), ElementsAre("b.jpg"));
  EXPECT_THAT(Staying(plan), ElementsAre("changed.jpg!", "gone.jpg!", "folder.jpg!"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("it was changed after it was analysed"));
  EXPECT_THAT(plan.stays[1].cause, HasSubstr("it no longer exists"));
  EXPECT_THAT(plan.stays[2].cause, HasSubstr("it is no longer a file"));
}

TEST_F(TrashPlanTest, LeavesAGroupWhoseKeptPhotoIsNotAsKnown) {
  const SuggestedGroup first = Group({"keep.jpg", "b.jpg", "c.jpg"});
  const SuggestedGroup second = Group({"d.jpg", "e.jpg"});
  tree_.Write("photos/keep.jpg", "something else");
  const TrashPlan plan = PlanTrash({first, second});
  EXPECT_THAT(Going(plan), ElementsAre("e.jpg"));
  EXPECT_THAT(Staying(plan), ElementsAre("b.jpg!", "c.jpg!"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("the photo to keep, "));
}

TEST_F(TrashPlanTest, LeavesWhatIsOnlyLikeTheMiddleOfItsGroup) {
  SuggestedGroup group = Group({"keep.jpg", "near.jpg", "far.jpg", "far.nef"});
  group.group.members[1].features.vector = {0.95F, 0.3F};
  group.group.members[2].features.vector = {0.8F, 0.6F};
  group.group.members[3].features.vector = {0.8F, 0.6F};
  const TrashPlan plan = PlanTrash({group});
  EXPECT_THAT(Going(plan), ElementsAre("near.jpg"));
  EXPECT_THAT(Staying(plan), ElementsAre("far.jpg", "far.nef"));
  EXPECT_THAT(plan.stays[0].cause,
              HasSubstr("it is like others of its group, but not like the photo to keep, "));
}

TEST_F(TrashPlanTest, LeavesWhatIsNotTheSamePicture) {
  SuggestedGroup group =
      Group({"keep.jpg", "same.jpg", "alike.jpg", "different.jpg", "unknown.jpg", "alike.nef"});
  group.verdicts[2] = {Verdict::Alike, "cropped", 5};
  group.verdicts[3] = {Verdict::Different, "", 9};
  group.verdicts[4] = {};
  group.verdicts[5] = {Verdict::Alike, "brighter", 3};
  const TrashPlan plan = PlanTrash({group});
  EXPECT_THAT(Going(plan), ElementsAre("same.jpg"));
  EXPECT_EQ(plan.CountAlike(), 0U);
  EXPECT_THAT(Staying(plan), ElementsAre("alike.jpg", "different.jpg", "unknown.jpg", "alike.nef"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("it is only alike to "));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("keep.jpg, not the same picture (cropped)."));
  EXPECT_EQ(plan.stays[0].byVerdict, Verdict::Alike);
  EXPECT_THAT(plan.stays[1].cause, HasSubstr("it is a different picture from the photo to keep, "));
  EXPECT_THAT(plan.stays[2].cause, HasSubstr("it could not be compared with the photo to keep, "));
  group.verdicts.clear();
  EXPECT_THAT(Going(PlanTrash({group}, TrashChoice::SameOrAlike)), IsEmpty()) << "nothing was judged";
}

TEST_F(TrashPlanTest, TakesWhatIsAlikeWhenThatWasChosen) {
  SuggestedGroup group =
      Group({"keep.jpg", "same.jpg", "alike.jpg", "different.jpg", "unknown.jpg", "alike.nef"});
  group.verdicts[2] = {Verdict::Alike, "cropped", 5};
  group.verdicts[3] = {Verdict::Different, "", 9};
  group.verdicts[4] = {};
  group.verdicts[5] = {Verdict::Alike, "brighter", 3};
  const TrashPlan plan = PlanTrash({group}, TrashChoice::SameOrAlike);
  EXPECT_THAT(Going(plan), ElementsAre("same.jpg", "alike.jpg"));
  EXPECT_EQ(plan.CountAlike(), 1U);
  EXPECT_EQ(plan.photos[1].verdict.why, "cropped");
  EXPECT_THAT(Staying(plan), ElementsAre("different.jpg", "unknown.jpg", "alike.nef"));
  EXPECT_THAT(plan.stays[2].cause, HasSubstr("no raw file of its group is kept"));
}

TEST_F(TrashPlanTest, LeavesAGroupWhosePhotoToKeepIsDamaged) {
  SuggestedGroup group = Group({"keep.jpg", "whole.jpg"});
  group.group.members[0].origin.emplace();
  EXPECT_THAT(Going(PlanTrash({group})), ElementsAre("whole.jpg"));
  group.group.members[0].origin->degradation = "a tenth of the picture cannot be decoded";
  const TrashPlan plan = PlanTrash({group});
  EXPECT_THAT(Going(plan), IsEmpty());
  EXPECT_THAT(Staying(plan), ElementsAre("whole.jpg!"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("is damaged: a tenth of the picture cannot be decoded"));
}

TEST_F(TrashPlanTest, LeavesAGroupWhosePhotoToKeepBreaksOff) {
  const std::string whole = "\xFF\xD8\xFF\xDA" + std::string("\0\2", 2) + "picture\xFF\xD9";
  tree_.Write("photos/a.jpg", whole.substr(0, whole.size() - 4));
  tree_.Write("photos/b.jpg", whole);
  TrashPlan plan = PlanTrash({Group({"a.jpg", "b.jpg"})});
  EXPECT_THAT(Going(plan), IsEmpty());
  EXPECT_THAT(Staying(plan), ElementsAre("b.jpg!"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("a.jpg, breaks off before the end of its picture."));
  // The other way round all is well.
  EXPECT_THAT(Going(PlanTrash({Group({"b.jpg", "a.jpg"})})), ElementsAre("a.jpg"));
}

TEST_F(TrashPlanTest, LeavesOtherNamesOfWhatIsKeptInAnyGroup) {
  Make("keep.jpg");
  ASSERT_FALSE(AddName(tree_.Path("photos/keep.jpg"), tree_.Path("photos/twin.jpg")));
  ASSERT_FALSE(AddName(tree_.Path("photos/keep.jpg"), tree_.Path("photos/third.jpg")));
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "twin.jpg"}), Group({"other.jpg", "third.jpg"})});
  EXPECT_THAT(Going(plan), IsEmpty());
  EXPECT_THAT(Staying(plan), ElementsAre("twin.jpg", "third.jpg"));
}

TEST_F(TrashPlanTest, LeavesLinksAndWhatAKeptLinkLeadsTo) {
  Make("real.jpg");
  Make("other.jpg");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("photos/real.jpg"), tree_.Path("photos/keep.jpg"));
  LUMIDEX_LINK_OR_SKIP(tree_.Path("photos/other.jpg"), tree_.Path("photos/link.jpg"));
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "real.jpg", "link.jpg"})});
  EXPECT_THAT(Going(plan), IsEmpty());
  EXPECT_THAT(Staying(plan), ElementsAre("real.jpg", "link.jpg"));
}

TEST_F(TrashPlanTest, LeavesWhatALinkLeadsTo) {
  Make("keep.jpg");
  Make("chosen.jpg");
  Make("other.jpg");
  tree_.Write("photos/other.xmp", "");
  const ioPath best = tree_.MakeFolder("photos/best");
  LUMIDEX_LINK_OR_SKIP("../chosen.jpg", best / "first.jpg");
  LUMIDEX_LINK_OR_SKIP("../other.xmp", best / "settings.xmp");
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "chosen.jpg", "other.jpg"})});
  EXPECT_THAT(Going(plan), ElementsAre("other.jpg"));
  EXPECT_THAT(plan.photos[0].attached, IsEmpty());
  ASSERT_EQ(Staying(plan), std::vector<std::string>{"chosen.jpg"});
  EXPECT_THAT(plan.stays[0].cause,
              HasSubstr("the link " + (best / "first.jpg").utf8string() + " leads to it"));
}

TEST_F(TrashPlanTest, LeavesWhatIsInATrashAndWhatItWouldBeTheLastOf) {
#ifdef _WIN32
  const std::string trash = "$Recycle.Bin/S-1-5/";
#else
  const std::string trash = ".Trash-1000/files/";
#endif
  const TrashPlan plan =
      PlanTrash({Group({trash + "keep.jpg", "a.jpg"}), Group({"b.jpg", trash + "c.jpg", "d.jpg"})});
  EXPECT_THAT(Going(plan), ElementsAre("d.jpg"));
  EXPECT_THAT(Staying(plan), ElementsAre("a.jpg!", trash + "c.jpg"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("is in a trash"));
}

TEST_F(TrashPlanTest, LeavesOtherFormatsOfTheShotThatIsKept) {
  const TrashPlan plan =
      PlanTrash({Group({"IMG_1.JPG", "IMG_1.CR2", "img_1.heic", "IMG_2.JPG", "sub/IMG_1.JPG"})});
  EXPECT_THAT(Going(plan), ElementsAre("IMG_2.JPG", "sub/IMG_1.JPG"));
  EXPECT_THAT(Staying(plan), ElementsAre("IMG_1.CR2", "img_1.heic"));
  EXPECT_THAT(plan.stays[0].cause, HasSubstr("it is of the same shot as IMG_1.JPG, which is kept"));
}

TEST_F(TrashPlanTest, KeepsARawFileOfEachGroupThatHasOne) {
  EXPECT_THAT(Going(PlanTrash({Group({"edited.jpg", "IMG_2.NEF", "IMG_2.JPG"})})), ElementsAre("IMG_2.JPG"));
  EXPECT_THAT(Staying(PlanTrash({Group({"edited.jpg", "IMG_2.NEF", "IMG_2.JPG"})})),
              ElementsAre("IMG_2.NEF"));
  // Where a raw file is kept, or belongs to the shot that is, the others can go.
  EXPECT_THAT(Going(PlanTrash({Group({"IMG_3.NEF", "IMG_4.NEF", "IMG_4.JPG"})})),
              ElementsAre("IMG_4.JPG", "IMG_4.NEF"));
  EXPECT_THAT(Going(PlanTrash({Group({"IMG_5.JPG", "IMG_5.NEF", "IMG_6.NEF", "IMG_6.JPG"})})),
              ElementsAre("IMG_6.JPG", "IMG_6.NEF"));
}

TEST_F(TrashPlanTest, KeepsARawFileWhereThatOfTheKeptShotIsNoneOfItsOwn) {
  tree_.Write("photos/IMG_1.NEF", std::string("MM\0*\0\0\1\0", 8));
  EXPECT_THAT(Going(PlanTrash({Group({"IMG_1.JPG", "IMG_1.NEF", "IMG_2.NEF"})})), IsEmpty());
  Make("IMG_4.NEF");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("photos/IMG_4.NEF"), tree_.Path("photos/IMG_3.NEF"));
  EXPECT_THAT(Going(PlanTrash({Group({"IMG_3.JPG", "IMG_3.NEF", "IMG_4.NEF"})})), IsEmpty());
}

TEST_F(TrashPlanTest, TakesSettingsAlongThatNobodyElseNeeds) {
  for (const char* const name : {"a.xmp", "a.jpg.xmp", "keep.jpg.xmp", "keep.pp3"}) {
    tree_.Write(std::string("photos/") + name, "settings");
  }
  for (const char* const name : {"a.THM", "a.txt", ".a.xmp"}) {
    Make(name);
  }
  tree_.Write("photos/a.dop", "");
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "a.jpg"})});
  EXPECT_THAT(Going(plan), ElementsAre("a.jpg +a.THM +a.dop +a.jpg.xmp +a.xmp"));
  EXPECT_EQ(plan.CountFiles(), 5U);
}

TEST_F(TrashPlanTest, KeepsAPhotoWithSettingsThatTheKeptOneHasNot) {
  for (const std::string name : {"a", "b", "c", "d", "keep"}) {
    tree_.Write("photos/" + name + ".xmp", name == "b" ? "five stars" : "settings");
  }
  tree_.Write("photos/d.jpg.pp3", "developed");
  Make("e.THM");
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg"})});
  EXPECT_THAT(Going(plan), ElementsAre("a.jpg +a.xmp", "c.jpg +c.xmp", "e.jpg +e.THM"));
  EXPECT_THAT(Staying(plan), ElementsAre("b.jpg", "d.jpg"));
  EXPECT_THAT(plan.stays[0].cause,
              HasSubstr("b.jpg is kept: its settings, b.xmp, would be lost: the photo to keep, " +
                        tree_.Path("photos/keep.jpg").utf8string() + ", does not have them."));
  EXPECT_THAT(Going(PlanTrash({Group({"bare.jpg", "a.jpg"})})), IsEmpty());
  EXPECT_THAT(Going(PlanTrash({Group({"a.jpg", "bare.jpg"})})), ElementsAre("bare.jpg"));
}

TEST_F(TrashPlanTest, KeepsAllPhotosThatShareSettingsWhichTheKeptOneHasNot) {
  for (const char* const name : {"a.xmp", "a.jpg", "a.CR2", "keep.cr2"}) {
    Make(name);
  }
  EXPECT_THAT(Staying(PlanTrash({Group({"keep.cr2", "a.jpg", "a.CR2"})})), ElementsAre("a.jpg", "a.CR2"));
}

TEST_F(TrashPlanTest, TakesALinkToTheSettingsForNoneOfItsOwn) {
  Make("a.xmp");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("photos/a.xmp"), tree_.Path("photos/keep.xmp"));
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.jpg"})})), IsEmpty());
}

TEST_F(TrashPlanTest, LooksOnceMoreWhetherTheKeptSettingsAreTheSame) {
  tree_.Write("photos/a.xmp", "settings");
  tree_.Write("photos/keep.xmp", "settings");
  const TrashPlan plan = PlanTrash({Group({"keep.jpg", "a.jpg"})});
  ASSERT_EQ(plan.photos.size(), 1U);
  ASSERT_EQ(plan.photos[0].attached.size(), 1U);
  tree_.Path("photos/a.jpg").remove();
  EXPECT_EQ(FindTrashFault(plan.photos[0].attached[0]), "");
  tree_.Write("photos/keep.xmp", "something else");
  EXPECT_THAT(FindTrashFault(plan.photos[0].attached[0]), HasSubstr("were changed"));
}

TEST_F(TrashPlanTest, LeavesSettingsOfAShotOfWhichAPhotoStays) {
  for (const char* const name : {"a.xmp", "a.jpg.xmp", "a.CR2.xmp", "a_01.CR2.xmp", "keep.xmp"}) {
    tree_.Write(std::string("photos/") + name, "settings");
  }
  Make("a.CR2");
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.jpg"})})), ElementsAre("a.jpg +a.jpg.xmp"));
  // With the last photo of the shot all of it goes.
  EXPECT_THAT(Going(PlanTrash({Group({"keep.cr2", "a.jpg", "a.CR2"})})),
              ElementsAre("a.jpg +a.jpg.xmp", "a.CR2 +a.CR2.xmp +a.xmp +a_01.CR2.xmp"));
}

TEST_F(TrashPlanTest, LeavesSettingsThatMayBeThoseOfAFilmOrALayeredPicture) {
  tree_.Write("photos/keep.xmp", "settings");
  for (const std::string name : {"a.mov", "b.psd", "c.wav"}) {
    for (const char* const end : {".jpg.xmp", ".xmp", ".THM"}) {
      tree_.Write("photos/" + name.substr(0, 1) + end, "settings");
    }
    Make(name);
  }
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.jpg", "b.jpg", "c.jpg"})})),
              ElementsAre("a.jpg +a.jpg.xmp", "b.jpg +b.jpg.xmp", "c.jpg +c.jpg.xmp"));
}

TEST_F(TrashPlanTest, LeavesSettingsOfAPhotoThatDiffersInCaseAlone) {
  Make("a.jpg");
  if (QueryFile(tree_.Path("photos/a.JPG")).kind != FileState::Kind::Missing) {
    GTEST_SKIP() << "names that differ in case alone are one here";
  }
  Make("a.JPG");
  for (const char* const name : {"a.JPG.xmp", "a.jpg.xmp", "keep.xmp"}) {
    tree_.Write(std::string("photos/") + name, "settings");
  }
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.jpg"})})), ElementsAre("a.jpg"));
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.JPG"})})), ElementsAre("a.JPG"));
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.JPG", "a.jpg"})})),
              ElementsAre("a.JPG", "a.jpg +a.JPG.xmp +a.jpg.xmp"));
}

TEST_F(TrashPlanTest, LeavesSettingsThatAreALink) {
  Make("shared.pp3");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("photos/shared.pp3"), tree_.Path("photos/a.pp3"));
  EXPECT_THAT(Going(PlanTrash({Group({"keep.jpg", "a.jpg"})})), ElementsAre("a.jpg"));
}

TEST(RawNames, AreThoseOfPhotos) {
  for (const char* const name : {"a.CR2", "a.nef", "x.y.DNG", "a.fff", "a.gpr", "a.x3f"}) {
    EXPECT_TRUE(IsRawName(name)) << name;
    EXPECT_TRUE(IsPhotoName(ioPath(name))) << name;
  }
  for (const char* const name : {"a.jpg", "a.heic", "a.tif", "nef", ".nef", "a.nef.xmp", ""}) {
    EXPECT_FALSE(IsRawName(name)) << name;
  }
}

TEST(AttachedNames, AreThoseOfWhatSaysNothingAlone) {
  for (const char* const name : {"a.xmp", "a.CR2.XMP", "a.thm", "a.dop"}) {
    EXPECT_TRUE(IsAttachedName(name)) << name;
    EXPECT_TRUE(IsShotFile(name)) << name;
  }
  for (const char* const name : {"a.mov", "a.psd", "a.wav", "a.jpg", "a.txt"}) {
    EXPECT_FALSE(IsAttachedName(name)) << name;
  }
}

TEST(OwnerExtensionOf, IsTheFirstOfTwo) {
  EXPECT_EQ(OwnerExtension(".CR2.xmp"), ".CR2");
  EXPECT_EQ(OwnerExtension("_01.CR2.xmp"), ".CR2");
  EXPECT_EQ(OwnerExtension(".xmp"), "");
  EXPECT_EQ(OwnerExtension(""), "");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
