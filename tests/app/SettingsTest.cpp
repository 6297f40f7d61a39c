#include <support/LeftOut.h>
#include <support/LogCapture.h>
#include <support/Obstacles.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QByteArray>

#include <filesystem>
#include <string>

namespace Zenvora::App {
namespace {

namespace fs = std::filesystem;
using Zenvora::Test::LogCapture;
using Zenvora::Test::Pipe;
using Zenvora::Test::ReadText;
using Zenvora::Test::TempTree;
#ifndef _WIN32
using Zenvora::Test::WriteLimit;
#endif

std::size_t Warnings(const LogCapture& log) {
  return log.Lines(google::GLOG_WARNING).size();
}

TEST(SettingsFile, IsMadeWithItsFoldersByTheFirstWrite) {
  const TempTree tree;
  const ioPath file = tree.Path("new/folder/settings.ini");
  const auto settings = MakeIniSettings(file);
  EXPECT_EQ(settings->GetString("key", "default"), "default");
  EXPECT_FALSE(tree.Path("new").exists());

  const LogCapture log;
  settings->SetString("key", "value");
  EXPECT_TRUE(file.exists());
  EXPECT_EQ(MakeIniSettings(file)->GetString("key", ""), "value");
  EXPECT_EQ(Warnings(log), 0U);
}

TEST(SettingsFile, IsReadableByPeople) {
  const TempTree tree;
  const ioPath file = tree.Path("settings.ini");
  MakeIniSettings(file)->SetString(SettingsKey::kLanguage, "de_DE");
  MakeIniSettings(file)->SetString("Group/Name", "gr\xC3\xBC\xC3\x9F");
  EXPECT_EQ(ReadText(file), "[Group]\nName=gr\xC3\xBC\xC3\x9F\n\n[Interface]\nLanguage=de_DE\n");
}

TEST(SettingsFile, MayBeWrittenByPeople) {
  const TempTree tree;
  const ioPath file = tree.Write("settings.ini",
                                 "; a comment\n"
                                 "top=level\n"
                                 "[Group]\r\n"
                                 "  Name = gr\xC3\xBC\xC3\x9F  \n"
                                 "List=a, b,c\n"
                                 "Quoted=\"a, b\"\n"
                                 "Number=7\n"
                                 "Nothing=\n");
  const auto settings = MakeIniSettings(file);
  EXPECT_EQ(settings->GetString("top", ""), "level");
  EXPECT_EQ(settings->GetString("Group/Name", ""), "gr\xC3\xBC\xC3\x9F");
  EXPECT_EQ(settings->GetString("Group/List", ""), "a,b,c");
  EXPECT_EQ(settings->GetString("Group/Quoted", ""), "a, b");
  EXPECT_EQ(settings->GetString("Group/Number", ""), "7");
  EXPECT_EQ(settings->GetString("Group/Nothing", "default"), "");
  EXPECT_EQ(settings->GetString("Group/Missing", "default"), "default");
}

TEST(SettingsFile, IsSharedByItsObjects) {
  const TempTree tree;
  const auto one = MakeIniSettings(tree.Path("settings.ini"));
  const auto other = MakeIniSettings(tree.Path("settings.ini"));
  one->SetString("a", "1");
  EXPECT_EQ(other->GetString("a", ""), "1");
  other->SetString("b", "2");
  other->SetString("a", "3");
  EXPECT_EQ(one->GetString("a", ""), "3");
  EXPECT_EQ(one->GetString("b", ""), "2");
}

TEST(SettingsFile, IsReadAnewWhenAnotherProcessWroteIt) {
  const TempTree tree;
  const ioPath file = tree.Write("settings.ini", "key=old\n");
  const auto settings = MakeIniSettings(file);
  EXPECT_EQ(settings->GetString("key", ""), "old");
  tree.Write("settings.ini", "key=changed\nother=here\n");
  EXPECT_EQ(settings->GetString("key", ""), "changed");
  settings->SetString("mine", "x");
  EXPECT_EQ(settings->GetString("other", ""), "here");
  EXPECT_EQ(settings->GetString("key", ""), "changed");
}

TEST(SettingsFile, IsWrittenThroughALink) {
  const TempTree tree;
  const ioPath file = tree.Write("real.ini", "key=old\n");
  LUMIDEX_LINK_OR_SKIP(file, tree.Path("link.ini"));
  MakeIniSettings(tree.Path("link.ini"))->SetString("key", "new");
  EXPECT_TRUE(fs::is_symlink(tree.Path("link.ini").native()));
  EXPECT_EQ(ReadText(file), "[General]\nkey=new\n");
}

class UnwritableSettings : public testing::Test {
 protected:
  const TempTree tree;
  // A file stands where the folder should be.
  const ioPath obstacle = tree.Write("folder", "in the way");
  const ioPath file = tree.Path("folder/settings.ini");
  const std::shared_ptr<ISettingsManager> settings = MakeIniSettings(file);
};

TEST_F(UnwritableSettings, LastForTheProcessAndAreWarnedOf) {
  const LogCapture log;
  settings->SetString("key", "value");
  settings->SetString("other", "more");
  EXPECT_EQ(settings->GetString("key", "default"), "value");
  EXPECT_EQ(settings->GetString("other", "default"), "more");
  EXPECT_EQ(settings->GetString("third", "default"), "default");
  const auto warnings = log.Lines(google::GLOG_WARNING);
  ASSERT_EQ(warnings.size(), 2U);
  EXPECT_NE(warnings[0].text.find(file.utf8string()), std::string::npos) << warnings[0].text;
  EXPECT_EQ(ReadText(obstacle), "in the way");
}

TEST_F(UnwritableSettings, AreSavedByTheNextWriteThatWorks) {
  settings->SetString("key", "value");
  ASSERT_TRUE(obstacle.remove());
  const LogCapture log;
  settings->SetString("other", "more");
  EXPECT_EQ(Warnings(log), 0U);
  EXPECT_EQ(ReadText(file), "[General]\nkey=value\nother=more\n");
}

TEST(Settings, LeaveAFolderInTheirPlaceAlone) {
  const TempTree tree;
  const ioPath folder = tree.MakeFolder("settings.ini");
  const auto settings = MakeIniSettings(folder);
  EXPECT_EQ(settings->GetString("key", "default"), "default");
  const LogCapture log;
  settings->SetString("key", "value");
  EXPECT_EQ(Warnings(log), 1U);
  EXPECT_EQ(settings->GetString("key", "default"), "value");
  EXPECT_TRUE(fs::is_directory(folder.native()));
}

TEST(Settings, DoNotWaitForAPipe) {
  const TempTree tree;
  const Pipe pipe(tree.Path("settings.ini"));
  const auto settings = MakeIniSettings(pipe.Path());
  EXPECT_EQ(settings->GetString("key", "default"), "default");
  const LogCapture log;
  settings->SetString("key", "value");
  EXPECT_EQ(Warnings(log), 1U);
  EXPECT_EQ(settings->GetString("key", "default"), "value");
}

#ifndef _WIN32
TEST(Settings, SurviveAFullDisk) {
  const TempTree tree;
  const ioPath file = tree.Write("settings.ini", "key=old\n");
  const auto settings = MakeIniSettings(file);
  const LogCapture log;
  {
    const WriteLimit full(8);
    settings->SetString("key", "new and longer");
  }
  EXPECT_EQ(Warnings(log), 1U);
  EXPECT_EQ(ReadText(file), "key=old\n");
  EXPECT_EQ(settings->GetString("key", ""), "new and longer");

  settings->SetString("other", "more");
  EXPECT_EQ(Warnings(log), 1U);
  EXPECT_EQ(ReadText(file), "[General]\nkey=new and longer\nother=more\n");
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS(Settings, SurviveAFullDisk);
#endif

struct Damage {
  std::string content;
  const char* line;
};

class DamagedSettings : public testing::TestWithParam<Damage> {};

TEST_P(DamagedSettings, AreNeverWrittenOver) {
  const TempTree tree;
  const ioPath file = tree.Write("settings.ini", GetParam().content);
  for (int attempt = 0; attempt < 2; ++attempt) {
    const auto settings = MakeIniSettings(file);
    EXPECT_EQ(settings->GetString("missing", "default"), "default");
    const LogCapture log;
    settings->SetString("key", "value");
    EXPECT_EQ(settings->GetString("key", "default"), "value");
    const auto warnings = log.Lines(google::GLOG_WARNING);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_NE(warnings[0].text.find(GetParam().line), std::string::npos) << warnings[0].text;
    EXPECT_EQ(ReadText(file), GetParam().content);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, DamagedSettings,
                         testing::Values(Damage{"[Group\nkey=old\n", "line 1"},
                                         Damage{"key=old\nnoise\n", "line 2"},
                                         Damage{"{\"key\":\"old\"}\n", "line 1"},
                                         Damage{"\xFF\xD8\xFF\xE0" + std::string(100, '\0'), "line 1"}));

TEST(Settings, OfADamagedFileAreReadAsFarAsTheyCan) {
  const TempTree tree;
  const auto settings = MakeIniSettings(tree.Write("settings.ini", "[Group]\nkey=old\nnoise\nlast=here\n"));
  EXPECT_EQ(settings->GetString("Group/key", "default"), "old");
  EXPECT_EQ(settings->GetString("Group/last", "default"), "here");
}

TEST(Settings, OfADamagedFileAreSavedOnceItIsMended) {
  const TempTree tree;
  const ioPath file = tree.Write("settings.ini", "noise\n");
  const auto settings = MakeIniSettings(file);
  settings->SetString("key", "value");
  tree.Write("settings.ini", "[Group]\nother=here\n");
  const LogCapture log;
  settings->SetString("third", "more");
  EXPECT_EQ(Warnings(log), 0U);
  const auto written = MakeIniSettings(file);
  EXPECT_EQ(written->GetString("key", ""), "value");
  EXPECT_EQ(written->GetString("third", ""), "more");
  EXPECT_EQ(written->GetString("Group/other", ""), "here");
}

TEST(UserSettings, AreThoseOfANewRegistry) {
  const Services registry;
  registry.Get<ISettingsManager>()->SetString("probe", "from the registry");
  EXPECT_EQ(MakeIniSettings(UserSettingsFile())->GetString("probe", ""), "from the registry");
  EXPECT_TRUE(UserSettingsFile().remove());
}

}  // namespace
}  // namespace Zenvora::App
