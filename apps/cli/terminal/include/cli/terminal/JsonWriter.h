#pragma once

#include <zenvora/core/ioPath.h>

#include <QDate>
#include <QDateTime>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// Writes one JSON document (RFC 8259), its members in the order of the calls. docs/formats/json-output.md
/// has the grammars. Control characters of either kind are escaped, so that a document printed on a terminal
/// does no harm.
class JsonWriter {
 public:
  /// Opens the document and writes its first two members.
  JsonWriter(std::string_view format, int version);

  void Text(std::string_view name, std::string_view utf8);
  void Text(std::string_view name, const char* utf8);
  void Text(std::string_view name, const QString& text);
  void Number(std::string_view name, long long number);
  /// The shortest number that reads back as this one; null when it is infinite or none.
  void Real(std::string_view name, float number);
  void Real(std::string_view name, double number);
  void Truth(std::string_view name, bool value);
  void Null(std::string_view name);
  /// "2023-12-24"; null when invalid.
  void Day(std::string_view name, const QDate& day);
  /// "2023-12-24T18:03:11", with milliseconds when there are any; null when invalid.
  void Moment(std::string_view name, const QDateTime& moment);
  /// The path as text; where its bytes are not UTF-8 a second member, `name` + "Bytes", holds them in base64.
  void Path(std::string_view name, const ioPath& path);
  /// An array of objects with a member "path" each.
  void Paths(std::string_view name, const std::vector<ioPath>& paths);

  /// In an array the name is empty.
  void BeginObject(std::string_view name = {});
  void EndObject();
  void BeginArray(std::string_view name);
  void EndArray();

  /// Closes the document and hands it over, with a line feed at its end.
  std::string Finish();

 private:
  template <class Float>
  void WriteReal(std::string_view name, Float number);
  void Next(std::string_view name);
  void Open(std::string_view name, char bracket);
  void Close(char bracket);

  std::string text_;
  /// For each open level: something was written in it.
  std::vector<bool> levels_;
};

/// The text as a JSON string with its quotes. Bytes that are not UTF-8 become U+FFFD.
std::string JsonString(std::string_view utf8);

}  // namespace Zenvora::Lumidex::Cli
