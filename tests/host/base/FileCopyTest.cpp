#include <host/base/FileCopy.h>
#include <support/LeftOut.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <zenvora/core/FileReader.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/xattr.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using Status = CopyOutcome::Status;
using Zenvora::Test::ReadFile;
using Zenvora::Test::TempTree;

constexpr std::size_t kPiece = FileReader::kPiece;

const KeepGoing kKeepGoing = [](std::uint64_t) { return true; };

TEST(CopyToNew, KeepsContentAndTime) {
  const TempTree tree;
  const std::string content = std::string(3'000'000, 'x') + "end";
  const ioPath source = tree.Write("a", content);
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), kKeepGoing);
  ASSERT_EQ(outcome.status, Status::Copied) << outcome.cause;
  EXPECT_TRUE(ReadFile(tree.Path("b")) == content);
  EXPECT_EQ(outcome.size, content.size());
  EXPECT_EQ(QueryFile(tree.Path("b")).modifiedNs, QueryFile(source).modifiedNs);
  EXPECT_EQ(VerifyCopy(tree.Path("b"), outcome).status, Status::Copied);
}

TEST(CopyToNew, ReplacesNothing) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "new");
  tree.Write("b", "old");
  EXPECT_NE(CopyToNew(source, QueryFile(source), tree.Path("b"), kKeepGoing).status, Status::Copied);
  EXPECT_EQ(ReadFile(tree.Path("b")), "old");
}

TEST(CopyToNew, ReadsAFileThatWasChangedMeanwhileOnceMore) {
  const TempTree tree;
  const ioPath source = tree.Write("a", std::string(kPiece, 'x') + "old");
  int pieces = 0;
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), [&](std::uint64_t) {
    if (++pieces == 1) {
      std::ofstream(source.native(), std::ios::binary | std::ios::app) << ", more";
    }
    return true;
  });
  ASSERT_EQ(outcome.status, Status::Copied) << outcome.cause;
  EXPECT_TRUE(ReadFile(tree.Path("b")) == ReadFile(source));
}

TEST(CopyToNew, GivesUpOnAFileThatNeverRests) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "content");
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), [&](std::uint64_t) {
    std::ofstream(source.native(), std::ios::binary | std::ios::app) << "+";
    return true;
  });
  EXPECT_EQ(outcome.status, Status::Changed);
  EXPECT_FALSE(tree.Path("b").exists());
}

TEST(CopyToNew, LeavesNothingWhenGivenUp) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "content");
  EXPECT_EQ(CopyToNew(source, QueryFile(source), tree.Path("b"), [](std::uint64_t) { return false; }).status,
            Status::GivenUp);
  EXPECT_FALSE(tree.Path("b").exists());
}

TEST(CopyToNew, SaysThatTheSourceIsGone) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "content");
  const FileState state = QueryFile(source);
  ASSERT_TRUE(source.remove());
  EXPECT_EQ(CopyToNew(source, state, tree.Path("b"), kKeepGoing).status, Status::Unreadable);
  EXPECT_FALSE(tree.Path("b").exists());
}

TEST(VerifyCopy, FindsEveryByteThatDiffers) {
  const TempTree tree;
  const ioPath source = tree.Write("a", std::string(2'000'000, 'x'));
  const ioPath copy = tree.Path("b");
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), copy, kKeepGoing);
  for (const std::streamoff at : {0, 1'000'000, 1'999'999}) {
    const std::string whole = ReadFile(copy);
    {
      std::fstream file(copy.native(), std::ios::binary | std::ios::in | std::ios::out);
      file.seekp(at);
      file << 'y';
    }
    EXPECT_EQ(VerifyCopy(copy, outcome).status, Status::Different) << at;
    std::ofstream(copy.native(), std::ios::binary) << whole;
    EXPECT_EQ(VerifyCopy(copy, outcome).status, Status::Copied);
  }
}

TEST(VerifyCopy, FindsACopyThatIsShorter) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "content");
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), kKeepGoing);
  std::filesystem::resize_file(tree.Path("b").native(), 3);
  EXPECT_EQ(VerifyCopy(tree.Path("b"), outcome).status, Status::Different);
}

TEST(SameContent, ComparesByBytes) {
  const TempTree tree;
  const std::string large(3 * kPiece, 'x');
  const ioPath one = tree.Write("one", large);
  EXPECT_TRUE(SameContent(one, tree.Write("same", large), kKeepGoing));
  EXPECT_FALSE(SameContent(one, tree.Write("last", large.substr(1) + 'y'), kKeepGoing));
  EXPECT_FALSE(SameContent(one, tree.Write("shorter", large.substr(1)), kKeepGoing));
  EXPECT_FALSE(SameContent(one, tree.Path("missing"), kKeepGoing));
  EXPECT_TRUE(SameContent(tree.Write("empty", ""), tree.Write("void", ""), kKeepGoing));
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS(CopyToNew, KeepsHolesPermissionsAndNotes);
LUMIDEX_LEFT_OUT_ON_WINDOWS(CopyToNew, TakesAFileThatWasReplacedWhileItWasReadForChanged);
LUMIDEX_LEFT_OUT_ON_WINDOWS(CopyToNew, ReportsReadErrors);
LUMIDEX_LEFT_OUT_ON_WINDOWS(CopyToNew, SaysThatTheCopyCannotGrow);

#else

TEST(CopyToNew, TakesAFileThatWasReplacedWhileItWasReadForChanged) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "old");
  int pieces = 0;
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), [&](std::uint64_t) {
    if (++pieces == 1) {
      EXPECT_TRUE(tree.Write("other", "new, and longer").rename(source));
    }
    return true;
  });
  ASSERT_EQ(outcome.status, Status::Copied) << outcome.cause;
  EXPECT_EQ(ReadFile(tree.Path("b")), "new, and longer");
}

TEST(CopyToNew, KeepsHolesPermissionsAndNotes) {
  const TempTree tree;
  const ioPath source = tree.Write("a", "begin");
  std::filesystem::resize_file(source.native(), 64'000'000);
  std::ofstream(source.native(), std::ios::binary | std::ios::app) << "end";
  const bool noted = setxattr(source.native().c_str(), "user.rating", "5", 1, 0) == 0;
  chmod(source.native().c_str(), 0440);
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), kKeepGoing);
  ASSERT_EQ(outcome.status, Status::Copied) << outcome.cause;
  EXPECT_TRUE(SameContent(source, tree.Path("b"), kKeepGoing));
  struct stat facts = {};
  ASSERT_EQ(stat(tree.Path("b").native().c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777U, 0440U);
  EXPECT_LT(facts.st_blocks * 512, 10'000'000);
  char rating = 0;
  if (noted) {
    EXPECT_EQ(getxattr(tree.Path("b").native().c_str(), "user.rating", &rating, 1), 1);
    EXPECT_EQ(rating, '5');
  }
}

TEST(CopyToNew, ReportsReadErrors) {
  const TempTree tree;
  // Nothing is mapped at the beginning of a process's memory: reading it is an error of input.
  const ioPath source("/proc/self/mem");
  const CopyOutcome outcome = CopyToNew(source, QueryFile(source), tree.Path("b"), kKeepGoing);
  EXPECT_EQ(outcome.status, Status::Unreadable);
  EXPECT_THAT(outcome.cause, testing::HasSubstr("nput"));
  EXPECT_FALSE(tree.Path("b").exists());
}

TEST(CopyToNew, SaysThatTheCopyCannotGrow) {
  const TempTree tree;
  const ioPath source = tree.Write("a", std::string(100'000, 'x'));
  const Zenvora::Test::WriteLimit limit(50'000);
  EXPECT_EQ(CopyToNew(source, QueryFile(source), tree.Path("b"), kKeepGoing).status, Status::NotWritten);
  EXPECT_FALSE(tree.Path("b").exists());
}

#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
