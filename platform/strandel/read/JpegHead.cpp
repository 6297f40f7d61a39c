#include <zenvora/strandel/JpegHead.h>
#include <zenvora/strandel/JpegSegments.h>
#include <zenvora/strandel/TiffDirectories.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint16_t kOrientation = 0x0112;
constexpr std::uint16_t kThumbnailAt = 0x0201;
constexpr std::uint16_t kThumbnailBytes = 0x0202;

/// A whole number, SHORT or LONG.
std::optional<std::uint64_t> NumberOf(const TiffStructure& exif, const TiffDirectory& directory,
                                      std::uint16_t tag) {
  constexpr std::uint16_t kShort = 3;
  const auto entry = exif.Find(directory, tag);
  return entry ? exif.Number(entry->at + 8, entry->type == kShort ? 2 : 4) : std::nullopt;
}

QByteArray ThumbnailOf(const TiffStructure& exif, const TiffDirectory& directory, ByteView block) {
  const auto at = NumberOf(exif, directory, kThumbnailAt);
  const auto size = NumberOf(exif, directory, kThumbnailBytes);
  if (!at || !size || *size < 4) {
    return {};
  }
  const ByteView thumbnail = block.Part({*at, *size});
  return thumbnail.Size() == *size && thumbnail.BeginsWith("\xFF\xD8")
             ? QByteArray(thumbnail.Text().data(), static_cast<int>(thumbnail.Size()))
             : QByteArray();
}

void ReadExif(ByteView block, JpegHead& head) {
  const TiffStructure exif(block, TiffStructure::Form::Classic);
  const auto placeOfFirst = exif.First();
  const auto first = placeOfFirst ? exif.DirectoryAt(*placeOfFirst) : std::nullopt;
  if (!first) {
    return;
  }
  head.orientation = static_cast<int>(NumberOf(exif, *first, kOrientation).value_or(1));
  const std::uint64_t next = exif.Next(*first).value_or(0);
  const auto second = next != 0 ? exif.DirectoryAt(next) : std::nullopt;
  if (second) {
    head.thumbnail = ThumbnailOf(exif, *second, block);
  }
}

/// The TIFF structure of an EXIF segment; nothing in other segments.
std::optional<ByteView> ExifBlock(ByteView segment) {
  constexpr std::size_t kMark = 6;
  constexpr std::size_t kHeader = 8;
  const ByteView block = segment.Part({kMark, segment.Size()});
  const bool isExif = segment.BeginsWith(std::string_view("Exif\0", 5)) && block.Size() > kHeader &&
                      (block.BeginsWith("II") || block.BeginsWith("MM"));
  return isExif ? std::optional(block) : std::nullopt;
}

}  // namespace

JpegHead ReadJpegHead(const QByteArray& beginning) {
  JpegHead head;
  const ByteView bytes(std::string_view(beginning.constData(), static_cast<std::size_t>(beginning.size())));
  bool exifRead = false;
  JpegSegments segments(bytes);
  for (auto segment = segments.Next(); segment && segment->isWhole; segment = segments.Next()) {
    const ByteView body = bytes.Part(segment->body);
    if (segment->marker == JpegSegment::kStartOfScan || segment->marker == JpegSegment::kEndOfImage) {
      break;
    }
    if (segment->marker == JpegSegment::kApp1 && !exifRead) {
      const auto block = ExifBlock(body);
      exifRead = block.has_value();
      ReadExif(block.value_or(ByteView()), head);
    } else if (segment->IsFrame() && body.Size() >= 5) {
      head.size = JpegFrameSize(body);
      break;
    }
  }
  return head;
}

}  // namespace Zenvora::Strandel
