#pragma once

#include <zenvora/core/Export.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zenvora {

/// Base of every interface whose objects live as long as somebody refers to them.
///
/// Hold such objects by `boost::intrusive_ptr`. The object deletes itself inside the last `Release`. It does
/// not break circles of references: two objects that hold each other are never deleted.
///
/// Thread-safety: counting is safe from any thread; everything else is up to the derived interface.
/// The order of the virtual operations is part of the binary interface: destructor, AddRef, GetRefCount,
/// Release.
class ZENVORA_CORE_EXPORT IRefCountable {
 protected:
  // Declared first: slots follow the order of declaration.
  virtual ~IRefCountable();

 public:
  /// Counts one more reference. Returns the new count.
  virtual unsigned int AddRef() const = 0;
  /// Returns the count at this moment; another thread may change it at once.
  virtual unsigned int GetRefCount() const = 0;
  /// Counts one reference less and returns the count left. At 0 the object is already deleted.
  virtual unsigned int Release() const = 0;

 protected:
  IRefCountable() = default;
  IRefCountable(const IRefCountable&) = default;
  IRefCountable& operator=(const IRefCountable&) = default;
};

ZENVORA_CORE_EXPORT void intrusive_ptr_add_ref(const IRefCountable* object);
ZENVORA_CORE_EXPORT void intrusive_ptr_release(const IRefCountable* object);

}  // namespace Zenvora
