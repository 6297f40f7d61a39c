#include <zenvora/qtutility/ObjectsConnector.h>

#include <glog/logging.h>

#include <QByteArray>
#include <QHash>
#include <QMetaMethod>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <mutex>
#include <vector>

namespace Zenvora::Util {

namespace {

struct Signal {
  QByteArray signature;
  bool acrossThreads = false;
};

struct Receiver {
  QObject* object = nullptr;
  QByteArray slot;
};

/// Those who meet under one id.
struct Meeting {
  QHash<QObject*, std::vector<Signal>> emitters;
  std::vector<Receiver> receivers;
};

struct Known {
  /// An object may be disconnected from everything, and then nobody hears of its end.
  QPointer<QObject> alive;
  QSet<QString> ids;
};

/// The code of the macro with the signature as Qt spells it.
QByteArray Normalized(const QByteArray& method) {
  return method.left(1) + QMetaObject::normalizedSignature(method.mid(1).constData());
}

class Registry {
 public:
  /// Never destroyed: objects that live until the end of the process still leave it.
  static Registry& Instance() {
    static auto* const registry = new Registry;
    return *registry;
  }

  void AddEmitter(const QString& id, QObject* emitter, const Signal& signal);
  void AddReceiver(const QString& id, const Receiver& receiver);

 private:
  bool IsAlive(QObject* object) const { return !known_.value(object).alive.isNull(); }
  /// Those who have met under the id, and whoever had the address of `object` before it.
  void ForgetTheGone(const QString& id, QObject* object);
  void Watch(const QString& id, QObject* object);
  void Remove(QObject* object);

  /// Recursive: connecting calls `connectNotify`, which may register something.
  std::recursive_mutex mutex_;
  QHash<QString, Meeting> meetings_;
  QHash<QObject*, Known> known_;
};

bool MayRegister(const QString& id, const QObject* object, const QByteArray& method,
                 QMetaMethod::MethodType type) {
  if (object == nullptr) {
    LOG(ERROR) << "Nothing can be connected under " << id.toStdString() << ": no object";
    return false;
  }
  const char* const name = object->metaObject()->className();
  if (object->thread() != QThread::currentThread()) {
    LOG(ERROR) << name << " is not connected under " << id.toStdString() << ": it lives in another thread";
    return false;
  }
  // As QObject::connect codes them.
  const char code = type == QMetaMethod::Signal ? '2' : '1';
  const QByteArray signature = QMetaObject::normalizedSignature(method.mid(1).constData());
  const bool known = type == QMetaMethod::Signal
                         ? object->metaObject()->indexOfSignal(signature.constData()) >= 0
                         : object->metaObject()->indexOfSlot(signature.constData()) >= 0;
  if (method.isEmpty() || method[0] != code || !known) {
    LOG(ERROR) << name << " is not connected under " << id.toStdString() << ": it has no "
               << (type == QMetaMethod::Signal ? "signal " : "slot ") << method.constData();
    return false;
  }
  return true;
}

void Connect(const QString& id, QObject* emitter, const Signal& signal, const Receiver& receiver) {
  if (!signal.acrossThreads && emitter->thread() != receiver.object->thread()) {
    LOG(ERROR) << emitter->metaObject()->className() << " and " << receiver.object->metaObject()->className()
               << " are not connected under " << id.toStdString() << ": they live in different threads";
    return;
  }
  const auto type = signal.acrossThreads ? Qt::AutoConnection : Qt::DirectConnection;
  if (!QObject::connect(emitter, signal.signature.constData(), receiver.object, receiver.slot.constData(),
                        type)) {
    LOG(ERROR) << signal.signature.constData() << " does not fit " << receiver.slot.constData() << " under "
               << id.toStdString();
  }
}

void Registry::AddEmitter(const QString& id, QObject* emitter, const Signal& signal) {
  const std::lock_guard<std::recursive_mutex> lock(mutex_);
  ForgetTheGone(id, emitter);
  auto& signals_ = meetings_[id].emitters[emitter];
  const auto same = [&](const Signal& other) { return other.signature == signal.signature; };
  if (std::any_of(signals_.begin(), signals_.end(), same)) {
    return;
  }
  signals_.push_back(signal);
  // A copy: what is registered from here on finds this one and connects itself.
  const auto receivers = meetings_[id].receivers;
  Watch(id, emitter);
  for (const Receiver& receiver : receivers) {
    if (IsAlive(receiver.object)) {
      Connect(id, emitter, signal, receiver);
    }
  }
}

void Registry::AddReceiver(const QString& id, const Receiver& receiver) {
  const std::lock_guard<std::recursive_mutex> lock(mutex_);
  ForgetTheGone(id, receiver.object);
  auto& receivers = meetings_[id].receivers;
  const auto same = [&](const Receiver& other) {
    return other.object == receiver.object && other.slot == receiver.slot;
  };
  if (std::any_of(receivers.begin(), receivers.end(), same)) {
    return;
  }
  receivers.push_back(receiver);
  const auto emitters = meetings_[id].emitters;
  Watch(id, receiver.object);
  for (auto it = emitters.begin(); it != emitters.end(); ++it) {
    for (const Signal& signal : it.value()) {
      if (IsAlive(it.key())) {
        Connect(id, it.key(), signal, receiver);
      }
    }
  }
}

void Registry::ForgetTheGone(const QString& id, QObject* object) {
  const Meeting meeting = meetings_.value(id);
  std::vector<QObject*> met = {object};
  for (auto it = meeting.emitters.begin(); it != meeting.emitters.end(); ++it) {
    met.push_back(it.key());
  }
  for (const Receiver& receiver : meeting.receivers) {
    met.push_back(receiver.object);
  }
  for (QObject* const one : met) {
    if (!IsAlive(one)) {
      Remove(one);
    }
  }
}

void Registry::Watch(const QString& id, QObject* object) {
  Known& known = known_[object];
  if (known.ids.isEmpty()) {
    known.alive = object;
    QObject::connect(object, &QObject::destroyed, [object] { Instance().Remove(object); });
  }
  known.ids.insert(id);
}

void Registry::Remove(QObject* object) {
  const std::lock_guard<std::recursive_mutex> lock(mutex_);
  const QSet<QString> ids = known_.take(object).ids;
  for (const QString& id : ids) {
    const auto meeting = meetings_.find(id);
    if (meeting == meetings_.end()) {
      continue;
    }
    meeting->emitters.remove(object);
    auto& receivers = meeting->receivers;
    const auto gone = [object](const Receiver& receiver) { return receiver.object == object; };
    receivers.erase(std::remove_if(receivers.begin(), receivers.end(), gone), receivers.end());
    if (meeting->emitters.isEmpty() && receivers.empty()) {
      meetings_.erase(meeting);
    }
  }
}

}  // namespace

void ObjectsConnector::registerEmitter(const QString& id, QObject* emitter, const QString& signal,
                                       bool acrossThreads) {
  const QByteArray signature = signal.toUtf8();
  if (MayRegister(id, emitter, signature, QMetaMethod::Signal)) {
    Registry::Instance().AddEmitter(id, emitter, {Normalized(signature), acrossThreads});
  }
}

void ObjectsConnector::registerReceiver(const QString& id, QObject* receiver, const QString& slot) {
  const QByteArray signature = slot.toUtf8();
  if (MayRegister(id, receiver, signature, QMetaMethod::Slot)) {
    Registry::Instance().AddReceiver(id, {receiver, Normalized(signature)});
  }
}

}  // namespace Zenvora::Util
