#include <support/SimilarDoubles.h>
#include <support/Slots.h>

#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/IUndo.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace Zenvora::Lumidex {
namespace {

using Zenvora::Test::SlotOf;

TEST(IFileAccessLocker, SharesOneReferenceCountableBase) {
  EXPECT_TRUE((std::is_base_of_v<IRefCountable, IFileAccessLocker>));
  EXPECT_TRUE((std::is_convertible_v<IFileAccessLocker*, IRefCountable*>));
  EXPECT_FALSE(std::is_destructible_v<IFileAccessLocker>);
  EXPECT_TRUE(std::has_virtual_destructor_v<IFileAccessLocker>);
}

TEST(IUndo, CannotBeDeletedByItsUsers) {
  EXPECT_FALSE(std::is_destructible_v<IUndo>);
  EXPECT_TRUE(std::has_virtual_destructor_v<IUndo>);
}

/// Writes down which operation was called.
class Noting : public virtual IFileAccessLocker, public IUndo {
 public:
  unsigned int AddRef() const override { return Note("AddRef"); }
  unsigned int GetRefCount() const override { return Note("GetRefCount"); }
  unsigned int Release() const override { return Note("Release"); }
  void Lock(const ioPath&) override { Note("Lock"); }
  void Unlock(const ioPath&) override { Note("Unlock"); }
  void BeginStep(const QString&) override { Note("BeginStep"); }
  void EndStep() override { Note("EndStep"); }
  bool Undo() override { return Note("Undo") == 1; }
  bool Redo() override { return Note("Redo") == 1; }
  void RegisterFileChange(DataModel&, const ioPath&) override { Note("RegisterFileChange"); }
  mutable std::string called;

 private:
  unsigned int Note(const char* name) const {
    called = name;
    return 1;
  }
};

TEST(IFileAccessLocker, KeepsTheOrderOfItsSlots) {
  Noting object;
  IFileAccessLocker& locker = object;
  const ioPath path;
  // Those of the base come first: it has no data, so both share one table.
  SlotOf<unsigned int (*)(IFileAccessLocker*)>(locker, 0)(&locker);
  EXPECT_EQ(object.called, "AddRef");
  SlotOf<unsigned int (*)(IFileAccessLocker*)>(locker, 1)(&locker);
  EXPECT_EQ(object.called, "GetRefCount");
  SlotOf<unsigned int (*)(IFileAccessLocker*)>(locker, 2)(&locker);
  EXPECT_EQ(object.called, "Release");
  using Operation = void (*)(IFileAccessLocker*, const ioPath&);
  SlotOf<Operation>(locker, 3)(&locker, path);
  EXPECT_EQ(object.called, "Lock");
  SlotOf<Operation>(locker, 4)(&locker, path);
  EXPECT_EQ(object.called, "Unlock");
}

TEST(IUndo, HearsOfChangesThroughItsFifthSlot) {
  Noting object;
  IUndo& undo = object;
  DataModel item;
  const ioPath path;
  constexpr std::size_t kFifth = 4;
  SlotOf<void (*)(IUndo*, DataModel&, const ioPath&)>(undo, kFifth)(&undo, item, path);
  EXPECT_EQ(object.called, "RegisterFileChange");
}

TEST(ISimilarDataSource, HasItsOperationsInTheirSlots) {
  Zenvora::Test::SimilarStore store;
  Zenvora::Test::FakeSimilarSource object(store);
  ISimilarDataSource& source = object;
  const Cluster cluster({1, 2}, 3);
  const std::vector<QString> ids;
  EXPECT_TRUE(source.GetClusters().empty());
  // A result of more than a register is handed over behind the object's back: its slot is that before these.
  EXPECT_EQ(SlotOf<int (*)(ISimilarDataSource*, const Cluster&, const std::vector<QString>&)>(source, 1)(
                &source, cluster, ids),
            1);
  SlotOf<void (*)(ISimilarDataSource*, const Cluster&, const std::vector<QString>&)>(source, 2)(&source,
                                                                                                cluster, ids);
  EXPECT_EQ(store.events, (std::vector<std::string>{"read", "add", "update"}));
}

TEST(ITransactionManager, HasItsOperationsInTheirSlots) {
  Zenvora::Test::SimilarStore store;
  Zenvora::Test::FakeTransactions manager(store);
  const auto transaction = static_cast<ITransactionManager&>(manager).BeginTransaction("a");
  SlotOf<void (*)(ITransaction*)>(*transaction, 0)(transaction.get());
  SlotOf<void (*)(ITransaction*)>(*transaction, 1)(transaction.get());
  EXPECT_EQ(store.events, (std::vector<std::string>{"begin a", "rollback", "commit"}));
}

TEST(Cluster, IsNotStoredAtFirst) {
  const Cluster cluster({1, 2}, 3);
  EXPECT_EQ(cluster.id, 0);
  EXPECT_EQ(cluster.centre, (std::vector<float>{1, 2}));
  EXPECT_EQ(cluster.count, 3);
}

}  // namespace
}  // namespace Zenvora::Lumidex
