#pragma once

#include <QImage>

#include <cstdint>

namespace Zenvora::Bench {

/// Pictures that look alike from afar and are not: each number of one seed gives another one.

/// A page of text; the word with the number `changed` is another than without.
QImage DrawPage(std::uint32_t seed, std::uint32_t number, int changed = -1);
/// A shop's receipt: the same head and foot, other lines.
QImage DrawReceipt(std::uint32_t seed, std::uint32_t number);
/// A screen with the same window and other content.
QImage DrawScreen(std::uint32_t seed, std::uint32_t number);
/// A screen of 3840 x 2160 pixels full of lines in letters of 12 pixels; `changed`: one letter is another.
QImage DrawLargeScreen(std::uint32_t seed, std::uint32_t number, bool changed);
/// A potato on one table, photographed from above; the table is the same to the pixel for even numbers and
/// has noise of its own for odd ones.
QImage DrawPotato(std::uint32_t seed, std::uint32_t number);

}  // namespace Zenvora::Bench
