#include <host/pixels/PictureEnd.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kEnd = -1;

class Source {
 public:
  explicit Source(const ioPath& file)
      : stream_(file.for_system(), std::ios::binary), size_(QueryFile(file).size) {}

  std::uint64_t Size() const { return size_; }

  /// Fewer bytes at the end of the file.
  std::string At(std::uint64_t at, std::size_t count) {
    stream_.clear();
    stream_.seekg(static_cast<std::streamoff>(at));
    std::string bytes(count, '\0');
    stream_.read(bytes.data(), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream_.gcount(), 0)));
    return bytes;
  }

  void Seek(std::uint64_t at) {
    next_ = at;
    piece_.clear();
    used_ = 0;
  }
  std::uint64_t Position() const { return next_ - (piece_.size() - used_); }
  int Byte() {
    if (used_ == piece_.size()) {
      constexpr std::size_t kPiece = 1 << 16;
      piece_ = At(next_, kPiece);
      next_ += piece_.size();
      used_ = 0;
    }
    return piece_.empty() ? kEnd : static_cast<unsigned char>(piece_[used_++]);
  }

 private:
  std::ifstream stream_;
  const std::uint64_t size_;
  std::string piece_;
  std::size_t used_ = 0;
  std::uint64_t next_ = 0;
};

std::uint64_t Number(std::string_view bytes, bool bigEndian) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    value = value << 8U | static_cast<unsigned char>(bytes[bigEndian ? i : bytes.size() - 1 - i]);
  }
  return value;
}

// --- JPEG

constexpr int kEndMarker = 0xD9;

/// Cameras fill the rest of a file with zeros.
bool HasJpegEndLast(Source& source) {
  constexpr std::uint64_t kLooked = 1 << 16;
  const std::string tail = source.At(source.Size() - std::min(source.Size(), kLooked), kLooked);
  const std::size_t last = tail.find_last_not_of('\0');
  return last != std::string::npos && last > 0 && tail[last - 1] == '\xFF' && tail[last] == '\xD9';
}

/// The next marker, whatever lies before it; none at the end of the file.
int NextMarker(Source& source) {
  for (int byte = source.Byte(); byte != kEnd; byte = source.Byte()) {
    while (byte == 0xFF) {
      byte = source.Byte();
      // Within the picture a zero says that the byte before it is part of it, as is the mark of a new start.
      if (byte != 0xFF && byte != 0 && byte != kEnd && (byte < 0xD0 || byte > 0xD7)) {
        return byte;
      }
    }
  }
  return kEnd;
}

bool JpegEndsTooSoon(Source& source) {
  if (HasJpegEndLast(source)) {
    return false;
  }
  source.Seek(2);
  for (int marker = NextMarker(source); marker != kEndMarker; marker = NextMarker(source)) {
    const int high = marker == kEnd ? kEnd : source.Byte();
    const int low = source.Byte();
    if (high == kEnd || low == kEnd) {
      return true;
    }
    source.Seek(source.Position() + static_cast<std::uint64_t>(std::max(high * 256 + low - 2, 0)));
  }
  return false;
}

// --- PNG, WebP, and what is made of boxes

bool PngEndsTooSoon(Source& source) {
  constexpr std::uint64_t kFrame = 12;  // Length, type and checksum
  for (std::uint64_t at = 8;;) {
    const std::string head = source.At(at, 8);
    if (head.size() < 8) {
      return true;
    }
    at += Number(head.substr(0, 4), true) + kFrame;
    if (head.substr(4) == "IEND") {
      return at > source.Size();
    }
  }
}

bool WebPEndsTooSoon(Source& source) {
  // Some writers leave out the last byte that makes its length even.
  return Number(source.At(4, 4), false) + 8 > source.Size() + 1;
}

bool BoxesEndTooSoon(Source& source) {
  for (std::uint64_t at = 0;;) {
    const std::string head = source.At(at, 16);
    if (head.size() < 8) {
      return false;
    }
    std::uint64_t size = Number(head.substr(0, 4), true);
    size = size == 1 && head.size() == 16 ? Number(head.substr(8), true) : size;
    if (size < 8) {
      // To the end of the file, or no box.
      return false;
    }
    if (size > source.Size() - at) {
      return true;
    }
    at += size;
  }
}

// --- TIFF

class TiffReader {
 public:
  TiffReader(Source& source, bool bigEndian) : source_(source), bigEndian_(bigEndian) {}

  bool EndsTooSoon() {
    constexpr std::size_t kMostDirectories = 100;
    std::vector<std::uint64_t> waiting = {Number(source_.At(4, 4), bigEndian_)};
    std::set<std::uint64_t> seen;
    while (!waiting.empty() && seen.size() < kMostDirectories) {
      const std::uint64_t at = waiting.back();
      waiting.pop_back();
      if (at != 0 && seen.insert(at).second && !Read(at, waiting)) {
        return true;
      }
    }
    return false;
  }

 private:
  static constexpr std::size_t kEntry = 12;

  /// False when it, or what it tells of, is not all there.
  bool Read(std::uint64_t at, std::vector<std::uint64_t>& waiting) {
    const std::string count = source_.At(at, 2);
    const auto entries = static_cast<std::size_t>(Number(count, bigEndian_));
    const std::string bytes = source_.At(at + 2, entries * kEntry);
    if (count.size() < 2 || bytes.size() < entries * kEntry) {
      return false;
    }
    std::vector<std::uint64_t> strips;
    std::vector<std::uint64_t> lengths;
    for (std::size_t i = 0; i < entries; ++i) {
      const std::string_view entry = std::string_view(bytes).substr(i * kEntry, kEntry);
      switch (Number(entry.substr(0, 2), bigEndian_)) {
        case 0x0111:
        case 0x0144:
          strips = Values(entry);
          break;
        case 0x0117:
        case 0x0145:
          lengths = Values(entry);
          break;
        case 0x014A:
          for (const std::uint64_t below : Values(entry)) {
            waiting.push_back(below);
          }
          break;
        default:
          break;
      }
    }
    const std::string next = source_.At(at + 2 + bytes.size(), 4);
    waiting.push_back(next.size() == 4 ? Number(next, bigEndian_) : 0);
    for (std::size_t i = 0; i < std::min(strips.size(), lengths.size()); ++i) {
      if (strips[i] + lengths[i] > source_.Size()) {
        return false;
      }
    }
    return true;
  }

  /// Of an entry of whole numbers; those of others say nothing here.
  std::vector<std::uint64_t> Values(std::string_view entry) {
    constexpr std::uint64_t kMostValues = 1'000'000;
    const std::uint64_t type = Number(entry.substr(2, 2), bigEndian_);
    const std::uint64_t count = Number(entry.substr(4, 4), bigEndian_);
    const std::size_t size = type == 3 ? 2 : type == 4 || type == 13 ? 4 : 0;
    if (size == 0 || count > kMostValues) {
      return {};
    }
    const auto length = static_cast<std::size_t>(count) * size;
    const std::string bytes = length <= 4 ? std::string(entry.substr(8, length))
                                          : source_.At(Number(entry.substr(8, 4), bigEndian_), length);
    std::vector<std::uint64_t> values;
    for (std::size_t at = 0; at + size <= bytes.size(); at += size) {
      values.push_back(Number(std::string_view(bytes).substr(at, size), bigEndian_));
    }
    return values;
  }

  Source& source_;
  const bool bigEndian_;
};

}  // namespace

bool EndsTooSoon(const ioPath& file) {
  Source source(file);
  const std::string head = source.At(0, 12);
  const auto begins = [&head](std::string_view mark) { return head.compare(0, mark.size(), mark) == 0; };
  if (begins("\xFF\xD8")) {
    return JpegEndsTooSoon(source);
  }
  if (begins("\x89PNG")) {
    return PngEndsTooSoon(source);
  }
  if (begins("RIFF") && head.size() == 12 && head.substr(8) == "WEBP") {
    return WebPEndsTooSoon(source);
  }
  if (head.size() == 12 && head.substr(4, 4) == "ftyp") {
    return BoxesEndTooSoon(source);
  }
  const bool bigEndian = begins(std::string_view("MM\0*", 4)) || begins("MMOR");
  if (bigEndian || begins(std::string_view("II*\0", 4)) || begins("IIRO") || begins("IIRS")) {
    return TiffReader(source, bigEndian).EndsTooSoon();
  }
  return false;
}

}  // namespace Zenvora::Lumidex::Host
