#include "OrientationText.h"

namespace Zenvora::Lumidex::Cli {

std::string OrientationText(int orientation) {
  constexpr const char* kShown[] = {"upright",
                                    "mirrored",
                                    "upside down",
                                    "upside down, mirrored",
                                    "turned left, mirrored",
                                    "turned right",
                                    "turned right, mirrored",
                                    "turned left"};
  return kShown[orientation - 1];
}

}  // namespace Zenvora::Lumidex::Cli
