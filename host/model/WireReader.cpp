#include "WireReader.h"

#include "ModelFault.h"

namespace Zenvora::Lumidex::Host {

namespace {

[[noreturn]] void ThrowDamaged() {
  throw ModelFault("it is not an ONNX model, or it is damaged");
}

}  // namespace

bool WireReader::Field::Is(std::uint64_t wanted, Type as) const {
  if (id == wanted && type != as) {
    ThrowDamaged();
  }
  return id == wanted;
}

std::optional<WireReader::Field> WireReader::Next() {
  if (left_.empty()) {
    return std::nullopt;
  }
  constexpr unsigned kTypeBits = 3;
  constexpr std::uint64_t kTypes = 7;
  // Other readers drop the higher bits of a tag.
  constexpr std::uint64_t kMostTag = 0xFFFFFFFF;
  const std::uint64_t tag = Number();
  Field field;
  field.id = tag >> kTypeBits;
  field.type = static_cast<Type>(tag & kTypes);
  if (field.id == 0 || tag > kMostTag) {
    ThrowDamaged();
  }
  switch (field.type) {
    case Type::Number:
      field.number = Number();
      return field;
    case Type::Eight:
      field.bytes = ReadBytes(8);
      return field;
    case Type::Bytes:
      field.bytes = ReadBytes(Number());
      return field;
    case Type::Four:
      field.bytes = ReadBytes(4);
      return field;
  }
  ThrowDamaged();
}

std::uint64_t WireReader::Number() {
  constexpr unsigned kBits = 7;
  constexpr unsigned kMostBits = 64;
  constexpr unsigned kMore = 0x80;
  std::uint64_t number = 0;
  for (unsigned shift = 0; shift < kMostBits; shift += kBits) {
    const auto byte = static_cast<unsigned char>(ReadBytes(1).front());
    number |= std::uint64_t{byte & (kMore - 1)} << shift;
    if ((byte & kMore) == 0) {
      return number;
    }
  }
  ThrowDamaged();
}

std::string_view WireReader::ReadBytes(std::uint64_t count) {
  if (count > left_.size()) {
    ThrowDamaged();
  }
  const std::string_view taken = left_.substr(0, count);
  left_.remove_prefix(count);
  return taken;
}

}  // namespace Zenvora::Lumidex::Host
