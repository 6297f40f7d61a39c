#pragma once

#include <QImage>
#include <QLabel>
#include <QPalette>

namespace Zenvora::Lumidex::Gallery {

/// The pixels that a widget paints at a device pixel ratio, one by one, so that every screen shows what any
/// screen would.
QImage Photograph(QWidget& widget, qreal pixelRatio);

/// A palette of few colours, the same on every desktop.
QPalette MakePalette(bool dark);

/// Shows the photograph of a widget.
class Stage : public QLabel {
 public:
  explicit Stage(QWidget* parent) : QLabel(parent) {}
  void Show(QWidget& widget, qreal pixelRatio);
};

}  // namespace Zenvora::Lumidex::Gallery
