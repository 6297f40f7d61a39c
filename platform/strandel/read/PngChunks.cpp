#include <zenvora/strandel/PngChunks.h>

namespace Zenvora::Strandel {

std::optional<PngChunk> PngChunks::Next() {
  const ByteView head = bytes_.At(at_, kHead);
  if (head.Size() < kHead) {
    return std::nullopt;
  }
  PngChunk chunk;
  head.Text().copy(chunk.type.data(), chunk.type.size(), 4);
  chunk.body = {at_ + kHead, *head.Big(0, 4)};
  chunk.whole = {at_, kHead + chunk.body.size + kChecksum};
  chunk.isWhole = chunk.whole.End() <= bytes_.Size();
  at_ = chunk.whole.End();
  return chunk;
}

}  // namespace Zenvora::Strandel
