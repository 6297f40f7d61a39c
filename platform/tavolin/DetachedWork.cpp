#include "DetachedWork.h"

#include "HostLookup.h"

#include <QMetaObject>
#include <QObject>

#include <mutex>
#include <thread>
#include <utility>

namespace Zenvora::Tavolin {

struct DetachedWork::Shared {
  std::mutex mutex;
  // Null once the owner is gone.
  QObject* context = nullptr;
  // Touched in the owner's thread alone.
  Done done;
};

DetachedWork::DetachedWork(QObject& context, Work work, Done done) : shared_(std::make_shared<Shared>()) {
  KeepThisLibraryLoaded();
  shared_->context = &context;
  shared_->done = std::move(done);
  std::thread([shared = shared_, work = std::move(work)] {
    const QString result = work();
    const std::lock_guard lock(shared->mutex);
    if (shared->context != nullptr) {
      const auto deliver = [shared, result] {
        if (const Done given = shared->done) {
          given(result);
        }
      };
      QMetaObject::invokeMethod(shared->context, deliver, Qt::QueuedConnection);
    }
  }).detach();
}

DetachedWork::~DetachedWork() {
  shared_->done = {};
  const std::lock_guard lock(shared_->mutex);
  shared_->context = nullptr;
}

}  // namespace Zenvora::Tavolin
