#include <host/base/LookAlikes.h>
#include <host/search/PhotoSearch.h>

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
