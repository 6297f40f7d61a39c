#include "ModelHead.h"

#include "ModelFault.h"
#include "WireReader.h"

#include <cstdint>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// Numbers of the format's fields.
enum ModelField : std::uint64_t { kIrVersion = 1, kGraph = 7, kMetadata = 14 };
enum GraphField : std::uint64_t { kNode = 1, kInitializer = 5, kInput = 11, kOutput = 12, kSparse = 15 };
enum NodeField : std::uint64_t { kFrom = 1, kTo = 2, kAttribute = 5 };
enum AttributeField : std::uint64_t { kTensor = 5, kTensors = 10 };
enum ValueField : std::uint64_t { kName = 1, kType = 2 };
enum TypeField : std::uint64_t { kTensorType = 1 };
enum TensorTypeField : std::uint64_t { kElement = 1, kShape = 2 };
enum DimensionField : std::uint64_t { kSize = 1 };
enum EntryField : std::uint64_t { kKey = 1, kValue = 2 };
enum TensorField : std::uint64_t {
  kDims = 1,
  kDataType = 2,
  kFloats = 4,
  kInts = 5,
  kLongs = 7,
  kTensorName = 8,
  kRaw = 9,
  kDoubles = 10,
  kExternal = 13,
  kLocation = 14,
};

constexpr std::uint64_t kFloat = 1;
/// Whatever claims more would not fit a model of a size that is taken.
constexpr std::uint64_t kMostElements = std::uint64_t{1} << 40U;
constexpr std::uint64_t kMostSide = 4096;

/// Bytes of one element in raw data; 0: another kind, whose data is not looked at.
std::uint64_t BytesOf(std::uint64_t dataType) {
  // Float, two of 8 bits, two of 16, 32, 64, (text), truth, half, double.
  constexpr unsigned char kBytes[] = {0, 4, 1, 1, 2, 2, 4, 8, 0, 1, 2, 8};
  return dataType < sizeof kBytes ? kBytes[dataType] : 0;
}

/// One number of a field, or the many of a packed one.
template <class Each>
void ForEachNumber(const WireReader::Field& field, const Each& each) {
  if (field.type == WireReader::Type::Number) {
    each(field.number);
    return;
  }
  WireReader packed(field.bytes);
  while (!packed.AtEnd()) {
    each(packed.Number());
  }
}

/// What runs the model takes the sizes of weights on trust.
class TensorCheck {
 public:
  explicit TensorCheck(std::string_view tensor) {
    WireReader reader(tensor);
    while (const auto field = reader.Next()) {
      Take(*field);
    }
    const std::uint64_t bytes = BytesOf(dataType_);
    if (bytes == 0) {
      return;
    }
    const std::uint64_t there = listed_ > 0 ? listed_ : raw_ / bytes;
    if (there != elements_ || (listed_ == 0 && raw_ % bytes != 0)) {
      throw ModelFault("its weights \"" + WordsOf(name_) + "\" are " + std::to_string(there) +
                       " numbers instead of " + std::to_string(elements_));
    }
  }

  const std::string& Name() const { return name_; }

 private:
  void Take(const WireReader::Field& field) {
    switch (field.id) {
      case kDims:
        ForEachNumber(field, [this](std::uint64_t size) { Multiply(size); });
        break;
      case kDataType:
        dataType_ = field.number;
        break;
      case kFloats:
        listed_ += field.bytes.size() / sizeof(float);
        break;
      case kDoubles:
        listed_ += field.bytes.size() / sizeof(double);
        break;
      case kInts:
      case kLongs:
        ForEachNumber(field, [this](std::uint64_t) { ++listed_; });
        break;
      case kTensorName:
        name_ = std::string(field.bytes);
        break;
      case kRaw:
        raw_ = field.bytes.size();
        break;
      case kExternal:
        throw ModelFault("its weights lie in other files");
      case kLocation:
        if (field.number != 0) {
          throw ModelFault("its weights lie in other files");
        }
        break;
      default:
        break;
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
  std::uint64_t listed_ = 0;
  std::uint64_t raw_ = 0;
};

/// An input or output.
struct Value {
  std::string name;
  std::uint64_t element = 0;
  /// Empty: left open.
  std::vector<std::optional<std::uint64_t>> shape;
};

std::optional<std::uint64_t> SizeOf(std::string_view dimension) {
  std::optional<std::uint64_t> size;
  WireReader reader(dimension);
  while (const auto field = reader.Next()) {
    if (field->id == kSize && field->number > 0) {
      size = field->number;
    }
  }
  return size;
}

void ReadTensorType(std::string_view type, Value& value) {
  WireReader reader(type);
  while (const auto field = reader.Next()) {
    if (field->id == kElement) {
      value.element = field->number;
    } else if (field->id == kShape) {
      WireReader sizes(field->bytes);
      while (const auto size = sizes.Next()) {
        value.shape.push_back(SizeOf(size->bytes));
      }
    }
  }
}

Value ReadValue(std::string_view bytes) {
  Value value;
  WireReader reader(bytes);
  while (const auto field = reader.Next()) {
    if (field->id == kName) {
      value.name = std::string(field->bytes);
    } else if (field->id == kType) {
      WireReader types(field->bytes);
      while (const auto type = types.Next()) {
        if (type->id == kTensorType) {
          ReadTensorType(type->bytes, value);
        }
      }
    }
  }
  return value;
}

/// Names of what a node works on and of what it makes.
struct Node {
  std::vector<std::string> from;
  std::vector<std::string> to;
};

void CheckTensors(std::string_view attribute) {
  WireReader reader(attribute);
  while (const auto part = reader.Next()) {
    if (part->id == kTensor || part->id == kTensors) {
      TensorCheck{part->bytes};
    }
  }
}

Node ReadNode(std::string_view bytes) {
  Node node;
  WireReader reader(bytes);
  while (const auto field = reader.Next()) {
    if (field->id == kFrom) {
      node.from.emplace_back(field->bytes);
    } else if (field->id == kTo) {
      node.to.emplace_back(field->bytes);
    } else if (field->id == kAttribute) {
      CheckTensors(field->bytes);
    }
  }
  return node;
}

/// What runs the model follows names without looking.
void CheckNames(const std::vector<Node>& nodes, std::set<std::string> known) {
  // What is left out has an empty name.
  known.insert("");
  for (const Node& node : nodes) {
    for (const std::string& name : node.from) {
      if (known.count(name) == 0) {
        throw ModelFault("nothing in it makes \"" + WordsOf(name) + "\" before it is needed");
      }
    }
    known.insert(node.to.begin(), node.to.end());
  }
}

struct Graph {
  std::vector<Value> inputs;
  std::vector<Value> outputs;
};

Graph ReadGraph(std::string_view bytes) {
  Graph graph;
  std::vector<Value> inputs;
  std::vector<Node> nodes;
  std::set<std::string> weights;
  WireReader reader(bytes);
  while (const auto field = reader.Next()) {
    switch (field->id) {
      case kNode:
        nodes.push_back(ReadNode(field->bytes));
        break;
      case kInitializer:
        weights.insert(TensorCheck(field->bytes).Name());
        break;
      case kSparse:
        throw ModelFault("it has sparse weights");
      case kInput:
        inputs.push_back(ReadValue(field->bytes));
        break;
      case kOutput:
        graph.outputs.push_back(ReadValue(field->bytes));
        break;
      default:
        break;
    }
  }
  // Old writers list weights among the inputs.
  for (Value& input : inputs) {
    if (weights.count(input.name) == 0) {
      graph.inputs.push_back(std::move(input));
    }
  }
  std::set<std::string> known = std::move(weights);
  for (const Value& input : graph.inputs) {
    known.insert(input.name);
  }
  CheckNames(nodes, std::move(known));
  return graph;
}

std::string ShapeText(const Value& value) {
  std::string text;
  for (const std::optional<std::uint64_t>& size : value.shape) {
    text += (text.empty() ? "" : ", ") + (size ? std::to_string(*size) : "?");
  }
  return '[' + text + ']';
}

void TakeInput(const Graph& graph, ModelHead& head) {
  if (graph.inputs.size() != 1) {
    throw ModelFault("it has " + std::to_string(graph.inputs.size()) + " inputs, and a photo is one");
  }
  const Value& input = graph.inputs.front();
  if (input.element != kFloat) {
    throw ModelFault("its input takes no floats of 32 bits");
  }
  const auto& shape = input.shape;
  const auto isSide = [](const std::optional<std::uint64_t>& size) { return size && *size <= kMostSide; };
  const bool fits = shape.size() == 4 && shape[0].value_or(1) == 1 && shape[1] &&
                    (*shape[1] == 1 || *shape[1] == 3) && isSide(shape[2]) && isSide(shape[3]);
  if (!fits) {
    throw ModelFault("its input has the shape " + ShapeText(input) +
                     ", and needed is [1, 3 or 1, height, width] with fixed sizes up to " +
                     std::to_string(kMostSide));
  }
  head.channels = static_cast<int>(*shape[1]);
  head.height = static_cast<int>(*shape[2]);
  head.width = static_cast<int>(*shape[3]);
}

[[noreturn]] void ThrowUnknown(const std::string& key, const std::string& value) {
  throw ModelFault("it wants \"" + WordsOf(value) + "\" for " + key + ", which cannot be given");
}

/// The names are those that the format's authors gave out for models that take pictures.
void TakeWish(std::string_view entry, ModelHead& head) {
  std::string key;
  std::string value;
  WireReader reader(entry);
  while (const auto field = reader.Next()) {
    (field->id == kKey ? key : value) = std::string(field->bytes);
  }
  if (key == "Image.NominalPixelRange") {
    if (value == "NominalRange_0_255") {
      head.range = ModelHead::Range::Bytes;
    } else if (value == "Normalized_0_1") {
      head.range = ModelHead::Range::ToOne;
    } else if (value == "Normalized_1_1") {
      head.range = ModelHead::Range::AroundZero;
    } else {
      ThrowUnknown(key, value);
    }
  } else if (key == "Image.BitmapPixelFormat") {
    head.blueFirst = value == "Bgr8";
    if (value != "Bgr8" && value != "Rgb8" && value != "Gray8") {
      ThrowUnknown(key, value);
    }
  } else if (key == "Image.ColorSpaceGamma" && value != "SRGB") {
    ThrowUnknown(key, value);
  }
}

}  // namespace

ModelHead ReadModelHead(std::string_view model) {
  ModelHead head;
  std::optional<Graph> graph;
  bool isModel = false;
  WireReader reader(model);
  while (const auto field = reader.Next()) {
    isModel = isModel || (field->id == kIrVersion && field->type == WireReader::Type::Number);
    if (field->id == kGraph) {
      graph = ReadGraph(field->bytes);
    } else if (field->id == kMetadata) {
      TakeWish(field->bytes, head);
    }
  }
  if (!isModel || !graph) {
    throw ModelFault("it is no ONNX model, or a damaged one");
  }
  TakeInput(*graph, head);
  if (graph->outputs.empty() || graph->outputs.front().name.empty()) {
    throw ModelFault("it has no output");
  }
  head.output = graph->outputs.front().name;
  return head;
}

}  // namespace Zenvora::Lumidex::Host
