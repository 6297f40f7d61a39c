#include "FirstFit.h"

#include "MatchScore.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <new>
#include <utility>

namespace Zenvora::Quillet {

namespace {

/// Vectors to learn from.
constexpr std::size_t kSample = 1280;
/// Fewer tell nothing.
constexpr std::size_t kLeastSample = 16;

}  // namespace

FirstFit::FirstFit(float threshold, const FirstFitTuning& tuning) : threshold_(threshold), tuning_(tuning) {}

void FirstFit::Append(const Template& vector) {
  rows_.Append({&vector, tuning_.kernel->dot(vector.data(), vector.data(), vector.size())});
}

void FirstFit::Replace(std::size_t position, const Template& vector) noexcept {
  rows_[position].vector = &vector;
  Updated(position);
}

void FirstFit::Updated(std::size_t position) noexcept {
  QuantisedRows::Row& row = rows_[position];
  row.squares = tuning_.kernel->dot(row.vector->data(), row.vector->data(), row.vector->size());
  rows_.MarkChanged(position);
  if (block_.next < block_.end && position < block_.size) {
    const auto place = std::lower_bound(block_.changed.begin(), block_.changed.end(), position);
    if (place == block_.changed.end() || *place != position) {
      try {
        block_.changed.insert(place, position);
      } catch (const std::bad_alloc&) {
        block_.End();
      }
    }
  }
}

std::uint64_t FirstFit::Expect(std::vector<const Template*> coming) noexcept {
  coming_ = std::move(coming);
  block_.end = 0;
  block_.End();
  return ++announcement_;
}

void FirstFit::Forget(std::uint64_t announcement) noexcept {
  if (announcement == announcement_) {
    Expect({});
  }
}

std::size_t FirstFit::MemoryBytes() const noexcept {
  return sizeof(*this) - sizeof(rows_) + rows_.MemoryBytes() + (code_ ? code_->MemoryBytes() : 0) +
         coming_.capacity() * sizeof(const Template*) + block_.found.capacity() * sizeof(Position) +
         block_.known.capacity() + block_.values.capacity() * sizeof(float) +
         (block_.valueEnds.capacity() + block_.changed.capacity() + active_.capacity()) *
             sizeof(std::size_t) +
         queryPairs_.capacity() * sizeof(std::int32_t) +
         (queryRests_.capacity() + activeRests_.capacity()) * sizeof(float) +
         activePairs_.capacity() * sizeof(std::int32_t) + masks_.capacity() * sizeof(std::uint32_t);
}

bool FirstFit::Matches(const Query& query, std::size_t position) noexcept {
  const QuantisedRows::Row& row = rows_[position];
  const std::size_t size = query.vector->size();
  if (row.vector->size() != size) {
    return 0.0F > threshold_;
  }
  ++statistics_.compared;
  const double products = tuning_.kernel->dot(query.vector->data(), row.vector->data(), size);
  return ScoreOf(products, query.squares, row.squares) > threshold_;
}

FirstFit::Position FirstFit::Scan(const Query& query, std::size_t from, std::size_t to) noexcept {
  for (std::size_t position = from; position < to; ++position) {
    if (Matches(query, position)) {
      return position;
    }
  }
  return std::nullopt;
}

/// Only what cannot match below 0 may be ruled out by a bound.
bool FirstFit::CanQuantise(std::size_t vectorSize) const noexcept {
  return threshold_ >= 0 && vectorSize >= tuning_.leastSize && vectorSize <= tuning_.mostSize &&
         rows_.Size() >= tuning_.quantisedFrom;
}

/// Brings the quantised rows up to date. False when there are none.
bool FirstFit::Prepare() noexcept {
  try {
    if (rows_.Size() >= 2 * learntAt_) {
      Learn();
    }
    if (!code_) {
      return false;
    }
    rows_.CodeMissing(*code_);
    return true;
  } catch (const std::bad_alloc&) {
    return code_ && rows_.Coded() > 0;
  }
}

/// Anew each time the vectors have doubled: they may have become others.
void FirstFit::Learn() {
  learntAt_ = std::max<std::size_t>(rows_.Size(), 1);
  rows_.Uncode();
  code_.reset();
  std::map<std::size_t, std::vector<TemplateCode::Vector>> samples;
  const std::size_t count = std::min(kSample, rows_.Size());
  for (std::size_t i = 0; i < count; ++i) {
    const QuantisedRows::Row& row = rows_[i * rows_.Size() / count];
    const std::size_t size = row.vector->size();
    if (HasDirection(row.squares) && size >= tuning_.leastSize && size <= tuning_.mostSize) {
      samples[size].push_back({row.vector->data(), row.squares});
    }
  }
  const auto most = std::max_element(samples.begin(), samples.end(), [](const auto& a, const auto& b) {
    return a.second.size() < b.second.size();
  });
  if (most == samples.end() || most->second.size() < kLeastSample) {
    return;
  }
  auto code = std::make_unique<TemplateCode>(*tuning_.kernel, most->second, most->first, threshold_,
                                             tuning_.marginScale);
  if (code->IsSound()) {
    code_ = std::move(code);
    ++statistics_.learnt;
  }
}

/// Finds the first match from `from` on of each of `queries`, as things are. They fit the code. False when
/// there is not enough memory.
bool FirstFit::Ask(Query* queries, std::size_t count, std::size_t from) noexcept {
  try {
    queryPairs_.resize(count * code_->PairCount());
    queryRests_.resize(count * code_->Parts().size());
    // Up to a whole group.
    const std::size_t most = count + tuning_.kernel->group;
    activePairs_.resize(most * code_->Parts()[0].pairCount);
    activeRests_.resize(most);
    masks_.resize(most * QuantisedRows::kTiles);
    active_.resize(count);
  } catch (const std::bad_alloc&) {
    return false;
  }
  for (std::size_t begin = 0; begin < count; begin += TemplateCode::kTogether) {
    TemplateCode::Vector vectors[TemplateCode::kTogether];
    const std::size_t some = std::min(TemplateCode::kTogether, count - begin);
    for (std::size_t i = 0; i < some; ++i) {
      vectors[i] = {queries[begin + i].vector->data(), queries[begin + i].squares};
    }
    code_->CodeQueries(vectors, some, queryPairs_.data() + begin * code_->PairCount(),
                       queryRests_.data() + begin * code_->Parts().size());
  }
  for (std::size_t i = 0; i < count; ++i) {
    active_[i] = i;
  }
  Sift(queries, from);
  for (std::size_t i = 0; i < count; ++i) {
    if (!queries[i].found) {
      queries[i].found = Scan(queries[i], std::max(from, rows_.Coded()), rows_.Size());
    }
  }
  return true;
}

/// Lays the first segments of the active queries out as the kernel wants them, filled up with zeros.
void FirstFit::Pack() {
  const std::size_t pairCount = code_->Parts()[0].pairCount;
  const std::size_t group = active_.size() == 1 ? 1 : tuning_.kernel->group;
  std::fill(activePairs_.begin(), activePairs_.end(), 0);
  std::fill(activeRests_.begin(), activeRests_.end(), 0.0F);
  for (std::size_t i = 0; i < active_.size(); ++i) {
    const std::int32_t* const from = queryPairs_.data() + active_[i] * code_->PairCount();
    std::int32_t* const to = activePairs_.data() + i / group * group * pairCount + i % group;
    for (std::size_t j = 0; j < pairCount; ++j) {
      to[j * group] = from[j];
    }
    activeRests_[i] = queryRests_[active_[i] * code_->Parts().size()];
  }
}

void FirstFit::Sift(Query* queries, std::size_t from) {
  constexpr std::size_t kTiles = QuantisedRows::kTiles;
  const std::size_t tileEnd = (rows_.Coded() + kTile - 1) / kTile;
  const std::size_t group = tuning_.kernel->group;
  bool packed = false;
  for (std::size_t tile = from / kTile; tile < tileEnd && !active_.empty();) {
    if (!packed) {
      Pack();
      packed = true;
    }
    SiftTask task;
    task.tiles = std::min(tileEnd, (tile / kTiles + 1) * kTiles) - tile;
    task.rows = rows_.Halves(*code_, tile, 0);
    task.rests = rows_.Rests(tile, 0);
    task.wideCount = code_->Parts()[0].wideCount;
    task.pairCount = code_->Parts()[0].pairCount;
    task.shift = code_->Shift();
    task.queries = activePairs_.data();
    task.queryRests = activeRests_.data();
    task.queryCount = active_.size() == 1 ? 1 : (active_.size() + group - 1) / group * group;
    task.scale = code_->Scale();
    task.limit = code_->Limit();
    task.masks = masks_.data();
    tuning_.kernel->sift(task);
    statistics_.sifted += task.tiles * kTile * active_.size();
    bool anyFound = false;
    for (std::size_t t = 0; t < task.tiles; ++t) {
      anyFound = TryTile(queries, tile + t, task.masks + t * task.queryCount, from) || anyFound;
    }
    if (anyFound) {
      active_.erase(std::remove_if(active_.begin(), active_.end(),
                                   [queries](std::size_t i) { return queries[i].found.has_value(); }),
                    active_.end());
      packed = false;
    }
    tile += task.tiles;
  }
}

/// Looks at what the first segment did not rule out. True when a query found its match.
bool FirstFit::TryTile(Query* queries, std::size_t tile, const std::uint32_t* masks, std::size_t from) {
  const std::size_t parts = code_->Parts().size();
  // Nothing before `from`.
  const std::uint32_t asked = tile * kTile < from ? ~std::uint32_t{0} << (from % kTile) : ~std::uint32_t{0};
  Segment segments[TemplateCode::kMostParts];
  bool known = false;
  bool anyFound = false;
  for (std::size_t i = 0; i < active_.size(); ++i) {
    Query& query = queries[active_[i]];
    std::uint32_t mask = masks[i] & asked;
    if (mask == 0 || query.found) {
      continue;
    }
    if (parts > 1) {
      for (std::size_t part = 0; part < parts && !known; ++part) {
        const TemplateCode::Part& place = code_->Parts()[part];
        segments[part] = {place.wideCount, place.pairCount, place.pairsBegin,
                          rows_.Halves(*code_, tile, part), rows_.Rests(tile, part)};
      }
      known = true;
      ++statistics_.refined;
      mask = tuning_.kernel->refine(segments, parts, queryPairs_.data() + active_[i] * code_->PairCount(),
                                    queryRests_.data() + active_[i] * parts, code_->Shift(), code_->Scale(),
                                    code_->Limit(), mask);
    }
    if (mask != 0) {
      TryRow(query, tile, mask);
      anyFound = anyFound || query.found;
    }
  }
  return anyFound;
}

/// Compares exactly what no segment ruled out, first come first.
void FirstFit::TryRow(Query& query, std::size_t tile, std::uint32_t mask) {
  for (; mask != 0; mask &= mask - 1) {
    const std::size_t position = tile * kTile + static_cast<std::size_t>(__builtin_ctz(mask));
    if (position >= rows_.Coded()) {
      return;
    }
    if (Matches(query, position)) {
      query.found = position;
      return;
    }
  }
}

FirstFit::Position FirstFit::FindAlone(const Query& query, std::size_t from) noexcept {
  Query asked = query;
  asked.found.reset();
  if (CanQuantise(query.vector->size()) && Prepare() && code_->Size() == query.vector->size() &&
      Ask(&asked, 1, from)) {
    return asked.found;
  }
  return Scan(query, from, rows_.Size());
}

FirstFit::Position FirstFit::FindFirst(const Template& vector) noexcept {
  const Query query = {&vector, tuning_.kernel->dot(vector.data(), vector.data(), vector.size()),
                       std::nullopt};
  if (const auto place = Announced(query)) {
    return Repaired(query, block_.found[*place]);
  }
  if (threshold_ >= 0 && !HasDirection(query.squares)) {
    return std::nullopt;
  }
  return FindAlone(query, 0);
}

/// Whether the announced vector had the values of `query` when its block began: bit for bit.
bool FirstFit::IsInBlock(std::size_t item, const Template& query) const noexcept {
  const std::size_t i = item - block_.begin;
  const std::size_t begin = i == 0 ? 0 : block_.valueEnds[i - 1];
  return block_.known[i] != 0 && block_.valueEnds[i] - begin == query.size() &&
         std::memcmp(block_.values.data() + begin, query.data(), query.size() * sizeof(float)) == 0;
}

/// The place in the block of what was announced and now is asked for. Others may be asked for between, and
/// some left out.
std::optional<std::size_t> FirstFit::Announced(const Query& query) noexcept {
  for (std::size_t item = block_.next; item < block_.end; ++item) {
    if (IsInBlock(item, *query.vector)) {
      block_.next = item + 1;
      return item - block_.begin;
    }
  }
  const std::size_t to = std::min(coming_.size(), block_.end + tuning_.block);
  for (std::size_t item = block_.end; item < to; ++item) {
    if (coming_[item] == query.vector) {
      if (CanQuantise(query.vector->size()) && BeginBlock(item) && IsInBlock(item, *query.vector)) {
        block_.next = item + 1;
        return 0;
      }
      // Not to lose the place.
      block_.end = std::max(block_.end, item + 1);
      block_.End();
      return std::nullopt;
    }
  }
  return std::nullopt;
}

bool FirstFit::BeginBlock(std::size_t begin) noexcept {
  if (!Prepare()) {
    return false;
  }
  try {
    block_.begin = block_.next = begin;
    block_.end = std::min(coming_.size(), begin + tuning_.block);
    block_.size = rows_.Size();
    const std::size_t count = block_.end - begin;
    block_.found.assign(count, std::nullopt);
    block_.known.assign(count, 0);
    block_.values.clear();
    block_.valueEnds.clear();
    block_.changed.clear();
    std::vector<Query> queries;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < count; ++i) {
      const Template& vector = *coming_[begin + i];
      const double squares = tuning_.kernel->dot(vector.data(), vector.data(), vector.size());
      if (vector.size() == code_->Size() && HasDirection(squares)) {
        queries.push_back({&vector, squares, std::nullopt});
        places.push_back(i);
        block_.known[i] = 1;
        block_.values.insert(block_.values.end(), vector.begin(), vector.end());
      }
      block_.valueEnds.push_back(block_.values.size());
    }
    if (!Ask(queries.data(), queries.size(), 0)) {
      block_.End();
      return false;
    }
    for (std::size_t i = 0; i < queries.size(); ++i) {
      block_.found[places[i]] = queries[i].found;
    }
    ++statistics_.blocks;
    return true;
  } catch (const std::bad_alloc&) {
    block_.End();
    return false;
  }
}

/// `found` was right when the block began. Since then some vectors changed and some were appended.
FirstFit::Position FirstFit::Repaired(const Query& query, Position found) noexcept {
  for (const std::size_t position : block_.changed) {
    if (found && position > *found) {
      break;
    }
    if (Matches(query, position)) {
      return position;
    }
    if (found && position == *found) {
      ++statistics_.repaired;
      return FindAlone(query, position + 1);
    }
  }
  return found ? found : Scan(query, block_.size, rows_.Size());
}

}  // namespace Zenvora::Quillet
