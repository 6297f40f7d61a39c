#include "AccessibleLabel.h"
#include "LabelText.h"

#include <LumidexUtil/ElidedLabel.h>

#include <QAccessible>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

namespace Zenvora::Lumidex {

namespace {

/// Draws the lines that are not the last one. Returns where the text of the last one begins, or -1 when all
/// of the text is drawn; `y` becomes the top of the last one.
int DrawWholeLines(QPainter& painter, const LabelText& text, QSize room, Qt::Alignment alignment, int& y) {
  const int lineHeight = painter.fontMetrics().lineSpacing();
  const auto isLast = [&](int top) { return room.height() < top + 2 * lineHeight; };
  // A text always has a first line, if an empty one.
  if (isLast(0)) {
    return 0;
  }
  for (int looked = LabelText::kFirstLook;; looked *= LabelText::kLookFurther) {
    const LabelText::Piece piece = text.Head(painter.font(), 0, looked);
    QTextLayout layout(piece.text, painter.font());
    QTextOption option = layout.textOption();
    option.setAlignment(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    int rest = -1;
    int end = 0;
    y = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), y += lineHeight) {
      const bool last = isLast(y);
      if (last) {
        rest = line.textStart();
      }
      if (last && piece.whole) {
        // It shows as a row of its own. The layout is not ended either, which would give this line a width.
        break;
      }
      line.setLineWidth(room.width());
      end = line.textStart() + line.textLength();
      if (last) {
        break;
      }
    }
    // What a line ends with depends on what comes behind it.
    if (piece.whole || (rest >= 0 && end <= looked)) {
      const int whole = rest >= 0 ? layout.lineCount() - 1 : layout.lineCount();
      for (int i = 0; i < whole; ++i) {
        layout.lineAt(i).draw(&painter, QPointF(0, i * lineHeight));
      }
      return rest;
    }
  }
}

/// To screen readers, if there are any.
void TellNewName(QWidget& label) {
  QAccessibleEvent event(&label, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QFrame(parent) {
  AccessibleLabel::Install();
}

ElidedLabel::~ElidedLabel() {
  LabelText::Forget(this, originText_);
}

void ElidedLabel::SetOriginText(const QString& text) {
  LabelText::Forget(this, originText_);
  originText_ = text;
  update();
  setToolTip(text);
  TellNewName(*this);
}

const QString ElidedLabel::GetOriginText() const {
  return originText_;
}

void ElidedLabel::SetAlignment(Qt::Alignment alignment) {
  alignment_ = alignment;
}

int ElidedLabel::Width() const {
  return width();
}

void ElidedLabel::PrepareLastRowText(QString& /*row*/) {}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const LabelText text(this, originText_);
  int y = 0;
  const int rest = DrawWholeLines(painter, text, size(), alignment_, y);
  if (rest >= 0) {
    QString row = text.ElidedFrom(rest, painter, Width());
    PrepareLastRowText(row);
    painter.drawText(QRect(0, y, width(), painter.fontMetrics().lineSpacing()), static_cast<int>(alignment_),
                     row);
  }
}

void ElidedLabel::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) {
    LabelText::Forget(this, originText_);
    update();
    TellNewName(*this);
  }
}

}  // namespace Zenvora::Lumidex
