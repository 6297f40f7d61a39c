#include "PlainRule.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <QWidget>

namespace Zenvora::Test {

namespace {

/// In a widget as the label is, since fonts know the device that they are for.
class PlainWidget : public QWidget {
 public:
  explicit PlainWidget(const Plain& plain) : plain_(plain) {
    setFont(plain.font);
    resize(plain.size);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    PaintPlainly(painter, plain_);
  }

 private:
  const Plain& plain_;
};

}  // namespace

void PaintPlainly(QPainter& painter, const Plain& plain) {
  const QFontMetrics metrics = painter.fontMetrics();
  const int lineHeight = metrics.lineSpacing();
  QTextLayout layout(plain.text, painter.font());
  QTextOption option = layout.textOption();
  option.setAlignment(plain.alignment);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  int y = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(plain.size.width());
    if (plain.size.height() < y + 2 * lineHeight) {
      const int width = plain.elisionWidth == 0 ? plain.size.width() : plain.elisionWidth;
      QString row = metrics.elidedText(plain.text.mid(line.textStart()), Qt::ElideRight, width);
      if (plain.prepare) {
        plain.prepare(row);
      }
      painter.drawText(QRect(0, y, plain.size.width(), lineHeight), static_cast<int>(plain.alignment), row);
      break;
    }
    line.draw(&painter, QPointF(0, y));
    y += lineHeight;
  }
  layout.endLayout();
}

std::vector<Drawn> PaintPlainly(const Plain& plain) {
  PlainWidget widget(plain);
  return Paint(widget);
}

}  // namespace Zenvora::Test
