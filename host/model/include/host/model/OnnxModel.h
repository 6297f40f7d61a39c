#pragma once

#include <host/pixels/PhotoAnalysis.h>

#include <memory>
#include <string>

namespace Zenvora::Lumidex::Host {

/// What runs models, with its version.
std::string OnnxRuntime();

/// An analyser that asks the model in a file, as `OpenModel` of the room `similar` says.
std::unique_ptr<PhotoAnalyser> OpenOnnxModel(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
