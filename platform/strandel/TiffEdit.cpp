#include "TiffEdit.h"

#include "EditRefusal.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Zenvora::Strandel {

namespace {

constexpr std::size_t kHeader = 8;
constexpr std::size_t kEntry = 12;
constexpr std::uint16_t kExifTag = 0x8769;

enum Type : std::uint16_t { kAscii = 2, kShort = 3, kLong = 4, kRational = 5, kUndefined = 7 };

[[noreturn]] void RefuseDamaged() {
  throw EditRefusal("its TIFF directory is damaged");
}

std::size_t SizeOfType(std::uint32_t type) {
  static constexpr std::array<std::size_t, 14> kSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
  return type < kSizes.size() ? kSizes[type] : 0;
}

}  // namespace

TiffEdit::TiffEdit(std::string bytes) : bytes_(std::move(bytes)) {
  if (bytes_.size() < kHeader) {
    RefuseDamaged();
  }
  bigEndian_ = bytes_.compare(0, 2, "MM") == 0;
  if (!bigEndian_ && bytes_.compare(0, 2, "II") != 0) {
    RefuseDamaged();
  }
}

std::string TiffEdit::Empty() {
  return std::string("MM\0*\0\0\0\x08\0\0\0\0\0\0", 14);
}

std::uint32_t TiffEdit::Number(std::size_t at, std::size_t size) const {
  if (at > bytes_.size() || bytes_.size() - at < size) {
    RefuseDamaged();
  }
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) {
    value = value << 8U | static_cast<unsigned char>(bytes_[at + (bigEndian_ ? i : size - 1 - i)]);
  }
  return value;
}

void TiffEdit::PutNumber(std::size_t at, std::size_t size, std::uint32_t value) {
  for (std::size_t i = 0; i < size; ++i, value >>= 8U) {
    bytes_[at + (bigEndian_ ? size - 1 - i : i)] = static_cast<char>(value & 0xFFU);
  }
}

std::size_t TiffEdit::Append(const std::string& bytes) {
  // Places are even.
  bytes_.append(bytes_.size() % 2, '\0');
  const std::size_t at = bytes_.size();
  bytes_ += bytes;
  return at;
}

TiffEdit::Table TiffEdit::TableAt(std::size_t at) const {
  const Table table{at, Number(at, 2)};
  if (at < kHeader || table.End() > bytes_.size()) {
    RefuseDamaged();
  }
  return table;
}

std::optional<TiffEdit::Table> TiffEdit::Find(ExifDirectory directory) const {
  const Table first = TableAt(Number(4, 4));
  if (directory == ExifDirectory::Image) {
    return first;
  }
  if (directory == ExifDirectory::Photo) {
    const auto entry = FindEntry(first, kExifTag);
    return entry ? std::optional<Table>(TableAt(Number(*entry + 8, 4))) : std::nullopt;
  }
  const std::size_t next = Number(first.End(), 4);
  return next == 0 ? std::nullopt : std::optional<Table>(TableAt(next));
}

std::optional<std::size_t> TiffEdit::FindEntry(const Table& table, std::uint16_t tag) const {
  for (std::size_t index = 0; index < table.count; ++index) {
    if (Number(table.Entry(index), 2) == tag) {
      return table.Entry(index);
    }
  }
  return std::nullopt;
}

std::optional<TiffEdit::Range> TiffEdit::ValueAt(std::size_t entry) const {
  const std::uint64_t size = std::uint64_t{Number(entry + 4, 4)} * SizeOfType(Number(entry + 2, 2));
  const std::size_t at = size <= 4 ? entry + 8 : Number(entry + 8, 4);
  if (size == 0 || at < kHeader || at > bytes_.size() || size > bytes_.size() - at) {
    return std::nullopt;
  }
  return Range{at, static_cast<std::size_t>(size)};
}

std::optional<TiffEdit::Range> TiffEdit::ValueOf(std::uint16_t tag) const {
  const auto entry = FindEntry(*Find(ExifDirectory::Image), tag);
  return entry ? ValueAt(*entry) : std::nullopt;
}

void TiffEdit::Apply(const std::vector<ExifChange>& changes) {
  // All entries that a directory lacks at once: it moves behind the end for them.
  for (const ExifDirectory directory :
       {ExifDirectory::Photo, ExifDirectory::Thumbnail, ExifDirectory::Image}) {
    std::vector<std::uint16_t> tags;
    for (const ExifChange& change : changes) {
      if (change.directory == directory && change.kind != ExifChange::Kind::Remove) {
        tags.push_back(change.tag);
      }
    }
    if (directory == ExifDirectory::Photo && !tags.empty()) {
      MakeExifDirectory();
    }
    if (!tags.empty()) {
      MakeEntries(directory, tags);
    }
  }
  for (const ExifChange& change : changes) {
    Apply(change);
  }
}

void TiffEdit::Apply(const ExifChange& change) {
  switch (change.kind) {
    case ExifChange::Kind::Remove:
      return Remove(change.directory, change.tag);
    case ExifChange::Kind::Number:
      return PutNumberOf(kShort, 2, Entry(change.directory, change.tag), change.number);
    case ExifChange::Kind::Long:
      return PutNumberOf(kLong, 4, Entry(change.directory, change.tag), change.number);
    case ExifChange::Kind::WholeRatio:
      return PutRatio(Entry(change.directory, change.tag), change.number);
    case ExifChange::Kind::Text:
      return PutBytes(kAscii, Entry(change.directory, change.tag), change.text);
    case ExifChange::Kind::Bytes:
      return PutBytes(kUndefined, Entry(change.directory, change.tag), change.text);
  }
}

std::size_t TiffEdit::Entry(ExifDirectory directory, std::uint16_t tag) const {
  const auto table = Find(directory);
  const auto entry = table ? FindEntry(*table, tag) : std::nullopt;
  if (!entry) {
    RefuseDamaged();
  }
  return *entry;
}

void TiffEdit::MakeExifDirectory() {
  if (Find(ExifDirectory::Photo)) {
    return;
  }
  MakeEntries(ExifDirectory::Image, {kExifTag});
  const std::size_t entry = Entry(ExifDirectory::Image, kExifTag);
  const std::size_t at = Append(std::string(6, '\0'));
  PutNumber(entry + 2, 2, kLong);
  PutNumber(entry + 4, 4, 1);
  PutNumber(entry + 8, 4, static_cast<std::uint32_t>(at));
}

std::string TiffEdit::EmptyEntry(std::uint16_t tag) const {
  std::string entry(kEntry, '\0');
  entry[bigEndian_ ? 0 : 1] = static_cast<char>(tag >> 8U);
  entry[bigEndian_ ? 1 : 0] = static_cast<char>(tag & 0xFFU);
  return entry;
}

unsigned TiffEdit::TagOf(const std::string& entry) const {
  const auto first = static_cast<unsigned char>(entry[bigEndian_ ? 0 : 1]);
  const auto second = static_cast<unsigned char>(entry[bigEndian_ ? 1 : 0]);
  return unsigned{first} << 8U | second;
}

/// Those that are not there yet; they say nothing yet.
void TiffEdit::MakeEntries(ExifDirectory directory, std::vector<std::uint16_t> tags) {
  const auto old = Find(directory);
  if (!old) {
    RefuseDamaged();
  }
  tags.erase(std::remove_if(tags.begin(), tags.end(),
                            [&](std::uint16_t tag) { return FindEntry(*old, tag).has_value(); }),
             tags.end());
  constexpr std::size_t kMostEntries = 0xFFFF;
  if (tags.empty()) {
    return;
  }
  if (old->count + tags.size() > kMostEntries) {
    RefuseDamaged();
  }
  std::vector<std::string> entries;
  for (std::size_t index = 0; index < old->count; ++index) {
    entries.push_back(bytes_.substr(old->Entry(index), kEntry));
  }
  for (const std::uint16_t tag : tags) {
    // The old ones keep their order, right or wrong.
    const auto place = std::find_if(entries.begin(), entries.end(),
                                    [&](const std::string& entry) { return TagOf(entry) > tag; });
    entries.insert(place, EmptyEntry(tag));
  }
  std::string table(2, '\0');
  for (const std::string& entry : entries) {
    table += entry;
  }
  // Blocks may end with their last entry, without the place of a next directory.
  table += bytes_.size() - old->End() >= 4 ? bytes_.substr(old->End(), 4) : std::string(4, '\0');
  const std::size_t pointer = PointerTo(directory);
  const std::size_t at = Append(table);
  PutNumber(at, 2, static_cast<std::uint32_t>(entries.size()));
  PutNumber(pointer, 4, static_cast<std::uint32_t>(at));
}

/// Where the place of a directory is told.
std::size_t TiffEdit::PointerTo(ExifDirectory directory) const {
  switch (directory) {
    case ExifDirectory::Photo:
      return Entry(ExifDirectory::Image, kExifTag) + 8;
    case ExifDirectory::Thumbnail:
      return Find(ExifDirectory::Image)->End();
    default:
      return 4;
  }
}

void TiffEdit::PutNumberOf(std::uint16_t type, std::size_t size, std::size_t entry, std::uint32_t value) {
  PutNumber(entry + 2, 2, type);
  PutNumber(entry + 4, 4, 1);
  PutNumber(entry + 8, 4, 0);
  PutNumber(entry + 8, size, value);
}

void TiffEdit::PutRatio(std::size_t entry, std::uint32_t value) {
  const std::size_t at = Append(std::string(8, '\0'));
  PutNumber(at, 4, value);
  PutNumber(at + 4, 4, 1);
  PutNumberOf(kRational, 4, entry, static_cast<std::uint32_t>(at));
}

void TiffEdit::PutBytes(std::uint16_t type, std::size_t entry, const std::string& text) {
  const auto old = ValueAt(entry);
  if (text.size() <= 4) {
    bytes_.replace(entry + 8, 4, text + std::string(4 - text.size(), '\0'));
  } else if (old && old->size > 4 && old->size >= text.size()) {
    bytes_.replace(old->at, old->size, text + std::string(old->size - text.size(), '\0'));
  } else {
    const std::size_t at = Append(text);
    PutNumber(entry + 8, 4, static_cast<std::uint32_t>(at));
  }
  PutNumber(entry + 2, 2, type);
  PutNumber(entry + 4, 4, static_cast<std::uint32_t>(text.size()));
}

void TiffEdit::Remove(ExifDirectory directory, std::uint16_t tag) {
  const auto table = Find(directory);
  const auto entry = table ? FindEntry(*table, tag) : std::nullopt;
  if (!entry) {
    return;
  }
  const std::size_t end = std::min(table->End() + 4, bytes_.size());
  const std::string rest = bytes_.substr(*entry + kEntry, end - *entry - kEntry);
  bytes_.replace(*entry, end - *entry, rest + std::string(kEntry, '\0'));
  PutNumber(table->at, 2, static_cast<std::uint32_t>(table->count - 1));
}

}  // namespace Zenvora::Strandel
