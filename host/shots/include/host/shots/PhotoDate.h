#pragma once

#include <host/catalogue/Catalogue.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <QDateTime>

#include <cstdint>

namespace Zenvora::Lumidex::Host {

/// The date that a photo goes by.
struct PhotoDate {
  QDateTime taken;  ///< As the camera's clock showed; of the file's time, by this computer's clock.
  DateSource source = DateSource::None;
};

/// The first that a photo has of: EXIF's original date, its digitised one, that of its XMP, that of its IPTC
/// data, the file's time (nanoseconds since 1970-01-01 UTC). Pure.
PhotoDate DateOf(const Strandel::PhotoFacts& facts, std::int64_t modifiedNs);

/// True when dates from there say more of when a photo was taken; the order is that of `DateOf`, with no date
/// last. Pure.
bool IsBetterSource(DateSource one, DateSource other);

}  // namespace Zenvora::Lumidex::Host
