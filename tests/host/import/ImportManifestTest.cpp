#include "ImportManifest.h"
#include "Records.h"

#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace Zenvora::Lumidex::Host {
namespace {

using Zenvora::Test::ErrorOf;
using Zenvora::Test::ReadFile;
using Zenvora::Test::TempTree;
#ifndef _WIN32
using Zenvora::Test::WriteLimit;
#endif

ManifestRecord Record(const ioPath& file, const ioPath& source = "/card/a.jpg") {
  ManifestRecord record;
  record.source = source;
  record.file = file;
  record.size = 18'446'744'073'709'551'615ULL;
  record.sha256 = std::string(64, 'a');
  record.sourceModifiedNs = -1;
  record.modifiedNs = 9'223'372'036'854'775'807LL;
  return record;
}

ioPath Place(const TempTree& tree) {
  tree.MakeFolder("copies/.lumidex-import");
  return tree.Path("copies");
}

TEST(ManifestLine, LeadsBackToItsRecord) {
  std::vector<std::string> names = {"a.jpg", "\xD0\xB1 \xE5\x86\x99.jpg", "o'clock.jpg"};
#ifndef _WIN32
  // Names that no file can have there.
  names.insert(names.end(), {"two\nlines.jpg", "\"quoted\".jpg"});
#endif
  for (const std::string& name : names) {
    const QByteArray line = ManifestLine(Record(name, ioPath("/card") / name), 0);
    EXPECT_EQ(line.count('\n'), 1) << "one line whatever the name";
    const auto record = ParseManifestLine(line);
    ASSERT_TRUE(record) << line.toStdString();
    EXPECT_EQ(record->file, ioPath(name));
    EXPECT_EQ(record->source, ioPath("/card") / name);
    EXPECT_EQ(record->size, 18'446'744'073'709'551'615ULL);
    EXPECT_EQ(record->sourceModifiedNs, -1);
    EXPECT_EQ(record->modifiedNs, 9'223'372'036'854'775'807LL);
  }
}

TEST(ManifestLine, KeepsNamesThatAreNoText) {
  const std::string name = std::string(Zenvora::Test::kStrangeName);
  const auto record = ParseManifestLine(ManifestLine(Record(name + ".jpg", "/c" + name + "/b"), 0));
  ASSERT_TRUE(record);
  EXPECT_EQ(record->file, ioPath(name + ".jpg"));
  EXPECT_EQ(record->source, ioPath("/c" + name + "/b"));
}

TEST(ManifestLine, IsNoneWhenTornOrLeadingOut) {
  const QByteArray line = ManifestLine(Record("a.jpg"), 0);
  for (int length = 0; length + 2 < line.size(); ++length) {
    EXPECT_FALSE(ParseManifestLine(line.left(length))) << length;
  }
  for (const char* const name : {"", ".", "..", "../a.jpg", "/a.jpg", "b/a.jpg"}) {
    EXPECT_FALSE(ParseManifestLine(ManifestLine(Record(name), 0))) << name;
  }
  ManifestRecord shortHash = Record("a.jpg");
  shortHash.sha256.pop_back();
  EXPECT_FALSE(ParseManifestLine(ManifestLine(shortHash, 0)));
}

TEST(ImportManifest, GrowsAndTheLaterRecordCounts) {
  const TempTree tree;
  const ioPath copies = Place(tree);
  EXPECT_TRUE(ImportManifest::Read(copies).empty());
  {
    ImportManifest manifest(copies);
    manifest.Append({Record("a.jpg"), Record("b.jpg")});
    manifest.Append({});
  }
  ImportManifest(copies).Append({Record("a.jpg", "/card/later.jpg")});
  const auto records = ImportManifest::Read(copies);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].source, ioPath("/card/later.jpg"));
  EXPECT_EQ(records[1].file, ioPath("b.jpg"));
}

TEST(ImportManifest, GoesOnBehindALineThatWasTorn) {
  const TempTree tree;
  const ioPath copies = Place(tree);
  ImportManifest(copies).Append({Record("a.jpg"), Record("b.jpg")});
  const ioPath file = copies / ".lumidex-import" / "manifest.jsonl";
  std::filesystem::resize_file(file.native(), file.file_size() - 20);
  ImportManifest(copies).Append({Record("c.jpg")});
  const auto records = ImportManifest::Read(copies);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].file, ioPath("a.jpg"));
  EXPECT_EQ(records[1].file, ioPath("c.jpg"));
}

TEST(ImportManifest, PassesOverWhatIsNoneOfItsLines) {
  const TempTree tree;
  const ioPath copies = Place(tree);
  tree.Write("copies/.lumidex-import/manifest.jsonl", "[]\n{}\nnonsense\n\n" + std::string(2'000'000, 'x') +
                                                          "\n" +
                                                          ManifestLine(Record("a.jpg"), 0).toStdString());
  EXPECT_EQ(ImportManifest::Read(copies).size(), 1U);
}

TEST(ImportManifest, SaysWhenItCannotBeWritten) {
  const TempTree tree;
  tree.MakeFolder("copies/.lumidex-import/manifest.jsonl");
  EXPECT_THAT(ErrorOf([&] { ImportManifest manifest(tree.Path("copies")); }),
              testing::HasSubstr("manifest.jsonl cannot be written"));
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS(ImportManifest, FailsAgainAfterAFailure);

#else

TEST(ImportManifest, FailsAgainAfterAFailure) {
  const TempTree tree;
  const ioPath copies = Place(tree);
  ImportManifest manifest(copies);
  const auto append = [&manifest] { manifest.Append({Record("a.jpg")}); };
  {
    const WriteLimit limit(100);
    EXPECT_THAT(ErrorOf(append), testing::HasSubstr("cannot be written"));
  }
  EXPECT_THAT(ErrorOf(append), testing::HasSubstr("cannot be written"))
      << "what it had not written of a line would be the beginning of the next one";
  ImportManifest(copies).Append({Record("b.jpg")});
  EXPECT_EQ(ImportManifest::Read(copies).back().file, ioPath("b.jpg"));
}

#endif

/// Looking first is not enough: the link may come in between.
TEST(ImportManifest, IsNotOpenedThroughALink) {
  const Zenvora::Test::TempTree tree;
  const ioPath victim = tree.Write("victim", "untouched");
  tree.MakeFolder("copies/.lumidex-import");
  std::error_code error;
  std::filesystem::create_symlink(victim.native(),
                                  tree.Path("copies/.lumidex-import/manifest.jsonl").native(), error);
  if (error) {
    GTEST_SKIP() << "this user may make no links: " << error.message();
  }
  EXPECT_THROW(ImportManifest(tree.Path("copies")), HostError);
  EXPECT_EQ(Zenvora::Test::ReadFile(victim), "untouched");
  EXPECT_TRUE(ImportManifest::Read(tree.Path("copies")).empty());
}

/// A pipe in its place kept imports waiting for ever, dry ones too.
TEST(ImportManifest, IsAFile) {
  for (const char* const name : {"manifest.jsonl", "lock"}) {
    const Zenvora::Test::TempTree tree;
    tree.MakeFolder(std::string("copies/.lumidex-import/") + name);
    const std::string fault = FindLinkFault(tree.Path("copies"));
    EXPECT_NE(fault.find(std::string(name) + " is no file, and imports keep one there."), std::string::npos)
        << fault;
    EXPECT_TRUE(ImportManifest::Read(tree.Path("copies")).empty());
  }
}

#ifndef _WIN32
TEST(ImportManifest, IsNoPipe) {
  const Zenvora::Test::TempTree tree;
  tree.MakeFolder("copies/.lumidex-import");
  const Zenvora::Test::Pipe pipe(tree.Path("copies/.lumidex-import/manifest.jsonl"));
  EXPECT_NE(FindLinkFault(tree.Path("copies")), "");
  EXPECT_TRUE(ImportManifest::Read(tree.Path("copies")).empty());
}
#endif

TEST(ImportManifest, IsNotOpenedUnderASecondName) {
  const Zenvora::Test::TempTree tree;
  const ioPath victim = tree.Write("victim", "untouched");
  const ioPath folder = tree.MakeFolder("copies/.lumidex-import");
  for (const char* const name : {"manifest.jsonl", "lock"}) {
    std::error_code error;
    std::filesystem::create_hard_link(victim.for_system(), (folder / name).for_system(), error);
    if (error) {
      GTEST_SKIP() << "no second names can be made here: " << error.message();
    }
    const std::string fault = FindLinkFault(tree.Path("copies"));
    EXPECT_NE(fault.find(std::string(name) + " is a second name of another file"), std::string::npos)
        << fault;
    if (name == std::string("manifest.jsonl")) {
      EXPECT_THROW(ImportManifest(tree.Path("copies")), HostError);
    }
    EXPECT_EQ(Zenvora::Test::ReadFile(victim), "untouched");
    (folder / name).remove();
  }
  EXPECT_EQ(FindLinkFault(tree.Path("copies")), "");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
