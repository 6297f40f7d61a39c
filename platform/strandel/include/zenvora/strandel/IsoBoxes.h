#pragma once

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/Export.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Zenvora::Strandel {

/// A box of a file made of boxes (ISO/IEC 14496-12, 4.2): HEIC, AVIF, films.
struct IsoBox {
  std::array<char, 4> type{};
  ByteRange whole;  ///< With its head.
  ByteRange content;
  bool isWhole = true;  ///< False when it reaches beyond what it stands in.

  bool Is(std::string_view name) const { return std::string_view(type.data(), type.size()) == name; }
};

/// Walks through the boxes that stand one behind the other in a part of the bytes, and not into them. Never
/// reads beyond the part; each step goes forward. A box without a size reaches to the end of the part.
class ZENVORA_STRANDEL_EXPORT IsoBoxes {
 public:
  explicit IsoBoxes(ByteSource bytes) : IsoBoxes(bytes, {0, bytes.Size()}) {}
  IsoBoxes(ByteSource bytes, ByteRange part) : bytes_(bytes), part_(part) {}

  /// Nothing at the end, where what follows is no box, and behind a box that is not whole.
  std::optional<IsoBox> Next();

 private:
  ByteSource bytes_;
  ByteRange part_;  ///< Not walked yet.
};

}  // namespace Zenvora::Strandel
