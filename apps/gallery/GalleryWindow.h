#pragma once

#include "SampleTexts.h"

#include <LumidexUtil/UIControllerUser.h>

#include <zenvora/lumidex/IUIController.h>

#include <QMainWindow>

#include <memory>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSpinBox;

namespace Zenvora::Lumidex {
class ElidedClickableLabel;
class ElidedLabel;
class ElidedLabelWithExtention;
}  // namespace Zenvora::Lumidex

namespace Zenvora::Lumidex::Gallery {

class Stage;

/// Shows each widget of the library with controls for all that its looks depend on. Also the application's UI
/// controller, which the widgets reach as they would in any host.
class GalleryWindow : public QMainWindow, public IUIController, private UIControllerUser {
  Q_OBJECT

 public:
  GalleryWindow();
  ~GalleryWindow() override;

  void ShowMessage(const QString& text) override;

 public Q_SLOTS:
  void AnswerController(IUIController*& controller);

 private:
  void MakeControls(QFormLayout& form);
  void MakeLabels(QWidget& page);
  void Apply();
  void ChooseLanguage();
  QList<ElidedLabel*> Labels() const;

  QComboBox* text_ = nullptr;
  QComboBox* name_ = nullptr;
  QSpinBox* width_ = nullptr;
  QSpinBox* lines_ = nullptr;
  QComboBox* alignment_ = nullptr;
  QComboBox* language_ = nullptr;
  QComboBox* pixelRatio_ = nullptr;
  QCheckBox* dark_ = nullptr;
  QCheckBox* clickableIsShown_ = nullptr;

  ElidedLabel* plain_ = nullptr;
  ElidedClickableLabel* clickable_ = nullptr;
  ElidedLabelWithExtention* named_ = nullptr;
  Stage* stage_ = nullptr;
  QWidget* labels_ = nullptr;
  std::unique_ptr<SampleTranslator> translator_;
  int clicks_ = 0;
};

}  // namespace Zenvora::Lumidex::Gallery
