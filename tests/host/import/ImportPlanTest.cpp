#include "ImportFixture.h"
#include "ImportNames.h"

#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <host/base/PathText.h>
#include <host/shots/ShotNames.h>
#include <support/LeftOut.h>
#include <support/StrangeName.h>

namespace Zenvora::Lumidex::Host {
namespace {

using Outcome = ImportPlan::Outcome;
using LeftKind = LeftFile::Kind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// An import of /card to /copies, of which no disk knows.
class PurePlan : public testing::Test {
 protected:
  /// Returns the source. `shot`: 0: one of its own.
  std::size_t Add(const std::string& path, std::size_t shot = 0) {
    ImportSource source;
    source.path = ioPath(path);
    source.state.kind = FileState::Kind::File;
    source.state.size = 100;
    source.isPhoto = IsPhotoName(source.path);
    source.leads = source.isPhoto || IsFilmName(source.path.filename().utf8string());
    source.suffix = SplitShotName(source.path.filename().utf8string()).suffix;
    source.shot = shot != 0 ? shot : 1000 + facts_.sources.files.size();
    facts_.sources.files.push_back(source);
    return facts_.sources.files.size() - 1;
  }
  std::size_t Copy(const std::string& path, std::size_t shot = 0) {
    answers_.folder = ioPath("/copies");
    answers_.files.push_back({Add(path, shot), true});
    return answers_.files.back().source;
  }
  void Stay(const std::string& path) { answers_.files.push_back({Add(path), false}); }
  void Know(KnownKind kind, const std::string& path, const std::string& other) {
    facts_.known.push_back({kind, Add(path), ioPath(other)});
  }
  void Leave(LeftKind kind, const std::string& path) {
    facts_.sources.left.push_back({kind, ioPath(path), "", false});
  }
  ImportPlan Plan() const { return PlanImport(facts_, answers_); }

  static std::vector<ioPath> Targets(const ImportPlan& plan) {
    std::vector<ioPath> targets;
    for (const ImportCopy& copy : plan.copies) {
      targets.push_back(copy.target);
    }
    return targets;
  }

  ImportFacts facts_;
  ImportAnswers answers_;
};

TEST_F(PurePlan, IsEmptyWithoutSources) {
  const ImportPlan plan = Plan();
  EXPECT_EQ(plan.outcome, Outcome::Ready);
  EXPECT_TRUE(plan.folder.empty());
  EXPECT_FALSE(plan.copiesOff);
}

TEST_F(PurePlan, CopiesAndLeavesAsTheAnswersSay) {
  Copy("/card/b.jpg");
  Stay("/home/c.jpg");
  Copy("/card/a.mp4");
  Stay("/home/d.mp4");
  Stay("/home/d.xmp");
  const ImportPlan plan = Plan();
  EXPECT_EQ(plan.folder, ioPath("/copies"));
  EXPECT_THAT(Targets(plan), ElementsAre(ioPath("/copies/b.jpg"), ioPath("/copies/a.mp4")))
      << "in the order of the answers";
  EXPECT_THAT(plan.stays, ElementsAre(ioPath("/home/c.jpg"))) << "the catalogue takes photos only";
  EXPECT_EQ(plan.bytes, 200U);
  EXPECT_EQ(plan.photosInPlace, 1U);
  EXPECT_EQ(plan.filmsInPlace, 1U);
}

TEST_F(PurePlan, HoldsNothingThatWasDeclinedOrNotLookedAt) {
  const struct {
    bool declined;
    bool interrupted;
    Outcome outcome;
  } kCases[] = {{true, false, Outcome::Declined},
                {false, true, Outcome::Interrupted},
                {true, true, Outcome::Interrupted},
                {false, false, Outcome::Ready}};
  Copy("/card/a.jpg");
  Leave(LeftKind::Hidden, "/card/.b.jpg");
  for (const auto& [declined, interrupted, outcome] : kCases) {
    answers_.declined = declined;
    facts_.interrupted = interrupted;
    const ImportPlan plan = Plan();
    EXPECT_EQ(plan.outcome, outcome);
    EXPECT_EQ(plan.copies.empty(), outcome != Outcome::Ready);
    EXPECT_EQ(plan.left.empty(), outcome == Outcome::Ready);
  }
}

TEST_F(PurePlan, LeavesWhatIsKnown) {
  Know(KnownKind::Catalogued, "/card/a.jpg", "/home/a.jpg");
  Know(KnownKind::Repeated, "/card/b.jpg", "/card/c.jpg");
  answers_.files.push_back({Copy("/card/d.jpg"), true});
  facts_.known.push_back({KnownKind::Copied, answers_.files.back().source, ioPath("/copies/d.jpg")});
  const ImportPlan plan = Plan();
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_TRUE(plan.folder.empty());
  ASSERT_THAT(plan.known, SizeIs(3));
  EXPECT_EQ(plan.known[2].path, ioPath("/card/d.jpg"));
  EXPECT_THAT(plan.stays, ElementsAre(ioPath("/copies/d.jpg"))) << "a killed run may not have taken it in";
}

TEST_F(PurePlan, TellsWhatOfTheLeftFilesMatters) {
  const struct {
    const char* what;
    bool removable;
    bool copyAll;
    bool copied;
    bool copiesOff;
    bool declined;
    std::size_t left;  ///< The hidden one is named only where the source is copied off.
  } kCases[] = {{"fixed", false, false, false, false, false, 1},
                {"a card", true, false, true, true, false, 2},
                {"a card, and the user wants no copies", true, false, false, false, true, 1},
                {"told to copy all", false, true, true, true, false, 2},
                {"lies in the folder that all is copied to", false, true, false, false, true, 1}};
  for (const auto& [what, removable, copyAll, copied, copiesOff, declined, left] : kCases) {
    facts_ = {};
    answers_ = {};
    if (copied) {
      Copy("/card/a.jpg");
    } else {
      Stay("/card/a.jpg");
    }
    Leave(LeftKind::Hidden, "/card/.b.jpg");
    Leave(LeftKind::NotAPhoto, "/card/notes.txt");
    facts_.copyAll = copyAll;
    if (removable) {
      facts_.removable = {ioPath("/card")};
    }
    const ImportPlan plan = Plan();
    EXPECT_EQ(plan.copiesOff, copiesOff) << what;
    EXPECT_EQ(plan.copyDeclined, declined) << what;
    ASSERT_THAT(plan.left, SizeIs(left)) << what;
    EXPECT_EQ(plan.left.back().copiedOff, copiesOff) << what;
  }
}

TEST_F(PurePlan, NamesWhatCannotBeRead) {
  facts_.unreadable = {Add("/card/a.jpg")};
  const ImportPlan plan = Plan();
  ASSERT_THAT(plan.left, SizeIs(1));
  EXPECT_EQ(plan.left[0].kind, LeftKind::Unreadable);
  EXPECT_THAT(plan.stays, IsEmpty());
}

TEST_F(PurePlan, TakesInWhatLiesInTheFolderOfCopiesByWhicheverWay) {
  facts_.folder.holds = {Copy("/card/link/a.jpg")};
  facts_.copyAll = true;
  const ImportPlan plan = Plan();
  EXPECT_THAT(plan.copies, IsEmpty());
  EXPECT_THAT(plan.stays, ElementsAre(ioPath("/card/link/a.jpg")));
  EXPECT_TRUE(plan.copiesOff) << "nobody declined anything";
}

TEST_F(PurePlan, NeedsRoomAndAFolder) {
  const struct {
    std::int64_t free;
    const char* obstacle;
    const char* told;
  } kCases[] = {{-1, "", ""},
                {200, "", ""},
                {199, "", "not enough space in /copies: 200 bytes are needed, 199 are free."},
                {0, "", "0 are free"},
                {0, "/copies is not a folder.", "/copies is not a folder."}};
  Copy("/card/a.jpg");
  Copy("/card/b.jpg");
  for (const auto& [free, obstacle, told] : kCases) {
    facts_.folder.freeBytes = free;
    facts_.folder.obstacle = obstacle;
    EXPECT_THAT(Plan().obstacle, HasSubstr(told)) << free;
    EXPECT_EQ(Plan().obstacle.empty(), *told == '\0') << free;
  }
}

ioPath GiveOne(FreeNames& names, const char* name) {
  return names.Give({SplitShotName(name)}).front();
}

TEST(FreeNames, AreTakenByNothing) {
  const struct {
    std::vector<ioPath> there;
    bool ignoresCase;
    const char* name;
    const char* given;
  } kCases[] = {{{}, false, "IMG.jpg", "IMG.jpg"},
                {{ioPath("IMG.jpg")}, false, "IMG.jpg", "IMG(1).jpg"},
                {{ioPath("IMG.jpg"), ioPath("IMG(1).jpg")}, false, "IMG.jpg", "IMG(1)(3).jpg"},
                {{ioPath("IMG.txt")}, false, "IMG.jpg", "IMG.jpg"},
                {{ioPath("IMG.CR2")}, false, "IMG.jpg", "IMG(1).jpg"},
                {{ioPath("IMG.xmp")}, false, "IMG.jpg", "IMG(1).jpg"},
                {{ioPath("IMG.jpg"), ioPath("IMG(1).CR2.xmp")}, false, "IMG.jpg", "IMG(1)(3).jpg"},
                {{ioPath("IMG_02.CR2.xmp")}, false, "IMG.CR2", "IMG(1).CR2"},
                {{ioPath("img.JPG")}, false, "IMG.jpg", "IMG(1).jpg"},
                {{ioPath("img.txt")}, true, "IMG.txt", "IMG(1).txt"},
                {{ioPath("a.b.jpg")}, false, "a.b.jpg", "a.b(1).jpg"}};
  for (const auto& [there, ignoresCase, name, given] : kCases) {
    CopyFolder folder;
    folder.names = there;
    folder.ignoresCase = ignoresCase;
    FreeNames names(folder);
    EXPECT_EQ(GiveOne(names, name), ioPath(given));
    EXPECT_NE(GiveOne(names, name), ioPath(given)) << "it is taken now";
  }
}

TEST(FreeNames, AreTakenInWhicheverCaseOnceGiven) {
  FreeNames names({});
  EXPECT_EQ(GiveOne(names, "IMG.jpg"), ioPath("IMG.jpg"));
  EXPECT_EQ(GiveOne(names, "img.JPG"), ioPath("img(1).JPG"));
  names.Take(ioPath("OTHER.jpg"));
  EXPECT_EQ(GiveOne(names, "other.jpg"), ioPath("other(1).jpg"));
  EXPECT_FALSE(names.TakeFree(ioPath("Other.JPG")));
  EXPECT_TRUE(names.TakeFree(ioPath("other.xmp")));
  EXPECT_FALSE(names.TakeFree(ioPath("other.xmp")));
}

TEST(FreeNames, AreOneForAllFilesOfAShot) {
  CopyFolder folder;
  folder.names = {ioPath("IMG.xmp"), ioPath("IMG(1).wav")};
  FreeNames names(folder);
  EXPECT_THAT(names.Give({{"IMG", ".CR2"}, {"img", ".jpg"}, {"IMG", "_02.CR2.xmp"}}),
              ElementsAre(ioPath("IMG(1)(3).CR2"), ioPath("IMG(1)(3).jpg"), ioPath("IMG(1)(3)_02.CR2.xmp")));
  const std::string base(250, 'x');
  names.Take(ioPath(base + ".jpg"));
  EXPECT_THAT(
      names.Give({{base, ".jpg"}, {base, ".CR2.xmp"}}),
      ElementsAre(ioPath(base.substr(0, 244) + "(1).jpg"), ioPath(base.substr(0, 244) + "(1).CR2.xmp")));
}

/// A photo and its settings came apart, and the settings lay beside another photo.
TEST_F(PurePlan, GivesAllFilesOfAShotOneName) {
  facts_.folder.names = {ioPath("A.jpg")};
  Copy("/card/A.jpg", 1);
  Copy("/card/A.xmp", 1);
  Copy("/card/2/A.jpg", 2);
  Copy("/card/2/A.jpg.xmp", 2);
  Copy("/card/3/A.xmp");
  const ImportPlan plan = Plan();
  EXPECT_THAT(Targets(plan), ElementsAre(ioPath("/copies/A(1).jpg"), ioPath("/copies/A(1).xmp"),
                                         ioPath("/copies/A(1)(3).jpg"), ioPath("/copies/A(1)(3).jpg.xmp"),
                                         ioPath("/copies/A(1)(3)(5).xmp")));
  EXPECT_THAT(plan.splits, IsEmpty());
  EXPECT_THAT(plan.joins, IsEmpty());
}

TEST_F(PurePlan, PutsFilesBesideThoseOfTheirShotThatAreThere) {
  facts_.folder.names = {ioPath("A.jpg"), ioPath("Trip.jpg"), ioPath("Trip.wav")};
  facts_.known.push_back({KnownKind::Copied, Add("/card/A.jpg", 1), ioPath("/copies/Trip.jpg")});
  Copy("/card/A.xmp", 1);
  Copy("/card/A.wav", 1);
  const ImportPlan plan = Plan();
  EXPECT_THAT(Targets(plan), ElementsAre(ioPath("/copies/Trip.xmp"), ioPath("/copies/A(1).wav")));
  ASSERT_THAT(plan.splits, SizeIs(1)) << "another spoken note has the name";
}

class ImportPlanTest : public ImportTest {};

TEST_F(ImportPlanTest, GivesTheNamesThatTheLibraryGives) {
  const char* const kNames[] = {"IMG.jpg", "img.JPG", "a.b.jpg", "\u00C4.jpg", "x(1).jpg", "x.jpg"};
  for (const char* const folder : {"card/1/", "card/2/", "card/3/", "copies/"}) {
    for (const char* const name : kNames) {
      tree.Write(folder + std::string(name), folder + std::string(name));
    }
  }
  QList<QString> asked;
  for (const char* const folder : {"card/1/", "card/2/", "card/3/"}) {
    for (const char* const name : kNames) {
      asked.append(ReversibleText(tree.Path(folder + std::string(name))));
    }
  }
  const auto storage = std::make_shared<Zenvora::Test::FakeRemovableStorage>();
  storage->roots = {Card()};
  const App::ServiceScope<App::IRemovableStorage> storageScope(storage);
  const App::ServiceScope<App::IAlerts> alerts(std::make_shared<SaysYes>());
  const App::ServiceScope<App::IFolderDialog> dialog(std::make_shared<OneFolder>(Copies()));
  const auto pairs = Util::CheckFilesToCopyBeforeAddDialog(asked);
  ASSERT_EQ(pairs.size(), asked.size());
  CopyFolder folder;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(Copies().for_system(), error)) {
    folder.names.emplace_back(entry.path().filename());
  }
  ASSERT_FALSE(error);
#ifdef _WIN32
  folder.ignoresCase = true;
#endif
  FreeNames names(folder);
  for (const auto& [source, target] : pairs) {
    EXPECT_EQ(GiveOne(names, ioPath(source).filename().utf8string().c_str()), ioPath(target).filename());
  }
}

TEST_F(ImportPlanTest, NamesAsTheLibraryDoes) {
  MakePhoto("card/a/IMG.jpg", 3);
  MakePhoto("card/b/img.JPG", 4);
  EXPECT_THAT(TargetNames(PlanTo({Card()})), ElementsAre("IMG.jpg", "img(1).JPG"));
  MakePhoto("copies/IMG.jpg", 1);
  MakePhoto("copies/IMG(1).jpg", 2);
  EXPECT_THAT(TargetNames(PlanTo({tree.Path("card/a")})), ElementsAre("IMG(1)(3).jpg"));
}

TEST_F(ImportPlanTest, KeepsShotsTogetherWhereOneNameIsTaken) {
  for (const char* const name : {"card/IMG.CR2", "card/IMG.JPG", "card/IMG.xmp"}) {
    tree.Write(name, name);
  }
  tree.Write("copies/IMG.JPG", "of another shot");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), testing::UnorderedElementsAre("IMG(1).CR2", "IMG(1).JPG", "IMG(1).xmp"));
  EXPECT_THAT(plan.splits, IsEmpty());
}

TEST_F(ImportPlanTest, TellsOfShotsThatFallApart) {
  MakePhoto("card/IMG.JPG", 1);
  tree.Write("card/IMG.xmp", "settings");
  Carry(PlanTo({Card()}));
  tree.Write("copies/IMG.xmp", "changed since");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG(1).xmp"));
  ASSERT_THAT(plan.splits, SizeIs(1));
  EXPECT_THAT(plan.splits[0].sources, SizeIs(2));
  Carry(plan);
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

TEST_F(ImportPlanTest, TellsNothingOfShotsThatStayTogether) {
  for (const char* const name : {"card/IMG.CR2", "card/IMG.JPG"}) {
    tree.Write(name, name);
    tree.Write(std::string("copies") + (name + 4), "of another shot");
  }
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), testing::UnorderedElementsAre("IMG(1).CR2", "IMG(1).JPG"));
  EXPECT_THAT(plan.splits, IsEmpty());
}

TEST_F(ImportPlanTest, ShortensNamesThatTheCountMakesTooLong) {
  const auto nameOf = [](int letters, const char* end) {
    return std::string(static_cast<std::size_t>(letters), 'x') + end;
  };
  for (int i = 1; i <= 3; ++i) {
    MakePhoto("card/" + std::to_string(i) + "/" + nameOf(251, ".jpg"), i);
  }
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan),
              ElementsAre(nameOf(251, ".jpg"), nameOf(248, "(1).jpg"), nameOf(245, "(1)(3).jpg")));
  EXPECT_EQ(Carry(plan).copied, 3U);
  EXPECT_THAT(PlanTo({Card()}).copies, IsEmpty());
}

TEST_F(ImportPlanTest, LetsNoFilesJoinAnotherShot) {
  tree.Write("copies/IMG.CR2", "of another shot");
  tree.Write("card/IMG.jpg", "one");
  tree.Write("card/IMG.xmp", "its settings");
  tree.Write("card/2/img.xmp", "of no photo");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG(1).jpg", "IMG(1).xmp", "img(1)(3).xmp"));
  EXPECT_THAT(plan.joins, IsEmpty());
}

TEST_F(ImportPlanTest, TellsOfFilesWhoseShotSharesItsNameAlready) {
  MakePhoto("card/IMG.jpg", 1);
  Carry(PlanTo({Card()}));
  tree.Write("copies/IMG.CR2", "of another shot");
  tree.Write("card/IMG.xmp", "its settings");
  const ImportPlan plan = PlanTo({Card()});
  ASSERT_THAT(plan.joins, SizeIs(1));
  EXPECT_THAT(plan.joins[0].sources, ElementsAre(tree.Path("card/IMG.xmp")));
  EXPECT_THAT(plan.joins[0].targets, ElementsAre(Copies() / "IMG.xmp"));
  EXPECT_THAT(plan.joins[0].others, ElementsAre(Copies() / "IMG.CR2"));
}

TEST_F(ImportPlanTest, TellsNothingOfFilesThatJoinTheirOwnShot) {
  MakePhoto("card/IMG.jpg", 1);
  tree.Write("card/IMG.xmp", "settings");
  Carry(PlanTo({Card()}));
  tree.Write("card/IMG.CR2", "raw");
  tree.Write("copies/other.jpg", "unlike");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre("IMG.CR2"));
  EXPECT_THAT(plan.joins, IsEmpty());
}

TEST_F(ImportPlanTest, FindsFreeNamesThatAreNoTextToo) {
  const std::string name(Zenvora::Test::kStrangeName);
  tree.Write("copies/" + name + ".jpg", "of another photo");
  tree.Write("copies/" + name + "(1).jpg", "of a third");
  tree.Write("card/" + name + ".jpg", "one");
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre(name + "(1)(3).jpg"));
  EXPECT_EQ(Carry(plan).copied, 1U);
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportPlanTest, CutsNamesBetweenCharacters);

#else

TEST_F(ImportPlanTest, CutsNamesBetweenCharacters) {
  std::string base;
  for (int i = 0; i < 125; ++i) {
    base += "\xD0\xB1";
  }
  for (int i = 1; i <= 3; ++i) {
    MakePhoto("card/" + std::to_string(i) + "/" + base + ".jpg", i);
  }
  const ImportPlan plan = PlanTo({Card()});
  EXPECT_THAT(TargetNames(plan), ElementsAre(base + ".jpg", base.substr(0, 248) + "(1).jpg",
                                             base.substr(0, 244) + "(1)(3).jpg"));
  EXPECT_EQ(Carry(plan).copied, 3U);
}

#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
