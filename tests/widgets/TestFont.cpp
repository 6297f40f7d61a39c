#include "TestFont.h"

#include <QByteArray>
#include <QFontDatabase>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace Zenvora::Test {

namespace {

// At 20 pixels a unit is a 64th of a pixel, the finest that there is: nothing is rounded.
constexpr int kUnitsPerEm = 1280;
constexpr int kAscent = 1024;
constexpr int kDescent = 256;
constexpr int kHalf = 640;
constexpr int kFull = 1280;

struct Range {
  std::uint32_t first;
  std::uint32_t last;
  int advance;
};

// In ascending order, as the character map wants them.
constexpr std::array<Range, 24> kRanges = {
    {{0x20, 0x7E, kHalf},     {0xA0, 0x24F, kHalf},    {0x300, 0x36F, 0},       {0x370, 0x3FF, kHalf},
     {0x400, 0x4FF, kHalf},   {0x591, 0x5C7, 0},       {0x5D0, 0x5EA, kHalf},   {0x600, 0x64A, kHalf},
     {0x64B, 0x65F, 0},       {0x660, 0x6FF, kHalf},   {0x900, 0x97F, kHalf},   {0xE01, 0xE7F, kHalf},
     {0x1100, 0x11FF, kHalf}, {0x2000, 0x200A, kHalf}, {0x200B, 0x200F, 0},     {0x2010, 0x2027, kHalf},
     {0x2028, 0x202E, 0},     {0x202F, 0x205F, kHalf}, {0x2060, 0x206F, 0},     {0x20A0, 0x20BF, kHalf},
     {0x3000, 0x30FF, kFull}, {0x4E00, 0x4FFF, kFull}, {0xAC00, 0xAC7F, kFull}, {0x1F600, 0x1F64F, kFull}}};

class Bytes {
 public:
  Bytes& U8(int value) {
    data_.append(static_cast<char>(value));
    return *this;
  }
  Bytes& U16(int value) { return U8(value >> 8 & 0xFF).U8(value & 0xFF); }
  Bytes& U32(std::uint32_t value) {
    return U16(static_cast<int>(value >> 16)).U16(static_cast<int>(value & 0xFFFF));
  }
  Bytes& Add(const QByteArray& bytes) {
    data_ += bytes;
    return *this;
  }
  Bytes& Zeros(int count) {
    data_.append(count, '\0');
    return *this;
  }
  const QByteArray& Data() const { return data_; }

 private:
  QByteArray data_;
};

/// A box as high as a capital, or nothing.
QByteArray Glyph(int advance) {
  if (advance == 0) {
    return {};
  }
  constexpr int kSide = 50;
  constexpr int kHeight = 900;
  const int width = advance - 2 * kSide;
  Bytes glyph;
  glyph.U16(1).U16(kSide).U16(0).U16(kSide + width).U16(kHeight).U16(3).U16(0);
  glyph.U8(1).U8(1).U8(1).U8(1);
  glyph.U16(kSide).U16(0).U16(width).U16(0);
  glyph.U16(0).U16(kHeight).U16(0).U16(-kHeight);
  return glyph.Zeros(2).Data();
}

QByteArray CharacterMap() {
  Bytes segments;
  Bytes groups;
  std::vector<int> ends;
  std::vector<int> starts;
  std::vector<int> deltas;
  int glyph = 1;
  for (const Range& range : kRanges) {
    groups.U32(range.first).U32(range.last).U32(static_cast<std::uint32_t>(glyph));
    if (range.last <= 0xFFFF) {
      ends.push_back(static_cast<int>(range.last));
      starts.push_back(static_cast<int>(range.first));
      deltas.push_back(glyph - static_cast<int>(range.first));
    }
    glyph += static_cast<int>(range.last - range.first) + 1;
  }
  ends.push_back(0xFFFF);
  starts.push_back(0xFFFF);
  deltas.push_back(1);
  const int count = static_cast<int>(ends.size());
  int power = 1;
  int exponent = 0;
  for (; power * 2 <= count; power *= 2) {
    ++exponent;
  }
  segments.U16(4)
      .U16(16 + 8 * count)
      .U16(0)
      .U16(2 * count)
      .U16(2 * power)
      .U16(exponent)
      .U16(2 * (count - power));
  for (const int end : ends)
    segments.U16(end);
  segments.U16(0);
  for (const int start : starts)
    segments.U16(start);
  for (const int delta : deltas)
    segments.U16(delta);
  segments.Zeros(2 * count);

  constexpr int kHead = 4 + 2 * 8;
  Bytes map;
  map.U16(0).U16(2);
  map.U16(3).U16(1).U32(kHead);
  map.U16(3).U16(10).U32(static_cast<std::uint32_t>(kHead + segments.Data().size()));
  map.Add(segments.Data());
  const auto size = static_cast<std::uint32_t>(groups.Data().size());
  map.U16(12).U16(0).U32(16 + size).U32(0).U32(static_cast<std::uint32_t>(kRanges.size())).Add(groups.Data());
  return map.Data();
}

QByteArray Names(const QString& family) {
  const std::map<int, QString> names = {{1, family}, {2, QStringLiteral("Regular")},     {3, family},
                                        {4, family}, {5, QStringLiteral("Version 1.0")}, {6, family}};
  Bytes records;
  Bytes texts;
  for (const auto& [id, text] : names) {
    records.U16(3).U16(1).U16(0x409).U16(id).U16(2 * text.size()).U16(texts.Data().size());
    for (const QChar unit : text)
      texts.U16(unit.unicode());
  }
  Bytes table;
  table.U16(0).U16(static_cast<int>(names.size())).U16(6 + records.Data().size());
  return table.Add(records.Data()).Add(texts.Data()).Data();
}

QByteArray Metrics() {
  Bytes os2;
  os2.U16(4).U16(kHalf).U16(400).U16(5).U16(0);
  for (int i = 0; i < 10; ++i)
    os2.U16(100);  // Subscripts, strike-out.
  os2.U16(0).Zeros(10);
  os2.U32(0xFFFFFFFF).U32(0xFFFFFFFF).U32(0).U32(0).Add("TEST").U16(0x40).U16(0x20).U16(0xFFFF);
  os2.U16(kAscent).U16(-kDescent).U16(0).U16(kAscent).U16(kDescent).U32(1).U32(0);
  return os2.U16(500).U16(700).U16(0).U16(0x20).U16(1).Data();
}

std::uint32_t Checksum(const QByteArray& padded) {
  std::uint32_t sum = 0;
  for (int i = 0; i < padded.size(); i += 4) {
    std::uint32_t word = 0;
    for (int j = 0; j < 4; ++j)
      word = word << 8 | static_cast<unsigned char>(padded[i + j]);
    sum += word;
  }
  return sum;
}

QByteArray Assemble(const std::map<std::string, QByteArray>& tables) {
  Bytes head;
  const int count = static_cast<int>(tables.size());
  int power = 1;
  int exponent = 0;
  for (; power * 2 <= count; power *= 2)
    ++exponent;
  head.U32(0x00010000).U16(count).U16(16 * power).U16(exponent).U16(16 * (count - power));
  Bytes body;
  for (const auto& [tag, table] : tables) {
    QByteArray padded = table;
    padded.append((4 - table.size() % 4) % 4, '\0');
    head.Add(QByteArray::fromStdString(tag)).U32(Checksum(padded));
    head.U32(static_cast<std::uint32_t>(12 + 16 * count + body.Data().size()));
    head.U32(static_cast<std::uint32_t>(table.size()));
    body.Add(padded);
  }
  return head.Add(body.Data()).Data();
}

QByteArray MakeFont(const QString& family) {
  std::vector<int> advances = {kHalf};
  for (const Range& range : kRanges) {
    advances.insert(advances.end(), range.last - range.first + 1, range.advance);
  }
  const int count = static_cast<int>(advances.size());
  Bytes metrics;
  Bytes glyphs;
  Bytes places;
  for (const int advance : advances) {
    metrics.U16(advance).U16(advance == 0 ? 0 : 50);
    places.U32(static_cast<std::uint32_t>(glyphs.Data().size()));
    glyphs.Add(Glyph(advance));
  }
  places.U32(static_cast<std::uint32_t>(glyphs.Data().size()));

  Bytes head;
  head.U32(0x00010000).U32(0x00010000).U32(0).U32(0x5F0F3CF5).U16(0).U16(kUnitsPerEm).Zeros(16);
  head.U16(0).U16(0).U16(kFull).U16(kAscent).U16(0).U16(8).U16(2).U16(1).U16(0);
  Bytes hhea;
  hhea.U32(0x00010000)
      .U16(kAscent)
      .U16(-kDescent)
      .U16(0)
      .U16(kFull)
      .U16(0)
      .U16(0)
      .U16(kFull)
      .U16(1)
      .U16(0)
      .U16(0);
  hhea.Zeros(8).U16(0).U16(count);
  Bytes maxp;
  maxp.U32(0x00010000).U16(count).U16(4).U16(1).U16(0).U16(0).U16(2).Zeros(16);
  Bytes post;
  post.U32(0x00030000).U32(0).U16(-100).U16(50).U32(0).Zeros(16);
  return Assemble({{"OS/2", Metrics()},
                   {"cmap", CharacterMap()},
                   {"glyf", glyphs.Data()},
                   {"head", head.Data()},
                   {"hhea", hhea.Data()},
                   {"hmtx", metrics.Data()},
                   {"loca", places.Data()},
                   {"maxp", maxp.Data()},
                   {"name", Names(family)},
                   {"post", post.Data()}});
}

}  // namespace

QFont TestFont() {
  const QString family = QStringLiteral("LumidexTestBoxes");
  static const int kId = QFontDatabase::addApplicationFontFromData(MakeFont(family));
  if (kId < 0) {
    qFatal("The font of the tests is not accepted");
  }
  QFont font(family);
  font.setPixelSize(kLine);
  font.setStyleStrategy(QFont::NoFontMerging);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace Zenvora::Test
