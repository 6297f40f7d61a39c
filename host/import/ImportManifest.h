#pragma once

#include <zenvora/core/ioPath.h>

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What is known of one copy. docs/formats/import-manifest.md has the grammar.
struct ManifestRecord {
  ioPath source;  ///< Absolute.
  ioPath file;    ///< Its name in the folder of copies.
  std::uint64_t size = 0;
  std::string sha256;
  std::int64_t sourceModifiedNs = 0;
  std::int64_t modifiedNs = 0;  ///< Of the copy: some file systems count in coarser steps.
};

/// One line, with its line feed; and back: no record for a line that is torn, or of something else. Pure.
QByteArray ManifestLine(const ManifestRecord& record, std::int64_t atSeconds);
std::optional<ManifestRecord> ParseManifestLine(const QByteArray& line);

/// The hidden folder in a folder of copies that holds the list of them, and copies until they are verified.
ioPath ImportFolder(const ioPath& copies);

/// Why that folder is not worked with: it, or something of ours in it, is a link, through which an import
/// would write to files elsewhere. One sentence; empty: nothing is wrong.
std::string FindLinkFault(const ioPath& copies);

/// True while an import is at work in the folder of copies, in whatever process.
bool IsImportAtWork(const ioPath& copies);

/// What the names of copies begin with that are not compared yet.
constexpr char kPartStart[] = "part-";

/// The list of the copies in one folder, by the names that they got. A kill at any moment leaves all records
/// but the last ones readable.
class ImportManifest {
 public:
  /// What the list says now; empty when there is none, it cannot be read, or it is a link.
  static std::vector<ManifestRecord> Read(const ioPath& copies);

  /// Opens the list of the folder to add to it; makes it when missing. Links are not followed. Throws
  /// `HostError`.
  explicit ImportManifest(const ioPath& copies);
  ~ImportManifest();
  ImportManifest(const ImportManifest&) = delete;
  ImportManifest& operator=(const ImportManifest&) = delete;

  /// Adds records, safe on the disk when this returns. Throws `HostError`, and from then on always.
  void Append(const std::vector<ManifestRecord>& records);

 private:
  class Stream;
  std::unique_ptr<Stream> stream_;
};

}  // namespace Zenvora::Lumidex::Host
