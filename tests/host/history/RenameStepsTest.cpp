#include <host/base/RenameNames.h>
#include <host/rename/RenamePlan.h>
#include <support/Soak.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

constexpr std::uint32_t kSeed = 20240501;

/// A folder in memory: names and what their files hold.
class Folder {
 public:
  /// `caseIgnored`: names that differ by case or Unicode form only are one.
  explicit Folder(bool caseIgnored) : caseIgnored_(caseIgnored) {}

  void Put(const ioPath& path, const std::string& content) { files_[Key(path)] = {path, content}; }
  bool Has(const ioPath& path) const { return files_.count(Key(path)) > 0; }

  testing::AssertionResult Move(const ioPath& from, const ioPath& to) {
    const auto source = files_.find(Key(from));
    if (source == files_.end() || source->second.first != from) {
      return testing::AssertionFailure() << from << " is not there";
    }
    if (Has(to)) {
      return testing::AssertionFailure() << to << " is taken";
    }
    const std::string content = source->second.second;
    files_.erase(source);
    Put(to, content);
    return testing::AssertionSuccess();
  }

  /// Contents by name as spelled.
  std::map<std::string, std::string> Listing() const {
    std::map<std::string, std::string> listing;
    for (const auto& [key, file] : files_) {
      listing[file.first.utf8string()] = file.second;
    }
    return listing;
  }

 private:
  std::string Key(const ioPath& path) const {
    return caseIgnored_ ? NameKey(path.utf8string()) : path.utf8string();
  }

  bool caseIgnored_;
  std::map<std::string, std::pair<ioPath, std::string>> files_;
};

struct Scene {
  std::vector<RenameShot> shots;
  std::vector<ioPath> entries;
  RenameOptions options;
};

using Random = std::mt19937;

std::uint32_t Below(Random& random, std::uint32_t limit) {
  return static_cast<std::uint32_t>(random() % limit);
}

/// Up to twelve shots, most of whose names are also wanted by others of them.
Scene MakeScene(Random& random, bool caseIgnored) {
  const std::uint32_t count = 1 + Below(random, 12);
  Scene scene;
  scene.options.start = Below(random, 6);
  scene.options.token = "t";
  std::set<std::string> used;
  while (scene.shots.size() < count) {
    const char* const starts[] = {"x", "X", "y"};
    const std::string name = starts[Below(random, 3)] + std::to_string(Below(random, count + 6));
    if (!used.insert(caseIgnored ? NameKey(name) : name).second) {
      continue;
    }
    RenameShot shot;
    shot.set.name = name;
    for (const char* suffix : {".jpg", ".cr2", ".cr2.xmp"}) {
      if (shot.set.files.empty() || Below(random, 3) == 0) {
        shot.set.files.push_back({ioPath(name + suffix), suffix});
        scene.entries.push_back(shot.set.files.back().path);
      }
    }
    scene.shots.push_back(shot);
  }
  const std::string stranger = "x" + std::to_string(Below(random, 30));
  if (Below(random, 4) == 0 && used.count(stranger) == 0) {
    scene.entries.push_back(stranger + ".jpg");
  }
  return scene;
}

Folder MakeFolder(const Scene& scene, bool caseIgnored) {
  Folder folder(caseIgnored);
  for (const ioPath& entry : scene.entries) {
    folder.Put(entry, "content of " + entry.utf8string());
  }
  return folder;
}

/// Runs the first steps and takes them back.
void CheckPrefix(const Folder& start, const std::vector<RenameMove>& steps, std::size_t length) {
  Folder folder = start;
  for (std::size_t i = 0; i < length; ++i) {
    ASSERT_TRUE(folder.Move(steps[i].from, steps[i].to)) << "step " << i;
  }
  for (std::size_t i = length; i > 0; --i) {
    ASSERT_TRUE(folder.Move(steps[i - 1].to, steps[i - 1].from))
        << "undoing step " << i - 1 << " of " << length;
  }
  EXPECT_EQ(folder.Listing(), start.Listing());
}

/// What was asked: the k-th shot has the k-th number.
std::map<std::string, std::string> Wanted(const Scene& scene, const Folder& start, const RenamePlan& plan) {
  std::set<std::size_t> staying;
  for (const RenameProblem& problem : plan.problems) {
    staying.insert(problem.shot);
  }
  std::map<std::string, std::string> wanted = start.Listing();
  std::map<std::string, std::string> arrived;
  for (std::size_t i = 0; i < scene.shots.size(); ++i) {
    if (staying.count(i) > 0) {
      continue;
    }
    for (const ShotFile& file : scene.shots[i].set.files) {
      wanted.erase(file.path.utf8string());
      arrived["x" + std::to_string(scene.options.start + i) + file.suffix] =
          "content of " + file.path.utf8string();
    }
  }
  const std::size_t all = wanted.size() + arrived.size();
  wanted.insert(arrived.begin(), arrived.end());
  EXPECT_EQ(wanted.size(), all) << "two files would have one name";
  return wanted;
}

void CheckScene(const Scene& scene, bool caseIgnored, RenamePlan& plan) {
  RenamePatternFault fault;
  const auto pattern = RenamePattern::Parse("x{number}", fault);
  ASSERT_TRUE(pattern);
  plan = MakeRenamePlan(scene.shots, *pattern, scene.entries, scene.options);
  const Folder start = MakeFolder(scene, caseIgnored);
  if (!plan.problems.empty() && scene.options.onProblem == RenameFailing::Nothing) {
    EXPECT_TRUE(plan.steps.empty());
    return;
  }
  Folder folder = start;
  for (const RenameMove& step : plan.steps) {
    ASSERT_TRUE(folder.Move(step.from, step.to));
  }
  EXPECT_EQ(folder.Listing(), Wanted(scene, start, plan));
  for (std::size_t length = 0; length <= plan.steps.size(); ++length) {
    ASSERT_NO_FATAL_FAILURE(CheckPrefix(start, plan.steps, length));
  }
}

class RenameSteps : public testing::TestWithParam<std::tuple<bool, RenameFailing>> {};

TEST_P(RenameSteps, ReachWhatWasAskedAndCanBeUndoneAtAnyPoint) {
  const auto [caseIgnored, onProblem] = GetParam();
  std::cout << "seed " << kSeed << '\n';
  Random random(kSeed);
  std::size_t withSteps = 0;
  std::size_t withCircles = 0;
  std::size_t withProblems = 0;
  for (int round = 0; round < 1500; ++round) {
    SCOPED_TRACE(round);
    Scene scene = MakeScene(random, caseIgnored);
    scene.options.onProblem = onProblem;
    RenamePlan plan;
    ASSERT_NO_FATAL_FAILURE(CheckScene(scene, caseIgnored, plan));
    withSteps += plan.steps.empty() ? 0 : 1;
    withCircles += plan.steps.size() > plan.renames.size() ? 1 : 0;
    withProblems += plan.problems.empty() ? 0 : 1;
  }
  // Else the scenes would show nothing.
  EXPECT_GT(withSteps, 400U);
  EXPECT_GT(withCircles, 100U);
  EXPECT_GT(withProblems, 30U);
}

INSTANTIATE_TEST_SUITE_P(Disks, RenameSteps,
                         testing::Combine(testing::Bool(),
                                          testing::Values(RenameFailing::Nothing, RenameFailing::Others)));

TEST(RenameSteps, TurnAnyPermutationOfTwelveNames) {
  std::cout << "seed " << kSeed << '\n';
  Random random(kSeed);
  std::vector<int> numbers = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE(round);
    std::shuffle(numbers.begin(), numbers.end(), random);
    Scene scene;
    scene.options.token = "t";
    for (const int number : numbers) {
      const std::string name = "x" + std::to_string(number);
      scene.shots.push_back({{name, {{ioPath(name + ".jpg"), ".jpg"}}}, {}});
      scene.entries.push_back(name + ".jpg");
    }
    RenamePlan plan;
    ASSERT_NO_FATAL_FAILURE(CheckScene(scene, true, plan));
    ASSERT_TRUE(plan.problems.empty());
    EXPECT_EQ(plan.renames.size() + plan.unchanged, 12U);
  }
}

TEST(RenameSteps, AreFoundForManyFilesInOneCircle) {
  const std::size_t files = Zenvora::Test::SoakOr<std::size_t>(100'000, 5'000);
  Scene scene;
  scene.options.token = "t";
  for (std::size_t i = 1; i <= files; ++i) {
    const std::string name = "x" + std::to_string(i % files + 1);
    scene.shots.push_back({{name, {{ioPath(name + ".jpg"), ".jpg"}}}, {}});
    scene.entries.push_back(name + ".jpg");
  }
  RenamePatternFault fault;
  const RenamePlan plan =
      MakeRenamePlan(scene.shots, *RenamePattern::Parse("x{number}", fault), scene.entries, scene.options);
  ASSERT_EQ(plan.steps.size(), files + 1);
  Folder folder = MakeFolder(scene, true);
  for (const RenameMove& step : plan.steps) {
    ASSERT_TRUE(folder.Move(step.from, step.to));
  }
  EXPECT_TRUE(folder.Has("x1.jpg"));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
