#include <zenvora/core/RefCountImpl.h>

namespace Zenvora {

unsigned int RefCountImpl::AddRefImpl() const noexcept {
  // A new reference is always made from one that exists, so nothing needs ordering here.
  return count_.fetch_add(1, std::memory_order_relaxed) + 1;
}

unsigned int RefCountImpl::GetRefCountImpl() const noexcept {
  return count_.load(std::memory_order_relaxed);
}

unsigned int RefCountImpl::ReleaseImpl() const noexcept {
  // Release: our writes before; acquire: whoever deletes must see everybody's.
  return count_.fetch_sub(1, std::memory_order_acq_rel) - 1;
}

}  // namespace Zenvora
