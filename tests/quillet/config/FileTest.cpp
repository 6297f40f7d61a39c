#include "Reader.h"

#include <support/LeftOut.h>
#include <support/Obstacles.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace Zenvora::Quillet::Config {
namespace {

namespace fs = std::filesystem;
using Zenvora::Test::Closed;
using Zenvora::Test::Failure;
using Zenvora::Test::FailureOf;
using Zenvora::Test::IsSuperuser;
using Zenvora::Test::Keeper;
using Zenvora::Test::Node;
using Zenvora::Test::Pipe;
using Zenvora::Test::TempTree;

constexpr char kGood[] = R"({"k":"v"})";

Failure FailureOfFile(const std::string& file, bool optional = false) {
  Keeper keeper;
  Failure failure = FailureOf([&] { BaseConfig().Parse(keeper, "", file, optional); });
  EXPECT_EQ(keeper.calls, failure.thrown ? 0 : 1) << file;
  return failure;
}

void ExpectRefused(const ioPath& file, const std::string& cause) {
  for (const bool optional : {false, true}) {
    const Failure failure = FailureOfFile(file.utf8string(), optional);
    EXPECT_TRUE(failure.thrown) << file;
    EXPECT_EQ(failure.document, file.utf8string());
    EXPECT_EQ(failure.text, file.utf8string() + ": " + cause);
  }
}

TEST(ConfigFile, IsReadOnceForEachCall) {
  const TempTree tree;
  const std::string file = tree.Write("f.json", kGood).utf8string();
  Keeper keeper;
  EXPECT_TRUE(BaseConfig().Parse(keeper, "", file, false));
  EXPECT_EQ(keeper.calls, 1);
  EXPECT_EQ(keeper.kept->GetText("k", ""), "v");
  EXPECT_TRUE(BaseConfig().Parse(keeper, "", file, true));
  EXPECT_EQ(keeper.calls, 2);
}

TEST(ConfigFile, MayHaveAnyName) {
  const TempTree tree;
  EXPECT_FALSE(
      FailureOfFile(tree.Write("gr\xC3\xBC\xC3\x9F \xF0\x9F\x93\xB7.json", kGood).utf8string()).thrown);
#ifndef _WIN32
  EXPECT_FALSE(FailureOfFile(tree.Write("caf\xE9\xFF.json", kGood).utf8string()).thrown);
#endif
}

TEST(ConfigFile, IsReadThroughALink) {
  const TempTree tree;
  LUMIDEX_LINK_OR_SKIP(tree.Write("f.json", kGood), tree.Path("link"));
  EXPECT_FALSE(FailureOfFile(tree.Path("link").utf8string()).thrown);
}

TEST(ConfigFile, ThatIsMissingIsAnErrorUnlessOptional) {
  const TempTree tree;
  LUMIDEX_LINK_OR_SKIP("nowhere", tree.Path("dangling"));
  tree.Write("f.json", kGood);
  for (const std::string& missing : {tree.Path("missing").utf8string(), tree.Path("dangling").utf8string(),
                                     tree.Path("f.json/below").utf8string(), std::string(),
                                     tree.Path("f.json").utf8string() + std::string("\0", 1)}) {
    const Failure failure = FailureOfFile(missing);
    EXPECT_TRUE(failure.thrown) << missing;
    EXPECT_EQ(failure.document, missing);
    const std::string start = missing + ": cannot be read: ";
    EXPECT_EQ(failure.text.substr(0, start.size()), start);
    EXPECT_GT(failure.text.size(), start.size());

    Keeper keeper;
    EXPECT_FALSE(BaseConfig().Parse(keeper, "", missing, true)) << missing;
    EXPECT_EQ(keeper.calls, 0);
  }
}

TEST(ConfigFile, IsNoFolder) {
  const TempTree tree;
  ExpectRefused(tree.MakeFolder("folder"), "is a folder");
}

TEST(ConfigFile, ThatCannotBeLookedAtIsAnErrorEvenIfOptional) {
  const TempTree tree;
  LUMIDEX_LINK_OR_SKIP("loop", tree.Path("loop"));
  EXPECT_TRUE(FailureOfFile(tree.Path("loop").utf8string(), true).thrown);
  EXPECT_TRUE(FailureOfFile(tree.Path(std::string(300, 'n')).utf8string(), true).thrown);
}

TEST(ConfigFile, IsNoPipeOrDevice) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe"));
  ExpectRefused(pipe.Path(), "is not a regular file");
#ifndef _WIN32
  ExpectRefused("/dev/zero", "is not a regular file");
  ExpectRefused("/dev/null", "is not a regular file");
#else
  ExpectRefused("\\\\?\\NUL", "is not a regular file");
#endif
}

#ifndef _WIN32
TEST(ConfigFile, ThatFailsWhileItIsReadIsAnError) {
  // A regular file whose beginning cannot be read: nothing is ever mapped there.
  const ioPath file("/proc/self/mem");
  if (!file.exists()) {
    GTEST_SKIP() << "this system has no file that opens but fails to read";
  }
  const Failure failure = FailureOfFile(file.utf8string());
  EXPECT_TRUE(failure.thrown);
  EXPECT_EQ(failure.text, "/proc/self/mem: cannot be read: Input/output error");
}

#else
LUMIDEX_LEFT_OUT_ON_WINDOWS(ConfigFile, ThatFailsWhileItIsReadIsAnError);
#endif

TEST(ConfigFile, WithoutPermissionIsAnError) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "permissions do not stop the superuser";
  }
  const TempTree tree;
  const ioPath file = tree.Write("f.json", kGood);
  const Closed closed(file);
  for (const bool optional : {false, true}) {
    const Failure failure = FailureOfFile(file.utf8string(), optional);
    EXPECT_TRUE(failure.thrown);
    const std::string start = file.utf8string() + ": cannot be read: ";
    EXPECT_EQ(failure.text.substr(0, start.size()), start);
#ifdef _WIN32
    EXPECT_GT(failure.text.size(), start.size());
#else
    EXPECT_EQ(failure.text.substr(start.size()), "Permission denied");
#endif
  }
}

TEST(ConfigFile, IsAcceptedAtTheSizeLimitAndRefusedAboveIt) {
  EXPECT_EQ(BaseConfig::kSizeLimit, 16U * 1024 * 1024);
  const TempTree tree;
  const std::string start(kGood);
  const ioPath file = tree.Write("f.json", start + std::string(BaseConfig::kSizeLimit - start.size(), ' '));
  EXPECT_FALSE(FailureOfFile(file.utf8string()).thrown);

  std::ofstream(file.native(), std::ios::app | std::ios::binary) << ' ';
  ExpectRefused(file, "is longer than 16777216 bytes");
}

TEST(ConfigFile, IsRefusedWithoutReadingItWhole) {
  const TempTree tree;
  const ioPath file = tree.Write("f.json", "");
  constexpr std::uintmax_t kSize = 64ULL * 1024 * 1024 * 1024;
  std::error_code error;
  fs::resize_file(file.native(), kSize, error);
  if (error) {
    GTEST_SKIP() << "the file system takes no sparse file of 64 GiB: " << error.message();
  }
  ExpectRefused(file, "is longer than 16777216 bytes");
}

class Refuser : public IParserConfigBase {
 public:
  void Deserialize(const Node&) override { throw std::out_of_range("refused"); }
};

TEST(ConfigFile, PassesOnWhatItsReaderThrows) {
  const TempTree tree;
  Refuser refuser;
  EXPECT_THROW(BaseConfig().Parse(refuser, "", tree.Write("f.json", kGood).utf8string(), false),
               std::out_of_range);
}

TEST(ConfigObject, WritesNothing) {
  Keeper keeper;
  static_cast<const ISerializable&>(keeper).Serialize(nullptr);
  EXPECT_EQ(keeper.calls, 0);
}

}  // namespace
}  // namespace Zenvora::Quillet::Config
