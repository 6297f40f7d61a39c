#include <zenvora/app/RealServices.h>

#include <glog/logging.h>

#include <QSettings>
#include <QStandardPaths>

#include <map>
#include <mutex>

namespace Zenvora::App {

namespace {

class IniSettings : public ISettingsManager {
 public:
  explicit IniSettings(const ioPath& file) : file_(file) {}

  std::string GetString(const std::string& key, const std::string& defaultValue) const override {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (const auto kept = unsaved_.find(key); kept != unsaved_.end()) {
      return kept->second;
    }
    const QVariant value = Open().value(QString::fromStdString(key));
    if (!value.isValid()) {
      return defaultValue;
    }
    // A text with a comma that a person wrote without quotes is read as a list.
    const QString text = value.type() == QVariant::StringList ? value.toStringList().join(QStringLiteral(", "))
                                                              : value.toString();
    return text.toStdString();
  }

  void SetString(const std::string& key, const std::string& value) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    QSettings& settings = Open();
    settings.setValue(QString::fromStdString(key), QString::fromStdString(value));
    settings.sync();
    if (settings.status() == QSettings::NoError) {
      unsaved_.erase(key);
      return;
    }
    unsaved_[key] = value;
    LOG(WARNING) << "Cannot write settings to " << file_ << ": "
                 << (settings.status() == QSettings::AccessError ? "no access" : "the file is not in INI form");
  }

 private:
  // Opened late: most processes that load the library never ask for a setting.
  QSettings& Open() const {
    if (!settings_) {
      settings_ = std::make_unique<QSettings>(file_.qstring(), QSettings::IniFormat);
      settings_->setIniCodec("UTF-8");
    }
    return *settings_;
  }

  const ioPath file_;
  mutable std::mutex mutex_;
  mutable std::unique_ptr<QSettings> settings_;
  std::map<std::string, std::string> unsaved_;
};

}  // namespace

std::shared_ptr<ISettingsManager> MakeIniSettings(const ioPath& file) { return std::make_shared<IniSettings>(file); }

ioPath UserSettingsFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return ioPath(folder) / "lumidex" / "lumidex.ini";
}

}  // namespace Zenvora::App
