#pragma once

#include "MetadataPlan.h"

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
  struct Range {
    std::size_t at;
    std::size_t size;
  };
  std::optional<Range> ValueOf(std::uint16_t tag) const;

 private:
  struct Table {
    std::size_t at;     ///< Of its number of entries.
    std::size_t count;  ///< Of them.
    std::size_t Entry(std::size_t index) const { return at + 2 + index * 12; }
    std::size_t End() const { return Entry(count); }
  };

  std::uint32_t Number(std::size_t at, std::size_t size) const;
  void PutNumber(std::size_t at, std::size_t size, std::uint32_t value);
  std::size_t Append(const std::string& bytes);

  Table TableAt(std::size_t at) const;
  std::optional<Table> Find(ExifDirectory directory) const;
  std::optional<std::size_t> FindEntry(const Table& table, std::uint16_t tag) const;
  std::optional<Range> ValueAt(std::size_t entry) const;

  std::size_t PointerTo(ExifDirectory directory) const;
  std::string EmptyEntry(std::uint16_t tag) const;
  unsigned TagOf(const std::string& entry) const;
  void MakeExifDirectory();
  void MakeEntries(ExifDirectory directory, std::vector<std::uint16_t> tags);
  void Apply(const ExifChange& change);
  std::size_t Entry(ExifDirectory directory, std::uint16_t tag) const;
  void PutNumberOf(std::uint16_t type, std::size_t size, std::size_t entry, std::uint32_t value);
  void PutRatio(std::size_t entry, std::uint32_t value);
  void PutBytes(std::uint16_t type, std::size_t entry, const std::string& text);
  void Remove(ExifDirectory directory, std::uint16_t tag);

  std::string bytes_;
  bool bigEndian_ = false;
};

}  // namespace Zenvora::Strandel
