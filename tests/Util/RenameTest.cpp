#include <LumidexUtil/FileAccessLocker.h>
#include <LumidexUtil/Rename.h>
#include <support/Doubles.h>
#include <support/FileHolder.h>
#include <support/LogCapture.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/Verbosity.h>

#include <boost/exception/all.hpp>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>

namespace Zenvora::Util {
namespace {

using std::chrono::milliseconds;
using Zenvora::Test::ReadFile;

class RenameTest : public ::testing::Test {
 protected:
  /// The exception of a rename that must fail.
  ExceptionRename Failure(const ioPath& from, const ioPath& to) {
    try {
      Rename(locker_, from, to);
    } catch (const ExceptionRename& failure) {
      return failure;
    }
    ADD_FAILURE() << "no exception";
    return {};
  }

  const Zenvora::Test::TempTree tree_;
  const std::shared_ptr<Zenvora::Test::FakeClock> clock_ = std::make_shared<Zenvora::Test::FakeClock>();
  const App::ServiceScope<App::IClock> scope_{clock_};
  const Zenvora::Test::Verbosity verbosity_{30};
  const Zenvora::Test::LogCapture log_;
  Zenvora::Test::FakeLocker locker_;
};

template <class Tag>
std::string TextOf(const boost::exception& failure) {
  const auto* const text = boost::get_error_info<Tag>(failure);
  return text == nullptr ? "(none)" : *text;
}

TEST_F(RenameTest, MovesTheFileAtTheFirstAttemptWithoutAWord) {
  const ioPath from = tree_.Write("a.jpg", "x");
  const ioPath to = tree_.Path("Пейзаж 1.jpg");
  Rename(locker_, from, to);
  EXPECT_FALSE(from.exists());
  EXPECT_EQ(ReadFile(to), "x");
  EXPECT_TRUE(clock_->sleeps.empty());
  EXPECT_TRUE(log_.Lines().empty());
}

TEST_F(RenameTest, HoldsTheSourceOnly) {
  const ioPath from = tree_.Write("a.jpg", "x");
  Rename(locker_, from, tree_.Path("b.jpg"));
  EXPECT_EQ(locker_.calls,
            (std::vector<std::string>{"lock " + from.utf8string(), "unlock " + from.utf8string()}));
}

TEST_F(RenameTest, DoesNothingForOneName) {
  const ioPath missing = tree_.Path("a.jpg");
  Rename(locker_, missing, missing);
  EXPECT_TRUE(locker_.calls.empty());
  EXPECT_TRUE(clock_->sleeps.empty());
  EXPECT_TRUE(log_.Lines().empty());
}

TEST_F(RenameTest, ReplacesAFile) {
  const ioPath from = tree_.Write("a.jpg", "new");
  const ioPath to = tree_.Write("b.jpg", "old");
  Rename(locker_, from, to);
  EXPECT_EQ(ReadFile(to), "new");
  EXPECT_FALSE(from.exists());
}

TEST_F(RenameTest, TellsOfASuccessAtTheThirdAttempt) {
  const ioPath from = tree_.Write("a.jpg", "x");
  const ioPath to = tree_.Path("later/b.jpg");
  bool heldMeanwhile = false;
  clock_->onSleep = [&](std::size_t number) {
    heldMeanwhile = locker_.held.count(from) == 1;
    if (number == 2) {
      tree_.MakeFolder("later");
    }
  };
  Rename(locker_, from, to);
  EXPECT_EQ(clock_->sleeps, std::vector<milliseconds>(2, milliseconds(50)));
  EXPECT_TRUE(heldMeanwhile);
  EXPECT_EQ(ReadFile(to), "x");
  const auto lines = log_.Lines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].severity, google::GLOG_INFO);
  EXPECT_EQ(lines[0].text, "File renamed (2) " + from.utf8string() + " to " + to.utf8string());
  EXPECT_EQ(lines[0].source, "Util/Utils.cpp");
}

TEST_F(RenameTest, SpeaksAtItsLevelOnly) {
  const Zenvora::Test::Verbosity lower(19);
  const ioPath from = tree_.Write("a.jpg", "x");
  clock_->onSleep = [&](std::size_t) { tree_.MakeFolder("later"); };
  Rename(locker_, from, tree_.Path("later/b.jpg"));
  EXPECT_EQ(clock_->sleeps.size(), 1U);
  EXPECT_TRUE(log_.Lines().empty());
}

TEST_F(RenameTest, SucceedsAtTheLastAttempt) {
  const ioPath from = tree_.Write("a.jpg", "x");
  clock_->onSleep = [&](std::size_t number) {
    if (number == 19) {
      tree_.MakeFolder("later");
    }
  };
  Rename(locker_, from, tree_.Path("later/b.jpg"));
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text.rfind("File renamed (19) ", 0), 0U);
}

TEST_F(RenameTest, FindsASourceThatAppearsLate) {
  const ioPath from = tree_.Path("a.jpg");
  clock_->onSleep = [&](std::size_t number) {
    if (number == 4) {
      tree_.Write("a.jpg", "late");
    }
  };
  Rename(locker_, from, tree_.Path("b.jpg"));
  EXPECT_EQ(ReadFile(tree_.Path("b.jpg")), "late");
}

TEST_F(RenameTest, GivesUpAfterTwentyAttempts) {
  const ioPath from = tree_.Write("a.jpg", "x");
  const ioPath to = tree_.Path("missing/b.jpg");
  const ExceptionRename failure = Failure(from, to);
  EXPECT_EQ(clock_->sleeps, std::vector<milliseconds>(20, milliseconds(50)));
  EXPECT_EQ(ReadFile(from), "x");
  EXPECT_FALSE(tree_.Path("missing").exists());
  EXPECT_TRUE(locker_.held.empty());
  EXPECT_TRUE(log_.Lines().empty());
}

TEST_F(RenameTest, DoesNotSucceedAfterTheLastPause) {
  const ioPath from = tree_.Write("a.jpg", "x");
  clock_->onSleep = [&](std::size_t number) {
    if (number == 20) {
      tree_.MakeFolder("later");
    }
  };
  Failure(from, tree_.Path("later/b.jpg"));
  EXPECT_EQ(ReadFile(from), "x");
}

TEST_F(RenameTest, SaysWhatCouldNotBeDone) {
  const ioPath from = tree_.Write("Пейзаж 1.jpg", "x");
  const ioPath to = tree_.Path("missing/b.jpg");
  const ExceptionRename failure = Failure(from, to);
  const std::string description = "Cannot rename " + from.utf8string() + " to " + to.utf8string();
  EXPECT_EQ(TextOf<TagFilename>(failure), from.utf8string());
  EXPECT_EQ(TextOf<TagDescription>(failure), description);
  EXPECT_EQ(failure.what(), description);
  const std::string stack = TextOf<TagCallStack>(failure);
  EXPECT_NE(stack.find("Zenvora::Util::Rename("), std::string::npos) << stack;
}

TEST_F(RenameTest, RecordsWhereItThrew) {
  const ExceptionRename failure = Failure(tree_.Path("a.jpg"), tree_.Path("b.jpg"));
  const auto* const file = boost::get_error_info<boost::throw_file>(failure);
  const auto* const function = boost::get_error_info<boost::throw_function>(failure);
  const auto* const line = boost::get_error_info<boost::throw_line>(failure);
  ASSERT_TRUE(file != nullptr && function != nullptr && line != nullptr);
  EXPECT_STREQ(*file, "Util/Utils.cpp");
  EXPECT_NE(std::string(*function).find("Zenvora::Util::Rename("), std::string::npos) << *function;
  EXPECT_GT(*line, 0);
}

TEST_F(RenameTest, ThrowsWhatTravelsToOtherThreads) {
  boost::exception_ptr caught;
  try {
    Rename(locker_, tree_.Path("a.jpg"), tree_.Path("b.jpg"));
  } catch (...) {
    caught = boost::current_exception();
  }
  std::string filename;
  std::string stack;
  std::thread([&] {
    try {
      boost::rethrow_exception(caught);
    } catch (const ExceptionRename& failure) {
      filename = TextOf<TagFilename>(failure);
      stack = TextOf<TagCallStack>(failure);
    }
  }).join();
  EXPECT_EQ(filename, tree_.Path("a.jpg").utf8string());
  EXPECT_FALSE(stack.empty());
}

TEST_F(RenameTest, PassesOnWhatTheLockerThrows) {
  const ioPath from = tree_.Write("a.jpg", "x");
  locker_.failing = true;
  EXPECT_THROW(Rename(locker_, from, tree_.Path("b.jpg")), std::system_error);
  EXPECT_TRUE(from.exists());
  EXPECT_TRUE(clock_->sleeps.empty());
}

TEST_F(RenameTest, FailsWhereAFolderStandsInTheWay) {
  const ioPath from = tree_.Write("a.jpg", "x");
  tree_.Write("b.jpg/inside", "y");
  Failure(from, tree_.Path("b.jpg"));
  EXPECT_EQ(ReadFile(from), "x");
  EXPECT_EQ(ReadFile(tree_.Path("b.jpg/inside")), "y");
}

TEST_F(RenameTest, FailsForNamesThatAreNone) {
  const ioPath from = tree_.Write("a.jpg", "x");
  for (const ioPath& to : {ioPath(), tree_.Path(std::string(300, 'a')), ioPath(std::string("b\0c.jpg", 7))}) {
    Failure(from, to);
    EXPECT_EQ(ReadFile(from), "x");
  }
}

TEST_F(RenameTest, KeepsNamesThatAreNoText) {
  const ioPath from = tree_.Write(std::string(Zenvora::Test::kStrangeName) + ".jpg", "x");
  const ioPath to = tree_.Path("to " + std::string(Zenvora::Test::kStrangeName) + ".jpg");
  Rename(locker_, from, to);
  EXPECT_EQ(ReadFile(to), "x");
  EXPECT_EQ(TextOf<TagFilename>(Failure(from, tree_.Path("missing/b.jpg"))), from.utf8string());
}

TEST_F(RenameTest, ServesTheRealLocker) {
  const auto locker = Lumidex::FileAccessLocker::Create();
  const ioPath from = tree_.Write("a.jpg", "x");
  Rename(*locker, from, tree_.Path("b.jpg"));
  Rename(*locker, tree_.Path("b.jpg"), from);
  EXPECT_THROW(Rename(*locker, from, tree_.Path("missing/b.jpg")), ExceptionRename);
  // Not held any more: this would wait for ever.
  locker->Lock(from);
  locker->Unlock(from);
}

TEST(ExceptionRename, IsAnExceptionOfThisHouse) {
  EXPECT_TRUE((std::is_base_of_v<Exception, ExceptionRename>));
  EXPECT_TRUE((std::is_convertible_v<ExceptionRename*, boost::exception*>));
  EXPECT_TRUE((std::is_convertible_v<ExceptionRename*, std::exception*>));
  EXPECT_EQ(sizeof(ExceptionRename), sizeof(Exception));
  EXPECT_TRUE(std::has_virtual_destructor_v<ExceptionRename>);
}

TEST(ExceptionRename, KeepsItsTagsWhenCopiedAndMoved) {
  ExceptionRename original;
  original << TagFilename("a.jpg");
  ExceptionRename copy(original);
  EXPECT_EQ(TextOf<TagFilename>(copy), "a.jpg");
  const ExceptionRename moved(std::move(copy));
  EXPECT_EQ(TextOf<TagFilename>(moved), "a.jpg");
  ExceptionRename assigned;
  assigned = original;
  EXPECT_EQ(TextOf<TagFilename>(assigned), "a.jpg");
  ExceptionRename moveAssigned;
  moveAssigned = std::move(assigned);
  EXPECT_EQ(TextOf<TagFilename>(moveAssigned), "a.jpg");
}

#ifdef _WIN32
using Hold = std::function<std::unique_ptr<Zenvora::Test::FileHolder>(const ioPath&)>;

class RenameOfAHeldFile : public RenameTest, public ::testing::WithParamInterface<Hold> {};

TEST_P(RenameOfAHeldFile, SucceedsOnceTheSourceIsFree) {
  const ioPath from = tree_.Write("a.jpg", "x");
  const ioPath to = tree_.Path("b.jpg");
  const auto holder = GetParam()(from);
  clock_->onSleep = [&](std::size_t number) {
    if (number == 2) {
      holder->LetGo();
    }
  };
  Rename(locker_, from, to);
  ASSERT_EQ(log_.Lines().size(), 1U);
  EXPECT_EQ(log_.Lines()[0].text, "File renamed (2) " + from.utf8string() + " to " + to.utf8string());
}

TEST_P(RenameOfAHeldFile, SucceedsOnceTheTargetIsFree) {
  const ioPath from = tree_.Write("a.jpg", "new");
  const ioPath to = tree_.Write("b.jpg", "old");
  const auto holder = GetParam()(to);
  clock_->onSleep = [&](std::size_t number) {
    if (number == 2) {
      holder->LetGo();
    }
  };
  Rename(locker_, from, to);
  EXPECT_EQ(clock_->sleeps.size(), 2U);
  EXPECT_EQ(ReadFile(to), "new");
}

TEST_P(RenameOfAHeldFile, GivesUpAfterTwentyAttempts) {
  const ioPath from = tree_.Write("a.jpg", "x");
  const auto holder = GetParam()(from);
  Failure(from, tree_.Path("b.jpg"));
  EXPECT_EQ(clock_->sleeps.size(), 20U);
  holder->LetGo();
  EXPECT_EQ(ReadFile(from), "x");
  EXPECT_FALSE(tree_.Path("b.jpg").exists());
}

INSTANTIATE_TEST_SUITE_P(ByAThreadOrAProgram, RenameOfAHeldFile,
                         ::testing::Values(Hold(Zenvora::Test::HoldInAThread),
                                           Hold(Zenvora::Test::HoldInAProcess)));
#endif

}  // namespace
}  // namespace Zenvora::Util
