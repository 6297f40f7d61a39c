#pragma once

#include "MatchKernel.h"
#include "QuantisedRows.h"
#include "TemplateCode.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Zenvora::Quillet {

/// What a `FirstFit` may be set to. Nothing here but `marginScale` can change an answer.
struct FirstFitTuning {
  const MatchKernel* kernel = &BestKernel();
  /// Fewer vectors are scanned.
  std::size_t quantisedFrom = 1000;
  /// Shorter vectors are scanned: beside them quantised rows would not be small.
  std::size_t leastSize = 96;
  /// Longer vectors are scanned: learning would take long.
  std::size_t mostSize = 4096;
  /// Announced vectors that are worked on together.
  std::size_t block = 96;
  /// 1; less than that breaks the promise, which tests must notice.
  double marginScale = 1;
};

/// What was done so far.
struct FirstFitStatistics {
  std::uint64_t compared = 0;  ///< pairs of vectors whose true score was found out
  std::uint64_t sifted = 0;    ///< pairs that the quantised rows were asked about
  std::uint64_t refined = 0;   ///< tiles of pairs that took more than the first segment
  std::uint64_t learnt = 0;
  std::uint64_t blocks = 0;
  std::uint64_t repaired =
      0;  ///< announced vectors whose match had changed before its turn and no longer matched
};

/// What `TemplateIndex` does. docs/decisions/matching.md tells how.
class FirstFit {
 public:
  using Template = std::vector<float>;
  using Position = std::optional<std::size_t>;

  explicit FirstFit(float threshold, const FirstFitTuning& tuning = {});

  void Append(const Template& vector);
  void Replace(std::size_t position, const Template& vector) noexcept;
  void Updated(std::size_t position) noexcept;
  Position FindFirst(const Template& query) noexcept;
  /// Returns the announcement's number.
  std::uint64_t Expect(std::vector<const Template*> coming) noexcept;
  /// Ends that announcement, unless it has been replaced.
  void Forget(std::uint64_t announcement) noexcept;

  std::size_t Size() const noexcept { return rows_.Size(); }
  float Threshold() const noexcept { return threshold_; }
  std::size_t MemoryBytes() const noexcept;
  const FirstFitStatistics& Statistics() const noexcept { return statistics_; }

 private:
  /// A question under way.
  struct Query {
    const Template* vector;
    double squares;
    Position found;
  };

  /// What is known of a run of announced vectors, each by itself, as things were when the run began.
  struct Block {
    std::size_t begin = 0;  ///< in `coming_`
    std::size_t next = 0;   ///< the first that was not asked for yet, likewise
    std::size_t end = 0;    ///< likewise
    std::size_t size = 0;   ///< vectors in the index then
    std::vector<Position> found;
    std::vector<char> known;    ///< whether `found` says anything
    std::vector<float> values;  ///< of the announced vectors, to tell them again
    std::vector<std::size_t> valueEnds;
    std::vector<std::size_t> changed;  ///< positions below `size` that changed since, rising
    void End() noexcept { begin = next = end; }
  };

  bool Matches(const Query& query, std::size_t position) noexcept;
  Position Scan(const Query& query, std::size_t from, std::size_t to) noexcept;
  bool CanQuantise(std::size_t vectorSize) const noexcept;
  bool Prepare() noexcept;
  void Learn();
  bool Ask(Query* queries, std::size_t count, std::size_t from) noexcept;
  void Pack();
  void Sift(Query* queries, std::size_t from);
  bool TryTile(Query* queries, std::size_t tile, const std::uint32_t* masks, std::size_t from);
  void TryRow(Query& query, std::size_t tile, std::uint32_t mask);
  Position FindAlone(const Query& query, std::size_t from) noexcept;

  std::optional<std::size_t> Announced(const Query& query) noexcept;
  bool IsInBlock(std::size_t item, const Template& query) const noexcept;
  bool BeginBlock(std::size_t begin) noexcept;
  Position Repaired(const Query& query, Position found) noexcept;

  float threshold_;
  FirstFitTuning tuning_;
  QuantisedRows rows_;
  std::unique_ptr<TemplateCode> code_;
  std::size_t learntAt_ = 0;
  std::vector<const Template*> coming_;
  std::uint64_t announcement_ = 0;
  Block block_;
  FirstFitStatistics statistics_;

  /// Of the questions that are sifted together.
  std::vector<std::int32_t> queryPairs_;
  std::vector<float> queryRests_;
  std::vector<std::size_t> active_;
  std::vector<std::int32_t> activePairs_;
  std::vector<float> activeRests_;
  std::vector<std::uint32_t> masks_;
};

}  // namespace Zenvora::Quillet
