#include <LumidexUtil/FileAccessLocker.h>
#include <support/Doubles.h>
#include <support/FileHolder.h>
#include <support/LeftOut.h>
#include <support/LogCapture.h>
#include <support/Obstacles.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/Verbosity.h>

#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Zenvora::Lumidex {
namespace {

using std::chrono::milliseconds;

class FileAccessLockerTest : public ::testing::Test {
 protected:
  const Zenvora::Test::TempTree tree_;
  const std::shared_ptr<Zenvora::Test::FakeClock> clock_ = std::make_shared<Zenvora::Test::FakeClock>();
  const App::ServiceScope<App::IClock> scope_{clock_};
  const Zenvora::Test::Verbosity verbosity_{30};
  const Zenvora::Test::LogCapture log_;
  boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
};

/// True when another thread cannot get the path now. Lets it have the path in the end.
class Waiter {
 public:
  Waiter(IFileAccessLocker& locker, const ioPath& path) {
    done_ = std::async(std::launch::async, [&locker, path] {
      locker.Lock(path);
      locker.Unlock(path);
    });
  }
  bool IsBlocked() { return done_.wait_for(milliseconds(50)) == std::future_status::timeout; }
  void Finish() { done_.get(); }

 private:
  std::future<void> done_;
};

TEST_F(FileAccessLockerTest, StartsWithOneReference) {
  EXPECT_EQ(locker_->GetRefCount(), 1U);
  EXPECT_EQ(locker_->AddRef(), 2U);
  EXPECT_EQ(locker_->GetRefCount(), 2U);
  EXPECT_EQ(locker_->Release(), 1U);
}

TEST_F(FileAccessLockerTest, IsDeletedWithItsLastReference) {
  boost::intrusive_ptr<IFileAccessLocker> second = locker_;
  locker_.reset();
  EXPECT_TRUE(log_.Lines().empty());
  second.reset();
  EXPECT_EQ(log_.Lines().size(), 1U);
}

TEST_F(FileAccessLockerTest, SaysNothingOfAFileThatIsReadableAtOnce) {
  const ioPath file = tree_.Write("a.jpg", "x");
  locker_->Lock(file);
  locker_->Unlock(file);
  EXPECT_TRUE(log_.Lines().empty());
  EXPECT_TRUE(clock_->sleeps.empty());
}

TEST_F(FileAccessLockerTest, HoldsAMissingFileAfterFiftyAttempts) {
  const ioPath file = tree_.Path("Пейзаж 1.jpg");
  locker_->Lock(file);
  EXPECT_EQ(clock_->sleeps, std::vector<milliseconds>(50, milliseconds(10)));
  const auto lines = log_.Lines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].severity, google::GLOG_WARNING);
  EXPECT_EQ(lines[0].text, "Cannot lock " + file.utf8string());
  EXPECT_EQ(lines[0].source, "Util/FileAccessLocker.cpp");

  tree_.Write("Пейзаж 1.jpg", "x");
  Waiter waiter(*locker_, file);
  EXPECT_TRUE(waiter.IsBlocked());
  locker_->Unlock(file);
  waiter.Finish();
}

TEST_F(FileAccessLockerTest, WaitsForAFileThatBecomesReadable) {
  const ioPath file = tree_.Path("a.jpg");
  clock_->onSleep = [&](std::size_t number) {
    if (number == 3) {
      tree_.Write("a.jpg", "x");
    }
  };
  locker_->Lock(file);
  EXPECT_EQ(clock_->sleeps, std::vector<milliseconds>(3, milliseconds(10)));
  const auto lines = log_.Lines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].severity, google::GLOG_INFO);
  EXPECT_EQ(lines[0].text, "File locked (3) " + file.utf8string());
  EXPECT_EQ(lines[0].source, "Util/FileAccessLocker.cpp");
  locker_->Unlock(file);
}

TEST_F(FileAccessLockerTest, TellsOfItsPatienceAtTheFiftiethAttempt) {
  clock_->onSleep = [&](std::size_t number) {
    if (number == 49) {
      tree_.Write("a.jpg", "x");
    }
  };
  const ioPath file = tree_.Path("a.jpg");
  locker_->Lock(file);
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "File locked (49) " + file.utf8string());
  locker_->Unlock(file);
}

TEST_F(FileAccessLockerTest, SpeaksAtItsLevelsOnly) {
  const ioPath file = tree_.Path("a.jpg");
  clock_->onSleep = [&](std::size_t) { tree_.Write("a.jpg", "x"); };
  {
    const Zenvora::Test::Verbosity lower(19);
    locker_->Lock(file);
    locker_->Unlock(file);
    EXPECT_TRUE(log_.Lines().empty());
  }
  file.remove();
  {
    const Zenvora::Test::Verbosity exact(20);
    locker_->Lock(file);
    locker_->Unlock(file);
    EXPECT_EQ(log_.Lines().size(), 1U);
  }
  {
    const Zenvora::Test::Verbosity lower(29);
    locker_.reset();
    EXPECT_EQ(log_.Lines().size(), 1U);
  }
}

TEST_F(FileAccessLockerTest, CountsItsPathsAtTheEnd) {
  for (int i = 0; i < 5; ++i) {
    const ioPath file = tree_.Write(std::to_string(i), "x");
    for (int round = 0; round < 2; ++round) {
      locker_->Lock(file);
      locker_->Unlock(file);
    }
  }
  locker_.reset();
  const auto lines = log_.Lines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].severity, google::GLOG_INFO);
  EXPECT_EQ(lines[0].text, "Locked file count: 5");
  EXPECT_EQ(lines[0].source, "Util/FileAccessLocker.cpp");
}

TEST_F(FileAccessLockerTest, CountsNoPathsWhenItSawNone) {
  locker_.reset();
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "Locked file count: 0");
}

TEST_F(FileAccessLockerTest, TakesEqualPathsForOne) {
  const ioPath file = tree_.Write("folder/a.jpg", "x");
  const ioPath other(tree_.Path("folder").utf8string() + "//a.jpg");
  ASSERT_EQ(file, other);
  locker_->Lock(file);
  locker_->Unlock(other);
  locker_.reset();
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "Locked file count: 1");
}

TEST_F(FileAccessLockerTest, ServesThreadsWithOnePathOneAfterTheOther) {
  const ioPath file = tree_.Write("a.jpg", "x");
  locker_->Lock(file);
  Waiter waiter(*locker_, file);
  EXPECT_TRUE(waiter.IsBlocked());
  locker_->Unlock(file);
  waiter.Finish();
}

TEST_F(FileAccessLockerTest, LetsThreadsWithOtherPathsPass) {
  const ioPath file = tree_.Write("a.jpg", "x");
  const ioPath other = tree_.Write("b.jpg", "x");
  locker_->Lock(file);
  Waiter blocked(*locker_, file);
  EXPECT_TRUE(blocked.IsBlocked());
  Waiter(*locker_, other).Finish();
  locker_->Unlock(file);
  blocked.Finish();
}

TEST_F(FileAccessLockerTest, KeepsItsTableFreeWhileItWaitsForAFile) {
  const ioPath other = tree_.Write("b.jpg", "x");
  bool passed = false;
  clock_->onSleep = [&](std::size_t number) {
    if (number == 1) {
      Waiter(*locker_, other).Finish();
      passed = true;
    }
  };
  const ioPath missing = tree_.Path("a.jpg");
  locker_->Lock(missing);
  EXPECT_TRUE(passed);
  locker_->Unlock(missing);
}

TEST_F(FileAccessLockerTest, KeepsThePathsOfOneLockerFromThoseOfAnother) {
  const ioPath file = tree_.Write("a.jpg", "x");
  const auto second = FileAccessLocker::Create();
  const FileAccessLockerGuard first(*locker_, file);
  const FileAccessLockerGuard guard(*second, file);
  EXPECT_TRUE(log_.Lines().empty());
}

TEST_F(FileAccessLockerTest, LeavesTheFileAlone) {
  const ioPath file = tree_.Write("a.jpg", "content");
  const FileAccessLockerGuard guard(*locker_, file);
  EXPECT_EQ(Zenvora::Test::ReadFile(file), "content");
  EXPECT_TRUE(file.rename(tree_.Path("b.jpg")));
}

TEST_F(FileAccessLockerTest, TriesAnEmptyPathInVain) {
  locker_->Lock(ioPath());
  EXPECT_EQ(clock_->sleeps.size(), 50U);
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "Cannot lock ");
  locker_->Unlock(ioPath());
}

TEST_F(FileAccessLockerTest, DoesNotHangOnAFolder) {
  const ioPath folder = tree_.MakeFolder("folder");
  locker_->Lock(folder);
  // Windows opens no folders for reading, Linux does.
  EXPECT_LE(clock_->sleeps.size(), 50U);
  locker_->Unlock(folder);
}

TEST_F(FileAccessLockerTest, SurvivesNamesAtTheLimit) {
  const ioPath longest = tree_.Write(std::string(255 - 4, 'a') + ".jpg", "x");
  locker_->Lock(longest);
  locker_->Unlock(longest);
  EXPECT_TRUE(log_.Lines().empty());
  const ioPath tooLong = tree_.Path(std::string(300, 'a'));
  locker_->Lock(tooLong);
  locker_->Unlock(tooLong);
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "Cannot lock " + tooLong.utf8string());
}

TEST_F(FileAccessLockerTest, DoesNotWaitForThePartnerOfAPipe) {
  const Zenvora::Test::Pipe pipe(tree_.Path("pipe"));
  locker_->Lock(pipe.Path());
  // Windows' pipes are no files at all.
  EXPECT_LE(clock_->sleeps.size(), 50U);
  locker_->Unlock(pipe.Path());
}

TEST_F(FileAccessLockerTest, TriesAFileThatItMayNotReadInVain) {
#ifndef _WIN32
  if (Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "the superuser may read any file";
  }
#endif
  const ioPath file = tree_.Write("a.jpg", "x");
  const Zenvora::Test::Closed closed(file);
  locker_->Lock(file);
  EXPECT_EQ(clock_->sleeps.size(), 50U);
  locker_->Unlock(file);
}

TEST_F(FileAccessLockerTest, NamesAFileWhoseNameIsNoText) {
  const ioPath file = tree_.Path(std::string(Zenvora::Test::kStrangeName) + ".jpg");
  locker_->Lock(file);
  locker_->Unlock(file);
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "Cannot lock " + file.utf8string());
}

#ifndef _WIN32
TEST_F(FileAccessLockerTest, HoldsNoFileOpen) {
  const ioPath file = tree_.Write("a.jpg", "x");
  const auto openFiles = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator());
  };
  const auto before = openFiles();
  const FileAccessLockerGuard guard(*locker_, file);
  EXPECT_EQ(openFiles(), before);
}

#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(FileAccessLockerTest, HoldsNoFileOpen);

TEST_F(FileAccessLockerTest, WaitsForAFileThatAnotherThreadOrProgramKeepsToItself) {
  for (const auto hold : {Zenvora::Test::HoldInAThread, Zenvora::Test::HoldInAProcess}) {
    const ioPath file = tree_.Write("a.jpg", "x");
    const auto holder = hold(file);
    const Zenvora::Test::LogCapture log;
    clock_->sleeps.clear();
    clock_->onSleep = [&](std::size_t number) {
      if (number == 3) {
        holder->LetGo();
      }
    };
    locker_->Lock(file);
    locker_->Unlock(file);
    ASSERT_EQ(log.Lines().size(), 1U);
    EXPECT_EQ(log.Lines()[0].text, "File locked (3) " + file.utf8string());
  }
}

TEST_F(FileAccessLockerTest, GivesUpOnAFileThatAnotherProgramKeeps) {
  const ioPath file = tree_.Write("a.jpg", "x");
  const auto holder = Zenvora::Test::HoldInAProcess(file);
  locker_->Lock(file);
  locker_->Unlock(file);
  EXPECT_EQ(clock_->sleeps.size(), 50U);
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "Cannot lock " + file.utf8string());
}

TEST_F(FileAccessLockerTest, SharesTheFileWhileItLooks) {
  const ioPath file = tree_.Write("a.jpg", "x");
  const HANDLE writer = CreateFileW(file.for_system().c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(writer, INVALID_HANDLE_VALUE);
  locker_->Lock(file);
  locker_->Unlock(file);
  CloseHandle(writer);
  EXPECT_TRUE(log_.Lines().empty());
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex
