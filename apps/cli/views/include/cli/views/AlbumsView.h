#pragma once

#include <host/catalogue/Catalogue.h>

#include <QDate>
#include <QString>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// One album as the command shows it.
struct AlbumRow {
  QString name;
  QDate firstDay;  ///< The album's date.
  QDate lastDay;   ///< Of its latest dated photo.
  bool accepted = false;
  /// Members that an accepted album of that name does not have yet.
  std::size_t notAccepted = 0;
  std::vector<const Host::PhotoRecord*> photos;
};

/// What accepting one album did.
struct AcceptedRow {
  QString name;
  Host::AcceptResult result;
};

/// All that one run shows.
struct AlbumsView {
  ioPath catalogue;
  std::string locale;
  std::size_t photos = 0;   ///< Looked at.
  std::size_t undated = 0;  ///< Of these: without a date.
  std::size_t leftOut = 0;  ///< Of these: not proposed, for only the times of their files date them.
  bool areStored = false;   ///< The rows are the accepted albums, not proposals.
  bool withMembers = false;
  std::vector<AlbumRow> rows;  ///< By first day, then name.
  std::vector<AcceptedRow> accepted;
  bool canBeUndone = false;  ///< What was accepted.
  std::optional<ioPath> report;
  int missingPictures = 0;
  /// Why holidays are missing, for a person.
  std::optional<std::string> calendarFault;
};

/// docs/formats/json-output.md, lumidex.albums.
std::string AlbumsDocument(const AlbumsView& view);
std::string AlbumsText(const AlbumsView& view);

}  // namespace Zenvora::Lumidex::Cli
