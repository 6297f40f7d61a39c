#include "Pictures.h"

#include "GalleryWindow.h"
#include "SampleTexts.h"
#include "Stage.h"

#include <LumidexUtil/ElidedLabel.h>
#include <LumidexUtil/ElidedLabelWithExtention.h>

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <memory>

namespace Zenvora::Lumidex::Gallery {

namespace {

/// At this height what lies under the letters, such as "_", survives the rounding of lines.
constexpr int kFontHeight = 14;

const char* const kFamilies[] = {"DejaVu Sans", "IPAexGothic", "Noto Color Emoji"};

void Dress(QWidget& sheet, bool dark) {
  sheet.setPalette(MakePalette(dark));
  sheet.setAutoFillBackground(true);
}

/// Puts a label into a box that shows its size.
class Box : public QWidget {
 public:
  Box(ElidedLabel* label, QWidget* parent) : QWidget(parent) {
    label->setParent(this);
    label->move(1, 1);
    setFixedSize(label->size() + QSize(2, 2));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
};

template <class Label>
Box* MakeBox(const QString& text, int width, int lines, Qt::Alignment alignment, QWidget* parent) {
  auto* const label = new Label(nullptr);
  label->setFixedSize(width, lines * QFontMetrics(QApplication::font()).lineSpacing());
  label->SetAlignment(alignment);
  label->SetOriginText(text);
  return new Box(label, parent);
}

QLabel* Caption(const QString& text, QWidget* parent) {
  auto* const caption = new QLabel(text, parent);
  caption->setEnabled(false);
  return caption;
}

bool Save(QWidget& sheet, const QString& folder, const QString& name, qreal pixelRatio = 1) {
  sheet.adjustSize();
  sheet.ensurePolished();
  const QImage image = Photograph(sheet, pixelRatio).convertToFormat(QImage::Format_RGB888);
  return image.save(QDir(folder).filePath(name), "PNG", 1);
}

/// Each text at one, two and three lines.
bool SaveTexts(const QString& folder, const QString& name, bool dark) {
  QWidget sheet;
  Dress(sheet, dark);
  auto* const grid = new QGridLayout(&sheet);
  int row = 0;
  for (const SampleText& sample : SampleTexts()) {
    grid->addWidget(Caption(sample.about, &sheet), row, 0, Qt::AlignTop);
    for (const int lines : {1, 2, 3}) {
      grid->addWidget(MakeBox<ElidedLabel>(sample.text, 150, lines, Qt::AlignLeft, &sheet), row, lines,
                      Qt::AlignTop);
    }
    ++row;
  }
  return Save(sheet, folder, name);
}

bool SaveNames(const QString& folder) {
  QWidget sheet;
  Dress(sheet, false);
  auto* const grid = new QGridLayout(&sheet);
  int row = 0;
  for (const SampleText& sample : SampleNames()) {
    grid->addWidget(Caption(sample.about, &sheet), row, 0, Qt::AlignTop);
    grid->addWidget(MakeBox<ElidedLabelWithExtention>(sample.text, 150, 1, Qt::AlignLeft, &sheet), row, 1,
                    Qt::AlignTop);
    grid->addWidget(MakeBox<ElidedLabelWithExtention>(sample.text, 150, 2, Qt::AlignLeft, &sheet), row, 2,
                    Qt::AlignTop);
    ++row;
  }
  return Save(sheet, folder, QStringLiteral("names.png"));
}

bool SaveAlignments(const QString& folder) {
  QWidget sheet;
  Dress(sheet, false);
  auto* const grid = new QGridLayout(&sheet);
  int row = 0;
  for (const std::size_t text : {std::size_t{0}, std::size_t{3}}) {
    int column = 0;
    for (const Qt::Alignment alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
      grid->addWidget(MakeBox<ElidedLabel>(SampleTexts()[text].text, 150, 3, alignment, &sheet), row,
                      column++);
    }
    ++row;
  }
  // Too small and far too large.
  grid->addWidget(MakeBox<ElidedLabel>(SampleTexts()[0].text, 12, 3, Qt::AlignLeft, &sheet), row, 0,
                  Qt::AlignLeft);
  grid->addWidget(MakeBox<ElidedLabel>(SampleTexts()[0].text, 310, 4, Qt::AlignLeft, &sheet), row, 1, 1, 2);
  return Save(sheet, folder, QStringLiteral("alignments.png"));
}

/// The same label at each ratio, pixel by pixel.
bool SaveRatios(const QString& folder) {
  const std::unique_ptr<Box> box(MakeBox<ElidedLabel>(SampleTexts()[0].text, 150, 2, Qt::AlignLeft, nullptr));
  Dress(*box, false);
  QWidget sheet;
  Dress(sheet, false);
  auto* const grid = new QGridLayout(&sheet);
  int row = 0;
  for (const double ratio : {1.0, 1.5, 2.0}) {
    auto* const stage = new Stage(&sheet);
    stage->Show(*box, ratio);
    grid->addWidget(Caption(QStringLiteral("%1 x").arg(ratio), &sheet), row, 0, Qt::AlignTop);
    grid->addWidget(stage, row++, 1, Qt::AlignLeft);
  }
  return Save(sheet, folder, QStringLiteral("ratios.png"));
}

bool SaveWindow(const QString& folder) {
  GalleryWindow window;
  return Save(window, folder, QStringLiteral("gallery.png"));
}

}  // namespace

QString UseFontsOfPictures() {
  QStringList missing;
  QStringList others;
  for (const char* family : kFamilies) {
    const QString name = QString::fromLatin1(family);
    if (!QFontDatabase().hasFamily(name)) {
      missing.append(name);
    }
    others.append(name);
  }
  QFont font(others.takeFirst());
  QFont::insertSubstitutions(font.family(), others);
  font.setPixelSize(kFontHeight);
  // As it is drawn depends on the desktop's settings otherwise.
  font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  font.setHintingPreference(QFont::PreferFullHinting);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setFont(font);
  QApplication::setPalette(MakePalette(false));
  return missing.join(QStringLiteral(", "));
}

bool MakePictures(const QString& folder) {
  return SaveTexts(folder, QStringLiteral("texts.png"), false) &&
         SaveTexts(folder, QStringLiteral("texts-dark.png"), true) && SaveNames(folder) &&
         SaveAlignments(folder) && SaveRatios(folder) && SaveWindow(folder);
}

}  // namespace Zenvora::Lumidex::Gallery
