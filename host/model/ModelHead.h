#pragma once

#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// What a model says of the pictures that it takes.
struct ModelHead {
  /// In which numbers the samples of a pixel are to be given.
  enum class Range {
    ByMeans,     ///< 0..1, less the usual mean, by the usual deviation: what most models were trained with.
    Bytes,       ///< 0..255
    ToOne,       ///< 0..1
    AroundZero,  ///< -1..1
  };

  std::string output;  ///< Name of its first output.
  int channels = 3;    ///< 3: colours; 1: light.
  int width = 0;
  int height = 0;
  Range range = Range::ByMeans;
  bool blueFirst = false;
};

/// Reads an ONNX model as far as is needed to feed it. Throws `ModelFault` for what is none, for models whose
/// one input is no picture of a fixed size, and for weights that are not all there: what runs the model may
/// rely on them. Pure.
ModelHead ReadModelHead(std::string_view model);

}  // namespace Zenvora::Lumidex::Host
