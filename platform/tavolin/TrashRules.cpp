#include "TrashRules.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace Zenvora::Tavolin {

namespace {

constexpr char kHead[] = "[Trash Info]";
constexpr char kPathKey[] = "Path=";
// Longer ones are parts of a name with a dot in it.
constexpr std::size_t kLongestExtension = 24;

bool IsWithinCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Not in the middle of a character, unless the bytes are no text.
std::string Cut(const std::string& text, std::size_t longest) {
  if (text.size() <= longest) {
    return text;
  }
  constexpr std::size_t kMostWithin = 3;
  std::size_t end = longest;
  while (end > 0 && longest - end < kMostWithin && IsWithinCharacter(text[end])) {
    --end;
  }
  return text.substr(0, IsWithinCharacter(text[end]) ? longest : end);
}

bool StaysAsItIs(char byte) {
  constexpr std::string_view kMarks = "-_.!~*'()/";
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
         kMarks.find(byte) != std::string_view::npos;
}

std::string Encoded(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const char byte : bytes) {
    if (StaysAsItIs(byte)) {
      text += byte;
    } else {
      const auto value = static_cast<unsigned char>(byte);
      text += '%';
      text += kDigits[value >> 4U];
      text += kDigits[value & 0xFU];
    }
  }
  return text;
}

int ValueOf(char digit) {
  return digit >= '0' && digit <= '9'   ? digit - '0'
         : digit >= 'A' && digit <= 'F' ? digit - 'A' + 10
         : digit >= 'a' && digit <= 'f' ? digit - 'a' + 10
                                        : -1;
}

std::string Decoded(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? ValueOf(text[i + 1]) : -1;
    const int low = high >= 0 ? ValueOf(text[i + 2]) : -1;
    if (low >= 0) {
      bytes += static_cast<char>(high * 16 + low);
      i += 2;
    } else {
      bytes += text[i];
    }
  }
  return bytes;
}

/// The next line, which is taken off the text.
std::string_view ReadLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

// The system counts steps of 100 nanoseconds from 1601 on.
constexpr std::int64_t kMillisecondsTo1970 = 11'644'473'600'000;
constexpr std::int64_t kStepsPerMillisecond = 10'000;
constexpr std::uint64_t kRecycleVersion = 2;
constexpr std::size_t kRecycleHead = 28;

void Put(std::string& bytes, std::uint64_t value, int count) {
  for (int i = 0; i < count; ++i) {
    bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
  }
}

std::uint64_t ReadNumber(const std::string& bytes, std::size_t at, int count) {
  std::uint64_t value = 0;
  for (int i = count - 1; i >= 0; --i) {
    value = value << 8U | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
  }
  return value;
}

}  // namespace

std::string NameInTrash(const std::string& name, unsigned number, std::size_t longest) {
  const std::size_t room = longest - std::min(longest, std::strlen(kTrashNoteEnd));
  const std::size_t dot = name.rfind('.');
  const bool hasExtension = dot != std::string::npos && dot > 0 && name.size() - dot <= kLongestExtension;
  const std::string extension = hasExtension ? name.substr(dot) : std::string();
  const std::string end = (number > 1 ? "." + std::to_string(number) : std::string()) + extension;
  return Cut(name.substr(0, name.size() - extension.size()), room - std::min(room, end.size())) + end;
}

std::string TrashNoteText(const std::string& path, const QDateTime& deleted) {
  const QString moment = deleted.toLocalTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
  return std::string(kHead) + '\n' + kPathKey + Encoded(path) + "\nDeletionDate=" + moment.toStdString() +
         '\n';
}

std::optional<std::string> PathInTrashNote(const std::string& text) {
  std::string_view rest(text);
  if (ReadLine(rest) != kHead) {
    return std::nullopt;
  }
  while (!rest.empty()) {
    const std::string_view line = ReadLine(rest);
    if (line.substr(0, std::strlen(kPathKey)) == kPathKey) {
      return Decoded(line.substr(std::strlen(kPathKey)));
    }
  }
  return std::nullopt;
}

std::string RecycleNoteBytes(const RecycleNote& note) {
  std::string bytes;
  Put(bytes, kRecycleVersion, 8);
  Put(bytes, note.size, 8);
  const std::int64_t steps = (note.deleted.toMSecsSinceEpoch() + kMillisecondsTo1970) * kStepsPerMillisecond;
  Put(bytes, static_cast<std::uint64_t>(steps), 8);
  Put(bytes, note.path.size() + 1, 4);
  for (const char16_t unit : note.path) {
    Put(bytes, unit, 2);
  }
  Put(bytes, 0, 2);
  return bytes;
}

std::optional<RecycleNote> ParseRecycleNote(const std::string& bytes) {
  if (bytes.size() < kRecycleHead || ReadNumber(bytes, 0, 8) != kRecycleVersion) {
    return std::nullopt;
  }
  const std::uint64_t length = ReadNumber(bytes, 24, 4);
  if (length == 0 || bytes.size() - kRecycleHead < length * 2) {
    return std::nullopt;
  }
  RecycleNote note;
  note.size = ReadNumber(bytes, 8, 8);
  note.deleted = QDateTime::fromMSecsSinceEpoch(
      static_cast<std::int64_t>(ReadNumber(bytes, 16, 8)) / kStepsPerMillisecond - kMillisecondsTo1970,
      Qt::UTC);
  for (std::size_t i = 0; i + 1 < length; ++i) {
    note.path += static_cast<char16_t>(ReadNumber(bytes, kRecycleHead + i * 2, 2));
  }
  return note;
}

}  // namespace Zenvora::Tavolin
