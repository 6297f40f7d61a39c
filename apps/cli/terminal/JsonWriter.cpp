#include "Utf8.h"

#include <cli/terminal/JsonWriter.h>

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string EscapedCharacter(char32_t code) {
  switch (code) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      break;
  }
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "\\u%04x", static_cast<unsigned>(code));
  return text.data();
}

bool NeedsEscape(char32_t code) {
  return code < 0x20 || code == '"' || code == '\\' || (code >= 0x7F && code <= 0x9F);
}

template <class Number>
std::string RealText(Number number) {
  if (!std::isfinite(number)) {
    return "null";
  }
  constexpr std::size_t kLongest = 32;
  char digits[kLongest];
  return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

}  // namespace

std::string JsonString(std::string_view utf8) {
  std::string text = "\"";
  while (!utf8.empty()) {
    const Utf8Step step = FirstCharacter(utf8);
    if (!step.valid) {
      text += "\xEF\xBF\xBD";
    } else if (NeedsEscape(step.code)) {
      text += EscapedCharacter(step.code);
    } else {
      text += utf8.substr(0, step.length);
    }
    utf8.remove_prefix(step.length);
  }
  return text + '"';
}

JsonWriter::JsonWriter(std::string_view format, int version) {
  text_ = "{";
  levels_.push_back(false);
  Text("format", format);
  Number("version", version);
}

void JsonWriter::Next(std::string_view name) {
  if (levels_.back()) {
    text_ += ',';
  }
  levels_.back() = true;
  text_ += '\n' + std::string(levels_.size() * 2, ' ');
  if (!name.empty()) {
    text_ += JsonString(name) + ": ";
  }
}

void JsonWriter::Text(std::string_view name, std::string_view utf8) {
  Next(name);
  text_ += JsonString(utf8);
}

void JsonWriter::Text(std::string_view name, const char* utf8) {
  Text(name, std::string_view(utf8));
}

void JsonWriter::Text(std::string_view name, const QString& text) {
  Text(name, text.toStdString());
}

void JsonWriter::Number(std::string_view name, long long number) {
  Next(name);
  text_ += std::to_string(number);
}

void JsonWriter::Real(std::string_view name, float number) {
  WriteReal(name, number);
}

void JsonWriter::Real(std::string_view name, double number) {
  WriteReal(name, number);
}

template <class Float>
void JsonWriter::WriteReal(std::string_view name, Float number) {
  Next(name);
  text_ += RealText(number);
}

void JsonWriter::Truth(std::string_view name, bool value) {
  Next(name);
  text_ += value ? "true" : "false";
}

void JsonWriter::Null(std::string_view name) {
  Next(name);
  text_ += "null";
}

void JsonWriter::Day(std::string_view name, const QDate& day) {
  if (day.isValid()) {
    Text(name, day.toString(Qt::ISODate));
  } else {
    Null(name);
  }
}

void JsonWriter::Moment(std::string_view name, const QDateTime& moment) {
  if (!moment.isValid()) {
    Null(name);
    return;
  }
  // The camera's own time: no offset is known.
  const bool isWhole = moment.time().msec() == 0;
  Text(name, moment.toString(isWhole ? QStringLiteral("yyyy-MM-ddTHH:mm:ss")
                                     : QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")));
}

void JsonWriter::Path(std::string_view name, const ioPath& path) {
  const std::string bytes = path.utf8string();
  Text(name, bytes);
  if (!IsValidUtf8(bytes)) {
    Text(std::string(name) + "Bytes", QByteArray::fromStdString(bytes).toBase64().toStdString());
  }
}

void JsonWriter::Paths(std::string_view name, const std::vector<ioPath>& paths) {
  BeginArray(name);
  for (const ioPath& path : paths) {
    BeginObject();
    Path("path", path);
    EndObject();
  }
  EndArray();
}

void JsonWriter::Open(std::string_view name, char bracket) {
  Next(name);
  text_ += bracket;
  levels_.push_back(false);
}

void JsonWriter::Close(char bracket) {
  const bool hasContent = levels_.back();
  levels_.pop_back();
  if (hasContent) {
    text_ += '\n' + std::string(levels_.size() * 2, ' ');
  }
  text_ += bracket;
}

void JsonWriter::BeginObject(std::string_view name) {
  Open(name, '{');
}

void JsonWriter::EndObject() {
  Close('}');
}

void JsonWriter::BeginArray(std::string_view name) {
  Open(name, '[');
}

void JsonWriter::EndArray() {
  Close(']');
}

std::string JsonWriter::Finish() {
  Close('}');
  return text_ + '\n';
}

}  // namespace Zenvora::Lumidex::Cli
