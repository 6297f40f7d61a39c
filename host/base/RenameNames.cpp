#include <host/base/RenameNames.h>

#include <zenvora/core/WindowsNames.h>
#include <zenvora/core/ioPath.h>

#include <QByteArray>
#include <QChar>
#include <QString>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

std::optional<QString> FromUtf8(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  QString text = QString::fromUtf8(bytes.data(), length);
  // Qt replaces what it cannot read and drops a byte order mark.
  if (text.toUtf8() != QByteArray::fromRawData(bytes.data(), length)) {
    return std::nullopt;
  }
  return text;
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string LowerAscii(std::string_view name) {
  std::string text(name);
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') {
      c = static_cast<char>(c - 'A' + 'a');
    }
  }
  return text;
}

std::string FindFaultOfCharacters(const QString& name) {
  for (const uint character : name.toUcs4()) {
    std::string fault = FindCharacterFault(static_cast<char32_t>(character));
    if (!fault.empty()) {
      return "holds " + fault;
    }
  }
  return {};
}

}  // namespace

std::string FindCharacterFault(char32_t character) {
  if (character == U'/' || character == U'\\') {
    return std::string("a separator of folders ") + static_cast<char>(character);
  }
  // A name that was read with losses would be written back with them.
  if (character == QChar::ReplacementCharacter) {
    return "the sign for unreadable characters";
  }
  switch (QChar::category(static_cast<uint>(character))) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return "a control character";
    default:
      break;
  }
  constexpr std::u32string_view kWindowsForbids = U"<>:\"|?*";
  if (kWindowsForbids.find(character) != std::u32string_view::npos) {
    return std::string("the character ") + static_cast<char>(character);
  }
  return {};
}

std::string FindNewNameFault(const std::string& fileName) {
  if (fileName.empty()) {
    return "is empty";
  }
  if (fileName == "." || fileName == "..") {
    return "means a folder";
  }
  const std::optional<QString> text = FromUtf8(fileName);
  if (!text) {
    return "is not valid UTF-8";
  }
  std::string fault = FindFaultOfCharacters(*text);
  if (!fault.empty()) {
    return fault;
  }
  if (fileName.front() == '.') {
    return "begins with a dot, which hides the file";
  }
  if (fileName.size() > kLongestFileName) {
    return "is longer than " + std::to_string(kLongestFileName) + " bytes";
  }
  fault = ioPath(fileName).name_fault();
  return fault.empty() ? WindowsNames::FindFault(text->toStdWString()) : fault;
}

std::string NameKey(std::string_view name) {
  if (IsAscii(name)) {
    return LowerAscii(name);
  }
  const std::optional<QString> text = FromUtf8(name);
  if (!text) {
    return LowerAscii(name);
  }
  // Through upper case, where one letter can become two (sharp s); folding case can undo the normal form.
  return text->normalized(QString::NormalizationForm_D)
      .toCaseFolded()
      .toUpper()
      .toCaseFolded()
      .normalized(QString::NormalizationForm_D)
      .toStdString();
}

std::string NaturalKey(const std::string& name) {
  const std::string folded = NameKey(name);
  std::string key;
  for (std::size_t at = 0; at < folded.size();) {
    if (!IsDigit(folded[at])) {
      key += folded[at++];
      continue;
    }
    std::size_t end = at;
    while (end < folded.size() && IsDigit(folded[end])) {
      ++end;
    }
    while (at + 1 < end && folded[at] == '0') {
      ++at;
    }
    // The longer number is the larger one.
    char length[9];
    std::snprintf(length, sizeof(length), "%08x", static_cast<unsigned>(end - at));
    key += '0';
    key += length;
    key.append(folded, at, end - at);
    at = end;
  }
  return key;
}

}  // namespace Zenvora::Lumidex::Host
