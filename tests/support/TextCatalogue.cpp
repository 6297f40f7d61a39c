#include <support/TextCatalogue.h>

#include <QCoreApplication>

namespace Zenvora::Test {

TextCatalogue::TextCatalogue(const QString& context, const QMap<QString, QString>& texts)
    : context_(context), texts_(texts) {
  QCoreApplication::installTranslator(this);
}

TextCatalogue::~TextCatalogue() {
  QCoreApplication::removeTranslator(this);
}

QString TextCatalogue::translate(const char* context, const char* source, const char* /*disambiguation*/,
                                 int /*n*/) const {
  // Null: no entry, as a real catalogue answers.
  return context_ == QLatin1String(context) ? texts_.value(QString::fromUtf8(source)) : QString();
}

}  // namespace Zenvora::Test
