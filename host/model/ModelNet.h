#pragma once

#include "ModelHead.h"

#include <memory>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A model, ready to run. For one thread at a time.
class ModelNet {
 public:
  virtual ~ModelNet() = default;

  /// What the model's first output is for these pixels, as one row of numbers. Throws `ModelFault`, and
  /// `std::bad_alloc` for want of memory; then the net must not be used again.
  virtual std::vector<float> Run(std::vector<float> pixels) = 0;

 protected:
  ModelNet() = default;
  ModelNet(const ModelNet&) = default;
  ModelNet& operator=(const ModelNet&) = default;
};

/// Makes a model ready that `ReadModelHead` has read. Safe from any thread; throws as `Run` does. Keeps no
/// hold of `model`.
std::unique_ptr<ModelNet> MakeModelNet(std::string_view model, const ModelHead& head);

}  // namespace Zenvora::Lumidex::Host
