#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// Walks through the fields of one message in protobuf's wire format. Never reads beyond the bytes; throws
/// `ModelFault` where they are not such a message.
class WireReader {
 public:
  enum class Type { Number = 0, Eight = 1, Bytes = 2, Four = 5 };

  struct Field {
    std::uint64_t id = 0;
    Type type = Type::Number;
    std::uint64_t number = 0;  ///< Of `Number`.
    std::string_view bytes;    ///< Of all others.

    /// Whether it is the field `wanted`. Throws `ModelFault` when it is, but of another type: other readers
    /// pass such a field by, and would see another message.
    bool Is(std::uint64_t wanted, Type as) const;
  };

  /// The bytes must outlive it and all that it returns.
  explicit WireReader(std::string_view bytes) : left_(bytes) {}

  /// Empty at the end.
  std::optional<Field> Next();
  /// One number of a packed field.
  std::uint64_t Number();
  bool AtEnd() const { return left_.empty(); }

 private:
  std::string_view ReadBytes(std::uint64_t count);

  std::string_view left_;
};

}  // namespace Zenvora::Lumidex::Host
