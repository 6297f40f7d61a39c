#pragma once

#ifdef QT_WIDGETS_LIB
#include <LumidexUtil/ElidedLabel.h>

namespace Zenvora::Lumidex {

/// An `ElidedLabel` for names of files: what follows the ellipsis is the file's extension.
///
/// The name is elided to the label's largest allowed width, `maximumWidth()`, not to the current one: fix it
/// (`setFixedWidth`, `setMaximumWidth`) or nothing is elided. The extension stands on the last line that
/// there is room for; when all of the name fits above that one, it does not show. The tool tip has the name
/// without its extension, screen readers get both.
class LUMIDEXUTIL_EXPORT ElidedLabelWithExtention : public ElidedLabel {
 public:
  explicit ElidedLabelWithExtention(QWidget* parent);
  ~ElidedLabelWithExtention() override;

  /// A file's name or path, split before the last dot of its last element. A dot in the first place
  /// (".hidden") belongs to the name.
  void SetOriginText(const QString& text) override;
  /// The name with its extension.
  const QString GetOriginText() const override;

 protected:
  int Width() const override;
  void PrepareLastRowText(QString& row) override;

 private:
  friend class AccessibleLabel;

  QString extension_;
};

}  // namespace Zenvora::Lumidex
#endif
