#include "CatalogueFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QXmlStreamReader>

namespace Zenvora::Test {

namespace {

CatalogueText ReadMessage(QXmlStreamReader& xml, const QString& context) {
  CatalogueText text;
  text.context = context;
  text.counts = xml.attributes().value(QStringLiteral("numerus")) == QLatin1String("yes");
  while (xml.readNextStartElement()) {
    if (xml.name() == QLatin1String("source")) {
      text.source = xml.readElementText();
    } else if (xml.name() == QLatin1String("comment")) {
      text.comment = xml.readElementText();
    } else if (xml.name() == QLatin1String("translation")) {
      text.state = xml.attributes().value(QStringLiteral("type")).toString();
      if (!text.counts) {
        text.translations << xml.readElementText();
        continue;
      }
      while (xml.readNextStartElement()) {
        text.translations << xml.readElementText();
      }
    } else {
      xml.skipCurrentElement();
    }
  }
  return text;
}

}  // namespace

std::vector<CatalogueText> ReadCatalogue(const std::string& locale) {
  QFile file(QStringLiteral(LUMIDEX_TRANSLATIONS "/lumidex_%1.ts").arg(QString::fromStdString(locale)));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << locale;
  std::vector<CatalogueText> texts;
  QXmlStreamReader xml(&file);
  xml.readNextStartElement();
  EXPECT_EQ(xml.attributes().value(QStringLiteral("language")).toString().toStdString(), locale);
  while (xml.readNextStartElement()) {
    QString context;
    while (xml.readNextStartElement()) {
      if (xml.name() == QLatin1String("name")) {
        context = xml.readElementText();
      } else {
        texts.push_back(ReadMessage(xml, context));
      }
    }
  }
  EXPECT_FALSE(xml.hasError()) << locale << ": " << xml.errorString().toStdString();
  EXPECT_GT(texts.size(), 100U) << locale;
  return texts;
}

}  // namespace Zenvora::Test
