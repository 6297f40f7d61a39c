#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/DataModel.h>
#include <zenvora/lumidex/Export.h>

#include <QString>

namespace Zenvora::Lumidex {

/// The host's history of what was done to files: it hears of a change before it happens, and can take it
/// back.
///
/// One object serves one thread at a time. All operations may throw what derives from `Exception`. The order
/// of the virtual operations is part of the binary interface: the destructor, then as declared.
class ZENVORA_LUMIDEX_EXPORT IUndo {
 protected:
  // Declared first: slots follow the order of declaration.
  virtual ~IUndo();

 public:
  /// What is registered from here to `EndStep` is taken back together. `name`: what the person did.
  virtual void BeginStep(const QString& name) = 0;
  virtual void EndStep() = 0;
  /// Takes back the last step that stands. False: there is none.
  virtual bool Undo() = 0;
  /// Does again what was taken back last. False: there is nothing.
  virtual bool Redo() = 0;
  /// The file of `item` is about to change; afterwards it will be at `newPath` (the item's own path when it
  /// is replaced in place). Nothing has changed on the disk yet; when this throws, nothing must.
  virtual void RegisterFileChange(DataModel& item, const ioPath& newPath) = 0;

 protected:
  IUndo() = default;
  IUndo(const IUndo&) = default;
  IUndo& operator=(const IUndo&) = default;
};

}  // namespace Zenvora::Lumidex
