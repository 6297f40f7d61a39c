#include "ModelHead.h"

#include "ModelFault.h"
#include "TensorCheck.h"
#include "WireReader.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

using Type = WireReader::Type;

/// Numbers of the format's fields.
enum ModelField : std::uint64_t { kIrVersion = 1, kGraph = 7, kMetadata = 14 };
enum GraphField : std::uint64_t { kNode = 1, kInitializer = 5, kInput = 11, kOutput = 12, kSparse = 15 };
enum NodeField : std::uint64_t { kFrom = 1, kTo = 2, kAttribute = 5 };
enum AttributeField : std::uint64_t { kAttributeName = 1, kInt = 3, kTensor = 5, kTensors = 10 };
enum ValueField : std::uint64_t { kName = 1, kType = 2 };
enum TypeField : std::uint64_t { kTensorType = 1 };
enum TensorTypeField : std::uint64_t { kElement = 1, kShape = 2 };
enum ShapeField : std::uint64_t { kDimension = 1 };
enum DimensionField : std::uint64_t { kSize = 1 };
enum EntryField : std::uint64_t { kKey = 1, kValue = 2 };
constexpr std::uint64_t kFloat = 1;
constexpr std::uint64_t kMostSide = 4096;

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
    if (field->Is(kSize, Type::Number) && field->number > 0) {
      size = field->number;
    }
  }
  return size;
}

void ReadTensorType(std::string_view type, Value& value) {
  WireReader reader(type);
  while (const auto field = reader.Next()) {
    if (field->Is(kElement, Type::Number)) {
      value.element = field->number;
    } else if (field->Is(kShape, Type::Bytes)) {
      WireReader sizes(field->bytes);
      while (const auto size = sizes.Next()) {
        if (size->Is(kDimension, Type::Bytes)) {
          value.shape.push_back(SizeOf(size->bytes));
        }
      }
    }
  }
}

Value ReadValue(std::string_view bytes) {
  Value value;
  WireReader reader(bytes);
  while (const auto field = reader.Next()) {
    if (field->Is(kName, Type::Bytes)) {
      value.name = std::string(field->bytes);
    } else if (field->Is(kType, Type::Bytes)) {
      WireReader types(field->bytes);
      while (const auto type = types.Next()) {
        if (type->Is(kTensorType, Type::Bytes)) {
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

void CheckAttribute(std::string_view attribute) {
  std::string_view name;
  std::optional<std::uint64_t> number;
  bool hasTensor = false;
  WireReader reader(attribute);
  while (const auto part = reader.Next()) {
    if (part->Is(kAttributeName, Type::Bytes)) {
      name = part->bytes;
    } else if (part->Is(kInt, Type::Number)) {
      number = part->number;
    } else if (part->Is(kTensor, Type::Bytes) || part->Is(kTensors, Type::Bytes)) {
      CheckTensor(part->bytes);
      // Two would be taken for one with the sizes of both.
      if (part->id == kTensor && std::exchange(hasTensor, true)) {
        throw ModelFault("it has two values for \"" + WordsOf(name) + '"');
      }
    }
  }
  // What runs the model divides by it, and takes 32 bits of it.
  if (name == "group" && number && static_cast<std::uint32_t>(*number) == 0) {
    throw ModelFault("it has a node of no groups");
  }
}

Node ReadNode(std::string_view bytes) {
  Node node;
  WireReader reader(bytes);
  while (const auto field = reader.Next()) {
    if (field->Is(kFrom, Type::Bytes)) {
      node.from.emplace_back(field->bytes);
    } else if (field->Is(kTo, Type::Bytes)) {
      node.to.emplace_back(field->bytes);
    } else if (field->Is(kAttribute, Type::Bytes)) {
      CheckAttribute(field->bytes);
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
    if (field->Is(kNode, Type::Bytes)) {
      nodes.push_back(ReadNode(field->bytes));
    } else if (field->Is(kInitializer, Type::Bytes)) {
      weights.insert(CheckTensor(field->bytes));
    } else if (field->Is(kSparse, Type::Bytes)) {
      throw ModelFault("it has sparse weights");
    } else if (field->Is(kInput, Type::Bytes)) {
      inputs.push_back(ReadValue(field->bytes));
    } else if (field->Is(kOutput, Type::Bytes)) {
      graph.outputs.push_back(ReadValue(field->bytes));
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

void ReadInput(const Graph& graph, ModelHead& head) {
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
void ReadWish(std::string_view entry, ModelHead& head) {
  std::string key;
  std::string value;
  WireReader reader(entry);
  while (const auto field = reader.Next()) {
    if (field->Is(kKey, Type::Bytes)) {
      key = std::string(field->bytes);
    } else if (field->Is(kValue, Type::Bytes)) {
      value = std::string(field->bytes);
    }
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
    if (field->Is(kIrVersion, Type::Number)) {
      isModel = true;
    } else if (field->Is(kGraph, Type::Bytes)) {
      // Two would be taken for one with the nodes and inputs of both.
      if (graph) {
        throw ModelFault("it has two graphs");
      }
      graph = ReadGraph(field->bytes);
    } else if (field->Is(kMetadata, Type::Bytes)) {
      ReadWish(field->bytes, head);
    }
  }
  if (!isModel || !graph) {
    throw ModelFault("it is not an ONNX model, or it is damaged");
  }
  ReadInput(*graph, head);
  if (graph->outputs.empty() || graph->outputs.front().name.empty()) {
    throw ModelFault("it has no output");
  }
  head.output = graph->outputs.front().name;
  return head;
}

}  // namespace Zenvora::Lumidex::Host
