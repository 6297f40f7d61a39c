#include <support/TinyModel.h>

#include <cmath>
#include <cstddef>
#include <cstring>

namespace Zenvora::Test {

namespace {

constexpr std::uint64_t kFloat = 1;

WireWriter Dimension(std::uint64_t size) {
  WireWriter dimension;
  return size == 0 ? dimension.Bytes(2, "open") : dimension.Number(1, size);
}

WireWriter Value(const std::string& name, std::uint64_t type, const std::vector<std::uint64_t>& shape) {
  WireWriter sizes;
  for (const std::uint64_t size : shape) {
    sizes.Message(1, Dimension(size));
  }
  const WireWriter tensor = WireWriter().Number(1, type).Message(2, sizes);
  return WireWriter().Bytes(1, name).Message(2, WireWriter().Message(1, tensor));
}

/// An attribute of whole numbers.
WireWriter Attribute(const std::string& name, const std::vector<std::uint64_t>& numbers) {
  constexpr std::uint64_t kInts = 7;
  WireWriter attribute;
  attribute.Bytes(1, name);
  for (const std::uint64_t number : numbers) {
    attribute.Number(8, number);
  }
  return attribute.Number(20, kInts);
}

std::string BytesOf(const std::vector<float>& numbers) {
  std::string bytes(numbers.size() * sizeof(float), '\0');
  std::memcpy(bytes.data(), numbers.data(), bytes.size());
  return bytes;
}

}  // namespace

void WireWriter::Plain(std::uint64_t number) {
  for (; number >= 0x80; number >>= 7U) {
    bytes_ += static_cast<char>(number | 0x80U);
  }
  bytes_ += static_cast<char>(number);
}

WireWriter& WireWriter::Number(std::uint64_t id, std::uint64_t number) {
  Plain(id << 3U);
  Plain(number);
  return *this;
}

WireWriter& WireWriter::Bytes(std::uint64_t id, const std::string& bytes) {
  Plain(id << 3U | 2U);
  Plain(bytes.size());
  bytes_ += bytes;
  return *this;
}

WireWriter& WireWriter::Eight(std::uint64_t id, const std::string& bytes) {
  Plain(id << 3U | 1U);
  bytes_ += bytes;
  return *this;
}

std::vector<float> TinyModel::UsualWeights() {
  constexpr int kCell = 4;
  std::vector<float> weights;
  for (int filter = 0; filter < 4; ++filter) {
    for (int channel = 0; channel < 3; ++channel) {
      for (int y = 0; y < kCell; ++y) {
        for (int x = 0; x < kCell; ++x) {
          const float of[] = {0.5F, static_cast<float>(1 - channel), x < 2 ? 0.75F : -0.75F,
                              y < 2 ? 0.75F : -0.75F};
          weights.push_back(of[filter] / 16);
        }
      }
    }
  }
  return weights;
}

std::size_t TinyModel::Filters() const {
  return weights.size() / static_cast<std::size_t>(channels * cell * cell);
}

std::string TinyModel::Bytes() const {
  const auto side = static_cast<std::uint64_t>(cell);
  const std::vector<std::uint64_t> weightShape = {Filters(), static_cast<std::uint64_t>(channels), side,
                                                  side};

  WireWriter tensor;
  for (const std::uint64_t size : weightShape) {
    tensor.Number(1, size);
  }
  tensor.Number(2, kFloat).Bytes(8, "weights");
  if (weightsElsewhere) {
    tensor.Message(13, WireWriter().Bytes(1, "location").Bytes(2, "weights.bin")).Number(14, 1);
  } else {
    tensor.Bytes(listedWeights ? 4 : 9, BytesOf(weights));
  }

  WireWriter graph;
  graph.Message(1, WireWriter()
                       .Bytes(1, "picture")
                       .Bytes(1, "weights")
                       .Bytes(2, "cells")
                       .Bytes(3, "look")
                       .Bytes(4, "Conv")
                       .Message(5, Attribute("kernel_shape", {side, side}))
                       .Message(5, Attribute("strides", {side, side}))
                       .Message(5, WireWriter().Bytes(1, "group").Number(3, groups).Number(20, 2)));
  graph.Message(1, WireWriter().Bytes(1, "cells").Bytes(2, "vector").Bytes(3, "end").Bytes(4, operation));
  graph.Bytes(2, "tiny").Message(5, tensor);
  for (int i = 0; i < inputs; ++i) {
    graph.Message(11, Value(i == 0 ? "picture" : "more" + std::to_string(i), elementType, shape));
  }
  if (weightsAsInput) {
    graph.Message(11, Value("weights", kFloat, weightShape));
  }
  for (const std::string& output : outputs) {
    graph.Message(12, Value(output, kFloat, {}));
  }

  WireWriter model;
  model.Number(1, 7).Message(8, WireWriter().Bytes(1, "").Number(2, 11)).Message(7, graph);
  for (const auto& [key, value] : metadata) {
    model.Message(14, WireWriter().Bytes(1, key).Bytes(2, value));
  }
  return model.Written();
}

std::vector<float> TinyModel::VectorOf(const std::vector<double>& input) const {
  const std::size_t height = shape[2];
  const std::size_t width = shape[3];
  const auto side = static_cast<std::size_t>(cell);
  const auto depth = static_cast<std::size_t>(channels);
  std::vector<double> sums;
  double square = 0;
  for (std::size_t filter = 0; filter < Filters(); ++filter) {
    for (std::size_t top = 0; top + side <= height; top += side) {
      for (std::size_t left = 0; left + side <= width; left += side) {
        double sum = 0;
        for (std::size_t i = 0; i < depth * side * side; ++i) {
          const std::size_t channel = i / (side * side);
          const std::size_t y = top + i / side % side;
          const std::size_t x = left + i % side;
          sum += static_cast<double>(weights[filter * depth * side * side + i]) *
                 input[(channel * height + y) * width + x];
        }
        sums.push_back(sum);
        square += sum * sum;
      }
    }
  }
  std::vector<float> vector;
  vector.reserve(sums.size());
  for (const double sum : sums) {
    vector.push_back(static_cast<float>(sum / std::sqrt(square)));
  }
  return vector;
}

}  // namespace Zenvora::Test
