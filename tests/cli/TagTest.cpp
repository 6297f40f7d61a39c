#include "ChangeFixture.h"

#include <QJsonArray>

#include <string>
#include <vector>

namespace Zenvora::Test {
namespace {

class TagCommand : public ChangeTest {
 protected:
  TagCommand() {
    Photo("a.jpg");
    Photo("b.jpg");
    EXPECT_EQ(Run({"scan", "photos"}).exitCode, 0);
  }

  /// "own Beach", in the order of the output.
  std::vector<std::string> TagsOf(const char* name) const {
    const QJsonObject document =
        Run({"tag", "--json", QStringLiteral("photos/") + QLatin1String(name)}).Json();
    const QJsonArray photos = document["photos"].toArray();
    if (photos.size() != 1) {
      return {"not one photo"};
    }
    std::vector<std::string> tags;
    for (const QJsonValue& tag : photos[0].toObject()["tags"].toArray()) {
      tags.push_back(
          (tag.toObject()["type"].toString() + ' ' + tag.toObject()["key"].toString()).toStdString());
    }
    return tags;
  }
};

TEST_F(TagCommand, GivesAndTakesTags) {
  const Ran added = Run({"tag", "photos/a.jpg", "photos/b.jpg", "+Beach", "+family"});
  EXPECT_EQ(added.exitCode, 0) << added.err;
  EXPECT_EQ(added.out, "2 photos changed; \"lumidex undo\" undoes it.\n");
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Beach", "system Family"));
  const Ran removed = Run({"tag", "-beach", "photos/a.jpg"});
  EXPECT_EQ(removed.exitCode, 0);
  EXPECT_EQ(removed.out, "1 photo changed; \"lumidex undo\" undoes it.\n");
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("system Family"));
  EXPECT_THAT(TagsOf("b.jpg"), ElementsAre("own Beach", "system Family"));
}

TEST_F(TagCommand, IsUndoneAndDoneAgain) {
  ASSERT_EQ(Run({"tag", "photos", "+Beach"}).exitCode, 0);
  ASSERT_EQ(Run({"tag", "photos", "-Beach", "+Trip"}).exitCode, 0);
  EXPECT_EQ(Run({"undo"}).out, "Undone: tag +Trip -Beach.\n");
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Beach"));
  EXPECT_EQ(Run({"redo"}).out, "Redone: tag +Trip -Beach.\n");
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Trip"));
  ASSERT_EQ(Run({"undo", "--last", "2"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), IsEmpty());
}

TEST_F(TagCommand, KeepsTagsThroughRenamesAndEdits) {
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "+Beach"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "right", "photos/a.jpg"}).exitCode, 0);
  ASSERT_EQ(Rename("x{number}", {"photos/a.jpg"}).exitCode, 0);
  EXPECT_THAT(TagsOf("x1.jpg"), ElementsAre("own Beach"));
  ASSERT_EQ(Run({"scan", "--full", "photos"}).exitCode, 0);
  EXPECT_THAT(TagsOf("x1.jpg"), ElementsAre("own Beach"));
}

TEST_F(TagCommand, TakesWordsBehindItsOptionsForWhatTheyAre) {
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "--add", "+odd", "--add=-odder", "+qv", "+--json"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own +odd", "own --json", "own -odder", "own qv"));
  ASSERT_EQ(Run({"-q", "tag", "photos/a.jpg", "-qv", "--remove", "-odder", "-+odd"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own --json"));
  // One letter is an option of the program.
  EXPECT_EQ(Run({"tag", "photos/a.jpg", "+x", "-q"}).exitCode, 0);
  EXPECT_EQ(Run({"tag", "photos/a.jpg", "--remove", "x"}).exitCode, 0);
}

TEST_F(TagCommand, TakesAllWordsBehindTwoDashesForFiles) {
  tree.Write("+plus.jpg", ReadFile(Photos() / "a.jpg"));
  ASSERT_EQ(Run({"scan", "."}).exitCode, 0);
  EXPECT_EQ(Run({"tag", "+Beach", "--", "+plus.jpg"}).exitCode, 0);
  EXPECT_EQ(Run({"tag", "+Trip", "./+plus.jpg"}).exitCode, 0);
  const Ran ran = Run({"tag", "--", "+plus.jpg"});
  EXPECT_THAT(ran.out, HasSubstr("Beach, Trip"));
}

TEST_F(TagCommand, ShowsBuiltInTagsInTheLanguageOfTheInterface) {
  ASSERT_EQ(Run({"tag", "--lang", "de_DE", "photos/a.jpg", "+Flugzeug", "+Beach", "+Reisen"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Beach", "system Travel", "icon plane"));
  EXPECT_EQ(Run({"tag"}).out,
            "TAG     TYPE    PHOTOS\n"
            "Beach   own          1\n"
            "Travel  system       1\n"
            "Plane   icon         1\n");
  EXPECT_EQ(Run({"tag", "--lang", "de_DE"}).out,
            "SCHLAGWORT  ART      FOTOS\n"
            "Beach       eigenes      1\n"
            "Reisen      System       1\n"
            "Flugzeug    Symbol       1\n");
  const Ran photo = Run({"tag", "--lang", "fr_FR", "photos/a.jpg"});
  EXPECT_THAT(photo.out, HasSubstr("Beach, Voyage, Avion  "));
}

TEST_F(TagCommand, MakesOneTagOfWordsThatLookAlike) {
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "+Caf\u00E9 Roma"}).exitCode, 0);
  ASSERT_EQ(Run({"tag", "photos/b.jpg", "+CAFE  roma"}).exitCode, 0);
  EXPECT_THAT(TagsOf("b.jpg"), ElementsAre("own Caf\u00E9 Roma"));
  // The English word of the dictionary begins with a Cyrillic letter.
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "+Camera"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Caf\u00E9 Roma", "icon camera"));
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "-CAMERA"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Caf\u00E9 Roma"));
}

TEST_F(TagCommand, MakesOneTagOfNewWordsThatLookAlike) {
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "+Beach", "+beach", "+B\u0435ach", "+Bea\u200Bch"}).exitCode, 0);
  EXPECT_THAT(TagsOf("a.jpg"), ElementsAre("own Beach"));
}

TEST_F(TagCommand, SaysThatThereIsNothingToShowOrToChange) {
  const Ran none = Run({"tag"});
  EXPECT_EQ(none.exitCode, 1);
  EXPECT_THAT(none.out, HasSubstr("No photo has a tag yet"));
  ASSERT_EQ(Run({"tag", "photos/a.jpg", "+Beach"}).exitCode, 0);
  const Ran again = Run({"tag", "photos/a.jpg", "+beach"});
  EXPECT_EQ(again.exitCode, 1);
  EXPECT_EQ(again.out, "Nothing was changed.\n");
  const Ran unknown = Run({"tag", "photos/a.jpg", "-Trip"});
  EXPECT_EQ(unknown.exitCode, 1);
  EXPECT_THAT(unknown.err, HasSubstr("No photo has the tag \"Trip\"."));
  EXPECT_THAT(Run({"undo"}).out, HasSubstr("tag +Beach"));
}

TEST_F(TagCommand, ListsFilesThatItCannotTag) {
  WriteJpeg(Photos() / "new.jpg");
  tree.Write("photos/text.txt", "text");
  const Ran partly =
      Run({"tag", "photos/a.jpg", "photos/new.jpg", "photos/text.txt", "photos/none.jpg", "+Beach"});
  EXPECT_EQ(partly.exitCode, 3);
  EXPECT_THAT(partly.out, HasSubstr("new.jpg is not in the catalogue. Run: lumidex scan DIR"));
  EXPECT_THAT(partly.out, HasSubstr("text.txt is not named like a photo."));
  EXPECT_THAT(partly.out, HasSubstr("none.jpg does not exist."));
  EXPECT_THAT(partly.out, HasSubstr("1 photo changed"));
  const Ran none = Run({"tag", "photos/new.jpg", "+Beach"});
  EXPECT_EQ(none.exitCode, 4);
  EXPECT_EQ(Run({"tag", "photos/new.jpg"}).exitCode, 4);
}

TEST_F(TagCommand, RefusesLinesThatMakeNoSense) {
  for (const QStringList& line : std::vector<QStringList>{{"tag", "+Beach"},
                                                          {"tag", "photos", "+"},
                                                          {"tag", "photos", "+ "},
                                                          {"tag", "photos", "+\u200B"},
                                                          {"tag", "photos", "+New", "-new"},
                                                          {"tag", "photos", "+Beach\a"},
                                                          {"tag", "photos", "+" + QString(201, 'x')},
                                                          {"tag", "photos", "--add"},
                                                          {"tag", "--lang", "xx", "photos"}}) {
    const Ran ran = Run(line);
    EXPECT_EQ(ran.exitCode, 2) << line.join(QLatin1Char(' ')).toStdString() << ran.out;
  }
  ASSERT_EQ(Run({"tag", "photos", "+Beach"}).exitCode, 0);
  const Ran both = Run({"tag", "photos", "+Beach", "-beach"});
  EXPECT_EQ(both.exitCode, 2);
  EXPECT_THAT(both.err, HasSubstr("added and removed at once"));
}

TEST_F(TagCommand, NeedsACatalogueAndMakesNone) {
  for (const QStringList& line :
       std::vector<QStringList>{{"tag"}, {"tag", "photos"}, {"tag", "photos", "+Beach"}}) {
    const Ran ran = Run(QStringList{"-c", "none.sqlite"} + line);
    EXPECT_EQ(ran.exitCode, 4);
    EXPECT_THAT(ran.err, HasSubstr("There is no catalogue"));
  }
  EXPECT_FALSE(tree.Path("none.sqlite").exists());
}

TEST_F(TagCommand, WritesOneDocumentWithAllItsMembers) {
  const QJsonObject change = Run({"tag", "--json", "photos", "+Beach", "+Plane"}).Json();
  EXPECT_EQ(change["format"].toString(), QStringLiteral("lumidex.tag"));
  EXPECT_EQ(change["version"].toInt(), 1);
  EXPECT_EQ(change["catalogue"].toString(), Text(DefaultCatalogue()));
  EXPECT_EQ(change["kind"].toString(), QStringLiteral("change"));
  EXPECT_EQ(change["changed"].toInt(), 2);
  EXPECT_EQ(change["photos"].toArray().size(), 2);
  EXPECT_EQ(change["photos"].toArray()[0].toObject()["tags"].toArray().size(), 2);
  ASSERT_EQ(change["added"].toArray().size(), 2);
  const QJsonObject icon = change["added"].toArray()[1].toObject();
  EXPECT_EQ(icon["type"].toString(), QStringLiteral("icon"));
  EXPECT_EQ(icon["key"].toString(), QStringLiteral("plane"));
  EXPECT_EQ(icon["name"].toString(), QStringLiteral("Plane"));
  EXPECT_TRUE(change["removed"].toArray().isEmpty());
  EXPECT_TRUE(change["canBeUndone"].toBool());
  EXPECT_TRUE(change["findings"].isArray());
  EXPECT_TRUE(change["recovered"].isArray());
  const QJsonObject all = Run({"tag", "--json"}).Json();
  EXPECT_EQ(all["kind"].toString(), QStringLiteral("tags"));
  ASSERT_EQ(all["tags"].toArray().size(), 2);
  EXPECT_EQ(all["tags"].toArray()[0].toObject()["photos"].toInt(), 2);
}

}  // namespace
}  // namespace Zenvora::Test
