#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Zenvora::Test {

/// Writes messages in protobuf's wire format.
class WireWriter {
 public:
  WireWriter& Number(std::uint64_t id, std::uint64_t number);
  WireWriter& Bytes(std::uint64_t id, const std::string& bytes);
  /// Eight bytes without a length.
  WireWriter& Eight(std::uint64_t id, const std::string& bytes);
  WireWriter& Message(std::uint64_t id, const WireWriter& message) { return Bytes(id, message.bytes_); }

  const std::string& Written() const { return bytes_; }

 private:
  void Plain(std::uint64_t number);

  std::string bytes_;
};

/// A small model that compares pictures: it lays square cells beside each other over the picture, and every
/// filter gives one number for each cell. The input is "picture"; "cells" are the numbers as [1, filters,
/// rows, columns], "vector" the same in one row.
struct TinyModel {
  /// What is written into the file; 0: left open.
  std::vector<std::uint64_t> shape = {1, 3, 16, 16};
  std::uint64_t elementType = 1;  ///< 1: float.
  int inputs = 1;
  int channels = 3;
  int cell = 4;
  std::uint64_t groups = 1;
  /// [filter][channel][y][x] of a cell, one behind the other.
  std::vector<float> weights = UsualWeights();
  std::vector<std::string> outputs = {"vector"};
  /// What makes "vector" of "cells".
  std::string operation = "Flatten";
  std::map<std::string, std::string> metadata;
  /// The weights' numbers in a field of their own instead of as bytes.
  bool listedWeights = false;
  /// The weights are among the inputs too, as old writers had it.
  bool weightsAsInput = false;
  bool weightsElsewhere = false;

  /// Of four filters: light, red against blue, left against right, above against below.
  static std::vector<float> UsualWeights();
  std::size_t Filters() const;
  std::string Bytes() const;
  /// The vector of what the model is fed with, worked out the long way, with the length 1.
  std::vector<float> VectorOf(const std::vector<double>& input) const;
};

}  // namespace Zenvora::Test
