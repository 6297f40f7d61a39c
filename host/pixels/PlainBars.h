#pragma once

#include <QImage>
#include <QRect>

namespace Zenvora::Lumidex::Host {

/// The part of the picture within plain borders, bars and captions: what stands beyond a straight edge from a
/// strip of one colour along a side. Text in a strip is allowed. The whole picture when there are none; never
/// less than two fifths of each side. `picture`: Format_RGB32. Pure.
QRect WithinPlainBars(const QImage& picture);

}  // namespace Zenvora::Lumidex::Host
