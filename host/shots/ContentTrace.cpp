#include <host/base/ContentHash.h>
#include <host/shots/ContentTrace.h>

#include <zenvora/core/FileReader.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// Of either end. A photo's first holds what its camera notes, the last nothing but picture as a rule.
constexpr std::size_t kEdge = std::size_t{64} * 1024;
/// More than enough to tell all photos of the world from each other.
constexpr int kDigestBytes = 16;

QByteArray DigestOf(ContentHash& hash) {
  return QByteArray::fromHex(QByteArray::fromStdString(hash.Finish())).left(kDigestBytes);
}

/// How many different blocks of 16 bytes there are, counted up to clashes of their hashes.
class BlockCount {
 public:
  void Add(std::string_view bytes) {
    for (; bytes.size() >= kBlock; bytes.remove_prefix(kBlock)) {
      std::array<std::uint64_t, 2> words{};
      std::memcpy(words.data(), bytes.data(), kBlock);
      const std::uint64_t mixed = (words[0] * kFirst ^ words[1]) * kSecond;
      const std::size_t place = mixed >> (64U - kBits);
      different_ += seen_[place] ? 0 : 1;
      seen_[place] = true;
      ++all_;
    }
  }

  /// Flat areas, margins and padding say little: other pictures have the same. What a camera compressed, or
  /// the noise of its sensor, comes once.
  bool SaysLittle() const { return different_ * 2 < all_; }

 private:
  static constexpr std::size_t kBlock = 16;
  static constexpr unsigned kBits = 16;
  static constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
  static constexpr std::uint64_t kSecond = 0xC2B2AE3D27D4EB4F;

  std::vector<bool> seen_ = std::vector<bool>(std::size_t{1} << kBits);
  std::size_t different_ = 0;
  std::size_t all_ = 0;
};

void AddSize(ContentHash& hash, std::uint64_t size) {
  // As text: the same on every machine.
  hash.Add(std::to_string(size) + ':');
}

bool ReadWhole(FileReader& reader, std::uint64_t size, QByteArray& digest) {
  ContentHash hash;
  std::uint64_t done = 0;
  for (;;) {
    std::string_view piece;
    // A file that grows as fast as it is read would have no end.
    if (reader.Next(piece) || done > size) {
      return false;
    }
    if (piece.empty()) {
      digest = DigestOf(hash);
      return true;
    }
    hash.Add(piece);
    done += piece.size();
  }
}

}  // namespace

bool ReadContentTrace(const ioPath& file, ContentTrace& trace) {
  FileReader reader;
  std::string_view bytes;
  if (reader.Open(file)) {
    return false;
  }
  const std::uint64_t size = reader.State().size;
  ContentHash edges;
  BlockCount head;
  AddSize(edges, size);
  if (reader.At(0, kEdge, bytes)) {
    return false;
  }
  edges.Add(bytes);
  head.Add(bytes);
  ContentTrace read;
  // No byte counts twice.
  const std::uint64_t last = std::max<std::uint64_t>(kEdge, size > kEdge ? size - kEdge : 0);
  if (size > kEdge) {
    if (reader.At(last, kEdge, bytes)) {
      return false;
    }
    edges.Add(bytes);
    BlockCount tail;
    tail.Add(bytes);
    head.Add(bytes);
    // Of a small file it would be what is noted in it as well.
    if (size >= 2 * kEdge && !tail.SaysLittle()) {
      ContentHash hash;
      hash.Add(bytes);
      read.tail = DigestOf(hash);
    }
    if (last > kEdge && head.SaysLittle() && !ReadWhole(reader, size, read.content)) {
      return false;
    }
  }
  read.edges = DigestOf(edges);
  read.cameraId = trace.cameraId;
  trace = std::move(read);
  return true;
}

bool IsSameContent(const ContentTrace& left, const ContentTrace& right) {
  return !left.edges.isEmpty() && left.edges == right.edges && left.content == right.content;
}

bool IsSamePicture(const ContentTrace& left, const ContentTrace& right) {
  return IsSameContent(left, right) || (!left.tail.isEmpty() && left.tail == right.tail &&
                                        !left.cameraId.isEmpty() && left.cameraId == right.cameraId);
}

}  // namespace Zenvora::Lumidex::Host
