// As CheckTest.cpp, of the commands that leave the content of files alone: rename, import and the trash.
#include "TruthFixture.h"

#include <support/ImmutableFile.h>
#include <support/LeftOut.h>

#include <zenvora/core/FileState.h>

#include <filesystem>
#include <set>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#endif

namespace Zenvora::Test {
namespace {

using PathSet = std::set<std::string>;

class CheckTruthOfOthers : public TruthTest {
 protected:
  static PathSet Paths(const QJsonArray& entries, const char* member) {
    PathSet names;
    for (const auto& entry : entries) {
      const QJsonObject object = entry.toObject();
      const QString name = QString::fromLatin1(member);
      names.insert((object[name].toString() + object[name + "Bytes"].toString()).toStdString());
    }
    return names;
  }
  QJsonObject Check(const QString& command) const {
    return Run({"check", "--json", "--for", command, "photos"}).Json();
  }
  std::string In(const std::string& name) const { return (Photos() / ioPath(name)).utf8string(); }

  /// What is no photo, and what is no file.
  void MakeOddThings() const {
    tree.Write("photos/notes.txt", "words");
    tree.Write("photos/film.mp4", "a film");
    tree.Write("photos/film.thm", "its thumbnail");
    tree.Write("photos/spoken.wav", "a word");
    tree.Write("photos/.hidden.jpg", "hidden");
    tree.Write("photos/.DS_Store", "housekeeping");
    tree.Write("photos/below/deep.jpg", MakeJpeg({}));
    tree.Write("photos/below/deep.xmp", Sidecar("xmp:Rating=\"1\""));
  }

  /// Every file that was not refused is renamed, with what belongs to it, and nothing else is.
  void ExpectOneTruthOfRename() const {
    const QJsonObject checked = Check("rename");
    const auto before = Contents();
    // A folder stands for its own photos there, for all below it in the check.
    const QStringList folders = {"photos", "photos/below"};
    const QStringList words = QStringList{"rename", "--json", "--pattern", "R_{name}"} + folders;
    const QJsonObject dry = Run(words + QStringList{"--dry-run"}).Json();
    EXPECT_EQ(Contents(), before);
    const Ran run = Run(words);
    const QJsonObject wet = run.Json();
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(dry["renames"], wet["renames"]);
    EXPECT_EQ(Findings(dry, "cause"), Findings(checked, "text"));
    EXPECT_EQ(Findings(wet, "cause"), Findings(checked, "text"));
    EXPECT_EQ(wet["filesRenamed"].toInt(), checked["files"].toInt());
    EXPECT_GT(wet["filesRenamed"].toInt(), 0);
    const PathSet from = Paths(wet["renames"].toArray(), "from");
    for (const std::string& name : from) {
      EXPECT_EQ(QueryFile(ioPath(name)).kind, FileState::Kind::Missing) << name;
    }
    EXPECT_EQ(Run({"undo"}).exitCode, 0);
    EXPECT_EQ(Contents(), before);
  }

  /// Every file is copied whole, or refused, or among what an import leaves, in all three the same.
  void ExpectOneTruthOfImport() const {
    const QJsonObject checked = Check("import");
    const QStringList words = {"import", "--json", "photos", "--to", "copies", "--yes"};
    const QJsonObject dry = Run(words + QStringList{"--dry-run"}).Json();
    const QJsonObject wet = Run(words).Json();
    EXPECT_EQ(dry["copies"], wet["copies"]);
    EXPECT_EQ(dry["left"], wet["left"]);
    EXPECT_TRUE(wet["missing"].toArray().isEmpty());
    Sentences refused;
    PathSet left;
    for (const auto& entry : wet["left"].toArray()) {
      const QJsonObject file = entry.toObject();
      const QString kind = file["kind"].toString();
      if (kind == "not-a-photo" || kind == "hidden") {
        left.insert(PathOf(file));
      } else {
        refused[PathOf(file)] = file["cause"].toString().toStdString();
      }
    }
    EXPECT_EQ(Findings(checked, "text"), refused);
    EXPECT_EQ(Paths(checked["left"].toArray(), "path"), left);
    EXPECT_EQ(checked["files"].toInt(), wet["found"].toInt());
    int unreadable = 0;
    for (const auto& [path, cause] : refused) {
      unreadable += cause == "It cannot be read" ? 1 : 0;
    }
    EXPECT_EQ(wet["copies"].toArray().size() + wet["known"].toArray().size(),
              checked["files"].toInt() - unreadable);
    EXPECT_GT(wet["copied"].toInt(), 0);
    for (const auto& entry : wet["copies"].toArray()) {
      const QJsonObject copy = entry.toObject();
      const ioPath source(copy["source"].toString());
      EXPECT_TRUE(ReadFile(source) == ReadFile(ioPath(copy["target"].toString()))) << source;
      EXPECT_EQ(refused.count(source.utf8string()), 0U) << source;
    }
  }

  /// Nothing goes that the check refuses, and what it refuses stays for that very reason.
  /// Returns what went.
  PathSet ExpectOneTruthOfTrash() const {
    Run({"scan", "photos"});
    const Sentences checked = Findings(Check("trash"), "text");
    const auto before = Contents();
    const QStringList words = {"similar", "--json", "--trash", "--alike"};
    const QJsonObject dry = Run(words + QStringList{"--dry-run"}).Json()["trash"].toObject();
    EXPECT_EQ(Contents(), before);
    const QJsonObject wet = Run(words + QStringList{"--yes"}).Json()["trash"].toObject();
    EXPECT_EQ(dry["planned"], wet["planned"]);
    EXPECT_EQ(dry["stays"], wet["stays"]);
    EXPECT_EQ(Paths(wet["moved"].toArray(), "from"), Paths(wet["planned"].toArray(), "path"));
    EXPECT_TRUE(wet["findings"].toArray().isEmpty());
    for (const std::string& gone : Paths(wet["moved"].toArray(), "from")) {
      EXPECT_EQ(checked.count(gone), 0U) << gone;
      EXPECT_EQ(QueryFile(ioPath(gone)).kind, FileState::Kind::Missing) << gone;
    }
    for (const auto& entry : wet["stays"].toArray()) {
      const std::string path = PathOf(entry.toObject());
      const std::string cause = entry.toObject()["cause"].toString().toStdString();
      const auto refused = checked.find(path);
      if (refused != checked.end()) {
        EXPECT_EQ(cause, refused->second);
      } else {
        // All else hangs on the photo that is kept.
        EXPECT_THAT(cause, testing::AnyOf(testing::HasSubstr("photo to keep"), testing::HasSubstr("kept")))
            << path;
        EXPECT_THAT(cause, testing::Not(testing::HasSubstr("leads to it")));
      }
    }
    if (wet["photosMoved"].toInt() > 0) {
      EXPECT_EQ(Run({"undo"}).exitCode, 0);
    }
    EXPECT_EQ(Contents(), before);
    return Paths(wet["moved"].toArray(), "from");
  }

  void MakeAll() const {
    MakeAllKinds();
    MakeSidecars();
    MakeOddThings();
  }
};

class CheckTruthOfTrash : public CheckTruthOfOthers {
 protected:
  void SetUp() override {
#ifdef _WIN32
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
      GTEST_SKIP() << "the recycle bin of the system would be used";
    }
#endif
  }
};

TEST_F(CheckTruthOfOthers, SaysOfEveryFileWhatARenameMakesOfIt) {
  MakeAll();
  ExpectOneTruthOfRename();
}

TEST_F(CheckTruthOfOthers, SaysOfEveryFileWhatAnImportMakesOfIt) {
  MakeAll();
  ExpectOneTruthOfImport();
}

TEST_F(CheckTruthOfTrash, SaysOfEveryFileWhatTheTrashMakesOfIt) {
  MakeAll();
  const std::string twice = ReadFile(Photos() / "jpg-whole.jpg");
  tree.Write("photos/below/twice.jpg", twice);
  tree.Write("photos/rated.jpg", twice);
  tree.Write("photos/rated.xmp", Sidecar("xmp:Rating=\"5\""));
  const PathSet gone = ExpectOneTruthOfTrash();
  EXPECT_GT(gone.size(), 0U);
  EXPECT_EQ(gone.count(In("rated.jpg")), 0U);
}

TEST_F(CheckTruthOfOthers, SaysOfLinksWhatBecomesOfThem) {
  MakeOddThings();
  Photo("whole.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "gone.jpg", Photos() / "dangling.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "round.jpg", Photos() / "round.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos(), Photos() / "below/back");
  LUMIDEX_LINK_OR_SKIP(Photos() / "gone", Photos() / "nowhere");
  ExpectOneTruthOfRename();
  ExpectOneTruthOfImport();
  EXPECT_EQ(Findings(Check("import"), "text").size(), 4U);
}

TEST_F(CheckTruthOfTrash, KeepsLinksOutOfTheTrash) {
  const ioPath photo = Photo("whole.jpg");
  const ioPath other = tree.Write("elsewhere/copy.jpg", ReadFile(photo));
  LUMIDEX_LINK_OR_SKIP(other, Photos() / "link.jpg");
  EXPECT_EQ(ExpectOneTruthOfTrash().size(), 0U);
  EXPECT_EQ(Findings(Check("trash"), "text").count(In("link.jpg")), 1U);
  EXPECT_EQ(ReadFile(other), ReadFile(photo));
}

/// Links, tags, albums, second names and settings: all that keeps a copy.
TEST_F(CheckTruthOfTrash, TellsWhatStaysForItselfAndThatTheRestHangsOnGroups) {
  const ioPath photo = Photo("whole.jpg");
  const std::string content = ReadFile(photo);
  for (const char* const name : {"plain", "linked", "tagged", "rated"}) {
    tree.Write(std::string("photos/") + name + ".jpg", content);
  }
  tree.Write("photos/rated.xmp", Sidecar("xmp:Rating=\"5\""));
  std::filesystem::create_hard_link(photo.for_system(), (Photos() / "second.jpg").for_system());
  const ioPath link = tree.MakeFolder("photos/best") / "favourite.jpg";
  LUMIDEX_LINK_OR_SKIP(Photos() / "linked.jpg", link);
  Run({"scan", "photos"});
  ASSERT_EQ(Run({"tag", "photos/tagged.jpg", "+beach"}).exitCode, 0);
  const PathSet gone = ExpectOneTruthOfTrash();
  EXPECT_EQ(gone.count(In("plain.jpg")), 1U);
  EXPECT_EQ(gone.count(In("linked.jpg")) + gone.count(In("rated.jpg")), 0U);
  const Sentences checked = Findings(Check("trash"), "text");
  EXPECT_EQ(checked.at(In("linked.jpg")),
            In("linked.jpg") + " is kept: the link " + link.utf8string() + " leads to it.");
  EXPECT_EQ(checked.size(), 1U);
  EXPECT_THAT(Run({"check", "--for", "trash", "photos"}).out,
              testing::HasSubstr("also depends on the one that is kept of its group"));
  EXPECT_THAT(Run({"check", "--for", "rename", "photos"}).out,
              testing::Not(testing::HasSubstr("of its group")));
}

/// Settings that lie elsewhere, and a raw file whose JPEG is gone.
TEST_F(CheckTruthOfOthers, TellsOfLinksFromWhichARenameWouldTearPhotos) {
  Photo("a.jpg");
  Photo("b.jpg");
  Photo("own.jpg");
  Photo("lone.jpg");
  tree.Write("elsewhere/a.xmp", Sidecar("xmp:Rating=\"1\""));
  LUMIDEX_LINK_OR_SKIP(tree.Path("elsewhere/a.xmp"), Photos() / "a.xmp");
  LUMIDEX_LINK_OR_SKIP(Photos() / "missing.dng", Photos() / "b.dng");
  LUMIDEX_LINK_OR_SKIP(Photos() / "own.jpg", Photos() / "own.png");
  LUMIDEX_LINK_OR_SKIP(Photos() / "missing.jpg", Photos() / "torn.jpg");
  const QJsonObject dry = Run({"rename", "--json", "--pattern", "R_{name}", "photos", "--dry-run"}).Json();
  Sentences told;
  for (const auto& entry : dry["problems"].toArray()) {
    const QJsonObject problem = entry.toObject();
    EXPECT_EQ(problem["kind"].toString(), QStringLiteral("torn"));
    told[PathOf(problem)] = PathOf(problem) + ": " + problem["cause"].toString().toStdString() + ": " +
                            ioPath(problem["other"].toString()).filename().utf8string();
  }
  EXPECT_EQ(told.size(), 2U);
  EXPECT_EQ(Findings(Check("rename"), "text"), told);
  EXPECT_EQ(Run({"check", "--for", "rename", "photos"}).exitCode, 1);
}

TEST_F(CheckTruthOfOthers, AgreesWithRenameAndImportOnRealPhotos) {
  if (!CopyRealPhotos()) {
    GTEST_SKIP() << "LUMIDEX_TEST_PHOTOS names no folder of photos to try";
  }
  MakeOddThings();
  ExpectOneTruthOfRename();
  ExpectOneTruthOfImport();
}

TEST_F(CheckTruthOfTrash, AgreesWithTheTrashOnRealPhotos) {
  if (!CopyRealPhotos()) {
    GTEST_SKIP() << "LUMIDEX_TEST_PHOTOS names no folder of photos to try";
  }
  int number = 0;
  for (const auto& [path, content] : Contents()) {
    if (number++ % 5 == 0) {
      tree.Write(ioPath("photos/copies") / ioPath(path).filename(), content);
    }
  }
  EXPECT_GT(ExpectOneTruthOfTrash().size(), 0U);
}

#ifndef _WIN32

TEST_F(CheckTruthOfOthers, NeverOpensAPipe) {
  Photo("a.jpg");
  MakeOddThings();
  ASSERT_EQ(mkfifo((Photos() / "pipe.jpg").native().c_str(), 0644), 0);
  ExpectOneTruthOfRename();
  ExpectOneTruthOfImport();
  EXPECT_EQ(Findings(Check("import"), "text").count(In("pipe.jpg")), 1U);
}

TEST_F(CheckTruthOfOthers, SaysOfAnImmutableFileWhatARenameMakesOfIt) {
  const ioPath photo = Photo("a.jpg");
  Photo("b.jpg");
  const QStringList words = {"rename", "--json", "--pattern", "R_{name}", "photos"};
  {
    const ImmutableFile closed(photo);
    LUMIDEX_IMMUTABLE_OR_SKIP(closed);
    const Sentences checked = Findings(Check("rename"), "text");
    const auto before = Contents();
    const Ran dry = Run(words + QStringList{"--dry-run"});
    const Ran wet = Run(words);
    EXPECT_EQ(checked, (Sentences{{photo.utf8string(),
                                   "Cannot rename " + photo.utf8string() +
                                       ": the system lets nobody move it; take its attribute \"immutable\" "
                                       "away"}}));
    EXPECT_EQ(Findings(dry.Json(), "cause"), checked);
    EXPECT_EQ(Findings(wet.Json(), "cause"), checked);
    EXPECT_EQ(dry.exitCode, 4);
    EXPECT_EQ(wet.exitCode, 4);
    EXPECT_EQ(Contents(), before);
  }
  EXPECT_EQ(Check("rename")["findings"].toArray().size(), 0);
  EXPECT_EQ(Run(words).Json()["filesRenamed"].toInt(), 2);
}

TEST_F(CheckTruthOfTrash, SaysOfAnImmutableFileWhatTheTrashMakesOfIt) {
  tree.Write("photos/b.jpg", ReadFile(Photo("a.jpg")));
  Run({"scan", "photos"});
  const auto planned = [this] {
    return Run({"similar", "--json", "--trash", "--dry-run"}).Json()["trash"].toObject();
  };
  const PathSet goes = Paths(planned()["planned"].toArray(), "path");
  ASSERT_EQ(goes.size(), 1U);
  {
    const ImmutableFile closed((ioPath(*goes.begin())));
    LUMIDEX_IMMUTABLE_OR_SKIP(closed);
    EXPECT_TRUE(ExpectOneTruthOfTrash().empty());
    EXPECT_EQ(Paths(Check("trash")["findings"].toArray(), "path"), goes);
    EXPECT_EQ(Paths(planned()["stays"].toArray(), "path"), goes);
  }
  EXPECT_EQ(Check("trash")["findings"].toArray().size(), 0);
  EXPECT_EQ(ExpectOneTruthOfTrash(), goes);
}

#else

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(CheckTruthOfOthers, NeverOpensAPipe);

#endif

}  // namespace
}  // namespace Zenvora::Test
