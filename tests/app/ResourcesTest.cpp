#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace Zenvora::App {
namespace {

namespace fs = std::filesystem;
using Zenvora::Test::TempTree;

TEST(Resources, LieBesideTheFolderOfTheProgram) {
  const ioPath program(QCoreApplication::applicationDirPath());
  EXPECT_EQ(GetPathToResources(), program.parent_path() / "share" / "lumidex");
  EXPECT_EQ(GetPathToResources(), MakeProgramEnvironment()->ResourceFolder());
}

TEST(Resources, OfTheBuildTreeHoldTheCalendar) {
  EXPECT_GT((GetPathToResources() / "HolidayEvents.json").file_size(), 0U);
}

#ifndef _WIN32
/// What the program prints from a copy of it at `place`.
std::string FolderSeenFrom(const ioPath& place) {
  fs::create_directories(place.parent_path().native());
  fs::copy_file(RESOURCE_FOLDER_PROGRAM, place.native());
  const std::string command = "cd / && '" + place.utf8string() + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
  std::string printed;
  std::array<char, 256> chunk{};
  while (pipe && std::fgets(chunk.data(), static_cast<int>(chunk.size()), pipe.get()) != nullptr) {
    printed += chunk.data();
  }
  return printed;
}

TEST(Resources, FollowTheProgramIntoAnyFolder) {
  const TempTree tree;
  for (const char* name : {"plain", "with blank", "gr\xC3\xBC\xC3\x9F", "caf\xE9\xFF", "line\nfeed"}) {
    const ioPath folder = tree.Path(name);
    EXPECT_EQ(FolderSeenFrom(folder / "bin" / "program"), (folder / "share" / "lumidex").utf8string());
  }
}

TEST(Resources, InTheFolderOfTheProgramComeFirst) {
  const TempTree tree;
  const ioPath beside = tree.MakeFolder("bin/share/lumidex");
  tree.MakeFolder("share/lumidex");
  EXPECT_EQ(FolderSeenFrom(tree.Path("bin/program")), beside.utf8string());
}

TEST(Resources, AreThoseOfTheProgramThatALinkLeadsTo) {
  const TempTree tree;
  FolderSeenFrom(tree.Path("real/bin/program"));
  const ioPath link = tree.MakeFolder("links") / "program";
  fs::create_symlink(tree.Path("real/bin/program").native(), link.native());
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(link.utf8string().c_str(), "r"), ::pclose);
  std::array<char, 4096> printed{};
  ASSERT_NE(std::fgets(printed.data(), static_cast<int>(printed.size()), pipe.get()), nullptr);
  EXPECT_EQ(std::string(printed.data()), tree.Path("real/share/lumidex").utf8string());
}
#endif

}  // namespace
}  // namespace Zenvora::App
