#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/RealServices.h>

#include <glog/logging.h>

#include <QCoreApplication>

// The macro of Qt must not be used within a namespace.
static void InitCatalogues() {
  Q_INIT_RESOURCE(translations);
}

namespace Zenvora::Lumidex::Host {

namespace {

/// The buttons of message boxes, whose texts Qt looks up at run time. Its own catalogues need not be
/// installed, and not every language is among them.
[[maybe_unused]] const char* const kButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Yes to &All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "N&o to All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save All"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Retry"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Ignore"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Abort"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Help"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Reset"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Restore Defaults"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
};

}  // namespace

InterfaceTexts::InterfaceTexts(const std::string& locale) {
  InitCatalogues();
  Speak(locale);
}

InterfaceTexts::~InterfaceTexts() {
  QCoreApplication::removeTranslator(&catalogue_);
}

void InterfaceTexts::Speak(const std::string& locale) {
  const std::string nearest = App::NearestInterfaceLanguage(locale);
  const QString file = QStringLiteral(":/translations/lumidex_") + QString::fromStdString(nearest);
  // Loading tells of the change by itself; it needs to be installed only once, and then keeps its place.
  if (!catalogue_.load(file)) {
    LOG(ERROR) << "the catalogue of texts is missing: " << nearest;
  }
  if (!installed_) {
    installed_ = QCoreApplication::installTranslator(&catalogue_);
  }
}

}  // namespace Zenvora::Lumidex::Host
