#include <LumidexUtil/ElidedLabelWithExtention.h>

#include <zenvora/core/ioPath.h>

#include <QFontMetrics>

namespace Zenvora::Lumidex {

ElidedLabelWithExtention::ElidedLabelWithExtention(QWidget* parent) : ElidedLabel(parent) {}

ElidedLabelWithExtention::~ElidedLabelWithExtention() = default;

void ElidedLabelWithExtention::SetOriginText(const QString& text) {
  ioPath path(text.toUtf8().toStdString());
  extension_ = QString::fromStdString(path.extension().utf8string());
  path.replace_extension();
  ElidedLabel::SetOriginText(QString::fromStdString(path.utf8string()));
}

const QString ElidedLabelWithExtention::GetOriginText() const {
  return ElidedLabel::GetOriginText() + extension_;
}

// The largest width on purpose: the name does not change while a view is being laid out.
int ElidedLabelWithExtention::Width() const {
  return maximumWidth() - QFontMetrics(font()).horizontalAdvance(extension_);
}

void ElidedLabelWithExtention::PrepareLastRowText(QString& row) {
  // The ellipsis stands for the dot.
  row += row.endsWith(QChar(0x2026)) ? extension_.mid(1) : extension_;
}

}  // namespace Zenvora::Lumidex
