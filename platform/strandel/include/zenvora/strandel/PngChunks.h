#pragma once

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/Export.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Zenvora::Strandel {

/// A chunk of a PNG file.
struct PngChunk {
  std::array<char, 4> type{};
  ByteRange whole;  ///< With its length, its type and its checksum.
  ByteRange body;
  bool isWhole = true;  ///< False when the file ends within it.

  std::string_view Type() const { return {type.data(), type.size()}; }
};

/// Walks through the chunks of a PNG file, behind the bytes that begin the file. Never reads beyond the
/// bytes; each step goes forward.
class ZENVORA_STRANDEL_EXPORT PngChunks {
 public:
  static constexpr std::uint64_t kHead = 8;      ///< Length and type.
  static constexpr std::uint64_t kChecksum = 4;  ///< Behind the body.

  explicit PngChunks(ByteSource bytes) : bytes_(bytes) {}
  /// Nothing where the bytes end before a type.
  std::optional<PngChunk> Next();

 private:
  ByteSource bytes_;
  std::uint64_t at_ = 8;
};

}  // namespace Zenvora::Strandel
