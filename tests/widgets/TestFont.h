#pragma once

#include <QFont>

namespace Zenvora::Test {

/// A font made here, so that measures are the same everywhere: lines of 20 pixels; letters 10 wide, East
/// Asian ones and faces 20, combining marks and marks of direction 0. It stands alone: what it lacks is not
/// taken from another font.
QFont TestFont();

constexpr int kLine = 20;
constexpr int kLetter = 10;

}  // namespace Zenvora::Test
