#include "MetadataPlan.h"

#include "EditRefusal.h"
#include "MetadataFields.h"
#include "OtherDates.h"

#include <zenvora/strandel/DateText.h>
#include <zenvora/strandel/EditRules.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace Zenvora::Strandel {

namespace {

enum Tag : std::uint16_t {
  kNewSubfileType = 0x00FE,
  kImageWidth = 0x0100,
  kImageLength = 0x0101,
  kOrientation = 0x0112,
  kPageNumber = 0x0129,
  kDateTime = 0x0132,
  kThumbnailOffset = 0x0201,
  kDateTimeOriginal = 0x9003,
  kDateTimeDigitised = 0x9004,
  kSubSeconds = 0x9290,
  kSubSecondsOriginal = 0x9291,
  kSubSecondsDigitised = 0x9292,
};

/// The three dates of which all others are copies.
enum Source : std::size_t { kOriginal, kDigitised, kChanged, kSources };

struct ExifDate {
  Source source;
  ExifDirectory directory;
  std::uint16_t tag;
  std::uint16_t subSeconds;  ///< 0 for a copy: it has none, and is not made where it is missing.
};
constexpr std::array kExifDates = {
    ExifDate{kOriginal, ExifDirectory::Photo, kDateTimeOriginal, kSubSecondsOriginal},
    ExifDate{kDigitised, ExifDirectory::Photo, kDateTimeDigitised, kSubSecondsDigitised},
    ExifDate{kChanged, ExifDirectory::Image, kDateTime, kSubSeconds},
    ExifDate{kOriginal, ExifDirectory::Image, kDateTimeOriginal, 0},
    ExifDate{kDigitised, ExifDirectory::Image, kDateTimeDigitised, 0},
    ExifDate{kChanged, ExifDirectory::Thumbnail, kDateTime, 0},
};

struct XmpDate {
  Source source;
  const char* space;
  const char* name;
};
constexpr std::array kXmpDates = {
    XmpDate{kOriginal, "exif", "DateTimeOriginal"},
    XmpDate{kOriginal, "photoshop", "DateCreated"},
    XmpDate{kDigitised, "exif", "DateTimeDigitized"},
    XmpDate{kDigitised, "xmp", "CreateDate"},
    XmpDate{kChanged, "tiff", "DateTime"},
    XmpDate{kChanged, "xmp", "ModifyDate"},
};

struct IptcSets {
  Source source;
  std::uint16_t date;
  std::uint16_t time;
};
constexpr std::uint16_t kIptcRecord = 2;
constexpr std::array kIptcDates = {IptcSets{kOriginal, 55, 60}, IptcSets{kDigitised, 62, 63}};

int NumberOf(const Exiv2::Exifdatum* datum) {
  return datum == nullptr || datum->count() != 1 ? 0 : static_cast<int>(datum->toLong());
}

/// True when what a TIFF file says of its second directory makes it a picture in its own right: as large as
/// the first one, or a page by its number or its kind.
bool IsPage(const Exiv2::ExifData& exif, int kind) {
  constexpr int kPageOfSeveral = 2;
  if ((kind & kPageOfSeveral) != 0 || Find(exif, ExifDirectory::Thumbnail, kPageNumber) != nullptr) {
    return true;
  }
  const auto isAsLarge = [&exif](std::uint16_t tag) {
    const int own = NumberOf(Find(exif, ExifDirectory::Thumbnail, tag));
    return own > 0 && own >= NumberOf(Find(exif, ExifDirectory::Image, tag));
  };
  return isAsLarge(kImageWidth) && isAsLarge(kImageLength);
}

bool HasThumbnail(const Exiv2::ExifData& exif, bool isTiff) {
  const int kind = NumberOf(Find(exif, ExifDirectory::Thumbnail, kNewSubfileType));
  if (isTiff && IsPage(exif, kind)) {
    return false;
  }
  return Find(exif, ExifDirectory::Thumbnail, kThumbnailOffset) != nullptr || kind % 2 == 1;
}

std::string Formatted(const char* format, int a, int b, int c) {
  char text[32];
  const int length = std::snprintf(text, sizeof text, format, a, b, c);
  return {text, static_cast<std::size_t>(length)};
}

std::string ExifText(const QDateTime& date) {
  const QDate day = date.date();
  const QTime time = date.time();
  return Formatted("%04d:%02d:%02d ", day.year(), day.month(), day.day()) +
         Formatted("%02d:%02d:%02d", time.hour(), time.minute(), time.second()) + '\0';
}

class Planner {
 public:
  Planner(const Exiv2::ExifData& exif, const Exiv2::XmpData& xmp, const Exiv2::IptcData& iptc,
          const PhotoEdit& edit, bool isTiff)
      : exif_(exif), xmp_(xmp), iptc_(iptc), edit_(edit), hasThumbnail_(HasThumbnail(exif_, isTiff)) {}

  MetadataPlan Plan() {
    if (edit_.turn != Turn::None) {
      PlanTurn();
    }
    if (edit_.date.isValid()) {
      date_ = QDateTime(edit_.date.date(), edit_.date.time(), Qt::UTC);
      PlanCopies();
    } else if (edit_.shift.count() != 0) {
      PlanCopies();
      if (!anyDate_) {
        throw EditRefusal("it has no date to shift");
      }
    }
    return plan_;
  }

  MetadataPlan PlanOfSidecar() {
    if (edit_.turn != Turn::None) {
      // Programs that develop raw files note turns of their own there: it need not say what the photo says.
      AddXmp("tiff", "Orientation", [this](const std::string& text) {
        return std::to_string(TurnedOrientation(std::atoi(text.c_str()), edit_.turn));
      });
    }
    if (edit_.date.isValid() || edit_.shift.count() != 0) {
      date_ = edit_.date.isValid() ? QDateTime(edit_.date.date(), edit_.date.time(), Qt::UTC) : QDateTime();
      PlanCopies();
    }
    plan_.exif.clear();
    return plan_;
  }

 private:
  void PlanTurn() {
    const int turned =
        TurnedOrientation(NumberOf(Find(exif_, ExifDirectory::Image, kOrientation)), edit_.turn);
    AddNumber(ExifDirectory::Image, turned);
    // It may count for the thumbnail instead of the photo's own; without it the photo's own counts for both.
    const Exiv2::Exifdatum* const own = Find(exif_, ExifDirectory::Thumbnail, kOrientation);
    if (own != nullptr && hasThumbnail_) {
      AddNumber(ExifDirectory::Thumbnail, TurnedOrientation(NumberOf(own), edit_.turn));
    }
    AddXmp("tiff", "Orientation", [turned](const std::string&) { return std::to_string(turned); });
  }

  void PlanCopies() {
    for (const ExifDate& field : kExifDates) {
      PlanExif(field);
    }
    for (const XmpDate& property : kXmpDates) {
      AddXmp(property.space, property.name,
             [this, &property](const std::string& text) { return ChangedXmp(text, property.source); });
    }
    for (const IptcSets& sets : kIptcDates) {
      PlanIptc(sets);
    }
  }

  void PlanExif(const ExifDate& field) {
    const Exiv2::Exifdatum* const datum = Find(exif_, field.directory, field.tag);
    const bool isThere = datum != nullptr && (field.directory != ExifDirectory::Thumbnail || hasThumbnail_);
    const std::string text = isThere ? TextOf(*datum) : std::string();
    const auto old = DateText::Parse(text);
    const bool isDate = old && old->HasTime();
    if (isDate && !before_[field.source].isValid()) {
      before_[field.source] = old->Value();
    }
    if (date_.isValid()) {
      if (isThere || field.subSeconds != 0) {
        AddText(field.directory, field.tag, ExifText(date_));
        PlanSubSeconds(field.subSeconds);
      }
    } else if (isDate) {
      AddText(field.directory, field.tag, old->With(Shifted(old->Value())));
    }
  }

  /// Those of the old date say nothing of the new one.
  void PlanSubSeconds(std::uint16_t tag) {
    if (tag == 0) {
      return;
    }
    const int ms = date_.time().msec();
    if (ms != 0) {
      AddText(ExifDirectory::Photo, tag, Formatted("%03d", ms, 0, 0) + '\0');
    } else if (Find(exif_, ExifDirectory::Photo, tag) != nullptr) {
      ExifChange change;
      change.directory = ExifDirectory::Photo;
      change.tag = tag;
      plan_.exif.push_back(change);
    }
  }

  std::string ChangedXmp(const std::string& text, Source source) {
    const auto old = DateText::Parse(text);
    if (!old) {
      return text;
    }
    const QDateTime& master = before_[source];
    if (date_.isValid()) {
      return old->WithFraction(old->HasZone() ? InItsZone(*old, master) : date_);
    }
    if (old->HasTime()) {
      return old->With(Shifted(old->Value()));
    }
    // A year or a day alone says nothing of a clock, but must not contradict the date that it is a part of.
    return master.isValid() && old->Agrees(master.date()) ? old->With(Shifted(master)) : text;
  }

  /// Some programs write the camera's time, others the same moment in UTC: what it is stays.
  QDateTime InItsZone(const DateText& old, const QDateTime& master) const {
    constexpr qint64 kQuarter = 15 * 60;
    constexpr qint64 kFarthest = 14 * 4 * kQuarter;
    const qint64 apart = master.isValid() ? master.secsTo(old.Value()) : 0;
    if (apart % kQuarter != 0 || std::abs(apart) > kFarthest) {
      return date_;
    }
    return Checked(ShiftedTime(date_, std::chrono::seconds(apart)));
  }

  template <class Change>
  void AddXmp(const char* space, const char* name, const Change& changed) {
    const std::string key = std::string("Xmp.") + space + '.' + name;
    for (const Exiv2::Xmpdatum& datum : xmp_) {
      if (datum.key() == key) {
        const std::string before = datum.toString();
        const std::string after = changed(before);
        if (after != before) {
          plan_.xmp.push_back({key, std::string(space) + ':' + name, before, after});
        }
        return;
      }
    }
  }

  void PlanIptc(const IptcSets& sets) {
    const std::string day = IptcText(iptc_, sets.date, Exiv2::date, kIptcDay);
    const std::string time = IptcText(iptc_, sets.time, Exiv2::time, kIptcTime);
    const QDate oldDay = IptcDay(day);
    const QTime oldTime = IptcTime(time);
    QDateTime changed = date_;
    const QDateTime& master = before_[sets.source];
    if (!date_.isValid() && oldDay.isValid() && oldTime.isValid()) {
      changed = Shifted(QDateTime(oldDay, oldTime, Qt::UTC));
    } else if (!date_.isValid() && oldDay.isValid() && master.isValid() && master.date() == oldDay) {
      changed = Shifted(master);
    }
    if (!changed.isValid()) {
      return;
    }
    if (oldDay.isValid()) {
      AddIptc(sets.date, day, changed.date().toString(QStringLiteral("yyyyMMdd")).toStdString());
    }
    if (oldTime.isValid()) {
      AddIptc(sets.time, time,
              changed.time().toString(QStringLiteral("hhmmss")).toStdString() + time.substr(6));
    }
  }

  void AddIptc(std::uint16_t number, const std::string& before, const std::string& after) {
    if (before != after) {
      plan_.iptc.push_back({kIptcRecord, number, before, after});
    }
  }

  void AddNumber(ExifDirectory directory, int number) {
    ExifChange change;
    change.directory = directory;
    change.tag = kOrientation;
    change.kind = ExifChange::Kind::Number;
    change.number = static_cast<std::uint32_t>(number);
    plan_.exif.push_back(change);
  }

  void AddText(ExifDirectory directory, std::uint16_t tag, const std::string& text) {
    ExifChange change;
    change.directory = directory;
    change.tag = tag;
    change.kind = ExifChange::Kind::Text;
    change.text = text;
    plan_.exif.push_back(change);
  }

  QDateTime Shifted(const QDateTime& date) {
    anyDate_ = true;
    return Checked(ShiftedTime(date, edit_.shift));
  }

  static QDateTime Checked(const QDateTime& date) {
    if (!date.isValid()) {
      throw EditRefusal("its year would not be 1 to 9999");
    }
    return date;
  }

  const Exiv2::ExifData& exif_;
  const Exiv2::XmpData& xmp_;
  const Exiv2::IptcData& iptc_;
  const PhotoEdit& edit_;
  const bool hasThumbnail_;
  QDateTime date_;  ///< Invalid: the dates are shifted.
  std::array<QDateTime, kSources> before_;
  bool anyDate_ = false;
  MetadataPlan plan_;
};

}  // namespace

MetadataPlan PlanEdit(const Exiv2::Image& photo, const PhotoEdit& edit, bool isTiff) {
  return Planner(photo.exifData(), photo.xmpData(), photo.iptcData(), edit, isTiff).Plan();
}

MetadataPlan PlanSidecarEdit(const Exiv2::ExifData& photo, const Exiv2::XmpData& sidecar,
                             const PhotoEdit& edit) {
  const Exiv2::IptcData none;
  return Planner(photo, sidecar, none, edit, false).PlanOfSidecar();
}

}  // namespace Zenvora::Strandel
