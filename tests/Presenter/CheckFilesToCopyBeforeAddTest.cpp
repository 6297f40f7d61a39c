#include "DialogFixture.h"

#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <support/LeftOut.h>
#include <support/TextCatalogue.h>

#include <zenvora/tavolin/StandardFolders.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSet>

#include <filesystem>

namespace Zenvora::Util {
namespace {

using App::AlertButton;
using App::AlertLevel;
using Zenvora::Test::FakeRemovableStorage;
using Zenvora::Test::ScriptedFolderDialog;

using Plan = QList<QPair<QString, QString>>;

constexpr char kKey[] = "LumidexLastUsedCopyDirectory";
constexpr char kQuestion[] =
    "Some of the selected photos are on removable storage. Would you like copy they to your hard drive?";
constexpr char kRefused[] = "The selected directory is temporary, select another directory.";
const App::AlertButtons kChoice = AlertButton::Yes | AlertButton::No | AlertButton::Cancel;

class CopyBeforeAdd : public Zenvora::Test::DialogFixture {
 protected:
  CopyBeforeAdd() { storage_->roots = {Slashed("stick")}; }

  /// As Qt writes paths.
  QString Name(const ioPath& relative) const {
    return QDir::fromNativeSeparators(tree_.Path(relative).qstring());
  }
  ioPath Slashed(const ioPath& relative) const { return ioPath(Name(relative)); }
  QString Make(const ioPath& relative) const {
    tree_.Write(relative, "x");
    return Name(relative);
  }
  QString Target(const QString& folder, const char* name) const {
    return QDir::fromNativeSeparators(folder) + QLatin1Char('/') + QString::fromUtf8(name);
  }

  void Choose(std::vector<QString> folders) {
    folderScope_.reset();
    folders_ = std::make_shared<ScriptedFolderDialog>(std::move(folders));
    folderScope_ = std::make_unique<App::ServiceScope<App::IFolderDialog>>(folders_);
  }

  QString Remembered() const { return QString::fromStdString(settings_->GetString(kKey, "(none)")); }

  const std::shared_ptr<FakeRemovableStorage> storage_ = std::make_shared<FakeRemovableStorage>();
  const App::ServiceScope<App::IRemovableStorage> storageScope_{storage_};
  std::shared_ptr<ScriptedFolderDialog> folders_;
  std::unique_ptr<App::ServiceScope<App::IFolderDialog>> folderScope_;
};

TEST_F(CopyBeforeAdd, PlansNothingForNothing) {
  EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({}).isEmpty());
}

TEST_F(CopyBeforeAdd, AsksNobodyWhenNothingCanBePulledOut) {
  const QString b = Make("b/1.jpg");
  const QString a = Make("a/1.jpg");
  const QString missing = Name("missing.jpg");
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({b, missing, a, b}),
            (Plan{{QString(), b}, {QString(), missing}, {QString(), a}, {QString(), b}}));
  EXPECT_EQ(Remembered(), QStringLiteral("(none)"));
}

TEST_F(CopyBeforeAdd, AsksTheStorageForEachFolderOnceInTheirOrder) {
  const QList<QString> files = {Make("b/1.jpg"), Make("a/1.jpg"), Make("b/2.jpg"), Name("none/1.jpg"),
                                Name("2.jpg")};
  CheckFilesToCopyBeforeAddDialog(files);
  ASSERT_EQ(storage_->asked.size(), 1U);
  EXPECT_EQ(storage_->asked[0], (std::vector<ioPath>{"/", ioPath(Name("a") + QLatin1Char('/')),
                                                     ioPath(Name("b") + QLatin1Char('/'))}))
      << "files that do not exist share one folder";
}

TEST_F(CopyBeforeAdd, FollowsLinksToTheStorage) {
  Make("stick/1.jpg");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("stick"), tree_.Path("link"));
  Answer({AlertButton::No});
  CheckFilesToCopyBeforeAddDialog({Name("link/1.jpg")});
  EXPECT_EQ(alerts_->shown.size(), 1U);
}

TEST_F(CopyBeforeAdd, LeavesEverythingInPlaceAfterNo) {
  const QString stick = Make("stick/1.jpg");
  const QString fixed = Make("a/1.jpg");
  Answer({AlertButton::No});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({stick, fixed}), (Plan{{QString(), stick}, {QString(), fixed}}));
  ExpectAlert(0, AlertLevel::Warning, kQuestion, kChoice);
  EXPECT_EQ(Remembered(), QStringLiteral("(none)"));
}

TEST_F(CopyBeforeAdd, AddsNothingAfterCancel) {
  Answer({AlertButton::Cancel});
  EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg"), Make("a/1.jpg")}).isEmpty());
}

TEST_F(CopyBeforeAdd, AddsNothingWithoutAnAnswer) {
  AnswerWithNoButton();
  Choose({});
  EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg"), Make("a/1.jpg")}).isEmpty());
}

TEST_F(CopyBeforeAdd, AddsNothingWhenNoFolderIsChosen) {
  Answer({AlertButton::Yes});
  Choose({QString()});
  EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg"), Make("a/1.jpg")}).isEmpty());
  EXPECT_EQ(Remembered(), QStringLiteral("(none)"));
}

TEST_F(CopyBeforeAdd, PutsWhatStaysFirstAndByFolder) {
  const QString target = Name("target");
  tree_.MakeFolder("target");
  const QString s2 = Make("stick/b/2.jpg");
  const QString f1 = Make("c/1.jpg");
  const QString s1 = Make("stick/a/1.jpg");
  const QString f2 = Make("b/2.jpg");
  const QString s3 = Make("stick/a/0.jpg");
  const QString f3 = Make("b/1.jpg");
  Answer({AlertButton::Yes});
  Choose({target});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({s2, f1, s1, f2, s3, f3}), (Plan{{QString(), f2},
                                                                             {QString(), f3},
                                                                             {QString(), f1},
                                                                             {s1, Target(target, "1.jpg")},
                                                                             {s3, Target(target, "0.jpg")},
                                                                             {s2, Target(target, "2.jpg")}}));
  EXPECT_TRUE(std::filesystem::is_empty(tree_.Path("target").native())) << "nothing is copied";
}

TEST_F(CopyBeforeAdd, AsksForAFolderAsItShould) {
  Answer({AlertButton::Yes});
  Choose({QString()});
  CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg")});
  ASSERT_EQ(folders_->asked.size(), 1U);
  const App::FolderQuestion& asked = folders_->asked[0];
  EXPECT_EQ(asked.parent, environment_->window);
  EXPECT_EQ(asked.caption, QStringLiteral("Select folder"));
  EXPECT_EQ(asked.startFolder, Tavolin::DefaultPicturesDirectory());
  EXPECT_EQ(asked.options, static_cast<int>(QFileDialog::ShowDirsOnly));
}

TEST_F(CopyBeforeAdd, BeginsAtTheFolderOfTheLastTime) {
  settings_->SetString(kKey, "/Пейзаж");
  Answer({AlertButton::Yes});
  Choose({QString()});
  CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg")});
  ASSERT_EQ(folders_->asked.size(), 1U);
  EXPECT_EQ(folders_->asked[0].startFolder, QStringLiteral("/Пейзаж"));
  EXPECT_EQ(Remembered(), QStringLiteral("/Пейзаж"));
}

TEST_F(CopyBeforeAdd, RefusesFoldersThatCanBePulledOut) {
  settings_->SetString(kKey, "/last");
  const QString target = Name("target 写真");
  Answer({AlertButton::Yes, AlertButton::Ok, AlertButton::Ok});
  Choose({Name("stick/copies"), Name("stick"), target});
  const QString source = Make("stick/1.jpg");
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({source}), (Plan{{source, Target(target, "1.jpg")}}));
  ExpectAlert(1, AlertLevel::Warning, kRefused, AlertButton::Ok);
  ExpectAlert(2, AlertLevel::Warning, kRefused, AlertButton::Ok);
  ASSERT_EQ(folders_->asked.size(), 3U);
  for (const App::FolderQuestion& asked : folders_->asked) {
    EXPECT_EQ(asked.startFolder, QStringLiteral("/last"));
  }
  EXPECT_EQ(Remembered(), target);
}

TEST_F(CopyBeforeAdd, AddsNothingWhenTheUserGivesUpAfterARefusal) {
  settings_->SetString(kKey, "/last");
  Answer({AlertButton::Yes, AlertButton::Ok});
  Choose({Name("stick"), QString()});
  EXPECT_TRUE(CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg"), Make("a/1.jpg")}).isEmpty());
  EXPECT_EQ(Remembered(), QStringLiteral("/last"));
}

/// Notes what is written, and what the folder holds by then.
class WatchedSettings : public Zenvora::Test::FakeSettings {
 public:
  explicit WatchedSettings(const ioPath& folder) : folder_(folder) {}
  void SetString(const std::string& key, const std::string& value) override {
    writes.push_back(key + "=" + value + (folder_.exists() ? ", folder made" : ", before naming"));
    FakeSettings::SetString(key, value);
  }
  std::vector<std::string> writes;

 private:
  const ioPath folder_;
};

TEST_F(CopyBeforeAdd, RemembersTheFolderOnceAndBeforeNaming) {
  const QString target = Name("new/deep");
  const auto settings = std::make_shared<WatchedSettings>(tree_.Path("new/deep"));
  const App::ServiceScope<App::ISettingsManager> scope(settings);
  Answer({AlertButton::Yes});
  Choose({target});
  CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg"), Make("stick/2.jpg")});
  EXPECT_EQ(settings->writes,
            std::vector<std::string>{kKey + ("=" + target.toStdString()) + ", before naming"});
  EXPECT_TRUE(QFileInfo(target).isDir()) << "a missing folder is made with its parents";
}

/// Remembers which folders are to be made, and makes none.
class NoNewFolders : public Zenvora::Test::FakeFolderAccess {
 public:
  bool MakeFolder(const ioPath& folder) const override {
    wanted.push_back(folder);
    return false;
  }
  mutable std::vector<ioPath> wanted;
};

TEST_F(CopyBeforeAdd, LetsTheServiceMakeTheFolder) {
  const auto access = std::make_shared<NoNewFolders>();
  const App::ServiceScope<App::IFolderAccess> scope(access);
  const QString target = Name("new/deep");
  const QString source = Make("stick/1.jpg");
  Answer({AlertButton::Yes});
  Choose({target});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({source}), (Plan{{source, Target(target, "1.jpg")}}));
  EXPECT_EQ(access->wanted, std::vector<ioPath>{ioPath(target)});
  EXPECT_FALSE(QFileInfo::exists(Name("new")));
}

TEST_F(CopyBeforeAdd, PlansAlsoWhereTheFolderCannotBeMade) {
  const QString target = Make("file") + QStringLiteral("/sub");
  const QString source = Make("stick/1.jpg");
  Answer({AlertButton::Yes});
  Choose({target});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({source}), (Plan{{source, Target(target, "1.jpg")}}));
  EXPECT_EQ(Remembered(), target);
}

TEST_F(CopyBeforeAdd, NamesAroundWhatIsThere) {
  const QString target = Name("target");
  for (const char* name : {"target/IMG.jpg", "target/IMG(1).jpg", "target/README"}) {
    tree_.Write(name, "old");
  }
  const QString image = Make("stick/a/IMG.jpg");
  const QString readme = Make("stick/a/README");
  const QString again = Make("stick/b/img.JPG");
  Answer({AlertButton::Yes});
  Choose({target});
  const Plan plan = CheckFilesToCopyBeforeAddDialog({image, readme, again});
  ASSERT_EQ(plan.size(), 3);
  EXPECT_EQ(plan[0], qMakePair(image, Target(target, "IMG(1)(3).jpg")));
  EXPECT_EQ(plan[1], qMakePair(readme, Target(target, "README(1).")));
  EXPECT_EQ(plan[2].first, again);
  for (const auto& [from, to] : plan) {
    EXPECT_FALSE(QFileInfo::exists(to)) << to.toStdString();
  }
  EXPECT_EQ(Zenvora::Test::ReadFile(tree_.Path("target/IMG.jpg")), "old");
}

TEST_F(CopyBeforeAdd, NamesAroundLinksThatLeadNowhere) {
  const QString target = Name("target");
  const QString source = Make("stick/IMG.jpg");
  tree_.MakeFolder("target");
  LUMIDEX_LINK_OR_SKIP("nowhere.jpg", tree_.Path("target/IMG.jpg"));
  LUMIDEX_LINK_OR_SKIP("IMG(1).jpg", tree_.Path("target/IMG(1).jpg"));
  Answer({AlertButton::Yes});
  Choose({target});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({source}), (Plan{{source, Target(target, "IMG(1)(3).jpg")}}));
}

TEST_F(CopyBeforeAdd, TakesFilesOutOfTheWayOfDifferentCase) {
  const QString target = Name("target");
  const QString one = Make("stick/a/IMG.jpg");
  const QString two = Make("stick/b/img.JPG");
  Answer({AlertButton::Yes});
  Choose({target});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({one, two}),
            (Plan{{one, Target(target, "IMG.jpg")}, {two, Target(target, "img(1).JPG")}}));
}

TEST_F(CopyBeforeAdd, MayNameMissingFilesThatShareAFolderThatCanBePulledOut) {
  storage_->roots = {"/"};
  const QString a = Name("gone/a.jpg");
  const QString b = QStringLiteral("gone-too.jpg");
  const QString target = Name("target");
  Answer({AlertButton::No});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({a, b}), (Plan{{QString(), a}, {QString(), b}}));
  ASSERT_EQ(storage_->asked.size(), 1U);
  EXPECT_EQ(storage_->asked[0], std::vector<ioPath>{"/"});
}

/// Storage where one folder is fixed though what holds it is not.
class Island : public App::IRemovableStorage {
 public:
  explicit Island(const ioPath& fixed) : fixed_(fixed) {}
  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    std::vector<ioPath> removable;
    for (const ioPath& folder : folders) {
      if (folder != fixed_) {
        removable.push_back(folder);
      }
    }
    return removable;
  }

 private:
  const ioPath fixed_;
};

TEST_F(CopyBeforeAdd, KeepsWhatLiesInTheChosenFolder) {
  // The folder itself is fixed; what lies in it is, by the storage's word, not.
  const QString target = Name("Target");
  const App::ServiceScope<App::IRemovableStorage> scope(std::make_shared<Island>(ioPath(target)));
  tree_.MakeFolder("Target");
  const QString inside = QDir::toNativeSeparators(Make("Target/IMG.jpg"));
  const QString lower = QDir::toNativeSeparators(Name("target/other.jpg"));
  const QString outside = Make("stick/img.jpg");
  Answer({AlertButton::Yes});
  Choose({QDir::toNativeSeparators(target)});
  const Plan plan = CheckFilesToCopyBeforeAddDialog({inside, outside, lower});
  EXPECT_TRUE(plan.contains({QString(), inside}));
  EXPECT_TRUE(plan.contains({QString(), lower})) << "case does not matter";
  EXPECT_TRUE(plan.contains({outside, Target(QDir::toNativeSeparators(target), "img(1).jpg")}));
}

TEST_F(CopyBeforeAdd, SpeaksTheLanguageInForce) {
  const Zenvora::Test::TextCatalogue texts(QStringLiteral("Zenvora::Lumidex::Utils"),
                                           {{QString::fromUtf8(kQuestion), QStringLiteral("kopieren?")},
                                            {QString::fromUtf8(kRefused), QStringLiteral("nein")},
                                            {QStringLiteral("Select folder"), QStringLiteral("falsch")}});
  const Zenvora::Test::TextCatalogue generic(QStringLiteral("QObject"),
                                             {{QStringLiteral("Select folder"), QStringLiteral("Ordner")},
                                              {QString::fromUtf8(kRefused), QStringLiteral("falsch")}});
  Answer({AlertButton::Yes, AlertButton::Ok});
  Choose({Name("stick"), QString()});
  CheckFilesToCopyBeforeAddDialog({Make("stick/1.jpg")});
  ASSERT_EQ(alerts_->shown.size(), 2U);
  EXPECT_EQ(alerts_->shown[0].text, QStringLiteral("kopieren?"));
  EXPECT_EQ(alerts_->shown[1].text, QStringLiteral("nein"));
  EXPECT_EQ(folders_->asked[0].caption, QStringLiteral("Ordner"));
}

TEST_F(CopyBeforeAdd, PlansTenThousandFiles) {
  const QString target = Name("target");
  QList<QString> files;
  for (int i = 0; i < 10000; ++i) {
    files << Make(ioPath("stick") / std::to_string(i / 100) / ("IMG" + std::to_string(i % 100) + ".jpg"));
  }
  Answer({AlertButton::Yes});
  Choose({target});
  const Plan plan = CheckFilesToCopyBeforeAddDialog(files);
  ASSERT_EQ(plan.size(), files.size());
  QSet<QString> targets;
  for (const auto& [from, to] : plan) {
    targets.insert(to.toLower());
  }
  EXPECT_EQ(targets.size(), files.size());
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(CopyBeforeAdd, MayHaveNamesWithLineFeeds);
#else
TEST_F(CopyBeforeAdd, MayHaveNamesWithLineFeeds) {
  const QString target = Name("target\n");
  const QString source = Make("stick/a\nb.jpg");
  Make("target\n/a\nb.jpg");
  Answer({AlertButton::Yes});
  Choose({target});
  EXPECT_EQ(CheckFilesToCopyBeforeAddDialog({source}), (Plan{{source, Target(target, "a\nb(1).jpg")}}));
}
#endif

}  // namespace
}  // namespace Zenvora::Util
