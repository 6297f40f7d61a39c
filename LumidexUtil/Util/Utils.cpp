#include "GpsText.h"
#include "MonthWording.h"
#include "PluralForm.h"
#include "UtilsText.h"

#include <LumidexUtil/MetadataReaders.h>
#include <LumidexUtil/Rename.h>
#include <LumidexUtil/Wording.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/CallStack.h>
#include <zenvora/lumidex/FileAccessLockerGuard.h>
#include <zenvora/quillet/picture/ImageLoader.h>
#include <zenvora/strandel/MetadataSettings.h>
#include <zenvora/tavolin/FileDateTime.h>

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFont>

#include <chrono>
#include <exception>

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

using Proc::IImageMetadata;
using MetadataPointer = boost::intrusive_ptr<IImageMetadata>;

// Whoever searches logs for positions that make no sense looks for this place: it stays when the source
// moves.
constexpr int LINE_OF_BAD_POSITION = 304;

Core::Property GpsProperty(const MetadataPointer& metadata, const std::string& tag) {
  return metadata->GetProperty(IImageMetadata::EXIF, IImageMetadata::BLOCK_GPS, tag);
}

double Coordinate(const Core::Property& value, const Core::Property& reference) {
  return DegreesOf(value[IImageMetadata::TEXT_VALUE].GetString(),
                   reference[IImageMetadata::TEXT_VALUE].GetString());
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

MetadataPointer GetMetadata(const ioPath& file) {
  Strandel::MetadataSettings settings;
  settings.CreateMetadata(file, nullptr);
  return settings.GetMetadata();
}

QString GetCameraModel(const MetadataPointer& metadata) {
  const Core::Property model =
      metadata->GetProperty(IImageMetadata::EXIF, IImageMetadata::BLOCK_IMAGE, "Model");
  return model.IsEmpty() ? QString() : QString::fromStdString(model[IImageMetadata::TEXT_VALUE].GetString());
}

Quillet::Geo::GPSData GetGPSData(const MetadataPointer& metadata) {
  using Quillet::Geo::GPSData;
  const Core::Property latitude = GpsProperty(metadata, IImageMetadata::TAG_LATITUDE);
  const Core::Property longitude = GpsProperty(metadata, IImageMetadata::TAG_LONGITUDE);
  const Core::Property latitudeReference = GpsProperty(metadata, "GPSLatitudeRef");
  const Core::Property longitudeReference = GpsProperty(metadata, "GPSLongitudeRef");
  try {
    return latitude.IsEmpty() || longitude.IsEmpty()
               ? GPSData::Invalid()
               : GPSData(Coordinate(latitude, latitudeReference), Coordinate(longitude, longitudeReference));
  } catch (const std::exception& error) {
    google::LogMessage(__FILE__, LINE_OF_BAD_POSITION, google::GLOG_ERROR).stream() << error.what();
    return GPSData::Invalid();
  }
}

QDateTime GetFileDateTime(const ioPath& file) {
  return Tavolin::GetFileDateTime(GetMetadata(file));
}

Conf::FrameInfo GetFrameInfo(const ioPath& file) {
  return Quillet::ImageLoader::GetFrameInfo(file, GetMetadata(file));
}

QFontMetrics GetFontMetrics(int pixelSize) {
  QFont font;
  if (pixelSize > 0) {
    font.setPixelSize(pixelSize);
  }
  return QFontMetrics(font);
}

}  // namespace Zenvora::Util
