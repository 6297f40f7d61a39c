#include "BmffExif.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <string>

namespace Zenvora::Strandel {

namespace {

// More than any writer makes: bounds the work on files made to waste it.
constexpr int kMaxBoxes = 4096;
constexpr std::uint64_t kMaxItems = 65536;

/// Reads big-endian numbers one after another. Past the end of its stretch they are 0 and `Good` turns false.
class Cursor {
 public:
  Cursor(PhotoSource& source, const Stretch& stretch)
      : source_(source), at_(stretch.offset), end_(stretch.offset + stretch.length) {}

  bool Good() const { return good_; }
  std::uint64_t At() const { return at_; }
  std::uint64_t Left() const { return end_ - at_; }

  std::uint64_t Number(unsigned bytes) {
    unsigned char raw[8];
    if (!good_ || bytes > sizeof raw || bytes > Left() || !source_.ReadAll(at_, raw, bytes)) {
      good_ = false;
      return 0;
    }
    at_ += bytes;
    std::uint64_t number = 0;
    for (unsigned i = 0; i < bytes; ++i) {
      number = number << 8U | raw[i];
    }
    return number;
  }
  std::string FourCharacters() {
    const std::uint64_t code = Number(4);
    std::string text;
    for (unsigned shift = 32; shift > 0; shift -= 8) {
      text += static_cast<char>(code >> (shift - 8) & 0xFFU);
    }
    return text;
  }
  void Skip(std::uint64_t bytes) {
    good_ = good_ && bytes <= Left();
    at_ += good_ ? bytes : 0;
  }

 private:
  PhotoSource& source_;
  std::uint64_t at_;
  std::uint64_t end_;
  bool good_ = true;
};

struct Box {
  std::string type;
  Stretch body;
};

std::optional<Box> NextBox(Cursor& cursor) {
  const std::uint64_t start = cursor.At();
  const std::uint64_t room = cursor.Left();
  std::uint64_t size = cursor.Number(4);
  Box box;
  box.type = cursor.FourCharacters();
  if (size == 1) {
    size = cursor.Number(8);
  } else if (size == 0) {
    size = room;
  }
  const std::uint64_t head = cursor.At() - start;
  if (!cursor.Good() || size < head) {
    return std::nullopt;
  }
  // A last box that is cut short still has its beginning.
  box.body = {start + head, std::min(size, room) - head};
  cursor.Skip(box.body.length);
  return box;
}

std::optional<Box> FindBox(PhotoSource& source, const Stretch& where, const char* type) {
  Cursor cursor(source, where);
  for (int i = 0; i < kMaxBoxes; ++i) {
    std::optional<Box> box = NextBox(cursor);
    if (!box || box->type == type) {
      return box;
    }
  }
  return std::nullopt;
}

/// The number of the first item of the type "Exif".
std::optional<std::uint64_t> FindExifItem(PhotoSource& source, const Stretch& itemInfo) {
  Cursor cursor(source, itemInfo);
  const std::uint64_t version = cursor.Number(1);
  cursor.Skip(3);
  const std::uint64_t count = std::min(cursor.Number(version == 0 ? 2 : 4), kMaxItems);
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::optional<Box> entry = NextBox(cursor);
    if (!entry) {
      break;
    }
    Cursor inside(source, entry->body);
    const std::uint64_t entryVersion = inside.Number(1);
    inside.Skip(3);
    const std::uint64_t number = inside.Number(entryVersion >= 3 ? 4 : 2);
    inside.Skip(2);
    if (entryVersion >= 2 && inside.FourCharacters() == "Exif" && inside.Good()) {
      return number;
    }
  }
  return std::nullopt;
}

/// Where an item's content lies: its first extent, in the file or in the box "idat" of `meta`.
Stretch LocateItem(PhotoSource& source, const Stretch& meta, const Stretch& locations, std::uint64_t item) {
  Cursor cursor(source, locations);
  const std::uint64_t version = cursor.Number(1);
  cursor.Skip(3);
  const std::uint64_t sizes = cursor.Number(2);
  const auto offsetSize = static_cast<unsigned>(sizes >> 12U & 0xFU);
  const auto lengthSize = static_cast<unsigned>(sizes >> 8U & 0xFU);
  const auto baseSize = static_cast<unsigned>(sizes >> 4U & 0xFU);
  const auto indexSize = version == 0 ? 0U : static_cast<unsigned>(sizes & 0xFU);
  const std::uint64_t count = std::min(cursor.Number(version < 2 ? 2 : 4), kMaxItems);
  for (std::uint64_t i = 0; i < count && cursor.Good(); ++i) {
    const std::uint64_t number = cursor.Number(version < 2 ? 2 : 4);
    const std::uint64_t method = version == 0 ? 0 : cursor.Number(2) & 0xFU;
    cursor.Skip(2);
    const std::uint64_t base = cursor.Number(baseSize);
    const std::uint64_t extents = cursor.Number(2);
    if (number != item || extents == 0) {
      cursor.Skip(extents * (indexSize + offsetSize + lengthSize));
      continue;
    }
    cursor.Skip(indexSize);
    const std::uint64_t offset = base + cursor.Number(offsetSize);
    const std::uint64_t length = cursor.Number(lengthSize);
    if (!cursor.Good() || method > 1) {
      return Stretch();
    }
    Stretch whole{0, source.Size()};
    if (method == 1) {
      const std::optional<Box> data = FindBox(source, meta, "idat");
      whole = data ? data->body : Stretch();
    }
    if (offset >= whole.length) {
      return Stretch();
    }
    return {whole.offset + offset, std::min(length, whole.length - offset)};
  }
  return Stretch();
}

void ReadItem(PhotoSource& source, const Stretch& item, ExifFields& fields) {
  Cursor cursor(source, item);
  // The item begins with the distance to its TIFF structure, mostly over the mark "Exif".
  cursor.Skip(cursor.Number(4));
  Stretch preview;
  if (cursor.Good()) {
    ReadExifFields(source, {cursor.At(), cursor.Left()}, fields, preview);
  }
}

}  // namespace

bool BeginsLikeHeif(PhotoSource& source) {
  static constexpr std::array kBrands = {"heic", "heix", "heim", "heis", "hevc", "hevx", "hevm",
                                         "hevs", "mif1", "mif2", "msf1", "miaf", "avif", "avis"};
  Cursor file(source, {0, source.Size()});
  const std::optional<Box> first = NextBox(file);
  if (!first || first->type != "ftyp") {
    return false;
  }
  Cursor cursor(source, first->body);
  constexpr int kMaxBrands = 64;
  for (int i = 0; i < kMaxBrands && cursor.Left() >= 4; ++i) {
    const std::string brand = cursor.FourCharacters();
    if (brand == "crx ") {
      // A raw format that keeps its EXIF elsewhere.
      return false;
    }
    if (std::find(kBrands.begin(), kBrands.end(), brand) != kBrands.end()) {
      return true;
    }
  }
  return false;
}

bool ReadHeifFields(PhotoSource& source, ExifFields& fields) {
  const std::optional<Box> meta = FindBox(source, {0, source.Size()}, "meta");
  if (!meta || meta->body.length < 4) {
    return false;
  }
  const Stretch inside{meta->body.offset + 4, meta->body.length - 4};
  const std::optional<Box> information = FindBox(source, inside, "iinf");
  if (!information) {
    return false;
  }
  const std::optional<Box> locations = FindBox(source, inside, "iloc");
  const std::optional<std::uint64_t> item = FindExifItem(source, information->body);
  if (locations && item) {
    ReadItem(source, LocateItem(source, inside, locations->body, *item), fields);
  }
  return true;
}

}  // namespace Zenvora::Strandel
