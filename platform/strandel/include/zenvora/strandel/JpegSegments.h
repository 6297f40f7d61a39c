#pragma once

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/Export.h>

#include <QSize>

#include <cstdint>
#include <optional>

namespace Zenvora::Strandel {

/// A segment of a JPEG file (ITU-T T.81, B.1.1).
struct JpegSegment {
  enum Marker : std::uint8_t {
    kHuffmanTables = 0xC4,
    kStartOfImage = 0xD8,
    kEndOfImage = 0xD9,
    kStartOfScan = 0xDA,
    kQuantisation = 0xDB,
    kRestartInterval = 0xDD,
    kApp0 = 0xE0,
    kApp1 = 0xE1,
    kApp2 = 0xE2,
    kApp13 = 0xED,
  };

  std::uint8_t marker = 0;
  ByteRange whole;  ///< From its marker, and bytes that fill up to it, to its end.
  ByteRange body;   ///< What stands behind its length; empty for a marker that stands alone.
  /// False when the file ends within it, and when its length makes no sense.
  bool isWhole = true;

  /// Whether its marker has neither length nor body.
  bool StandsAlone() const {
    return marker == 0x01 || IsRestart() || marker == kStartOfImage || marker == kEndOfImage;
  }
  bool IsRestart() const { return marker >= 0xD0 && marker <= 0xD7; }
  /// Whether it begins a frame, whatever its coding.
  bool IsFrame() const {
    return marker >= 0xC0 && marker <= 0xCF && marker != kHuffmanTables && marker != 0xC8 && marker != 0xCC;
  }
};

/// The pixels of a picture, by the body of its frame's segment; empty when that is too short.
ZENVORA_STRANDEL_EXPORT QSize JpegFrameSize(ByteView frame);

/// Walks through the segments of a JPEG file, behind the marker that begins the file. Never reads beyond the
/// bytes; each step goes forward.
class ZENVORA_STRANDEL_EXPORT JpegSegments {
 public:
  enum class Gaps {
    End,      ///< Segments stand one behind the other, as they do before a picture.
    Skipped,  ///< Whatever stands before a marker is passed over: the data of pictures, or rubbish.
  };
  explicit JpegSegments(ByteSource bytes, Gaps gaps = Gaps::End) : bytes_(bytes), gaps_(gaps) {}

  /// The next segment; nothing where none begins.
  std::optional<JpegSegment> Next();
  /// True when there was no next segment because the bytes end.
  bool IsAtEnd() const { return atEnd_; }
  /// The next segment will be looked for from `at` on.
  void GoTo(std::uint64_t at) { at_ = at; }

 private:
  std::optional<std::uint64_t> Byte(std::uint64_t at) const { return bytes_.At(at, 1).Big(0, 1); }
  bool FindMarker();
  bool SkipGap();

  ByteSource bytes_;
  Gaps gaps_;
  std::uint64_t at_ = 2;
  bool atEnd_ = false;
};

}  // namespace Zenvora::Strandel
