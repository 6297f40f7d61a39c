#include <LumidexUtil/Rename.h>
#include <LumidexUtil/UndoFileHolder.h>

#include <zenvora/tavolin/NativePath.h>

#include <utility>

namespace Zenvora::Lumidex {

UndoFileHolder::UndoFileHolder(IUndo* undo, IFileAccessLocker& locker, const DataModel& item,
                               const ioPath& heldPath, bool adoptHeldPath)
    : undo_(undo),
      locker_(locker),
      item_(std::make_unique<DataModel>(item)),
      heldPath_(Tavolin::FromNative(heldPath)),
      adoptHeldPath_(adoptHeldPath) {}

UndoFileHolder::UndoFileHolder(UndoFileHolder&& other) noexcept
    : undo_(other.undo_),
      locker_(other.locker_),
      item_(std::move(other.item_)),
      heldPath_(std::exchange(other.heldPath_, {})),
      adoptHeldPath_(other.adoptHeldPath_) {}

UndoFileHolder& UndoFileHolder::operator=(UndoFileHolder&& other) noexcept {
  if (this != &other) {
    item_ = std::move(other.item_);
    heldPath_ = std::exchange(other.heldPath_, {});
    adoptHeldPath_ = other.adoptHeldPath_;
  }
  return *this;
}

UndoFileHolder::~UndoFileHolder() {
  try {
    if (!heldPath_.empty()) {
      heldPath_.remove();
    }
  } catch (...) {
    // A file too many is better than no program.
  }
}

bool UndoFileHolder::IsEmpty() const {
  return item_ == nullptr || heldPath_.empty();
}

void UndoFileHolder::Clear() {
  heldPath_.clear();
  item_.reset();
}

void UndoFileHolder::Process() {
  if (undo_ != nullptr) {
    undo_->RegisterFileChange(*item_, adoptHeldPath_ ? heldPath_ : item_->GetPath());
  }
  if (adoptHeldPath_) {
    item_->SetPath(heldPath_);
  } else {
    Util::Rename(locker_, heldPath_, item_->GetPath());
  }
  heldPath_.clear();
  item_->SetSize(item_->GetPath().file_size());
}

}  // namespace Zenvora::Lumidex
