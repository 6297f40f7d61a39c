#pragma once

#include <host/pixels/PhotoAnalysis.h>

namespace Zenvora::Lumidex::Host {

/// Measures how much fine detail a picture has for its contrast: one number above 0, more where the picture
/// is sharper. Only pictures of one scene and of one size can be compared by it.
class DetailMeter : public PhotoAnalyser {
 public:
  std::string Name() const override { return "detail"; }
  int Version() const override { return 1; }
  int Size() const override { return 1; }
  /// Small enough to be quick, large enough to show a shaken camera.
  int LongerSide() const override { return 1024; }
  std::vector<float> Describe(const QImage& picture) const override;
};

}  // namespace Zenvora::Lumidex::Host
