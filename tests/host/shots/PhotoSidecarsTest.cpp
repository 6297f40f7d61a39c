#include <host/edit/PhotoEditing.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PhotoSidecars : public testing::Test {
 protected:
  ioPath Make(const std::string& name) const { return tree.Write(name, name); }
  ioPath Path(const std::string& name) const { return tree.Path(name); }
  std::vector<ioPath> Of(const ioPath& photo) const { return FindSidecars({photo}).at(0).sidecars; }

  const Zenvora::Test::TempTree tree;
};

TEST_F(PhotoSidecars, BelongToThePhotoThatTheyName) {
  for (const char* const name :
       {"a.jpg", "a.CR2", "a.jpg.xmp", "a.CR2.xmp", "a_01.CR2.XMP", "b.xmp", "a.txt", ".a.xmp"}) {
    Make(name);
  }
  EXPECT_THAT(Of(Path("a.jpg")), ElementsAre(Path("a.jpg.xmp")));
  EXPECT_THAT(Of(Path("a.CR2")), testing::UnorderedElementsAre(Path("a.CR2.xmp"), Path("a_01.CR2.XMP")));
}

TEST_F(PhotoSidecars, BelongToTheRawFileWhenSeveralFormatsShareThem) {
  for (const char* const name : {"a.jpg", "a.nef", "a.xmp", "b.JPG", "b.xmp"}) {
    Make(name);
  }
  EXPECT_THAT(Of(Path("a.jpg")), IsEmpty());
  EXPECT_THAT(Of(Path("a.nef")), ElementsAre(Path("a.xmp")));
  EXPECT_THAT(Of(Path("b.JPG")), ElementsAre(Path("b.xmp")));
  const std::vector<EditTask> tasks = FindSidecars({Path("a.jpg"), Path("a.nef"), Path("b.JPG")});
  ASSERT_EQ(tasks.size(), 3U);
  EXPECT_THAT(tasks[0].sidecars, IsEmpty());
  EXPECT_THAT(tasks[1].sidecars, ElementsAre(Path("a.xmp")));
  EXPECT_THAT(tasks[2].sidecars, ElementsAre(Path("b.xmp")));
}

TEST_F(PhotoSidecars, AreNobodysWithoutThePhotoThatTheyName) {
  for (const char* const name : {"a.jpg", "a.CR2.xmp"}) {
    Make(name);
  }
  EXPECT_THAT(Of(Path("a.jpg")), IsEmpty());
}

TEST_F(PhotoSidecars, AreTheFilesThatLinksLeadToAndEachOnce) {
  Make("a.jpg");
  Make("b.jpg");
  const ioPath sidecar = Make("elsewhere/real.xmp");
  LUMIDEX_LINK_OR_SKIP(sidecar, Path("a.xmp"));
  LUMIDEX_LINK_OR_SKIP(sidecar, Path("b.xmp"));
  LUMIDEX_LINK_OR_SKIP(Path("gone"), Path("b.jpg.xmp"));
  const std::vector<EditTask> tasks = FindSidecars({Path("a.jpg"), Path("b.jpg")});
  EXPECT_THAT(tasks[0].sidecars, ElementsAre(sidecar));
  EXPECT_THAT(tasks[1].sidecars, IsEmpty());
}

TEST_F(PhotoSidecars, StayWithThePhotoThatTheyLieBesideWhateverLinksLeadToThem) {
  for (const char* const name : {"a/1.jpg", "a/1.xmp", "b/2.jpg", "b/3.CR2", "b/3.jpg", "b/3.xmp"}) {
    Make(name);
  }
  LUMIDEX_LINK_OR_SKIP(Path("a/1.xmp"), Path("b/2.xmp"));
  LUMIDEX_LINK_OR_SKIP(Path("b/3.xmp"), Path("b/3.jpg.xmp"));
  EXPECT_THAT(Of(Path("b/2.jpg")), IsEmpty());
  EXPECT_THAT(Of(Path("b/3.jpg")), IsEmpty()) << "it is the raw file's";
  EXPECT_THAT(Of(Path("a/1.jpg")), ElementsAre(Path("a/1.xmp")));
  const std::vector<EditTask> tasks = FindSidecars({Path("b/2.jpg"), Path("a/1.jpg")});
  EXPECT_THAT(tasks[0].sidecars, IsEmpty());
  EXPECT_THAT(tasks[1].sidecars, ElementsAre(Path("a/1.xmp")));
}

TEST_F(PhotoSidecars, AreFoundByLinksOfThePhotoItself) {
  const ioPath photo = Make("real/x.jpg");
  const ioPath sidecar = Make("named/a.xmp");
  LUMIDEX_LINK_OR_SKIP(photo, Path("named/a.jpg"));
  LUMIDEX_LINK_OR_SKIP(sidecar, Path("real/x.xmp"));
  EXPECT_THAT(Of(photo), ElementsAre(sidecar));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
