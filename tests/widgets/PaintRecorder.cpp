#include "PaintRecorder.h"

#include <QPainter>
#include <QWidget>

#include <ostream>

namespace Zenvora::Test {

class PaintRecorder::Engine : public QPaintEngine {
 public:
  Engine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }

  void updateState(const QPaintEngineState& changes) override {
    if (changes.state() & DirtyTransform) {
      transform_ = changes.transform();
    }
    if (changes.state() & (DirtyClipRegion | DirtyClipPath | DirtyClipEnabled)) {
      clip_ = painter()->hasClipping() ? painter()->clipBoundingRect() : QRectF();
    }
  }

  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    texts.push_back({item.text(), transform_.map(at), item.width(),
                     (item.renderFlags() & QTextItem::RightToLeft) != 0, clip_});
  }
  void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {
    Other();
  }
  void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override { Other(); }
  void drawPath(const QPainterPath& /*path*/) override { Other(); }
  void drawLines(const QLineF* /*lines*/, int /*count*/) override { Other(); }
  void drawRects(const QRectF* /*rects*/, int /*count*/) override { Other(); }

  std::vector<Drawn> texts;
  int others = 0;
  bool othersCameFirst = false;

 private:
  void Other() {
    ++others;
    othersCameFirst = texts.empty();
  }

  QTransform transform_;
  QRectF clip_;
};

PaintRecorder::PaintRecorder() : engine_(std::make_unique<Engine>()) {}

PaintRecorder::~PaintRecorder() = default;

QPaintEngine* PaintRecorder::paintEngine() const {
  return engine_.get();
}

const std::vector<Drawn>& PaintRecorder::Texts() const {
  return engine_->texts;
}

int PaintRecorder::Others() const {
  return engine_->others;
}

bool PaintRecorder::OthersCameFirst() const {
  return engine_->othersCameFirst;
}

int PaintRecorder::metric(PaintDeviceMetric metric) const {
  constexpr int kSide = 40000;
  constexpr int kDpi = 96;
  constexpr int kColours = 24;
  switch (metric) {
    case PdmWidth:
    case PdmHeight:
    case PdmWidthMM:
    case PdmHeightMM:
      return kSide;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kDpi;
    case PdmNumColors:
    case PdmDepth:
      return kColours;
    case PdmDevicePixelRatio:
      return 1;
    default:
      return QPaintDevice::metric(metric);
  }
}

std::ostream& operator<<(std::ostream& out, const Drawn& drawn) {
  out << '"' << drawn.text.toStdString() << "\" at " << drawn.at.x() << ", " << drawn.at.y() << ", "
      << drawn.width << " wide" << (drawn.toLeft ? ", to the left" : "");
  if (!drawn.clip.isNull()) {
    out << ", clipped to " << drawn.clip.x() << ", " << drawn.clip.y() << ", " << drawn.clip.width() << " x "
        << drawn.clip.height();
  }
  return out;
}

std::vector<Drawn> Paint(QWidget& widget) {
  PaintRecorder recorder;
  widget.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
  return recorder.Texts();
}

}  // namespace Zenvora::Test
