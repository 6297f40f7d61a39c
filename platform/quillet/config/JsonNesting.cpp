#include "JsonNesting.h"

#include <algorithm>

namespace Zenvora::Quillet {

int FindTooDeep(const QByteArray& json, std::size_t limit) {
  std::size_t depth = 0;
  bool inText = false;
  for (int i = 0; i < json.size(); ++i) {
    const char c = json[i];
    if (inText) {
      if (c == '\\') {
        ++i;
      } else if (c == '"') {
        inText = false;
      }
    } else if (c == '"') {
      inText = true;
    } else if (c == '{' || c == '[') {
      if (++depth > limit) {
        return i;
      }
    } else if ((c == '}' || c == ']') && depth > 0) {
      --depth;
    }
  }
  return -1;
}

QByteArray PlaceOf(const QByteArray& text, int offset) {
  const int end = std::clamp(offset, 0, text.size());
  const auto line = std::count(text.begin(), text.begin() + end, '\n') + 1;
  const int lineStart = end == 0 ? 0 : text.lastIndexOf('\n', end - 1) + 1;
  return "line " + QByteArray::number(static_cast<qlonglong>(line)) + ", column " +
         QByteArray::number(end - lineStart + 1);
}

}  // namespace Zenvora::Quillet
