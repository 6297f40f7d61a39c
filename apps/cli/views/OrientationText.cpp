#include "OrientationText.h"

#include <cli/terminal/Words.h>

namespace Zenvora::Lumidex::Cli {

std::string OrientationText(int orientation) {
  constexpr const char* kShown[] = {QT_TRANSLATE_NOOP("Terminal", "upright"),
                                    QT_TRANSLATE_NOOP("Terminal", "mirrored"),
                                    QT_TRANSLATE_NOOP("Terminal", "upside down"),
                                    QT_TRANSLATE_NOOP("Terminal", "upside down, mirrored"),
                                    QT_TRANSLATE_NOOP("Terminal", "turned left, mirrored"),
                                    QT_TRANSLATE_NOOP("Terminal", "turned right"),
                                    QT_TRANSLATE_NOOP("Terminal", "turned right, mirrored"),
                                    QT_TRANSLATE_NOOP("Terminal", "turned left")};
  return Say(Words::tr(kShown[orientation - 1]));
}

}  // namespace Zenvora::Lumidex::Cli
