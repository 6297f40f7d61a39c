// The scenes are so far from each other that finding similar photos never mixes them.

#include "SamplePlan.h"

#include <host/catalogue/Catalogue.h>
#include <host/pixels/PhotoAnalysis.h>
#include <host/scan/Scanner.h>
#include <host/similar/SimilarUpdate.h>
#include <samples/Sample.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace Zenvora::Lumidex::Host {
namespace {

TEST(SampleScenes, AreNeverOfOneGroup) {
  const Zenvora::Test::TempTree tree;
  const ioPath folder = tree.Path("sample");
  const SampleOptions options;
  MakeSample(folder, options, {});
  std::map<ioPath, SceneKind> kinds;
  for (const SampleShot& shot : PlanSample(options.seed, options.photos)) {
    kinds[folder / ioPath(shot.path)] = shot.look.kind;
  }
  const ioPath file = tree.Path("catalogue.sqlite");
  {
    Catalogue catalogue(file, Catalogue::Mode::ReadWrite);
    ASSERT_EQ(Scan(catalogue, {folder}, {}, {}).added, kinds.size());
  }
  const LayoutAnalyser analyser;
  SimilarPhotos similar(file, NameOf(analyser));
  EXPECT_EQ(UpdateSimilar(similar, analyser, {}, {}).clustered, kinds.size());
  const std::vector<SimilarGroup> groups = similar.Groups(2);
  EXPECT_GE(groups.size(), 10U) << "bursts are groups";
  for (const SimilarGroup& group : groups) {
    std::set<SceneKind> inGroup;
    for (const SimilarMember& member : group.members) {
      inGroup.insert(kinds.at(member.photo.path));
    }
    EXPECT_EQ(inGroup.size(), 1U) << "group " << group.number << " with " << group.members.front().photo.path;
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
