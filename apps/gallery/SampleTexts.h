#pragma once

#include <QString>
#include <QTranslator>

#include <vector>

namespace Zenvora::Lumidex::Gallery {

/// Texts to show, invented, with what each is about.
struct SampleText {
  QString about;
  QString text;
};
const std::vector<SampleText>& SampleTexts();

/// Names of files to show.
const std::vector<SampleText>& SampleNames();

/// The first of the sample texts in some languages, for the context that the labels ask.
class SampleTranslator : public QTranslator {
 public:
  /// "en", "de" or "ja".
  explicit SampleTranslator(const QString& language) : language_(language) {}

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int n) const override;

 private:
  const QString language_;
};

}  // namespace Zenvora::Lumidex::Gallery
