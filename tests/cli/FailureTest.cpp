// What the command says when it cannot do its work, and that nothing is harmed.

#include "CliFixture.h"

#include <support/LeftOut.h>

#include <QJsonArray>

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class FailingCommand : public CliTest {};

TEST_F(FailingCommand, ExitsWith2ForCommandLinesWithoutSense) {
  for (const QStringList& arguments :
       std::vector<QStringList>{{},
                                {"scann"},
                                {"scan"},
                                {"scan", ""},
                                {"scan", "--frob", "."},
                                {"scan", "--full=yes", "."},
                                {"scan", "--threads", "."},
                                {"scan", "--threads", "0", "."},
                                {"scan", "--threads", "65", "."},
                                {"scan", "--threads", "4x", "."},
                                {"scan", "--threads", "1", "--threads", "2", "."},
                                {"albums", "extra"},
                                {"albums", "--accept"},
                                {"albums", "--accept", ""},
                                {"albums", "--report", ""},
                                {"calendar"},
                                {"calendar", "burn"},
                                {"calendar", "check", "a", "b"},
                                {"calendar", "update", "now"},
                                {"sample"},
                                {"sample", "a", "b"},
                                {"sample", "a", "--photos", "49"},
                                {"sample", "a", "--photos", "100001"},
                                {"sample", "a", "--seed", "-1"},
                                {"sample", "a", "--seed", "4294967296"},
                                {"--catalogue"},
                                {"--catalogue", "", "albums"},
                                {"--json=2", "albums"},
                                {"--quiet"},
                                {"scan", ".", "albums", "--accept"}}) {
    const Ran ran = Run(arguments);
    const std::string line = arguments.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(ran.exitCode, 2) << line;
    EXPECT_THAT(ran.out, IsEmpty()) << line;
    EXPECT_FALSE(ran.err.empty()) << line;
  }
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(FailingCommand, SuggestsWhatMayHaveBeenMeant) {
  EXPECT_THAT(Run({"scann"}).err, HasSubstr("did you mean \"scan\"?"));
  EXPECT_THAT(Run({"calendar", "chek"}).err, HasSubstr("did you mean \"check\"?"));
  EXPECT_THAT(Run({"scan", "--dryrun", "."}).err, HasSubstr("did you mean \"--dry-run\"?"));
  EXPECT_THAT(Run({"albums", "--jsn"}).err, HasSubstr("did you mean \"--json\"?"));
  EXPECT_THAT(Run({"frobnicate"}).err, Not(HasSubstr("did you mean")));
}

TEST_F(FailingCommand, SaysWhereAnOptionBelongs) {
  EXPECT_THAT(Run({"--locale", "ja_JP", "albums"}).err,
              HasSubstr("The option --locale must follow its command: lumidex albums --locale (see"));
  EXPECT_THAT(Run({"--locale=ja_JP", "calendar", "show"}).err,
              HasSubstr("must follow its command: lumidex calendar show --locale (see"));
  EXPECT_THAT(
      Run({"similar", "--locale", "ja_JP"}).err,
      HasSubstr("There is no option --locale of \"similar\"; it belongs to: albums, calendar show (see"));
  EXPECT_THAT(
      Run({"--locale", "ja_JP"}).err,
      HasSubstr("There is no option --locale before a command; it belongs to: albums, calendar show"));
}

TEST_F(FailingCommand, SaysHowATagOfOneLetterIsTakenAway) {
  EXPECT_THAT(Run({"tag", "photos", "-x"}).err,
              HasSubstr("There is no option -x; to remove the tag x, write --remove x (see"));
}

TEST_F(FailingCommand, NamesAMistypedOptionBeforeTheOneThatIsMissing) {
  EXPECT_THAT(Run({"rename", "--patern", "{date}", "a"}).err, HasSubstr("did you mean \"--pattern\"?"));
  EXPECT_THAT(Run({"rename", "--dry", "a"}).err, HasSubstr("did you mean \"--dry-run\"?"));
  EXPECT_THAT(Run({"scan", "extra word", "--frob"}).err, HasSubstr("There is no option --frob (see"));
}

TEST_F(FailingCommand, WritesItsFailureAsADocumentToo) {
  for (const QStringList& arguments :
       {QStringList{"--json"}, QStringList{"scan", "--json"}, QStringList{"frob", "--json"},
        QStringList{"scan", "--threads", "x", "--json"}}) {
    const Ran ran = Run(arguments);
    EXPECT_EQ(ran.exitCode, 2);
    const QJsonObject error = ran.Json();
    EXPECT_EQ(error["format"].toString(), QStringLiteral("lumidex.error"));
    EXPECT_EQ(error["version"].toInt(), 1);
    EXPECT_EQ(error["kind"].toString(), QStringLiteral("usage"));
    EXPECT_FALSE(error["message"].toString().isEmpty());
    EXPECT_TRUE(error["candidates"].isArray());
    EXPECT_EQ(error["exitCode"].toInt(), 2);
  }
}

TEST_F(FailingCommand, LeavesAFileThatIsNoCatalogueAsItIs) {
  MakePhotos("a", "2023:12:24", 1);
  for (const std::string& content : {std::string(8192, 'x'), std::string("short"), MakeJpeg(PhotoTags())}) {
    const ioPath file = tree.Write("broken.sqlite", content);
    for (const QStringList& command :
         {QStringList{"scan", Text(Photos())}, QStringList{"scan", "--dry-run", Text(Photos())},
          QStringList{"albums"}, QStringList{"albums", "--accept", "all"},
          QStringList{"albums", "--accepted"}}) {
      const Ran ran = Run(QStringList{"-c", Text(file)} + command);
      EXPECT_EQ(ran.exitCode, 4) << command.join(QLatin1Char(' ')).toStdString();
      EXPECT_THAT(ran.err, HasSubstr(file.utf8string()));
      EXPECT_THAT(ran.out, IsEmpty());
      EXPECT_EQ(ReadFile(file), content);
    }
  }
}

TEST_F(FailingCommand, ExitsWith4WhereNoCatalogueCanBeMade) {
  MakePhotos("a", "2023:12:24", 1);
  const ioPath file = tree.Write("file", "content");
  const Ran ran = Run({"-c", Text(file / "catalogue.sqlite"), "scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr((file / "catalogue.sqlite").utf8string()));
  EXPECT_EQ(ReadFile(file), "content");
  EXPECT_EQ(Run({"-c", Text(tree.Path("photos")), "scan", Text(Photos())}).exitCode, 4);
}

#ifndef _WIN32
TEST_F(FailingCommand, ReportsAFullDiskAndLosesNothing) {
  MakePhotos("a", "2023:12:24", 1);
  ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
  MakePhotos("b", "2023:12:25", 400);
  // Less than what is noted beside the catalogue of so many photos before it gets into it.
  const Ran full = RunShell("ulimit -f 64; exec \"$LUMIDEX\" scan photos");
  EXPECT_FALSE(full.crashed);
  EXPECT_EQ(full.exitCode, 4) << full.err;
  EXPECT_THAT(full.out, IsEmpty());
  EXPECT_THAT(full.err, StartsWith("lumidex: error: "));
  EXPECT_THAT(full.err, HasSubstr(DefaultCatalogue().utf8string()));
  EXPECT_EQ(IntegrityOf(DefaultCatalogue()), "ok");
  EXPECT_GE(CountPhotosIn(DefaultCatalogue()), 1);
  EXPECT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
  EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 401);
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(FailingCommand, ReportsAFullDiskAndLosesNothing);
#endif

/// Runs it with a standard output that takes nothing.
class WithoutOutput : public FailingCommand {
 protected:
  Ran RunSo(const QStringList& arguments) const {
    QProcess process;
#ifdef _WIN32
    // A handle for reading only, which the child gets as it is.
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const HANDLE handle = CreateFileW(tree.Write("output", "").native().c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    process.setCreateProcessArgumentsModifier([handle](QProcess::CreateProcessArguments* call) {
      call->startupInfo->dwFlags |= STARTF_USESTDHANDLES;
      call->startupInfo->hStdOutput = handle;
    });
    Start(process, arguments);
    const Ran ran = Finish(process);
    CloseHandle(handle);
    return ran;
#else
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    Start(process, arguments);
    return Finish(process);
#endif
  }
};

TEST_F(WithoutOutput, ExitsWith4) {
  for (const QStringList& command :
       {QStringList{"calendar", "show"}, {"--help"}, {"--version"}, {"scan", "nowhere", "--json"}}) {
    const Ran ran = RunSo(command);
    const std::string line = command.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(ran.exitCode, 4) << line;
    EXPECT_THAT(ran.err, HasSubstr("The output cannot be written: ")) << line;
#ifndef _WIN32
    EXPECT_THAT(ran.err, HasSubstr("No space left on device")) << line;
#endif
  }
}

TEST_F(FailingCommand, SaysSoWhenTheSampleFolderIsNotEmpty) {
  const std::string before = ReadFile(tree.Write("full/photo.jpg", "mine"));
  const Ran ran = Run({"sample", "full"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr(tree.Path("full").utf8string()));
  EXPECT_EQ(ReadFile(tree.Path("full/photo.jpg")), before);
}

TEST_F(FailingCommand, KeepsWarningsOfABrokenCalendarToOneLineEach) {
  ScanTwoAlbums();
  tree.Write("share/lumidex/HolidayEvents.json", "{");
  const Ran ran = RunCopy({"albums"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("Weekend"));
  EXPECT_THAT(ran.err, StartsWith("lumidex: error: "));
  EXPECT_THAT(ran.err, HasSubstr("HolidayEvents.json"));
  EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 2) << ran.err;
}

}  // namespace
}  // namespace Zenvora::Test
