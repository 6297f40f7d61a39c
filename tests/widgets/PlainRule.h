#pragma once

#include "PaintRecorder.h"

#include <QFont>

#include <functional>
#include <vector>

namespace Zenvora::Test {

/// What a label is to paint.
struct Plain {
  QString text;  ///< Translated.
  QFont font;
  QSize size;
  Qt::Alignment alignment = Qt::AlignLeft;
  int elisionWidth = 0;  ///< 0: the width of `size`.
  std::function<void(QString&)> prepare;
};

/// The rule of the labels in Qt's plain calls, with all of the text.
void PaintPlainly(QPainter& painter, const Plain& plain);
std::vector<Drawn> PaintPlainly(const Plain& plain);

}  // namespace Zenvora::Test
