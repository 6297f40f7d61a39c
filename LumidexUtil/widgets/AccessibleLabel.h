#pragma once

namespace Zenvora::Lumidex {

/// What screen readers get to know of the labels: the whole text as their name, whatever has room on the
/// screen, and for those to click on a button that can be pressed.
class AccessibleLabel {
 public:
  /// Makes Qt ask here when it is asked for a label. Cheap when it does already.
  static void Install();

  class Interface;
};

}  // namespace Zenvora::Lumidex
