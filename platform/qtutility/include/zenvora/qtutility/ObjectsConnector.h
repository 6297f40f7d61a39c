#pragma once

#include <zenvora/qtutility/Export.h>

#include <QString>

class QObject;

namespace Zenvora::Util {

/// Brings objects together that do not know each other: every signal that is registered under an id is
/// connected with every slot that is registered under it, whichever came first. Ids are any texts that both
/// sides agree on. It suits few objects that live long; who knows the other side connects with it directly.
///
/// Objects are not owned. Destroying one ends its connections and its registration; there is nothing to
/// unregister. What is registered twice counts once.
///
/// Thread-safety: any thread may register, but each its own objects: an object of another thread, null or a
/// signature that the object does not have is logged as an error and leaves everything as it was.
/// Objects under one id in several threads are the callers' affair: none may be destroyed while another
/// thread registers or emits under that id.
class ZENVORA_QTUTILITY_EXPORT ObjectsConnector {
 public:
  ObjectsConnector() = delete;

  /// `signal`: in the form of the macro SIGNAL, such as "2changed(int)". `acrossThreads` false: receivers run
  /// within the emission, so that they can answer through its arguments; one that lives in another thread is
  /// not connected, which is logged as an error. True: receivers in other threads run in their own, some time
  /// later, with copies of the arguments.
  static void registerEmitter(const QString& id, QObject* emitter, const QString& signal, bool acrossThreads);

  /// `slot`: in the form of the macro SLOT, such as "1show(int)". Receivers of one emitter run in the order
  /// in which they were registered.
  static void registerReceiver(const QString& id, QObject* receiver, const QString& slot);
};

}  // namespace Zenvora::Util
