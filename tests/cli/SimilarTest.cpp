#include "CliFixture.h"

#include <host/similar/Models.h>
#include <support/TinyModel.h>

#include <zenvora/core/FileState.h>

#include <QImage>
#include <QJsonArray>
#include <QPainter>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <utility>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A picture of its own for each number.
QImage Scene(int number) {
  QImage image(480, 360, QImage::Format_RGB32);
  QLinearGradient ground(0, 0, 480, 360);
  ground.setColorAt(0, QColor::fromHsv(number * 97 % 360, 120, 240));
  ground.setColorAt(1, QColor::fromHsv(number * 197 % 360, 160, 60));
  QPainter painter(&image);
  painter.fillRect(image.rect(), ground);
  for (int i = 0; i < 9; ++i) {
    painter.setBrush(QColor::fromHsv((number * 61 + i * 83) % 360, 220, 40 + (i * 71 + number * 29) % 200));
    painter.setPen(Qt::NoPen);
    const int x = (number * 131 + i * 173) % 400;
    const int y = (number * 57 + i * 117) % 290;
    if ((i + number) % 2 == 0) {
      painter.drawEllipse(x, y, 60 + i * 9, 50 + number * 7 % 40);
    } else {
      painter.drawRect(x, y, 40 + number * 11 % 60, 30 + i * 12);
    }
  }
  return image;
}

class SimilarCommand : public CliTest {
 protected:
  ioPath Save(const std::string& name, const QImage& image, int quality = 92) const {
    std::filesystem::create_directories(Photos().native());
    const ioPath file = Photos() / ioPath(name);
    EXPECT_TRUE(image.save(Text(file), nullptr, quality));
    return file;
  }
  /// One scene in three files, another in two, a third in one.
  void MakeGroups() const {
    Save("a1.jpg", Scene(1));
    Save("a2.jpg", Scene(1).scaledToWidth(240, Qt::SmoothTransformation));
    Save("a3.png", Scene(1));
    Save("b1.jpg", Scene(2), 40);
    Save("b2.jpg", Scene(2));
    Save("c.jpg", Scene(3));
  }
  void Scan() const { Run({"scan", Text(Photos())}); }

  /// Names of the members of each group, the one to keep marked.
  std::vector<std::string> Groups(const Ran& ran) const {
    std::vector<std::string> groups;
    for (const QJsonValue group : ran.Json()["groups"].toArray()) {
      std::string names;
      for (const QJsonValue member : group.toObject()["members"].toArray()) {
        const ioPath path(member.toObject()["path"].toString().toStdString());
        names += (names.empty() ? "" : " ") + path.filename().utf8string() +
                 (member.toObject()["keep"].toBool() ? "*" : "");
      }
      groups.push_back(names);
    }
    return groups;
  }
};

TEST_F(SimilarCommand, NeedsACatalogueWithPhotos) {
  const Ran none = Run({"similar"});
  EXPECT_EQ(none.exitCode, 4);
  EXPECT_THAT(none.err, HasSubstr("lumidex scan DIR"));
  std::filesystem::create_directories(Photos().native());
  Scan();
  const Ran empty = Run({"similar"});
  EXPECT_EQ(empty.exitCode, 1);
  EXPECT_THAT(empty.err, HasSubstr("holds no photos yet"));
}

TEST_F(SimilarCommand, GroupsWhatIsTheSamePicture) {
  MakeGroups();
  Scan();
  const Ran ran = Run({"similar", "--json"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(Groups(ran), ::testing::ElementsAre("a1.jpg a2.jpg a3.png*", "b1.jpg b2.jpg*"));
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.similar"));
  EXPECT_EQ(document["photos"].toInt(), 6);
  EXPECT_EQ(document["analysed"].toInt(), 6);
  EXPECT_TRUE(document["report"].isNull());
  const QJsonObject keeper = document["groups"].toArray()[0].toObject()["members"].toArray()[2].toObject();
  EXPECT_EQ(keeper["width"].toInt(), 480);
  EXPECT_EQ(keeper["height"].toInt(), 360);
  EXPECT_GT(keeper["score"].toDouble(), 0.91);
  EXPECT_EQ(keeper["reasons"].toArray()[0].toString(), QStringLiteral("largest"));
}

TEST_F(SimilarCommand, PrintsGroupsForPeople) {
  MakeGroups();
  Scan();
  const Ran ran = Run({"similar"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("Group 1, 3 photos:\n  same  "));
  EXPECT_THAT(ran.out, HasSubstr("480x360"));
  EXPECT_THAT(ran.out, HasSubstr((Photos() / "a3.png").utf8string() + "  largest"));
  EXPECT_THAT(ran.out, HasSubstr("2 groups of similar photos among 6 photos; 3 photos ("));
}

TEST_F(SimilarCommand, LooksAtNewPhotosOnly) {
  MakeGroups();
  Scan();
  Run({"similar"});
  Save("c2.jpg", Scene(3), 70);
  Scan();
  const Ran ran = Run({"similar", "--json"});
  EXPECT_EQ(ran.Json()["analysed"].toInt(-1), 1);
  EXPECT_THAT(Groups(ran),
              ::testing::ElementsAre("a1.jpg a2.jpg a3.png*", "b1.jpg b2.jpg*", "c.jpg* c2.jpg"));
  EXPECT_EQ(Run({"similar", "--json"}).Json()["analysed"].toInt(-1), 0);
}

TEST_F(SimilarCommand, ShowsGroupsOfTheSizeAskedFor) {
  MakeGroups();
  Scan();
  EXPECT_EQ(Groups(Run({"similar", "--json", "--min", "3"})).size(), 1U);
  EXPECT_EQ(Groups(Run({"similar", "--json", "--min", "1"})).size(), 3U);
  EXPECT_THAT(Run({"similar", "--min", "4"}).out, HasSubstr("No similar photos among 6 photos."));
  EXPECT_EQ(Run({"similar", "--min", "0"}).exitCode, 2);
}

TEST_F(SimilarCommand, SaysWhatCannotBeCompared) {
  MakeGroups();
  tree.Write("photos/text.jpg", "no picture");
  // Its head says that it is a picture, and there is none behind it.
  const std::string whole = ReadFile(Photos() / "b1.jpg");
  tree.Write("photos/broken.jpg", whole.substr(0, 400));
  Scan();
  const std::string list = "Not compared:\n  " + (Photos() / "broken.jpg").utf8string();
  const Ran first = Run({"similar"});
  EXPECT_EQ(first.exitCode, 3);
  EXPECT_THAT(first.out, ::testing::StartsWith("Group 1"));
  EXPECT_THAT(first.out, HasSubstr(list));
  EXPECT_THAT(first.out, HasSubstr("2 groups"));
  // Told once; from then on counted.
  const Ran again = Run({"similar"});
  EXPECT_EQ(again.exitCode, 3);
  EXPECT_THAT(again.out, ::testing::Not(HasSubstr("broken.jpg")));
  EXPECT_THAT(again.out, HasSubstr("--not-compared"));
  EXPECT_THAT(Run({"similar", "--not-compared"}).out, HasSubstr(list));
  EXPECT_EQ(Run({"similar", "--json"}).Json()["findings"].toArray().size(), 1);
}

TEST_F(SimilarCommand, TriesAgainWhatIsNotThere) {
  MakeGroups();
  Scan();
  const ioPath away = tree.Path("away.jpg");
  ASSERT_TRUE((Photos() / "b2.jpg").rename(away));
  const Ran without = Run({"similar"});
  EXPECT_EQ(without.exitCode, 3);
  EXPECT_THAT(without.out, HasSubstr("it no longer exists"));
  ASSERT_TRUE(away.rename(Photos() / "b2.jpg"));
  EXPECT_EQ(Groups(Run({"similar", "--json"})).size(), 2U);
}

TEST_F(SimilarCommand, ComparesAnEditedPhotoAgain) {
  MakeGroups();
  Scan();
  Run({"similar"});
  Save("b2.jpg", Scene(7));
  Scan();
  const Ran ran = Run({"similar", "--json"});
  EXPECT_THAT(Groups(ran), ::testing::ElementsAre("a1.jpg a2.jpg a3.png*"));
  EXPECT_EQ(Run({"similar", "--check"}).exitCode, 0);
}

TEST_F(SimilarCommand, ExplainsWhyPhotosAreTogetherOrNot) {
  MakeGroups();
  Scan();
  const Ran apart = Run({"similar", "--explain", "photos/a1.jpg", "photos/c.jpg"});
  EXPECT_EQ(apart.exitCode, 0) << apart.err;
  EXPECT_THAT(apart.out, HasSubstr("are in different groups"));
  EXPECT_THAT(apart.out, HasSubstr("TO THE OTHER'S"));
  const Ran together = Run({"similar", "--json", "--explain", "photos/a1.jpg", "photos/a3.png"});
  EXPECT_TRUE(together.Json()["together"].toBool());
  EXPECT_EQ(together.Json()["threshold"].toDouble(), 0.91);
  EXPECT_GT(together.Json()["score"].toDouble(), 0.91);
  EXPECT_EQ(together.Json()["photos"].toArray().size(), 2);
  EXPECT_THAT(Run({"similar", "--explain", "photos/a1.jpg", "photos/a3.png"}).out, HasSubstr("in one group"));
  const Ran unknown = Run({"similar", "--explain", "photos/a1.jpg", "photos/none.jpg"});
  EXPECT_EQ(unknown.exitCode, 4);
  EXPECT_THAT(unknown.err, HasSubstr("none.jpg is not among the photos"));
  EXPECT_EQ(Run({"similar", "--explain", "photos/a1.jpg"}).exitCode, 2);
}

TEST_F(SimilarCommand, SaysWhatEachPhotoIsToTheOneToKeep) {
  MakeGroups();
  Save("a4.jpg", Scene(1).copy(12, 9, 456, 342));
  Scan();
  const Ran ran = Run({"similar"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasLike("\n  same +[0-9.]+ +240x180 "));
  EXPECT_THAT(ran.out, HasLike("\n  alike +[0-9.]+ +456x342 "));
  EXPECT_THAT(ran.out, HasSubstr("3 of them ("));
  EXPECT_THAT(ran.out, HasSubstr(") are the same picture as the photo to keep; \"lumidex similar --trash\""));
  std::map<std::string, std::string> verdicts;
  const QJsonArray groups = Run({"similar", "--json"}).Json()["groups"].toArray();
  ASSERT_EQ(groups.size(), 2);
  EXPECT_EQ(groups[0].toObject()["number"].toInt(), 1);
  for (const QJsonValue value : groups[0].toObject()["members"].toArray()) {
    const QJsonObject member = value.toObject();
    const ioPath path(member["path"].toString().toStdString());
    verdicts[path.filename().utf8string()] = member["verdict"].toString("null").toStdString();
    EXPECT_EQ(member["why"].toString().isEmpty(), member["keep"].toBool());
  }
  EXPECT_EQ(verdicts.at("a2.jpg"), "same");
  EXPECT_EQ(verdicts.at("a4.jpg"), "alike");
  EXPECT_EQ(
      std::count_if(verdicts.begin(), verdicts.end(), [](const auto& one) { return one.second == "null"; }),
      1);
}

TEST_F(SimilarCommand, KeepsTheNumbersOfGroupsWhereverTheyAreTold) {
  MakeGroups();
  Scan();
  EXPECT_THAT(Run({"similar", "--only", "photos/b1.jpg"}).out, ::testing::StartsWith("Group 2, 2 photos:"));
  const Ran explained = Run({"similar", "--explain", "photos/b1.jpg", "photos/b2.jpg"});
  EXPECT_THAT(explained.out, HasSubstr("They are the same picture. ("));
  EXPECT_THAT(explained.out, HasSubstr("GROUP  VERDICT"));
  EXPECT_THAT(explained.out, HasLike("b1.jpg +2  same +[0-9.]+\n"));
  EXPECT_THAT(explained.out, HasLike("b2.jpg +2  keep +[0-9.]+\n"));
  const Ran alone = Run({"similar", "--explain", "photos/c.jpg", "photos/a1.jpg"});
  EXPECT_THAT(alone.out, HasSubstr("They are different pictures."));
  EXPECT_THAT(alone.out, HasLike("c.jpg +-  - +[0-9.]+ +[0-9.-]+\n"));
  const QJsonObject document =
      Run({"similar", "--json", "--explain", "photos/b1.jpg", "photos/b2.jpg"}).Json();
  EXPECT_EQ(document["verdict"].toString(), QStringLiteral("same"));
  EXPECT_EQ(document["kept"].toString(), Text(Photos() / "b2.jpg"));
  EXPECT_EQ(document["photos"].toArray()[0].toObject()["group"].toInt(), 2);
  EXPECT_TRUE(document["photos"].toArray()[1].toObject()["keep"].toBool());
}

TEST_F(SimilarCommand, ExplainsPhotosHoweverTheyAreSpelled) {
  MakeGroups();
  Scan();
  const std::string plain = Run({"similar", "--json", "--explain", "photos/a1.jpg", "photos/c.jpg"}).out;
  ASSERT_THAT(plain, HasSubstr("lumidex.similar.explain"));
  for (const char* const spelled : {"./photos/a1.jpg", "photos/../photos/a1.jpg", "photos//a1.jpg"}) {
    EXPECT_EQ(Run({"similar", "--json", "--explain", spelled, "photos/c.jpg"}).out, plain) << spelled;
  }
#ifndef _WIN32
  std::filesystem::create_directory_symlink(Photos().native(), tree.Path("link").native());
  std::filesystem::create_symlink((Photos() / "a1.jpg").native(), tree.Path("photo.jpg").native());
  for (const char* const spelled : {"link/a1.jpg", "photo.jpg"}) {
    EXPECT_EQ(Run({"similar", "--json", "--explain", spelled, "photos/c.jpg"}).out, plain) << spelled;
  }
#endif
}

TEST_F(SimilarCommand, ExplainsTwoPhotosNoMoreAndNoLess) {
  EXPECT_THAT(Run({"similar", "--explain", "a.jpg"}).err, HasSubstr("--explain needs 2 values"));
  EXPECT_THAT(Run({"similar", "--explain", "a.jpg", "b.jpg", "c.jpg"}).err,
              HasSubstr("--explain needs 2 values"));
  EXPECT_THAT(Run({"similar", "--min", "2", "--min", "3"}).err, HasSubstr("can be given only once"));
  EXPECT_THAT(Run({"similar", "--check=3"}).err, HasSubstr("--check takes no value"));
}

TEST_F(SimilarCommand, ExplainsPhotosThatWereRenamedOrLost) {
  MakeGroups();
  Scan();
  Run({"similar"});
  Run({"rename", "--pattern", "z_{name}", "photos/a1.jpg"});
  const Ran renamed = Run({"similar", "--json"});
  EXPECT_EQ(renamed.Json()["analysed"].toInt(-1), 0);
  EXPECT_EQ(Run({"similar", "--explain", "photos/z_a1.jpg", "photos/a2.jpg"}).exitCode, 0);
  ASSERT_TRUE((Photos() / "b1.jpg").rename(tree.Path("away.jpg")));
  Scan();
  EXPECT_EQ(Run({"similar", "--explain", "photos/b1.jpg", "photos/b2.jpg"}).exitCode, 0);
  EXPECT_EQ(Run({"similar", "--explain", "photos/a1.jpg", "photos/b2.jpg"}).exitCode, 4);
}

TEST_F(SimilarCommand, ComparesATurnedPhotoAgainAndOnceMoreWhenThatIsUndone) {
  MakeGroups();
  Scan();
  const std::vector<std::string> before = Groups(Run({"similar", "--json"}));
  Run({"rotate", "right", "photos/a1.jpg"});
  const Ran turned = Run({"similar", "--json"});
  EXPECT_EQ(turned.Json()["analysed"].toInt(-1), 1);
  EXPECT_NE(Groups(turned), before);
  Run({"undo"});
  const Ran undone = Run({"similar", "--json"});
  EXPECT_EQ(undone.Json()["analysed"].toInt(-1), 1);
  EXPECT_EQ(Groups(undone), before);
  EXPECT_EQ(Run({"similar", "--check"}).exitCode, 0);
}

TEST_F(SimilarCommand, ChecksWithoutChangingAnything) {
  MakeGroups();
  Scan();
  const ioPath catalogue = DefaultCatalogue();
  const std::string scanned = ReadFile(catalogue);
  const Ran unused = Run({"similar", "--check", "--json"});
  EXPECT_EQ(unused.exitCode, 0) << unused.err;
  EXPECT_EQ(ReadFile(catalogue), scanned);
  Run({"similar"});
  ChangeCatalogue(catalogue, "UPDATE analysers SET version = version + 1");
  const std::string newer = ReadFile(catalogue);
  EXPECT_EQ(Run({"similar", "--check"}).exitCode, 0);
  EXPECT_EQ(ReadFile(catalogue), newer);
}

TEST_F(SimilarCommand, ChecksWhatTheCatalogueHolds) {
  MakeGroups();
  Scan();
  Run({"similar"});
  const Ran sound = Run({"similar", "--check"});
  EXPECT_EQ(sound.exitCode, 0);
  EXPECT_THAT(sound.out, HasSubstr("Matching all photos again gives the same groups"));
  ChangeCatalogue(DefaultCatalogue(), "UPDATE clusters SET count = 9 WHERE count = 3");
  const Ran wrong = Run({"similar", "--check"});
  EXPECT_EQ(wrong.exitCode, 1);
  EXPECT_THAT(wrong.out, HasSubstr("counts 9 photos instead of 3"));
  EXPECT_EQ(Run({"similar", "--check", "--json"}).Json()["differences"].toArray().size(), 1);
  EXPECT_EQ(Groups(Run({"similar", "--anew", "--json"})).size(), 2U);
  EXPECT_EQ(Run({"similar", "--check"}).exitCode, 0);
}

TEST_F(SimilarCommand, WritesAPageWithTheGroups) {
  MakeGroups();
  Scan();
  const Ran ran = Run({"similar", "--report", "similar.html"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  const std::string page = ReadFile(tree.Path("similar.html"));
  // The page itself is too long to be shown.
  EXPECT_NE(page.find("<h1 dir=\"auto\">Similar photos</h1>"), std::string::npos);
  EXPECT_NE(page.find("3 photos like a3.png"), std::string::npos);
  EXPECT_THAT(ran.out, HasSubstr("Report: " + tree.Path("similar.html").utf8string()));
  EXPECT_EQ(Run({"similar", "--report", "photos/a1.jpg"}).exitCode, 2);
  EXPECT_EQ(Run({"similar", "--report", "x.html", "--check"}).exitCode, 2);
}

TEST_F(SimilarCommand, KeepsTheSharpestOfTheLargest) {
  const QImage sharp = Scene(5);
  const QImage blurred = sharp.scaled(160, 120, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                             .scaled(sharp.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  Save("blurred.png", blurred);
  Save("sharp.png", sharp);
  Save("small.png", sharp.scaledToWidth(240, Qt::SmoothTransformation));
  Scan();
  const Ran ran = Run({"similar"});
  EXPECT_THAT(ran.out, HasLike("\n  keep [^\n]*sharp.png +largest, sharpest"));
  // What was measured is stored.
  EXPECT_EQ(Run({"similar"}).out, ran.out);
}

TEST_F(SimilarCommand, ReadsFilesOnly) {
  MakeGroups();
  const ioPath odd = Save("Пейзаж с пробелами.jpg", Scene(4));
  Scan();
  const FileState before = QueryFile(odd);
  EXPECT_EQ(Run({"similar"}).exitCode, 0);
  EXPECT_EQ(QueryFile(odd).modifiedNs, before.modifiedNs);
  EXPECT_EQ(NamesIn(Photos()).size(), 7U);
}

/// Needs a build that runs models.
class SimilarByModel : public SimilarCommand {
 protected:
  void SetUp() override {
    if (Lumidex::Host::ModelRuntime().empty()) {
      GTEST_SKIP() << "this build runs no models (LUMIDEX_ONNX)";
    }
    MakeGroups();
    Scan();
    tree.Write("tiny.onnx", TinyModel().Bytes());
  }
};

TEST_F(SimilarByModel, GroupsByWhatTheModelSees) {
  const Ran ran = Run({"similar", "--json", "--model", "tiny.onnx"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(Groups(ran), ::testing::ElementsAre("a1.jpg a2.jpg a3.png*", "b1.jpg b2.jpg*"));
  EXPECT_THAT(ran.Json()["analyser"].toString().toStdString(),
              ::testing::MatchesRegex("onnx:[0-9a-f][0-9a-f]*"));
  EXPECT_EQ(ran.Json()["analysed"].toInt(), 6);
  const Ran again = Run({"similar", "--json", "--model", "tiny.onnx", "--threads", "3"});
  EXPECT_EQ(again.Json()["analysed"].toInt(-1), 0);
  EXPECT_EQ(Groups(again), Groups(ran));
  EXPECT_EQ(Run({"similar", "--model", "tiny.onnx", "--check"}).exitCode, 0);
  const Ran explained =
      Run({"similar", "--model", "tiny.onnx", "--explain", "photos/a1.jpg", "photos/c.jpg"});
  EXPECT_EQ(explained.exitCode, 0) << explained.err;
  EXPECT_THAT(explained.out, HasSubstr("are in different groups"));
}

TEST_F(SimilarByModel, KeepsTheGroupsOfOthersApart) {
  const Ran usual = Run({"similar", "--json"});
  EXPECT_EQ(usual.Json()["analyser"].toString(), QStringLiteral("layout"));
  TinyModel light;
  light.weights.resize(light.weights.size() / 4);
  tree.Write("light.onnx", light.Bytes());
  const Ran first = Run({"similar", "--json", "--model", "tiny.onnx"});
  const Ran second = Run({"similar", "--json", "--model", "light.onnx"});
  EXPECT_EQ(second.Json()["analysed"].toInt(), 6);
  EXPECT_NE(first.Json()["analyser"], second.Json()["analyser"]);
  for (const auto& [arguments, before] :
       {std::make_pair(QStringList{"similar", "--json"}, &usual),
        std::make_pair(QStringList{"similar", "--json", "--model", "tiny.onnx"}, &first),
        std::make_pair(QStringList{"similar", "--json", "--model", "light.onnx"}, &second)}) {
    const Ran back = Run(arguments);
    EXPECT_EQ(back.Json()["analysed"].toInt(-1), 0);
    EXPECT_EQ(back.Json()["groups"], before->Json()["groups"]);
  }
}

TEST_F(SimilarByModel, SaysWhyAModelCannotBeUsed) {
  const std::string catalogue = ReadFile(DefaultCatalogue());
  TinyModel unknown;
  unknown.operation = "Frobnicate";
  const std::pair<std::string, std::string> cases[] = {
      {"missing.onnx", "there is no such file"},
      {"photos/a1.jpg", "it is not an ONNX model, or it is damaged"},
      {"unknown.onnx", "Frobnicate"},
      {"photos", "it is a folder"},
  };
  tree.Write("unknown.onnx", unknown.Bytes());
  for (const auto& [name, cause] : cases) {
    const Ran ran = Run({"similar", "--model", QString::fromStdString(name)});
    EXPECT_EQ(ran.exitCode, 4) << name;
    EXPECT_THAT(ran.out, IsEmpty());
    // Nothing of what the library itself would print.
    EXPECT_THAT(ran.err, ::testing::MatchesRegex("lumidex: error: Cannot use the model [^\n]*\n")) << name;
    EXPECT_THAT(ran.err, HasSubstr(tree.Path(name).utf8string() + ": "));
    EXPECT_THAT(ran.err, HasSubstr(cause));
  }
  EXPECT_EQ(ReadFile(DefaultCatalogue()), catalogue);
  EXPECT_EQ(Run({"similar", "--model", ""}).exitCode, 2);
}

TEST_F(SimilarCommand, SaysWhenThisBuildRunsNoModels) {
  const std::string runtime = Lumidex::Host::ModelRuntime();
  const std::string page = Run({"help", "similar"}).out;
  EXPECT_THAT(page, HasSubstr("--model FILE"));
  if (!runtime.empty()) {
    EXPECT_THAT(Run({"--version"}).out, HasSubstr("\nmodels: ONNX, run by " + runtime + "\n"));
    return;
  }
  EXPECT_THAT(page, HasSubstr("without support for models"));
  EXPECT_THAT(Run({"--version"}).out, HasSubstr("\nmodels: none"));
  MakeGroups();
  Scan();
  const Ran ran = Run({"similar", "--model", "tiny.onnx"});
  EXPECT_EQ(ran.exitCode, 2);
  EXPECT_THAT(ran.err, HasSubstr("built without support for models"));
  EXPECT_EQ(Run({"similar"}).exitCode, 0);
}

}  // namespace
}  // namespace Zenvora::Test
