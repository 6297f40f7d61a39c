#pragma once

#include <zenvora/core/Export.h>

#include <atomic>

namespace Zenvora {

/// The counter that an implementation of `IRefCountable` keeps as a member and forwards to.
///
/// Starts at 0: the first `boost::intrusive_ptr` counts the first reference. It only counts; whoever sees
/// `ReleaseImpl` return 0 deletes the object. A copied object starts its own life, so copies start at 0 and
/// an assignment keeps the target's count.
///
/// Thread-safety: all operations are atomic; what happened before a `ReleaseImpl` on any thread is visible to
/// the thread that sees 0.
class ZENVORA_CORE_EXPORT RefCountImpl {
 public:
  RefCountImpl() = default;
  RefCountImpl(const RefCountImpl&) noexcept {}
  RefCountImpl& operator=(const RefCountImpl&) noexcept { return *this; }
  ~RefCountImpl() = default;

  /// Returns the count after adding one.
  unsigned int AddRefImpl() const noexcept;
  unsigned int GetRefCountImpl() const noexcept;
  /// Returns the count after taking one away. Calling it at 0 is a caller's error.
  unsigned int ReleaseImpl() const noexcept;

 private:
  mutable std::atomic<unsigned int> count_{0};
};

}  // namespace Zenvora
