#include "EditRefusal.h"
#include "FormatLayouts.h"

#include <zenvora/strandel/JpegSegments.h>

namespace Zenvora::Strandel {

namespace {

constexpr std::string_view kXmpMark("http://ns.adobe.com/xap/1.0/\0", 29);
constexpr std::string_view kIptcMark("Photoshop 3.0\0", 14);

/// Segments up to the picture's data, or a refusal.
class PictureHead {
 public:
  explicit PictureHead(const std::string& bytes) : size_(bytes.size()), segments_(ByteView(bytes)) {}

  JpegSegment Next() {
    const auto segment = segments_.Next();
    if (segment && segment->marker == JpegSegment::kStartOfScan) {
      return *segment;
    }
    if (segment ? segment->whole.End() > size_ : segments_.IsAtEnd()) {
      throw EditRefusal("its JPEG data breaks off before the picture");
    }
    if (!segment || !segment->isWhole) {
      throw EditRefusal("its JPEG data is damaged");
    }
    if (segment->marker == JpegSegment::kEndOfImage) {
      throw EditRefusal("its JPEG data ends before the picture");
    }
    return *segment;
  }

 private:
  const std::uint64_t size_;
  JpegSegments segments_;
};

}  // namespace

ImageLayout ReadJpegLayout(const std::string& bytes) {
  ImageLayout layout;
  layout.exifGoesTo = 2;
  PictureHead head(bytes);
  JpegSegment segment = head.Next();
  for (; segment.marker != JpegSegment::kStartOfScan; segment = head.Next()) {
    const ByteView body = View(bytes, segment.body);
    if (segment.marker == JpegSegment::kApp0 && segment.whole.at == layout.exifGoesTo) {
      // The block of the picture's resolution has a right to be the first.
      layout.exifGoesTo = segment.whole.End();
    }
    if (segment.marker == JpegSegment::kApp1 && body.BeginsWith(kExifMark) && !layout.exif) {
      layout.exif = ByteRange{segment.body.at + kExifMark.size(), segment.body.size - kExifMark.size()};
      layout.exifMark = kExifMark.size();
    } else if ((segment.marker == JpegSegment::kApp1 && body.BeginsWith(kXmpMark)) ||
               (segment.marker == JpegSegment::kApp13 && body.BeginsWith(kIptcMark))) {
      layout.texts.push_back(segment.body);
    } else {
      layout.picture.push_back(segment.whole);
    }
  }
  // With all that follows, be it further pictures or films.
  layout.picture.push_back({segment.whole.at, bytes.size() - segment.whole.at});
  return layout;
}

std::string JpegWithExif(const std::string& bytes, const ImageLayout& layout, const std::string& exif) {
  constexpr std::size_t kLongestSegment = 0xFFFF;
  const std::size_t length = 2 + kExifMark.size() + exif.size();
  if (length > kLongestSegment) {
    throw EditRefusal("there is no room left in its EXIF block");
  }
  const std::string segment = BigEndianBytes(length, 2) + std::string(kExifMark) + exif;
  if (!layout.exif) {
    return Replaced(bytes, {layout.exifGoesTo, 0}, "\xFF\xE1" + segment);
  }
  const std::size_t before = 2 + layout.exifMark;
  return Replaced(bytes, {layout.exif->at - before, layout.exif->size + before}, segment);
}

}  // namespace Zenvora::Strandel
