#pragma once

#include <QByteArray>

#include <cstddef>

namespace Zenvora::Quillet {

/// Byte offset of the first bracket that opens a level deeper than `limit`, or -1. Pure: looks at brackets
/// outside of texts only, so it also answers for text that is not JSON.
int FindTooDeep(const QByteArray& json, std::size_t limit);

/// "line 3, column 7" (both from 1, columns in bytes) of a byte offset.
QByteArray PlaceOf(const QByteArray& text, int offset);

}  // namespace Zenvora::Quillet
