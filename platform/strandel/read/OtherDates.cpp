#include "OtherDates.h"

#include <zenvora/strandel/DateText.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint16_t kApplicationRecord = 2;

QDateTime DateIn(const std::string& text) {
  const auto parsed = DateText::Parse(text);
  if (!parsed || !parsed->HasDay()) {
    return QDateTime();
  }
  return parsed->HasTime() ? ParseExifDateTime(text, std::string())
                           : CameraTime(parsed->Value().date(), QTime(0, 0));
}

}  // namespace

QDateTime XmpDate(const Exiv2::XmpData& xmp) {
  static constexpr std::array<std::string_view, 4> kKeys = {
      "Xmp.exif.DateTimeOriginal", "Xmp.photoshop.DateCreated", "Xmp.exif.DateTimeDigitized",
      "Xmp.xmp.CreateDate"};
  for (const std::string_view key : kKeys) {
    const auto found = std::find_if(xmp.begin(), xmp.end(),
                                    [key](const Exiv2::Xmpdatum& datum) { return datum.key() == key; });
    const QDateTime date = found == xmp.end() ? QDateTime() : DateIn(found->toString());
    if (date.isValid()) {
      return date;
    }
  }
  return QDateTime();
}

QDateTime IptcDate(const Exiv2::IptcData& iptc) {
  struct Pair {
    std::uint16_t day, time;
  };
  for (const Pair& numbers : {Pair{55, 60}, Pair{62, 63}}) {
    const QDate day = IptcDay(IptcText(iptc, numbers.day, Exiv2::date, kIptcDay));
    const QTime time = IptcTime(IptcText(iptc, numbers.time, Exiv2::time, kIptcTime));
    if (day.isValid()) {
      return CameraTime(day, time.isValid() ? time : QTime(0, 0));
    }
  }
  return QDateTime();
}

std::string IptcText(const Exiv2::IptcData& iptc, std::uint16_t number, Exiv2::TypeId type,
                     std::size_t size) {
  const auto found = iptc.findId(number, kApplicationRecord);
  if (found == iptc.end() || found->typeId() != type || found->size() != static_cast<long>(size)) {
    return std::string();
  }
  std::string text(size, '\0');
  found->copy(reinterpret_cast<Exiv2::byte*>(text.data()), Exiv2::littleEndian);
  return text;
}

QDate IptcDay(const std::string& text) {
  return QDate::fromString(QString::fromStdString(text), QStringLiteral("yyyyMMdd"));
}

QTime IptcTime(const std::string& text) {
  constexpr std::size_t kWithoutZone = 6;
  return QTime::fromString(QString::fromStdString(text.substr(0, kWithoutZone)), QStringLiteral("hhmmss"));
}

}  // namespace Zenvora::Strandel
