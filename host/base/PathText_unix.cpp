#include <host/base/PathText.h>

#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

/// Above the bytes' own values: 0xDC80 to 0xDCFF stand for 0x80 to 0xFF.
constexpr unsigned int kEscape = 0xDC00;

/// The length of the UTF-8 sequence (RFC 3629) at the beginning; 0 when there is none.
std::size_t SequenceLength(std::string_view bytes) {
  const auto byte = [&bytes](std::size_t i) {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
  };
  const auto follows = [&byte](std::size_t i, unsigned int least = 0x80, unsigned int most = 0xBF) {
    return byte(i) >= least && byte(i) <= most;
  };
  const unsigned int first = byte(0);
  if (first < 0x80) {
    return 1;
  }
  if (first >= 0xC2 && first <= 0xDF) {
    return follows(1) ? 2 : 0;
  }
  if (first >= 0xE0 && first <= 0xEF) {
    const bool second = follows(1, first == 0xE0 ? 0xA0 : 0x80, first == 0xED ? 0x9F : 0xBF);
    return second && follows(2) ? 3 : 0;
  }
  if (first >= 0xF0 && first <= 0xF4) {
    const bool second = follows(1, first == 0xF0 ? 0x90 : 0x80, first == 0xF4 ? 0x8F : 0xBF);
    return second && follows(2) && follows(3) ? 4 : 0;
  }
  return 0;
}

}  // namespace

QString ReversibleText(const ioPath& path) {
  const std::string bytes = path.utf8string();
  QString text;
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::size_t length = SequenceLength(rest);
    if (length == 0) {
      text += QChar(kEscape + static_cast<unsigned char>(rest.front()));
    } else {
      text += QString::fromUtf8(rest.data(), static_cast<int>(length));
    }
    rest.remove_prefix(length == 0 ? 1 : length);
  }
  return text;
}

ioPath PathOfReversible(const QString& text) {
  std::string bytes;
  for (int i = 0; i < text.size(); ++i) {
    const QChar letter = text.at(i);
    if (letter.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
      bytes += text.mid(i++, 2).toStdString();
    } else if (letter.isLowSurrogate()) {
      bytes += static_cast<char>(letter.unicode() - kEscape);
    } else {
      bytes += QString(letter).toStdString();
    }
  }
  return ioPath(bytes);
}

bool IsText(const ioPath& path) {
  const std::string bytes = path.utf8string();
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::size_t length = SequenceLength(rest);
    if (length == 0) {
      return false;
    }
    rest.remove_prefix(length);
  }
  return true;
}

std::size_t NameLength(const std::string& name) {
  return name.size();
}

}  // namespace Zenvora::Lumidex::Host
