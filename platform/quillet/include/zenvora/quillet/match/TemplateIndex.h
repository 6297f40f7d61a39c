#pragma once

#include <zenvora/quillet/Export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Zenvora::Quillet {

class FirstFit;

/// Finds the first of many feature vectors, in the order in which they were appended, that `MatchTemplate`
/// scores strictly above a threshold. The answers are those of `FindFirstByScan`, always; only they come much
/// sooner.
///
/// It refers to the caller's vectors and owns none: every appended vector must keep its address while the
/// index is asked or changed, and whoever changes one says so with `Updated` before the next question. From a
/// thousand vectors up it keeps quantised rows beside them, of at most 0.6 times their bytes, and with them a
/// basis of four bytes for the square of their length (at most 512 directions). The rows are made when they
/// are first asked for. Lack of memory for them makes the index slower, never wrong.
///
/// It starts no thread and is not for several at once: calls must be serialised by the caller.
class ZENVORA_QUILLET_EXPORT TemplateIndex {
 public:
  using Template = std::vector<float>;

  /// As long as it lives the announced vectors are expected. Must not outlive its index.
  class ZENVORA_QUILLET_EXPORT Announcement {
   public:
    Announcement(Announcement&& other) noexcept;
    Announcement& operator=(Announcement&&) = delete;
    ~Announcement();

   private:
    friend class TemplateIndex;
    Announcement(FirstFit* owner, std::uint64_t number) : owner_(owner), number_(number) {}
    FirstFit* owner_;
    std::uint64_t number_;
  };

  /// Any threshold serves; below 0 and for NaN every question is a plain scan.
  explicit TemplateIndex(float threshold);
  ~TemplateIndex();
  TemplateIndex(const TemplateIndex&) = delete;
  TemplateIndex& operator=(const TemplateIndex&) = delete;

  /// Refers to `vector` as the last one, at position `Size()`. Vectors may differ in length. Throws
  /// `std::bad_alloc`; then nothing has changed.
  void Append(const Template& vector);
  void Append(Template&& vector) = delete;

  /// Refers to another vector at `position`, which must be below `Size()`.
  void Replace(std::size_t position, const Template& vector) noexcept;
  void Replace(std::size_t position, Template&& vector) = delete;

  /// The vector at `position`, which must be below `Size()`, has other values or another length now.
  void Updated(std::size_t position) noexcept;

  /// Position of the first vector that scores above the threshold against `query`.
  std::optional<std::size_t> FindFirst(const Template& query) noexcept;

  /// A hint: `FindFirst` will be asked for these vectors, in this order, with `Append` and `Updated` between.
  /// Many questions at once are answered several times faster than one by one. They must live, unchanged, as
  /// long as the announcement; a new announcement replaces the last. Questions may still differ from what was
  /// announced: they are answered rightly all the same.
  [[nodiscard]] Announcement Expect(std::vector<const Template*> coming) noexcept;

  std::size_t Size() const noexcept;
  float Threshold() const noexcept;
  /// What the index itself holds now, without the vectors. Bytes.
  std::size_t MemoryBytes() const noexcept;

 private:
  std::unique_ptr<FirstFit> impl_;
};

}  // namespace Zenvora::Quillet
