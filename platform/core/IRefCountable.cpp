#include <zenvora/core/IRefCountable.h>

namespace Zenvora {

IRefCountable::~IRefCountable() = default;

void intrusive_ptr_add_ref(const IRefCountable* object) {
  object->AddRef();
}

void intrusive_ptr_release(const IRefCountable* object) {
  object->Release();
}

}  // namespace Zenvora
