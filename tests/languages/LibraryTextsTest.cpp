// What the library says of its own accord, in each language, as its callers get it.

#include "CatalogueFile.h"

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <LumidexUtil/CheckFormatsWritable.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <LumidexUtil/Wording.h>
#include <host/settings/InterfaceTexts.h>
#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace Zenvora::Test {
namespace {

using App::AlertButton;
using Lumidex::DataModel;
using Util::CheckSaveAvailableMode;

class LibraryTexts : public ::testing::TestWithParam<std::string> {
 protected:
  LibraryTexts() {
    for (const CatalogueText& text : ReadCatalogue(GetParam())) {
      if (!text.counts) {
        texts_[text.context + QLatin1Char('|') + text.source] = text.translations.first();
      }
    }
  }

  std::string Wanted(const char* source, const char* context = "Zenvora::Lumidex::Utils") const {
    const auto found = texts_.find(QLatin1String(context) + QLatin1Char('|') + QLatin1String(source));
    EXPECT_NE(found, texts_.end()) << source;
    return found == texts_.end() ? std::string() : found->second.toStdString();
  }
  std::string Wanted(const char* source, const QString& value) const {
    return QString::fromStdString(Wanted(source)).arg(value).toStdString();
  }
  static std::vector<DataModel> Items(const std::vector<ioPath>& paths) {
    std::vector<DataModel> items(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
      items[i].SetPath(paths[i]);
    }
    return items;
  }

  const TempTree tree_;
  std::map<QString, QString> texts_;
  const Lumidex::Host::InterfaceTexts language_{GetParam()};
};

TEST_P(LibraryTexts, TellOfFormats) {
  EXPECT_EQ(
      Util::CheckFormatsWritable(Items({"a.gif"})).second.toStdString(),
      Wanted("The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after "
             "applying the tool.",
             QStringLiteral("GIF")));
  EXPECT_EQ(Util::CheckFormatsWritable(Items({"a.gif", "b.jpg"})).second.toStdString(),
            Wanted("Some of the selected photos are in read-only formats (for example, %1). They will be "
                   "converted to JPG or PNG after applying the tool.",
                   QStringLiteral("GIF")));
}

TEST_P(LibraryTexts, TellOfFoldersAndFiles) {
  const ioPath missing = tree_.Path("missing/photo.jpg");
  const auto [folder, folderText] =
      Util::CheckSaveAvailable(Items({missing}), CheckSaveAvailableMode::FolderPermission);
  EXPECT_EQ(folder, CheckSaveAvailableMode::FolderPermission);
  EXPECT_EQ(folderText.toStdString(), Wanted("You do not have permission to edit files in this folder: %1",
                                             missing.parent_path().qstring()));
  const auto [file, fileText] =
      Util::CheckSaveAvailable(Items({missing}), CheckSaveAvailableMode::FilePermission);
  EXPECT_EQ(file, CheckSaveAvailableMode::FilePermission);
  EXPECT_EQ(fileText.toStdString(), Wanted("You do not have permission to edit file: %1", missing.qstring()));
}

TEST_P(LibraryTexts, TellOfFullDisks) {
  std::vector<DataModel> items = Items({tree_.Path("photo.jpg")});
  items[0].SetSize(1ULL << 62U);
  const auto [failed, text] = Util::CheckSaveAvailable(items, CheckSaveAvailableMode::DiskSpace);
  EXPECT_EQ(failed, CheckSaveAvailableMode::DiskSpace);
  const std::string beginning = Wanted("There is not enough space on the disk %1");
  EXPECT_EQ(text.toStdString().substr(0, beginning.find("%1")), beginning.substr(0, beginning.find("%1")));
}

TEST_P(LibraryTexts, AskInAlerts) {
  const auto alerts =
      std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{AlertButton::Ok, AlertButton::Cancel});
  const App::ServiceScope<App::IAlerts> scope(alerts);
  Util::CheckFilesReadableDialog({});
  tree_.Write("there.jpg", "x");
  Util::CheckFilesReadableDialog({tree_.Path("there.jpg").qstring(), tree_.Path("missing.jpg").qstring()});
  ASSERT_EQ(alerts->shown.size(), 2U);
  EXPECT_EQ(alerts->shown[0].title.toStdString(), Wanted("Attention"));
  EXPECT_EQ(alerts->shown[0].text.toStdString(),
            Wanted("All of the selected files do not have read permissions, they will not be added."));
  EXPECT_EQ(alerts->shown[1].text.toStdString(),
            Wanted("Some of the selected files do not have read permissions, they will not be added."));
}

TEST_P(LibraryTexts, AskForFolders) {
  const auto storage = std::make_shared<FakeRemovableStorage>();
  storage->roots = {ioPath(tree_.Path("stick"))};
  const App::ServiceScope<App::IRemovableStorage> storageScope(storage);
  const App::ServiceScope<App::ISettingsManager> settings(std::make_shared<FakeSettings>());
  const auto alerts =
      std::make_shared<ScriptedAlerts>(std::vector<AlertButton>{AlertButton::Yes, AlertButton::Ok});
  const App::ServiceScope<App::IAlerts> alertScope(alerts);
  const QString stick = tree_.MakeFolder("stick").qstring();
  const auto folders = std::make_shared<ScriptedFolderDialog>(std::vector<QString>{stick, QString()});
  const App::ServiceScope<App::IFolderDialog> folderScope(folders);
  tree_.Write("stick/photo.jpg", "x");
  EXPECT_TRUE(Util::CheckFilesToCopyBeforeAddDialog({tree_.Path("stick/photo.jpg").qstring()}).isEmpty());
  ASSERT_EQ(alerts->shown.size(), 2U);
  EXPECT_EQ(alerts->shown[0].text.toStdString(),
            Wanted("Some of the selected photos are on removable storage. Would you like copy they to your "
                   "hard drive?"));
  EXPECT_EQ(alerts->shown[1].text.toStdString(),
            Wanted("The selected directory is temporary, select another directory."));
  ASSERT_EQ(folders->asked.size(), 2U);
  EXPECT_EQ(folders->asked[0].caption.toStdString(), Wanted("Select folder", "QObject"));
}

TEST_P(LibraryTexts, CountDays) {
  EXPECT_EQ(Util::GetLocalizedNumberOfDays(0).toStdString(), Wanted("Expired"));
  const QString pattern = QString::fromStdString(Wanted("%1 %2"));
  const auto days = [&](int count, const char* key) {
    EXPECT_EQ(Util::GetLocalizedNumberOfDays(count).toStdString(),
              pattern.arg(QString::number(count), QString::fromStdString(Wanted(key))).toStdString())
        << count;
  };
  days(1, "One day");
  days(2, "Genetive day");
  days(5, "Plural day");
  days(21, "Nominative day");
}

INSTANTIATE_TEST_SUITE_P(Languages, LibraryTexts, ::testing::ValuesIn(App::InterfaceLanguages()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace Zenvora::Test
