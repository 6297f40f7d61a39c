#include "ReadProbe.h"

#include <LumidexUtil/FileAccessLocker.h>

#include <zenvora/app/Application.h>

#include <glog/logging.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <mutex>

namespace Zenvora::Lumidex {

namespace {

// Half a second: longer than a virus scanner or a viewer holds a photo, shorter than anybody's patience.
constexpr int PROBE_ATTEMPTS = 50;
constexpr std::chrono::milliseconds PROBE_PAUSE(10);

void WaitUntilReadable(const ioPath& path) {
  int failures = 0;
  while (!CanBeRead(path)) {
    ++failures;
    App::SleepFor(PROBE_PAUSE);
    if (failures == PROBE_ATTEMPTS) {
      LOG(WARNING) << "Cannot lock " << path.utf8string();
      return;
    }
  }
  if (failures > 0) {
    VLOG(20) << "File locked (" << failures << ") " << path.utf8string();
  }
}

}  // namespace

class FileAccessLocker::Impl {
 public:
  ~Impl() {
    const std::lock_guard<std::mutex> lock(tableMutex_);
    VLOG(30) << "Locked file count: " << table_.size();
  }

  std::mutex& MutexOf(const ioPath& path) {
    std::atomic<Table::value_type*>& recent = recent_[SlotOf(path)];
    // Who gives a path back mostly asked for it last, and then need not wait for the table.
    Table::value_type* entry = recent.load(std::memory_order_acquire);
    if (entry == nullptr || entry->first != path) {
      const std::lock_guard<std::mutex> lock(tableMutex_);
      entry = &*table_.try_emplace(path).first;
      recent.store(entry, std::memory_order_release);
    }
    return entry->second;
  }

 private:
  /// Entries stay, and so do their addresses and keys.
  using Table = std::map<ioPath, std::mutex>;

  static constexpr unsigned int SLOT_BITS = 6;

  /// By the end of the name: photos of one folder differ there.
  static std::size_t SlotOf(const ioPath& path) {
    const auto& name = path.native().native();
    std::uint64_t end = name.size();
    const std::size_t length = std::min(name.size() * sizeof(name[0]), sizeof end);
    std::memcpy(&end, reinterpret_cast<const char*>(name.data() + name.size()) - length, length);
    return (end * 0x9E3779B97F4A7C15U) >> (64 - SLOT_BITS);
  }

  std::mutex tableMutex_;
  Table table_;
  std::array<std::atomic<Table::value_type*>, 1U << SLOT_BITS> recent_ = {};
};

boost::intrusive_ptr<IFileAccessLocker> FileAccessLocker::Create() {
  return boost::intrusive_ptr<IFileAccessLocker>(new FileAccessLocker);
}

FileAccessLocker::FileAccessLocker() : impl_(std::make_unique<Impl>()) {}

FileAccessLocker::~FileAccessLocker() = default;

unsigned int FileAccessLocker::AddRef() const {
  return refCount_.AddRefImpl();
}

unsigned int FileAccessLocker::GetRefCount() const {
  return refCount_.GetRefCountImpl();
}

unsigned int FileAccessLocker::Release() const {
  const unsigned int left = refCount_.ReleaseImpl();
  if (left == 0) {
    delete this;
  }
  return left;
}

void FileAccessLocker::Lock(const ioPath& path) {
  impl_->MutexOf(path).lock();
  WaitUntilReadable(path);
}

void FileAccessLocker::Unlock(const ioPath& path) {
  impl_->MutexOf(path).unlock();
}

}  // namespace Zenvora::Lumidex
