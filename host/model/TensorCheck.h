#pragma once

#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// The name of a tensor with weights, in the form that ONNX gives it (TensorProto). Throws `ModelFault` when
/// there are not as many numbers as its size asks for, or they lie in other files: what runs the model takes
/// that on trust. Pure.
std::string CheckTensor(std::string_view tensor);

}  // namespace Zenvora::Lumidex::Host
