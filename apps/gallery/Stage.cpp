#include "Stage.h"

#include <QPixmap>

namespace Zenvora::Lumidex::Gallery {

QImage Photograph(QWidget& widget, qreal pixelRatio) {
  QImage image((QSizeF(widget.size()) * pixelRatio).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
  image.setDevicePixelRatio(pixelRatio);
  image.fill(widget.palette().color(QPalette::Window));
  widget.render(&image);
  image.setDevicePixelRatio(1);
  return image;
}

QPalette MakePalette(bool dark) {
  const QColor back = dark ? QColor(0x2B, 0x2D, 0x30) : QColor(0xF4, 0xF4, 0xF2);
  const QColor text = dark ? QColor(0xE8, 0xE8, 0xE4) : QColor(0x1E, 0x20, 0x22);
  QPalette palette(back);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
  }
  palette.setColor(QPalette::Base, dark ? QColor(0x1E, 0x1F, 0x22) : QColor(Qt::white));
  palette.setColor(QPalette::Mid, dark ? QColor(0x55, 0x58, 0x5C) : QColor(0xC4, 0xC4, 0xC0));
  palette.setColor(QPalette::Highlight, QColor(0x3B, 0x7D, 0xD8));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

void Stage::Show(QWidget& widget, qreal pixelRatio) {
  const QImage image = Photograph(widget, pixelRatio);
  // Forms squeeze their last row.
  setMinimumHeight(image.height());
  setPixmap(QPixmap::fromImage(image));
}

}  // namespace Zenvora::Lumidex::Gallery
