#include "QuantisedRows.h"

#include "MatchScore.h"

#include <algorithm>

namespace Zenvora::Quillet {

namespace {

/// The rest of a row that cannot be ruled out: more than any query's rest can make nothing of.
constexpr float kEndless = 1e30F;

}  // namespace

template <typename T>
QuantisedRows::Lines<T> QuantisedRows::MakeLines(std::size_t count) {
  auto* const memory = static_cast<T*>(::operator new (count * sizeof(T), std::align_val_t{kLine}));
  std::fill_n(memory, count, T{});
  return Lines<T>(memory);
}

void QuantisedRows::Append(const Row& row) {
  if (size_ == chunks_.size() * kRows) {
    auto chunk = std::make_unique<Chunk>();
    chunks_.push_back(std::move(chunk));
  }
  chunks_.back()->rows[size_ % kRows] = row;
  ++size_;
}

void QuantisedRows::Uncode() noexcept {
  for (const auto& chunk : chunks_) {
    chunk->halves.reset();
    chunk->rests.reset();
  }
  coded_ = 0;
  changed_.clear();
}

void QuantisedRows::MakeRoom(const TemplateCode& code, Chunk& chunk) {
  if (!chunk.rests) {
    auto halves = MakeLines<std::int16_t>(kRows * code.HalfCount());
    chunk.rests = MakeLines<float>(kRows * code.Parts().size());
    chunk.halves = std::move(halves);
  }
}

void QuantisedRows::CodeMissing(TemplateCode& code) {
  parts_ = code.Parts().size();
  halfCount_ = code.HalfCount();
  codedHalves_.resize(TemplateCode::kTogether * halfCount_);
  codedRests_.resize(TemplateCode::kTogether * parts_);
  while (!changed_.empty()) {
    const std::size_t count = std::min(changed_.size(), TemplateCode::kTogether);
    CodeRows(code, changed_.data() + (changed_.size() - count), count);
    changed_.resize(changed_.size() - count);
  }
  while (coded_ < size_) {
    std::size_t positions[TemplateCode::kTogether];
    std::size_t count = 0;
    for (; count < TemplateCode::kTogether && coded_ + count < size_; ++count) {
      positions[count] = coded_ + count;
      MakeRoom(code, *chunks_[positions[count] / kRows]);
    }
    CodeRows(code, positions, count);
    coded_ += count;
  }
}

void QuantisedRows::CodeRows(TemplateCode& code, const std::size_t* positions, std::size_t count) {
  TemplateCode::Vector vectors[TemplateCode::kTogether];
  for (std::size_t i = 0; i < count; ++i) {
    const Row& row = (*this)[positions[i]];
    // Of another length: matches none that is asked for by its code.
    const bool fits = row.vector->size() == code.Size();
    vectors[i] = {row.vector->data(), fits ? row.squares : 0};
  }
  code.CodeRows(vectors, count, codedHalves_.data(), codedRests_.data());
  for (std::size_t i = 0; i < count; ++i) {
    Place(code, positions[i], codedHalves_.data() + i * halfCount_, codedRests_.data() + i * parts_);
  }
}

void QuantisedRows::Place(const TemplateCode& code, std::size_t position, const std::int16_t* halves,
                          const float* rests) {
  const Chunk& chunk = *chunks_[position / kRows];
  const std::size_t tile = position % kRows / kTile;
  const std::size_t lane = position % kTile;
  for (std::size_t part = 0; part < parts_; ++part) {
    const TemplateCode::Part& place = code.Parts()[part];
    const std::int16_t* from = halves + place.halvesBegin;
    std::int16_t* to = chunk.halves.get() + kRows * place.halvesBegin + tile * place.HalfCount() * kTile;
    for (std::size_t i = 0; i < place.wideCount; ++i, to += 2 * kTile) {
      to[2 * lane] = *from++;
      to[2 * lane + 1] = *from++;
    }
    for (std::size_t i = place.wideCount; i < place.pairCount; ++i, to += kTile) {
      to[lane] = *from++;
    }
    chunk.rests[(part * kTiles + tile) * kTile + lane] = rests[part];
  }
}

void QuantisedRows::MarkChanged(std::size_t position) noexcept {
  if (position >= coded_) {
    return;
  }
  const Chunk& chunk = *chunks_[position / kRows];
  const std::size_t place = position % kRows;
  if (chunk.rests[place] == kEndless) {
    return;
  }
  try {
    changed_.push_back(position);
  } catch (const std::bad_alloc&) {
    // Without a note of it the row would be wrong for ever.
    Uncode();
    return;
  }
  for (std::size_t part = 0; part < parts_; ++part) {
    chunk.rests[part * kRows + place] = kEndless;
  }
}

const std::int16_t* QuantisedRows::Halves(const TemplateCode& code, std::size_t tile,
                                          std::size_t part) const noexcept {
  const TemplateCode::Part& place = code.Parts()[part];
  return chunks_[tile / kTiles]->halves.get() + kRows * place.halvesBegin +
         tile % kTiles * place.HalfCount() * kTile;
}

const float* QuantisedRows::Rests(std::size_t tile, std::size_t part) const noexcept {
  return chunks_[tile / kTiles]->rests.get() + (part * kTiles + tile % kTiles) * kTile;
}

std::size_t QuantisedRows::MemoryBytes() const noexcept {
  std::size_t bytes = sizeof(*this) + chunks_.capacity() * sizeof(chunks_[0]) +
                      chunks_.size() * sizeof(Chunk) + changed_.capacity() * sizeof(std::size_t) +
                      codedHalves_.capacity() * sizeof(std::int16_t) + codedRests_.capacity() * sizeof(float);
  for (const auto& chunk : chunks_) {
    if (chunk->rests) {
      bytes += kRows * (halfCount_ * sizeof(std::int16_t) + parts_ * sizeof(float));
    }
  }
  return bytes;
}

}  // namespace Zenvora::Quillet
