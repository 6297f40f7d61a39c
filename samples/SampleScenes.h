#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>

namespace Zenvora::Lumidex::Host {

/// What a drawn picture shows.
enum class SceneKind { Lake, Beach, Flowers, City, Houses, ChristmasTree, Fireworks, Roses };
constexpr int kSceneKinds = 8;

/// All that a picture depends on. Equal looks give equal pixels.
struct SceneLook {
  SceneKind kind = SceneKind::Lake;
  /// Of everything that stands or lies in the scene.
  std::uint32_t seed = 0;
  /// Local time, 0..24, for the light.
  double hour = 12;
  /// 1..12, for snow and leaves.
  int month = 6;
  QSize size{640, 480};
  /// How far the hand moved: fractions of the width and height, and degrees. All zero: the drawing as it is.
  double shiftX = 0;
  double shiftY = 0;
  double turn = 0;
  /// In stops; brighter when positive.
  double exposure = 0;
  /// Of the sensor's noise, different in every frame of a burst.
  std::uint32_t grainSeed = 0;
};

/// Draws the scene upright. Needs Qt Gui, but no application object and no fonts. Safe from any thread.
QImage DrawScene(const SceneLook& look);

}  // namespace Zenvora::Lumidex::Host
