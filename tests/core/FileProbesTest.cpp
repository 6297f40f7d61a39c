#include <support/ImmutableFile.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/Unprivileged.h>

#include <zenvora/core/FileProbes.h>

#include <gtest/gtest.h>

#include <QFileInfo>

#include <filesystem>
#include <string>
#include <vector>

#ifndef _WIN32
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace Zenvora {
namespace {

namespace fs = std::filesystem;
using Zenvora::Test::TempTree;

TEST(FileProbes, OpenWhatIsThere) {
  const TempTree tree;
  for (const char* name : {"a.jpg", "Пейзаж 1.jpg", "写真.jpg", " a b.jpg"}) {
    const ioPath file = tree.Write(name, "12345");
    EXPECT_TRUE(OpensForReading(file)) << name;
    EXPECT_TRUE(OpensForAppending(file)) << name;
    EXPECT_TRUE(HasWritePermission(file)) << name;
    EXPECT_EQ(Zenvora::Test::ReadFile(file), "12345") << name;
  }
}

TEST(FileProbes, RefuseWhatIsNotThereAndDoNotMakeIt) {
  const TempTree tree;
  for (const ioPath& file : {tree.Path("missing"), tree.Path("missing/a"), ioPath(),
                             ioPath(std::string("a\0b", 3)), tree.Path(std::string(300, 'a'))}) {
    EXPECT_FALSE(OpensForReading(file)) << file;
    EXPECT_FALSE(OpensForAppending(file)) << file;
    EXPECT_FALSE(HasWritePermission(file)) << file;
  }
  EXPECT_TRUE(fs::is_empty(tree.Path().native()));
}

TEST(FileProbes, RefuseToAppendToAFolder) {
  const TempTree tree;
  EXPECT_FALSE(OpensForAppending(tree.Path()));
}

TEST(FileProbes, LeaveTheTimeOfAFileAlone) {
  const TempTree tree;
  const ioPath file = tree.Write("a.jpg", "12345");
  const auto before = fs::last_write_time(file.native()) - std::chrono::hours(48);
  fs::last_write_time(file.native(), before);
  EXPECT_TRUE(OpensForReading(file));
  EXPECT_TRUE(OpensForAppending(file));
  EXPECT_EQ(fs::last_write_time(file.native()), before);
}

TEST(FileProbes, FollowLinks) {
  const TempTree tree;
  tree.Write("a.jpg", "x");
  LUMIDEX_LINK_OR_SKIP("a.jpg", tree.Path("link.jpg"));
  LUMIDEX_LINK_OR_SKIP("nowhere.jpg", tree.Path("dangling.jpg"));
  EXPECT_TRUE(OpensForReading(tree.Path("link.jpg")));
  EXPECT_TRUE(OpensForAppending(tree.Path("link.jpg")));
  EXPECT_TRUE(HasWritePermission(tree.Path("link.jpg")));
  EXPECT_FALSE(OpensForReading(tree.Path("dangling.jpg")));
  EXPECT_FALSE(OpensForAppending(tree.Path("dangling.jpg")));
  EXPECT_FALSE(HasWritePermission(tree.Path("dangling.jpg")));
  EXPECT_FALSE(tree.Path("nowhere.jpg").exists());
}

TEST(FileProbes, AnswerForPermissionsAsQtDoes) {
  const TempTree tree;
  const ioPath readOnly = tree.Write("readonly.jpg", "x");
  fs::permissions(readOnly.native(),
                  fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
  const auto agree = [&] {
    for (const ioPath& file : {tree.Path(), readOnly, tree.Write("a.jpg", ""), tree.Path("missing"),
                               tree.Path("a.jpg/b"), ioPath("/")}) {
      if (HasWritePermission(file) != QFileInfo(file.qstring()).permission(QFileDevice::WriteUser)) {
        return false;
      }
    }
    return true;
  };
  EXPECT_TRUE(agree());
#ifdef _WIN32
  EXPECT_FALSE(HasWritePermission(readOnly));
  // Else nobody can take it away.
  fs::permissions(readOnly.native(), fs::perms::owner_write, fs::perm_options::add);
#else
  EXPECT_EQ(HasWritePermission(readOnly), Zenvora::Test::IsSuperuser());
#endif
}

TEST(FileProbes, KeepNamesThatAreNoText) {
  const TempTree tree;
  const ioPath file = tree.Write(std::string(Zenvora::Test::kStrangeName) + ".jpg", "x");
  EXPECT_TRUE(OpensForReading(file));
  EXPECT_TRUE(OpensForAppending(file));
  EXPECT_TRUE(HasWritePermission(file));
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(FileProbes, DoNotWaitForTheOtherEndOfAPipe);
LUMIDEX_LEFT_OUT_ON_WINDOWS(FileProbes, GoByTheRightsOfTheUser);
#else
TEST(FileProbes, DoNotWaitForTheOtherEndOfAPipe) {
  const TempTree tree;
  const Zenvora::Test::Pipe pipe(tree.Path("pipe.jpg"));
  EXPECT_TRUE(OpensForReading(pipe.Path()));
  EXPECT_FALSE(OpensForAppending(pipe.Path())) << "nobody reads it";
  const int reader = open(pipe.Path().native().c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_TRUE(OpensForAppending(pipe.Path()));
  close(reader);
}

TEST(FileProbes, TakeADeviceForWhatItAllows) {
  EXPECT_TRUE(OpensForReading("/dev/null"));
  EXPECT_TRUE(OpensForAppending("/dev/full"));
  EXPECT_TRUE(OpensForReading("/")) << "as the system does with folders";
}

TEST(FileProbes, GoByTheRightsOfTheUser) {
  const TempTree tree;
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const ioPath open = tree.Write("open.jpg", "x");
  const ioPath closed = tree.Write("closed.jpg", "x");
  ASSERT_EQ(chmod(open.native().c_str(), 0444), 0);
  ASSERT_EQ(chmod(closed.native().c_str(), 0000), 0);
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] { return OpensForReading(open); }));
  EXPECT_FALSE(Zenvora::Test::AskAsNobody([&] { return OpensForAppending(open); }));
  EXPECT_FALSE(Zenvora::Test::AskAsNobody([&] { return HasWritePermission(open); }));
  EXPECT_FALSE(Zenvora::Test::AskAsNobody([&] { return OpensForReading(closed); }));
}

TEST(FileProbes, SeeWhatNobodyMayMove) {
  const TempTree tree;
  const ioPath file = tree.Write("a.jpg", "x");
  EXPECT_FALSE(IsImmutable(file));
  EXPECT_FALSE(IsImmutable(tree.Path("gone.jpg")));
  {
    const Zenvora::Test::ImmutableFile closed(file);
    LUMIDEX_IMMUTABLE_OR_SKIP(closed);
    EXPECT_TRUE(IsImmutable(file));
  }
  EXPECT_FALSE(IsImmutable(file));
}

TEST(FileProbes, AskForAFileThatAServerLent) {
  const TempTree tree;
  const ioPath file = tree.Write("lent.jpg", "x");
  int ready[2] = {};
  ASSERT_EQ(pipe(ready), 0);
  // Lends the file and gives it back when it is asked for.
  const pid_t lender = fork();
  if (lender == 0) {
    sigset_t asked;
    sigemptyset(&asked);
    sigaddset(&asked, SIGIO);
    sigprocmask(SIG_BLOCK, &asked, nullptr);
    const int handle = open(file.native().c_str(), O_RDWR);
    const char held = fcntl(handle, F_SETLEASE, F_WRLCK) == 0 ? 'y' : 'n';
    if (write(ready[1], &held, 1) != 1 || held != 'y') {
      _exit(1);
    }
    int number = 0;
    sigwait(&asked, &number);
    fcntl(handle, F_SETLEASE, F_UNLCK);
    _exit(0);
  }
  char held = 'n';
  ASSERT_EQ(read(ready[0], &held, 1), 1);
  if (held == 'y') {
    EXPECT_TRUE(OpensForReading(file));
  }
  int status = -1;
  ASSERT_EQ(waitpid(lender, &status, 0), lender);
  close(ready[0]);
  close(ready[1]);
  if (held != 'y') {
    GTEST_SKIP() << "this file system lends no files";
  }
  EXPECT_EQ(status, 0) << "the lender was never asked";
}
#endif

}  // namespace
}  // namespace Zenvora
