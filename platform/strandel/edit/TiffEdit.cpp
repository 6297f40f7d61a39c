#include "TiffEdit.h"

#include "EditRefusal.h"

#include <algorithm>
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

TiffStructure TiffEdit::Structure() const {
  return {ByteView(bytes_), TiffStructure::Form::Classic};
}

void TiffEdit::PutNumber(std::uint64_t at, std::size_t size, std::uint32_t value) {
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

TiffDirectory TiffEdit::DirectoryAt(std::optional<std::uint64_t> place) const {
  const auto directory = place && *place >= kHeader ? Structure().DirectoryAt(*place) : std::nullopt;
  if (!directory || !directory->isWhole) {
    RefuseDamaged();
  }
  return *directory;
}

std::optional<TiffDirectory> TiffEdit::Find(ExifDirectory directory) const {
  const TiffStructure tiff = Structure();
  const TiffDirectory first = DirectoryAt(tiff.First());
  if (directory == ExifDirectory::Image) {
    return first;
  }
  if (directory == ExifDirectory::Photo) {
    const auto entry = tiff.Find(first, kExifTag);
    return entry ? std::optional(DirectoryAt(tiff.Number(entry->at + 8, 4))) : std::nullopt;
  }
  const auto next = tiff.Next(first);
  return next == 0U ? std::nullopt : std::optional(DirectoryAt(next));
}

std::optional<TiffEntry> TiffEdit::FindEntry(ExifDirectory directory, std::uint16_t tag) const {
  const auto found = Find(directory);
  return found ? Structure().Find(*found, tag) : std::nullopt;
}

std::optional<ByteRange> TiffEdit::ValueOf(const TiffEntry& entry) const {
  const ByteRange& value = entry.value;
  return value.size == 0 || value.at < kHeader || value.End() > bytes_.size() ? std::nullopt
                                                                              : std::optional(value);
}

std::optional<ByteRange> TiffEdit::ValueOf(std::uint16_t tag) const {
  const auto entry = FindEntry(ExifDirectory::Image, tag);
  return entry ? ValueOf(*entry) : std::nullopt;
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
      return PutNumberOf(kShort, 2, Entry(change.directory, change.tag).at, change.number);
    case ExifChange::Kind::Long:
      return PutNumberOf(kLong, 4, Entry(change.directory, change.tag).at, change.number);
    case ExifChange::Kind::WholeRatio:
      return PutRatio(Entry(change.directory, change.tag).at, change.number);
    case ExifChange::Kind::Text:
      return PutBytes(kAscii, Entry(change.directory, change.tag), change.text);
    case ExifChange::Kind::Bytes:
      return PutBytes(kUndefined, Entry(change.directory, change.tag), change.text);
  }
}

TiffEntry TiffEdit::Entry(ExifDirectory directory, std::uint16_t tag) const {
  const auto entry = FindEntry(directory, tag);
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
  const std::uint64_t entry = Entry(ExifDirectory::Image, kExifTag).at;
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
                            [&](std::uint16_t tag) { return FindEntry(directory, tag).has_value(); }),
             tags.end());
  constexpr std::size_t kMostEntries = 0xFFFF;
  if (tags.empty()) {
    return;
  }
  if (old->count + tags.size() > kMostEntries) {
    RefuseDamaged();
  }
  std::vector<std::string> entries;
  for (std::uint64_t index = 0; index < old->count; ++index) {
    entries.push_back(bytes_.substr(old->at + 2 + index * kEntry, kEntry));
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
  const std::uint64_t end = Structure().EndOf(*old);
  table += bytes_.size() - end >= 4 ? bytes_.substr(end, 4) : std::string(4, '\0');
  const std::uint64_t pointer = PointerTo(directory);
  const std::size_t at = Append(table);
  PutNumber(at, 2, static_cast<std::uint32_t>(entries.size()));
  PutNumber(pointer, 4, static_cast<std::uint32_t>(at));
}

/// Where the place of a directory is told.
std::uint64_t TiffEdit::PointerTo(ExifDirectory directory) const {
  switch (directory) {
    case ExifDirectory::Photo:
      return Entry(ExifDirectory::Image, kExifTag).at + 8;
    case ExifDirectory::Thumbnail:
      return Structure().EndOf(*Find(ExifDirectory::Image));
    default:
      return 4;
  }
}

void TiffEdit::PutNumberOf(std::uint16_t type, std::size_t size, std::uint64_t entry, std::uint32_t value) {
  PutNumber(entry + 2, 2, type);
  PutNumber(entry + 4, 4, 1);
  PutNumber(entry + 8, 4, 0);
  PutNumber(entry + 8, size, value);
}

void TiffEdit::PutRatio(std::uint64_t entry, std::uint32_t value) {
  const std::size_t at = Append(std::string(8, '\0'));
  PutNumber(at, 4, value);
  PutNumber(at + 4, 4, 1);
  PutNumberOf(kRational, 4, entry, static_cast<std::uint32_t>(at));
}

void TiffEdit::PutBytes(std::uint16_t type, const TiffEntry& entry, const std::string& text) {
  const auto old = ValueOf(entry);
  if (text.size() <= 4) {
    bytes_.replace(entry.at + 8, 4, text + std::string(4 - text.size(), '\0'));
  } else if (old && old->size > 4 && old->size >= text.size()) {
    bytes_.replace(old->at, old->size, text + std::string(old->size - text.size(), '\0'));
  } else {
    const std::size_t at = Append(text);
    PutNumber(entry.at + 8, 4, static_cast<std::uint32_t>(at));
  }
  PutNumber(entry.at + 2, 2, type);
  PutNumber(entry.at + 4, 4, static_cast<std::uint32_t>(text.size()));
}

void TiffEdit::Remove(ExifDirectory directory, std::uint16_t tag) {
  const auto entry = FindEntry(directory, tag);
  if (!entry) {
    return;
  }
  const TiffDirectory table = *Find(directory);
  const std::uint64_t end = std::min<std::uint64_t>(Structure().EndOf(table) + 4, bytes_.size());
  const std::string rest = bytes_.substr(entry->at + kEntry, end - entry->at - kEntry);
  bytes_.replace(entry->at, end - entry->at, rest + std::string(kEntry, '\0'));
  PutNumber(table.at, 2, static_cast<std::uint32_t>(table.count - 1));
}

}  // namespace Zenvora::Strandel
