#include <zenvora/strandel/IsoBoxes.h>

#include <algorithm>

namespace Zenvora::Strandel {

std::optional<IsoBox> IsoBoxes::Next() {
  constexpr std::uint64_t kShortHead = 8;
  constexpr std::uint64_t kLongHead = 16;
  const ByteView head = bytes_.At(part_.at, static_cast<std::size_t>(std::min(part_.size, kLongHead)));
  if (head.Size() < kShortHead) {
    return std::nullopt;
  }
  IsoBox box;
  head.Text().copy(box.type.data(), box.type.size(), 4);
  std::uint64_t headSize = kShortHead;
  std::uint64_t size = *head.Big(0, 4);
  if (size == 1) {
    headSize = kLongHead;
    size = head.Big(kShortHead, 8).value_or(0);
  } else if (size == 0) {
    size = part_.size;
  }
  if (size < headSize) {
    part_ = {};
    return std::nullopt;
  }
  box.whole = {part_.at, size};
  box.content = {part_.at + headSize, size - headSize};
  box.isWhole = size <= part_.size;
  part_ = box.isWhole ? ByteRange{part_.at + size, part_.size - size} : ByteRange{};
  return box;
}

}  // namespace Zenvora::Strandel
