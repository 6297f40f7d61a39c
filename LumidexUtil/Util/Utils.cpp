#include "MonthWording.h"
#include "PluralForm.h"
#include "UtilsText.h"

#include <LumidexUtil/Rename.h>
#include <LumidexUtil/Wording.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/CallStack.h>
#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDateTime>

#include <chrono>

namespace Zenvora::Util {

namespace {

// A second: whoever just wrote or showed a file lets go of it within that, and a person still waits.
constexpr int RENAME_ATTEMPTS = 20;
constexpr std::chrono::milliseconds RENAME_PAUSE(50);

const std::string FORM_ONE = "One";
const std::string FORM_NOMINATIVE = "Nominative";
const std::string FORM_GENETIVE = "Genetive";
const std::string FORM_PLURAL = "Plural";

const std::string NOUN_DAY = QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "day");
const std::string NOUN_DAYS = QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "days");
const std::string TEXT_EXPIRED = QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Expired");
const std::string TEXT_NUMBER_AND_NOUN = QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "%1 %2");

// The keys that counting days makes up at run time, written out for the translation tools.
[[maybe_unused]] const std::string DAY_KEYS[] = {
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "One day"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Nominative day"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Genetive day"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Plural day"),
};

QString Translate(const std::string& text) {
  return TranslateUtils(text.c_str());
}

QString TranslateWithFallback(const std::string& key, const std::string& fallback) {
  QString translation = Translate(key);
  if (!fallback.empty() && translation == QString::fromStdString(key)) {
    return Translate(fallback);
  }
  return translation;
}

const std::string& FormWord(PluralForm form) {
  switch (form) {
    case PluralForm::One:
      return FORM_ONE;
    case PluralForm::Nominative:
      return FORM_NOMINATIVE;
    case PluralForm::Genetive:
      return FORM_GENETIVE;
    case PluralForm::Plural:
      break;
  }
  return FORM_PLURAL;
}

}  // namespace

ExceptionRename::~ExceptionRename() noexcept = default;

void Rename(Lumidex::IFileAccessLocker& locker, const ioPath& from, const ioPath& to) {
  if (from == to) {
    return;
  }
  const Lumidex::FileAccessLockerGuard guard(locker, from);
  int failures = 0;
  while (!from.rename(to)) {
    ++failures;
    App::SleepFor(RENAME_PAUSE);
    if (failures == RENAME_ATTEMPTS) {
      BOOST_THROW_EXCEPTION(ExceptionRename()
                            << TagFilename(from.utf8string())
                            << TagDescription("Cannot rename " + from.utf8string() + " to " + to.utf8string())
                            << TagCallStack(GetCallStack()));
    }
  }
  if (failures > 0) {
    VLOG(20) << "File renamed (" << failures << ") " << from.utf8string() << " to " << to.utf8string();
  }
}

QString GetCountString(const std::string& noun, const std::string& pluralFallback, int count) {
  const PluralForm form = PluralFormOf(count);
  // One thing has no plural to fall back to: the bare noun serves.
  return TranslateWithFallback(FormWord(form) + " " + noun, form == PluralForm::One ? noun : pluralFallback);
}

QString GetLocalizedNumberOfDays(int days) {
  if (days <= 0) {
    return Translate(TEXT_EXPIRED);
  }
  return Translate(TEXT_NUMBER_AND_NOUN)
      .arg(days, 0, 10, QLatin1Char(' '))
      .arg(GetCountString(NOUN_DAY, NOUN_DAYS, days), 0, QLatin1Char(' '));
}

int DaysToCurrent(const QString& dateTime) {
  const QDate date = QDateTime::fromString(dateTime, QStringLiteral("yyyy-MM-dd hh:mm:ss")).date();
  return static_cast<int>(date.daysTo(App::GetCurrentDateTime().date()));
}

QString GetDateIntervalString(const QDate& from, const QDate& to) {
  return WordDateInterval(QString::fromStdString(App::GetCurrentLocale()), from, to);
}

}  // namespace Zenvora::Util
