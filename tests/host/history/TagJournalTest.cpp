#include "FolderTrash.h"
#include "RawSql.h"
#include "Records.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/catalogue/Catalogue.h>
#include <host/history/UndoJournal.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Tag Own(const char* name) {
  return {TagType::Own, QString::fromUtf8(name)};
}

const Tag kFamily = {TagType::System, QStringLiteral("Family")};

class TagJournal : public ::testing::Test {
 protected:
  TagJournal() {
    std::vector<PhotoRecord> photos;
    for (const char* const name : {"a.jpg", "b.jpg", "c.jpg"}) {
      photos.push_back(Zenvora::Test::Photo(tree_.Write(std::string("photos/") + name, name)));
    }
    catalogue_.Store(photos);
  }

  ioPath Photo(const std::string& name) const { return tree_.Path("photos") / ioPath(name); }

  std::size_t Change(const std::vector<std::string>& names, const std::vector<Tag>& add,
                     const std::vector<Tag>& remove = {}) {
    TagWishes wishes;
    for (const std::string& name : names) {
      wishes.photos.push_back(Photo(name));
    }
    wishes.add = add;
    wishes.remove = remove;
    return journal_.Tags().Run(QStringLiteral("tag"), wishes).files;
  }
  std::size_t Undo() { return journal_.UndoLast(never_, nullptr).files; }
  std::size_t Redo() { return journal_.RedoLast(never_, nullptr).files; }

  /// Of the photo that has this name in the catalogue now.
  std::vector<Tag> TagsOf(const std::string& name) const {
    for (const PhotoRecord& photo : catalogue_.Photos()) {
      if (photo.path == Photo(name)) {
        auto tags = catalogue_.PhotoTags();
        return tags[photo.id.toStdString()];
      }
    }
    return {Own("no such photo")};
  }

  const std::atomic<bool> never_{false};
  Zenvora::Test::TempTree tree_;
  Zenvora::Test::FolderTrash trash_{tree_.MakeFolder("trash")};
  const ioPath file_ = tree_.Path("catalogue.sqlite");
  Catalogue catalogue_{file_, Catalogue::Mode::ReadWrite};
  boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
  UndoJournal journal_{file_, *locker_, trash_};
};

TEST_F(TagJournal, GivesAndTakesTagsInOneStep) {
  EXPECT_EQ(Change({"a.jpg", "b.jpg"}, {Own("Beach"), kFamily}), 2U);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Beach"), kFamily));
  EXPECT_THAT(TagsOf("b.jpg"), ElementsAre(Own("Beach"), kFamily));
  EXPECT_THAT(TagsOf("c.jpg"), IsEmpty());
  EXPECT_EQ(Change({"a.jpg"}, {Own("Trip")}, {Own("Beach")}), 1U);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Trip"), kFamily));
  const std::vector<UndoStep> steps = journal_.Steps();
  ASSERT_EQ(steps.size(), 2U);
  EXPECT_EQ(steps[0].files, 1U);
  EXPECT_EQ(steps[1].files, 2U);
  EXPECT_EQ(steps[0].keptBytes, 0U);
}

TEST_F(TagJournal, TellsTagsOfOneNameApartByTheirTypes) {
  Change({"a.jpg"}, {Own("Family"), kFamily, {TagType::Icon, QStringLiteral("Family")}});
  Change({"a.jpg"}, {}, {kFamily});
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Family"), Tag{TagType::Icon, QStringLiteral("Family")}));
}

TEST_F(TagJournal, MakesNoStepOfWhatChangesNothing) {
  EXPECT_EQ(Change({"a.jpg"}, {Own("Beach")}), 1U);
  EXPECT_EQ(Change({"a.jpg"}, {Own("Beach")}), 0U);
  EXPECT_EQ(Change({"a.jpg"}, {}, {Own("Unknown")}), 0U);
  EXPECT_EQ(Change({"elsewhere.jpg"}, {Own("Beach")}), 0U);
  EXPECT_EQ(Change({}, {Own("Beach")}), 0U);
  EXPECT_EQ(journal_.Steps().size(), 1U);
}

TEST_F(TagJournal, TakesBackWhatTheStepChangedAndNothingElse) {
  Change({"a.jpg"}, {Own("Beach")});
  Change({"a.jpg", "b.jpg"}, {Own("Beach"), Own("Trip")});
  EXPECT_EQ(Undo(), 2U);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Beach")));
  EXPECT_THAT(TagsOf("b.jpg"), IsEmpty());
  EXPECT_EQ(Redo(), 2U);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Beach"), Own("Trip")));
  EXPECT_THAT(TagsOf("b.jpg"), ElementsAre(Own("Beach"), Own("Trip")));
  EXPECT_EQ(Undo(), 2U);
  EXPECT_EQ(Undo(), 1U);
  EXPECT_THAT(TagsOf("a.jpg"), IsEmpty());
  EXPECT_EQ(Undo(), 0U);
}

TEST_F(TagJournal, GivesBackWhatAStepTookAway) {
  Change({"a.jpg"}, {Own("Beach"), kFamily});
  Change({"a.jpg"}, {}, {Own("Beach"), kFamily});
  EXPECT_THAT(TagsOf("a.jpg"), IsEmpty());
  Undo();
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Beach"), kFamily));
}

TEST_F(TagJournal, ForgetsWhatWasTakenBackWhenSomethingNewIsDone) {
  Change({"a.jpg"}, {Own("Beach")});
  Undo();
  Change({"a.jpg"}, {Own("Trip")});
  EXPECT_EQ(Redo(), 0U);
  EXPECT_EQ(journal_.Steps().size(), 1U);
  EXPECT_EQ(Zenvora::Test::RunSql(file_, {"SELECT count(*) FROM tag_changes"}).toInt(), 1);
}

TEST_F(TagJournal, KeepsTagsWithAPhotoThatIsRenamed) {
  Change({"a.jpg"}, {Own("Beach")});
  RenamePlan plan;
  plan.steps = {{Photo("a.jpg"), Photo("x.jpg")}};
  plan.renames = plan.steps;
  ASSERT_EQ(journal_.Renames().Run(QStringLiteral("rename"), plan, never_, nullptr).files, 1U);
  EXPECT_THAT(TagsOf("x.jpg"), ElementsAre(Own("Beach")));
  EXPECT_EQ(Undo(), 1U);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Beach")));
  EXPECT_EQ(Undo(), 1U);
  EXPECT_THAT(TagsOf("a.jpg"), IsEmpty());
}

TEST_F(TagJournal, KeepsTagsWithAPhotoThatGoesToTheTrash) {
  Change({"a.jpg"}, {Own("Beach")});
  const auto known = [](const ioPath& path) {
    const FileState state = QueryFile(path);
    return SeenFile{path, state.size, state.modifiedNs};
  };
  const TrashPhoto going = {known(Photo("a.jpg")), known(Photo("b.jpg")), {}};
  ASSERT_EQ(journal_.Trash().Run(QStringLiteral("trash"), {going}, never_, nullptr).photos, 1U);
  EXPECT_THAT(catalogue_.PhotoTags(), IsEmpty());
  ASSERT_EQ(catalogue_.Tags().size(), 1U);
  EXPECT_EQ(catalogue_.Tags()[0].photos, 0U);
  EXPECT_EQ(Undo(), 1U);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre(Own("Beach")));
}

TEST_F(TagJournal, CountsThePhotosOfEachTag) {
  Change({"a.jpg", "b.jpg"}, {Own("Beach")});
  Change({"a.jpg"}, {kFamily});
  const std::vector<TagUse> tags = catalogue_.Tags();
  ASSERT_EQ(tags.size(), 2U);
  EXPECT_EQ(tags[0].tag, Own("Beach"));
  EXPECT_EQ(tags[0].photos, 2U);
  EXPECT_EQ(tags[1].tag, kFamily);
  EXPECT_EQ(tags[1].photos, 1U);
}

TEST_F(TagJournal, LeavesThePhotosAlone) {
  const std::string before = Zenvora::Test::ReadFile(Photo("a.jpg"));
  const FileState state = QueryFile(Photo("a.jpg"));
  Change({"a.jpg"}, {Own("Beach")});
  Undo();
  EXPECT_EQ(Zenvora::Test::ReadFile(Photo("a.jpg")), before);
  EXPECT_EQ(QueryFile(Photo("a.jpg")).modifiedNs, state.modifiedNs);
}

TEST(TagTypes, HaveNames) {
  EXPECT_STREQ(TagTypeName(TagType::Own), "own");
  EXPECT_STREQ(TagTypeName(TagType::System), "system");
  EXPECT_STREQ(TagTypeName(TagType::Icon), "icon");
  EXPECT_STREQ(TagTypeName(TagType::Automatic), "automatic");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
