#pragma once

#include <QString>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The parts of an album's name as people read them: what it is about, and when.
struct AlbumTitle {
  std::string title;     ///< First line of the name.
  std::string interval;  ///< The other lines, with ", " between them.
};

AlbumTitle TitleOf(const QString& name);

/// What `TitleOf` gives, the interval as the interface language writes it.
AlbumTitle ShownTitle(const QString& name);

/// "Christmas, December 2023" for the middle of a sentence: the interval as the interface language writes it
/// there.
std::string ShownName(const QString& name);

/// "Christmas, December 2023".
std::string OneLineName(const QString& name);

/// True when a user who wrote `wish` means that album: the one-line form, as it is or as it is shown, the
/// name itself, or its lines with " - " or the two characters \n between them. Composed and decomposed
/// accents are alike; upper and lower case are not.
bool MeansAlbum(const std::string& wish, const QString& name);

/// Which of the albums a user named.
struct AlbumChoice {
  /// Places in the list, each once, in its order.
  std::vector<std::size_t> chosen;
  /// The first wish that fits no album or several; empty: none.
  std::string refused;
  /// The one-line names that the refused wish may have meant: those that it fits, else those with the same
  /// words in them, else all.
  std::vector<std::string> candidates;
  bool isAmbiguous = false;
};

/// `wishes`: names, or "all" for every album.
AlbumChoice ChooseAlbums(const std::vector<std::string>& wishes, const std::vector<QString>& names);

}  // namespace Zenvora::Lumidex::Cli
