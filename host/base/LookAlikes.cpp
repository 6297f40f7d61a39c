#include <host/base/LookAlikes.h>

#include <array>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// What Unicode does not take for a form of another letter, in lower case.
constexpr std::array kLatin = {
    std::pair{u'\u0430', "a"}, std::pair{u'\u0432', "b"}, std::pair{u'\u0435', "e"},
    std::pair{u'\u043A', "k"}, std::pair{u'\u043C', "m"}, std::pair{u'\u043D', "h"},
    std::pair{u'\u043E', "o"}, std::pair{u'\u0440', "p"}, std::pair{u'\u0441', "c"},
    std::pair{u'\u0442', "t"}, std::pair{u'\u0443', "y"}, std::pair{u'\u0445', "x"},
    std::pair{u'\u0455', "s"}, std::pair{u'\u0456', "i"}, std::pair{u'\u0458', "j"},
    // Letters with strokes and ligatures of the Latin script.
    std::pair{u'\u00DF', "ss"}, std::pair{u'\u00E6', "ae"}, std::pair{u'\u00F8', "o"},
    std::pair{u'\u0111', "d"}, std::pair{u'\u0131', "i"}, std::pair{u'\u0142', "l"},
    std::pair{u'\u0153', "oe"},
    // What keyboards and word processors make of a hyphen and an apostrophe.
    std::pair{u'\u2010', "-"}, std::pair{u'\u2011', "-"}, std::pair{u'\u2013', "-"},
    std::pair{u'\u2014', "-"}, std::pair{u'\u2019', "'"}};

/// Not the voice marks of Japanese: these tell letters apart.
bool IsAccent(QChar character) {
  return character.unicode() >= 0x0300 && character.unicode() <= 0x036F;
}

/// What takes no room of its own, as programs put it into texts that are copied, and letters that are blank.
bool IsInvisible(QChar character) {
  const char16_t code = character.unicode();
  const bool choosesVariant = code >= 0xFE00 && code <= 0xFE0F;
  const bool isBlankLetter = code == 0x115F || code == 0x1160 || code == 0x2800;
  return choosesVariant || isBlankLetter || character.category() == QChar::Other_Format;
}

void Append(QChar character, QString& form) {
  for (const auto& [letter, latin] : kLatin) {
    if (character == QChar(letter)) {
      form += QLatin1String(latin);
      return;
    }
  }
  form += character;
}

}  // namespace

QString LookAlikeForm(const QString& text) {
  QString form;
  // Once more at the end: what folding leaves can be a form of something again.
  const QString folded =
      text.normalized(QString::NormalizationForm_KD).toCaseFolded().normalized(QString::NormalizationForm_KD);
  for (const QChar character : folded) {
    if (!IsAccent(character) && !IsInvisible(character)) {
      Append(character, form);
    }
  }
  return form.simplified();
}

}  // namespace Zenvora::Lumidex::Host
