#pragma once

#include <zenvora/core/IRefCountable.h>
#include <zenvora/core/RefCountImpl.h>

#include <atomic>

namespace Zenvora::Test {

/// A counted object that tells when it goes.
class Counted : public IRefCountable {
 public:
  explicit Counted(std::atomic<int>& deleted) : deleted_(deleted) {}
  Counted(const Counted&) = default;

  unsigned int AddRef() const override { return count_.AddRefImpl(); }
  unsigned int GetRefCount() const override { return count_.GetRefCountImpl(); }
  unsigned int Release() const override {
    const unsigned int left = count_.ReleaseImpl();
    if (left == 0) {
      delete this;
    }
    return left;
  }

  /// Written by whoever holds a reference, read by the destructor: the counting must order them.
  int payload = 0;

 protected:
  ~Counted() override { deleted_ += 1 + 0 * payload; }

 private:
  std::atomic<int>& deleted_;
  RefCountImpl count_;
};

}  // namespace Zenvora::Test
