#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace Zenvora::Test {

/// One text of a catalogue's source.
struct CatalogueText {
  QString context;
  QString source;
  QString comment;
  bool counts = false;       ///< It goes with a number.
  QString state;             ///< Empty: finished.
  QStringList translations;  ///< One; of a text that counts, one for each form.
};

/// translations/lumidex_<locale>.ts. A test fails when it cannot be read.
std::vector<CatalogueText> ReadCatalogue(const std::string& locale);

}  // namespace Zenvora::Test
