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

/// How traces are made. Scans read one of every photo: each kilobyte that is digested can be felt.
struct TraceForm {
  /// Of either end, in bytes. A photo's first holds what its camera notes, the last nothing but picture as a
  /// rule.
  std::size_t edge;
  /// Of a digest; this many are more than enough to tell all photos of the world from each other, and their
  /// number tells the form.
  int digestBytes;
  /// Of the last bytes their digest goes into the edges, so that none is digested twice.
  bool edgesHoldTail;
};
constexpr TraceForm kPresent{std::size_t{16} * 1024, 20, true};
/// Of catalogues up to format 6.
constexpr TraceForm kFormer{std::size_t{64} * 1024, 16, false};

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray DigestOf(ContentHash& hash, const TraceForm& form) {
  return hash.Finish().left(form.digestBytes);
}

QByteArray DigestOf(std::string_view bytes, const TraceForm& form) {
  ContentHash hash;
  hash.Add(bytes);
  return DigestOf(hash, form);
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

bool ReadTrace(const ioPath& file, const TraceForm& form, ContentTrace& trace) {
  FileReader reader;
  std::string_view bytes;
  if (reader.Open(file)) {
    return false;
  }
  const std::uint64_t size = reader.State().size;
  ContentHash edges;
  BlockCount head;
  AddSize(edges, size);
  if (reader.At(0, form.edge, bytes)) {
    return false;
  }
  edges.Add(bytes);
  head.Add(bytes);
  ContentTrace read;
  // No byte counts twice.
  const std::uint64_t last = std::max<std::uint64_t>(form.edge, size > form.edge ? size - form.edge : 0);
  if (size > form.edge) {
    if (reader.At(last, form.edge, bytes)) {
      return false;
    }
    const QByteArray digest = DigestOf(bytes, form);
    edges.Add(form.edgesHoldTail ? View(digest) : bytes);
    BlockCount tail;
    tail.Add(bytes);
    head.Add(bytes);
    // Of a small file it would be what is noted in it as well.
    if (size >= 2 * form.edge && !tail.SaysLittle()) {
      read.tail = digest;
    }
    if (last > form.edge && head.SaysLittle()) {
      ContentHash whole;
      if (whole.Add(reader)) {
        return false;
      }
      read.content = DigestOf(whole, form);
    }
  }
  read.edges = DigestOf(edges, form);
  read.cameraId = trace.cameraId;
  trace = std::move(read);
  return true;
}

}  // namespace

bool ReadContentTrace(const ioPath& file, ContentTrace& trace) {
  return ReadTrace(file, kPresent, trace);
}

bool ReadFormerTrace(const ioPath& file, ContentTrace& trace) {
  return ReadTrace(file, kFormer, trace);
}

bool IsFormer(const ContentTrace& trace) {
  return trace.edges.size() == kFormer.digestBytes;
}

}  // namespace Zenvora::Lumidex::Host
