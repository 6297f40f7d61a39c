// Two runs of the command work with one catalogue: one that waits for an answer, or for somebody to read what
// it prints, keeps the other from nothing.

#include "ChangeFixture.h"
#include "Terminal.h"

#include <support/LeftOut.h>
#include <support/SmallDisk.h>

#include <QElapsedTimer>

#include <fstream>

namespace Zenvora::Test {
namespace {

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(OpenJournal, IsNotHeldWhileAnEditAsks);
LUMIDEX_LEFT_OUT_ON_WINDOWS(OpenJournal, IsNotHeldWhileTheTrashAsks);
LUMIDEX_LEFT_OUT_ON_WINDOWS(OpenJournal, IsNotHeldWhileUndoAsks);
LUMIDEX_LEFT_OUT_ON_WINDOWS(OpenJournal, IsNotHeldWhileNobodyReadsTheResult);
#else

class OpenJournal : public ChangeTest {
 protected:
  /// A photo with so many bytes.
  ioPath PhotoOf(const std::string& name, std::size_t bytes) const {
    const ioPath photo = Photo(name);
    // Behind the end of the picture: an edit takes it along.
    std::ofstream(photo.native(), std::ios::binary | std::ios::app) << std::string(bytes, '\n');
    return photo;
  }

  /// Another run makes a step.
  void ExpectFree() const {
    const Ran other = Run({"rotate", "right", "free"});
    EXPECT_EQ(other.exitCode, 0) << other.err;
    EXPECT_EQ(other.err, "");
  }

  const ioPath free_ = WriteJpeg(tree.Path("free/f.jpg"), {});
  const Terminal terminal_{100};
};

TEST_F(OpenJournal, IsNotHeldWhileAnEditAsks) {
  PhotoOf("a.jpg", 40'000);
  const std::string before = ReadFile(PhotoOf("b.jpg", 40'000));
  ASSERT_EQ(Run({"rotate", "right", "photos/a.jpg"}).exitCode, 0);
  ASSERT_EQ(Run({"undo", "--keep-size", "60K"}).exitCode, 0);
  // What was broken off is finished before it asks.
  const ioPath broken = WriteJpeg(tree.Path("broken/c.jpg"), {});
  ASSERT_EQ(Run({"rename", "--pattern", "x", "broken"}).exitCode, 0);
  ChangeCatalogue(DefaultCatalogue(), "UPDATE steps SET state = 1 WHERE kind = 1");

  ProcessOnTerminal process(terminal_, false, true);
  Start(process, {"rotate", "left", "photos/b.jpg"});
  ASSERT_THAT(terminal_.WaitFor("[y/N]", process), HasSubstr("undo would have to forget 1 older step"));
  ExpectFree();
  terminal_.Type("y\n");
  const Ran ran = Finish(process);
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("1 photo edited"));
  EXPECT_NE(ReadFile(Photos() / "b.jpg"), before);
}

TEST_F(OpenJournal, IsNotHeldWhileTheTrashAsks) {
  const std::string bytes = ReadFile(Photo("a.jpg"));
  tree.Write("photos/b.jpg", bytes);
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  ProcessOnTerminal process(terminal_, false, true);
  Start(process, {"similar", "--trash"});
  ASSERT_THAT(terminal_.WaitFor("[y/N]", process), HasSubstr("Move 1 photo"));
  ExpectFree();
  terminal_.Type("y\n");
  EXPECT_EQ(Finish(process).exitCode, 0);
  EXPECT_EQ(Names().size(), 1U);
}

/// An undo for which only the room that redo needs is missing asks whether to go on without it.
TEST_F(OpenJournal, IsNotHeldWhileUndoAsks) {
  const ioPath place = tree.MakeFolder("disk");
  SmallDisk disk(place, std::size_t{16} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  const QStringList options{"--catalogue", Text(place / "c.sqlite")};
  const ioPath photo = PhotoOf("a.jpg", 2'000'000);
  const std::string before = ReadFile(photo);
  ASSERT_EQ(Run(options + QStringList{"rotate", "right", "photos"}).exitCode, 0);
  const std::string turned = ReadFile(photo);
  for (const bool isDisturbed : {true, false}) {
    // Another program takes the room that was held.
    ASSERT_TRUE((place / "c.sqlite.undo" / "reserve").remove());
    disk.Fill(300'000);
    ProcessOnTerminal process(terminal_, false, true);
    Start(process, options + QStringList{"undo"});
    ASSERT_THAT(terminal_.WaitFor("[y/N]", process), HasSubstr("Undo without keeping what redo needs?"));
    if (isDisturbed) {
      const Ran other = Run(options + QStringList{"undo", "--skip"});
      EXPECT_EQ(other.exitCode, 0) << other.err;
    }
    terminal_.Type("y\n");
    const Ran ran = Finish(process);
    if (isDisturbed) {
      EXPECT_EQ(ran.exitCode, 4) << ran.out;
      EXPECT_THAT(terminal_.Read(), HasSubstr("Nothing more was undone"));
      EXPECT_EQ(ReadFile(photo), turned) << "the step that was asked about is not the last one any more";
      disk.Clear();
      ASSERT_EQ(Run(options + QStringList{"rotate", "left", "photos"}).exitCode, 0);
    } else {
      EXPECT_EQ(ran.exitCode, 0) << ran.out;
      EXPECT_EQ(ReadFile(photo), turned);
    }
  }
  EXPECT_NE(turned, before);
}

TEST_F(OpenJournal, IsNotHeldWhileNobodyReadsTheResult) {
  constexpr int kPhotos = 200;
  const std::string longName(150, 'n');
  for (int i = 0; i < kPhotos; ++i) {
    WriteJpeg(Photos() / (std::to_string(1000 + i) + longName + ".jpg"), {});
  }
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(Text(tree.Path()));
  process.start(
      QStringLiteral("bash"),
      {QStringLiteral("-c"), QStringLiteral("mkfifo go && $LUMIDEX --json rename --pattern '{name}y' photos |"
                                            " { read -r _ < go; cat > out.json; }; exit ${PIPESTATUS[0]}")});
  QElapsedTimer timer;
  timer.start();
  const ioPath last = Photos() / (std::to_string(1000 + kPhotos - 1) + longName + "y.jpg");
  while (!last.exists() && timer.elapsed() < 60'000) {
    process.waitForFinished(10);
  }
  ASSERT_TRUE(last.exists());
  ExpectFree();
  EXPECT_EQ(process.state(), QProcess::Running) << "what it prints must be more than a pipe holds";
  tree.Write("go", "\n");
  EXPECT_EQ(Finish(process).exitCode, 0);
  EXPECT_THAT(ReadText(tree.Path("out.json")), HasSubstr("1199"));
}
#endif

}  // namespace
}  // namespace Zenvora::Test
