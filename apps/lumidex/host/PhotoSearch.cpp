#include <LumidexUtil/SearchHelper.h>
#include <host/LookAlikes.h>
#include <host/PhotoSearch.h>

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr double kQuarterTurn = 90;
constexpr double kHalfTurn = 180;

bool FitsDates(const PhotoRecord& photo, const std::pair<QDate, QDate>& dates) {
  const QDate day = photo.taken.date();
  return photo.taken.isValid() && (dates.first.isNull() || day >= dates.first) &&
         (dates.second.isNull() || day <= dates.second);
}

/// One search, with the forms of what is looked for.
class Search {
 public:
  Search(const TagsOfPhotos& tags, const PhotoFilter& filter, const std::string& locale)
      : tags_(tags), filter_(filter), locale_(locale), camera_(LookAlikeForm(filter.camera)) {
    for (const QString& text : filter.texts) {
      texts_.push_back(LookAlikeForm(text));
    }
  }

  bool Fits(const PhotoRecord& photo) const {
    return (!filter_.dates || FitsDates(photo, *filter_.dates)) &&
           (camera_.isEmpty() || LookAlikeForm(photo.camera).contains(camera_)) &&
           (!filter_.place || (photo.position && filter_.place->Holds(*photo.position))) && FitsTags(photo) &&
           FitsTexts(photo);
  }

 private:
  const std::vector<Tag>& TagsOf(const PhotoRecord& photo) const {
    static const std::vector<Tag> none;
    const auto tags = tags_.find(photo.id.toStdString());
    return tags == tags_.end() ? none : tags->second;
  }

  bool FitsTags(const PhotoRecord& photo) const {
    if (filter_.tags.empty()) {
      return true;
    }
    const std::vector<Tag>& own = TagsOf(photo);
    return std::all_of(filter_.tags.begin(), filter_.tags.end(), [&own](const TagMeaning& wanted) {
      return std::any_of(own.begin(), own.end(), [&wanted](const Tag& tag) { return wanted.Includes(tag); });
    });
  }

  bool FitsTexts(const PhotoRecord& photo) const {
    if (texts_.empty()) {
      return true;
    }
    QStringList fields = {LookAlikeForm(photo.path.qstring()), LookAlikeForm(photo.camera)};
    for (const Tag& tag : TagsOf(photo)) {
      fields += LookAlikeForm(TagDictionary::Shipped().NameOf(tag, locale_));
    }
    return std::all_of(texts_.begin(), texts_.end(), [&fields](const QString& text) {
      return std::any_of(fields.begin(), fields.end(),
                         [&text](const QString& field) { return field.contains(text); });
    });
  }

  const TagsOfPhotos& tags_;
  const PhotoFilter& filter_;
  const std::string& locale_;
  const QString camera_;
  std::vector<QString> texts_;
};

/// The latest year up to that of `today` that ends in these two digits.
int FullYear(int shortYear, const QDate& today) {
  constexpr int kCentury = 100;
  const int year = today.year() - today.year() % kCentury + shortYear;
  return year <= today.year() ? year : year - kCentury;
}

/// Reads dates in the short form of a language: its order and its separator, days and months of one or two
/// digits, the year of two or four.
class ShortDates {
 public:
  ShortDates(const std::string& locale, const QDate& today) : today_(today) {
    const QString format = QLocale(QString::fromStdString(locale)).dateFormat(QLocale::ShortFormat);
    for (const QChar letter : format) {
      if (!letter.isLetter()) {
        separator_ = letter;
      } else if (!order_.contains(letter)) {
        order_ += letter;
      }
    }
  }

  QDate Read(const QString& text) const {
    const QStringList parts = text.trimmed().split(separator_);
    if (parts.size() != 3 || order_.size() != 3) {
      return {};
    }
    int year = 0;
    int month = 0;
    int day = 0;
    for (int i = 0; i < parts.size(); ++i) {
      const QString& part = parts[i];
      const bool isYear = order_[i] == QLatin1Char('y');
      const bool areDigits = std::all_of(part.begin(), part.end(), [](QChar digit) {
        return digit >= QLatin1Char('0') && digit <= QLatin1Char('9');
      });
      if (!areDigits || part.isEmpty() || (isYear ? part.size() != 2 && part.size() != 4 : part.size() > 2)) {
        return {};
      }
      if (isYear) {
        year = part.size() == 2 ? FullYear(part.toInt(), today_) : part.toInt();
      } else {
        (order_[i] == QLatin1Char('M') ? month : day) = part.toInt();
      }
    }
    return {year, month, day};
  }

 private:
  const QDate today_;
  QString order_;
  QChar separator_;
};

/// The text with one of two dates left out.
bool IsHalfOpen(const QString& text, const std::pair<QDate, QDate>& dates) {
  const QStringList parts = text.split(SearchHelper::DATES_SEPARATOR);
  return parts.size() == 2 && (dates.first.isValid() != dates.second.isValid()) &&
         (dates.first.isValid() ? parts.last() : parts.first()).trimmed().isEmpty();
}

/// Nothing but a date, or nothing. The library would take "2015-03-01..2015-03-09" for its first day.
bool IsPlainDate(const QString& part) {
  constexpr int kLength = 10;
  constexpr std::array kSeparators = {4, 7};
  const QString date = part.trimmed();
  for (int i = 0; i < date.size(); ++i) {
    const bool isDigit = date[i] >= QLatin1Char('0') && date[i] <= QLatin1Char('9');
    if (isDigit == (i == kSeparators[0] || i == kSeparators[1])) {
      return false;
    }
  }
  return date.isEmpty() || date.size() == kLength;
}

/// The form that is stored; null dates for every other text.
std::pair<QDate, QDate> StoredDates(const QString& text) {
  const QStringList parts = text.split(SearchHelper::DATES_SEPARATOR);
  return std::all_of(parts.begin(), parts.end(), IsPlainDate) ? SearchHelper::StrToDates(text)
                                                              : std::pair<QDate, QDate>();
}

/// The form that is shown; null dates for what is none.
std::pair<QDate, QDate> ShownDates(const QString& text, const std::string& locale, const QDate& today) {
  const ShortDates reader(locale, today);
  const QStringList parts = text.split(SearchHelper::DATES_SEPARATOR);
  return {reader.Read(parts.first()), reader.Read(parts.last())};
}

bool IsWhole(const std::pair<QDate, QDate>& dates) {
  return dates.first.isValid() && dates.second.isValid();
}

}  // namespace

bool PlaceBox::Holds(const PhotoPosition& position) const {
  const auto isBetween = [this](double longitude) {
    return west <= east ? longitude >= west && longitude <= east : longitude >= west || longitude <= east;
  };
  // The date line has two names.
  const double longitude = position.longitude;
  const bool isWithin = isBetween(longitude) || (std::abs(longitude) == kHalfTurn && isBetween(-longitude));
  return isWithin && position.latitude >= south && position.latitude <= north;
}

std::vector<const PhotoRecord*> FindPhotos(const std::vector<PhotoRecord>& photos, const TagsOfPhotos& tags,
                                           const PhotoFilter& filter, const std::string& locale) {
  const Search search(tags, filter, locale);
  std::vector<const PhotoRecord*> found;
  for (const PhotoRecord& photo : photos) {
    if (search.Fits(photo)) {
      found.push_back(&photo);
    }
  }
  return found;
}

std::optional<std::pair<QDate, QDate>> ReadDates(const QString& text, const std::string& locale,
                                                 const QDate& today, std::string& fault) {
  std::pair<QDate, QDate> dates = StoredDates(text);
  if (!IsWhole(dates) && !IsHalfOpen(text, dates)) {
    dates = ShownDates(text, locale, today);
  }
  // A filter has two dates at most: what stands between them is not to be passed over.
  if (text.count(SearchHelper::DATES_SEPARATOR) > 1 || (!IsWhole(dates) && !IsHalfOpen(text, dates))) {
    const QDate example(2015, 3, 1);
    const QLocale spoken(QString::fromStdString(locale));
    fault = "dates such as \"2015-03-01 - 2015-03-09\", 2015-03-01 or " +
            spoken.toString(example, QLocale::ShortFormat).toStdString() + ", not \"" + text.toStdString() +
            '"';
    return std::nullopt;
  }
  if (IsWhole(dates) && dates.first > dates.second) {
    fault = "the first day before the last one, not \"" + text.toStdString() + '"';
    return std::nullopt;
  }
  return dates;
}

std::optional<PlaceBox> ReadPlaceBox(const QString& text, std::string& fault) {
  const QStringList parts = text.split(QLatin1Char(','));
  std::array<double, 4> numbers{};
  bool isSound = parts.size() == static_cast<int>(numbers.size());
  for (std::size_t i = 0; isSound && i < numbers.size(); ++i) {
    numbers[i] = QLocale::c().toDouble(parts[static_cast<int>(i)].trimmed(), &isSound);
    const double most = i % 2 == 0 ? kQuarterTurn : kHalfTurn;
    isSound = isSound && numbers[i] >= -most && numbers[i] <= most;
  }
  const PlaceBox box{numbers[0], numbers[1], numbers[2], numbers[3]};
  if (!isSound || box.south > box.north) {
    fault = "SOUTH,WEST,NORTH,EAST in degrees, such as 48.8,2.2,48.9,2.5, not \"" + text.toStdString() + '"';
    return std::nullopt;
  }
  return box;
}

}  // namespace Zenvora::Lumidex::Host
