#include "GalleryWindow.h"

#include "Stage.h"

#include <LumidexUtil/ElidedClickableLabel.h>
#include <LumidexUtil/ElidedLabel.h>
#include <LumidexUtil/ElidedLabelWithExtention.h>
#include <LumidexUtil/KeyboardClicks.h>
#include <LumidexUtil/ShowHideSignalSender.h>

#include <zenvora/lumidex/IObjectsConnectorID.h>
#include <zenvora/qtutility/ObjectsConnector.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStatusBar>
#include <QVBoxLayout>

namespace Zenvora::Lumidex::Gallery {

namespace {

QComboBox* Choice(const std::vector<SampleText>& texts) {
  auto* const box = new QComboBox;
  box->setEditable(true);
  box->setMinimumContentsLength(30);
  for (const SampleText& sample : texts) {
    box->addItem(sample.text);
    box->setItemData(box->count() - 1, sample.about, Qt::ToolTipRole);
  }
  return box;
}

QSpinBox* Number(int least, int most, int value, const QString& unit) {
  auto* const box = new QSpinBox;
  box->setRange(least, most);
  box->setValue(value);
  box->setSuffix(unit);
  return box;
}

QGroupBox* Framed(const QString& title, QWidget* label, QWidget* page) {
  auto* const box = new QGroupBox(title, page);
  auto* const layout = new QVBoxLayout(box);
  layout->addWidget(label, 0, Qt::AlignLeft | Qt::AlignTop);
  return box;
}

}  // namespace

GalleryWindow::GalleryWindow() {
  setWindowTitle(QStringLiteral("Widgets of Lumidex"));
  Util::ObjectsConnector::registerReceiver(LumidexInt::IObjectsConnectorID::GET_UI_CONTROLLER, this,
                                           QStringLiteral("1AnswerController(IUIController*&)"));
  auto* const page = new QWidget;
  auto* const columns = new QHBoxLayout(page);
  auto* const form = new QFormLayout;
  columns->addLayout(form);
  labels_ = new QWidget;
  columns->addWidget(labels_, 0, Qt::AlignTop);
  setCentralWidget(page);
  MakeControls(*form);
  MakeLabels(*labels_);
  stage_ = new Stage(page);
  form->addRow(QStringLiteral("Pixels"), stage_);
  statusBar();
  Apply();
  for (QComboBox* const box : {text_, name_}) {
    box->lineEdit()->setCursorPosition(0);
  }
}

GalleryWindow::~GalleryWindow() {
  // While the controller is still there for who tells of it.
  hide();
}

void GalleryWindow::ShowMessage(const QString& text) {
  statusBar()->showMessage(text);
}

void GalleryWindow::AnswerController(IUIController*& controller) {
  controller = this;
}

void GalleryWindow::MakeControls(QFormLayout& form) {
  form.addRow(QStringLiteral("Text"), text_ = Choice(SampleTexts()));
  form.addRow(QStringLiteral("Name of a file"), name_ = Choice(SampleNames()));
  name_->setCurrentIndex(1);
  form.addRow(QStringLiteral("Width"), width_ = Number(1, 600, 180, QStringLiteral(" px")));
  form.addRow(QStringLiteral("Lines"), lines_ = Number(1, 8, 2, QString()));
  alignment_ = new QComboBox;
  alignment_->addItem(QStringLiteral("Left"), static_cast<int>(Qt::AlignLeft));
  alignment_->addItem(QStringLiteral("Centre"), static_cast<int>(Qt::AlignHCenter));
  alignment_->addItem(QStringLiteral("Right"), static_cast<int>(Qt::AlignRight));
  form.addRow(QStringLiteral("Alignment"), alignment_);
  language_ = new QComboBox;
  language_->addItem(QStringLiteral("English"), QStringLiteral("en"));
  language_->addItem(QStringLiteral("Deutsch"), QStringLiteral("de"));
  language_->addItem(QStringLiteral("\u65e5\u672c\u8a9e"), QStringLiteral("ja"));
  form.addRow(QStringLiteral("Language"), language_);
  pixelRatio_ = new QComboBox;
  for (const double ratio : {1.0, 1.5, 2.0}) {
    pixelRatio_->addItem(QStringLiteral("%1 x").arg(ratio), ratio);
  }
  form.addRow(QStringLiteral("Pixel ratio"), pixelRatio_);
  form.addRow(dark_ = new QCheckBox(QStringLiteral("Dark")));
  form.addRow(clickableIsShown_ = new QCheckBox(QStringLiteral("Show the label to click on")));
  clickableIsShown_->setChecked(true);

  for (QComboBox* const box : {text_, name_}) {
    QObject::connect(box, &QComboBox::editTextChanged, this, &GalleryWindow::Apply);
  }
  for (QSpinBox* const box : {width_, lines_}) {
    QObject::connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &GalleryWindow::Apply);
  }
  for (QComboBox* const box : {alignment_, pixelRatio_}) {
    QObject::connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &GalleryWindow::Apply);
  }
  for (QCheckBox* const box : {dark_, clickableIsShown_}) {
    QObject::connect(box, &QCheckBox::toggled, this, &GalleryWindow::Apply);
  }
  QObject::connect(language_, qOverload<int>(&QComboBox::currentIndexChanged), this,
                   &GalleryWindow::ChooseLanguage);
}

void GalleryWindow::MakeLabels(QWidget& page) {
  plain_ = new ElidedLabel(nullptr);
  clickable_ = new ElidedClickableLabel(nullptr);
  named_ = new ElidedLabelWithExtention(nullptr);
  new KeyboardClicks(clickable_);
  auto* const sender = new Util::ShowHideSignalSender(clickable_);
  auto* const rows = new QVBoxLayout(&page);
  rows->addWidget(Framed(QStringLiteral("ElidedLabel"), plain_, &page));
  rows->addWidget(Framed(QStringLiteral("ElidedClickableLabel"), clickable_, &page));
  rows->addWidget(Framed(QStringLiteral("ElidedLabelWithExtention"), named_, &page));

  const auto tell = [this](const QString& text) { GetUIController().ShowMessage(text); };
  QObject::connect(clickable_, &ElidedClickableLabel::clicked, this,
                   [this, tell] { tell(QStringLiteral("Clicked %1 times").arg(++clicks_)); });
  QObject::connect(sender, &Util::ShowHideSignalSender::wasShown, this,
                   [tell] { tell(QStringLiteral("It was shown")); });
  QObject::connect(sender, &Util::ShowHideSignalSender::wasHidden, this,
                   [tell] { tell(QStringLiteral("It was hidden")); });
}

QList<ElidedLabel*> GalleryWindow::Labels() const {
  return {plain_, clickable_, named_};
}

void GalleryWindow::Apply() {
  QApplication::setPalette(MakePalette(dark_->isChecked()));
  plain_->SetOriginText(text_->currentText());
  clickable_->SetOriginText(text_->currentText());
  named_->SetOriginText(name_->currentText());
  for (ElidedLabel* const label : Labels()) {
    label->SetAlignment(Qt::Alignment(alignment_->currentData().toInt()));
    label->setFixedSize(width_->value(), lines_->value() * QFontMetrics(label->font()).lineSpacing());
  }
  clickable_->setVisible(clickableIsShown_->isChecked());
  stage_->Show(*plain_, pixelRatio_->currentData().toReal());
}

void GalleryWindow::ChooseLanguage() {
  if (translator_) {
    QCoreApplication::removeTranslator(translator_.get());
  }
  translator_ = std::make_unique<SampleTranslator>(language_->currentData().toString());
  QCoreApplication::installTranslator(translator_.get());
  stage_->Show(*plain_, pixelRatio_->currentData().toReal());
}

}  // namespace Zenvora::Lumidex::Gallery
