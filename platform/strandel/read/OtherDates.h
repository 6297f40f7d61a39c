#pragma once

#include <exiv2/exiv2.hpp>

#include <QDateTime>

#include <cstddef>
#include <cstdint>
#include <string>

namespace Zenvora::Strandel {

/// When the photo was taken, else digitised, as its XMP says: exif:DateTimeOriginal, photoshop:DateCreated,
/// exif:DateTimeDigitized, xmp:CreateDate; as written, whatever the time zone behind it. A day alone is its
/// midnight. Invalid when it does not say.
QDateTime XmpDate(const Exiv2::XmpData& xmp);

/// The same of its IPTC data: the day and time of creation (2:55, 2:60), else of digitisation (2:62, 2:63).
QDateTime IptcDate(const Exiv2::IptcData& iptc);

/// The bytes of a data set of the application record when it has that type and size, else empty.
std::string IptcText(const Exiv2::IptcData& iptc, std::uint16_t number, Exiv2::TypeId type, std::size_t size);

/// As much as IPTC writes of a day, "20210501", and of a time, "102030+0200".
constexpr std::size_t kIptcDay = 8;
constexpr std::size_t kIptcTime = 11;
QDate IptcDay(const std::string& text);
QTime IptcTime(const std::string& text);

}  // namespace Zenvora::Strandel
