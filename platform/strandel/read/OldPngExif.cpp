#include "OldPngExif.h"

#include <QByteArray>

#include <cstdio>

namespace Zenvora::Strandel {

namespace {

constexpr std::string_view kExifMark("Exif\0\0", 6);
constexpr std::size_t kMostBytes = std::size_t{256} * 1024;
constexpr std::size_t kSizeBytes = 4;  // What Qt puts before compressed bytes

[[noreturn]] void RefuseDamaged() {
  throw OldPngExif::Damaged("its EXIF data, which are kept as text, are damaged");
}

std::string Uncompressed(std::string_view content) {
  // Few bytes can stand for very many.
  if (content.size() > kMostBytes || content.empty() || content[0] != '\0') {
    RefuseDamaged();
  }
  const QByteArray bytes =
      QByteArray(kSizeBytes, '\0') + QByteArray(content.data() + 1, static_cast<int>(content.size() - 1));
  const QByteArray text = qUncompress(bytes);
  if (text.isEmpty()) {
    RefuseDamaged();
  }
  return text.toStdString();
}

/// The next line, without its end.
std::string_view ReadLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) {
    RefuseDamaged();
  }
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end + 1);
  return line;
}

void SplitMark(OldPngExif& exif) {
  if (exif.block.compare(0, kExifMark.size(), kExifMark) == 0) {
    exif.mark = kExifMark;
    exif.block.erase(0, kExifMark.size());
  }
}

}  // namespace

std::optional<OldPngExif> OldPngExif::Parse(std::string_view type, std::string_view content) {
  OldPngExif exif;
  exif.keyword = content.substr(0, content.find('\0'));
  const bool isText = type == "tEXt" || type == "zTXt" || type == "iTXt";
  if (!isText || (exif.keyword != "Raw profile type exif" && exif.keyword != "Raw profile type APP1")) {
    return std::nullopt;
  }
  if (type == "iTXt" || content.size() == exif.keyword.size()) {
    RefuseDamaged();
  }
  content.remove_prefix(exif.keyword.size() + 1);
  exif.compressed = type == "zTXt";
  const std::string all = exif.compressed ? Uncompressed(content) : std::string(content);
  std::string_view text = all;
  ReadLine(text);
  exif.label = ReadLine(text);
  const std::string size(ReadLine(text));
  exif.block = QByteArray::fromHex(QByteArray(text.data(), static_cast<int>(text.size()))).toStdString();
  if (QByteArray::fromStdString(size).trimmed().toULongLong() != exif.block.size()) {
    RefuseDamaged();
  }
  SplitMark(exif);
  return exif;
}

std::string OldPngExif::Content() const {
  constexpr std::size_t kDigitsOfALine = 72;
  const std::string bytes = mark + block;
  const std::string digits = QByteArray::fromStdString(bytes).toHex().toStdString();
  char size[32];
  std::snprintf(size, sizeof size, "%8zu", bytes.size());
  std::string text = '\n' + label + '\n' + size + '\n';
  for (std::size_t at = 0; at < digits.size(); at += kDigitsOfALine) {
    text += digits.substr(at, kDigitsOfALine) + '\n';
  }
  const std::string head = keyword + '\0';
  return compressed ? head + '\0' + qCompress(QByteArray::fromStdString(text)).mid(kSizeBytes).toStdString()
                    : head + text;
}

}  // namespace Zenvora::Strandel
