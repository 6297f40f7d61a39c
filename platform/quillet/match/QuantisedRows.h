#pragma once

#include "TemplateCode.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <vector>

namespace Zenvora::Quillet {

/// The vectors that an index refers to, and the codes of the first of them, side by side in tiles.
class QuantisedRows {
 public:
  using Template = std::vector<float>;

  /// Tiles that lie together, so that their first segments do.
  static constexpr std::size_t kTiles = 16;
  static constexpr std::size_t kRows = kTiles * kTile;

  struct Row {
    const Template* vector;
    double squares;
  };

  std::size_t Size() const noexcept { return size_; }
  Row& operator[](std::size_t position) noexcept { return chunks_[position / kRows]->rows[position % kRows]; }
  const Row& operator[](std::size_t position) const noexcept {
    return chunks_[position / kRows]->rows[position % kRows];
  }
  /// Throws `std::bad_alloc`; then nothing has changed.
  void Append(const Row& row);

  /// Positions below it are coded.
  std::size_t Coded() const noexcept { return coded_; }
  /// Drops all codes.
  void Uncode() noexcept;
  /// Codes whatever is not, or not any more. Throws `std::bad_alloc`; what was coded until then stays.
  void CodeMissing(TemplateCode& code);
  /// Until it is coded again, `position` cannot be ruled out.
  void MarkChanged(std::size_t position) noexcept;

  const std::int16_t* Halves(const TemplateCode& code, std::size_t tile, std::size_t part) const noexcept;
  const float* Rests(std::size_t tile, std::size_t part) const noexcept;

  std::size_t MemoryBytes() const noexcept;

 private:
  struct Freer {
    void operator()(void* memory) const noexcept { ::operator delete (memory, std::align_val_t{kLine}); }
  };
  template <typename T>
  using Lines = std::unique_ptr<T[], Freer>;
  static constexpr std::size_t kLine = 64;

  struct Chunk {
    Row rows[kRows];
    Lines<std::int16_t> halves;
    Lines<float> rests;
  };

  template <typename T>
  static Lines<T> MakeLines(std::size_t count);
  void MakeRoom(const TemplateCode& code, Chunk& chunk);
  void CodeRows(TemplateCode& code, const std::size_t* positions, std::size_t count);
  void Place(const TemplateCode& code, std::size_t position, const std::int16_t* halves, const float* rests);

  std::vector<std::unique_ptr<Chunk>> chunks_;
  std::size_t size_ = 0;
  std::size_t coded_ = 0;
  std::size_t parts_ = 0;      ///< of each code
  std::size_t halfCount_ = 0;  ///< of each code
  std::vector<std::size_t> changed_;
  std::vector<std::int16_t> codedHalves_;
  std::vector<float> codedRests_;
};

}  // namespace Zenvora::Quillet
