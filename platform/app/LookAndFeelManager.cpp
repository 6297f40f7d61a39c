#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>

#include <QLocale>
#include <QString>

#include <algorithm>
#include <utility>

namespace Zenvora::App {

namespace {

class FixedLookAndFeel : public ILookAndFeelManager {
 public:
  explicit FixedLookAndFeel(std::string locale) : locale_(std::move(locale)) {}
  std::string GetCurrentLocale() const override { return locale_; }

 private:
  const std::string locale_;
};

class SystemLookAndFeel : public ILookAndFeelManager {
 public:
  std::string GetCurrentLocale() const override { return QLocale::system().name().toStdString(); }
};

class HostLookAndFeel : public ILookAndFeelManager {
 public:
  std::string GetCurrentLocale() const override {
    const std::string wish = Services::Current().Get<ISettingsManager>()->GetString(SettingsKey::kLanguage, "");
    return NearestInterfaceLanguage(wish.empty() ? QLocale::system().name().toStdString() : wish);
  }
};

}  // namespace

const std::vector<std::string>& InterfaceLanguages() {
  static const std::vector<std::string> languages = {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT",
                                                     "ja_JP", "nl_NL", "pt_BR", "ru_RU"};
  return languages;
}

std::string NearestInterfaceLanguage(const std::string& wish) {
  // "de-AT.UTF-8@euro" -> "de_AT"
  std::string name = wish.substr(0, wish.find_first_of(".@"));
  std::replace(name.begin(), name.end(), '-', '_');
  const std::string language = name.substr(0, name.find('_'));
  const auto& spoken = InterfaceLanguages();
  if (std::find(spoken.begin(), spoken.end(), name) != spoken.end()) {
    return name;
  }
  const auto sibling = std::find_if(spoken.begin(), spoken.end(), [&](const std::string& candidate) {
    return candidate.substr(0, candidate.find('_')) == language;
  });
  return sibling == spoken.end() ? spoken.front() : *sibling;
}

std::shared_ptr<ILookAndFeelManager> MakeHostLookAndFeel() { return std::make_shared<HostLookAndFeel>(); }

std::shared_ptr<ILookAndFeelManager> MakeFixedLookAndFeel(const std::string& locale) {
  return std::make_shared<FixedLookAndFeel>(locale);
}

std::shared_ptr<ILookAndFeelManager> MakeSystemLookAndFeel() { return std::make_shared<SystemLookAndFeel>(); }

}  // namespace Zenvora::App
