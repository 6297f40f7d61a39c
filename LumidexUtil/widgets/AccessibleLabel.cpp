#include "AccessibleLabel.h"

#include "LabelText.h"

#include <LumidexUtil/ElidedClickableLabel.h>
#include <LumidexUtil/ElidedLabelWithExtention.h>

#include <QAccessible>
#include <QAccessibleWidget>

namespace Zenvora::Lumidex {

class AccessibleLabel::Interface : public QAccessibleWidget {
 public:
  explicit Interface(ElidedLabel* label)
      : QAccessibleWidget(label, qobject_cast<ElidedClickableLabel*>(label) != nullptr
                                     ? QAccessible::Button
                                     : QAccessible::StaticText) {}

  QString text(QAccessible::Text what) const override {
    const QString set = QAccessibleWidget::text(what);
    if (what == QAccessible::Name && widget()->accessibleName().isEmpty()) {
      return WholeText();
    }
    // The tool tip stands in for a description: it would be read out twice.
    const bool isToolTip = what == QAccessible::Description && widget()->accessibleDescription().isEmpty();
    return isToolTip && set == Label().originText_ ? QString() : set;
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = Clickable() == nullptr;
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (Clickable() != nullptr && widget()->isEnabled()) {
      names.prepend(pressAction());
    }
    return names;
  }

  void doAction(const QString& name) override {
    ElidedClickableLabel* const clickable = Clickable();
    if (name != pressAction()) {
      QAccessibleWidget::doAction(name);
    } else if (clickable != nullptr && clickable->isEnabled()) {
      Q_EMIT clickable->clicked();
    }
  }

  QStringList keyBindingsForAction(const QString& name) const override {
    return QAccessibleWidget::keyBindingsForAction(name);
  }

 private:
  // Only labels are given such an interface.
  const ElidedLabel& Label() const { return *static_cast<const ElidedLabel*>(widget()); }
  ElidedClickableLabel* Clickable() const { return qobject_cast<ElidedClickableLabel*>(widget()); }

  QString WholeText() const {
    const QString text = LabelText::Translated(Label().originText_);
    const auto* const named = dynamic_cast<const ElidedLabelWithExtention*>(widget());
    return named != nullptr ? text + named->extension_ : text;
  }
};

namespace {

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  // Labels have no class name of their own.
  auto* const label = dynamic_cast<ElidedLabel*>(object);
  return label != nullptr ? new AccessibleLabel::Interface(label) : nullptr;
}

/// The library may be unloaded before Qt is.
struct Uninstaller {
  ~Uninstaller() { QAccessible::removeFactory(MakeInterface); }
};

}  // namespace

void AccessibleLabel::Install() {
  // Each time: Qt forgets it with the application object.
  QAccessible::installFactory(MakeInterface);
  static const Uninstaller uninstaller;
}

}  // namespace Zenvora::Lumidex
