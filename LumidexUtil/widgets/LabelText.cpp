#include "LabelText.h"

#include "LongText.h"

#include <QFont>
#include <QFontMetrics>
#include <QFrame>
#include <QPainter>

#include <unordered_map>

namespace Zenvora::Lumidex {

namespace {

/// From here on a text is looked through once instead of at each repaint.
constexpr int kLong = 6000;

struct Entry {
  /// Shares the data of the label's text, so that no other text can have its address.
  QString origin;
  std::unique_ptr<LongText> shown;
};

/// Beside the labels, which hold nothing but what was set. Never destroyed: labels of any age leave it.
std::unordered_map<const void*, Entry>& Table() {
  static auto* const table = new std::unordered_map<const void*, Entry>;
  return *table;
}

LongText& LongTextOf(const void* owner, const QString& origin) {
  Entry& entry = Table()[owner];
  if (!entry.shown || entry.origin.constData() != origin.constData() ||
      entry.origin.size() != origin.size()) {
    entry = {origin, std::make_unique<LongText>(LabelText::Translated(origin))};
  }
  return *entry.shown;
}

/// Whether what follows a piece of text can only make it wider, and items begin where characters say so.
bool HasUsualSpacing(const QFont& font) {
  // 0: not set, in either unit.
  const qreal letters = font.letterSpacing();
  const qreal least = font.letterSpacingType() == QFont::PercentageSpacing ? 100 : 0;
  return font.capitalization() == QFont::MixedCase && font.wordSpacing() >= 0 &&
         (letters == 0 || letters >= least);
}

}  // namespace

LabelText::LabelText(const void* owner, const QString& origin) {
  if (origin.size() < kLong) {
    text_ = Translated(origin);
  } else {
    long_ = &LongTextOf(owner, origin);
    text_ = long_->Text();
  }
}

QString LabelText::Translated(const QString& origin) {
  return QFrame::tr(origin.toUtf8().constData());
}

void LabelText::Forget(const void* owner, const QString& origin) {
  if (origin.size() >= kLong) {
    Table().erase(owner);
  }
}

LabelText::Piece LabelText::Head(const QFont& font, int from, int sure) const {
  const int end = long_ != nullptr && HasUsualSpacing(font) ? long_->SafeEnd(from, sure) : text_.size();
  if (end == text_.size()) {
    return {from == 0 ? text_ : text_.mid(from), end - from, true};
  }
  return {text_.mid(from, end - from) + long_->Witness(from, end), end - from, false};
}

QString LabelText::ElidedFrom(int from, const QPainter& painter, int width) const {
  const QFontMetrics metrics = painter.fontMetrics();
  for (int looked = kFirstLook;; looked *= kLookFurther) {
    // Variants of a text are told apart by its end.
    const bool head = long_ != nullptr && !long_->HasVariants();
    const Piece piece =
        head ? Head(painter.font(), from, looked) : Piece{text_.mid(from), text_.size() - from, true};
    QString row = metrics.elidedText(piece.text, Qt::ElideRight, width);
    if (piece.whole) {
      return row;
    }
    if (row.size() < looked) {
      // Null: not even the ellipsis has room.
      return row.isNull() ? row : row + long_->ControlsBehind(from + piece.length);
    }
  }
}

}  // namespace Zenvora::Lumidex
