#include <host/scan/Scanner.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;

using Test::MakeLink;
using Test::Slashes;
using Test::TempTree;
using Test::WriteJpeg;
using testing::ElementsAre;
using testing::IsEmpty;

using Kind = ScanFinding::Kind;

class ScannerLinks : public testing::Test {
 protected:
  void SetUp() override { LUMIDEX_LINK_OR_SKIP("nowhere", tree_.Path("links can be made")); }

  TempTree tree_;
  const ioPath root_ = tree_.MakeFolder("root");
  const ioPath outside_ = tree_.MakeFolder("outside");
  Catalogue catalogue_{tree_.Path("c.sqlite"), Catalogue::Mode::ReadWrite};

  void Link(const std::string& target, const ioPath& link) const {
    fs::create_directories(link.parent_path().native());
    ASSERT_TRUE(MakeLink(target, link));
  }
  ScanResult Run() { return Scan(catalogue_, {root_}, ScanOptions(), nullptr); }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      names.insert(Slashes(photo.path).substr(tree_.Path().utf8string().size() + 1));
    }
    return names;
  }
};

TEST_F(ScannerLinks, ToFoldersElsewhereAreFollowed) {
  WriteJpeg(outside_ / "deep/a.jpg");
  Link(outside_.utf8string(), root_ / "link");
  EXPECT_THAT(Run().findings, IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("root/link/deep/a.jpg"));
}

TEST_F(ScannerLinks, ToTheSameFolderAreFollowedOnce) {
  WriteJpeg(outside_ / "a.jpg");
  Link(outside_.utf8string(), root_ / "1");
  Link("../outside", root_ / "2");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 1U);
  EXPECT_THAT(Names(), ElementsAre("root/1/a.jpg"));
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].kind, Kind::Loop);
  EXPECT_EQ(result.findings[0].path, root_ / "2");
}

TEST_F(ScannerLinks, NeverHideTheFolderItself) {
  // The link's name comes first.
  Link("z", root_ / "a");
  WriteJpeg(root_ / "z/a.jpg");
  const ScanResult result = Run();
  EXPECT_THAT(Names(), ElementsAre("root/z/a.jpg"));
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].path, root_ / "a");
}

TEST_F(ScannerLinks, BackUpwardsAreLoops) {
  WriteJpeg(root_ / "sub/a.jpg");
  Link("..", root_ / "sub/up");
  Link(".", root_ / "sub/here");
  Link("/", root_ / "sub/top");
  Link("self", root_ / "self");
  Link("pong", root_ / "ping");
  Link("ping", root_ / "pong");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 1U);
  ASSERT_EQ(result.findings.size(), 6U);
  for (const ScanFinding& finding : result.findings) {
    EXPECT_EQ(finding.kind, Kind::Loop) << finding.path;
    EXPECT_FALSE(finding.cause.empty());
  }
}

TEST_F(ScannerLinks, BetweenOutsideFoldersEnd) {
  WriteJpeg(outside_ / "a/1.jpg");
  WriteJpeg(outside_ / "b/2.jpg");
  Link("../b", outside_ / "a/to-b");
  Link("../a", outside_ / "b/to-a");
  Link(outside_.utf8string() + "/a", root_ / "link");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 2U);
  EXPECT_THAT(Names(), ElementsAre("root/link/1.jpg", "root/link/to-b/2.jpg"));
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].kind, Kind::Loop);
}

TEST_F(ScannerLinks, ToFilesCountOnce) {
  const ioPath inside = WriteJpeg(root_ / "z/inside.jpg");
  const ioPath other = WriteJpeg(outside_ / "other.jpg");
  Link(inside.utf8string(), root_ / "a.jpg");
  Link(other.utf8string(), root_ / "b.jpg");
  Link(other.utf8string(), root_ / "c.jpg");
  Link(other.utf8string(), root_ / "no-photo-name");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 2U);
  EXPECT_THAT(Names(), ElementsAre("root/b.jpg", "root/z/inside.jpg"));
  EXPECT_THAT(result.findings, IsEmpty());
  EXPECT_EQ(Run().unchanged, 2U);
}

TEST_F(ScannerLinks, ToAFileInALinkedFolderCountOnce) {
  const ioPath file = WriteJpeg(outside_ / "a.jpg");
  Link(file.utf8string(), root_ / "a.jpg");
  Link(outside_.utf8string(), root_ / "folder");
  EXPECT_EQ(Run().found, 1U);
  EXPECT_THAT(Names(), ElementsAre("root/folder/a.jpg"));
}

TEST_F(ScannerLinks, ThatLeadNowhereAreFindingsWhenTheyAreNamedLikePhotos) {
  Link("nowhere", root_ / "a.jpg");
  Link("nowhere", root_ / "folder");
  const ScanResult result = Run();
  EXPECT_EQ(result.found, 0U);
  ASSERT_EQ(result.findings.size(), 1U);
  EXPECT_EQ(result.findings[0].kind, Kind::Unreadable);
  EXPECT_EQ(result.findings[0].path, root_ / "a.jpg");
}

TEST_F(ScannerLinks, NamedAsRootsStandForTheirTargets) {
  WriteJpeg(outside_ / "a.jpg");
  Link(outside_.utf8string(), tree_.Path("named"));
  Scan(catalogue_, {tree_.Path("named")}, ScanOptions(), nullptr);
  EXPECT_THAT(Names(), ElementsAre("outside/a.jpg"));
  EXPECT_EQ(Scan(catalogue_, {outside_}, ScanOptions(), nullptr).unchanged, 1U);
}

TEST_F(ScannerLinks, ThatAreGoneTakeTheirPhotosWithThem) {
  WriteJpeg(outside_ / "a.jpg");
  Link(outside_.utf8string(), root_ / "link");
  Run();
  fs::remove((root_ / "link").native());
  EXPECT_EQ(Run().lost, 1U);
}

TEST_F(ScannerLinks, ThatAreNotFollowedAnyMoreLoseNothing) {
  WriteJpeg(outside_ / "a.jpg");
  Link(outside_.utf8string(), root_ / "link");
  Run();
  const ScanResult result = Scan(catalogue_, {root_, outside_}, ScanOptions(), nullptr);
  EXPECT_EQ(result.lost, 0U) << "the file is still there under its former name";
}

TEST_F(ScannerLinks, ThatAreHiddenArePassedOver) {
  WriteJpeg(outside_ / "a.jpg");
  Link(outside_.utf8string(), root_ / ".link");
  EXPECT_EQ(Run().found, 0U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
