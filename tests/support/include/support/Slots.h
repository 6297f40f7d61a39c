#pragma once

#include <cstddef>
#include <cstring>

namespace Zenvora::Test {

/// The virtual operation at `slot` of an object, counted behind the two slots of the destructor, as the
/// common C++ binary interface lays them out: an object begins with the address of its table.
template <class Operation, class Object>
Operation SlotOf(const Object& object, std::size_t slot) {
  constexpr std::size_t kDestructors = 2;
  const Operation* table = nullptr;
  std::memcpy(&table, static_cast<const void*>(&object), sizeof(table));
  return table[kDestructors + slot];
}

}  // namespace Zenvora::Test
