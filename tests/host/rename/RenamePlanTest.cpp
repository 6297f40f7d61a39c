#include <host/base/HostError.h>
#include <host/rename/RenamePlan.h>

#include <gtest/gtest.h>

#include <QDate>
#include <QTime>

#include <algorithm>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Kind = RenameProblem::Kind;
using Lines = std::vector<std::string>;
using Paths = std::vector<ioPath>;

RenamePattern Pattern(const std::string& text) {
  RenamePatternFault fault;
  const auto pattern = RenamePattern::Parse(text, fault);
  EXPECT_TRUE(pattern) << text << ": " << fault.cause;
  return pattern ? *pattern : *RenamePattern::Parse("broken", fault);
}

RenameOptions Options(RenameOrder order = RenameOrder::AsGiven) {
  RenameOptions options;
  options.order = order;
  options.token = "t";
  return options;
}

/// A shot for each set of files, all taken on the same day.
std::vector<RenameShot> Shots(const Paths& named, const Paths& entries = {}) {
  std::vector<RenameShot> shots;
  for (const ShotSet& set : GroupShots(named, entries)) {
    shots.push_back({set, QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC)});
  }
  return shots;
}

/// Windows joins with a separator of its own.
std::string Generic(const ioPath& path) {
  std::string text = path.utf8string();
#ifdef _WIN32
  std::replace(text.begin(), text.end(), '\\', '/');
#endif
  return text;
}

Lines Written(const std::vector<RenameMove>& moves) {
  Lines lines;
  for (const RenameMove& move : moves) {
    lines.push_back(Generic(move.from) + " -> " + Generic(move.to));
  }
  return lines;
}

/// Shot, kind, and the names concerned.
Lines Written(const std::vector<RenameProblem>& problems) {
  const char* const kinds[] = {"NoDate", "BadName", "SameName", "Taken", "Blocked", "Repeated"};
  Lines lines;
  for (const RenameProblem& problem : problems) {
    lines.push_back(std::to_string(problem.shot) + " " + kinds[static_cast<int>(problem.kind)] + " " +
                    Generic(problem.file) + " > " + Generic(problem.target) + " : " + Generic(problem.other));
    EXPECT_FALSE(problem.cause.empty());
  }
  return lines;
}

RenamePlan Plan(const Paths& named, const std::string& pattern, const Paths& entries = {},
                const RenameOptions& options = Options()) {
  return MakeRenamePlan(Shots(named, entries), Pattern(pattern), entries, options);
}

void ExpectRefused(const RenamePlan& plan, const Lines& problems) {
  EXPECT_EQ(Written(plan.problems), problems);
  EXPECT_EQ(Written(plan.renames), Lines());
  EXPECT_EQ(Written(plan.steps), Lines());
}

TEST(RenamePlan, GivesShotsTheirNumbersAndKeepsExtensions) {
  const RenamePlan plan = Plan({"d/b.JPG", "d/a.jpeg", "e/b.Cr2"}, "{date:yyyyMMdd}_{number:3}",
                               {"d/b.JPG", "d/a.jpeg", "d/b.cr2.XMP", "d/b.cr2", "e/b.Cr2", "e/b.xmp"});
  const Lines expected = {"d/b.JPG -> d/20240501_001.JPG",         "d/b.cr2 -> d/20240501_001.cr2",
                          "d/b.cr2.XMP -> d/20240501_001.cr2.XMP", "d/a.jpeg -> d/20240501_002.jpeg",
                          "e/b.Cr2 -> e/20240501_003.Cr2",         "e/b.xmp -> e/20240501_003.xmp"};
  EXPECT_EQ(Written(plan.renames), expected);
  EXPECT_EQ(Written(plan.steps), expected);
  EXPECT_EQ(plan.shots, 3U);
  EXPECT_TRUE(plan.problems.empty());
  EXPECT_EQ(plan.unchanged, 0U);
}

TEST(RenamePlan, CountsFromTheStart) {
  RenameOptions options = Options();
  options.start = 0;
  EXPECT_EQ(Written(Plan({"a", "b"}, "x{number}", {}, options).renames), (Lines{"a -> x0", "b -> x1"}));
  options.start = 4294967295U;
  EXPECT_EQ(Written(Plan({"a", "b"}, "x{number}", {}, options).renames),
            (Lines{"a -> x4294967295", "b -> x4294967296"}));
}

TEST(RenamePlan, IsEmptyForNothing) {
  const RenamePlan plan = MakeRenamePlan({RenameShot()}, Pattern("x"), {}, Options());
  EXPECT_TRUE(plan.steps.empty());
  EXPECT_TRUE(plan.renames.empty());
  EXPECT_TRUE(plan.problems.empty());
}

TEST(RenamePlan, OrdersByName) {
  const RenamePlan plan = Plan({"e/IMG_1", "d/IMG_10", "d/img_9", "d10/a", "d9/a"}, "x{number}", {},
                               Options(RenameOrder::ByName));
  EXPECT_EQ(Written(plan.renames), (Lines{"d/img_9 -> d/x1", "d/IMG_10 -> d/x2", "d9/a -> d9/x3",
                                          "d10/a -> d10/x4", "e/IMG_1 -> e/x5"}));
}

TEST(RenamePlan, OrdersByDateThenByNameAndUndatedPhotosLast) {
  auto shots = Shots({"late", "undated2", "burst10", "burst9", "undated1", "early", "midnight"});
  const QDate day(2024, 5, 2);
  shots[0].taken = QDateTime(day, QTime(9, 0, 0, 1));
  shots[1].taken = {};
  shots[2].taken = QDateTime(day, QTime(9, 0));
  // The same on the camera's clock, another instant.
  shots[3].taken = QDateTime(day, QTime(9, 0), Qt::OffsetFromUTC, 7200);
  shots[4].taken = {};
  shots[5].taken = QDateTime(QDate(1969, 7, 20), QTime(20, 17));
  shots[6].taken = QDateTime(day, QTime(0, 0));
  const RenamePlan plan = MakeRenamePlan(shots, Pattern("x{number}"), {}, Options(RenameOrder::ByDate));
  EXPECT_EQ(Written(plan.renames), (Lines{"early -> x1", "midnight -> x2", "burst9 -> x3", "burst10 -> x4",
                                          "late -> x5", "undated1 -> x6", "undated2 -> x7"}));
}

TEST(RenamePlan, LeavesFilesThatHaveTheirName) {
  const RenamePlan plan = Plan({"x1.jpg", "b.jpg"}, "x{number}", {"x1.jpg", "x1.xmp", "b.jpg"});
  EXPECT_EQ(Written(plan.steps), Lines{"b.jpg -> x2.jpg"});
  EXPECT_EQ(plan.unchanged, 2U);
  EXPECT_EQ(plan.shots, 1U);
  // Not even names that would be refused as new ones.
  const RenamePlan odd = Plan({".a.jpg", "10:30.jpg", "NUL"}, "{name}");
  EXPECT_TRUE(odd.problems.empty());
  EXPECT_EQ(odd.unchanged, 3U);
}

TEST(RenamePlan, OrdersChainsSoThatEachNameIsFree) {
  const RenamePlan plan = Plan({"x0", "x1", "x2"}, "x{number}", {"x0", "x1", "x2"});
  EXPECT_EQ(Written(plan.renames), (Lines{"x0 -> x1", "x1 -> x2", "x2 -> x3"}));
  EXPECT_EQ(Written(plan.steps), (Lines{"x2 -> x3", "x1 -> x2", "x0 -> x1"}));
}

TEST(RenamePlan, SwapsByAHiddenName) {
  const RenamePlan plan = Plan({"d/x2.jpg", "d/x1.jpg"}, "x{number}", {"d/x2.jpg", "d/x1.jpg"});
  EXPECT_EQ(Written(plan.renames), (Lines{"d/x2.jpg -> d/x1.jpg", "d/x1.jpg -> d/x2.jpg"}));
  EXPECT_EQ(Written(plan.steps), (Lines{"d/x2.jpg -> d/.lumidex-t-1.jpg", "d/x1.jpg -> d/x2.jpg",
                                        "d/.lumidex-t-1.jpg -> d/x1.jpg"}));
}

TEST(RenamePlan, OpensEachCircleOnce) {
  const RenamePlan plan = Plan({"x2", "x3", "x1", "x5", "x4"}, "x{number}");
  EXPECT_EQ(Written(plan.steps), (Lines{"x2 -> .lumidex-t-1", "x3 -> x2", "x1 -> x3", ".lumidex-t-1 -> x1",
                                        "x5 -> .lumidex-t-2", "x4 -> x5", ".lumidex-t-2 -> x4"}));
}

TEST(RenamePlan, ChangesCaseAndUnicodeFormByAHiddenName) {
  EXPECT_EQ(Written(Plan({"X1.JPG"}, "x{number}", {"X1.JPG"}).steps),
            (Lines{"X1.JPG -> .lumidex-t-1.JPG", ".lumidex-t-1.JPG -> x1.JPG"}));
  EXPECT_EQ(Written(Plan({"a\xCC\x88.jpg"}, "\xC3\xA4").steps),
            (Lines{"a\xCC\x88.jpg -> .lumidex-t-1.jpg", ".lumidex-t-1.jpg -> \xC3\xA4.jpg"}));
}

TEST(RenamePlan, WaitsForBothSpellingsOfAName) {
  // On a disk that tells them apart both stand in the way of a third on one that does not.
  const RenamePlan plan = Plan({"c.jpg", "X1.jpg", "x1.jpg"}, "x{number}", {"c.jpg", "X1.jpg", "x1.jpg"});
  EXPECT_EQ(Written(plan.steps), (Lines{"X1.jpg -> x2.jpg", "x1.jpg -> x3.jpg", "c.jpg -> x1.jpg"}));
}

TEST(RenamePlan, AvoidsHiddenNamesThatAreThere) {
  const Paths entries = {"x1", "x2", ".Lumidex-T-1", ".lumidex-t-2"};
  EXPECT_EQ(Written(Plan({"x2", "x1", ".lumidex-t-3"}, "x{number}", entries).steps),
            (Lines{".lumidex-t-3 -> x3", "x2 -> .lumidex-t-4", "x1 -> x2", ".lumidex-t-4 -> x1"}));
}

TEST(RenamePlan, LeavesAnExtensionOutOfAHiddenNameThatWouldBeTooLong) {
  const std::string extension = "." + std::string(246, 'e');
  const RenamePlan plan = Plan({"X1" + extension}, "x{number}");
  ASSERT_EQ(plan.steps.size(), 2U);
  EXPECT_EQ(plan.steps[0].to, ioPath(".lumidex-t-1"));
}

TEST(RenamePlan, RefusesTokensThatAreNoPartOfAName) {
  for (const std::string& token :
       {std::string(), std::string("a/b"), std::string("a:b"), std::string("\xE9"), std::string(65, 'a')}) {
    RenameOptions options = Options();
    options.token = token;
    EXPECT_THROW(Plan({"a"}, "x", {}, options), HostError) << token;
  }
  RenameOptions options = Options();
  options.token = std::string(64, 'a');
  EXPECT_NO_THROW(Plan({"a"}, "x", {}, options));
}

TEST(RenamePlan, IsRefusedForPhotosWithoutADate) {
  auto shots = Shots({"a.jpg", "b.jpg", "b.xmp", "c.jpg"});
  shots[1].taken = {};
  ExpectRefused(MakeRenamePlan(shots, Pattern("{date}_{number}"), {}, Options()), {"1 NoDate b.jpg >  : "});
  ExpectRefused(MakeRenamePlan(shots, Pattern("{datetime}_{number}"), {}, Options()),
                {"1 NoDate b.jpg >  : "});
  EXPECT_TRUE(MakeRenamePlan(shots, Pattern("x{number}"), {}, Options()).problems.empty());
  EXPECT_EQ(MakeRenamePlan(shots, Pattern("{date}_{number}"), {}, Options()).problems[0].cause,
            "has no date");
  shots[1].dateFault = "It is empty";
  EXPECT_EQ(MakeRenamePlan(shots, Pattern("{date}_{number}"), {}, Options()).problems[0].cause,
            "has no readable date: It is empty");
}

TEST(RenamePlan, IsRefusedForNamesThatFilesShouldNotHave) {
  ExpectRefused(Plan({"a.jpg"}, ".{name}"), {"0 BadName a.jpg > .a.jpg : "});
  ExpectRefused(Plan({"a.jpg", "b"}, "COM{number}"),
                {"0 BadName a.jpg > COM1.jpg : ", "1 BadName b > COM2 : "});
  ExpectRefused(Plan({"10:30.jpg"}, "x{name}"), {"0 BadName 10:30.jpg > x10:30.jpg : "});
  // Without an extension the dot is the last.
  ExpectRefused(Plan({"a.jpg", "b"}, "{number}."), {"1 BadName b > 2. : "});
}

TEST(RenamePlan, MeasuresNamesWithTheLongestExtensionOfTheShot) {
  const std::string name(247, 'n');
  EXPECT_TRUE(Plan({"a.jpg", "a.cr2.xmp"}, name).problems.empty());
  ExpectRefused(Plan({"a.jpg", "a.cr2.xmp"}, name + "n"), {"0 BadName a.cr2.xmp > " + name + "n.cr2.xmp : "});
}

#ifndef _WIN32
TEST(RenamePlan, NamesNoFileInBytesThatAreNoUtf8) {
  ExpectRefused(Plan({"caf\xE9.jpg"}, "x_{name}"), {"0 BadName caf\xE9.jpg > x_caf\xE9.jpg : "});
  EXPECT_EQ(Written(Plan({"caf\xE9.jpg"}, "x_{number}").steps), Lines{"caf\xE9.jpg -> x_1.jpg"});
}
#endif

TEST(RenamePlan, IsRefusedForTwoPhotosOfOneName) {
  ExpectRefused(Plan({"a.jpg", "b.jpg", "c.jpg"}, "x"),
                {"0 SameName a.jpg > x.jpg : b.jpg", "1 SameName b.jpg > x.jpg : a.jpg",
                 "2 SameName c.jpg > x.jpg : a.jpg"});
  EXPECT_TRUE(Plan({"d/a.jpg", "e/b.jpg"}, "x").problems.empty()) << "not in different folders";
}

TEST(RenamePlan, NeverMakesOneShotOfTwo) {
  // The names differ, but the settings of the one would become those of the other.
  ExpectRefused(Plan({"a.jpg", "b.cr2"}, "x"),
                {"0 SameName a.jpg > x.jpg : b.cr2", "1 SameName b.cr2 > x.cr2 : a.jpg"});
  ExpectRefused(Plan({"a.jpg"}, "x", {"a.jpg", "x.cr2.xmp"}), {"0 Taken a.jpg > x.jpg : x.cr2.xmp"});
  EXPECT_TRUE(Plan({"a.jpg"}, "x", {"a.jpg", "x.txt"}).problems.empty()) << "texts are none";
}

TEST(RenamePlan, IsRefusedForNamesThatDifferByCaseOrUnicodeFormOnly) {
  ExpectRefused(Plan({"IMG.jpg", "img.jpg"}, "x_{name}"),
                {"0 SameName IMG.jpg > x_IMG.jpg : img.jpg", "1 SameName img.jpg > x_img.jpg : IMG.jpg"});
  ExpectRefused(Plan({"\xC3\xA4.jpg", "a\xCC\x88.jpg"}, "x_{name}"),
                {"0 SameName \xC3\xA4.jpg > x_\xC3\xA4.jpg : a\xCC\x88.jpg",
                 "1 SameName a\xCC\x88.jpg > x_a\xCC\x88.jpg : \xC3\xA4.jpg"});
  ExpectRefused(Plan({"a.jpg"}, "x", {"a.jpg", "X.JPG"}), {"0 Taken a.jpg > x.jpg : X.JPG"});
}

TEST(RenamePlan, IsRefusedForTwoFilesOfAShotThatDifferByCaseOnly) {
  ExpectRefused(Plan({"a.JPG", "a.jpg"}, "x"), {"0 SameName a.JPG > x.JPG : a.jpg"});
  EXPECT_TRUE(Plan({"a.JPG", "a.jpg", "A.jpg"}, "{name}").problems.empty()) << "nothing is renamed";
}

TEST(RenamePlan, IsRefusedForTwoFilesOfOneNameThoughTheirShotsDiffer) {
  // As where the number of a version is taken to the extension.
  const std::vector<RenameShot> shots = {{{"a", {{"a_2.nef.xmp", "0.nef.xmp"}}}, {}, {}},
                                         {{"b", {{"b.nef.xmp", ".nef.xmp"}}}, {}, {}}};
  RenameOptions options = Options();
  options.start = 1;
  std::vector<RenameShot> many(10, RenameShot());
  many.front() = shots[0];
  many.back() = shots[1];
  ExpectRefused(
      MakeRenamePlan(many, Pattern("{number}"), {}, options),
      {"0 SameName a_2.nef.xmp > 10.nef.xmp : b.nef.xmp", "9 SameName b.nef.xmp > 10.nef.xmp : a_2.nef.xmp"});
}

TEST(RenamePlan, IsRefusedForNamesOfWhatStays) {
  ExpectRefused(Plan({"a.jpg", "b.jpg"}, "x{number}", {"a.jpg", "b.jpg", "x2.jpg"}),
                {"1 Taken b.jpg > x2.jpg : x2.jpg"});
  ExpectRefused(Plan({"x1.jpg", "b.jpg"}, "x1"), {"1 SameName b.jpg > x1.jpg : x1.jpg"});
  // A folder, or a file of any kind.
  ExpectRefused(Plan({"a"}, "x", {"a", "x"}), {"0 Taken a > x : x"});
  EXPECT_TRUE(Plan({"d/a.jpg"}, "x", {"d/a.jpg", "e/x.jpg"}).problems.empty());
}

TEST(RenamePlan, TakesEntriesForWhatTheyAreWhenTheyAreRenamedThemselves) {
  EXPECT_TRUE(Plan({"a.jpg", "x1.jpg"}, "x{number}", {"a.jpg", "x1.jpg"}).problems.empty());
}

TEST(RenamePlan, ChangesTheCaseOfAPhotoBesideOneThatDiffersByCase) {
  ExpectRefused(Plan({"IMG.jpg"}, "Img", {"IMG.jpg", "img.jpg"}), {"0 Taken IMG.jpg > Img.jpg : img.jpg"});
  EXPECT_EQ(Plan({"IMG.jpg"}, "Img", {"IMG.jpg"}).steps.size(), 2U);
}

TEST(RenamePlan, ChangesTheCaseOfAPhotoWhoseSettingsWereLeftOut) {
  const RenamePlan plan =
      MakeRenamePlan(Shots({"IMG.jpg"}), Pattern("img"), {"IMG.jpg", "IMG.xmp"}, Options());
  EXPECT_TRUE(plan.problems.empty());
  EXPECT_EQ(plan.steps.size(), 2U);
}

TEST(RenamePlan, RefusesAWholeShotForOneOfItsFiles) {
  RenameOptions options = Options();
  options.onProblem = RenameFailing::Others;
  const RenamePlan plan =
      Plan({"a.jpg", "a.txt", "b.jpg"}, "x{number}", {"a.jpg", "a.xmp", "a.txt", "b.jpg", "x1.txt"}, options);
  EXPECT_EQ(Written(plan.problems), Lines{"0 Taken a.txt > x1.txt : x1.txt"});
  EXPECT_EQ(Written(plan.steps), Lines{"b.jpg -> x2.jpg"});
}

TEST(RenamePlan, RefusesFilesOfTwoShots) {
  auto shots = Shots({"a.jpg"});
  shots.push_back(shots.front());
  ExpectRefused(MakeRenamePlan(shots, Pattern("x{number}"), {}, Options()), {"1 Repeated a.jpg >  : "});
  ExpectRefused(
      MakeRenamePlan({{{"a", {{"a.jpg", ".jpg"}, {"a.jpg", ".jpg"}}}, {}}}, Pattern("x"), {}, Options()),
      {"0 Repeated a.jpg >  : "});
}

TEST(RenamePlan, CanRenameTheOthersUnderTheSameNames) {
  RenameOptions options = Options();
  options.onProblem = RenameFailing::Others;
  auto shots = Shots({"a.jpg", "b.jpg", "c.jpg"});
  shots[1].taken = {};
  const RenamePlan plan = MakeRenamePlan(shots, Pattern("{date:yyyy}_{number}"), {}, options);
  EXPECT_EQ(Written(plan.problems), Lines{"1 NoDate b.jpg >  : "});
  EXPECT_EQ(Written(plan.steps), (Lines{"a.jpg -> 2024_1.jpg", "c.jpg -> 2024_3.jpg"}));
}

TEST(RenamePlan, LeavesShotsWhoseNamesAreNotGivenUpAfterAll) {
  RenameOptions options = Options();
  options.onProblem = RenameFailing::Others;
  // 0 wants the name of 1, that of 2, and 2 one that is taken; 3 is free of them.
  const RenamePlan plan = Plan({"x0.jpg", "x1.jpg", "x2.jpg", "d.jpg"}, "x{number}",
                               {"x0.jpg", "x1.jpg", "x2.jpg", "x3.jpg", "d.jpg"}, options);
  EXPECT_EQ(Written(plan.problems),
            (Lines{"0 Blocked x0.jpg > x1.jpg : x1.jpg", "1 Blocked x1.jpg > x2.jpg : x2.jpg",
                   "2 Taken x2.jpg > x3.jpg : x3.jpg"}));
  EXPECT_EQ(Written(plan.steps), Lines{"d.jpg -> x4.jpg"});
}

TEST(RenamePlan, LeavesAlsoShotsThatWouldJoinOneThatStays) {
  RenameOptions options = Options();
  options.onProblem = RenameFailing::Others;
  const RenamePlan plan = Plan({"a.jpg", "x1.cr2"}, "x{number}", {"a.jpg", "x1.cr2", "x2.cr2"}, options);
  EXPECT_EQ(Written(plan.problems),
            (Lines{"0 Blocked a.jpg > x1.jpg : x1.cr2", "1 Taken x1.cr2 > x2.cr2 : x2.cr2"}));
  EXPECT_TRUE(plan.steps.empty());
}

TEST(RenamePlan, ShowsOnlyFirstCausesWhenNothingIsRenamedAnyway) {
  ExpectRefused(Plan({"x0.jpg", "x1.jpg"}, "x{number}", {"x0.jpg", "x1.jpg", "x2.jpg"}),
                {"1 Taken x1.jpg > x2.jpg : x2.jpg"});
}

TEST(RenamePlan, IsTheSameForTheSameArguments) {
  Paths files;
  for (int i = 0; i < 500; ++i) {
    files.push_back("x" + std::to_string((i * 7) % 500) + ".jpg");
  }
  const RenamePlan plan = Plan(files, "x{number}", files);
  std::reverse(files.begin(), files.end());
  const Paths entries = files;
  std::reverse(files.begin(), files.end());
  const RenamePlan again = Plan(files, "x{number}", entries);
  EXPECT_EQ(Written(plan.steps), Written(again.steps));
  EXPECT_EQ(Written(plan.problems), Written(again.problems));
  EXPECT_GE(plan.steps.size(), 499U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
