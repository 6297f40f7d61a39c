#include "PngParts.h"
#include "TiffParts.h"

#include <host/pixels/PictureEnd.h>

#include <zenvora/strandel/IsoBoxes.h>
#include <zenvora/strandel/JpegSegments.h>
#include <zenvora/strandel/PhotoSource.h>
#include <zenvora/strandel/PngChunks.h>
#include <zenvora/strandel/TiffDirectories.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

using Strandel::ByteView;
using Strandel::IsoBoxes;
using Strandel::JpegSegment;
using Strandel::JpegSegments;
using Strandel::PhotoSource;
using Strandel::PngChunks;
using Strandel::TiffDirectories;
using Strandel::TiffStructure;

namespace {

/// Cameras fill the rest of a file with zeros.
bool HasJpegEndLast(PhotoSource& source) {
  constexpr std::uint64_t kLooked = 1 << 16;
  const std::string_view tail = source.At(source.Size() - std::min(source.Size(), kLooked), kLooked).Text();
  const std::size_t last = tail.find_last_not_of('\0');
  return last != std::string_view::npos && last > 0 && tail[last - 1] == '\xFF' && tail[last] == '\xD9';
}

bool JpegEndsTooSoon(PhotoSource& source) {
  if (HasJpegEndLast(source)) {
    return false;
  }
  JpegSegments segments(source, JpegSegments::Gaps::Skipped);
  auto segment = segments.Next();
  while (segment && segment->marker != JpegSegment::kEndOfImage) {
    segment = segments.Next();
  }
  return !segment;
}

bool PngEndsTooSoon(PhotoSource& source) {
  PngChunks chunks(source);
  auto chunk = chunks.Next();
  while (chunk && chunk->isWhole && chunk->Type() != "IEND") {
    chunk = chunks.Next();
  }
  return !chunk || !chunk->isWhole;
}

bool WebPEndsTooSoon(PhotoSource& source) {
  // Some writers leave out the last byte that makes its length even.
  return source.At(4, 4).Little(0, 4).value_or(0) + 8 > source.Size() + 1;
}

bool BoxesEndTooSoon(PhotoSource& source) {
  IsoBoxes boxes(source);
  auto box = boxes.Next();
  while (box && box->isWhole) {
    box = boxes.Next();
  }
  return box.has_value();
}

bool TiffEndsTooSoon(PhotoSource& source) {
  const TiffStructure tiff(source, TiffStructure::Form::Classic);
  TiffDirectories directories(tiff);
  for (auto directory = directories.Next(); directory; directory = directories.Next()) {
    if (!directory->isWhole || !HoldsAllParts(tiff, *directory)) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool EndsTooSoon(const ioPath& file) {
  PhotoSource source;
  std::string cause;
  if (!source.Open(file, cause)) {
    return false;
  }
  const std::string head(source.At(0, 12).Text());
  const auto begins = [&head](std::string_view mark) { return ByteView(head).BeginsWith(mark); };
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
  const bool isTiff = begins(std::string_view("MM\0*", 4)) || begins("MMOR") ||
                      begins(std::string_view("II*\0", 4)) || begins("IIRO") || begins("IIRS");
  return isTiff && TiffEndsTooSoon(source);
}

bool IsDamagedPng(const ioPath& file) {
  PhotoSource source;
  std::string cause;
  return source.Open(file, cause) && StateOfPng(source, PngPart::Whole) == PngState::Damaged;
}

}  // namespace Zenvora::Lumidex::Host
