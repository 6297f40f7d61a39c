#pragma once

#include <zenvora/core/Export.h>

#include <string>
#include <vector>

namespace Zenvora::Core {

/// A tree of named values: each node has a text or none, and children by name.
///
/// Made for a handful of children, which are found one after the other. Thread-safety: as a value.
class ZENVORA_CORE_EXPORT Property {
 public:
  /// An empty one.
  Property() noexcept;
  /// With a text, which may be empty: the property is not.
  explicit Property(std::string text);
  Property(const Property& other);
  Property(Property&& other) noexcept;
  Property& operator=(const Property& other);
  Property& operator=(Property&& other) noexcept;
  ~Property();

  /// True when it has neither a text nor children.
  bool IsEmpty() const noexcept;
  /// The child of that name, as it is written. An empty property when there is none, which stays valid for
  /// ever; other references are valid until this property changes.
  const Property& operator[](const std::string& name) const;
  /// Empty when there is no text. Valid until the property changes.
  const std::string& GetString() const noexcept { return text_; }

  /// Gives it a child, in place of the one that has the name already.
  void Set(const std::string& name, Property child);

 private:
  struct Child;

  bool hasText_ = false;
  std::string text_;
  std::vector<Child> children_;
};

}  // namespace Zenvora::Core
