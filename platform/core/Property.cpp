#include <zenvora/core/Property.h>

#include <algorithm>
#include <utility>

namespace Zenvora::Core {

struct Property::Child {
  std::string name;
  Property property;
};

Property::Property() noexcept = default;
Property::Property(std::string text) : hasText_(true), text_(std::move(text)) {}
Property::Property(const Property& other) = default;
Property& Property::operator=(const Property& other) = default;
Property::~Property() = default;

// What was moved away from is empty.
Property::Property(Property&& other) noexcept
    : hasText_(std::exchange(other.hasText_, false)),
      text_(std::exchange(other.text_, {})),
      children_(std::exchange(other.children_, {})) {}

Property& Property::operator=(Property&& other) noexcept {
  // By way of a third one: `other` may be a child of this.
  Property moved(std::move(other));
  std::swap(hasText_, moved.hasText_);
  text_.swap(moved.text_);
  children_.swap(moved.children_);
  return *this;
}

bool Property::IsEmpty() const noexcept {
  return !hasText_ && children_.empty();
}

const Property& Property::operator[](const std::string& name) const {
  static const Property none;
  const auto found = std::find_if(children_.begin(), children_.end(),
                                  [&name](const Child& child) { return child.name == name; });
  return found == children_.end() ? none : found->property;
}

void Property::Set(const std::string& name, Property child) {
  const auto found = std::find_if(children_.begin(), children_.end(),
                                  [&name](const Child& known) { return known.name == name; });
  if (found == children_.end()) {
    children_.push_back({name, std::move(child)});
  } else {
    found->property = std::move(child);
  }
}

}  // namespace Zenvora::Core
