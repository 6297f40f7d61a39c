// Painting labels: names of files of 40 characters in 160 pixels and three lines, and one text of any length.
// The plain rows make the calls of Qt that the painting rule needs and nothing else; QLabel and
// KSqueezedTextLabel are what would be taken otherwise, though the former does not elide and the latter has
// but one line.

#include <LumidexUtil/ElidedLabel.h>

#include <benchmark/benchmark.h>

#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTextLayout>

#ifdef LUMIDEX_BENCH_KWIDGETSADDONS
#include <ksqueezedtextlabel.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <memory>
#include <vector>

namespace {

constexpr int kLabels = 1000;
constexpr int kWidth = 160;
constexpr int kLines = 3;
constexpr int kColumns = 8;

/// 40 characters, no two alike.
QString Name(int i) {
  return QStringLiteral("Summer holidays in the mountains %1").arg(i, 7, 10, QLatin1Char('0'));
}

int Height() {
  return kLines * QFontMetrics(QFont()).lineSpacing();
}

QRect Place(int i) {
  return {i % kColumns * kWidth, i / kColumns * Height(), kWidth, Height()};
}

QImage Canvas() {
  QImage image(kColumns * kWidth, (kLabels / kColumns + 1) * Height(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  return image;
}

/// Bytes that the heap has given out.
double HeapInUse() {
#ifdef __GLIBC__
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
#else
  return 0;
#endif
}

template <class Label>
void PaintLabels(benchmark::State& state, void (Label::*setText)(const QString&)) {
  std::vector<std::unique_ptr<Label>> labels;
  for (int i = 0; i < kLabels; ++i) {
    labels.push_back(std::make_unique<Label>(nullptr));
    ((*labels.back()).*setText)(Name(i));
    labels.back()->resize(Place(i).size());
  }
  QImage image = Canvas();
  QPainter painter(&image);
  const auto paint = [&] {
    for (int i = 0; i < kLabels; ++i) {
      labels[static_cast<std::size_t>(i)]->render(&painter, Place(i).topLeft(), QRegion(),
                                                  QWidget::RenderFlags());
    }
  };
  paint();
  const double before = HeapInUse();
  for (auto _ : state) {
    paint();
  }
  state.counters["heap_growth_bytes"] = HeapInUse() - before;
  state.SetItemsProcessed(state.iterations() * kLabels);
}

void LabelsElided(benchmark::State& state) {
  PaintLabels<Zenvora::Lumidex::ElidedLabel>(state, &Zenvora::Lumidex::ElidedLabel::SetOriginText);
}
BENCHMARK(LabelsElided)->Unit(benchmark::kMillisecond);

/// A widget that paints by the rule, in so many words.
class PlainLabel : public QFrame {
 public:
  using QFrame::QFrame;
  void SetText(const QString& text) { text_ = text; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    QPainter painter(this);
    const int lineHeight = painter.fontMetrics().lineSpacing();
    QTextLayout layout(text_, painter.font());
    QTextOption option = layout.textOption();
    option.setAlignment(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    int y = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), y += lineHeight) {
      line.setLineWidth(width());
      if (height() < y + 2 * lineHeight) {
        const QString rest = text_.mid(line.textStart());
        painter.drawText(QRect(0, y, width(), lineHeight), Qt::AlignLeft,
                         painter.fontMetrics().elidedText(rest, Qt::ElideRight, width()));
        break;
      }
      line.draw(&painter, QPointF(0, y));
    }
    layout.endLayout();
  }

 private:
  QString text_;
};

void LabelsPlainCalls(benchmark::State& state) {
  PaintLabels<PlainLabel>(state, &PlainLabel::SetText);
}
BENCHMARK(LabelsPlainCalls)->Unit(benchmark::kMillisecond);

/// The same calls with one painter for all, outside of any widget.
void LabelsPlainCallsWithoutWidgets(benchmark::State& state) {
  QImage image = Canvas();
  QPainter painter(&image);
  std::vector<QString> names;
  for (int i = 0; i < kLabels; ++i) {
    names.push_back(Name(i));
  }
  const int lineHeight = painter.fontMetrics().lineSpacing();
  for (auto _ : state) {
    for (int i = 0; i < kLabels; ++i) {
      const QString& text = names[static_cast<std::size_t>(i)];
      const QRect place = Place(i);
      QTextLayout layout(text, painter.font());
      QTextOption option = layout.textOption();
      option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
      layout.setTextOption(option);
      layout.beginLayout();
      int y = 0;
      for (QTextLine line = layout.createLine(); line.isValid();
           line = layout.createLine(), y += lineHeight) {
        line.setLineWidth(kWidth);
        if (place.height() < y + 2 * lineHeight) {
          painter.drawText(
              QRect(place.x(), place.y() + y, kWidth, lineHeight), Qt::AlignLeft,
              painter.fontMetrics().elidedText(text.mid(line.textStart()), Qt::ElideRight, kWidth));
          break;
        }
        line.draw(&painter, QPointF(place.x(), place.y() + y));
      }
      layout.endLayout();
    }
  }
  state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(LabelsPlainCallsWithoutWidgets)->Unit(benchmark::kMillisecond);

class WrappingLabel : public QLabel {
 public:
  explicit WrappingLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
  }
  void SetText(const QString& text) { setText(text); }
};

void LabelsQLabel(benchmark::State& state) {
  PaintLabels<WrappingLabel>(state, &WrappingLabel::SetText);
}
BENCHMARK(LabelsQLabel)->Unit(benchmark::kMillisecond);

#ifdef LUMIDEX_BENCH_KWIDGETSADDONS
class SqueezedLabel : public KSqueezedTextLabel {
 public:
  explicit SqueezedLabel(QWidget* parent) : KSqueezedTextLabel(parent) {
    setTextElideMode(Qt::ElideRight);
    setTextFormat(Qt::PlainText);
  }
  void SetText(const QString& text) { setText(text); }
};

void LabelsKSqueezed(benchmark::State& state) {
  PaintLabels<SqueezedLabel>(state, &SqueezedLabel::SetText);
}
BENCHMARK(LabelsKSqueezed)->Unit(benchmark::kMillisecond);
#endif

template <class Label>
void PaintLongText(benchmark::State& state, void (Label::*setText)(const QString&)) {
  const int size = static_cast<int>(state.range(0));
  Label label(nullptr);
  (label.*setText)(QStringLiteral("Summer holidays in the mountains, ").repeated(size / 34 + 1).left(size));
  label.resize(kWidth, Height());
  QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  QPainter painter(&image);
  const auto paint = [&] { label.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags()); };
  paint();
  const double before = HeapInUse();
  for (auto _ : state) {
    paint();
  }
  state.counters["heap_growth_bytes"] = HeapInUse() - before;
}

void LongTextElided(benchmark::State& state) {
  PaintLongText<Zenvora::Lumidex::ElidedLabel>(state, &Zenvora::Lumidex::ElidedLabel::SetOriginText);
}
BENCHMARK(LongTextElided)
    ->Arg(40)
    ->Arg(1000)
    ->Arg(8000)
    ->Arg(20000)
    ->Arg(1 << 20)
    ->Unit(benchmark::kMicrosecond);

void LongTextPlainCalls(benchmark::State& state) {
  PaintLongText<PlainLabel>(state, &PlainLabel::SetText);
}
BENCHMARK(LongTextPlainCalls)
    ->Arg(40)
    ->Arg(1000)
    ->Arg(8000)
    ->Arg(20000)
    ->Arg(1 << 20)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
