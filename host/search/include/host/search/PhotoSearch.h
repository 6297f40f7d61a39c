#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/search/TagDictionary.h>

#include <QDate>
#include <QString>

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A part of the earth between two parallels and two meridians, in degrees, borders included. Where `west` is
/// greater than `east` it runs over the date line.
struct PlaceBox {
  double south = -90;
  double west = -180;
  double north = 90;
  double east = 180;

  bool Holds(const PhotoPosition& position) const;
};

/// What photos are looked for; all of it must fit, and what is not set fits all.
struct PhotoFilter {
  /// First and last day, both included; a null date is open. By the camera's own clock, which knows no zone.
  std::optional<std::pair<QDate, QDate>> dates;
  QString camera;  ///< Part of the model's name.
  std::optional<PlaceBox> place;
  std::vector<TagMeaning> tags;
  std::vector<QString> texts;  ///< Parts of the path, of the camera's or of a tag's name.
};

using TagsOfPhotos = std::unordered_map<std::string, std::vector<Tag>>;

/// The photos that fit, in their order. Texts are compared by `LookAlikeForm`, names of tags in the language
/// `locale`. A photo without a date, camera or place fits no filter of these. Pure.
std::vector<const PhotoRecord*> FindPhotos(const std::vector<PhotoRecord>& photos, const TagsOfPhotos& tags,
                                           const PhotoFilter& filter, const std::string& locale);

/// Reads "SOUTH,WEST,NORTH,EAST" in degrees. None, with the fault in English to be
/// put behind "needs", when it is something else. Pure.
std::optional<PlaceBox> ReadPlaceBox(const QString& text, std::string& fault);

}  // namespace Zenvora::Lumidex::Host
