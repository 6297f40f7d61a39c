#include <zenvora/strandel/JpegSegments.h>

#include <algorithm>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

constexpr char kFill = '\xFF';

/// Within a picture's data a zero says that the byte before it is part of them, as do marks of a new start.
bool IsOfData(char behindFill) {
  const auto byte = static_cast<unsigned char>(behindFill);
  return byte == 0 || (byte >= 0xD0 && byte <= 0xD7);
}

}  // namespace

QSize JpegFrameSize(ByteView frame) {
  const auto height = frame.Big(1, 2);
  const auto width = frame.Big(3, 2);
  return height && width ? QSize(static_cast<int>(*width), static_cast<int>(*height)) : QSize();
}

std::optional<JpegSegment> JpegSegments::Next() {
  if (!FindMarker()) {
    return std::nullopt;
  }
  std::uint64_t at = at_ + 1;
  auto marker = Byte(at);
  while (marker == 0xFF) {
    marker = Byte(++at);
  }
  if (!marker) {
    atEnd_ = true;
    return std::nullopt;
  }
  ++at;
  JpegSegment segment;
  segment.marker = static_cast<std::uint8_t>(*marker);
  segment.body = {at, 0};
  if (!segment.StandsAlone()) {
    constexpr std::uint64_t kLength = 2;
    const std::uint64_t length = bytes_.At(at, kLength).Big(0, kLength).value_or(0);
    segment.body = {at + kLength, std::max(length, kLength) - kLength};
    segment.isWhole = length >= kLength && segment.body.End() <= bytes_.Size();
  }
  segment.whole = {at_, segment.body.End() - at_};
  at_ = segment.whole.End();
  return segment;
}

bool JpegSegments::FindMarker() {
  if (gaps_ == Gaps::Skipped) {
    return SkipGap();
  }
  const std::string_view head = bytes_.At(at_, 2).Text();
  atEnd_ = head.size() < 2;
  return !atEnd_ && head[0] == kFill;
}

/// Goes to the next byte that begins a marker.
bool JpegSegments::SkipGap() {
  constexpr std::size_t kPiece = std::size_t{1} << 16U;
  for (;;) {
    const std::string_view piece = bytes_.At(at_, kPiece).Text();
    std::size_t found = piece.find(kFill);
    while (found < piece.size() - 1 && (piece[found + 1] == kFill || IsOfData(piece[found + 1]))) {
      found = piece.find(kFill, found + (piece[found + 1] == kFill ? 1 : 2));
    }
    if (found != std::string_view::npos && found + 1 < piece.size()) {
      at_ += found;
      return true;
    }
    if (piece.size() < kPiece) {
      atEnd_ = true;
      return false;
    }
    // The piece's last byte may begin a marker.
    at_ += std::min(found, piece.size());
  }
}

}  // namespace Zenvora::Strandel
