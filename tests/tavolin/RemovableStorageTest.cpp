// One contract for removable storage, kept by the system's and by the double.

#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/tavolin/RemovableStorage.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Tavolin {
namespace {

using Zenvora::Test::FakeRemovableStorage;
using Zenvora::Test::TempTree;

class RemovableStorageContract : public testing::TestWithParam<bool> {
 protected:
  const std::shared_ptr<App::IRemovableStorage> storage_ =
      GetParam() ? MakeSystemRemovableStorage() : std::make_shared<FakeRemovableStorage>();
  const TempTree tree_;
};

TEST_P(RemovableStorageContract, KeepsTheFolderOfTheTests) {
  EXPECT_TRUE(storage_->Removable({}).empty());
  EXPECT_TRUE(storage_->Removable({tree_.Path(), tree_.Path()}).empty());
}

TEST_P(RemovableStorageContract, TakesWhatIsUnknownForKept) {
  EXPECT_TRUE(storage_
                  ->Removable({ioPath(), ioPath("/"), tree_.Path("missing/deep/in"), ioPath("relative"),
                               ioPath(std::string("a\0b", 3)), ioPath("\xff"), ioPath("no:where")})
                  .empty());
}

INSTANTIATE_TEST_SUITE_P(Both, RemovableStorageContract, testing::Bool());

TEST(RemovableStorage, IsAskedOfTheRegistry) {
  const auto fake = std::make_shared<FakeRemovableStorage>();
  const App::ServiceScope<App::IRemovableStorage> scope(fake);
  fake->roots = {"/media/stick"};
  EXPECT_TRUE(IsRemovable(QStringLiteral("/media/stick")));
  EXPECT_TRUE(IsRemovable(QStringLiteral("/media/stick/DCIM/")));
  EXPECT_FALSE(IsRemovable(QStringLiteral("/media/stick2")));
  EXPECT_EQ(GetRemovable({"/media/stick/b/", "/home", "/media/stick/a/"}),
            (std::vector<ioPath>{"/media/stick/b/", "/media/stick/a/"}));
  EXPECT_EQ(fake->asked.size(), 4U);
}

TEST(RemovableStorage, IsTheSystemsWithoutAnother) {
  const TempTree tree;
  EXPECT_FALSE(IsRemovable(tree.Path().qstring()));
  EXPECT_TRUE(GetRemovable({tree.Path()}).empty());
}

}  // namespace
}  // namespace Zenvora::Tavolin
