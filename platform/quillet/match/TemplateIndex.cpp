#include "FirstFit.h"

#include <zenvora/quillet/match/TemplateIndex.h>

#include <utility>

namespace Zenvora::Quillet {

TemplateIndex::Announcement::Announcement(Announcement&& other) noexcept
    : owner_(std::exchange(other.owner_, nullptr)), number_(other.number_) {}

TemplateIndex::Announcement::~Announcement() {
  if (owner_ != nullptr) {
    owner_->Forget(number_);
  }
}

TemplateIndex::TemplateIndex(float threshold) : impl_(std::make_unique<FirstFit>(threshold)) {}

TemplateIndex::~TemplateIndex() = default;

void TemplateIndex::Append(const Template& vector) {
  impl_->Append(vector);
}

void TemplateIndex::Replace(std::size_t position, const Template& vector) noexcept {
  impl_->Replace(position, vector);
}

void TemplateIndex::Updated(std::size_t position) noexcept {
  impl_->Updated(position);
}

std::optional<std::size_t> TemplateIndex::FindFirst(const Template& query) noexcept {
  return impl_->FindFirst(query);
}

TemplateIndex::Announcement TemplateIndex::Expect(std::vector<const Template*> coming) noexcept {
  const std::uint64_t number = impl_->Expect(std::move(coming));
  return Announcement(impl_.get(), number);
}

std::size_t TemplateIndex::Size() const noexcept {
  return impl_->Size();
}

float TemplateIndex::Threshold() const noexcept {
  return impl_->Threshold();
}

std::size_t TemplateIndex::MemoryBytes() const noexcept {
  return impl_->MemoryBytes();
}

}  // namespace Zenvora::Quillet
