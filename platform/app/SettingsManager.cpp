#include "IniText.h"

#include <zenvora/app/RealServices.h>
#include <zenvora/app/UserFolders.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>

#include <glog/logging.h>

#include <QSettings>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>

namespace Zenvora::App {

namespace {

// A fresh one for each use, on the using thread: one that stays belongs to the thread that made it and never
// forgets a failure. Qt keeps the parsed file.
class IniFile : public QSettings {
 public:
  explicit IniFile(const ioPath& file) : QSettings(file.qstring(), QSettings::IniFormat) {
    setIniCodec("UTF-8");
  }
};

class IniSettings : public ISettingsManager {
 public:
  explicit IniSettings(const ioPath& file) : file_(file) {}

  std::string GetString(const std::string& key, const std::string& defaultValue) const override {
    if (const auto kept = Unsaved(key)) {
      return *kept;
    }
    if (!IsFile()) {
      return defaultValue;
    }
    const QVariant value = IniFile(file_).value(QString::fromStdString(key));
    if (!value.isValid()) {
      return defaultValue;
    }
    // A text with a comma that a person wrote without quotes is read as a list.
    const QString text =
        value.type() == QVariant::StringList ? value.toStringList().join(QLatin1Char(',')) : value.toString();
    return text.toStdString();
  }

  void SetString(const std::string& key, const std::string& value) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    unsaved_[key] = value;
    const std::string problem = Save();
    if (problem.empty()) {
      unsaved_.clear();
    } else {
      LOG(WARNING) << "Cannot write settings to " << file_ << ": " << problem;
    }
  }

 private:
  std::optional<std::string> Unsaved(const std::string& key) const {
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto found = unsaved_.find(key);
    return found == unsaved_.end() ? std::nullopt : std::make_optional(found->second);
  }

  // Also what could not be written before. Returns what is in the way, empty for nothing.
  std::string Save() const {
    if (file_.exists() && !IsFile()) {
      return "not a file";
    }
    if (const std::size_t line = FirstLineNotIni(Text()); line != 0) {
      return "its line " + std::to_string(line) + " is not in INI form";
    }
    MakePrivateFolders(file_.parent_path());
    IniFile file(file_);
    if (!file.isWritable()) {
      return "no access";
    }
    for (const auto& [key, value] : unsaved_) {
      file.setValue(QString::fromStdString(key), QString::fromStdString(value));
    }
    file.sync();
    // They name folders and say what is done with photos.
    MakePrivate(file_);
    if (file_ == UserSettingsFile()) {
      MakePrivate(file_.parent_path());
    }
    return file.status() == QSettings::NoError ? "" : "writing failed";
  }

  // Anything else might block whoever opens it.
  bool IsFile() const { return QueryFile(file_).kind == FileState::Kind::File; }

  std::string Text() const {
    std::ifstream stream(file_.for_system(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

  const ioPath file_;
  mutable std::mutex mutex_;
  std::map<std::string, std::string> unsaved_;
};

}  // namespace

std::shared_ptr<ISettingsManager> MakeIniSettings(const ioPath& file) {
  return std::make_shared<IniSettings>(file);
}

ioPath UserSettingsFile() {
  return FolderOfUser(UserFolder::Settings) / "lumidex" / "lumidex.ini";
}

}  // namespace Zenvora::App
