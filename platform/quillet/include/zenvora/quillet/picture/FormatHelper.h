#pragma once

#include <zenvora/quillet/Export.h>

#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Quillet {

/// What is known of a picture format.
struct FormatRecord {
  /// It can be read but not written: results are saved in another format.
  bool readOnly = false;
  /// The endings of its files, in lower case and without the dot; the usual one first.
  std::vector<std::string> extensions;
  /// Its files are photos, which a catalogue takes in.
  bool photo = false;
};

/// The table of picture formats (docs/formats/pictures.md). It goes by the names of files and never looks
/// into them. What can be written differs between systems: it is what the packages of this program bring
/// along. Thread-safety: all of it from any thread; nothing blocks.
class ZENVORA_QUILLET_EXPORT FormatHelper {
 public:
  /// The name of the format and what is known of it.
  using Entry = std::pair<std::string, FormatRecord>;

  /// The name under which the raw files of all cameras go.
  static const std::string FORMAT_RAW;

  /// The format of files that end in `extension`, given with or without its dot, in UTF-8. `matchCase`:
  /// whether only the lower-case spelling of the table counts, as for names that programs make up; people
  /// and cameras write either. An unknown or empty extension gives an entry with an empty name that is not
  /// read-only. The reference stays valid.
  static const Entry& GetFormatDescriptionForExtension(const std::string& extension, bool matchCase);

  /// All formats that are known.
  static const std::vector<Entry>& GetFormats();
};

}  // namespace Zenvora::Quillet
