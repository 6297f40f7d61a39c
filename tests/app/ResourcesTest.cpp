#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

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

#ifdef _WIN32
constexpr char kEnding[] = ".exe";
const std::vector<const char*> kFolderNames = {"plain", "with blank", "gr\xC3\xBC\xC3\x9F \xF0\x9F\x93\xB7"};

std::string OutputOf(const ioPath& program) {
  QProcess process;
  QProcessEnvironment withLibraries = QProcessEnvironment::systemEnvironment();
  const ioPath libraries(QStringLiteral(RESOURCE_FOLDER_PROGRAM));
  withLibraries.insert(QStringLiteral("PATH"), libraries.parent_path().qstring() + QLatin1Char(';') +
                                                   withLibraries.value(QStringLiteral("PATH")));
  process.setProcessEnvironment(withLibraries);
  process.setWorkingDirectory(QDir::rootPath());
  process.start(program.qstring(), QStringList());
  EXPECT_TRUE(process.waitForFinished(120'000)) << process.errorString().toStdString();
  return process.readAllStandardOutput().toStdString();
}
#else
constexpr char kEnding[] = "";
const std::vector<const char*> kFolderNames = {"plain", "with blank", "gr\xC3\xBC\xC3\x9F \xF0\x9F\x93\xB7",
                                               "caf\xE9\xFF", "line\nfeed"};

// Not by Qt, which cannot name every file.
std::string OutputOf(const ioPath& program) {
  const std::string command = "cd / && '" + program.utf8string() + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
  std::string printed;
  std::array<char, 256> chunk{};
  while (pipe && std::fgets(chunk.data(), static_cast<int>(chunk.size()), pipe.get()) != nullptr) {
    printed += chunk.data();
  }
  return printed;
}
#endif

ioPath CopyProgram(const ioPath& place) {
  ioPath copy(place.utf8string() + kEnding);
  fs::create_directories(copy.parent_path().native());
  fs::copy_file(ioPath(RESOURCE_FOLDER_PROGRAM).native(), copy.native());
  return copy;
}

TEST(Resources, FollowTheProgramIntoAnyFolder) {
  const TempTree tree;
  for (const char* name : kFolderNames) {
    const ioPath folder = tree.Path(name);
    EXPECT_EQ(OutputOf(CopyProgram(folder / "bin" / "program")), (folder / "share" / "lumidex").utf8string());
  }
}

TEST(Resources, InTheFolderOfTheProgramComeFirst) {
  const TempTree tree;
  const ioPath beside = tree.MakeFolder("bin/share/lumidex");
  tree.MakeFolder("share/lumidex");
  EXPECT_EQ(OutputOf(CopyProgram(tree.Path("bin/program"))), beside.utf8string());
}

TEST(Resources, AreThoseOfTheProgramThatALinkLeadsTo) {
  const TempTree tree;
  const ioPath program = CopyProgram(tree.Path("real/bin/program"));
  const ioPath link = tree.MakeFolder("links") / program.filename();
  LUMIDEX_LINK_OR_SKIP(program, link);
  EXPECT_EQ(OutputOf(link), tree.Path("real/share/lumidex").utf8string());
}

}  // namespace
}  // namespace Zenvora::App
