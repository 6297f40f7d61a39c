#include "BreakableText.h"

#include <zenvora/app/Services.h>
#include <zenvora/tavolin/StyleAlertBox.h>

#include <glog/logging.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>

namespace Zenvora::Tavolin {

namespace {

using App::Alert;
using App::AlertButton;
using App::AlertButtons;

static_assert(static_cast<int>(AlertButton::Ok) == QMessageBox::Ok);
static_assert(static_cast<int>(AlertButton::Save) == QMessageBox::Save);
static_assert(static_cast<int>(AlertButton::SaveAll) == QMessageBox::SaveAll);
static_assert(static_cast<int>(AlertButton::Open) == QMessageBox::Open);
static_assert(static_cast<int>(AlertButton::Yes) == QMessageBox::Yes);
static_assert(static_cast<int>(AlertButton::YesToAll) == QMessageBox::YesToAll);
static_assert(static_cast<int>(AlertButton::No) == QMessageBox::No);
static_assert(static_cast<int>(AlertButton::NoToAll) == QMessageBox::NoToAll);
static_assert(static_cast<int>(AlertButton::Abort) == QMessageBox::Abort);
static_assert(static_cast<int>(AlertButton::Retry) == QMessageBox::Retry);
static_assert(static_cast<int>(AlertButton::Ignore) == QMessageBox::Ignore);
static_assert(static_cast<int>(AlertButton::Close) == QMessageBox::Close);
static_assert(static_cast<int>(AlertButton::Cancel) == QMessageBox::Cancel);
static_assert(static_cast<int>(AlertButton::Discard) == QMessageBox::Discard);
static_assert(static_cast<int>(AlertButton::Help) == QMessageBox::Help);
static_assert(static_cast<int>(AlertButton::Apply) == QMessageBox::Apply);
static_assert(static_cast<int>(AlertButton::Reset) == QMessageBox::Reset);
static_assert(static_cast<int>(AlertButton::RestoreDefaults) == QMessageBox::RestoreDefaults);

QMessageBox::StandardButton QtButton(AlertButton button) {
  return static_cast<QMessageBox::StandardButton>(button);
}

QMessageBox::StandardButtons QtButtons(AlertButtons buttons) {
  const int bits = buttons ? static_cast<int>(buttons) : static_cast<int>(AlertButton::Ok);
  return QMessageBox::StandardButtons(QFlag(bits));
}

QMessageBox::Icon IconOf(App::AlertLevel level) {
  switch (level) {
    case App::AlertLevel::Critical:
      return QMessageBox::Critical;
    case App::AlertLevel::Warning:
      return QMessageBox::Warning;
    case App::AlertLevel::Question:
      return QMessageBox::Question;
    case App::AlertLevel::Information:
      break;
  }
  return QMessageBox::Information;
}

void Dress(QMessageBox& box, const Alert& alert) {
  // Names of files may look like mark-up.
  box.setTextFormat(Qt::PlainText);
  box.setText(BreakableText(alert.text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  box.setAccessibleName(alert.title);
  box.setAccessibleDescription(alert.text);

  const AlertButton first =
      alert.defaultButton != AlertButton::None ? alert.defaultButton : App::DefaultButton(alert.buttons);
  box.setDefaultButton(QtButton(first));
  const AlertButton escape = App::EscapeButton(alert.buttons);
  if (escape != AlertButton::None) {
    box.setEscapeButton(QtButton(escape));
  }
  for (QAbstractButton* const button : box.buttons()) {
    if (alert.emphasised.testFlag(static_cast<AlertButton>(box.standardButton(button)))) {
      QFont font = button->font();
      font.setBold(true);
      button->setFont(font);
    }
  }
}

class MessageBoxes : public App::IAlerts {
 public:
  AlertButton Show(const Alert& alert) override {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
      LOG(WARNING) << "There is no window to show this: " << alert.text.toStdString();
      return App::UnansweredButton(alert.buttons);
    }
    // The parent may go meanwhile and take the box with it.
    const QPointer<QMessageBox> box =
        new QMessageBox(IconOf(alert.level), alert.title, QString(), QtButtons(alert.buttons), alert.parent,
                        alert.windowFlags);
    Dress(*box, alert);
    box->exec();
    const QMessageBox::StandardButton pressed =
        box == nullptr ? QMessageBox::NoButton : box->standardButton(box->clickedButton());
    delete box;
    return pressed == QMessageBox::NoButton ? App::UnansweredButton(alert.buttons)
                                            : static_cast<AlertButton>(pressed);
  }
};

}  // namespace

std::function<QMessageBox::StandardButton()> StyleAlertBox(
    Util::AlertBox& box, const std::vector<QMessageBox::StandardButton>& emphasised,
    QMessageBox::StandardButton defaultButton) {
  Alert alert = box.Content();
  alert.defaultButton = static_cast<AlertButton>(defaultButton);
  for (const QMessageBox::StandardButton button : emphasised) {
    alert.emphasised |= static_cast<AlertButton>(button);
  }
  return [alert] {
    auto alerts = App::Services::Current().Get<App::IAlerts>();
    if (alerts == nullptr) {
      alerts = MakeMessageBoxes();
    }
    return QtButton(alerts->Show(alert));
  };
}

std::shared_ptr<App::IAlerts> MakeMessageBoxes() {
  return std::make_shared<MessageBoxes>();
}

}  // namespace Zenvora::Tavolin
