#pragma once

#include <QString>

#include <memory>

class QFont;
class QPainter;

namespace Zenvora::Lumidex {

class LongText;

/// What a label shows, translated as the catalogues stand, and the pieces of it that layouts need: of a long
/// text only a head, by which everything that shows comes out as it does with the whole text.
///
/// Of long texts the translation is kept until their label forgets it, so that a repaint does not read them
/// all. For the time of one paint; GUI thread only.
class LabelText {
 public:
  /// Shorter than any text that is not shown in part.
  static constexpr int kFirstLook = 512;
  static constexpr int kLookFurther = 4;

  struct Piece {
    QString text;
    int length = 0;  ///< Of the text's units that are in it.
    bool whole = true;
  };

  /// `owner`: whose text it is, nothing but a key.
  LabelText(const void* owner, const QString& origin);

  /// The text as the catalogues translate it.
  static QString Translated(const QString& origin);
  /// To be called with the text that was, before it changes and when its translation may have.
  static void Forget(const void* owner, const QString& origin);

  /// The text from `from` on, or a head of that: its first `sure` units lie in lines and have glyphs as they
  /// have in the whole, as far as the lines end before that.
  Piece Head(const QFont& font, int from, int sure) const;

  /// The text from `from` on, elided on the right to `width` pixels as `QFontMetrics::elidedText` does it.
  QString ElidedFrom(int from, const QPainter& painter, int width) const;

 private:
  QString text_;
  LongText* long_ = nullptr;  ///< Null: the text is short. Owned by the table of long texts.
};

}  // namespace Zenvora::Lumidex
