#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/import/Import.h>
#include <host/import/ImportPlan.h>
#include <host/import/ImportQuestions.h>
#include <host/scan/ImportSources.h>
#include <support/Doubles.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A user who chooses the folder whenever asked for one.
class OneFolder : public App::IFolderDialog {
 public:
  explicit OneFolder(const ioPath& folder) : folder_(folder) {}
  QString Ask(const App::FolderQuestion&) override { return folder_.qstring(); }

 private:
  const ioPath folder_;
};

/// A user who wants everything copied, and closes whatever else is asked.
class SaysYes : public App::IAlerts {
 public:
  App::AlertButton Show(const App::Alert& alert) override {
    return alert.buttons.testFlag(App::AlertButton::Yes) ? App::AlertButton::Yes
                                                         : App::UnansweredButton(alert.buttons);
  }
};

/// A card with photos, a folder for copies and a catalogue, with settings of their own.
class ImportTest : public testing::Test {
 protected:
  /// A photo unlike any other of another number.
  ioPath MakePhoto(const std::string& name, int number) const {
    Zenvora::Test::PhotoTags tags;
    tags.dateTimeOriginal =
        "2024:01:01 10:" + std::to_string(10 + number / 50) + ":" + std::to_string(10 + number % 50);
    tags.model = "Model " + std::to_string(number);
    return Zenvora::Test::WriteJpeg(tree.Path(name), tags);
  }
  std::vector<ioPath> MakePhotos(const std::string& folder, int count) const {
    std::vector<ioPath> photos;
    for (int i = 0; i < count; ++i) {
      photos.push_back(MakePhoto(folder + "/IMG_" + std::to_string(1000 + i) + ".JPG", i));
    }
    return photos;
  }

  Catalogue& Stored() {
    if (!catalogue_) {
      catalogue_.emplace(tree.Path("data/catalogue.sqlite"), Catalogue::Mode::ReadWrite);
    }
    return *catalogue_;
  }
  void CloseCatalogue() { catalogue_.reset(); }

  /// Looks, asks and plans as programs do.
  ImportPlan PlanOf(GatheredSources sources, const std::vector<PhotoRecord>& photos, bool copyAll,
                    const std::atomic<bool>* cancel = nullptr) const {
    ImportFacts facts;
    facts.sources = std::move(sources);
    facts.copyAll = copyAll;
    ImportAnswers answers;
    if (AskReadable(facts, answers)) {
      LookAtSources(facts, photos, cancel, nullptr);
      if (AskCopies(facts, answers)) {
        LookAtFolder(facts, answers, tree.Path("data/catalogue.sqlite"), cancel);
      }
    }
    return PlanImport(facts, answers);
  }
  /// Plans as `lumidex import SOURCES --to copies` does.
  ImportPlan PlanTo(const std::vector<ioPath>& sources, const ioPath& folder) {
    const App::ServiceScope<App::IFolderDialog> dialog(std::make_shared<OneFolder>(folder));
    const App::ServiceScope<App::IAlerts> alerts(std::make_shared<SaysYes>());
    return PlanOf(GatherSources(sources, Gathered::Everything), Stored().Photos(), true);
  }
  ImportPlan PlanTo(const std::vector<ioPath>& sources) { return PlanTo(sources, Copies()); }
  ImportPlan Plan(const std::vector<ioPath>& sources) {
    return PlanOf(GatherSources(sources, Gathered::Everything), Stored().Photos(), false);
  }
  ImportResult Carry(const ImportPlan& plan, const ImportOptions& options = {}) {
    return RunImport(plan, Stored(), options, nullptr);
  }

  ioPath Card() const { return tree.Path("card"); }
  ioPath Copies() const { return tree.Path("copies"); }

  /// Names in a folder that are not hidden, in order.
  static std::vector<std::string> NamesIn(const ioPath& folder) {
    std::vector<std::string> names;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder.native(), ignored)) {
      const std::string name = ioPath(entry.path().filename()).utf8string();
      if (name.front() != '.') {
        names.push_back(name);
      }
    }
    std::sort(names.begin(), names.end());
    return names;
  }
  /// Of an import's own folder, without what stays there for good.
  static std::vector<std::string> PartsIn(const ioPath& copies) {
    std::vector<std::string> names = NamesIn(copies / ".lumidex-import");
    names.erase(
        std::remove_if(names.begin(), names.end(),
                       [](const std::string& name) { return name == "lock" || name == "manifest.jsonl"; }),
        names.end());
    return names;
  }
  static std::vector<std::string> TargetNames(const ImportPlan& plan) {
    std::vector<std::string> names;
    for (const ImportCopy& copy : plan.copies) {
      names.push_back(copy.target.filename().utf8string());
    }
    return names;
  }

  const Zenvora::Test::TempTree tree;

 private:
  const App::ServiceScope<App::ISettingsManager> settings_{App::MakeIniSettings(tree.Path("settings.ini"))};
  std::optional<Catalogue> catalogue_;
};

}  // namespace Zenvora::Lumidex::Host
