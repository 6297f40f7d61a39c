#pragma once

#include "MetadataPlan.h"

#include <zenvora/strandel/TiffDirectories.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Strandel {

/// Changes single fields of a TIFF structure, be it a file or an EXIF block, and moves nothing in it:
/// pictures, makers' notes and whatever else is found by its place stay where they are. A value that fits
/// takes the place of the old one; a longer one, and a directory that needs one entry more, go behind the
/// end.
///
/// Functions throw `EditRefusal` where the structure makes no sense.
class TiffEdit {
 public:
  explicit TiffEdit(std::string bytes);
  /// A structure without any field.
  static std::string Empty();

  void Apply(const std::vector<ExifChange>& changes);
  const std::string& Bytes() const { return bytes_; }

  /// True when the first directory has entries.
  bool HasFields() const { return Find(ExifDirectory::Image)->count > 0; }

  /// Where in the structure the value of a field of the first directory stands; nothing when there is none or
  /// it stands nowhere.
  std::optional<ByteRange> ValueOf(std::uint16_t tag) const;

 private:
  /// Of the bytes as they are now.
  TiffStructure Structure() const;
  void PutNumber(std::uint64_t at, std::size_t size, std::uint32_t value);
  std::size_t Append(const std::string& bytes);

  TiffDirectory DirectoryAt(std::optional<std::uint64_t> place) const;
  std::optional<TiffDirectory> Find(ExifDirectory directory) const;
  std::optional<TiffEntry> FindEntry(ExifDirectory directory, std::uint16_t tag) const;
  std::optional<ByteRange> ValueOf(const TiffEntry& entry) const;

  std::uint64_t PointerTo(ExifDirectory directory) const;
  std::string EmptyEntry(std::uint16_t tag) const;
  unsigned TagOf(const std::string& entry) const;
  void MakeExifDirectory();
  void MakeEntries(ExifDirectory directory, std::vector<std::uint16_t> tags);
  void Apply(const ExifChange& change);
  TiffEntry Entry(ExifDirectory directory, std::uint16_t tag) const;
  void PutNumberOf(std::uint16_t type, std::size_t size, std::uint64_t entry, std::uint32_t value);
  void PutRatio(std::uint64_t entry, std::uint32_t value);
  void PutBytes(std::uint16_t type, const TiffEntry& entry, const std::string& text);
  void Remove(ExifDirectory directory, std::uint16_t tag);

  std::string bytes_;
  bool bigEndian_ = false;
};

}  // namespace Zenvora::Strandel
