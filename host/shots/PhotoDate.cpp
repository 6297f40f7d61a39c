#include <host/shots/PhotoDate.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace Zenvora::Lumidex::Host {

PhotoDate DateOf(const Strandel::PhotoFacts& facts, std::int64_t modifiedNs) {
  const PhotoDate stated[] = {{facts.original, DateSource::Original},
                              {facts.digitised, DateSource::Digitised},
                              {facts.xmp, DateSource::Xmp},
                              {facts.iptc, DateSource::Iptc}};
  for (const PhotoDate& date : stated) {
    if (date.taken.isValid()) {
      return date;
    }
  }
  const auto since1970 = std::chrono::floor<std::chrono::milliseconds>(std::chrono::nanoseconds(modifiedNs));
  return {QDateTime::fromMSecsSinceEpoch(since1970.count()), DateSource::FileTime};
}

bool IsBetterSource(DateSource one, DateSource other) {
  static constexpr std::array kOrder = {DateSource::Original, DateSource::Digitised, DateSource::Xmp,
                                        DateSource::Iptc,     DateSource::FileTime,  DateSource::None};
  return std::find(kOrder.begin(), kOrder.end(), one) < std::find(kOrder.begin(), kOrder.end(), other);
}

}  // namespace Zenvora::Lumidex::Host
