#include "ShutdownWatch.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <exception>
#include <mutex>
#include <utility>
#include <vector>

namespace Zenvora::Tavolin {

namespace {

// The open watches of the application's thread.
struct Registry {
  std::mutex mutex;
  std::vector<ShutdownWatch*> open;
  bool closing = false;
};

Registry& TheRegistry() {
  // Never destroyed: watches of static objects end after any static of this library.
  static auto* const registry = new Registry;
  return *registry;
}

ShutdownWatch* NextOpenWatch() {
  Registry& registry = TheRegistry();
  const std::lock_guard<std::mutex> lock(registry.mutex);
  return registry.open.empty() ? nullptr : registry.open.front();
}

void SetClosing(bool closing) {
  Registry& registry = TheRegistry();
  const std::lock_guard<std::mutex> lock(registry.mutex);
  registry.closing = closing;
}

void Leave(ShutdownWatch* watch);

}  // namespace

void FinishOpenWatches() {
  SetClosing(true);
  while (auto* const watch = NextOpenWatch()) {
    Leave(watch);
    try {
      watch->Finish();
    } catch (const std::exception& failure) {
      LOG(ERROR) << "A handler failed while the application ended: " << failure.what();
    } catch (...) {
      LOG(ERROR) << "A handler failed while the application ended";
    }
  }
  SetClosing(false);
  // What the handlers asked to delete later has no later.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

namespace {

void Enter(ShutdownWatch* watch) {
  Registry& registry = TheRegistry();
  const std::lock_guard<std::mutex> lock(registry.mutex);
  if (registry.open.empty()) {
    qAddPostRoutine(&FinishOpenWatches);
  }
  registry.open.push_back(watch);
}

void Leave(ShutdownWatch* watch) {
  Registry& registry = TheRegistry();
  const std::lock_guard<std::mutex> lock(registry.mutex);
  const auto found = std::find(registry.open.begin(), registry.open.end(), watch);
  if (found == registry.open.end()) {
    return;
  }
  registry.open.erase(found);
  // No routine stays behind: this library may be unloaded before the application ends.
  if (registry.open.empty()) {
    qRemovePostRoutine(&FinishOpenWatches);
  }
}

}  // namespace

ShutdownWatch::ShutdownWatch(std::function<void()> finish) : finish_(std::move(finish)) {
  const auto* const application = QCoreApplication::instance();
  if (application == nullptr) {
    return;
  }
  QObject::connect(application, &QCoreApplication::aboutToQuit, &here_, [this] { Finish(); });
  if (QThread::currentThread() == application->thread()) {
    Enter(this);
  } else {
    QObject::connect(
        QThread::currentThread(), &QThread::finished, &here_, [this] { Finish(); }, Qt::DirectConnection);
  }
}

ShutdownWatch::~ShutdownWatch() {
  Leave(this);
}

bool ShutdownWatch::IsTooLate() {
  const auto* const application = QCoreApplication::instance();
  if (application == nullptr) {
    return true;
  }
  Registry& registry = TheRegistry();
  const std::lock_guard<std::mutex> lock(registry.mutex);
  return registry.closing && QThread::currentThread() == application->thread();
}

void ShutdownWatch::Finish() {
  // A local: the callback may destroy this object.
  const auto finish = std::exchange(finish_, nullptr);
  if (finish) {
    finish();
  }
}

}  // namespace Zenvora::Tavolin
