#pragma once

#include "RawSql.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/edit/PhotoEditing.h>
#include <host/history/UndoJournal.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Test {

/// A journal in a tree of its own, and edits that give photos new bytes.
class JournalTest : public ::testing::Test {
 protected:
  using UndoJournal = Lumidex::Host::UndoJournal;
  using UndoResult = Lumidex::Host::UndoResult;
  using UndoStep = Lumidex::Host::UndoStep;
  using UndoLimits = Lumidex::Host::UndoLimits;

  /// A new journal of the same catalogue, as the next run of the program opens one.
  void Open() {
    Close();
    journal_ = std::make_unique<UndoJournal>(catalogue_, *locker_);
  }
  void Close() { journal_.reset(); }

  ioPath Make(const std::string& name, const std::string& content) const {
    return tree_.Write("photos/" + name, content);
  }

  UndoResult Edit(const std::vector<ioPath>& photos, const std::string& content,
                  const QString& name = QStringLiteral("edit")) {
    return Lumidex::Host::EditPhotos(
        journal_->Edits(), *locker_, name, photos,
        [&content](const ioPath&, const ioPath& side) {
          std::ofstream(side.for_system(), std::ios::binary) << content;
        },
        never_, nullptr);
  }

  UndoResult Undo() { return journal_->UndoLast(never_, nullptr); }
  UndoResult Redo() { return journal_->RedoLast(never_, nullptr); }

  static std::vector<std::string> NamesOf(const std::vector<UndoStep>& steps) {
    std::vector<std::string> names;
    for (const UndoStep& step : steps) {
      names.push_back(step.name.toStdString());
    }
    return names;
  }
  std::vector<std::string> StepNames() const { return NamesOf(journal_->Steps()); }

  /// The versions that are kept.
  std::set<std::string> Kept() const {
    std::set<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(keptFolder_.for_system(), error), end; entry != end;
         entry.increment(error)) {
      const std::string name = ioPath(entry->path().filename()).utf8string();
      if (name != "lock" && name != "reserve") {
        names.insert(name);
      }
    }
    return names;
  }

  const TempTree tree_;
  const ioPath catalogue_ = tree_.Path("catalogue.sqlite");
  const ioPath keptFolder_ = tree_.Path("catalogue.sqlite.undo");
  const boost::intrusive_ptr<Lumidex::IFileAccessLocker> locker_ = Lumidex::FileAccessLocker::Create();
  const std::atomic<bool> never_{false};
  std::unique_ptr<UndoJournal> journal_;
};

}  // namespace Zenvora::Test
