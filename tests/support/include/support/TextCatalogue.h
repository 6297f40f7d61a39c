#pragma once

#include <QMap>
#include <QTranslator>

namespace Zenvora::Test {

/// A translation catalogue with a few entries of one context, installed on the application while it lives.
class TextCatalogue : public QTranslator {
 public:
  TextCatalogue(const QString& context, const QMap<QString, QString>& texts);
  ~TextCatalogue() override;

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int n) const override;

 private:
  const QString context_;
  const QMap<QString, QString> texts_;
};

}  // namespace Zenvora::Test
