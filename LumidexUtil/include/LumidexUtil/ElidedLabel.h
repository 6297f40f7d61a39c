#pragma once

#ifdef QT_WIDGETS_LIB
#include <LumidexUtil/Export.h>

#include <QFrame>
#include <QString>

namespace Zenvora::Lumidex {

/// Shows a text over as many lines as its height has room for, and elides what is left on the last one. The
/// tool tip has the whole text. Without a size hint of its own: the owner gives it room.
///
/// The text is looked up in the translations under the context "QFrame" whenever it is painted. Lines are
/// `lineSpacing()` of the font apart and begin at the widget's top, over a frame if it has one. Plain text:
/// mark-up is shown as it is written. A text may have any length: what does not show costs next to nothing.
///
/// Screen readers get the whole text as the name of a label, unless the owner sets an accessible name. GUI
/// thread only. The order of the virtual operations is part of the binary interface: those of `QFrame`, then
/// as declared.
class LUMIDEXUTIL_EXPORT ElidedLabel : public QFrame {
 public:
  /// `parent` owns the label and may be null.
  explicit ElidedLabel(QWidget* parent);
  ~ElidedLabel() override;

  /// The text to show; also becomes the tool tip.
  virtual void SetOriginText(const QString& text);
  /// The text as it was set, not translated.
  virtual const QString GetOriginText() const;

  /// How lines lie within the widget's width. It shows from the next repaint on, which is not asked for. Its
  /// vertical flags move the last line within its row and nothing else.
  void SetAlignment(Qt::Alignment alignment);

 protected:
  /// The pixels that the elided text of the last line may take.
  virtual int Width() const;
  /// A last word on the text of the last line, elided or not, before it is drawn.
  virtual void PrepareLastRowText(QString& row);

  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  friend class AccessibleLabel;

  QString originText_;
  Qt::Alignment alignment_ = Qt::AlignLeft;
};

}  // namespace Zenvora::Lumidex
#endif
