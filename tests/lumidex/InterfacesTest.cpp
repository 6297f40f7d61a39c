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

}  // namespace
}  // namespace Zenvora::Lumidex
