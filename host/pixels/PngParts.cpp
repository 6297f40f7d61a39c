#include "PngParts.h"

#include "DeviceBytes.h"

#include <boost/crc.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace Zenvora::Lumidex::Host {

namespace {

using Strandel::ByteSource;
using Strandel::PngChunk;
using Strandel::PngChunks;

constexpr std::string_view kMark("\x89PNG\r\n\x1a\n", 8);

bool IsType(const PngChunk& chunk) {
  return std::all_of(chunk.type.begin(), chunk.type.end(), [](char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
  });
}

/// Capital letters begin the types without which there is no picture.
bool IsNeeded(const PngChunk& chunk) {
  return chunk.type[0] <= 'Z';
}

}  // namespace

bool HasItsChecksum(const ByteSource& file, const PngChunk& chunk) {
  constexpr std::uint64_t kPiece = std::uint64_t{64} * 1024;
  constexpr std::uint64_t kLength = 4;
  boost::crc_32_type checksum;
  // Over the type, too.
  for (std::uint64_t at = chunk.whole.at + kLength; at < chunk.body.End();) {
    const auto count = static_cast<std::size_t>(std::min(kPiece, chunk.body.End() - at));
    const std::string_view piece = file.At(at, count).Text();
    if (piece.size() < count) {
      return false;
    }
    checksum.process_bytes(piece.data(), piece.size());
    at += count;
  }
  return file.At(chunk.body.End(), PngChunks::kChecksum).Big(0, PngChunks::kChecksum) == checksum.checksum();
}

PngState StateOfPng(const ByteSource& file, PngPart part) {
  if (!file.At(0, kMark.size()).BeginsWith(kMark)) {
    return PngState::Sound;
  }
  PngState state = PngState::Sound;
  PngChunks chunks(file);
  for (;;) {
    const auto chunk = chunks.Next();
    if (chunk && chunk->isWhole && part == PngPart::Head && chunk->Type() == "IDAT") {
      return state;
    }
    if (!chunk || !chunk->isWhole || !IsType(*chunk)) {
      return PngState::Damaged;
    }
    if (!HasItsChecksum(file, *chunk)) {
      if (IsNeeded(*chunk)) {
        return PngState::Damaged;
      }
      state = PngState::DamagedExtras;
    }
    if (chunk->Type() == "IEND") {
      return state;
    }
  }
}

PngState StateOfPng(QIODevice& device, PngPart part) {
  DeviceBytes bytes(device);
  return StateOfPng(ByteSource(bytes), part);
}

QByteArray WithoutDamagedExtras(QIODevice& device) {
  DeviceBytes bytes(device);
  const ByteSource file(bytes);
  QByteArray rest(kMark.data(), static_cast<int>(kMark.size()));
  PngChunks chunks(file);
  for (auto chunk = chunks.Next(); chunk && chunk->isWhole; chunk = chunks.Next()) {
    if (IsNeeded(*chunk) || HasItsChecksum(file, *chunk)) {
      const auto text = file.At(chunk->whole.at, static_cast<std::size_t>(chunk->whole.size)).Text();
      rest.append(text.data(), static_cast<int>(text.size()));
    }
  }
  return rest;
}

}  // namespace Zenvora::Lumidex::Host
