#pragma once

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/Export.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

namespace Zenvora::Strandel {

/// A field of a TIFF directory.
struct TiffEntry {
  std::uint64_t at = 0;  ///< Of the entry itself.
  std::uint16_t tag = 0;
  std::uint16_t type = 0;
  std::uint64_t count = 0;  ///< Of values, as the file claims.
  /// Where the values stand, as the file claims: behind the end perhaps. Empty when the type is unknown.
  ByteRange value;
};

struct TiffDirectory {
  std::uint64_t at = 0;     ///< Of the number of its entries.
  std::uint64_t count = 0;  ///< Of entries; as the file claims.
  bool isWhole = false;     ///< False when the file ends within the entries, or claims more than 65,535.
};

/// A TIFF file, a raw file like one, or an EXIF block: places and entries of directories, as they are stored.
/// Never reads beyond the bytes. It holds no state: directories and entries stay good as long as the bytes.
class ZENVORA_STRANDEL_EXPORT TiffStructure {
 public:
  /// `Big`: places have 64 bits, and directories another form.
  enum class Form { Classic, Big };

  /// Bytes that begin with "M" are in big-endian order, all others are little-endian.
  TiffStructure(ByteSource bytes, Form form);

  const ByteSource& Bytes() const { return bytes_; }
  ByteOrder Order() const { return order_; }
  /// The number in `size` bytes at a place; nothing when they are not all there.
  std::optional<std::uint64_t> Number(std::uint64_t at, std::size_t size) const {
    return bytes_.At(at, size).Number(0, size, order_);
  }

  /// The place of the first directory.
  std::optional<std::uint64_t> First() const;
  /// Nothing when not even its number of entries is there.
  std::optional<TiffDirectory> DirectoryAt(std::uint64_t at) const;
  /// Nothing when the entry is not all there. `index` is below the directory's count.
  std::optional<TiffEntry> Entry(const TiffDirectory& directory, std::uint64_t index) const;
  /// The first entry of a tag.
  std::optional<TiffEntry> Find(const TiffDirectory& directory, std::uint16_t tag) const;
  /// The place of the directory behind this one, 0 for none; nothing when the bytes end before.
  std::optional<std::uint64_t> Next(const TiffDirectory& directory) const;
  /// Behind the directory's last entry.
  std::uint64_t EndOf(const TiffDirectory& directory) const;

  /// The values of an entry of unsigned whole numbers that have 16 bits at least, as far as they are there;
  /// none of other entries, and none when the entry claims more than `most`.
  std::vector<std::uint64_t> Numbers(const TiffEntry& entry, std::uint64_t most) const;

  /// Bytes of one value of a type; 0 for unknown ones.
  std::size_t SizeOfType(std::uint64_t type) const;

 private:
  bool IsBig() const { return form_ == Form::Big; }
  std::uint64_t CountBytes() const { return IsBig() ? 8 : 2; }
  std::uint64_t PlaceBytes() const { return IsBig() ? 8 : 4; }
  std::uint64_t EntryBytes() const { return IsBig() ? 20 : 12; }

  ByteSource bytes_;
  Form form_;
  ByteOrder order_;
};

/// Walks through the directories of a TIFF structure that hold pictures: those of the chain, and those below
/// them. Each comes once, wherever the file leads, and no more than a hundred.
class ZENVORA_STRANDEL_EXPORT TiffDirectories {
 public:
  explicit TiffDirectories(const TiffStructure& tiff);
  /// Nothing at the end. A directory of which not even the number of entries is there has none, and is not
  /// whole.
  std::optional<TiffDirectory> Next();

 private:
  void Enqueue(const TiffDirectory& directory);

  const TiffStructure tiff_;
  std::vector<std::uint64_t> waiting_;
  std::set<std::uint64_t> seen_;
};

}  // namespace Zenvora::Strandel
