#include "Counted.h"

#include <support/Slots.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstring>
#include <type_traits>

namespace Zenvora {
namespace {

using Zenvora::Test::Counted;
using Pointer = boost::intrusive_ptr<const Counted>;

TEST(RefCount, StartsAtZeroAndCountsBothWays) {
  const RefCountImpl count;
  EXPECT_EQ(count.GetRefCountImpl(), 0U);
  EXPECT_EQ(count.AddRefImpl(), 1U);
  EXPECT_EQ(count.AddRefImpl(), 2U);
  EXPECT_EQ(count.GetRefCountImpl(), 2U);
  EXPECT_EQ(count.ReleaseImpl(), 1U);
  EXPECT_EQ(count.ReleaseImpl(), 0U);
  EXPECT_EQ(count.GetRefCountImpl(), 0U);
}

TEST(RefCount, IsNotCopiedWithItsObject) {
  const RefCountImpl original;
  original.AddRefImpl();
  const RefCountImpl copy(original);
  EXPECT_EQ(copy.GetRefCountImpl(), 0U);

  RefCountImpl assigned;
  assigned.AddRefImpl();
  assigned.AddRefImpl();
  assigned = original;
  EXPECT_EQ(assigned.GetRefCountImpl(), 2U);
}

TEST(RefCountable, IsDeletedByItsLastRelease) {
  std::atomic<int> deleted{0};
  const auto* object = new Counted(deleted);
  EXPECT_EQ(object->AddRef(), 1U);
  EXPECT_EQ(object->AddRef(), 2U);
  EXPECT_EQ(object->Release(), 1U);
  EXPECT_EQ(deleted, 0);
  // The analyser cannot follow the counter and takes the first release for the last.
  EXPECT_EQ(object->Release(), 0U);
  EXPECT_EQ(deleted, 1);
}

TEST(RefCountable, LivesAsLongAsAPointer) {
  std::atomic<int> deleted{0};
  {
    const Pointer first(new Counted(deleted));
    EXPECT_EQ(first->GetRefCount(), 1U);
    {
      const Pointer second(first);
      EXPECT_EQ(first->GetRefCount(), 2U);
      const boost::intrusive_ptr<const IRefCountable> base(first);
      EXPECT_EQ(base->GetRefCount(), 3U);
    }
    EXPECT_EQ(first->GetRefCount(), 1U);
    EXPECT_EQ(deleted, 0);
  }
  EXPECT_EQ(deleted, 1);
}

TEST(RefCountable, ChangesHandsWithoutCounting) {
  std::atomic<int> deleted{0};
  Pointer first(new Counted(deleted));
  const Pointer second(std::move(first));
  EXPECT_EQ(second->GetRefCount(), 1U);
}

TEST(RefCountable, CopiesBeginALifeOfTheirOwn) {
  std::atomic<int> deleted{0};
  const Pointer original(new Counted(deleted));
  {
    const Pointer copy(new Counted(*original));
    EXPECT_EQ(copy->GetRefCount(), 1U);
  }
  EXPECT_EQ(deleted, 1);
  EXPECT_EQ(original->GetRefCount(), 1U);
}

TEST(RefCountable, CannotBeDeletedByItsUsers) {
  EXPECT_FALSE(std::is_destructible_v<IRefCountable>);
  EXPECT_TRUE(std::has_virtual_destructor_v<IRefCountable>);
}

/// Each operation answers with a number of its own.
class Numbered : public IRefCountable {
 public:
  unsigned int AddRef() const override { return 101; }
  unsigned int GetRefCount() const override { return 102; }
  unsigned int Release() const override { return 103; }
  ~Numbered() override = default;
};

TEST(RefCountable, KeepsTheOrderOfItsSlots) {
  const Numbered object;
  const IRefCountable* base = &object;
  using Operation = unsigned int (*)(const IRefCountable*);
  EXPECT_EQ(Zenvora::Test::SlotOf<Operation>(*base, 0)(base), 101U);
  EXPECT_EQ(Zenvora::Test::SlotOf<Operation>(*base, 1)(base), 102U);
  EXPECT_EQ(Zenvora::Test::SlotOf<Operation>(*base, 2)(base), 103U);
}

}  // namespace
}  // namespace Zenvora
