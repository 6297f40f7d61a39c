#include "ExifText.h"

#include <algorithm>

namespace Zenvora::Strandel {

namespace {

/// Of a field that anybody asks for. Values of files that are made to harm reach gigabytes as text.
constexpr std::size_t kMostBytes = std::size_t{64} * 1024;

bool IsFraction(Exiv2::TypeId type) {
  return type == Exiv2::unsignedRational || type == Exiv2::signedRational;
}

}  // namespace

bool TextBytes(const Exiv2::Exifdatum& datum, Exiv2::TypeId meant, std::size_t most, std::string& text) {
  const Exiv2::TypeId type = datum.typeId();
  const bool isBytes = type == Exiv2::unsignedByte || type == Exiv2::undefined;
  if (type != Exiv2::asciiString && !(isBytes && meant == Exiv2::asciiString)) {
    return false;
  }
  text.assign(static_cast<std::size_t>(std::max(datum.size(), 0L)), '\0');
  if (!text.empty()) {
    datum.copy(reinterpret_cast<Exiv2::byte*>(text.data()), Exiv2::littleEndian);
  }
  text.resize(std::min({text.size(), text.find('\0'), most}));
  return true;
}

bool SaysNothing(const Exiv2::Exifdatum& datum) {
  if (datum.count() > 0 && !IsFraction(datum.typeId())) {
    return false;
  }
  for (long i = 0; i < datum.count(); ++i) {
    if (datum.toRational(i) != Exiv2::Rational(0, 0)) {
      return false;
    }
  }
  return true;
}

std::string ExifText(const Exiv2::Exifdatum& datum, Exiv2::TypeId meant) {
  std::string text;
  if (TextBytes(datum, meant, kMostBytes, text)) {
    return text;
  }
  if (datum.size() > static_cast<long>(kMostBytes) || SaysNothing(datum)) {
    return {};
  }
  return datum.toString();
}

}  // namespace Zenvora::Strandel
