#include "JpegMending.h"

#include "DeviceBytes.h"

#include <zenvora/strandel/JpegSegments.h>

namespace Zenvora::Lumidex::Host {

using Strandel::JpegSegment;
using Strandel::JpegSegments;

namespace {

constexpr int kTables = JpegSegment::kHuffmanTables;
constexpr int kEnd = JpegSegment::kEndOfImage;
constexpr int kScan = JpegSegment::kStartOfScan;

int Byte(const QByteArray& bytes, int at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes.at(at)) : -1;
}

int Length(const QByteArray& bytes, int marker) {
  const int high = Byte(bytes, marker + 2);
  const int low = Byte(bytes, marker + 3);
  return high < 0 || low < 0 ? 0 : high * 256 + low;
}

bool IsScanHead(const QByteArray& bytes, int at) {
  const int parts = Byte(bytes, at + 4);
  const int length = Length(bytes, at);
  if (parts < 1 || parts > 4 || length != 6 + 2 * parts || at + 2 + length > bytes.size()) {
    return false;
  }
  const int first = Byte(bytes, at + 5 + 2 * parts);
  const int last = Byte(bytes, at + 6 + 2 * parts);
  return first <= last && last < 64;
}

bool IsTables(const QByteArray& bytes, int at) {
  constexpr int kCounts = 16;
  const int end = at + 2 + Length(bytes, at);
  int next = at + 4;
  while (next < end && end <= bytes.size()) {
    const int name = Byte(bytes, next);
    if ((name & 0xEC) != 0) {
      return false;
    }
    int codes = 0;
    for (int i = 1; i <= kCounts; ++i) {
      codes += Byte(bytes, next + i);
    }
    next += 1 + kCounts + codes;
  }
  return next == end && next > at + 4;
}

/// The end of a picture: of the file, or before further pictures, zeros or what cameras put behind the last
/// one. An end by accident has the right one behind it.
bool IsEnd(const QByteArray& bytes, int at) {
  const int next = Byte(bytes, at + 2);
  return next <= 0 || (next == 0xFF && Byte(bytes, at + 3) == 0xD8) || !bytes.endsWith("\xFF\xD9");
}

/// The first byte of the first scan's data; -1 when there is none.
int FirstData(const QByteArray& bytes) {
  JpegSegments segments(ViewOf(bytes));
  for (auto segment = segments.Next(); segment && segment->isWhole; segment = segments.Next()) {
    if (segment->marker == kScan) {
      return static_cast<int>(segment->whole.End());
    }
  }
  return -1;
}

}  // namespace

bool MendJpeg(QByteArray& bytes) {
  bool mended = false;
  int at = FirstData(bytes);
  for (at = at < 0 ? -1 : bytes.indexOf('\xFF', at); at >= 0; at = bytes.indexOf('\xFF', at)) {
    const int marker = Byte(bytes, at + 1);
    if (marker == kEnd && IsEnd(bytes, at)) {
      break;
    }
    if (marker < 0 || marker == 0xFF) {
      ++at;
    } else if (marker == 0 || (marker >= 0xD0 && marker <= 0xD7)) {
      at += 2;
    } else if ((marker == kScan && IsScanHead(bytes, at)) || (marker == kTables && IsTables(bytes, at))) {
      at += 2 + Length(bytes, at);
    } else {
      bytes[at + 1] = 0;
      mended = true;
      at += 2;
    }
  }
  return mended;
}

}  // namespace Zenvora::Lumidex::Host
