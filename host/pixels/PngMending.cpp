#include "PngMending.h"

#include "DeviceBytes.h"
#include "PngParts.h"

#include <host/pixels/PhotoPixels.h>

#include <zenvora/strandel/PngChunks.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <zlib.h>

namespace Zenvora::Lumidex::Host {

namespace {

using Strandel::ByteSource;
using Strandel::PngChunk;
using Strandel::PngChunks;

constexpr std::size_t kPiece = std::size_t{64} * 1024;
/// A picture of which less is there is none: all such would be alike.
constexpr double kLeastShown = 0.05;

/// Where the pixels of a pass lie: those of an interlaced picture are stored in seven passes.
struct Grid {
  int x, y, stepX, stepY;
};
constexpr std::array<Grid, 7> kGrids = {
    {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}}};

struct Head {
  QSize size;
  int bits = 0;  ///< Of a pixel.
  bool isPaletted = false;
  bool isInterlaced = false;
};

std::optional<Head> HeadOf(const ByteSource& file, const PngChunk& chunk) {
  constexpr std::uint64_t kBodySize = 13;
  /// No decoder takes more.
  constexpr std::uint64_t kMostSide = 1'000'000;
  if (chunk.Type() != "IHDR" || !chunk.isWhole || chunk.body.size != kBodySize ||
      !HasItsChecksum(file, chunk)) {
    return std::nullopt;
  }
  const Strandel::ByteView body = file.At(chunk.body.at, kBodySize);
  const std::uint64_t width = *body.Big(0, 4);
  const std::uint64_t height = *body.Big(4, 4);
  const auto depth = static_cast<int>(*body.Big(8, 1));
  const std::uint64_t colour = *body.Big(9, 1);
  // Grey, and by colour's three bits: indices of a palette, three colours, transparency.
  constexpr std::array<int, 7> kSamples = {1, 0, 3, 1, 2, 0, 4};
  const int samples = colour < kSamples.size() ? kSamples[colour] : 0;
  const bool isDepth = depth == 8 || (depth == 16 && colour != 3) ||
                       ((depth == 1 || depth == 2 || depth == 4) && (colour == 0 || colour == 3));
  if (width == 0 || height == 0 || width > kMostSide || height > kMostSide || samples == 0 || !isDepth ||
      *body.Big(10, 2) != 0 || *body.Big(12, 1) > 1) {
    return std::nullopt;
  }
  return Head{QSize(static_cast<int>(width), static_cast<int>(height)), depth * samples, colour == 3,
              *body.Big(12, 1) == 1};
}

std::vector<MendedPng::Pass> PassesOf(const Head& head) {
  if (!head.isInterlaced) {
    return {{head.size, 0}};
  }
  std::vector<MendedPng::Pass> passes;
  passes.reserve(kGrids.size());
  for (const Grid& grid : kGrids) {
    passes.push_back({{(head.size.width() - grid.x + grid.stepX - 1) / grid.stepX,
                       (head.size.height() - grid.y + grid.stepY - 1) / grid.stepY},
                      0});
  }
  return passes;
}

/// Packs rows again.
class Packer {
 public:
  Packer() { isOpen_ = deflateInit(&stream_, Z_BEST_SPEED) == Z_OK; }
  ~Packer() {
    if (isOpen_) {
      deflateEnd(&stream_);
    }
  }
  Packer(const Packer&) = delete;
  Packer& operator=(const Packer&) = delete;

  void Add(std::string_view bytes, bool isLast = false) {
    // The C interface does not write into it.
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream_.avail_in = static_cast<uInt>(bytes.size());
    do {
      stream_.next_out = piece_.data();
      stream_.avail_out = static_cast<uInt>(piece_.size());
      if (!isOpen_ || deflate(&stream_, isLast ? Z_FINISH : Z_NO_FLUSH) == Z_STREAM_ERROR) {
        return;
      }
      packed_.append(reinterpret_cast<const char*>(piece_.data()),
                     static_cast<int>(piece_.size() - stream_.avail_out));
    } while (stream_.avail_out == 0);
  }
  const QByteArray& Packed() const { return packed_; }

 private:
  z_stream stream_{};
  bool isOpen_ = false;
  std::array<Bytef, kPiece> piece_{};
  QByteArray packed_;
};

/// Unpacks the pixels, row by row, for as long as they are rows.
class Rows {
 public:
  explicit Rows(const Head& head) : bits_(head.bits), passes_(PassesOf(head)) {
    isOpen_ = inflateInit(&stream_) == Z_OK;
    isOver_ = !isOpen_;
    SkipEmpty();
  }
  ~Rows() {
    if (isOpen_) {
      inflateEnd(&stream_);
    }
  }
  Rows(const Rows&) = delete;
  Rows& operator=(const Rows&) = delete;

  bool IsOver() const { return isOver_; }

  void Add(std::string_view packed) {
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream_.avail_in = static_cast<uInt>(packed.size());
    while (!isOver_) {
      stream_.next_out = piece_.data();
      stream_.avail_out = static_cast<uInt>(piece_.size());
      const int state = inflate(&stream_, Z_NO_FLUSH);
      Take({reinterpret_cast<const char*>(piece_.data()), piece_.size() - stream_.avail_out});
      isOver_ = isOver_ || (state != Z_OK && state != Z_BUF_ERROR);
      if (stream_.avail_out != 0) {
        return;
      }
    }
  }

  /// What is missing becomes rows that repeat the one above.
  QByteArray Finish() {
    constexpr char kLikeAbove = 2;
    for (; pass_ < passes_.size(); ++pass_, done_ = 0, SkipEmpty()) {
      const std::string row = kLikeAbove + std::string(RowBytes(), '\0');
      for (; done_ < passes_[pass_].size.height(); ++done_) {
        packer_.Add(row);
      }
    }
    packer_.Add({}, true);
    return packer_.Packed();
  }

  const std::vector<MendedPng::Pass>& Passes() const { return passes_; }

 private:
  std::size_t RowBytes() const {
    return (static_cast<std::size_t>(passes_[pass_].size.width()) * static_cast<std::size_t>(bits_) + 7) / 8;
  }

  void SkipEmpty() {
    while (pass_ < passes_.size() && passes_[pass_].size.isEmpty()) {
      ++pass_;
    }
  }

  void Take(std::string_view bytes) {
    constexpr char kLastFilter = 4;
    while (!bytes.empty() && !isOver_) {
      if (row_.empty() && (bytes.front() < 0 || bytes.front() > kLastFilter)) {
        // No row begins so.
        isOver_ = true;
        return;
      }
      const std::size_t count = std::min(bytes.size(), 1 + RowBytes() - row_.size());
      row_.append(bytes.substr(0, count));
      bytes.remove_prefix(count);
      if (row_.size() == 1 + RowBytes()) {
        packer_.Add(row_);
        row_.clear();
        passes_[pass_].rows = ++done_;
        if (done_ == passes_[pass_].size.height()) {
          done_ = 0;
          ++pass_;
          SkipEmpty();
          isOver_ = pass_ == passes_.size();
        }
      }
    }
  }

  const int bits_;
  std::vector<MendedPng::Pass> passes_;
  std::size_t pass_ = 0;
  int done_ = 0;  ///< Rows of the pass.
  std::string row_;
  z_stream stream_{};
  bool isOpen_ = false;
  bool isOver_ = false;
  std::array<Bytef, kPiece> piece_{};
  Packer packer_;
};

void AddNumber(QByteArray& bytes, std::uint32_t number) {
  for (const int shift : {24, 16, 8, 0}) {
    bytes.append(static_cast<char>(number >> static_cast<unsigned>(shift) & 0xFFU));
  }
}

void AddChunk(QByteArray& file, std::string_view type, std::string_view body) {
  AddNumber(file, static_cast<std::uint32_t>(body.size()));
  const int begin = file.size();
  file.append(type.data(), static_cast<int>(type.size()));
  file.append(body.data(), static_cast<int>(body.size()));
  AddNumber(file,
            static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const Bytef*>(file.constData() + begin),
                                             static_cast<uInt>(file.size() - begin))));
}

/// Chunks before the pixels by which these look different.
bool IsForColours(std::string_view type) {
  constexpr std::array<std::string_view, 6> kTypes = {"PLTE", "tRNS", "gAMA", "cHRM", "sRGB", "iCCP"};
  return std::find(kTypes.begin(), kTypes.end(), type) != kTypes.end();
}

void AddPixels(const ByteSource& file, const PngChunk& chunk, Rows& rows) {
  const std::uint64_t end = chunk.body.End();
  for (std::uint64_t at = chunk.body.at; at < end && !rows.IsOver();) {
    const std::string_view piece =
        file.At(at, static_cast<std::size_t>(std::min<std::uint64_t>(kPiece, end - at))).Text();
    if (piece.empty()) {
      return;
    }
    rows.Add(piece);
    at += piece.size();
  }
}

}  // namespace

MendedPng MendPng(QIODevice& device) {
  constexpr std::string_view kMark("\x89PNG\r\n\x1a\n", 8);
  MendedPng png;
  DeviceBytes bytes(device);
  const ByteSource file(bytes);
  PngChunks chunks(file);
  auto chunk = chunks.Next();
  const auto head = chunk ? HeadOf(file, *chunk) : std::nullopt;
  if (!head) {
    return png;
  }
  png.size = head->size;
  const std::int64_t pixels = static_cast<std::int64_t>(png.size.width()) * png.size.height();
  png.isTooLarge = pixels > kMostPixels || pixels * std::max(head->bits, 8) / 8 > kMostBytes;
  if (png.isTooLarge) {
    return png;
  }
  png.bytes.append(kMark.data(), static_cast<int>(kMark.size()));
  AddChunk(png.bytes, "IHDR", file.At(chunk->body.at, static_cast<std::size_t>(chunk->body.size)).Text());
  Rows rows(*head);
  bool hasPixels = false;
  bool hasPalette = false;
  for (chunk = chunks.Next(); chunk && !rows.IsOver(); chunk = chunks.Next()) {
    if (chunk->Type() == "IDAT") {
      hasPixels = true;
      AddPixels(file, *chunk, rows);
    } else if (hasPixels) {
      break;
    } else if (IsForColours(chunk->Type()) && chunk->isWhole && HasItsChecksum(file, *chunk)) {
      std::string body(file.At(chunk->body.at, static_cast<std::size_t>(chunk->body.size)).Text());
      if (chunk->Type() == "PLTE" && head->isPaletted) {
        // A colour for each number that damaged pixels may hold.
        body.resize(std::size_t{3} << static_cast<unsigned>(head->bits), '\0');
        hasPalette = true;
      }
      AddChunk(png.bytes, chunk->Type(), body);
    }
  }
  const MendedPng::Pass& first = rows.Passes().front();
  if (first.rows < kLeastShown * first.size.height() || first.rows == 0 ||
      (head->isPaletted && !hasPalette)) {
    png.bytes.clear();
    return png;
  }
  png.passes = rows.Passes();
  const QByteArray packed = rows.Finish();
  AddChunk(png.bytes, "IDAT", ViewOf(packed).Text());
  AddChunk(png.bytes, "IEND", {});
  return png;
}

QImage WithoutGaps(QImage picture, const MendedPng& png) {
  const bool isWhole = std::all_of(png.passes.begin(), png.passes.end(), [](const MendedPng::Pass& pass) {
    return pass.rows == pass.size.height();
  });
  if (png.passes.size() < 2 || isWhole || picture.size() != png.size) {
    return picture;
  }
  picture = picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (std::size_t i = 1; i < png.passes.size(); ++i) {
    const Grid& grid = kGrids[i];
    const MendedPng::Pass& pass = png.passes[i];
    for (int row = pass.rows; row < pass.size.height(); ++row) {
      const int y = grid.y + row * grid.stepY;
      auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
      // What a pass adds lies to the right of pixels of those before it, or below them.
      const auto* const from = reinterpret_cast<const QRgb*>(picture.constScanLine(y - grid.y));
      for (int x = grid.x; x < picture.width(); x += grid.stepX) {
        line[x] = from[x - grid.x];
      }
    }
  }
  return picture;
}

}  // namespace Zenvora::Lumidex::Host
