#pragma once

#include <zenvora/quillet/TemplateIndex.h>

namespace Zenvora::Quillet {

/// What `TemplateIndex` does.
class FirstFit {
 public:
  using Template = std::vector<float>;

  explicit FirstFit(float threshold) : threshold_(threshold) {}

  void Append(const Template& vector) { vectors_.push_back(&vector); }
  void Replace(std::size_t position, const Template& vector) noexcept { vectors_[position] = &vector; }
  void Updated(std::size_t) noexcept {}
  std::optional<std::size_t> FindFirst(const Template& query) noexcept;
  void Expect(std::vector<const Template*>) {}
  void ExpectNothing() noexcept {}

  std::size_t Size() const noexcept { return vectors_.size(); }
  float Threshold() const noexcept { return threshold_; }
  std::size_t MemoryBytes() const noexcept { return vectors_.capacity() * sizeof(const Template*); }

 private:
  float threshold_;
  std::vector<const Template*> vectors_;
};

}  // namespace Zenvora::Quillet
