// The command moves similar photos to the trash.

#include "CliFixture.h"
#include "Terminal.h"

#include <support/LeftOut.h>

#include <zenvora/core/FileState.h>

#include <QImage>
#include <QJsonArray>
#include <QPainter>

#include <csignal>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Zenvora::Test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

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
    painter.drawEllipse((number * 131 + i * 173) % 400, (number * 57 + i * 117) % 290, 60 + i * 9, 70);
  }
  return image;
}

class TrashCommand : public CliTest {
 protected:
  void SetUp() override {
#ifdef _WIN32
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
      GTEST_SKIP() << "the recycle bin of the system would be used";
    }
#endif
    // One scene in three files, another in two, a third in one.
    Save("a1.jpg", Scene(1));
    Save("a2.jpg", Scene(1).scaledToWidth(240, Qt::SmoothTransformation));
    Save("sub/a3.jpg", Scene(1).scaledToWidth(200, Qt::SmoothTransformation));
    Save("b1.jpg", Scene(2).scaledToWidth(300, Qt::SmoothTransformation));
    Save("b2.jpg", Scene(2));
    Save("c.jpg", Scene(3));
    Run({"scan", Text(Photos())});
    before_ = State();
  }

  ioPath Save(const std::string& name, const QImage& image) const {
    const ioPath file = Photos() / ioPath(name);
    std::filesystem::create_directories(file.parent_path().native());
    EXPECT_TRUE(image.save(Text(file), nullptr, 92));
    return file;
  }

  /// Names, contents and times of all photos.
  std::map<std::string, std::pair<std::string, std::int64_t>> State() const {
    std::map<std::string, std::pair<std::string, std::int64_t>> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Photos().native())) {
      const ioPath path(entry.path());
      if (QueryFile(path).kind == FileState::Kind::File) {
        files[Slashes(path).substr(Slashes(Photos()).size() + 1)] = {ReadFile(path),
                                                                     QueryFile(path).modifiedNs};
      }
    }
    return files;
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& [name, content] : State()) {
      names.push_back(name);
    }
    return names;
  }
  ioPath Trash() const {
    return tree.Path("data/Trash");
  }

  std::map<std::string, std::pair<std::string, std::int64_t>> before_;
};

TEST_F(TrashCommand, MovesAllButThoseToKeepAndTakesThemBack) {
  const Ran ran = Run({"similar", "--trash", "--yes"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "c.jpg"));
  EXPECT_THAT(ran.out, HasSubstr("Group 1, 3 photos:\n  keep   "));
  EXPECT_THAT(ran.out, HasSubstr("\n  trash  "));
  EXPECT_THAT(ran.out,
              HasSubstr("3 photos moved to the trash; \"lumidex undo\" brings back what is still there.\n"));
  EXPECT_THAT(Run({"similar"}).out, HasSubstr("No similar photos among 3 photos."));
  EXPECT_THAT(Run({"undo", "--list"}).out, HasSubstr("move similar photos to the trash      3"));
  const Ran undone = Run({"undo"});
  EXPECT_EQ(undone.exitCode, 0) << undone.out << undone.err;
  EXPECT_EQ(State(), before_);
  EXPECT_THAT(Run({"similar"}).out, HasSubstr("2 groups of similar photos among 6 photos; 3 photos"));
  EXPECT_EQ(Run({"similar", "--json"}).Json()["analysed"].toInt(-1), 0);
  EXPECT_EQ(Run({"similar", "--check"}).exitCode, 0);
  EXPECT_EQ(Run({"redo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "c.jpg"));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(State(), before_);
}

#ifndef _WIN32
TEST_F(TrashCommand, PutsThemWhereTheDesktopShowsThem) {
  Run({"similar", "--trash", "--yes"});
  EXPECT_THAT(NamesIn(Trash() / "files"), ElementsAre("a2.jpg", "a3.jpg", "b1.jpg"));
  EXPECT_THAT(NamesIn(Trash() / "info"),
              ElementsAre("a2.jpg.trashinfo", "a3.jpg.trashinfo", "b1.jpg.trashinfo"));
  EXPECT_THAT(ReadFile(Trash() / "info/a3.jpg.trashinfo"),
              HasSubstr("\nPath=" + (Photos() / "sub/a3.jpg").utf8string() + "\n"));
  Run({"undo"});
  EXPECT_THAT(NamesIn(Trash() / "files"), IsEmpty());
  EXPECT_THAT(NamesIn(Trash() / "info"), IsEmpty());
}

TEST_F(TrashCommand, TellsWhatAnEmptiedTrashDoesNotGiveBack) {
  Run({"similar", "--trash", "--yes"});
  ASSERT_TRUE((Trash() / "files/a2.jpg").remove());
  ASSERT_TRUE((Trash() / "info/a2.jpg.trashinfo").remove());
  const Ran part = Run({"undo"});
  EXPECT_EQ(part.exitCode, 3);
  EXPECT_THAT(part.out, HasSubstr((Photos() / "a2.jpg").utf8string() +
                                  " is no longer in the trash and cannot be brought back\n"));
  EXPECT_THAT(part.out, HasSubstr("Undone: move similar photos to the trash, except for 1 file."));
  EXPECT_THAT(part.out, Not(HasSubstr("Older steps")));
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b1.jpg", "b2.jpg", "c.jpg", "sub/a3.jpg"));
}

TEST_F(TrashCommand, LeavesAPhotoWhoseTrashCannotBeUsed) {
  tree.Write("data/Trash", "no folder");
  const Ran ran = Run({"similar", "--trash", "--yes"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out,
              HasSubstr("Left where they are:\n  Cannot move " + (Photos() / "a2.jpg").utf8string() +
                        " to the trash: " + Trash().utf8string() + " cannot be used: File exists\n"));
  EXPECT_THAT(ran.out, HasSubstr("Nothing was moved.\n"));
  EXPECT_EQ(State(), before_);
}
#endif

TEST_F(TrashCommand, ShowsWhatWouldGoInADryRun) {
  const Ran ran = Run({"similar", "--trash", "--dry-run"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("  trash  "));
  EXPECT_THAT(ran.out, HasSubstr("3 photos ("));
  EXPECT_THAT(ran.out,
              HasSubstr(") would be moved to the trash. This was a dry run: nothing was changed.\n"));
  EXPECT_EQ(State(), before_);
  EXPECT_EQ(QueryFile(Trash()).kind, FileState::Kind::Missing);
  EXPECT_THAT(Run({"undo", "--list"}).out, HasSubstr("nothing to undo"));
}

TEST_F(TrashCommand, WritesOneDocumentWithAllItsMembers) {
  tree.Write("photos/a1.xmp", "settings");
  tree.Write("photos/a2.xmp", "settings");
  const QJsonObject dry = Run({"similar", "--trash", "--dry-run", "--json"}).Json()["trash"].toObject();
  EXPECT_TRUE(dry["dryRun"].toBool());
  EXPECT_EQ(dry["planned"].toArray().size(), 4);
  EXPECT_EQ(dry["filesMoved"].toInt(-1), 0);
  const Ran ran = Run({"similar", "--trash", "--yes", "--json"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.similar"));
  EXPECT_EQ(document["groups"].toArray().size(), 2);
  const QJsonObject trash = document["trash"].toObject();
  EXPECT_EQ(trash.keys(), (QStringList{"alike", "canBeUndone", "dryRun", "filesMoved", "findings",
                                       "interrupted", "moved", "photosMoved", "planned", "stays"}));
  EXPECT_FALSE(trash["dryRun"].toBool(true));
  EXPECT_FALSE(trash["interrupted"].toBool(true));
  EXPECT_EQ(trash["photosMoved"].toInt(), 3);
  EXPECT_EQ(trash["filesMoved"].toInt(), 4);
  EXPECT_TRUE(trash["canBeUndone"].toBool());
  EXPECT_TRUE(trash["stays"].toArray().isEmpty());
  EXPECT_TRUE(trash["findings"].toArray().isEmpty());
  const QJsonObject first = trash["planned"].toArray()[0].toObject();
  EXPECT_EQ(first["path"].toString(), Text(Photos() / "a2.jpg"));
  EXPECT_EQ(first["kept"].toString(), Text(Photos() / "a1.jpg"));
  EXPECT_EQ(first["size"].toInt(), static_cast<int>(before_.at("a2.jpg").first.size()));
  const QJsonObject moved = trash["moved"].toArray()[1].toObject();
  EXPECT_EQ(moved["from"].toString(), Text(Photos() / "a2.xmp"));
  EXPECT_EQ(ReadFile(ioPath(moved["to"].toString())), "settings");
  EXPECT_FALSE(Run({"similar", "--json"}).Json().contains("trash"));
}

TEST_F(TrashCommand, MovesNothingWithoutAnAnswer) {
  const Ran nobody = Run({"similar", "--trash"});
  EXPECT_EQ(nobody.exitCode, 4);
  EXPECT_THAT(nobody.err, HasSubstr("Nothing was moved: --trash asks first, and this is not a terminal."));
  EXPECT_THAT(nobody.out, IsEmpty());
  EXPECT_EQ(Run({"similar", "--trash", "--json"}).exitCode, 2);
  EXPECT_EQ(Run({"similar", "--trash", "--json"}).Json()["kind"].toString(), QStringLiteral("usage"));
  EXPECT_EQ(State(), before_);
}

TEST_F(TrashCommand, LeavesWhatIsOnlyAlike) {
  Save("b3.jpg", Scene(2).copy(12, 9, 456, 342));
  Run({"scan", Text(Photos())});
  const Ran dry = Run({"similar", "--trash", "--dry-run"});
  EXPECT_EQ(dry.exitCode, 0) << dry.err;
  EXPECT_THAT(dry.out, HasLike("\n  trash  same +[0-9.]+ +300x225 "));
  EXPECT_THAT(dry.out, HasLike("\n  stay   alike +[0-9.]+ +456x342 "));
  EXPECT_THAT(dry.out, HasSubstr("not the same picture; "));
  EXPECT_THAT(dry.out, Not(HasSubstr("only alike:")));
  const QJsonObject plan = Run({"similar", "--trash", "--dry-run", "--json"}).Json()["trash"].toObject();
  EXPECT_FALSE(plan["alike"].toBool(true));
  EXPECT_EQ(plan["planned"].toArray()[0].toObject()["verdict"].toString(), QStringLiteral("same"));
  ASSERT_EQ(plan["stays"].toArray().size(), 1);
  EXPECT_TRUE(plan["stays"].toArray()[0].toObject()["rule"].toBool());
  EXPECT_EQ(Run({"similar", "--trash", "--yes"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "b3.jpg", "c.jpg"));
}

TEST_F(TrashCommand, TakesWhatIsAlikeWhenToldTo) {
  Save("b3.jpg", Scene(2).copy(12, 9, 456, 342));
  Run({"scan", Text(Photos())});
  const auto before = State();
  const Ran dry = Run({"similar", "--trash", "--alike", "--dry-run"});
  const std::size_t apart = dry.out.find("Not the same picture as the photo to keep, only alike:\n  ");
  ASSERT_NE(apart, std::string::npos) << dry.out;
  EXPECT_THAT(dry.out.substr(apart), HasSubstr((Photos() / "b3.jpg").utf8string() + "  alike to b2.jpg  "));
  EXPECT_THAT(dry.out.substr(apart), Not(HasSubstr("b1.jpg")));
  EXPECT_EQ(Run({"similar", "--trash", "--alike", "--yes"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "c.jpg"));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(State(), before);
}

TEST_F(TrashCommand, TakesOnlyWhatMakesSense) {
  for (const QStringList& line : std::vector<QStringList>{{"--yes"},
                                                          {"--dry-run"},
                                                          {"--alike"},
                                                          {"--trash", "--yes", "--dry-run"},
                                                          {"--trash", "--yes", "--report", "x.html"},
                                                          {"--trash", "--yes", "--check"},
                                                          {"--trash", "--yes", "--explain", "a", "b"},
                                                          {"--only", "a", "--check"},
                                                          {"--trash=no"}}) {
    const Ran ran = Run(QStringList{"similar"} + line);
    EXPECT_EQ(ran.exitCode, 2) << line.join(QLatin1Char(' ')).toStdString() << ran.err;
  }
  EXPECT_EQ(State(), before_);
}

TEST_F(TrashCommand, MovesOfTheGroupsOfSomePhotosAlone) {
  const Ran shown = Run({"similar", "--only", "photos/b2.jpg"});
  EXPECT_THAT(shown.out, HasSubstr("1 group of similar photos"));
  EXPECT_THAT(shown.out, Not(HasSubstr("a1.jpg")));
  const Ran ran = Run({"similar", "--trash", "--yes", "--only", "photos/b2.jpg"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "a2.jpg", "b2.jpg", "c.jpg", "sub/a3.jpg"));
  Run({"undo"});
  Run({"similar", "--trash", "--yes", "--only", "photos/b1.jpg", "--only", "photos/a1.jpg"});
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "c.jpg"));
  Run({"undo"});
  const Ran unknown = Run({"similar", "--trash", "--yes", "--only", "photos/none.jpg"});
  EXPECT_EQ(unknown.exitCode, 4);
  EXPECT_THAT(unknown.err, HasSubstr("none.jpg is not among the photos"));
  EXPECT_EQ(Run({"similar", "--trash", "--yes", "--only", "photos/c.jpg"}).out,
            "Nothing to move to the trash.\n");
  EXPECT_EQ(State(), before_);
}

TEST_F(TrashCommand, MovesOnlyGroupsOfTheSizeAskedFor) {
  Run({"similar", "--trash", "--yes", "--min", "3"});
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b1.jpg", "b2.jpg", "c.jpg"));
}

TEST_F(TrashCommand, LeavesWhatWasChangedSinceTheScan) {
  Run({"similar"});
  tree.Write("photos/a2.jpg", ReadFile(Photos() / "c.jpg"));
  const Ran ran = Run({"similar", "--trash", "--yes"});
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_THAT(ran.out, HasSubstr("\n  stay   "));
  EXPECT_THAT(ran.out, HasSubstr("Not moved:\n  " + (Photos() / "a2.jpg").utf8string() +
                                 " is kept: it was changed after it was analysed.\n"));
  EXPECT_THAT(ran.out, HasSubstr("2 photos moved to the trash"));
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "a2.jpg", "b2.jpg", "c.jpg"));
}

TEST_F(TrashCommand, FailsWhenNothingCouldBeMoved) {
  Run({"similar"});
  tree.Write("photos/a1.jpg", "x");
  tree.Write("photos/b2.jpg", "x");
  const Ran ran = Run({"similar", "--trash", "--yes"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, HasSubstr("is kept: the photo to keep, "));
  EXPECT_THAT(ran.out, HasSubstr("Nothing to move to the trash.\n"));
  EXPECT_EQ(Run({"similar", "--trash", "--dry-run"}).exitCode, 4);
  EXPECT_THAT(Names(), ::testing::SizeIs(6));
}

TEST_F(TrashCommand, BringsNothingBackOverWhatIsThereNow) {
  Run({"similar", "--trash", "--yes"});
  tree.Write("photos/a2.jpg", "new");
  const Ran ran = Run({"undo"});
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_THAT(ran.out, HasSubstr(": another file has its former name\n"));
  EXPECT_EQ(ReadFile(Photos() / "a2.jpg"), "new");
  ASSERT_TRUE((Photos() / "a2.jpg").remove());
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(State(), before_);
}

TEST_F(TrashCommand, LetsWhatWasDoneBeforeBeTakenBack) {
  Run({"shift-date", "+1h", "photos/c.jpg"});
  Run({"rename", "--pattern", "x_{name}", "photos/a2.jpg"});
  Run({"similar", "--trash", "--yes"});
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "c.jpg"));
  const Ran ran = Run({"undo", "--last", "3"});
  EXPECT_THAT(ran.out, HasSubstr("Undone: move similar photos to the trash."));
  EXPECT_EQ(State(), before_);
}

TEST_F(TrashCommand, DoesNotSurpriseTheNextScan) {
  Run({"similar", "--trash", "--yes"});
  EXPECT_EQ(Run({"scan", Text(Photos()), "--json"}).Json()["lost"].toInt(-1), 0);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(Run({"scan", Text(Photos()), "--json"}).Json()["unchanged"].toInt(-1), 6);
  EXPECT_EQ(State(), before_);
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, IsAskedAndAnsweredWithYes);
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, IsAnsweredWithNoByAnythingElse);
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, IsAnsweredInTheLanguageOrInEnglish);
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, CanBeInterrupted);
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, LeavesWhatWasChangedWhileItWasAsked);
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, TellsWhatIsOnlyAlike);
LUMIDEX_LEFT_OUT_ON_WINDOWS(TrashQuestion, IsNotAskedWhenThereIsNothingToMove);
#else

class TrashQuestion : public TrashCommand {
 protected:
  std::string WaitForQuestion(QProcess& process) const { return terminal_.WaitFor(prompt_, process); }

  /// Runs the command at a terminal and answers its question.
  Ran Answer(const std::string& answer, const QStringList& more = {}) {
    ProcessOnTerminal process(terminal_, false, true);
    Start(process, QStringList{"similar", "--trash"} + more);
    asked_ = WaitForQuestion(process);
    terminal_.Type(answer);
    Ran ran = Finish(process);
    ran.err = terminal_.Read();
    return ran;
  }

  const Terminal terminal_{100};
  /// What the question ends in.
  std::string prompt_ = "[y/N] ";
  std::string asked_;
};

TEST_F(TrashQuestion, IsAskedAndAnsweredWithYes) {
  const Ran ran = Answer("y\n", {"--quiet"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(asked_, HasSubstr("  keep   "));
  EXPECT_THAT(asked_, HasSubstr("Move 3 photos ("));
  EXPECT_THAT(asked_, HasSubstr(") to the trash? [y/N] "));
  // What was seen is not shown again.
  EXPECT_EQ(ran.out, "3 photos moved to the trash; \"lumidex undo\" brings back what is still there.\n");
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "b2.jpg", "c.jpg"));
}

TEST_F(TrashQuestion, IsAnsweredWithNoByAnythingElse) {
  for (const char* const answer : {"n\n", "\n", "yesterday\n", "\x04"}) {
    const Ran ran = Answer(answer);
    EXPECT_EQ(ran.exitCode, 1) << answer;
    EXPECT_EQ(ran.out, "Nothing was moved.\n") << answer;
    EXPECT_EQ(State(), before_) << answer;
  }
  EXPECT_THAT(Run({"undo", "--list"}).out, HasSubstr("nothing to undo"));
}

TEST_F(TrashQuestion, IsAnsweredInTheLanguageOrInEnglish) {
  prompt_ = "[j/N] ";
  for (const char* const no : {"n\n", "nein\n", "\n", "oui\n"}) {
    EXPECT_EQ(Answer(no, {"--lang", "de_DE"}).exitCode, 1) << no;
    EXPECT_THAT(asked_, HasSubstr("in den Papierkorb verschieben? [j/N] "));
  }
  EXPECT_EQ(Answer("Yes\n", {"--lang", "de_DE"}).exitCode, 0);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  prompt_ = "[\u0434/\u041D] ";
  EXPECT_EQ(Answer("\u0414\u0410\n", {"--lang", "ru_RU"}).exitCode, 0) << "in capitals";
}

TEST_F(TrashQuestion, CanBeInterrupted) {
  ProcessOnTerminal process(terminal_, false, true);
  Start(process, {"similar", "--trash"});
  ASSERT_THAT(WaitForQuestion(process), HasSubstr("[y/N]"));
  ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
  const Ran ran = Finish(process);
  EXPECT_EQ(ran.exitCode, 130);
  EXPECT_THAT(terminal_.Read(), HasSubstr("Interrupted. Nothing was moved."));
  EXPECT_EQ(State(), before_);
}

TEST_F(TrashQuestion, LeavesWhatWasChangedWhileItWasAsked) {
  ProcessOnTerminal process(terminal_, false, true);
  Start(process, {"similar", "--trash"});
  ASSERT_THAT(WaitForQuestion(process), HasSubstr("[y/N]"));
  tree.Write("photos/a2.jpg", "new");
  ASSERT_TRUE((Photos() / "b2.jpg").remove());
  terminal_.Type("yes\n");
  const Ran ran = Finish(process);
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_THAT(ran.out, HasSubstr("a2.jpg is kept: it was changed after it was analysed."));
  EXPECT_THAT(ran.out, HasSubstr("b1.jpg is kept: the photo to keep, "));
  EXPECT_THAT(Names(), ElementsAre("a1.jpg", "a2.jpg", "b1.jpg", "c.jpg"));
}

TEST_F(TrashQuestion, TellsWhatIsOnlyAlike) {
  Save("b3.jpg", Scene(2).copy(12, 9, 456, 342));
  Run({"scan", Text(Photos())});
  const Ran ran = Answer("n\n", {"--alike"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(asked_, HasSubstr("only alike:"));
  EXPECT_THAT(asked_, HasSubstr("Move 4 photos ("));
  EXPECT_THAT(asked_, HasSubstr(" only alike? [y/N] "));
}

TEST_F(TrashQuestion, IsNotAskedWhenThereIsNothingToMove) {
  const Ran ran = Answer("", {"--only", "photos/c.jpg"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.out, "Nothing to move to the trash.\n");
}

#endif

}  // namespace
}  // namespace Zenvora::Test
