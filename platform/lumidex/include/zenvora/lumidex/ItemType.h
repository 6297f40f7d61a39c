#pragma once

namespace Zenvora::Lumidex {

/// Kind of a library item. The numbers are stored in catalogues and passed between libraries: they never
/// change.
enum class ItemType : int {
  Photo = 0,
  Tag = 1,
  Album = 2,
  Place = 3,
  Person = 7,
};

/// What an attribute of an item holds. The numbers are stored: they never change.
enum class DataAttributeId : int {
  /// Id of the photo shown for the item; empty: none chosen.
  CoverPhoto = 0,
  /// Free text; empty: none.
  Description = 1,
};

}  // namespace Zenvora::Lumidex
