#include "PlanCheck.h"

#include "EditRefusal.h"
#include "MetadataFields.h"

#include <algorithm>
#include <cstring>

namespace Zenvora::Strandel {

namespace {

enum Tag : std::uint16_t {
  kXmpPacket = 0x02BC,
  kIptc = 0x83BB,
  kImageResources = 0x8649,
  kExifDirectory = 0x8769,
};

[[noreturn]] void RefuseResult(const std::string& key) {
  throw EditRefusal("its metadata cannot be changed without losing data (" + key + ")");
}

/// Compares two lists of metadata, without the data that `isPlanned` knows.
template <class Data, class IsPlanned>
void CheckSame(const Data& before, const Data& after, const IsPlanned& isPlanned) {
  auto old = before.begin();
  auto now = after.begin();
  const auto skip = [&isPlanned](auto& at, const auto& end) {
    while (at != end && isPlanned(*at)) {
      ++at;
    }
  };
  for (;; ++old, ++now) {
    skip(old, before.end());
    skip(now, after.end());
    if (old == before.end() || now == after.end()) {
      break;
    }
    if (old->key() != now->key() || old->typeId() != now->typeId() || BytesOf(*old) != BytesOf(*now)) {
      RefuseResult(old->key());
    }
  }
  if (old != before.end() || now != after.end()) {
    RefuseResult(old != before.end() ? old->key() : now->key());
  }
}

bool IsPlanned(const Exiv2::Exifdatum& datum, const MetadataPlan& plan) {
  if (datum.groupName() == GroupOf(ExifDirectory::Image)) {
    const std::uint16_t tag = datum.tag();
    // They hold, or lead to, what is looked at by itself.
    if (tag == kExifDirectory || (tag == kXmpPacket && !plan.xmp.empty()) ||
        ((tag == kIptc || tag == kImageResources) && !plan.iptc.empty())) {
      return true;
    }
  }
  return std::any_of(plan.exif.begin(), plan.exif.end(), [&datum](const ExifChange& change) {
    return change.tag == datum.tag() && datum.groupName() == GroupOf(change.directory);
  });
}

bool IsDone(const Exiv2::ExifData& exif, const ExifChange& change) {
  const Exiv2::Exifdatum* const datum = Find(exif, change.directory, change.tag);
  if (datum == nullptr || change.kind == ExifChange::Kind::Remove) {
    return datum == nullptr && change.kind == ExifChange::Kind::Remove;
  }
  const auto isNumber = [&](Exiv2::TypeId type) {
    return datum->typeId() == type && datum->count() == 1 &&
           static_cast<std::uint32_t>(datum->toLong()) == change.number;
  };
  switch (change.kind) {
    case ExifChange::Kind::Number:
      return isNumber(Exiv2::unsignedShort);
    case ExifChange::Kind::Long:
      return isNumber(Exiv2::unsignedLong);
    case ExifChange::Kind::WholeRatio:
      return isNumber(Exiv2::unsignedRational);
    case ExifChange::Kind::Bytes:
      return BytesOf(*datum) == change.text;
    default:
      return std::strcmp(TextOf(*datum).c_str(), change.text.c_str()) == 0;
  }
}

bool IsDone(const Exiv2::IptcData& iptc, const IptcChange& change) {
  const auto found = iptc.findId(change.number, change.record);
  return found != iptc.end() && BytesOf(*found) == change.after;
}

bool IsDone(const Exiv2::XmpData& xmp, const XmpChange& change) {
  const auto found = xmp.findKey(Exiv2::XmpKey(change.key));
  return found != xmp.end() && found->toString() == change.after;
}

template <class Data, class Changes>
void CheckDone(const Data& data, const Changes& changes) {
  if (!std::all_of(changes.begin(), changes.end(),
                   [&data](const auto& change) { return IsDone(data, change); })) {
    throw EditRefusal("its metadata would be wrong afterwards");
  }
}

}  // namespace

void CheckAgainstPlan(const Exiv2::Image& before, const Exiv2::Image& after, const MetadataPlan& plan) {
  CheckSame(before.exifData(), after.exifData(),
            [&plan](const Exiv2::Exifdatum& datum) { return IsPlanned(datum, plan); });
  CheckXmpAgainstPlan(before.xmpData(), after.xmpData(), plan);
  CheckSame(before.iptcData(), after.iptcData(), [&plan](const Exiv2::Iptcdatum& datum) {
    return std::any_of(plan.iptc.begin(), plan.iptc.end(), [&datum](const IptcChange& change) {
      return change.record == datum.record() && change.number == datum.tag();
    });
  });
  CheckDone(after.exifData(), plan.exif);
  CheckDone(after.iptcData(), plan.iptc);
}

void CheckXmpAgainstPlan(const Exiv2::XmpData& before, const Exiv2::XmpData& after,
                         const MetadataPlan& plan) {
  CheckSame(before, after, [&plan](const Exiv2::Xmpdatum& datum) {
    return std::any_of(plan.xmp.begin(), plan.xmp.end(),
                       [&datum](const XmpChange& change) { return change.key == datum.key(); });
  });
  CheckDone(after, plan.xmp);
}

}  // namespace Zenvora::Strandel
