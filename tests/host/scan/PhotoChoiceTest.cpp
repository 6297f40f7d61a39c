#include <host/scan/PhotoChoice.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::Pipe;
using Test::TempTree;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

std::string Cause(const TempTree& tree, const ioPath& name) {
  try {
    ChooseForRename({tree.Path(name)});
  } catch (const HostError& error) {
    return error.what();
  }
  return "";
}

TEST(PhotoChoice, TakesFilesAsNamedAndFoldersByName) {
  const TempTree tree;
  for (const char* const name : {"d/IMG_10.jpg", "d/IMG_9.jpg", "d/img_2.CR2", "d/.hidden.jpg", "d/notes.txt",
                                 "d/below/x.jpg", "e/z.txt", "e/a.jpg"}) {
    tree.Write(name, "");
  }
  const ioPath d = tree.Path("d");
  const ioPath e = tree.Path("e");
  const RenameChoice choice = ChooseForRename({e / "z.txt", d, d / "IMG_9.jpg", e / "z.txt"});
  EXPECT_THAT(choice.named, ElementsAre(e / "z.txt", d / "img_2.CR2", d / "IMG_9.jpg", d / "IMG_10.jpg"));
  EXPECT_THAT(choice.entries,
              UnorderedElementsAre(d / ".hidden.jpg", d / "notes.txt", d / "below", e / "a.jpg"));
  EXPECT_THAT(choice.files, UnorderedElementsAre(d / ".hidden.jpg", d / "notes.txt", e / "a.jpg"));
}

TEST(PhotoChoice, SpellsFoldersInOneWay) {
  const TempTree tree;
  tree.Write("d/a.jpg", "");
  tree.Write("d/b.jpg", "");
  LUMIDEX_LINK_OR_SKIP(tree.Path("d"), tree.Path("link"));
  const RenameChoice choice = ChooseForRename(
      {tree.Path("link") / "b.jpg", tree.Path("d") / ".." / "d" / "a.jpg", tree.Path("link")});
  EXPECT_THAT(choice.named, ElementsAre(tree.Path("d/b.jpg"), tree.Path("d/a.jpg")));
  EXPECT_THAT(choice.entries, IsEmpty());
}

TEST(PhotoChoice, LeavesLinksOut) {
  const TempTree tree;
  tree.Write("real.jpg", "");
  tree.MakeFolder("d/folder.jpg");
  LUMIDEX_LINK_OR_SKIP(tree.Path("real.jpg"), tree.Path("d/link.jpg"));
  LUMIDEX_LINK_OR_SKIP(tree.Path("real.jpg"), tree.Path("d/link.txt"));
  LUMIDEX_LINK_OR_SKIP("nowhere.jpg", tree.Path("d/dangling.jpg"));
  LUMIDEX_LINK_OR_SKIP(tree.Path("d/folder.jpg"), tree.Path("d/tofolder.jpg"));
  const RenameChoice choice = ChooseForRename({tree.Path("d")});
  EXPECT_THAT(choice.named, IsEmpty());
  EXPECT_THAT(choice.files, IsEmpty());
  EXPECT_EQ(choice.linksNamed, 1U);
  EXPECT_EQ(choice.links.size(), 4U);
  EXPECT_EQ(choice.entries.size(), 5U);
  // To edit it is to edit the photo.
  EXPECT_THAT(ChooseForEdit({tree.Path("d"), tree.Path("real.jpg")}).photos,
              ElementsAre(tree.Path("real.jpg")));
}

TEST(PhotoChoice, KnowsNoHalfPlans) {
  const TempTree tree;
  tree.Write("a.jpg", "");
  EXPECT_EQ(Cause(tree, "a.jpg"), "");
  EXPECT_EQ(Cause(tree, "gone.jpg"),
            "Nothing was renamed: " + tree.Path("gone.jpg").utf8string() + " does not exist.");
  EXPECT_NE(Cause(tree, "a.jpg/b.jpg"), "");
  const Pipe pipe(tree.Path("pipe.jpg"));
  EXPECT_THROW(ChooseForRename({pipe.Path()}), HostError);
  LUMIDEX_LINK_OR_SKIP("loop.jpg", tree.Path("loop.jpg"));
  EXPECT_EQ(Cause(tree, "loop.jpg"), "Nothing was renamed: " + tree.Path("loop.jpg").utf8string() +
                                         " is a link that leads back to itself.");
}

TEST(PhotoChoice, RefusesOneByOneWhatCannotBeEdited) {
  const TempTree tree;
  tree.Write("d/b.jpg", "");
  tree.Write("d/a.jpg", "");
  tree.Write("d/.hidden.jpg", "");
  tree.Write("d/notes.txt", "");
  const std::string d = tree.Path("d").utf8string();
  const ioPath in = tree.Path("d");
  const Pipe pipe(tree.Path("d/pipe.jpg"));
  const EditChoice choice =
      ChooseForEdit({in / "notes.txt", in / "b.jpg", in / ".hidden.jpg", in, in / "gone.jpg", pipe.Path()});
  EXPECT_THAT(choice.photos, ElementsAre(in / "b.jpg", in / "a.jpg"));
  std::vector<std::string> causes;
  for (const FileFinding& finding : choice.refused) {
    causes.push_back(finding.cause);
  }
  EXPECT_THAT(causes, ElementsAre((in / "notes.txt").utf8string() + " is not named like a photo.",
                                  (in / ".hidden.jpg").utf8string() + " is hidden.",
                                  (in / "gone.jpg").utf8string() + " does not exist.",
                                  pipe.Path().utf8string() + " is neither a file nor a folder."));
  EXPECT_THAT(ChooseForEdit({tree.MakeFolder("empty")}).refused, IsEmpty());
}

TEST(PhotoChoice, PassesSidecarsOverThatAreNamedAlongWithTheirPhotos) {
  const TempTree tree;
  for (const char* const name : {"a.jpg", "a.xmp", "a.jpg.xmp", "b.xmp"}) {
    tree.Write(name, "");
  }
  const EditChoice choice =
      ChooseForEdit({tree.Path("a.xmp"), tree.Path("a.jpg.xmp"), tree.Path("a.jpg"), tree.Path("b.xmp")});
  EXPECT_THAT(choice.photos, ElementsAre(tree.Path("a.jpg")));
  ASSERT_EQ(choice.refused.size(), 1U);
  EXPECT_EQ(choice.refused[0].file, tree.Path("b.xmp"));
}

TEST(PhotoChoice, SpellsNamesAsTheDiskDoes) {
  const TempTree tree;
  tree.Write("Photo.JPG", "");
  const ioPath other = tree.Path("photo.jpg");
  if (!other.exists()) {
    GTEST_SKIP() << "case counts on this disk";
  }
  EXPECT_THAT(ChooseForRename({other}).named, ElementsAre(tree.Path("Photo.JPG")));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
