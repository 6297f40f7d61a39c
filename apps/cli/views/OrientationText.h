#pragma once

#include <string>

namespace Zenvora::Lumidex::Cli {

/// How an EXIF orientation (1..8) says that a picture was taken: "turned right".
std::string OrientationText(int orientation);

}  // namespace Zenvora::Lumidex::Cli
