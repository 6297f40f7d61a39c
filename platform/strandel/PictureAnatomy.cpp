#include "PictureAnatomy.h"

#include "EditRefusal.h"
#include "TiffEdit.h"

#include <boost/crc.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace Zenvora::Strandel {

namespace {

constexpr std::string_view kExifMark("Exif\0\0", 6);
constexpr std::string_view kXmpMark("http://ns.adobe.com/xap/1.0/\0", 29);
constexpr std::string_view kIptcMark("Photoshop 3.0\0", 14);
constexpr std::string_view kPngMark("\x89PNG\r\n\x1A\n", 8);

bool BeginsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::uint32_t BigEndian(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) {
    value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
  }
  return value;
}

std::uint32_t LittleEndian(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i > 0; --i) {
    value = value << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return value;
}

std::string BigEndianBytes(std::size_t value, int size) {
  std::string bytes;
  for (int i = size - 1; i >= 0; --i) {
    bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  }
  return bytes;
}

std::string LittleEndianBytes(std::size_t value, int size) {
  std::string bytes = BigEndianBytes(value, size);
  std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

std::string_view View(const std::string& bytes, Stretch stretch) {
  return std::string_view(bytes).substr(stretch.at, stretch.size);
}

std::string Replaced(const std::string& bytes, Stretch old, const std::string& with) {
  std::string result;
  result.reserve(bytes.size() - old.size + with.size());
  result.append(bytes, 0, old.at).append(with).append(bytes, old.at + old.size, std::string::npos);
  return result;
}

// --- JPEG ---

class JpegReader {
 public:
  explicit JpegReader(const std::string& bytes) : bytes_(bytes) { anatomy_.exifGoesTo = 2; }

  PictureAnatomy Read() {
    std::size_t at = 2;
    while (!done_) {
      at = ReadSegment(at);
    }
    return anatomy_;
  }

 private:
  enum Marker : unsigned char {
    kTem = 0x01,
    kRst0 = 0xD0,
    kEoi = 0xD9,
    kSos = 0xDA,
    kApp0 = 0xE0,
    kApp1,
    kApp13 = 0xED
  };

  std::size_t ReadSegment(std::size_t at) {
    const std::size_t start = at;
    Need(at, 2);
    if (bytes_[at] != '\xFF') {
      throw EditRefusal("its JPEG data is damaged");
    }
    while (bytes_[at] == '\xFF') {
      Need(++at, 1);
    }
    const auto marker = static_cast<unsigned char>(bytes_[at++]);
    if (marker == kSos) {
      // With all that follows, be it further pictures or films.
      done_ = true;
      anatomy_.picture.push_back({start, bytes_.size() - start});
      return bytes_.size();
    }
    if (marker == kTem || (marker >= kRst0 && marker <= kEoi)) {
      if (marker == kEoi) {
        throw EditRefusal("its JPEG data ends before the picture");
      }
      anatomy_.picture.push_back({start, at - start});
      return at;
    }
    Need(at, 2);
    const std::size_t length = BigEndian(bytes_, at, 2);
    Need(at, std::max<std::size_t>(length, 2));
    if (length < 2) {
      throw EditRefusal("its JPEG data is damaged");
    }
    Take(marker, start, {at + 2, length - 2});
    return at + length;
  }

  void Take(unsigned char marker, std::size_t start, Stretch body) {
    const std::string_view content = View(bytes_, body);
    const std::size_t end = body.at + body.size;
    if (marker == kApp0 && start == anatomy_.exifGoesTo) {
      // The block of the picture's resolution has a right to be the first.
      anatomy_.exifGoesTo = end;
    }
    if (marker == kApp1 && BeginsWith(content, kExifMark) && !anatomy_.exif) {
      anatomy_.exif = Stretch{body.at + kExifMark.size(), body.size - kExifMark.size()};
      anatomy_.exifMark = kExifMark.size();
    } else if ((marker == kApp1 && BeginsWith(content, kXmpMark)) ||
               (marker == kApp13 && BeginsWith(content, kIptcMark))) {
      anatomy_.texts.push_back(body);
    } else {
      anatomy_.picture.push_back({start, end - start});
    }
  }

  void Need(std::size_t at, std::size_t count) const {
    if (at > bytes_.size() || bytes_.size() - at < count) {
      throw EditRefusal("its JPEG data breaks off before the picture");
    }
  }

  const std::string& bytes_;
  PictureAnatomy anatomy_;
  bool done_ = false;
};

std::string JpegWithExif(const std::string& bytes, const PictureAnatomy& anatomy, const std::string& exif) {
  constexpr std::size_t kLongestSegment = 0xFFFF;
  const std::size_t length = 2 + kExifMark.size() + exif.size();
  if (length > kLongestSegment) {
    throw EditRefusal("there is no room left in its EXIF block");
  }
  const std::string segment = BigEndianBytes(length, 2) + std::string(kExifMark) + exif;
  if (!anatomy.exif) {
    return Replaced(bytes, {anatomy.exifGoesTo, 0}, "\xFF\xE1" + segment);
  }
  const std::size_t before = 2 + anatomy.exifMark;
  return Replaced(bytes, {anatomy.exif->at - before, anatomy.exif->size + before}, segment);
}

// --- PNG ---

constexpr std::size_t kPngFrame = 12;  // Length, type and checksum

/// Calls `take` with the type and the place of each chunk's content, and returns where the last one ends.
template <class Take>
std::size_t ForEachPngChunk(const std::string& bytes, const Take& take) {
  std::size_t at = kPngMark.size();
  std::string_view type;
  while (type != "IEND") {
    const std::size_t left = bytes.size() - at;
    if (left < kPngFrame || BigEndian(bytes, at, 4) > left - kPngFrame) {
      throw EditRefusal("its PNG data breaks off");
    }
    const Stretch body{at + 8, BigEndian(bytes, at, 4)};
    type = std::string_view(bytes).substr(at + 4, 4);
    take(type, body);
    at = body.at + body.size + 4;
  }
  return at;
}

std::string PngChunk(std::string_view type, const std::string& content) {
  const std::string checked = std::string(type) + content;
  boost::crc_32_type checksum;
  checksum.process_bytes(checked.data(), checked.size());
  return BigEndianBytes(content.size(), 4) + checked + BigEndianBytes(checksum.checksum(), 4);
}

PictureAnatomy DissectPng(const std::string& bytes) {
  PictureAnatomy anatomy;
  const std::size_t end = ForEachPngChunk(bytes, [&](std::string_view type, Stretch body) {
    const std::string_view content = View(bytes, body);
    const std::size_t chunkEnd = body.at + body.size + 4;
    auto oldExif = OldPngExif::Parse(type, content);
    if (oldExif && !anatomy.oldExif) {
      anatomy.oldExif = std::move(oldExif);
      anatomy.oldExifAt = body;
    } else if (type == "eXIf" && !anatomy.exif) {
      anatomy.exif = body;
    } else if (type == "iTXt" && BeginsWith(content, std::string_view("XML:com.adobe.xmp\0", 18))) {
      anatomy.texts.push_back(body);
    } else {
      anatomy.picture.push_back({body.at - 8, body.size + kPngFrame});
    }
    if (type == "IHDR") {
      anatomy.exifGoesTo = chunkEnd;
    }
  });
  if (anatomy.exifGoesTo == 0) {
    throw EditRefusal("its PNG data does not begin with a picture");
  }
  if (anatomy.exif && anatomy.oldExif) {
    throw EditRefusal("it has two EXIF blocks");
  }
  anatomy.picture.push_back({end, bytes.size() - end});
  return anatomy;
}

std::string PngWithExif(std::string bytes, const PictureAnatomy& anatomy,
                        const std::optional<std::string>& exif) {
  for (const Stretch& text : anatomy.texts) {
    const Stretch chunk{text.at - 8, text.size + kPngFrame};
    bytes.replace(chunk.at, chunk.size, PngChunk("iTXt", std::string(View(bytes, text))));
  }
  if (!exif) {
    return bytes;
  }
  if (anatomy.oldExif) {
    OldPngExif changed = *anatomy.oldExif;
    changed.block = *exif;
    const Stretch old{anatomy.oldExifAt.at - 8, anatomy.oldExifAt.size + kPngFrame};
    return Replaced(bytes, old, PngChunk(changed.compressed ? "zTXt" : "tEXt", changed.Content()));
  }
  const std::string chunk = PngChunk("eXIf", *exif);
  return anatomy.exif ? Replaced(bytes, {anatomy.exif->at - 8, anatomy.exif->size + kPngFrame}, chunk)
                      : Replaced(bytes, {anatomy.exifGoesTo, 0}, chunk);
}

// --- WebP ---

constexpr std::size_t kRiffHead = 12;
constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kExtendedSize = 10;
constexpr unsigned char kHasExif = 0x08;
constexpr char kHasAlpha = 0x10;

template <class Take>
std::size_t ForEachWebPChunk(const std::string& bytes, const Take& take) {
  constexpr const char* kBreaksOff = "its WebP data breaks off";
  if (bytes.size() < kRiffHead || LittleEndian(bytes, 4, 4) > bytes.size() - kChunkHead) {
    throw EditRefusal(kBreaksOff);
  }
  const std::size_t end = kChunkHead + LittleEndian(bytes, 4, 4);
  std::size_t at = kRiffHead;
  while (at < end) {
    if (end - at < kChunkHead || LittleEndian(bytes, at + 4, 4) > end - at - kChunkHead) {
      throw EditRefusal(kBreaksOff);
    }
    const Stretch body{at + kChunkHead, LittleEndian(bytes, at + 4, 4)};
    take(std::string_view(bytes).substr(at, 4), body);
    // Padded to an even length, but for the last one of some writers.
    at = std::min(body.at + body.size + body.size % 2, end);
  }
  return end;
}

PictureAnatomy DissectWebP(const std::string& bytes) {
  PictureAnatomy anatomy;
  const std::size_t end = ForEachWebPChunk(bytes, [&](std::string_view type, Stretch body) {
    if (type == "EXIF" && !anatomy.exif) {
      const std::size_t mark = BeginsWith(View(bytes, body), kExifMark) ? kExifMark.size() : 0;
      anatomy.exif = Stretch{body.at + mark, body.size - mark};
      anatomy.exifMark = mark;
    } else if (type == "XMP ") {
      anatomy.texts.push_back(body);
      anatomy.exifGoesTo = anatomy.exifGoesTo == 0 ? body.at - kChunkHead : anatomy.exifGoesTo;
    } else {
      anatomy.picture.push_back({body.at - kChunkHead, body.size + kChunkHead});
    }
  });
  if (anatomy.picture.empty()) {
    throw EditRefusal("its WebP data holds no picture");
  }
  anatomy.exifGoesTo = anatomy.exifGoesTo == 0 ? end : anatomy.exifGoesTo;
  anatomy.picture.push_back({end, bytes.size() - end});
  return anatomy;
}

/// The header that a WebP file needs as soon as it holds more than a bare picture.
std::string ExtendedHead(std::string_view type, std::string_view content) {
  std::size_t width = 0;
  std::size_t height = 0;
  bool alpha = false;
  if (type == "VP8 " && content.size() >= 10) {
    constexpr unsigned kSizeBits = 0x3FFF;
    width = LittleEndian(content, 6, 2) & kSizeBits;
    height = LittleEndian(content, 8, 2) & kSizeBits;
  } else if (type == "VP8L" && content.size() >= 5) {
    const std::uint32_t bits = LittleEndian(content, 1, 4);
    width = (bits & 0x3FFFU) + 1;
    height = (bits >> 14U & 0x3FFFU) + 1;
    alpha = (bits >> 28U & 1U) != 0;
  }
  if (width == 0 || height == 0) {
    throw EditRefusal("its WebP data holds no picture");
  }
  return std::string("VP8X") + LittleEndianBytes(kExtendedSize, 4) + (alpha ? kHasAlpha : '\0') +
         std::string(3, '\0') + LittleEndianBytes(width - 1, 3) + LittleEndianBytes(height - 1, 3);
}

std::string WebPWithExif(const std::string& bytes, const PictureAnatomy& anatomy, const std::string& exif) {
  std::string result;
  if (anatomy.exif) {
    const std::size_t mark = anatomy.exifMark;
    const std::size_t head = kChunkHead + mark;
    const std::size_t old = anatomy.exif->size + mark;
    const std::size_t size = exif.size() + mark;
    const std::size_t start = anatomy.exif->at - head;
    const std::size_t padded = std::min(old + old % 2, LittleEndian(bytes, 4, 4) - start);
    const std::string chunk = "EXIF" + LittleEndianBytes(size, 4) + std::string(kExifMark.substr(0, mark)) +
                              exif + std::string(size % 2, '\0');
    result = Replaced(bytes, {start, kChunkHead + padded}, chunk);
  } else {
    const std::string chunk =
        "EXIF" + LittleEndianBytes(exif.size(), 4) + exif + std::string(exif.size() % 2, '\0');
    // The last chunk may lack its padding, which nothing can follow then.
    const std::string pad(anatomy.exifGoesTo % 2, '\0');
    result = Replaced(bytes, {anatomy.exifGoesTo, 0}, pad + chunk);
  }
  std::string_view first = std::string_view(result).substr(kRiffHead, 4);
  if (first != "VP8X") {
    const Stretch& picture = anatomy.picture.front();
    const std::string head = ExtendedHead(std::string_view(bytes).substr(picture.at, 4),
                                          View(bytes, {picture.at + kChunkHead, picture.size - kChunkHead}));
    result.insert(kRiffHead, head);
  }
  char& flags = result[kRiffHead + kChunkHead];
  flags = static_cast<char>(static_cast<unsigned char>(flags) | kHasExif);
  const std::size_t behind = bytes.size() - (kChunkHead + LittleEndian(bytes, 4, 4));
  result.replace(4, 4, LittleEndianBytes(result.size() - kChunkHead - behind, 4));
  return result;
}

/// The picture's parts with the flag in it that an EXIF block turns on.
std::vector<std::string_view> WebPParts(const std::string& bytes, const PictureAnatomy& anatomy) {
  std::vector<std::string_view> parts;
  for (const Stretch& stretch : anatomy.picture) {
    const std::string_view part = View(bytes, stretch);
    if (BeginsWith(part, "VP8X")) {
      parts.push_back(part.substr(0, kChunkHead));
      parts.push_back(part.substr(std::min(part.size(), kChunkHead + 1)));
    } else {
      parts.push_back(part);
    }
  }
  return parts;
}

bool HasExtendedHead(const std::string& bytes) {
  return std::string_view(bytes).substr(kRiffHead, 4) == "VP8X";
}

bool IsSameWebP(const std::string& before, const std::string& after) {
  const std::vector<std::string_view> old = WebPParts(before, DissectWebP(before));
  std::vector<std::string_view> now = WebPParts(after, DissectWebP(after));
  if (!HasExtendedHead(before) && HasExtendedHead(after)) {
    now.erase(now.begin(), now.begin() + 2);
    return old == now;
  }
  constexpr std::size_t kFlags = kRiffHead + kChunkHead;
  return old == now &&
         (!HasExtendedHead(before) || (before[kFlags] | kHasExif) == (after[kFlags] | kHasExif));
}

// --- TIFF ---

PictureAnatomy DissectTiff(const std::string& bytes) {
  PictureAnatomy anatomy;
  anatomy.exif = Stretch{0, bytes.size()};
  const TiffEdit tiff(bytes);
  for (const std::uint16_t tag : {std::uint16_t{0x02BC}, std::uint16_t{0x83BB}, std::uint16_t{0x8649}}) {
    if (const auto range = tiff.ValueOf(tag)) {
      anatomy.texts.push_back({range->at, range->size});
    }
  }
  return anatomy;
}

bool IsSame(PictureFormat format, const std::string& before, const std::string& after) {
  const PictureAnatomy old = Dissect(format, before);
  const PictureAnatomy now = Dissect(format, after);
  return std::equal(old.picture.begin(), old.picture.end(), now.picture.begin(), now.picture.end(),
                    [&](Stretch a, Stretch b) { return View(before, a) == View(after, b); });
}

}  // namespace

std::optional<PictureFormat> FormatOf(std::string_view head, std::string& cause) {
  struct Mark {
    std::size_t at;
    std::string_view bytes;
    std::optional<PictureFormat> format;
    const char* name;
  };
  static const Mark kMarks[] = {
      {0, "\xFF\xD8\xFF", PictureFormat::Jpeg, ""},
      {0, kPngMark, PictureFormat::Png, ""},
      {8, "WEBP", PictureFormat::WebP, ""},
      {0, std::string_view("II*\0", 4), PictureFormat::Tiff, ""},
      {0, std::string_view("MM\0*", 4), PictureFormat::Tiff, ""},
      {0, "IIRO", PictureFormat::Tiff, ""},
      {0, "IIRS", PictureFormat::Tiff, ""},
      {0, "MMOR", PictureFormat::Tiff, ""},
      {4, "ftypcrx", std::nullopt, "CR3"},
      {4, "ftypavi", std::nullopt, "AVIF"},
      {4, "ftyp", std::nullopt, "HEIC"},
      {4, "JXL ", std::nullopt, "JPEG XL"},
      {0, "\xFF\x0A", std::nullopt, "JPEG XL"},
      {0, "FUJIFILM", std::nullopt, "RAF"},
      {0, std::string_view("IIU\0", 4), std::nullopt, "RW2"},
      {0, "FOVb", std::nullopt, "X3F"},
      {0, std::string_view("II+\0", 4), std::nullopt, "BigTIFF"},
      {0, std::string_view("MM\0+", 4), std::nullopt, "BigTIFF"},
      {0, "GIF8", std::nullopt, "GIF"},
      {0, "BM", std::nullopt, "BMP"},
      {0, "8BPS", std::nullopt, "PSD"},
  };
  cause.clear();
  for (const Mark& mark : kMarks) {
    if (head.size() > mark.at && BeginsWith(head.substr(mark.at), mark.bytes)) {
      if (!mark.format) {
        cause = std::string("photos of the format ") + mark.name + " cannot be edited";
      }
      return mark.format;
    }
  }
  cause = "its content is of no picture format that can be edited";
  return std::nullopt;
}

PictureAnatomy Dissect(PictureFormat format, const std::string& bytes) {
  switch (format) {
    case PictureFormat::Jpeg:
      return JpegReader(bytes).Read();
    case PictureFormat::Png:
      return DissectPng(bytes);
    case PictureFormat::WebP:
      return DissectWebP(bytes);
    default:
      return DissectTiff(bytes);
  }
}

std::string_view ExifBlock(const std::string& bytes, const PictureAnatomy& anatomy) {
  if (anatomy.oldExif) {
    return anatomy.oldExif->block;
  }
  return anatomy.exif ? View(bytes, *anatomy.exif) : std::string_view();
}

std::string WithExif(PictureFormat format, const std::string& bytes, const PictureAnatomy& anatomy,
                     const std::optional<std::string>& exif) {
  // Its chunks have checksums.
  if (format == PictureFormat::Png) {
    return PngWithExif(bytes, anatomy, exif);
  }
  if (!exif) {
    return bytes;
  }
  switch (format) {
    case PictureFormat::Jpeg:
      return JpegWithExif(bytes, anatomy, *exif);
    case PictureFormat::WebP:
      return WebPWithExif(bytes, anatomy, *exif);
    default:
      return *exif;
  }
}

void CheckSamePicture(PictureFormat format, const std::string& before, const std::string& after) {
  const bool same = format == PictureFormat::WebP ? IsSameWebP(before, after) : IsSame(format, before, after);
  if (!same) {
    throw EditRefusal("the picture in it would not stay as it is");
  }
}

}  // namespace Zenvora::Strandel
