#include "TensorCheck.h"

#include "ModelFault.h"
#include "WireReader.h"

#include <cstdint>
#include <map>
#include <optional>

namespace Zenvora::Lumidex::Host {

namespace {

using Type = WireReader::Type;

/// Numbers of the format's fields.
enum TensorField : std::uint64_t {
  kDims = 1,
  kDataType = 2,
  kFloats = 4,
  kInts = 5,
  kLongs = 7,
  kTensorName = 8,
  kRaw = 9,
  kDoubles = 10,
  kUnsigned = 11,
  kExternal = 13,
  kLocation = 14,
};

/// Whatever claims more would not fit a model of a size that is taken.
constexpr std::uint64_t kMostElements = std::uint64_t{1} << 40U;

/// How the numbers of a tensor are stored.
struct Storage {
  std::uint64_t bytes;  ///< Of one in raw data; 0: no numbers, whose data is not looked at.
  std::uint64_t list;   ///< The one field that may list them instead.
};

std::optional<Storage> StorageOf(std::uint64_t dataType) {
  switch (dataType) {
    case 0:  // Undefined.
    case 8:  // Text.
      return Storage{0, 0};
    case 1:  // Float.
      return Storage{4, kFloats};
    case 2:  // 8 bits without and with a sign, truth.
    case 3:
    case 9:
      return Storage{1, kInts};
    case 4:  // 16 bits without and with a sign, two kinds of half floats.
    case 5:
    case 10:
    case 16:
      return Storage{2, kInts};
    case 6:  // 32 bits.
      return Storage{4, kInts};
    case 7:  // 64 bits.
      return Storage{8, kLongs};
    case 11:  // Double.
      return Storage{8, kDoubles};
    case 12:  // 32 and 64 bits without a sign.
      return Storage{4, kUnsigned};
    case 13:
      return Storage{8, kUnsigned};
    default:
      return std::nullopt;
  }
}

/// One number of a field, or the many of a packed one.
template <class Each>
void ForEachNumber(const WireReader::Field& field, const Each& each) {
  if (field.type == Type::Number) {
    each(field.number);
  } else if (field.Is(field.id, Type::Bytes)) {
    WireReader packed(field.bytes);
    while (!packed.AtEnd()) {
      each(packed.Number());
    }
  }
}

/// How many numbers of a fixed size `one` there are in such a field.
std::uint64_t CountOf(const WireReader::Field& field, Type one) {
  if (field.type == one) {
    return 1;
  }
  const std::size_t bytes = one == Type::Four ? sizeof(float) : sizeof(double);
  return field.Is(field.id, Type::Bytes) ? field.bytes.size() / bytes : 0;
}

/// What runs the model takes the sizes of weights on trust.
class Tensor {
 public:
  explicit Tensor(std::string_view tensor) {
    WireReader reader(tensor);
    while (const auto field = reader.Next()) {
      Take(*field);
    }
    const std::optional<Storage> storage = StorageOf(dataType_);
    if (!storage) {
      throw ModelFault("its weights \"" + WordsOf(name_) + "\" are of an unknown kind");
    }
    if (storage->bytes == 0) {
      return;
    }
    // Lists of another kind are not read, whatever is in them.
    const auto list = listed_.find(storage->list);
    const bool isListed = list != listed_.end() && list->second > 0;
    const std::uint64_t there = isListed ? list->second : raw_ / storage->bytes;
    if (there != elements_ || (!isListed && raw_ % storage->bytes != 0)) {
      throw ModelFault("its weights \"" + WordsOf(name_) + "\" are " + std::to_string(there) +
                       " numbers instead of " + std::to_string(elements_));
    }
  }

  const std::string& Name() const { return name_; }

 private:
  void Take(const WireReader::Field& field) {
    if (field.id == kDims) {
      ForEachNumber(field, [this](std::uint64_t size) { Multiply(size); });
    } else if (field.Is(kDataType, Type::Number)) {
      dataType_ = field.number;
    } else if (field.id == kFloats) {
      listed_[field.id] += CountOf(field, Type::Four);
    } else if (field.id == kDoubles) {
      listed_[field.id] += CountOf(field, Type::Eight);
    } else if (field.id == kInts || field.id == kLongs || field.id == kUnsigned) {
      std::uint64_t& count = listed_[field.id];
      ForEachNumber(field, [&count](std::uint64_t) { ++count; });
    } else if (field.Is(kTensorName, Type::Bytes)) {
      name_ = std::string(field.bytes);
    } else if (field.Is(kRaw, Type::Bytes)) {
      raw_ = field.bytes.size();
    } else if (field.Is(kExternal, Type::Bytes) || (field.Is(kLocation, Type::Number) && field.number != 0)) {
      throw ModelFault("its weights lie in other files");
    }
  }

  void Multiply(std::uint64_t size) {
    if (size > kMostElements || (size > 0 && elements_ > kMostElements / size)) {
      throw ModelFault("its weights \"" + WordsOf(name_) + "\" are of an impossible size");
    }
    elements_ *= size;
  }

  std::string name_;
  std::uint64_t dataType_ = 0;
  std::uint64_t elements_ = 1;
  std::map<std::uint64_t, std::uint64_t> listed_;  ///< By field.
  std::uint64_t raw_ = 0;
};

}  // namespace

std::string CheckTensor(std::string_view tensor) {
  return Tensor(tensor).Name();
}

}  // namespace Zenvora::Lumidex::Host
