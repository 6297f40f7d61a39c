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
    const std::string wish =
        Services::Current().Get<ISettingsManager>()->GetString(SettingsKey::kLanguage, "");
    return NearestInterfaceLanguage(wish.empty() ? QLocale::system().name().toStdString() : wish);
  }
};

// "de-AT.UTF-8@euro" -> "de_at"
std::string Plain(const std::string& locale) {
  std::string name = locale.substr(0, locale.find_first_of(".@"));
  std::transform(name.begin(), name.end(), name.begin(), [](char c) {
    // Not tolower: its answer depends on the process's locale.
    return c == '-' ? '_' : (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return name;
}

std::string LanguageOf(const std::string& plain) {
  return plain.substr(0, plain.find('_'));
}

}  // namespace

const std::vector<std::string>& InterfaceLanguages() {
  static const std::vector<std::string> languages = {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT",
                                                     "ja_JP", "nl_NL", "pt_BR", "ru_RU"};
  return languages;
}

InterfaceLanguage FindInterfaceLanguage(const std::string& wish) {
  const std::string name = Plain(wish);
  const auto& spoken = InterfaceLanguages();
  const auto itself = std::find_if(spoken.begin(), spoken.end(),
                                   [&](const std::string& candidate) { return Plain(candidate) == name; });
  if (itself != spoken.end()) {
    return {*itself, LanguageMatch::Exact};
  }
  const auto sibling = std::find_if(spoken.begin(), spoken.end(), [&](const std::string& candidate) {
    return LanguageOf(Plain(candidate)) == LanguageOf(name);
  });
  if (sibling != spoken.end()) {
    return {*sibling, LanguageMatch::Near};
  }
  return {spoken.front(), LanguageMatch::None};
}

std::string NearestInterfaceLanguage(const std::string& wish) {
  return FindInterfaceLanguage(wish).locale;
}

std::shared_ptr<ILookAndFeelManager> MakeHostLookAndFeel() {
  return std::make_shared<HostLookAndFeel>();
}

std::shared_ptr<ILookAndFeelManager> MakeFixedLookAndFeel(const std::string& locale) {
  return std::make_shared<FixedLookAndFeel>(locale);
}

std::shared_ptr<ILookAndFeelManager> MakeSystemLookAndFeel() {
  return std::make_shared<SystemLookAndFeel>();
}

}  // namespace Zenvora::App
