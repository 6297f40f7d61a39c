#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <iosfwd>
#include <memory>
#include <vector>

class QWidget;

namespace Zenvora::Test {

/// One run of glyphs that was drawn.
struct Drawn {
  QString text;
  QPointF at;       ///< Where its base line begins.
  qreal width = 0;  ///< Of its glyphs.
  bool toLeft = false;
  QRectF clip;  ///< Null: none.

  bool operator==(const Drawn& other) const {
    return text == other.text && at == other.at && width == other.width && toLeft == other.toLeft &&
           clip == other.clip;
  }
};
std::ostream& operator<<(std::ostream& out, const Drawn& drawn);

/// A paint device that writes down instead of painting.
class PaintRecorder : public QPaintDevice {
 public:
  PaintRecorder();
  ~PaintRecorder() override;

  QPaintEngine* paintEngine() const override;

  const std::vector<Drawn>& Texts() const;
  /// Everything else that was drawn, such as a frame's lines.
  int Others() const;
  /// Whether something else was drawn before the first text, and nothing after it.
  bool OthersCameFirst() const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

/// What the widget paints of itself, without background and children.
std::vector<Drawn> Paint(QWidget& widget);

}  // namespace Zenvora::Test
